#include "castky.h"

#include <algorithm>
#include <cmath>

#include "lxutils.h"

namespace castky {

double koeficient(int sazba, const wxDateTime& datumDane) {
    const double k = sazba / (sazba + 100.0);
    static const wxDateTime posledniDenZaokrouhleni(31, wxDateTime::Mar, 2019);
    if (datumDane.IsValid() && !datumDane.GetDateOnly().IsLaterThan(posledniDenZaokrouhleni))
        return std::round(k * 10000.0) / 10000.0;  // std::round rounds half away from zero
    return k;
}

Polozka polozka(bool platce, bool bezDph, double pocet, double cenaMj, int sazba, const wxDateTime& datumDane) {
    Polozka p;
    const double cena = pocet * cenaMj;
    if (!platce) {
        p.celkem = cena;
    } else if (bezDph) {
        p.dph = sazba / 100.0 * cena;
        p.celkem = cena + p.dph;
    } else {
        p.celkem = cena;
        p.dph = p.celkem * koeficient(sazba, datumDane);
    }
    return p;
}

Zaokrouhleni zaokrouhleni(double soucet) {
    Zaokrouhleni z;
    if (std::fabs(soucet - std::round(soucet)) < 1e-9) return z;
    z.potreba = true;
    z.rozdil = std::ceil(soucet) - soucet;
    return z;
}

int sazbaZaokrouhleni(bool pokladnou, const std::vector<int>& sazbyPolozek, int zakladni) {
    if (pokladnou) return 0;
    const int nejvyssi = sazbyPolozek.empty() ? 0 : *std::max_element(sazbyPolozek.begin(), sazbyPolozek.end());
    return nejvyssi > 0 ? nejvyssi : zakladni;
}

Rozdeleni rozdelUhradu(double celkem, double dph, double zaplaceno) {
    Rozdeleni r;
    if (lxutils::isSameDouble(dph, 0.0, 1e-12, 1e-8) || celkem == 0.0) {
        r.zaklad = zaplaceno;
        return r;
    }
    const double podil = zaplaceno / celkem;
    r.rozdelit = true;
    r.zaklad = (celkem - dph) * podil;
    r.dph = dph * podil;
    return r;
}

}  // namespace castky
