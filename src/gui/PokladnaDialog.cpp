#include "PokladnaDialog.h"

#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"

PokladnaDialog::PokladnaDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, "Pokladna"), m_id(id) {
    DbModel* model = DbModel::instance();
    Pokladna pokladna;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) pokladna = model->getPokladna(id > 0 ? id : vzor);
    m_zkratka = addText("Zkratka:", "zkratka", 120);
    m_popis = addText("Popis:", "popis", 280);
    addMena(pokladna.isValid() ? pokladna.menaid() : 1);
    if (pokladna.isValid()) {
        if (id > 0) m_zkratka->ChangeValue(pokladna.zkratka());
        m_popis->ChangeValue(pokladna.popis());
    }
    finish();
}

bool PokladnaDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString zkratka = m_zkratka->GetValue().Strip(wxString::both);
    if (refused(zkratkaValidation(*model, Ciselnik::POKLADNA, zkratka, m_id), m_zkratka)) return false;
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("pokladna") : m_id;
    const Pokladna pokladna(id, zkratka, m_popis->GetValue().Strip(wxString::both), menaId());
    if (!(novy ? model->addPokladna(pokladna) : model->editPokladna(pokladna))) return false;
    m_id = id;
    return true;
}
