#include "InventuraDialog.h"

#include <wx/button.h>
#include <wx/dateevt.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <map>

#include "controls/lxamountctrl.h"
#include "formlayout.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "okbuttons.h"
#include "prompts.h"
#include "skladchoices.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

InventuraDialog::InventuraDialog(wxWindow* parent, int id)
    : wxDialog(parent, wxID_ANY, u8("Inventura"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_id(id) {
    DbModel* model = openModel();
    build();
    const Inventura iv = model && id > 0 ? model->getInventura(id) : Inventura();
    if (iv.isValid()) {
        m_cislo->SetLabel(iv.cislo());
        m_datum->SetValue(iv.datum());
        m_sklad->select(iv.skladid());
        m_sklad->Disable();  // its lines belong to the warehouse
        m_popis->ChangeValue(iv.popis());
        m_provedl->ChangeValue(iv.provedl());
    } else {
        m_id = -1;
        if (model) m_cislo->SetLabel(model->getCisloDokladu("IV"));
        m_datum->SetValue(pracovniDen());
    }
    if (model) m_datum->setRok(model->currentRok());
    nacistRadky();
    GetSizer()->SetSizeHints(this);
    m_popis->SetFocus();
}

void InventuraDialog::build() {
    MrizkaPoli grid(this);
    m_cislo = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "cislo");
    grid.pole("Číslo:", m_cislo);
    m_datum = new lxDateCtrl(this, "datum");
    grid.pole("Datum:", m_datum);
    m_sklad = new SkladChoice(this);
    grid.pole("Sklad:", m_sklad);
    m_popis = grid.text("popis", 200);
    grid.pole("Popis:", m_popis);
    m_provedl = grid.text("provedl", 200);
    grid.pole("Provedl:", m_provedl);

    m_radky = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(600, 220), wxLC_REPORT | wxLC_SINGLE_SEL,
                             wxDefaultValidator, "radky");
    pridatSloupce(m_radky, {{"Číslo", 90, false},
                            {"Název", 200, false},
                            {"MJ", 50, false},
                            {"Evidováno", 85, true},
                            {"Zjištěno", 85, true},
                            {"Rozdíl", 85, true}});

    auto* radek = new wxBoxSizer(wxHORIZONTAL);
    radek->Add(new wxStaticText(this, wxID_ANY, u8("Zjištěno:")), wxSizerFlags().CentreVertical().Border(wxRIGHT, 6));
    m_zjisteno = new lxAmountCtrl(this, lxAmountCtrl::MNOZSTVI, "zjisteno", 120);
    radek->Add(m_zjisteno, wxSizerFlags().CentreVertical());
    auto* nastavitButton = new wxButton(this, wxID_ANY, u8("Nastavit"), wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "nastavit");
    radek->Add(nastavitButton, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid.sizer(), wxSizerFlags().Expand().Border(wxALL, 10));
    top->Add(m_radky, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 10));
    top->Add(radek, wxSizerFlags().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);

    nastavitButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { nastavit(); });
    m_radky->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent& e) {
        if (e.GetIndex() >= 0 && e.GetIndex() < static_cast<long>(m_data.size()))
            m_zjisteno->SetValue(m_data[e.GetIndex()].zjisteno);
    });
    m_datum->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { nacistRadky(); });
    m_sklad->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { nacistRadky(); });
}

void InventuraDialog::nacistRadky() {
    DbModel* model = openModel();
    const wxDateTime datum = m_datum->GetValue();
    if (!model || !datum.IsValid()) return;
    std::map<int, double> zjisteno;
    for (const auto& r : m_data) zjisteno[r.zasobaid] = r.zjisteno;
    m_data = skladform::radkyInventury(*model, m_sklad->skladId(), datum, m_id);
    for (auto& r : m_data) {
        const auto found = zjisteno.find(r.zasobaid);
        if (found != zjisteno.end()) r.zjisteno = found->second;
    }
    showRadky();
}

void InventuraDialog::showRadky() {
    m_radky->DeleteAllItems();
    for (size_t i = 0; i < m_data.size(); ++i) {
        m_radky->InsertItem(static_cast<long>(i), m_data[i].cislo);
        showRadek(static_cast<long>(i));
    }
}

void InventuraDialog::showRadek(long row) {
    const skladform::InventuraRadek& r = m_data[row];
    m_radky->SetItem(row, 1, r.nazev);
    m_radky->SetItem(row, 2, r.mj);
    m_radky->SetItem(row, 3, lxformat::formatMnozstvi(r.evidovano));
    m_radky->SetItem(row, 4, lxformat::formatMnozstvi(r.zjisteno));
    m_radky->SetItem(row, 5, lxformat::formatMnozstvi(r.zjisteno - r.evidovano));
}

long InventuraDialog::selectedRow() const {
    const long sel = m_radky->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return sel >= 0 && sel < static_cast<long>(m_data.size()) ? sel : -1;
}

bool InventuraDialog::nastavit() {
    const long row = selectedRow();
    if (row < 0) return false;
    double zjisteno = 0;
    if (m_zjisteno->GetValue(&zjisteno) != lxformat::Chyba::ZADNA) {
        prompts().info(m_zjisteno->zprava(u8("Zjištěno")), u8("Informace"), this);
        m_zjisteno->SetFocus();
        m_zjisteno->SelectAll();
        return false;
    }
    if (zjisteno < 0) {
        prompts().info(u8("Zjištěné množství nemůže být záporné"), u8("Informace"), this);
        m_zjisteno->SetFocus();
        return false;
    }
    m_data[row].zjisteno = zjisteno;
    showRadek(row);
    return true;
}

bool InventuraDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    m_datum->commitText();
    const wxDateTime datum = m_datum->GetValue();
    if (!datum.IsValid()) {
        prompts().info(lxformat::datumZprava(u8("Datum"), m_datum->text()), u8("Informace"), this);
        m_datum->focusText();
        return false;
    }
    if (m_sklad->skladId() <= 0) {
        prompts().info(u8("Vyberte sklad"), u8("Informace"), this);
        return false;
    }
    // The recorded quantities belong to the date that is stored.
    nacistRadky();
    const Inventura iv(m_id, datum, m_cislo->GetLabel(), m_popis->GetValue().Strip(wxString::both),
                       m_provedl->GetValue().Strip(wxString::both), m_sklad->skladId(), model->currentRok());
    const int id = skladform::ulozitInventuru(*model, iv, m_data);
    if (id <= 0) {
        prompts().info(u8("Inventuru nelze uložit"), u8("Informace"), this);
        return false;
    }
    m_id = id;
    return true;
}
