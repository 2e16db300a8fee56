#include "JizdaDialog.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "jizdy/jizdy.h"
#include "jizdy/jizdydb.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxString casText(const wxDateTime& cas) {
    if (!cas.IsValid() || (cas.GetHour() == 0 && cas.GetMinute() == 0)) return wxString();
    return jizdy::formatCas(cas.GetHour() * 60 + cas.GetMinute());
}

}  // namespace

JizdaDialog::JizdaDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, u8("Jízda")), m_id(id) {
    DbModel* model = openModel();
    Jizda j;
    if (model && (id > 0 || vzor > 0)) j = model->getJizda(id > 0 ? id : vzor);

    m_vozidlo =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxSize(260, -1), wxArrayString(), 0, wxDefaultValidator, "vozidlo");
    addField("Vozidlo:", m_vozidlo);
    m_ridic =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxSize(260, -1), wxArrayString(), 0, wxDefaultValidator, "ridic");
    addField("Řidič:", m_ridic);
    auto denACas = [this](const char* label, const char* datum, const char* cas, lxDateCtrl** den, wxTextCtrl** hodiny) {
        *den = new lxDateCtrl(this, datum);
        *hodiny = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(70, -1), 0, wxDefaultValidator, cas);
        (*hodiny)->SetHint("8:30");
        auto* row = new wxBoxSizer(wxHORIZONTAL);
        row->Add(*den, wxSizerFlags().CentreVertical());
        row->Add(*hodiny, wxSizerFlags().CentreVertical().Border(wxLEFT, 8));
        addField(label, row);
    };
    denACas("Začátek jízdy:", "startdatum", "startcas", &m_startDatum, &m_startCas);
    denACas("Konec jízdy:", "enddatum", "endcas", &m_endDatum, &m_endCas);
    m_startKm = addText("Tachometr na začátku (km):", "startkm", 110);
    m_endKm = addText("Tachometr na konci (km):", "endkm", 110);
    m_cesta = addText("Trasa:", "cesta", 320);
    m_ucel = addText("Účel cesty:", "ucel", 320);

    if (model) {
        for (const auto& v : model->vozidla()) {
            m_vozidlo->Append(v->jmeno().empty() ? v->rz() : v->rz() + u8(" – ") + v->jmeno());
            m_vozidlaIds.push_back(v->id());
            if (v->id() == j.vozidloid()) m_vozidlo->SetSelection(static_cast<int>(m_vozidlaIds.size()) - 1);
        }
        for (const auto& r : model->ridici()) {
            m_ridic->Append(r->jmeno());
            m_ridiciIds.push_back(r->id());
            if (r->id() == j.ridicid()) m_ridic->SetSelection(static_cast<int>(m_ridiciIds.size()) - 1);
        }
    }
    // With a single vehicle or driver there is nothing to choose.
    if (!j.isValid() && m_vozidlaIds.size() == 1) m_vozidlo->SetSelection(0);
    if (!j.isValid() && m_ridiciIds.size() == 1) m_ridic->SetSelection(0);

    if (j.isValid()) {
        m_cesta->ChangeValue(j.cesta());
        m_ucel->ChangeValue(j.ucel());
        m_startCas->ChangeValue(casText(j.startcas()));
        m_endCas->ChangeValue(casText(j.endcas()));
    }
    if (id > 0 && j.isValid()) {
        m_startDatum->SetValue(j.startcas().GetDateOnly());
        m_endDatum->SetValue(j.endcas().IsValid() ? j.endcas().GetDateOnly() : wxDateTime());
        m_startKm->ChangeValue(jizdy::formatKm(j.startkm()));
        m_endKm->ChangeValue(jizdy::formatKm(j.endkm()));
        m_kmZadane = true;
    } else {
        const wxDateTime dnes = lxSettings::instance()->datum().IsValid() ? lxSettings::instance()->datum()
                                                                         : wxDateTime::Today();
        m_startDatum->SetValue(dnes.GetDateOnly());
        // A repeated trip ending the next day (a night drive) ends the next day again.
        const int dnu = j.isValid() && j.endcas().IsValid()
                            ? (j.endcas().GetDateOnly() - j.startcas().GetDateOnly()).GetDays()
                            : 0;
        m_endDatum->SetValue(dnes.GetDateOnly().Add(wxDateSpan::Days(dnu)));
        onVozidlo();
        if (j.isValid()) {
            int start = 0;
            jizdy::parseKm(m_startKm->GetValue(), &start);
            m_endKm->ChangeValue(jizdy::formatKm(start + j.endkm() - j.startkm()));
        }
    }
    m_vozidlo->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { onVozidlo(); });
    m_startKm->Bind(wxEVT_TEXT, [this](wxCommandEvent& e) {
        m_kmZadane = true;
        e.Skip();
    });
    finish();
}

int JizdaDialog::vybrane(const wxChoice* choice, const std::vector<int>& ids) const {
    const int sel = choice->GetSelection();
    return sel >= 0 && sel < static_cast<int>(ids.size()) ? ids[sel] : -1;
}

void JizdaDialog::onVozidlo() {
    DbModel* model = openModel();
    const int vozidlo = vybrane(m_vozidlo, m_vozidlaIds);
    if (!model || vozidlo <= 0 || m_kmZadane) return;
    m_startKm->ChangeValue(jizdy::formatKm(jizdy::posledniKm(*model, vozidlo)));
}

bool JizdaDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    m_startDatum->commitText();
    m_endDatum->commitText();

    Jizda j;
    j.setId(m_id > 0 ? m_id : model->getLastId("jizda"));
    j.setVozidloid(vybrane(m_vozidlo, m_vozidlaIds));
    j.setRidicid(vybrane(m_ridic, m_ridiciIds));
    if (j.vozidloid() <= 0 || j.ridicid() <= 0) {
        refused(jizdy::jizdaValidation(j), j.vozidloid() <= 0 ? m_vozidlo : m_ridic);
        return false;
    }

    // Each end of the trip: its day, then its time of day.
    auto cas = [this](lxDateCtrl* den, wxTextCtrl* hodiny, const char* pole, const char* casPole, wxDateTime* out) {
        const wxDateTime datum = den->GetValue();
        if (!datum.IsValid()) {
            prompts().info(lxformat::datumZprava(u8(pole), den->text()), wxString(), this);
            den->focusText();
            return false;
        }
        const int minuty = jizdy::parseCas(hodiny->GetValue());
        if (refused(minuty < 0 ? wxString::Format(u8("%s: „%s“ není platný čas.\nZadejte například 8:30."),
                                                  u8(casPole), hodiny->GetValue())
                               : wxString(),
                    hodiny))
            return false;
        *out = jizdy::spojDatumCas(datum, minuty);
        return true;
    };
    wxDateTime start, end;
    if (!cas(m_startDatum, m_startCas, "Začátek jízdy", "Čas začátku", &start)) return false;
    if (!cas(m_endDatum, m_endCas, "Konec jízdy", "Čas konce", &end)) return false;
    j.setStartcas(start);
    j.setEndcas(end);

    auto km = [this](wxTextCtrl* field, const char* pole, int* out) {
        return !refused(jizdy::parseKm(field->GetValue(), out)
                            ? wxString()
                            : wxString::Format(u8("%s: „%s“ není platný stav tachometru.\nZadejte celé kilometry, "
                                                  "například 1 250."),
                                               u8(pole), field->GetValue()),
                        field);
    };
    int startkm = 0, endkm = 0;
    if (!km(m_startKm, "Tachometr na začátku", &startkm) || !km(m_endKm, "Tachometr na konci", &endkm)) return false;
    j.setStartkm(startkm);
    j.setEndkm(endkm);
    j.setCesta(m_cesta->GetValue().Strip(wxString::both));
    j.setUcel(m_ucel->GetValue().Strip(wxString::both));

    const wxString chyba = jizdy::jizdaValidation(j);
    if (refused(chyba, j.endcas().IsEarlierThan(j.startcas()) ? static_cast<wxWindow*>(m_endDatum)
                                                              : static_cast<wxWindow*>(m_endKm)))
        return false;

    const std::vector<wxString> varovani = jizdy::varovaniJizdy(j, jizdy::souvisejiciJizdy(*model, j));
    if (!varovani.empty()) {
        wxString otazka;
        for (const wxString& v : varovani) otazka += v + "\n\n";
        otazka += u8("Přesto jízdu uložit?");
        if (!prompts().question(otazka, u8("Dotaz"), this)) return false;
    }
    const bool nova = m_id <= 0;
    j.setValid(true);
    if (!(nova ? model->addJizda(j) : model->editJizda(j))) return false;
    m_id = j.id();
    return true;
}
