#include "BankyDialog.h"

#include "dbmodel.h"

BankyDialog::BankyDialog(wxWindow* parent, bool chooser)
    : FormCiselnikDialog(
          parent, wxString::FromUTF8("Bankovní účty"), strings({"Zkratka", "Popis", "Zůstatek", "Měna"}),
          strings({"Přidat bankovní účet", "Upravit bankovní účet", "Kopírovat bankovní účet", "Smazat bankovní účet"}),
          chooser) {
    refresh();
}

std::vector<SeznamDialog::Row> BankyDialog::rows() { return uctyRows(/*banka=*/true); }

void BankyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Banka banka = model ? model->getBanka(id) : Banka();
    if (!banka.isValid()) return;
    deleteAfterQuestion(wxString::Format(wxString::FromUTF8("Opravdu smazat bankovní účet %s?"), banka.zkratka()),
                        [&](wxString* duvod) { return model->deleteBanka(id, duvod); });
}
