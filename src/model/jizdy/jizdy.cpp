#include "jizdy.h"

#include <algorithm>
#include <cmath>

#include "lxformat.h"

namespace jizdy {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

bool digits(const wxString& text, size_t minLen, size_t maxLen) {
    if (text.length() < minLen || text.length() > maxLen) return false;
    for (const wxUniChar c : text) {
        if (c < '0' || c > '9') return false;
    }
    return true;
}

// Two trips overlap when each starts before the other ends; one ending at the very minute the
// other starts does not.
bool prekryvaji(const Jizda& a, const Jizda& b) {
    return a.startcas().IsValid() && a.endcas().IsValid() && b.startcas().IsValid() && b.endcas().IsValid() &&
           a.startcas().IsEarlierThan(b.endcas()) && b.startcas().IsEarlierThan(a.endcas());
}

wxString useky(const Jizda& j) {
    wxString text = formatCasJizdy(j.startcas()) + u8(" – ") + formatCasJizdy(j.endcas());
    if (!j.cesta().empty()) text += ", " + j.cesta();
    return text;
}

bool drivejsi(const Jizda* a, const Jizda* b) {
    if (a->startcas().IsEqualTo(b->startcas())) return a->id() < b->id();
    return a->startcas().IsEarlierThan(b->startcas());
}

}  // namespace

int parseCas(const wxString& typed) {
    const wxString text = typed.Strip(wxString::both);
    if (text.empty()) return 0;
    wxString hodiny = text, minuty = "0";
    const size_t sep = text.find_first_of(":.");
    if (sep != wxString::npos) {
        hodiny = text.Left(sep);
        minuty = text.Mid(sep + 1);
        if (!digits(minuty, 2, 2)) return -1;
    }
    if (!digits(hodiny, 1, 2)) return -1;
    long h = 0, m = 0;
    hodiny.ToLong(&h);
    minuty.ToLong(&m);
    if (h > 23 || m > 59) return -1;
    return static_cast<int>(h * 60 + m);
}

wxString formatCas(int minuty) { return wxString::Format("%d:%02d", minuty / 60, minuty % 60); }

wxDateTime spojDatumCas(const wxDateTime& den, int minuty) {
    if (!den.IsValid() || minuty < 0) return wxDateTime();
    wxDateTime cas = den.GetDateOnly();
    cas.SetHour(minuty / 60);
    cas.SetMinute(minuty % 60);
    return cas;
}

bool parseKm(const wxString& text, int* km) {
    double value = 0;
    if (lxformat::parseCastka(text, &value) != lxformat::Chyba::ZADNA) return false;
    // An odometer shows whole kilometres; ten million is beyond any vehicle.
    if (value < 0 || value >= 1e7 || value != std::floor(value)) return false;
    *km = static_cast<int>(value);
    return true;
}

wxString formatKm(int km) {
    // The amount's grouping of thousands, without the hellers.
    const wxString castka = lxformat::formatCastka(km);
    return castka.Left(castka.length() - 3);
}

wxString formatCasJizdy(const wxDateTime& cas) {
    if (!cas.IsValid()) return wxString();
    return lxformat::formatDatum(cas) + " " + formatCas(cas.GetHour() * 60 + cas.GetMinute());
}

wxString jizdaValidation(const Jizda& jizda) {
    if (jizda.vozidloid() <= 0) return u8("Vyberte vozidlo.");
    if (jizda.ridicid() <= 0) return u8("Vyberte řidiče.");
    if (!jizda.startcas().IsValid() || !jizda.endcas().IsValid()) return u8("Zadejte začátek a konec jízdy.");
    if (jizda.endcas().IsEarlierThan(jizda.startcas())) return u8("Konec jízdy je dříve než její začátek.");
    if (jizda.endkm() < jizda.startkm()) return u8("Konečný stav tachometru je nižší než počáteční.");
    return wxString();
}

std::vector<wxString> varovaniJizdy(const Jizda& jizda, const lxJizdaArray& ostatni) {
    std::vector<wxString> varovani;
    const Jizda* predchozi = nullptr;
    const Jizda* nasledujici = nullptr;
    for (const auto& o : ostatni) {
        if (!o || !o->isValid() || o->id() == jizda.id()) continue;
        const bool vozidlo = o->vozidloid() == jizda.vozidloid();
        const bool ridic = o->ridicid() == jizda.ridicid();
        if ((vozidlo || ridic) && prekryvaji(jizda, *o)) {
            varovani.push_back(
                wxString::Format(u8(vozidlo ? "Vozidlo má v tu dobu jinou jízdu: %s." : "Řidič má v tu dobu jinou jízdu: %s."),
                                 useky(*o)));
        }
        if (!vozidlo || !o->startcas().IsValid() || !jizda.startcas().IsValid()) continue;
        if (o->startcas().IsEarlierThan(jizda.startcas())) {
            if (!predchozi || drivejsi(predchozi, o.get())) predchozi = o.get();
        } else if (o->startcas().IsLaterThan(jizda.startcas())) {
            if (!nasledujici || drivejsi(o.get(), nasledujici)) nasledujici = o.get();
        }
    }
    if (predchozi && jizda.startkm() < predchozi->endkm()) {
        varovani.push_back(wxString::Format(
            u8("Počáteční stav tachometru %s km je nižší než konečný stav %s km předchozí jízdy (%s)."),
            formatKm(jizda.startkm()), formatKm(predchozi->endkm()), useky(*predchozi)));
    }
    if (nasledujici && jizda.endkm() > nasledujici->startkm()) {
        varovani.push_back(wxString::Format(
            u8("Konečný stav tachometru %s km je vyšší než počáteční stav %s km následující jízdy (%s)."),
            formatKm(jizda.endkm()), formatKm(nasledujici->startkm()), useky(*nasledujici)));
    }
    return varovani;
}

wxString cenaPhmValidation(const CenaPhm& cena, const lxCenaPhmArray& ostatni) {
    if (cena.cena() < 0) return u8("Cena nemůže být záporná.");
    if (!cena.validFrom().IsValid() || !cena.validTo().IsValid()) return u8("Zadejte, od kdy do kdy cena platí.");
    const wxDateTime od = cena.validFrom().GetDateOnly(), doKdy = cena.validTo().GetDateOnly();
    if (doKdy.IsEarlierThan(od)) return u8("Konec platnosti je dříve než její začátek.");
    for (const auto& o : ostatni) {
        if (!o || o->id() == cena.id() || o->phmid() != cena.phmid()) continue;
        if (!o->validTo().GetDateOnly().IsEarlierThan(od) && !doKdy.IsEarlierThan(o->validFrom().GetDateOnly()))
            return wxString::Format(u8("V tomto období už platí cena %s (od %s do %s)."),
                                    lxformat::formatCastka(o->cena()), lxformat::formatDatum(o->validFrom()),
                                    lxformat::formatDatum(o->validTo()));
    }
    return wxString();
}

wxString nahradaKmValidation(const NahradaKm& nahrada, const lxNahradaKmArray& ostatni) {
    if (nahrada.rok() < 2000 || nahrada.rok() > 2100) return u8("Zadejte rok od 2000 do 2100.");
    if (nahrada.nahrada() <= 0) return u8("Náhrada musí být větší než nula.");
    for (const auto& o : ostatni) {
        if (o && o->id() != nahrada.id() && o->druhvozidlaid() == nahrada.druhvozidlaid() && o->rok() == nahrada.rok())
            return wxString::Format(u8("Náhrada pro rok %d je už zadána."), nahrada.rok());
    }
    return wxString();
}

std::vector<Navaznost> kontrolaNavaznosti(const lxJizdaArray& jizdy) {
    std::vector<const Jizda*> poradi;
    poradi.reserve(jizdy.size());
    for (const auto& j : jizdy) {
        if (j && j->startcas().IsValid()) poradi.push_back(j.get());
    }
    std::sort(poradi.begin(), poradi.end(), drivejsi);
    std::vector<Navaznost> nalezy;
    for (size_t i = 1; i < poradi.size(); ++i) {
        const Jizda& pred = *poradi[i - 1];
        const Jizda& j = *poradi[i];
        const wxString kdy = formatCasJizdy(j.startcas());
        if (prekryvaji(pred, j))
            nalezy.push_back({j.id(), wxString::Format(u8("Jízda %s se překrývá s předchozí jízdou (%s)."), kdy,
                                                       useky(pred))});
        if (j.startkm() < pred.endkm()) {
            nalezy.push_back(
                {j.id(), wxString::Format(u8("Jízda %s: tachometr jde zpět, počáteční stav %s km je nižší než "
                                             "konečný stav %s km předchozí jízdy."),
                                          kdy, formatKm(j.startkm()), formatKm(pred.endkm()))});
        } else if (j.startkm() > pred.endkm()) {
            nalezy.push_back({j.id(), wxString::Format(u8("Jízda %s: od konce předchozí jízdy chybí %s km "
                                                          "(předchozí jízda skončila na %s km)."),
                                                       kdy, formatKm(j.startkm() - pred.endkm()),
                                                       formatKm(pred.endkm()))});
        }
    }
    return nalezy;
}

double zaokrouhliNaHalere(double castka) {
    // The nudge keeps a half heller that binary doubles hold a hair below (1.005) going up, as
    // it does on paper; it is far below anything a sum of real amounts carries.
    const double halere = castka * 100.0;
    return std::round(halere + (halere >= 0 ? 1e-7 : -1e-7)) / 100.0;
}

Nahrada vypocetNahrady(const Vozidlo& vozidlo, const lxJizdaArray& jizdy, const lxNahradaKmArray& sazby,
                       const lxCenaPhmArray& ceny, const wxString& druhVozidla, const wxString& phm) {
    Nahrada n;
    n.soukrome = vozidlo.soukrome();
    n.spotreba = vozidlo.spotreba();
    std::vector<const Jizda*> poradi;
    for (const auto& j : jizdy) {
        if (j && j->startcas().IsValid()) poradi.push_back(j.get());
    }
    std::sort(poradi.begin(), poradi.end(), drivejsi);

    const wxString druh = druhVozidla.empty() ? wxString::Format("%d", vozidlo.druhvozidlaid()) : druhVozidla;
    const wxString palivo = phm.empty() ? wxString::Format("%d", vozidlo.phmid()) : phm;
    for (const Jizda* j : poradi) {
        NahradaRadek r;
        r.jizdaid = j->id();
        r.startcas = j->startcas();
        r.cesta = j->cesta();
        r.ucel = j->ucel();
        r.km = j->endkm() - j->startkm();
        if (n.soukrome) {
            const int rok = j->startcas().GetYear();
            const NahradaKm* sazba = nullptr;
            for (const auto& s : sazby) {
                if (s && s->rok() == rok && s->druhvozidlaid() == vozidlo.druhvozidlaid()) sazba = s.get();
            }
            if (!sazba) {
                n.chyba = wxString::Format(u8("Pro rok %d není zadána základní náhrada za km pro druh vozidla „%s“."),
                                           rok, druh);
                break;
            }
            r.sazba = sazba->nahrada();
        }
        const wxDateTime den = j->startcas().GetDateOnly();
        const CenaPhm* cena = nullptr;
        for (const auto& c : ceny) {
            if (!c || c->phmid() != vozidlo.phmid()) continue;
            const bool od = !c->validFrom().IsValid() || !den.IsEarlierThan(c->validFrom().GetDateOnly());
            const bool dokdy = !c->validTo().IsValid() || !den.IsLaterThan(c->validTo().GetDateOnly());
            if (od && dokdy) cena = c.get();
        }
        if (!cena) {
            n.chyba = wxString::Format(u8("Pro den %s není zadána průměrná cena pohonné hmoty „%s“."),
                                       lxformat::formatDatum(den), palivo);
            break;
        }
        r.cenaPhm = cena->cena();
        r.castka = zaokrouhliNaHalere(r.km * r.sazba + r.cenaPhm * n.spotreba * r.km / 100.0);
        n.km += r.km;
        n.celkem += r.castka;
        n.radky.push_back(r);
    }
    if (!n.chyba.empty()) {
        n.radky.clear();
        n.km = 0;
        n.celkem = 0;
    }
    return n;
}

}  // namespace jizdy
