#include "PohybDialog.h"

#include <wx/stattext.h>

#include <tuple>

#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxsettings.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

PohybDialog::PohybDialog(wxWindow* parent, int zasobaid, bool prijemka, int id)
    : FormDialog(parent, u8(prijemka ? "Příjem na sklad" : "Výdej ze skladu")) {
    DbModel* model = openModel();
    m_form.zasobaid = zasobaid;
    m_form.prijemka = prijemka;
    m_form.datum = pracovniDen();
    wxString cislo;
    if (model && id > 0) {
        const Pohybzasob p = model->getPohybzasob(id);
        if (p.isValid()) {
            m_form.id = p.id();
            m_form.zasobaid = p.zasobaid();
            m_form.prijemka = p.prijemka();
            m_form.datum = p.datum();
            m_form.pocet = p.pocet();
            m_form.cenamj = p.cenamj();
            cislo = p.cislo();
            SetTitle(u8(p.prijemka() ? "Příjem na sklad" : "Výdej ze skladu"));
        }
    } else if (model) {
        cislo = model->getCisloDokladu(prijemka ? "PR" : "VY");
    }
    m_cislo = new wxStaticText(this, wxID_ANY, cislo, wxDefaultPosition, wxDefaultSize, 0, "cislo");
    addField("Číslo:", m_cislo);
    m_datum = new lxDateCtrl(this, "datum", m_form.datum);
    if (model) m_datum->setRok(model->currentRok());
    addField("Datum:", m_datum);
    m_pocet = new lxAmountCtrl(this, lxAmountCtrl::MNOZSTVI, "pocet", 150);
    addField("Počet:", m_pocet);
    m_cenamj = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "cenamj", 150);
    addField("Cena za MJ:", m_cenamj);
    if (m_form.id > 0) {
        m_pocet->SetValue(m_form.pocet);
        m_cenamj->SetValue(m_form.cenamj);
    } else {
        m_pocet->ChangeValue(wxString());
    }
    // A new issue offers the cost its valuation method gives for what is typed.
    if (!m_form.prijemka && m_form.id <= 0) {
        m_pocet->Bind(wxEVT_TEXT, [this](wxCommandEvent& e) {
            navrhnoutCenu();
            e.Skip();
        });
    }
    finish();
    m_pocet->SetFocus();
}

void PohybDialog::navrhnoutCenu() {
    DbModel* model = openModel();
    double pocet = 0;
    const wxDateTime datum = m_datum->GetValue();
    // A price the person typed stays.
    const wxString cena = m_cenamj->GetValue();
    if (!cena.empty() && cena != m_navrh) return;
    if (!model || m_pocet->GetValue(&pocet) != lxformat::Chyba::ZADNA || !datum.IsValid() || pocet <= 0) return;
    m_cenamj->SetValue(skladform::cenaVydeje(*model, m_form.zasobaid, datum, pocet, m_form.id));
    m_navrh = m_cenamj->GetValue();
}

bool PohybDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    m_datum->commitText();
    skladform::PohybForm form = m_form;
    const wxDateTime datum = m_datum->GetValue();
    if (!datum.IsValid()) {
        refused(lxformat::datumZprava(u8("Datum"), m_datum->text()), nullptr);
        m_datum->focusText();
        return false;
    }
    // An edited movement keeps its time of day while its day stays.
    form.datum = m_form.id > 0 && m_form.datum.IsValid() && m_form.datum.IsSameDate(datum) ? m_form.datum : datum;
    for (const auto& [field, name, value] : {std::make_tuple(m_pocet, "Počet", &form.pocet),
                                            std::make_tuple(m_cenamj, "Cena za MJ", &form.cenamj)}) {
        // An empty price of an issue is left to the valuation method.
        if (field == m_cenamj && !form.prijemka && field->GetValue().Strip(wxString::both).empty()) {
            form.cenamj = 0;
            continue;
        }
        const lxformat::Chyba chyba = field->GetValue(value);
        if (chyba == lxformat::Chyba::ZADNA) continue;
        if (chyba == lxformat::Chyba::PRAZDNE) {
            *value = 0;
            continue;
        }
        refused(field->zprava(u8(name)), field);
        field->SelectAll();
        return false;
    }
    int id = -1;
    const wxString chyba = skladform::ulozitPohyb(*model, form, &id);
    if (refused(chyba, chyba == u8("Nulová cena za měrnou jednotku") ? m_cenamj : m_pocet))
        return false;
    m_form = form;
    m_form.id = id;
    return true;
}
