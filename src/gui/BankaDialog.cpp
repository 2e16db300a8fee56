#include "BankaDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

BankaDialog::BankaDialog(wxWindow* parent, int id, int vzor)
    : wxDialog(parent, wxID_ANY, u8("Bankovní účet")), m_id(id) {
    DbModel* model = DbModel::instance();
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto text = [&](const char* name, int width) {
        return new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(width, -1), 0, wxDefaultValidator, name);
    };
    auto add = [&](const char* label, wxWindow* control, wxWindow* button = nullptr) {
        grid->Add(new wxStaticText(this, wxID_ANY, u8(label)), wxSizerFlags().CentreVertical());
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(control, wxSizerFlags(1).CentreVertical());
        if (button) row->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
        grid->Add(row, wxSizerFlags().Expand());
    };
    m_zkratka = text("zkratka", 120);
    m_popis = text("popis", 280);
    m_cislo = text("cislouctu", 200);
    m_kod = text("kodbanky", 80);
    m_iban = text("iban", 240);
    m_bic = text("bic", 120);
    m_mena =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "mena");
    auto* banky = new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT);
    auto* iban = new wxButton(this, wxID_ANY, u8("Spočítat IBAN"));
    add("Zkratka:", m_zkratka);
    add("Popis:", m_popis);
    add("Číslo účtu:", m_cislo);
    add("Kód banky:", m_kod, banky);
    add("IBAN:", m_iban, iban);
    add("BIC:", m_bic);
    add("Měna:", m_mena);

    Banka banka;
    if (model && model->isOpen()) {
        if (id > 0 || vzor > 0) banka = model->getBanka(id > 0 ? id : vzor);
        for (const auto& mena : model->meny()) {
            m_mena->Append(mena->kod());
            m_menaIds.push_back(mena->id());
            if (mena->id() == (banka.isValid() ? banka.menaid() : 1)) m_mena->SetSelection(m_mena->GetCount() - 1);
        }
    }
    if (banka.isValid()) {
        if (id > 0) m_zkratka->ChangeValue(banka.zkratka());
        m_popis->ChangeValue(banka.popis());
        m_cislo->ChangeValue(banka.cislouctu());
        m_kod->ChangeValue(banka.kodbanky());
        m_iban->ChangeValue(banka.iban());
        m_bic->ChangeValue(banka.bic());
    }

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);
    banky->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { vybratBanku(); });
    iban->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { spocitatIban(); });
}

void BankaDialog::spocitatIban() {
    wxString iban;
    const wxString chyba =
        ::spocitatIban(m_cislo->GetValue().Strip(wxString::both), m_kod->GetValue().Strip(wxString::both), &iban);
    if (!chyba.empty()) {
        prompts().info(chyba, u8("Informace"), this);
        return;
    }
    m_iban->ChangeValue(iban);
}

void BankaDialog::vybratBanku() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return;
    const wxArrayString banky = model->kodyBankSNazvem(true);
    const wxArrayString kody = model->kodyBank(true);
    const int chosen = prompts().singleChoice(u8("Vyberte banku"), u8("Banky"), banky,
                                              std::max(0, kody.Index(m_kod->GetValue())), this);
    if (chosen < 0 || chosen >= static_cast<int>(kody.size())) return;
    m_kod->ChangeValue(kody[chosen]);
    m_bic->ChangeValue(model->bicByKod(kody[chosen]));
}

bool BankaDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString zkratka = m_zkratka->GetValue().Strip(wxString::both);
    const wxString chyba = zkratkaValidation(*model, Ciselnik::BANKA, zkratka, m_id);
    if (!chyba.empty()) {
        prompts().info(chyba, wxString(), this);
        m_zkratka->SetFocus();
        return false;
    }
    const int sel = m_mena->GetSelection();
    const int menaid = sel >= 0 && sel < static_cast<int>(m_menaIds.size()) ? m_menaIds[sel] : 1;
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("banka") : m_id;
    auto value = [](wxTextCtrl* t) { return t->GetValue().Strip(wxString::both); };
    const Banka banka(id, zkratka, value(m_popis), value(m_cislo), value(m_kod), value(m_iban), value(m_bic), menaid);
    if (!(novy ? model->addBanka(banka) : model->editBanka(banka))) return false;
    m_id = id;
    return true;
}
