#include "dphobdobi.h"

#include "lxformat.h"

namespace lxutils {

wxString mesicString(int mesic) {
    static const char* const nazvy[] = {"Leden", "Únor",  "Březen", "Duben",  "Květen",   "Červen",
                                        "Červenec", "Srpen", "Září", "Říjen", "Listopad", "Prosinec"};
    if (mesic < 1 || mesic > 12) return wxString();
    return wxString::FromUTF8(nazvy[mesic - 1]);
}

wxString ctvrtletiString(int ctvrtleti) {
    if (ctvrtleti < 1 || ctvrtleti > 4) return wxString();
    return wxString::Format(wxString::FromUTF8("%d. čtvrtletí"), ctvrtleti);
}

int ctvrtletiMesicStart(int ctvrtleti) { return (ctvrtleti - 1) * 3 + 1; }

int ctvrtletiMesicEnd(int ctvrtleti) { return ctvrtleti * 3; }

wxString enquotes(const wxString& text) {
    wxString quoted = text;
    quoted.Replace("\"", "\"\"");
    return "\"" + quoted + "\"";
}

}  // namespace lxutils

namespace {

wxDateTime den(int rok, int mesic, int den) {
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(den), static_cast<wxDateTime::Month>(mesic - 1), rok);
}

wxDateTime posledniDen(int rok, int mesic) {
    return den(rok, mesic, wxDateTime::GetNumberOfDays(static_cast<wxDateTime::Month>(mesic - 1), rok));
}

}  // namespace

DphObdobi DphObdobi::zMesice(int rok, int mesic) {
    DphObdobi o;
    if (mesic < 1 || mesic > 12 || rok < 1) return o;
    o.druh = DruhObdobi::Mesic;
    o.rok = rok;
    o.mesic = mesic;
    o.od = den(rok, mesic, 1);
    o.doDne = posledniDen(rok, mesic);
    return o;
}

DphObdobi DphObdobi::zCtvrtleti(int rok, int ctvrtleti) {
    DphObdobi o;
    if (ctvrtleti < 1 || ctvrtleti > 4 || rok < 1) return o;
    o.druh = DruhObdobi::Ctvrtleti;
    o.rok = rok;
    o.ctvrtleti = ctvrtleti;
    o.od = den(rok, lxutils::ctvrtletiMesicStart(ctvrtleti), 1);
    o.doDne = posledniDen(rok, lxutils::ctvrtletiMesicEnd(ctvrtleti));
    return o;
}

DphObdobi DphObdobi::zDatumu(const wxDateTime& od, const wxDateTime& doDne) {
    DphObdobi o;
    if (!od.IsValid() || !doDne.IsValid()) return o;
    o.druh = DruhObdobi::Obdobi;
    o.od = od.GetDateOnly();
    o.doDne = doDne.GetDateOnly();
    if (o.doDne < o.od) std::swap(o.od, o.doDne);
    o.rok = o.od.GetYear();
    return o;
}

wxString DphObdobi::text() const {
    switch (druh) {
        case DruhObdobi::Mesic: return wxString::Format("%s/%d", lxutils::mesicString(mesic), rok);
        case DruhObdobi::Ctvrtleti: return wxString::Format("%s/%d", lxutils::ctvrtletiString(ctvrtleti), rok);
        case DruhObdobi::Obdobi: break;
    }
    return lxformat::formatDatum(od) + " - " + lxformat::formatDatum(doDne);
}
