#include "CenaPhmDialog.h"

#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "jizdy/jizdy.h"
#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

CenaPhmDialog::CenaPhmDialog(wxWindow* parent, int phmid, int id, int vzor)
    : FormDialog(parent, u8("Cena pohonné hmoty")), m_id(id), m_phmid(phmid) {
    DbModel* model = DbModel::instance();
    CenaPhm c;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) c = model->getCenaPhm(id > 0 ? id : vzor);
    m_cena = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "cena", 100);
    addField("Cena za litr (kWh):", m_cena);
    m_od = new lxDateCtrl(this, "validfrom");
    addField("Platí od:", m_od);
    m_do = new lxDateCtrl(this, "validto");
    addField("Platí do:", m_do);
    if (c.isValid()) {
        m_cena->SetValue(c.cena());
        // A copy is most often next year's price.
        const wxDateSpan posun = id > 0 ? wxDateSpan() : wxDateSpan::Year();
        m_od->SetValue(c.validFrom().IsValid() ? c.validFrom().Add(posun) : wxDateTime());
        m_do->SetValue(c.validTo().IsValid() ? c.validTo().Add(posun) : wxDateTime());
    } else {
        const int rok = model && model->isOpen() ? model->currentRok() : wxDateTime::Today().GetYear();
        m_od->SetValue(wxDateTime(1, wxDateTime::Jan, rok));
        m_do->SetValue(wxDateTime(31, wxDateTime::Dec, rok));
    }
    finish();
}

bool CenaPhmDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    m_od->commitText();
    m_do->commitText();
    double cena = 0;
    if (refused(m_cena->zprava(u8("Cena")), m_cena)) return false;
    m_cena->GetValue(&cena);
    const wxDateTime od = m_od->GetValue(), doKdy = m_do->GetValue();
    if (refused(od.IsValid() ? wxString() : lxformat::datumZprava(u8("Platí od"), m_od->text()), m_od)) return false;
    if (refused(doKdy.IsValid() ? wxString() : lxformat::datumZprava(u8("Platí do"), m_do->text()), m_do))
        return false;
    const bool nova = m_id <= 0;
    const CenaPhm c(nova ? model->getLastId("cenaphm") : m_id, m_phmid, cena, od, doKdy);
    if (refused(jizdy::cenaPhmValidation(c, model->cenyPhm(m_phmid)), m_od)) return false;
    if (!(nova ? model->addCenaPhm(c) : model->editCenaPhm(c))) return false;
    m_id = c.id();
    return true;
}
