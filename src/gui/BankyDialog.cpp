#include "BankyDialog.h"

#include "BankaDialog.h"
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

BankyDialog::BankyDialog(wxWindow* parent, bool chooser)
    : CiselnikDialog(
          parent, u8("Bankovní účty"), strings({"Zkratka", "Popis", "Zůstatek", "Měna"}),
          strings({"Přidat bankovní účet", "Upravit bankovní účet", "Kopírovat bankovní účet", "Smazat bankovní účet"}),
          chooser) {
    refresh();
}

std::vector<CiselnikDialog::Row> BankyDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    for (const DbModel::StavUctu& s : model->stavyUctu()) {
        if (!s.banka) continue;
        wxArrayString cells;
        cells.Add(s.zkratka);
        cells.Add(s.popis);
        cells.Add(lxformat::formatCastka(s.stav));
        cells.Add(s.mena);
        all.push_back({s.id, cells});
    }
    return all;
}

void BankyDialog::addRow() {
    BankaDialog dialog(this);
    dialog.ShowModal();
}

void BankyDialog::editRow(int id) {
    BankaDialog dialog(this, id);
    dialog.ShowModal();
}

void BankyDialog::copyRow(int id) {
    BankaDialog dialog(this, -1, id);
    dialog.ShowModal();
}

void BankyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Banka banka = model->getBanka(id);
    if (!banka.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat bankovní účet %s?"), banka.zkratka()), u8("Dotaz"),
                            this))
        return;
    wxString duvod;
    if (!model->deleteBanka(id, &duvod) && !duvod.empty()) prompts().info(duvod, wxString(), this);
}
