// Stock: warehouses, items, their movements and stock-takings, and the state of an item at a
// date valued by its method (ocenovani.h). The lists read all the movements they need in one
// query and group them in code.
#include <optional>

#include "dbmodel.h"
#include "ocenovani.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// Movements of the items `where` selects, earlier than `datum` (all of them for an invalid
// date), item by item and by date within an item; `visit(zasobaid, ocenovani, pohyb)` gets
// every one, and items without movements are visited once with `pohyb` null.
template <class Visit>
bool projdiPohyby(wxSQLite3Database& db, const wxString& where, int zasobaid, const wxDateTime& datum,
                  Visit visit) {
    wxString sql =
        "SELECT z.id, z.ocenovani, p.pocet, p.cenamj, p.prijemka, p.id FROM zasoba z LEFT JOIN pohybzasob p "
        "ON p.zasobaid=z.id";
    if (datum.IsValid()) sql += " AND datetime(p.datum) < datetime(?)";
    sql += " " + where + " ORDER BY z.id, datetime(p.datum), p.id";
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        int i = 1;
        if (datum.IsValid()) recordio::bindValue(st, i++, datum);
        if (zasobaid >= 0) st.Bind(i, zasobaid);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            const int id = rs.GetInt(0);
            const int metoda = rs.GetInt(1);
            if (rs.IsNull(5)) {
                visit(id, metoda, nullptr);
                continue;
            }
            const ocenovani::Pohyb p{rs.GetDouble(2), rs.GetDouble(3), rs.GetInt(4) != 0};
            visit(id, metoda, &p);
        }
        return true;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

// The states of the selected items, one per item in id order.
std::vector<DbModel::StavZasoby> stavy(wxSQLite3Database& db, const wxString& where, int zasobaid,
                                       const wxDateTime& datum) {
    std::vector<DbModel::StavZasoby> result;
    std::optional<ocenovani::Prubeh> prubeh;
    const auto uzavrit = [&] {
        if (!prubeh || result.empty()) return;
        const ocenovani::Stav s = prubeh->stav();
        result.back().pocet = s.pocet;
        result.back().celkem = s.celkem;
    };
    projdiPohyby(db, where, zasobaid, datum, [&](int id, int metoda, const ocenovani::Pohyb* p) {
        if (result.empty() || result.back().zasobaid != id) {
            uzavrit();
            result.push_back({id, 0, 0});
            prubeh.emplace(metoda);
        }
        if (p) prubeh->pridat(*p);
    });
    uzavrit();
    return result;
}

wxDateTime datumZTextu(const wxString& text) {
    return text.empty() ? wxDateTime() : recordio::parseDateText(text);
}

}  // namespace

Sklad DbModel::getSklad(const wxString& nazev) {
    if (isForeignStorage()) return Sklad();
    return recordio::queryOne<Sklad>(m_db, "SELECT * FROM sklad WHERE nazev=? ORDER BY id LIMIT 1", nazev);
}

bool DbModel::hasSklad(const wxString& nazev) {
    return !isForeignStorage() && sqlvalue::exists(m_db, "SELECT count(*) FROM sklad WHERE nazev=?", nazev);
}

int DbModel::firstSklad() {
    if (isForeignStorage()) return -1;
    return sqlvalue::integer(m_db, -1, "SELECT id FROM sklad ORDER BY id LIMIT 1");
}

wxString DbModel::getSkladNazevById(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT nazev FROM sklad WHERE id=?", id);
}

lxZasobaArray DbModel::zasobyBySkladId(int skladid) {
    if (isForeignStorage()) return {};
    return recordio::query<Zasoba>(m_db, "SELECT * FROM zasoba WHERE skladid=? ORDER BY cislo, id", skladid);
}

int DbModel::getZasobyCountBySkladId(int skladid) {
    if (isForeignStorage()) return 0;
    return sqlvalue::integer(m_db, 0, "SELECT count(*) FROM zasoba WHERE skladid=?", skladid);
}

lxPohybzasobArray DbModel::pohybyzasobByZasobaId(int zasobaid) {
    if (isForeignStorage()) return {};
    return recordio::query<Pohybzasob>(
        m_db, "SELECT * FROM pohybzasob WHERE zasobaid=? ORDER BY datetime(datum), id", zasobaid);
}

Pohybzasob DbModel::getPohybzasobByFaktura(int zasobaid, int fakturaid) {
    if (isForeignStorage()) return Pohybzasob();
    return recordio::queryOne<Pohybzasob>(
        m_db, "SELECT * FROM pohybzasob WHERE zasobaid=? AND fakturaid=? ORDER BY id LIMIT 1", zasobaid, fakturaid);
}

Pohybzasob DbModel::getPohybzasobByInventura(int zasobaid, int inventuraid) {
    if (isForeignStorage()) return Pohybzasob();
    return recordio::queryOne<Pohybzasob>(
        m_db, "SELECT * FROM pohybzasob WHERE zasobaid=? AND inventuraid=? ORDER BY id LIMIT 1", zasobaid,
        inventuraid);
}

bool DbModel::editPohybzasobDatum(int zasobaid, int fakturaid, const wxDateTime& datum) {
    if (isForeignStorage()) return false;
    return sqlvalue::execute(m_db, "UPDATE pohybzasob SET datum=? WHERE zasobaid=? AND fakturaid=?", datum, zasobaid,
                             fakturaid);
}

bool DbModel::getZasobaStav(int id, const wxDateTime& datum, double* pocet, double* celkem) {
    if (isForeignStorage() || !hasZasoba(id)) return false;
    const StavZasoby s = stavZasobyToDate(id, datum);
    if (pocet) *pocet = s.pocet;
    if (celkem) *celkem = s.celkem;
    return true;
}

DbModel::StavZasoby DbModel::stavZasobyToDate(int id, const wxDateTime& datum) {
    if (isForeignStorage()) return {id, 0, 0};
    const std::vector<StavZasoby> s = stavy(m_db, "WHERE z.id=?", id, datum);
    return s.empty() ? StavZasoby{id, 0, 0} : s.front();
}

std::vector<DbModel::StavZasoby> DbModel::getZasobyStav(const wxDateTime& datum) {
    if (isForeignStorage()) return {};
    return stavy(m_db, wxString(), -1, datum);
}

bool DbModel::setZasobaStav(int id, double pocet, double celkem) {
    if (isForeignStorage()) return false;
    return sqlvalue::execute(m_db, "UPDATE zasoba SET pocet=?, celkem=? WHERE id=?", pocet, celkem, id);
}

// The cached state counts every movement of every year: it is the item's stock now.
bool DbModel::updateStavZasob(int id) {
    if (isForeignStorage() || !hasZasoba(id)) return false;
    const StavZasoby s = stavZasobyToDate(id, wxDateTime());
    return setZasobaStav(id, s.pocet, s.celkem);
}

bool DbModel::changeZasobaOcenovani(int id, int ocenovani) {
    if (isForeignStorage()) return false;
    WriteTransaction tx(m_db);
    if (!sqlvalue::execute(m_db, "UPDATE zasoba SET ocenovani=? WHERE id=?", ocenovani, id) || !updateStavZasob(id))
        return false;
    tx.commit();
    fireUpdated(NAV_ZASOBY);
    return true;
}

double DbModel::zasobaNakupniCena(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0,
                          "SELECT cenamj FROM pohybzasob WHERE zasobaid=? AND prijemka=1 "
                          "ORDER BY datetime(datum) DESC, id DESC LIMIT 1",
                          id);
}

lxInventuraArray DbModel::inventury() {
    if (isForeignStorage()) return {};
    return recordio::query<Inventura>(m_db, "SELECT * FROM inventura WHERE obdobirok=? ORDER BY cislo, id",
                                      currentRok());
}

lxIvPolozkaArray DbModel::ivpolozkyByInventuraId(int inventuraid) {
    if (isForeignStorage()) return {};
    return recordio::query<IvPolozka>(m_db, "SELECT * FROM ivpolozka WHERE inventuraid=? ORDER BY id", inventuraid);
}

bool DbModel::inventuraIncludedZasoba(int inventuraid, int zasobaid) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM ivpolozka WHERE inventuraid=? AND zasobaid=?", inventuraid,
                            zasobaid);
}

wxDateTime DbModel::getInventuraLastDateForZasoba(int zasobaid) {
    if (isForeignStorage()) return wxDateTime();
    return datumZTextu(sqlvalue::text(m_db,
                                      "SELECT i.datum FROM inventura i JOIN ivpolozka v ON v.inventuraid=i.id "
                                      "WHERE v.zasobaid=? AND i.obdobirok=? ORDER BY datetime(i.datum) DESC LIMIT 1",
                                      zasobaid, currentRok()));
}

wxDateTime DbModel::getInventuraLastDateForSklad(int skladid) {
    if (isForeignStorage()) return wxDateTime();
    return datumZTextu(sqlvalue::text(
        m_db, "SELECT datum FROM inventura WHERE skladid=? AND obdobirok=? ORDER BY datetime(datum) DESC LIMIT 1",
        skladid, currentRok()));
}
