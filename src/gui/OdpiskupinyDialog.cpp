#include "OdpiskupinyDialog.h"

#include "dbmodel.h"
#include "lxformat.h"
#include "sqlvalue.h"

OdpiskupinyDialog::OdpiskupinyDialog(wxWindow* parent, bool chooser)
    : FormCiselnikDialog(parent, wxString::FromUTF8("Odpisové skupiny"),
                         strings({"Popis", "Let", "Rovnoměrný 1. rok", "Rovnoměrný další", "Zrychlený 1. rok",
                                  "Zrychlený další"}),
                         strings({"Přidat skupinu", "Upravit skupinu", "Kopírovat skupinu", "Smazat skupinu"}),
                         chooser) {
    refresh();
}

std::vector<SeznamDialog::Row> OdpiskupinyDialog::rows() {
    std::vector<Row> rows;
    DbModel* model = openModel();
    if (!model) return rows;
    for (const auto& s : model->odpiskupiny()) {
        wxArrayString cells;
        cells.Add(s->popis());
        cells.Add(wxString::Format("%d", s->odpisovat()));
        for (double v : {s->rov1(), s->rov2(), s->zry1(), s->zry2()}) cells.Add(lxformat::formatKurz(v));
        rows.push_back(Row{s->id(), cells});
    }
    return rows;
}

void OdpiskupinyDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Odpiskupina s = model ? model->getOdpiskupina(id) : Odpiskupina();
    if (!s.isValid()) return;
    deleteAfterQuestion(wxString::Format(wxString::FromUTF8("Opravdu smazat odpisovou skupinu\n%s?"), s.popis()),
                        [&](wxString* duvod) {
                            if (sqlvalue::exists(model->db(), "SELECT count(*) FROM majetek WHERE skupinaid=?", id)) {
                                *duvod = wxString::FromUTF8("Skupinu nelze smazat, používá ji majetek");
                                return false;
                            }
                            return model->deleteOdpiskupina(id);
                        });
}
