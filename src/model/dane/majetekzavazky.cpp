#include "majetekzavazky.h"

#include "dbmodel.h"
#include "sqlvalue.h"

namespace {

// The journal column of wages.
constexpr int SLOUPEC_MZDY = 16;

double zasoby(DbModel& model, const wxDateTime& datum) {
    double celkem = 0;
    for (const DbModel::StavZasoby& s : model.getZasobyStav(datum)) celkem += s.celkem;
    return celkem;
}

}  // namespace

const std::vector<MajetekZavazkyRadek>& majetekZavazkyRadky() {
    static const std::vector<MajetekZavazkyRadek> radky = {
        {"Hmotný majetek", "kc_dpfmz02", "kc_z_dpfmz02"},
        {"Peněžní prostředky v hotovosti", "kc_dpfmz05a", "kc_z_dpfmz05a"},
        {"Peněžní prostředky na bankovních účtech", "kc_dpfmz06", "kc_z_dpfmz06"},
        {"Zásoby", "kc_dpfmz03", "kc_z_dpfmz03"},
        {"Pohledávky včetně poskytnutých úvěrů a zápůjček", "kc_dpfmz04", "kc_z_dpfmz04"},
        {"Ostatní majetek", "kc_dpfmz08", "kc_z_dpfmz08"},
        {"Dluhy včetně přijatých úvěrů a zápůjček", "kc_dpfmz10", "kc_z_dpfmz10"},
        {"Rezervy", "kc_dpfmz11", "kc_z_dpfmz11"},
        {"Mzdy", "kc_dpfmz18", nullptr},
    };
    return radky;
}

double MajetekZavazky::hodnota(const char* atribut) const {
    const auto it = hodnoty.find(atribut);
    return it == hodnoty.end() ? 0 : it->second;
}

int rokJednotnychKurzu(int rok, int letos) { return rok < letos ? rok : rok - 1; }

MajetekZavazky nacistMajetekZavazky(DbModel& model, int rok) {
    MajetekZavazky m;
    m.rok = rok;
    // The beginning is the state before the year's first day, the end the state before the
    // next year's first day.
    const wxDateTime zacatek(1, wxDateTime::Jan, rok), konec(1, wxDateTime::Jan, rok + 1);
    auto& h = m.hodnoty;
    h["kc_dpfmz02"] = model.getMajetekStav(zacatek, true);
    h["kc_z_dpfmz02"] = model.getMajetekStav(konec, true);
    h["kc_dpfmz05a"] = model.getPokladnyStav(zacatek);
    h["kc_z_dpfmz05a"] = model.getPokladnyStav(konec);
    h["kc_dpfmz06"] = model.getBankyStav(zacatek);
    h["kc_z_dpfmz06"] = model.getBankyStav(konec);
    h["kc_dpfmz03"] = zasoby(model, zacatek);
    h["kc_z_dpfmz03"] = zasoby(model, konec);
    h["kc_dpfmz04"] = model.getPohledavkyStav(rok - 1);
    h["kc_z_dpfmz04"] = model.getPohledavkyStav(rok);
    h["kc_dpfmz08"] = model.getMajetekStav(zacatek, false);
    h["kc_z_dpfmz08"] = model.getMajetekStav(konec, false);
    h["kc_dpfmz10"] = model.getZavazkyStav(rok - 1);
    h["kc_z_dpfmz10"] = model.getZavazkyStav(rok);
    h["kc_dpfmz11"] = 0;
    h["kc_z_dpfmz11"] = 0;
    h["kc_dpfmz18"] = sqlvalue::real(model.db(), 0,
                                     "SELECT TOTAL(d.castka) FROM denik d JOIN predkontace p ON d.predkontaceid=p.id "
                                     "WHERE d.obdobirok=? AND p.deniksloupecid=?",
                                     rok, SLOUPEC_MZDY);
    return m;
}
