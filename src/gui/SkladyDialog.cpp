#include "SkladyDialog.h"

#include <map>

#include "dbmodel.h"
#include "sklad/skladform.h"

SkladyDialog::SkladyDialog(wxWindow* parent, bool chooser)
    : FormCiselnikDialog(parent, wxString::FromUTF8("Sklady"), strings({"Název", "Popis", "Oceňování", "Zásob"}),
                         strings({"Přidat sklad", "Upravit sklad", "Kopírovat sklad", "Smazat sklad"}), chooser) {
    refresh();
}

std::vector<SeznamDialog::Row> SkladyDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    // The item counts in one query rather than one per warehouse.
    std::map<int, int> pocty;
    for (const auto& z : model->zasoby()) ++pocty[z->skladid()];
    for (const auto& s : model->sklady()) {
        wxArrayString cells;
        cells.Add(s->nazev());
        cells.Add(s->popis());
        cells.Add(s->ocenovani() == 0 ? wxString("FIFO") : wxString::FromUTF8("Vážený aritmetický průměr"));
        cells.Add(wxString::Format("%d", pocty[s->id()]));
        all.push_back({s->id(), cells});
    }
    return all;
}

void SkladyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Sklad sklad = model ? model->getSklad(id) : Sklad();
    if (!sklad.isValid()) return;
    deleteAfterQuestion(skladform::smazatSkladDotaz(sklad), [&](wxString* duvod) {
        if (model->isSkladUsed(id)) {
            *duvod = wxString::Format(wxString::FromUTF8("Sklad %s nelze smazat, obsahuje zásoby nebo inventury"),
                                      sklad.nazev());
            return false;
        }
        return model->deleteSklad(id);
    });
}
