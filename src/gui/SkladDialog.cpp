#include "SkladDialog.h"

#include <algorithm>

#include <wx/choice.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "sklad/skladform.h"
#include "skladchoices.h"

SkladDialog::SkladDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, "Sklad"), m_id(id) {
    DbModel* model = DbModel::instance();
    Sklad sklad;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) sklad = model->getSklad(id > 0 ? id : vzor);
    m_nazev = addText("Název:", "nazev", 240);
    m_popis = addText("Popis:", "popis", 320);
    m_ocenovani = ocenovaniChoice(this);
    addField("Oceňování zásob:", m_ocenovani);
    m_ocenovani->SetSelection(sklad.isValid() ? sklad.ocenovani() : 0);
    if (sklad.isValid()) {
        if (id > 0) m_nazev->ChangeValue(sklad.nazev());
        m_popis->ChangeValue(sklad.popis());
    }
    finish();
}

bool SkladDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const bool novy = m_id <= 0;
    Sklad sklad(m_id, m_nazev->GetValue().Strip(wxString::both), m_popis->GetValue().Strip(wxString::both),
                std::max(0, m_ocenovani->GetSelection()));
    if (refused(skladform::skladValidation(*model, sklad), m_nazev)) return false;
    if (novy) sklad.setId(model->getLastId("sklad"));
    if (!(novy ? model->addSklad(sklad) : model->editSklad(sklad))) return false;
    m_id = sklad.id();
    return true;
}
