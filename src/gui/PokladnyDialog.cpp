#include "PokladnyDialog.h"

#include "PokladnaDialog.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxArrayString strings(std::initializer_list<const char*> texts) {
    wxArrayString all;
    for (const char* t : texts) all.Add(u8(t));
    return all;
}

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

PokladnyDialog::PokladnyDialog(wxWindow* parent, bool chooser)
    : CiselnikDialog(parent, u8("Pokladny"), strings({"Zkratka", "Popis", "Zůstatek", "Měna"}),
                     strings({"Přidat pokladnu", "Upravit pokladnu", "Kopírovat pokladnu", "Smazat pokladnu"}),
                     chooser) {
    refresh();
}

std::vector<CiselnikDialog::Row> PokladnyDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    // One pass over the journal for every balance.
    for (const DbModel::StavUctu& s : model->stavyUctu()) {
        if (s.banka) continue;
        wxArrayString cells;
        cells.Add(s.zkratka);
        cells.Add(s.popis);
        cells.Add(lxformat::formatCastka(s.stav));
        cells.Add(s.mena);
        all.push_back({s.id, cells});
    }
    return all;
}

void PokladnyDialog::addRow() {
    PokladnaDialog dialog(this);
    dialog.ShowModal();
}

void PokladnyDialog::editRow(int id) {
    PokladnaDialog dialog(this, id);
    dialog.ShowModal();
}

void PokladnyDialog::copyRow(int id) {
    // The copy is a new register with the same description and currency; its code is typed.
    PokladnaDialog dialog(this, -1, id);
    dialog.ShowModal();
}

void PokladnyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Pokladna pokladna = model->getPokladna(id);
    if (!pokladna.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat pokladnu %s?"), pokladna.zkratka()), u8("Dotaz"), this))
        return;
    wxString duvod;
    if (!model->deletePokladna(id, &duvod) && !duvod.empty()) prompts().info(duvod, wxString(), this);
}
