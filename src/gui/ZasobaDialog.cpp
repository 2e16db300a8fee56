#include "ZasobaDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <tuple>

#include "PohybDialog.h"
#include "formlayout.h"
#include "controls/lxamountctrl.h"
#include "dbmodel.h"
#include "fakturace/polozkaform.h"
#include "lxformat.h"
#include "okbuttons.h"
#include "prompts.h"
#include "sklad/minimum.h"
#include "sklad/skladform.h"
#include "skladchoices.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

ZasobaDialog::ZasobaDialog(wxWindow* parent, int id, int vzor)
    : wxDialog(parent, wxID_ANY, u8("Zásoba"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_id(id) {
    DbModel* model = openModel();
    if (model) m_sazby = sazbyPolozky(*model, model->currentRok());
    build();
    Zasoba z;
    if (model && (id > 0 || vzor > 0)) z = model->getZasoba(id > 0 ? id : vzor);
    if (z.isValid()) {
        if (id > 0) m_cislo->SetLabel(z.cislo());
        m_nazev->ChangeValue(z.nazev());
        m_popis->ChangeValue(z.popis());
        m_mj->ChangeValue(z.mj());
        m_sklad->select(z.skladid());
        m_ocenovani->SetSelection(z.ocenovani() == 0 ? 0 : 1);
        m_cenamj->SetValue(z.cenamj());
        m_bezdph->SetValue(z.bezdph());
        m_sazba->SetStringSelection(wxString::Format("%d %%", z.dph()));
        m_minimum->SetValue(skladminimum::minimum(z.id()));
    } else {
        if (model) m_cislo->SetLabel(model->getCisloDokladu("ZB"));
        m_ocenovani->SetSelection(0);
        m_cenamj->SetValue(0);
        m_bezdph->SetValue(true);
        m_minimum->SetValue(0);
        if (model) m_sazba->SetStringSelection(wxString::Format("%d %%", model->zakladniSazba(model->currentRok())));
        // A new item takes the valuation of its warehouse.
        if (model && m_sklad->skladId() > 0) m_ocenovani->SetSelection(model->getSklad(m_sklad->skladId()).ocenovani());
    }
    if (m_sazba->GetSelection() == wxNOT_FOUND && m_sazba->GetCount() > 0) m_sazba->SetSelection(0);
    refreshPohyby();
    GetSizer()->SetSizeHints(this);
    m_nazev->SetFocus();
}

void ZasobaDialog::build() {
    MrizkaPoli grid(this);
    m_cislo = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "cislo");
    grid.pole("Číslo:", m_cislo);
    m_nazev = grid.text("nazev", 220);
    grid.pole("Název:", m_nazev);
    m_popis = grid.text("popis", 220);
    grid.pole("Popis:", m_popis);
    m_mj = grid.text("mj", 80);
    grid.pole("MJ:", m_mj);
    m_sklad = new SkladChoice(this);
    grid.pole("Sklad:", m_sklad);
    m_ocenovani = ocenovaniChoice(this);
    grid.pole("Oceňování:", m_ocenovani);
    m_cenamj = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "cenamj", 140);
    grid.pole("Cena za MJ:", m_cenamj);
    wxArrayString sazby;
    for (int s : m_sazby) sazby.Add(wxString::Format("%d %%", s));
    m_sazba = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, sazby, 0, wxDefaultValidator, "sazba");
    grid.pole("Sazba DPH:", m_sazba);
    grid.sizer()->AddSpacer(0);
    m_bezdph = new wxCheckBox(this, wxID_ANY, u8("bez DPH"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                              "bezdph");
    grid.sizer()->Add(m_bezdph, wxSizerFlags().CentreVertical());
    m_minimum = new lxAmountCtrl(this, lxAmountCtrl::MNOZSTVI, "minimum", 140);
    grid.pole("Minimum:", m_minimum);

    m_pohyby = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(680, 180), wxLC_REPORT | wxLC_SINGLE_SEL,
                              wxDefaultValidator, "pohyby");
    pridatSloupce(m_pohyby, {{"Datum", 90, false},
                             {"Číslo", 90, false},
                             {"Pohyb", 120, false},
                             {"Počet", 80, true},
                             {"Cena za MJ", 90, true},
                             {"Stav", 80, true},
                             {"Hodnota", 100, true}});

    auto* tlacitka = new wxBoxSizer(wxHORIZONTAL);
    const auto button = [&](const char* label, const char* name, void (ZasobaDialog::*handler)()) {
        auto* b = new wxButton(this, wxID_ANY, u8(label), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, name);
        b->Bind(wxEVT_BUTTON, [this, handler](wxCommandEvent&) { (this->*handler)(); });
        tlacitka->Add(b, wxSizerFlags().Border(wxRIGHT, 6));
    };
    button("Příjem", "prijem", &ZasobaDialog::prijem);
    button("Výdej", "vydej", &ZasobaDialog::vydej);
    button("Upravit pohyb", "upravitPohyb", &ZasobaDialog::upravitPohyb);
    button("Smazat pohyb", "smazatPohyb", &ZasobaDialog::smazatPohyb);
    m_pohyby->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { upravitPohyb(); });

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid.sizer(), wxSizerFlags().Expand().Border(wxALL, 10));
    top->Add(new wxStaticText(this, wxID_ANY, u8("Pohyby zásoby:")), wxSizerFlags().Border(wxLEFT | wxRIGHT, 10));
    top->Add(m_pohyby, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, 10));
    top->Add(tlacitka, wxSizerFlags().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
}

bool ZasobaDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    const auto refuse = [this](const wxString& zprava, wxWindow* pole) {
        prompts().info(zprava, u8("Informace"), this);
        if (pole) pole->SetFocus();
        return false;
    };
    double cenamj = 0, minimum = 0;
    for (const auto& [field, name, value] :
         {std::make_tuple(m_cenamj, "Cena za MJ", &cenamj), std::make_tuple(m_minimum, "Minimum", &minimum)}) {
        const lxformat::Chyba chyba = field->GetValue(value);
        if (chyba == lxformat::Chyba::PRAZDNE) *value = 0;
        else if (chyba != lxformat::Chyba::ZADNA) return refuse(field->zprava(u8(name)), field);
    }
    const int sazbaSel = m_sazba->GetSelection();
    Zasoba z(m_id, m_cislo->GetLabel(), m_nazev->GetValue().Strip(wxString::both),
             m_popis->GetValue().Strip(wxString::both), std::max(0, m_ocenovani->GetSelection()),
             m_mj->GetValue().Strip(wxString::both), 0, 0, m_sklad->skladId(), cenamj, m_bezdph->GetValue(),
             sazbaSel >= 0 && sazbaSel < static_cast<int>(m_sazby.size()) ? m_sazby[sazbaSel] : 0);
    const wxString chyba = skladform::zasobaValidation(z);
    if (!chyba.empty()) return refuse(chyba, m_nazev);
    if (z.skladid() <= 0) return refuse(u8("Vyberte sklad"), m_sklad);
    const int id = skladform::ulozitZasobu(*model, z);
    if (id <= 0) return refuse(u8("Zásobu nelze uložit"), nullptr);
    m_id = id;
    m_cislo->SetLabel(model->getZasoba(id).cislo());
    skladminimum::setMinimum(id, minimum);
    return true;
}

void ZasobaDialog::refreshPohyby() {
    m_pohyby->DeleteAllItems();
    m_pohybIds.clear();
    DbModel* model = openModel();
    if (!model || m_id <= 0) return;
    const Zasoba z = model->getZasoba(m_id);
    const lxPohybzasobArray pohyby = model->pohybyzasobByZasobaId(m_id);
    long row = 0;
    for (const skladform::RadekKarty& r : skladform::kartaZasoby(z.ocenovani(), pohyby)) {
        const Pohybzasob& p = *r.pohyb;
        wxString druh = u8(p.prijemka() ? "Příjem" : "Výdej");
        if (p.inventura()) druh += u8(" (inventura)");
        else if (p.fakturaid() > 0) druh += u8(" (faktura)");
        m_pohyby->InsertItem(row, lxformat::formatDatum(p.datum()));
        m_pohyby->SetItem(row, 1, p.cislo());
        m_pohyby->SetItem(row, 2, druh);
        m_pohyby->SetItem(row, 3, lxformat::formatMnozstvi(p.pocet()));
        m_pohyby->SetItem(row, 4, lxformat::formatCastka(p.cenamj()));
        m_pohyby->SetItem(row, 5, lxformat::formatMnozstvi(r.pocet));
        m_pohyby->SetItem(row, 6, lxformat::formatCastka(r.celkem));
        m_pohybIds.push_back(p.id());
        ++row;
    }
}

int ZasobaDialog::selectedPohyb() const {
    const long sel = m_pohyby->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return sel >= 0 && sel < static_cast<long>(m_pohybIds.size()) ? m_pohybIds[sel] : -1;
}

void ZasobaDialog::prijem() {
    if (m_id <= 0 && !save()) return;
    PohybDialog(this, m_id, true).ShowModal();
    refreshPohyby();
}

void ZasobaDialog::vydej() {
    if (m_id <= 0 && !save()) return;
    PohybDialog(this, m_id, false).ShowModal();
    refreshPohyby();
}

bool ZasobaDialog::zmenitelny(int id) {
    DbModel* model = openModel();
    const Pohybzasob p = model ? model->getPohybzasob(id) : Pohybzasob();
    if (!p.isValid()) return false;
    if (p.fakturaid() > 0) {
        prompts().info(wxString::Format(u8("Pohyb patří k faktuře %s,\nzměňte ho v její položce"),
                                        model->getFakturaCisloById(p.fakturaid())),
                       u8("Informace"), this);
        return false;
    }
    if (p.inventura()) {
        prompts().info(u8("Pohyb vytvořila inventura,\nzměňte ho v inventuře"), u8("Informace"), this);
        return false;
    }
    return true;
}

void ZasobaDialog::upravitPohyb() {
    const int id = selectedPohyb();
    if (id <= 0 || !zmenitelny(id)) return;
    PohybDialog(this, m_id, true, id).ShowModal();
    refreshPohyby();
}

void ZasobaDialog::smazatPohyb() {
    DbModel* model = openModel();
    const int id = selectedPohyb();
    if (!model || id <= 0 || !zmenitelny(id)) return;
    const Pohybzasob p = model->getPohybzasob(id);
    if (!prompts().question(skladform::smazatPohybDotaz(p, model->getZasoba(m_id).mj()), u8("Dotaz"), this)) return;
    const wxString chyba = skladform::smazatPohyb(*model, id);
    if (!chyba.empty()) prompts().error(chyba, u8("Chyba"), this);
    refreshPohyby();
}
