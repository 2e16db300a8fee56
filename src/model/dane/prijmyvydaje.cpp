#include "prijmyvydaje.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

double soucet(const std::vector<PrijmyVydaje::Radek>& radky) {
    double s = 0;
    for (const auto& r : radky) s += r.castka;
    return s;
}

}  // namespace

double PrijmyVydaje::prijmyCelkem() const { return soucet(prijmy); }

double PrijmyVydaje::vydajeCelkem() const {
    if (!pausal) return soucet(vydaje);
    double s = 0;
    for (const Pausal& p : pausalni) s += p.castka;
    return s;
}

PrijmyVydaje prijmyVydaje(DbModel& model, int rok, bool pausal) {
    PrijmyVydaje p;
    p.rok = rok;
    p.pausal = pausal;
    std::map<int, const DenikSloupec*> sloupce;
    const lxDenikSloupecArray vsechnySloupce = model.deniksloupce();
    for (const auto& s : vsechnySloupce) sloupce.emplace(s->sloupec(), s.get());
    std::map<int, int> sloupecPredkontace;
    for (const auto& k : model.predkontace()) sloupecPredkontace.emplace(k->id(), k->deniksloupecid());

    // Column → sum, for income and expense apart; percentage → flat-rate sum.
    std::map<int, double> prijmy, vydaje;
    std::map<int, double, std::greater<int>> pausalni;
    for (const auto& d : model.danovePrijmyVydajeForRok(rok)) {
        const auto k = sloupecPredkontace.find(d->predkontaceid());
        if (k == sloupecPredkontace.end()) continue;
        const auto s = sloupce.find(k->second);
        if (s == sloupce.end()) continue;
        if (s->second->prijem()) {
            prijmy[s->first] += d->castka();
            // The flat-rate expense is the entry's own percentage of its income.
            if (pausal && d->pausal() > 0) pausalni[d->pausal()] += d->castka() * d->pausal() / 100.0;
        } else {
            vydaje[s->first] += d->castka();
        }
    }
    for (const auto& [sloupec, castka] : prijmy) p.prijmy.push_back({sloupce[sloupec]->popis(), castka});
    if (pausal) {
        for (const auto& [procento, castka] : pausalni) p.pausalni.push_back({procento, castka});
    } else {
        for (const auto& [sloupec, castka] : vydaje) p.vydaje.push_back({sloupce[sloupec]->popis(), castka});
    }
    return p;
}

std::vector<PrehledRadek> prijmyVydajeRadky(const PrijmyVydaje& p) {
    std::vector<PrehledRadek> rows;
    for (const auto& r : p.prijmy) rows.push_back({u8("Daňové příjmy"), r.popis, r.castka});
    rows.push_back({u8("Daňové příjmy"), u8("Celkem"), p.prijmyCelkem()});
    const wxString vydaje = p.pausal ? u8("Paušální výdaje") : u8("Daňové výdaje");
    if (p.pausal) {
        for (const auto& r : p.pausalni) rows.push_back({vydaje, wxString::Format("%d %%", r.procento), r.castka});
    } else {
        for (const auto& r : p.vydaje) rows.push_back({vydaje, r.popis, r.castka});
    }
    rows.push_back({vydaje, u8("Celkem"), p.vydajeCelkem()});
    rows.push_back({p.zisk() >= 0 ? u8("Zisk") : u8("Ztráta"), wxString(), std::fabs(p.zisk())});
    return rows;
}
