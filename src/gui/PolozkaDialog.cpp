#include "PolozkaDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <tuple>

#include "controls/lxamountctrl.h"
#include "lxformat.h"
#include "okbuttons.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

PolozkaDialog::PolozkaDialog(wxWindow* parent, const DokladForm& doklad, int id)
    : wxDialog(parent, wxID_ANY, u8(id > 0 ? "Upravit položku" : "Přidat položku"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_doklad(doklad) {
    DbModel* model = openModel();
    if (model) {
        m_sazby = sazbyPolozky(*model, model->currentRok());
        if (id > 0) m_form = nactiPolozku(*model, id);
        // A new item of a payer's document starts at the basic rate.
        if (m_form.id <= 0) m_form.sazba = m_doklad.platce ? model->zakladniSazba(model->currentRok()) : 0;
    }
    build();
    if (m_zasoba) {
        m_zasoba->SetSelection(0);
        for (size_t i = 0; i < m_zasobaIds.size(); ++i)
            if (m_zasobaIds[i] == m_form.zasobaid) m_zasoba->SetSelection(static_cast<int>(i) + 1);
    }
    m_popis->ChangeValue(m_form.popis);
    m_mj->ChangeValue(m_form.mj);
    m_pocet->SetValue(m_form.pocet);
    if (m_form.id > 0) m_cenamj->SetValue(m_form.cenamj);
    if (m_sazba) {
        m_sazba->SetStringSelection(wxString::Format("%d %%", m_form.sazba));
        if (m_sazba->GetSelection() == wxNOT_FOUND) m_sazba->SetSelection(0);
        m_bezdph->SetValue(m_form.bezdph);
    }
    recalculate();
    GetSizer()->SetSizeHints(this);
    m_popis->SetFocus();
}

void PolozkaDialog::build() {
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto label = [&](const char* text) {
        grid->Add(new wxStaticText(this, wxID_ANY, u8(text)), wxSizerFlags().CentreVertical());
    };
    auto add = [&](wxWindow* w, bool expand = false) {
        grid->Add(w, expand ? wxSizerFlags().Expand() : wxSizerFlags());
        return w;
    };
    // Only invoices move stock.
    DbModel* model = openModel();
    if (m_doklad.faktura() && model) {
        wxArrayString zasoby;
        zasoby.Add(u8("(žádná)"));
        for (const auto& z : model->zasoby()) {
            zasoby.Add(z->cislo() + " " + z->nazev());
            m_zasobaIds.push_back(z->id());
        }
        label("Zásoba:");
        m_zasoba =
            new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, zasoby, 0, wxDefaultValidator, "zasoba");
        add(m_zasoba, true);
    }
    label("Popis:");
    m_popis =
        new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(300, -1), 0, wxDefaultValidator, "popis");
    add(m_popis, true);
    label("MJ:");
    m_mj = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(80, -1), 0, wxDefaultValidator, "mj");
    add(m_mj);
    label("Počet:");
    m_pocet = new lxAmountCtrl(this, lxAmountCtrl::MNOZSTVI, "pocet", 120);
    add(m_pocet);
    label("Cena za MJ:");
    m_cenamj = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "cenamj", 150);
    add(m_cenamj);
    if (m_doklad.platce) {
        label("Sazba DPH:");
        wxArrayString sazby;
        for (int s : m_sazby) sazby.Add(wxString::Format("%d %%", s));
        m_sazba = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, sazby, 0, wxDefaultValidator, "sazba");
        add(m_sazba);
        grid->AddSpacer(0);
        m_bezdph = new wxCheckBox(this, wxID_ANY, u8("bez DPH"), wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "bezdph");
        add(m_bezdph);
    }
    const auto result = [&](const char* text, const char* name) {
        label(text);
        auto* value = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(150, -1),
                                       wxALIGN_RIGHT | wxST_NO_AUTORESIZE, name);
        add(value);
        return value;
    };
    m_dph = result("DPH:", "dph");
    m_celkem = result("Celkem:", "celkem");

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
    if (m_zasoba) m_zasoba->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { zasobaChanged(); });
    m_pocet->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(); });
    m_cenamj->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(); });
    if (m_sazba) {
        m_sazba->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { recalculate(); });
        m_bezdph->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { recalculate(); });
    }
}

bool PolozkaDialog::readForm(PolozkaForm* form, wxString* zprava, wxWindow** pole) const {
    *form = m_form;
    form->popis = m_popis->GetValue().Strip(wxString::both);
    form->mj = m_mj->GetValue().Strip(wxString::both);
    const int zasoba = m_zasoba ? m_zasoba->GetSelection() - 1 : -1;
    form->zasobaid = zasoba >= 0 && zasoba < static_cast<int>(m_zasobaIds.size()) ? m_zasobaIds[zasoba] : -1;
    if (m_sazba) {
        const int sel = m_sazba->GetSelection();
        form->sazba = sel >= 0 && sel < static_cast<int>(m_sazby.size()) ? m_sazby[sel] : 0;
        form->bezdph = m_bezdph->GetValue();
    } else {
        form->sazba = 0;
        form->bezdph = false;
    }
    for (const auto& [field, name, value] :
         {std::make_tuple(m_pocet, "Počet", &form->pocet), std::make_tuple(m_cenamj, "Cena za MJ", &form->cenamj)}) {
        if (field->GetValue(value) == lxformat::Chyba::ZADNA) continue;
        if (zprava) *zprava = field->zprava(u8(name));
        if (pole) *pole = field;
        return false;
    }
    return true;
}

void PolozkaDialog::recalculate() {
    PolozkaForm form;
    // Only what reads is computed; a half-typed number shows nothing yet.
    if (!readForm(&form)) {
        m_dph->SetLabel(wxString());
        m_celkem->SetLabel(wxString());
        return;
    }
    const castky::Polozka c = castkyPolozky(m_doklad, form);
    m_dph->SetLabel(lxformat::formatCastka(c.dph));
    m_celkem->SetLabel(lxformat::formatCastka(c.celkem));
}

void PolozkaDialog::zasobaChanged() {
    DbModel* model = openModel();
    const int sel = m_zasoba->GetSelection() - 1;
    if (!model || sel < 0 || sel >= static_cast<int>(m_zasobaIds.size())) return;
    const Zasoba z = model->getZasoba(m_zasobaIds[sel]);
    if (!z.isValid()) return;
    m_popis->ChangeValue(z.nazev());
    m_mj->ChangeValue(z.mj());
    m_cenamj->SetValue(z.cenamj());
    if (m_sazba) {
        m_sazba->SetStringSelection(wxString::Format("%d %%", z.dph()));
        m_bezdph->SetValue(z.bezdph());
    }
    recalculate();
}

wxString PolozkaDialog::dphText() const { return m_dph->GetLabel(); }
wxString PolozkaDialog::celkemText() const { return m_celkem->GetLabel(); }

bool PolozkaDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    PolozkaForm form;
    wxString zprava;
    wxWindow* pole = nullptr;
    if (readForm(&form, &zprava, &pole)) {
        pole = m_pocet;  // the model's checks are of the quantity
        int id = -1;
        zprava = ulozitPolozku(*model, m_doklad, form, &id);
        if (zprava.empty()) {
            m_form = form;
            m_form.id = id;
            return true;
        }
    }
    prompts().info(zprava, u8("Informace"), this);
    if (auto* text = dynamic_cast<wxTextCtrl*>(pole)) {
        text->SetFocus();
        text->SelectAll();
    }
    return false;
}
