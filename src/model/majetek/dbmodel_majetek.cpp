// Fixed assets on the model: filling in the yearly depreciation, the depreciation so far, the
// residual value and the state of the assets at a date.
#include <map>
#include <unordered_map>

#include "clock.h"
#include "dbmodel.h"
#include "odpisy.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

wxString DbModel::majetekTypAsString(int typ) {
    switch (typ) {
        case 1:
            return u8("Dlouhodobý hmotný");
        case 2:
            return u8("Dlouhodobý nehmotný");
        default:
            return u8("Drobný");
    }
}

wxString DbModel::majetekOdpisAsString(int odpis) {
    switch (odpis) {
        case odpisy::BEZ_ODPISU:
            return u8("Bez odpisů");
        case odpisy::ROVNOMERNY:
            return u8("Rovnoměrný");
        case odpisy::ZRYCHLENY:
            return u8("Zrychlený");
        default:
            return u8("Vyloučený");
    }
}

double DbModel::calculateRovnomernyOdpis(double cena, double sazba) { return odpisy::rovnomerny(cena, sazba); }

double DbModel::calculateZrychlenyOdpis(double cena, double koeficient, int rok, int majetekid, int rokPorizeni) {
    return odpisy::zrychleny(cena, koeficient, getOdpisy(majetekid, rok), rok - rokPorizeni);
}

double DbModel::getOdpisy(int majetekid, int rok) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0, "SELECT TOTAL(odpis) FROM odpis WHERE majetekid=? AND rok<=?", majetekid, rok);
}

lxOdpisArray DbModel::odpisyMajetku(int majetekid, int rok) {
    if (isForeignStorage()) return {};
    return recordio::query<Odpis>(m_db, "SELECT * FROM odpis WHERE majetekid=? AND rok<=? ORDER BY rok, id", majetekid,
                                  rok);
}

double DbModel::getZustatkovaCenaMajetku(int majetekid) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0,
                        "SELECT CASE WHEN majetek.odpis=0 OR majetek.odpis=3 THEN 0 ELSE majetek.cena-"
                        "(SELECT TOTAL(odpis.odpis) FROM odpis WHERE odpis.majetekid=?1 AND odpis.rok<=?2) END "
                        "FROM majetek WHERE majetek.id=?1",
                        majetekid, lxutils::today().GetYear());
}

double DbModel::getMajetekStav(const wxDateTime& datum, bool hmotny) {
    if (isForeignStorage() || !datum.IsValid()) return 0;
    // The assets in use on the day: acquired before it and not disposed of; their price less
    // what was depreciated in the years before the day's year.
    return sqlvalue::real(m_db, 0,
                        "SELECT TOTAL(m.cena) - TOTAL((SELECT TOTAL(o.odpis) FROM odpis o "
                        "WHERE o.majetekid=m.id AND o.rok<?2)) FROM majetek m "
                        "WHERE m.porizen<?1 AND IFNULL(m.vyrazen,0)=0 AND (m.typ=1)=?3",
                        datum.FormatISODate(), datum.GetYear(), hmotny ? 1 : 0);
}

bool DbModel::calculateOdpisy() {
    if (isForeignStorage()) return false;
    const int letos = lxutils::today().GetYear();
    struct Polozka {
        int id;
        int rokPorizeni;
        double cena;
        int metoda;
        Odpiskupina skupina;
    };
    std::vector<Polozka> majetky;
    // What is stored already, per asset: year → amount. Read in one pass for all assets.
    std::unordered_map<int, std::map<int, double>> ulozene;
    int posledniId = 0;
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(
            "SELECT m.id, CAST(strftime('%Y', m.porizen) AS INTEGER), m.cena, m.odpis, s.odpisovat, s.rov1, s.rov2, "
            "s.zry1, s.zry2 FROM majetek m JOIN odpiskupina s ON m.skupinaid=s.id "
            "WHERE (m.odpis=1 OR m.odpis=2) AND m.porizen IS NOT NULL");
        while (rs.NextRow()) {
            Polozka p{rs.GetInt(0), rs.GetInt(1), rs.GetDouble(2), rs.GetInt(3), Odpiskupina()};
            p.skupina.setOdpisovat(rs.GetInt(4));
            p.skupina.setRov1(rs.GetDouble(5));
            p.skupina.setRov2(rs.GetDouble(6));
            p.skupina.setZry1(rs.GetDouble(7));
            p.skupina.setZry2(rs.GetDouble(8));
            majetky.push_back(p);
        }
        wxSQLite3ResultSet ors = m_db.ExecuteQuery("SELECT majetekid, rok, odpis FROM odpis");
        while (ors.NextRow()) ulozene[ors.GetInt(0)][ors.GetInt(1)] += ors.GetDouble(2);
        posledniId = m_db.ExecuteScalar("SELECT IFNULL(MAX(id),0) FROM odpis");
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("calculateOdpisy", e);
        return false;
    }

    bool pridano = false;
    try {
        WriteTransaction tx(m_db);
        wxSQLite3Statement st = m_db.PrepareStatement("INSERT INTO odpis(id,rok,odpis,majetekid) VALUES(?,?,?,?)");
        for (const Polozka& p : majetky) {
            if (p.skupina.odpisovat() <= 0) continue;
            const std::map<int, double>& stored = ulozene[p.id];
            // The plan takes the stored years as they are and computes the others from what was
            // really depreciated before them; the years up to this one that lack a row are written.
            for (const odpisy::Rok& r : odpisy::plan(p.cena, p.metoda, p.skupina, p.rokPorizeni, stored)) {
                if (r.rok > letos) break;
                if (r.ulozeny) continue;
                st.Reset();
                recordio::bindValues(st, ++posledniId, r.rok, r.odpis, p.id);
                st.ExecuteUpdate();
                pridano = true;
            }
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("INSERT INTO odpis", e);
        return false;
    }
    if (pridano) fireUpdated(NAV_MAJETEK);
    return true;
}
