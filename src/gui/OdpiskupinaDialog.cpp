#include "OdpiskupinaDialog.h"

#include <wx/textctrl.h>

#include "controls/lxamountctrl.h"
#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The six rates in the order of the record's fields: label, control name, label in messages.
struct Sazba {
    const char* label;
    const char* name;
    const char* pole;
};
constexpr Sazba SAZBY[] = {
    {"Rovnoměrný, 1. rok (%):", "rov1", "Rovnoměrný, 1. rok"},
    {"Rovnoměrný, další roky (%):", "rov2", "Rovnoměrný, další roky"},
    {"Rovnoměrný, zvýšená cena (%):", "rovzvy", "Rovnoměrný, zvýšená cena"},
    {"Zrychlený, 1. rok (koeficient):", "zry1", "Zrychlený, 1. rok"},
    {"Zrychlený, další roky (koeficient):", "zry2", "Zrychlený, další roky"},
    {"Zrychlený, zvýšená cena (koeficient):", "zryzvy", "Zrychlený, zvýšená cena"},
};

}  // namespace

OdpiskupinaDialog::OdpiskupinaDialog(wxWindow* parent, int id, int vzor)
    : FormDialog(parent, u8("Odpisová skupina")), m_id(id) {
    DbModel* model = DbModel::instance();
    Odpiskupina s;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) s = model->getOdpiskupina(id > 0 ? id : vzor);
    m_popis = addText("Popis:", "popis", 360);
    m_odpisovat = addText("Počet let odpisování:", "odpisovat", 80);
    for (size_t i = 0; i < m_sazby.size(); ++i) {
        m_sazby[i] = new lxAmountCtrl(this, lxAmountCtrl::KURZ, SAZBY[i].name, 100);
        addField(SAZBY[i].label, m_sazby[i]);
    }
    if (s.isValid()) {
        m_popis->ChangeValue(s.popis());
        m_odpisovat->ChangeValue(wxString::Format("%d", s.odpisovat()));
        const double hodnoty[] = {s.rov1(), s.rov2(), s.rovzvy(), s.zry1(), s.zry2(), s.zryzvy()};
        for (size_t i = 0; i < m_sazby.size(); ++i) m_sazby[i]->SetValue(hodnoty[i]);
    }
    finish();
}

bool OdpiskupinaDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString popis = m_popis->GetValue().Strip(wxString::both);
    if (refused(popis.empty() ? u8("Popis nemůže být prázdný") : wxString(), m_popis)) return false;
    long roky = 0;
    const wxString odpisovat = m_odpisovat->GetValue().Strip(wxString::both);
    if (!odpisovat.ToLong(&roky) || roky < 1 || roky > 100) {
        refused(u8("Počet let odpisování musí být celé číslo od 1 do 100"), m_odpisovat);
        return false;
    }
    double hodnoty[6] = {};
    for (size_t i = 0; i < m_sazby.size(); ++i) {
        if (m_sazby[i]->GetValue(&hodnoty[i]) != lxformat::Chyba::ZADNA) {
            refused(m_sazby[i]->zprava(u8(SAZBY[i].pole)), m_sazby[i]);
            return false;
        }
    }
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("odpiskupina") : m_id;
    const Odpiskupina s(id, popis, static_cast<int>(roky), hodnoty[0], hodnoty[1], hodnoty[2], hodnoty[3], hodnoty[4],
                        hodnoty[5]);
    if (!(novy ? model->addOdpiskupina(s) : model->editOdpiskupina(s))) return false;
    m_id = id;
    return true;
}
