#include "VozidloDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "controls/lxamountctrl.h"
#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// Fills a choice with the rows' names and selects the row `selected`; gives the ids in order.
template <class Array>
std::vector<int> naplnit(wxChoice* choice, const Array& rows, int selected) {
    std::vector<int> ids;
    for (const auto& r : rows) {
        choice->Append(r->jmeno());
        ids.push_back(r->id());
        if (r->id() == selected) choice->SetSelection(static_cast<int>(ids.size()) - 1);
    }
    return ids;
}

int vybrane(const wxChoice* choice, const std::vector<int>& ids) {
    const int sel = choice->GetSelection();
    return sel >= 0 && sel < static_cast<int>(ids.size()) ? ids[sel] : -1;
}

}  // namespace

VozidloDialog::VozidloDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, "Vozidlo"), m_id(id) {
    DbModel* model = DbModel::instance();
    const bool open = model && model->isOpen();
    Vozidlo v;
    if (open && (id > 0 || vzor > 0)) v = model->getVozidlo(id > 0 ? id : vzor);
    m_jmeno = addText("Název:", "jmeno", 260);
    m_rz = addText("RZ:", "rz", 120);
    m_druh = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator,
                          "druhvozidla");
    addField("Druh vozidla:", m_druh);
    m_phm = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "phm");
    addField("Pohonná hmota:", m_phm);
    m_spotreba = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "spotreba", 80);
    auto* spotreba = new wxBoxSizer(wxHORIZONTAL);
    spotreba->Add(m_spotreba, wxSizerFlags().CentreVertical());
    spotreba->Add(new wxStaticText(this, wxID_ANY, u8("l (kWh) na 100 km")),
                  wxSizerFlags().CentreVertical().Border(wxLEFT, 6));
    addField("Spotřeba:", spotreba);
    m_soukrome = new wxCheckBox(this, wxID_ANY, u8("Soukromé vozidlo používané k podnikání"), wxDefaultPosition,
                                wxDefaultSize, 0, wxDefaultValidator, "soukrome");
    addField("", m_soukrome);
    if (open) {
        // A new vehicle is most often a private car on petrol.
        m_druhIds = naplnit(m_druh, model->druhyVozidel(), v.isValid() ? v.druhvozidlaid() : 1);
        m_phmIds = naplnit(m_phm, model->phm(), v.isValid() ? v.phmid() : 1);
    }
    if (v.isValid()) {
        m_jmeno->ChangeValue(v.jmeno());
        if (id > 0) m_rz->ChangeValue(v.rz());
        m_spotreba->SetValue(v.spotreba());
        m_soukrome->SetValue(v.soukrome());
    } else {
        m_soukrome->SetValue(true);
    }
    finish();
}

bool VozidloDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString rz = m_rz->GetValue().Strip(wxString::both).Upper();
    if (refused(rz.empty() ? u8("RZ nemůže být prázdná") : wxString(), m_rz)) return false;
    const int stejna = model->getVozidloIdByRz(rz);
    if (refused(stejna > 0 && stejna != m_id ? wxString::Format(u8("Vozidlo s RZ '%s' už existuje"), rz) : wxString(),
                m_rz))
        return false;
    double spotreba = 0;
    if (refused(m_spotreba->zprava(u8("Spotřeba")), m_spotreba)) return false;
    m_spotreba->GetValue(&spotreba);
    if (refused(spotreba <= 0 || spotreba >= 1000 ? u8("Spotřeba musí být větší než nula a menší než 1 000.")
                                                   : wxString(),
                m_spotreba))
        return false;
    const int druh = vybrane(m_druh, m_druhIds);
    if (refused(druh < 0 ? u8("Vyberte druh vozidla.") : wxString(), m_druh)) return false;
    const int phm = vybrane(m_phm, m_phmIds);
    if (refused(phm < 0 ? u8("Vyberte pohonnou hmotu.") : wxString(), m_phm)) return false;

    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("vozidlo") : m_id;
    const Vozidlo v(id, rz, m_jmeno->GetValue().Strip(wxString::both), druh, spotreba, m_soukrome->GetValue(), phm);
    if (!(novy ? model->addVozidlo(v) : model->editVozidlo(v))) return false;
    m_id = id;
    return true;
}
