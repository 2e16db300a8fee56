#include "BankaDialog.h"

#include <wx/button.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

BankaDialog::BankaDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, u8("Bankovní účet")), m_id(id) {
    DbModel* model = DbModel::instance();
    Banka banka;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) banka = model->getBanka(id > 0 ? id : vzor);
    auto* banky = new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT);
    auto* iban = new wxButton(this, wxID_ANY, u8("Spočítat IBAN"));
    m_zkratka = addText("Zkratka:", "zkratka", 120);
    m_popis = addText("Popis:", "popis", 280);
    m_cislo = addText("Číslo účtu:", "cislouctu", 200);
    m_kod = addText("Kód banky:", "kodbanky", 80, banky);
    m_iban = addText("IBAN:", "iban", 240, iban);
    m_bic = addText("BIC:", "bic", 120);
    addMena(banka.isValid() ? banka.menaid() : 1);
    if (banka.isValid()) {
        if (id > 0) m_zkratka->ChangeValue(banka.zkratka());
        m_popis->ChangeValue(banka.popis());
        m_cislo->ChangeValue(banka.cislouctu());
        m_kod->ChangeValue(banka.kodbanky());
        m_iban->ChangeValue(banka.iban());
        m_bic->ChangeValue(banka.bic());
    }
    // The buttons stand beside their fields, and so does their place in the tab order.
    banky->MoveAfterInTabOrder(m_kod);
    iban->MoveAfterInTabOrder(m_iban);
    finish();
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
    if (refused(zkratkaValidation(*model, Ciselnik::BANKA, zkratka, m_id), m_zkratka)) return false;
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("banka") : m_id;
    auto value = [](wxTextCtrl* t) { return t->GetValue().Strip(wxString::both); };
    const Banka banka(id, zkratka, value(m_popis), value(m_cislo), value(m_kod), value(m_iban), value(m_bic), menaId());
    if (!(novy ? model->addBanka(banka) : model->editBanka(banka))) return false;
    m_id = id;
    return true;
}
