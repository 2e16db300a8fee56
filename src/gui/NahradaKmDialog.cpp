#include "NahradaKmDialog.h"

#include <wx/spinctrl.h>

#include "controls/lxamountctrl.h"
#include "dbmodel.h"
#include "jizdy/jizdy.h"
#include "jizdy/jizdydb.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

NahradaKmDialog::NahradaKmDialog(wxWindow* parent, int druhvozidlaid, int id, int vzor)
    : FormDialog(parent, u8("Základní náhrada za km")), m_id(id), m_druh(druhvozidlaid) {
    DbModel* model = DbModel::instance();
    const bool open = model && model->isOpen();
    NahradaKm n;
    if (open && (id > 0 || vzor > 0)) n = model->getNahradaKm(id > 0 ? id : vzor);
    int rok = open ? model->currentRok() : wxDateTime::Today().GetYear();
    if (n.isValid()) rok = n.rok() + (id > 0 ? 0 : 1);
    m_rok = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 2000, 2100,
                           rok, "rok");
    addField("Rok:", m_rok);
    // A rate: as many decimals as it has (6,785 Kč for a trailer).
    m_nahrada = new lxAmountCtrl(this, lxAmountCtrl::KURZ, "nahrada", 100);
    addField("Náhrada Kč/km:", m_nahrada);
    if (n.isValid()) m_nahrada->SetValue(n.nahrada());
    finish();
}

bool NahradaKmDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    double nahrada = 0;
    const lxformat::Chyba chyba = m_nahrada->GetValue(&nahrada);
    if (refused(chyba == lxformat::Chyba::ZADNA
                    ? wxString()
                    : wxString::Format(u8("Náhrada: „%s“ není platná sazba.\nZadejte například 5,90."),
                                       m_nahrada->wxTextCtrl::GetValue()),
                m_nahrada))
        return false;
    const bool nova = m_id <= 0;
    const NahradaKm n(nova ? model->getLastId("nahradakm") : m_id, m_druh, nahrada, m_rok->GetValue());
    if (refused(jizdy::nahradaKmValidation(n, jizdy::nahradyDruhu(*model, m_druh)), m_rok)) return false;
    if (!(nova ? model->addNahradaKm(n) : model->editNahradaKm(n))) return false;
    m_id = n.id();
    return true;
}
