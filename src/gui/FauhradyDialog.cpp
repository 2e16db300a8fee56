#include "FauhradyDialog.h"

#include <wx/listctrl.h>

#include "fakturace/fauhrada.h"

FauhradyDialog::FauhradyDialog(wxWindow* parent, bool chooser)
    : FormCiselnikDialog(parent, wxString::FromUTF8("Úhrady"), strings({"Popis", "Pokladnou"}),
                     strings({"Přidat úhradu", "Upravit úhradu", "Kopírovat úhradu", "Smazat úhradu"}), chooser) {
    list()->SetColumnWidth(0, 240);
    list()->SetColumnWidth(1, 100);
    refresh();
}

std::vector<SeznamDialog::Row> FauhradyDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    for (const auto& f : model->fauhrady()) {
        wxArrayString cells;
        cells.Add(f->uhrada());
        cells.Add(wxString::FromUTF8(f->pokladnou() ? "Ano" : "Ne"));
        all.push_back({f->id(), cells});
    }
    return all;
}

void FauhradyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const FaUhrada fauhrada = model ? model->getFaUhrada(id) : FaUhrada();
    if (!fauhrada.isValid()) return;
    deleteAfterQuestion(wxString::Format(wxString::FromUTF8("Opravdu smazat úhradu %s?"), fauhrada.uhrada()),
                        [&](wxString* duvod) { return smazatFauhradu(*model, id, duvod); });
}
