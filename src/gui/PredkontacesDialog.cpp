#include "PredkontacesDialog.h"

#include <map>

#include "PredkontaceDialog.h"
#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

PredkontacesDialog::PredkontacesDialog(wxWindow* parent, bool chooser, Vyber vyber)
    : CiselnikDialog(
          parent, u8("Předkontace"), strings({"Zkratka", "Popis", "Typ", "Daňový"}),
          strings({"Přidat předkontaci", "Upravit předkontaci", "Kopírovat předkontaci", "Smazat předkontaci"}),
          chooser),
      m_vyber(vyber) {
    refresh();
}

std::vector<SeznamDialog::Row> PredkontacesDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    // The tax effect belongs to the journal column; read the columns once.
    std::map<int, bool> danovy;
    for (const auto& s : model->deniksloupce()) danovy[s->sloupec()] = s->danovy();
    const lxPredkontaceArray list = m_vyber == PRIJMY   ? model->predkontacePrijem()
                                    : m_vyber == VYDAJE ? model->predkontaceVydaj()
                                                        : model->predkontace();
    for (const auto& p : list) {
        wxArrayString cells;
        cells.Add(p->zkratka());
        cells.Add(p->popis());
        cells.Add(u8(p->prijem() ? "Příjem" : "Výdaj"));
        cells.Add(u8(danovy[p->deniksloupecid()] ? "Ano" : "Ne"));
        all.push_back({p->id(), cells});
    }
    return all;
}

void PredkontacesDialog::addRow() { PredkontaceDialog(this).ShowModal(); }

void PredkontacesDialog::editRow(int id) { PredkontaceDialog(this, id).ShowModal(); }

void PredkontacesDialog::copyRow(int id) {
    DbModel* model = openModel();
    if (!model) return;
    const int kopie = model->copyPredkontace(id);
    if (kopie <= 0) return;
    PredkontaceDialog dialog(this, kopie);
    if (dialog.ShowModal() != wxID_OK) {
        wxString duvod;
        model->deletePredkontace(kopie, &duvod);
    }
}

void PredkontacesDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Predkontace p = model ? model->getPredkontace(id) : Predkontace();
    if (!p.isValid()) return;
    deleteAfterQuestion(wxString::Format(u8("Opravdu smazat předkontaci %s\n%s?"), p.zkratka(), p.popis()),
                        [&](wxString* duvod) { return model->deletePredkontace(id, duvod); });
}
