#include "odpisy.h"

#include <cmath>

namespace {

// Products of prices and rates in binary floating point fall a hair below a whole number
// (100000 × 0.11 = 10999.999…); the hundredth is taken first so that floor keeps it whole.
double dolu(double value) { return std::floor(std::round(value * 100) / 100); }

}  // namespace

namespace odpisy {

double rovnomerny(double cena, double sazba) { return dolu(cena * sazba / 100); }

double zrychleny(double cena, double koeficient, double dosud, int letOdPorizeni) {
    const double delitel = koeficient - letOdPorizeni;
    if (delitel <= 0) return cena - dosud;
    return dolu(2 * (cena - dosud) / delitel);
}

std::vector<Rok> plan(double cena, int metoda, const Odpiskupina& skupina, int rokPorizeni,
                      const std::map<int, double>& ulozene) {
    std::vector<Rok> roky;
    if (metoda != ROVNOMERNY && metoda != ZRYCHLENY) return roky;
    const int let = skupina.odpisovat();
    double dosud = 0;
    for (int n = 0; n < let; ++n) {
        Rok r;
        r.rok = rokPorizeni + n;
        const auto found = ulozene.find(r.rok);
        if (found != ulozene.end()) {
            r.odpis = found->second;
            r.ulozeny = true;
        } else if (n == let - 1) {
            // The last year takes what is left, so the rounding down of the earlier years is
            // made good and the asset ends at zero.
            r.odpis = cena - dosud;
        } else if (metoda == ROVNOMERNY) {
            r.odpis = rovnomerny(cena, n == 0 ? skupina.rov1() : skupina.rov2());
        } else {
            r.odpis = n == 0 ? dolu(cena / skupina.zry1()) : zrychleny(cena, skupina.zry2(), dosud, n);
        }
        dosud += r.odpis;
        r.zustatek = cena - dosud;
        roky.push_back(r);
    }
    return roky;
}

}  // namespace odpisy
