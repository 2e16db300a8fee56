#include "DphDruhyDialog.h"

#include <wx/listctrl.h>

#include <algorithm>
#include <iterator>

#include "DphDruhFilter.h"
#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

DphDruhyDialog::DphDruhyDialog(wxWindow* parent, bool chooser, Strana strana)
    : SeznamDialog(parent, u8("Členění DPH"),
                   strings({"Zkratka", "Popis", "Plnění", "Řádky v přiznání", "Předmět plnění", "Oddíl v KH",
                            "Nabízet"}),
                   commands(this), chooser),
      m_strana(strana) {
    const int widths[] = {140, 360, 100, 120, 120, 100, 70};
    for (int c = 0; c < static_cast<int>(std::size(widths)); ++c) list()->SetColumnWidth(c, widths[c]);
    list()->SetMinSize(wxSize(1040, 420));
    Fit();
    list()->Bind(wxEVT_LIST_COL_CLICK, [this](wxListEvent& event) { sortBy(event.GetColumn()); });
    refresh();
}

std::vector<SeznamDialog::Command> DphDruhyDialog::commands(DphDruhyDialog* self) {
    // Built before the dialog is, run only once it is.
    auto offered = [](int id) {
        DbModel* model = openModel();
        const bool nabizeno = model && model->getDphDruh(id).nabizet();
        return u8(nabizeno ? "Nenabízet členění DPH" : "Nabízet členění DPH");
    };
    return {
        {u8("Filtrovat"), nullptr, false, [self](int) { self->filtrovat(); }},
        {u8("Zrušit filtr"), nullptr, false, [self](int) { self->zrusitFiltr(); }},
        {wxString(), offered, true, [self](int id) { self->nabizet(id); }},
    };
}

std::vector<SeznamDialog::Row> DphDruhyDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    lxDphDruhArray druhy = model->dphdruhy();
    druhy.erase(std::remove_if(druhy.begin(), druhy.end(),
                               [this](const auto& d) {
                                   return (m_strana != OBE && d->vydaj() != (m_strana == VYDAJ)) ||
                                          !m_podminky.matches(*d);
                               }),
                druhy.end());
    if (m_sortColumn >= 0) DbModel::sortDphDruh(druhy, m_sortColumn, m_ascending);
    for (const auto& d : druhy) {
        wxArrayString cells;
        cells.Add(d->zkratka());
        cells.Add(d->popis());
        cells.Add(u8(d->plneni() ? "Přijaté" : "Uskutečněné"));
        cells.Add(d->radky());
        cells.Add(d->kpp());
        cells.Add(d->kh().empty() ? u8("Nepoužito") : d->kh());
        cells.Add(u8(d->nabizet() ? "Ano" : "Ne"));
        all.push_back({d->id(), cells});
    }
    return all;
}

void DphDruhyDialog::filtrovat() {
    DphDruhFilter filter(this, m_podminky);
    if (filter.ShowModal() != wxID_OK) return;
    m_podminky = filter.podminky();
    refresh();
}

void DphDruhyDialog::zrusitFiltr() {
    m_podminky = DphDruhPodminky();
    refresh();
}

void DphDruhyDialog::nabizet(int id) {
    DbModel* model = openModel();
    if (model) model->nabizetDphDruh(id);
    refresh();
}

void DphDruhyDialog::sortBy(int column) {
    m_ascending = column == m_sortColumn ? !m_ascending : true;
    m_sortColumn = column;
    refresh();
}
