#include "PokladnyDialog.h"

#include "dbmodel.h"

PokladnyDialog::PokladnyDialog(wxWindow* parent, bool chooser)
    : FormCiselnikDialog(parent, wxString::FromUTF8("Pokladny"), strings({"Zkratka", "Popis", "Zůstatek", "Měna"}),
                     strings({"Přidat pokladnu", "Upravit pokladnu", "Kopírovat pokladnu", "Smazat pokladnu"}),
                     chooser) {
    refresh();
}

std::vector<SeznamDialog::Row> PokladnyDialog::rows() { return uctyRows(/*banka=*/false); }

void PokladnyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Pokladna pokladna = model ? model->getPokladna(id) : Pokladna();
    if (!pokladna.isValid()) return;
    deleteAfterQuestion(wxString::Format(wxString::FromUTF8("Opravdu smazat pokladnu %s?"), pokladna.zkratka()),
                        [&](wxString* duvod) { return model->deletePokladna(id, duvod); });
}
