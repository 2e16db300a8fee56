// Invoices and receivables/liabilities with their items: the lists of the current year,
// lookups, deletion with everything that hangs on a document, the VAT of a document and its
// summary per rate, payment forms, and the stock movements that invoice items made.
#include <map>

#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// The VAT summary of the items selected by `column` = id: per rate row, base = Σ total − Σ VAT
// and VAT = Σ VAT, highest rate first, multiplied by `kurz`.
std::vector<FaDphSazba> souhrn(wxSQLite3Database& db, const char* column, int id, double kurz) {
    const wxString sql = wxString::Format(
        "SELECT IFNULL(s.sazba,0), total(p.celkem)-total(p.dph), total(p.dph) FROM fapolozka p "
        "LEFT JOIN dphsazba s ON p.sazbaid=s.id WHERE p.%s=? GROUP BY p.sazbaid ORDER BY IFNULL(s.sazba,0) DESC, "
        "p.sazbaid",
        column);
    std::vector<FaDphSazba> rows;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, id);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) rows.push_back({rs.GetInt(0), rs.GetDouble(1) * kurz, rs.GetDouble(2) * kurz});
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return rows;
}

// The stored rate of a document; a document in the home currency may carry none.
double kurzOf(double kurz) { return kurz == 0.0 ? 1.0 : kurz; }

}  // namespace

bool DbModel::addFaktura(const Faktura& faktura) { return addFaktura(faktura, true); }

bool DbModel::addFaktura(const Faktura& faktura, bool notify) {
    if (isForeignStorage() || !recordio::insert(m_db, faktura)) return false;
    if (notify) fireUpdated(faktura.vydana() ? NAV_FAKTURY_VYDANE : NAV_FAKTURY_PRIJATE);
    return true;
}

bool DbModel::addZavPoh(const ZavPoh& zavpoh) { return addZavPoh(zavpoh, true); }

bool DbModel::addZavPoh(const ZavPoh& zavpoh, bool notify) {
    if (isForeignStorage() || !recordio::insert(m_db, zavpoh)) return false;
    if (notify) fireUpdated(zavpoh.zavazek() ? NAV_ZAVAZKY : NAV_POHLEDAVKY);
    return true;
}

bool DbModel::deleteFaktura(int id) { return deleteFaktura(id, true); }

// The payments' journal entries, the stock movements, the items and the invoice go together
// or not at all. The database would cascade items and payment rows, but not the journal
// entries the payments wrote.
bool DbModel::deleteFaktura(int id, bool notify) {
    if (isForeignStorage()) return false;
    const Faktura f = getFaktura(id);
    if (!f.isValid()) return false;
    try {
        WriteTransaction tx(m_db);
        if (!deleteUhradaByFakturaId(id) || !deletePohybyzasobByFakturaId(id) || !deleteFaPolozkyByFakturaId(id) ||
            !sqlvalue::execute(m_db, "DELETE FROM faktura WHERE id=?", id))
            return false;
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("deleteFaktura", e);
        return false;
    }
    // Paid documents leave the journal too.
    if (notify) fireUpdated(NAV_ALL);
    return true;
}

bool DbModel::deleteZavPoh(int id) { return deleteZavPoh(id, true); }

bool DbModel::deleteZavPoh(int id, bool notify) {
    if (isForeignStorage()) return false;
    if (!getZavPoh(id).isValid()) return false;
    try {
        WriteTransaction tx(m_db);
        if (!deleteUhradaByZavpohId(id) || !deleteFaPolozkyByZavpohId(id) ||
            !sqlvalue::execute(m_db, "DELETE FROM zavpoh WHERE id=?", id))
            return false;
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("deleteZavPoh", e);
        return false;
    }
    if (notify) fireUpdated(NAV_ALL);
    return true;
}

lxFakturaArray DbModel::vystavene() {
    if (isForeignStorage()) return {};
    return recordio::query<Faktura>(m_db, "SELECT * FROM faktura WHERE obdobirok=? AND vydana=1 ORDER BY cislo, id",
                                    currentRok());
}

lxFakturaArray DbModel::prijate() {
    if (isForeignStorage()) return {};
    return recordio::query<Faktura>(
        m_db, "SELECT * FROM faktura WHERE obdobirok=? AND IFNULL(vydana,0)<>1 ORDER BY cislo, id", currentRok());
}

lxZavPohArray DbModel::zavazky() {
    if (isForeignStorage()) return {};
    return recordio::query<ZavPoh>(m_db, "SELECT * FROM zavpoh WHERE obdobirok=? AND zavazek=1 ORDER BY cislo, id",
                                   currentRok());
}

lxZavPohArray DbModel::pohledavky() {
    if (isForeignStorage()) return {};
    return recordio::query<ZavPoh>(
        m_db, "SELECT * FROM zavpoh WHERE obdobirok=? AND IFNULL(zavazek,0)<>1 ORDER BY cislo, id", currentRok());
}

bool DbModel::isFakturaVydana(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0, "SELECT vydana FROM faktura WHERE id=?", id) == 1;
}

wxDateTime DbModel::getFakturaVystaveni(int id) { return getFaktura(id).vystaveni(); }

wxString DbModel::getFakturaCisloById(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT cislo FROM faktura WHERE id=?", id);
}

wxString DbModel::getZavPohCisloById(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT cislo FROM zavpoh WHERE id=?", id);
}

lxFaPolozkaArray DbModel::fapolozkyByFakturaId(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<FaPolozka>(m_db, "SELECT * FROM fapolozka WHERE fakturaid=? ORDER BY id", id);
}

lxFaPolozkaArray DbModel::fapolozkyByZavpohId(int id) {
    if (isForeignStorage()) return {};
    return recordio::query<FaPolozka>(m_db, "SELECT * FROM fapolozka WHERE zavpohid=? ORDER BY id", id);
}

bool DbModel::deleteFaPolozkyByFakturaId(int id) {
    return !isForeignStorage() && sqlvalue::execute(m_db, "DELETE FROM fapolozka WHERE fakturaid=?", id);
}

bool DbModel::deleteFaPolozkyByZavpohId(int id) {
    return !isForeignStorage() && sqlvalue::execute(m_db, "DELETE FROM fapolozka WHERE zavpohid=?", id);
}

double DbModel::dphFaktury(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0, "SELECT total(dph) FROM fapolozka WHERE fakturaid=?", id);
}

double DbModel::dphZavPoh(int id) {
    if (isForeignStorage()) return 0;
    return sqlvalue::real(m_db, 0, "SELECT total(dph) FROM fapolozka WHERE zavpohid=?", id);
}

std::vector<FaDphSazba> DbModel::dphFakturaSouhrn(int id, bool inCurrency) {
    if (isForeignStorage()) return {};
    const double kurz = inCurrency ? kurzOf(getFaktura(id).kurz()) : 1.0;
    return souhrn(m_db, "fakturaid", id, kurz);
}

// The rate is read from the invoice that has the receivable's id: the program has always done
// so, and saved summaries of older files were made that way. Without such an invoice the
// amounts stay as they are.
std::vector<FaDphSazba> DbModel::dphZavPohSouhrn(int id, bool inCurrency) {
    if (isForeignStorage()) return {};
    const double kurz = inCurrency ? kurzOf(sqlvalue::real(m_db, 1.0, "SELECT kurz FROM faktura WHERE id=?", id)) : 1.0;
    return souhrn(m_db, "zavpohid", id, kurz);
}

bool DbModel::deleteFauhrada(int id) { return deleteFaUhrada(id); }

bool DbModel::faUhradaPokladnou(int id) {
    if (isForeignStorage()) return false;
    return sqlvalue::integer(m_db, 0, "SELECT pokladnou FROM fauhrada WHERE id=?", id) == 1;
}

int DbModel::firstFaUhrada() {
    if (isForeignStorage()) return -1;
    return sqlvalue::integer(m_db, -1, "SELECT id FROM fauhrada ORDER BY id LIMIT 1");
}

// The items whose movements go get their cached state recomputed without them.
bool DbModel::deletePohybyzasobByFakturaId(int id) {
    if (isForeignStorage()) return false;
    const std::vector<int> zasoby =
        sqlvalue::integers(m_db, "SELECT DISTINCT zasobaid FROM pohybzasob WHERE fakturaid=?", id);
    if (!sqlvalue::execute(m_db, "DELETE FROM pohybzasob WHERE fakturaid=?", id)) return false;
    for (int zasobaid : zasoby)
        if (!updateStavZasob(zasobaid)) return false;
    return true;
}

bool DbModel::editPohybzasobDatum(int fakturaid, const wxDateTime& datum) {
    if (isForeignStorage() || !datum.IsValid()) return false;
    return sqlvalue::execute(m_db, "UPDATE pohybzasob SET datum=? WHERE fakturaid=?", datum, fakturaid);
}
