#include "NeuhrazeneDialog.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/notebook.h>
#include <wx/settings.h>
#include <wx/sizer.h>

#include "UhradaDialog.h"
#include "formlayout.h"
#include "UhradyDialog.h"
#include "clock.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "lxsettings.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxListCtrl* newList(wxWindow* parent, const char* name) {
    auto* list = new wxListCtrl(parent, wxID_ANY, wxDefaultPosition, wxSize(820, 320), wxLC_REPORT | wxLC_SINGLE_SEL,
                                wxDefaultValidator, name);
    pridatSloupce(list, {{"Druh", 110, false},
                         {"Číslo", 90, false},
                         {"Protistrana", 180, false},
                         {"Splatnost", 85, false},
                         {"Celkem", 100, true},
                         {"Zbývá uhradit", 100, true},
                         {"Měna", 50, false},
                         {"Stav", 100, false}});
    return list;
}

// One row of a tab; overdue rows are drawn in red.
template <class Row>
void addRow(wxListCtrl* list, const Row& r, const wxString& druh, const wxDateTime& dnes) {
    const long row = list->InsertItem(list->GetItemCount(), druh);
    list->SetItem(row, 1, r.cislo());
    list->SetItem(row, 2, r.protistrana());
    list->SetItem(row, 3, lxformat::formatDatum(r.splatnost()));
    list->SetItem(row, 4, lxformat::formatCastka(r.celkem()));
    list->SetItem(row, 5, lxformat::formatCastka(r.celkem() - r.uhrazeno()));
    list->SetItem(row, 6, r.mena());
    const bool poSplatnosti = isDokladPoSplatnosti(r.celkem(), r.uhrazeno(), r.splatnost(), dnes);
    list->SetItem(row, 7, u8(poSplatnosti ? "Po splatnosti" : r.uhrazeno() > 0 ? "Částečně uhrazeno" : "Neuhrazeno"));
    if (poSplatnosti) list->SetItemTextColour(row, *wxRED);
}

}  // namespace

NeuhrazeneDialog::NeuhrazeneDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Neuhrazené"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    m_notebook = new wxNotebook(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, "zalozky");
    m_lists[0] = newList(m_notebook, "faktury");
    m_lists[1] = newList(m_notebook, "zavpoh");
    m_notebook->AddPage(m_lists[0], u8("Faktury"));
    m_notebook->AddPage(m_lists[1], u8("Pohledávky a závazky"));

    auto* zaplatitButton = new wxButton(this, wxID_ANY, u8("Zaplatit"), wxDefaultPosition, wxDefaultSize, 0,
                                        wxDefaultValidator, "zaplatit");
    auto* uhradyButton = new wxButton(this, wxID_ANY, u8("Úhrady"), wxDefaultPosition, wxDefaultSize, 0,
                                      wxDefaultValidator, "uhrady");
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(zaplatitButton);
    buttons->Add(uhradyButton, wxSizerFlags().Border(wxLEFT, 6));
    buttons->AddStretchSpacer();
    buttons->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(m_notebook, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    zaplatitButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { zaplatit(); });
    uhradyButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { uhrady(); });
    for (wxListCtrl* list : m_lists) list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { zaplatit(); });
    refresh();
}

void NeuhrazeneDialog::refresh() {
    for (int tab = 0; tab < 2; ++tab) {
        m_lists[tab]->DeleteAllItems();
        m_rows[tab].clear();
    }
    DbModel* model = openModel();
    if (!model) return;
    const wxDateTime dnes = pracovniDen();
    for (const auto& f : model->neuhrazeneFakturyView()) {
        const DruhDokladu druh = f->vydana() ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA;
        addRow(m_lists[0], *f, u8(f->vydana() ? "Vydaná" : "Přijatá"), dnes);
        m_rows[0].push_back({druh, f->id()});
    }
    for (const auto& z : model->neuhrazeneZavpohyView()) {
        const DruhDokladu druh = z->zavazek() ? DruhDokladu::ZAVAZEK : DruhDokladu::POHLEDAVKA;
        addRow(m_lists[1], *z, u8(z->zavazek() ? "Závazek" : "Pohledávka"), dnes);
        m_rows[1].push_back({druh, z->id()});
    }
}

const NeuhrazeneDialog::Radek* NeuhrazeneDialog::selected() const {
    const int tab = m_notebook->GetSelection() == 1 ? 1 : 0;
    const long row = m_lists[tab]->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    if (row < 0 || row >= static_cast<long>(m_rows[tab].size())) return nullptr;
    return &m_rows[tab][row];
}

void NeuhrazeneDialog::zaplatit() {
    DbModel* model = openModel();
    const Radek* r = selected();
    if (!model || !r) return;
    const bool faktura = r->druh == DruhDokladu::FAKTURA_VYDANA || r->druh == DruhDokladu::FAKTURA_PRIJATA;
    UhradaDialog dialog(this, faktura ? placenyFaktura(*model, r->id) : placenyZavPoh(*model, r->id));
    if (dialog.ShowModal() == wxID_OK) refresh();
}

void NeuhrazeneDialog::uhrady() {
    const Radek* r = selected();
    if (!r) return;
    UhradyDialog dialog(this, r->druh, r->id);
    dialog.ShowModal();
    refresh();
}
