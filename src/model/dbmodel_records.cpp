// The common operations of every record family: add, edit, get, has and delete, written
// once over the record's field list, and the page each family's changes refresh.
#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

// The page that shows a family's rows; its changes refresh that page.
template <class R>
int navigationOf(DbModel&, const R&);

#define EVIDA_NAV(R, code) \
    template <>            \
    int navigationOf<R>(DbModel&, const R&) { return code; }
EVIDA_NAV(Adresa, NAV_ALL)
EVIDA_NAV(Kontakt, NAV_ALL)
EVIDA_NAV(Obdobi, NAV_ALL)
EVIDA_NAV(Pokladna, NAV_POKLADNA)
EVIDA_NAV(Banka, NAV_BANKA)
EVIDA_NAV(Predkontace, NAV_DENIK)
EVIDA_NAV(FaUhrada, NAV_NONE)
EVIDA_NAV(Uhrada, NAV_ALL)
EVIDA_NAV(Majetek, NAV_MAJETEK)
EVIDA_NAV(Odpis, NAV_MAJETEK)
EVIDA_NAV(Settings, NAV_NONE)
EVIDA_NAV(Sklad, NAV_ZASOBY)
EVIDA_NAV(Zasoba, NAV_ZASOBY)
EVIDA_NAV(Pohybzasob, NAV_ZASOBY)
EVIDA_NAV(Inventura, NAV_ZASOBY)
EVIDA_NAV(IvPolozka, NAV_ZASOBY)
EVIDA_NAV(Ridic, NAV_JIZDY)
EVIDA_NAV(Vozidlo, NAV_JIZDY)
EVIDA_NAV(Jizda, NAV_JIZDY)
EVIDA_NAV(Odeslany, NAV_NONE)
EVIDA_NAV(Ulozene, NAV_NONE)
EVIDA_NAV(Kurz, NAV_NONE)
EVIDA_NAV(Odpiskupina, NAV_MAJETEK)
EVIDA_NAV(Phm, NAV_JIZDY)
EVIDA_NAV(DruhVozidla, NAV_JIZDY)
EVIDA_NAV(CenaPhm, NAV_JIZDY)
EVIDA_NAV(NahradaKm, NAV_JIZDY)
#undef EVIDA_NAV

template <>
int navigationOf<Faktura>(DbModel&, const Faktura& f) {
    return f.vydana() ? NAV_FAKTURY_VYDANE : NAV_FAKTURY_PRIJATE;
}
template <>
int navigationOf<ZavPoh>(DbModel&, const ZavPoh& z) {
    return z.zavazek() ? NAV_ZAVAZKY : NAV_POHLEDAVKY;
}
// A journal entry that pays a document changes that document's page too (paid or unpaid).
template <>
int navigationOf<Denik>(DbModel& m, const Denik& d) {
    return d.isValid() && m.isDenikUhrada(d.id()) ? NAV_ALL : NAV_DENIK;
}
// An item belongs to the page of its invoice or receivable/liability.
template <>
int navigationOf<FaPolozka>(DbModel& m, const FaPolozka& p) {
    const Faktura f = p.fakturaid() > 0 ? m.getFaktura(p.fakturaid()) : Faktura();
    if (f.isValid()) return navigationOf(m, f);
    const ZavPoh z = p.zavpohid() > 0 ? m.getZavPoh(p.zavpohid()) : ZavPoh();
    if (z.isValid()) return navigationOf(m, z);
    return NAV_NONE;
}

template <class R, class Key>
bool hasRow(wxSQLite3Database& db, const Key& key) {
    const wxString sql = wxString::Format("SELECT count(*) FROM %s WHERE %s=?", R::TABLE, R::KEY);
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, key);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        return rs.NextRow() && rs.GetInt(0) > 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

template <class R, class Key>
bool deleteRow(wxSQLite3Database& db, const Key& key) {
    const wxString sql = wxString::Format("DELETE FROM %s WHERE %s=?", R::TABLE, R::KEY);
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, key);
        return st.ExecuteUpdate() > 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

} // namespace

#define EVIDA_DEFINE_GET(R, Key)                                                     \
    R DbModel::get##R(Key key) {                                                     \
        if (isForeignStorage()) return R();                                          \
        return recordio::get<R>(m_db, key);                                          \
    }                                                                                \
    bool DbModel::has##R(Key key) { return !isForeignStorage() && hasRow<R>(m_db, key); }

#define EVIDA_DEFINE_ADD(R)                                                          \
    bool DbModel::add##R(const R& record) {                                          \
        if (isForeignStorage() || !recordio::insert(m_db, record)) return false;     \
        fireUpdated(navigationOf(*this, record));                                    \
        return true;                                                                 \
    }

#define EVIDA_DEFINE_EDIT(R)                                                         \
    bool DbModel::edit##R(const R& record) {                                         \
        if (isForeignStorage() || !recordio::update(m_db, record)) return false;     \
        fireUpdated(navigationOf(*this, record));                                    \
        return true;                                                                 \
    }

#define EVIDA_DEFINE_DELETE(R, Key)                                                  \
    bool DbModel::delete##R(Key key) {                                               \
        if (isForeignStorage()) return false;                                        \
        const R record = get##R(key);                                                \
        /* Asked before the row goes: its links (payments) go with it. */            \
        const int navigation = navigationOf(*this, record);                          \
        if (!deleteRow<R>(m_db, key)) return false;                                  \
        fireUpdated(navigation);                                                     \
        return true;                                                                 \
    }

#define EVIDA_DEFINE_FAMILY(R) \
    EVIDA_DEFINE_GET(R, int)   \
    EVIDA_DEFINE_ADD(R)        \
    EVIDA_DEFINE_EDIT(R)       \
    EVIDA_DEFINE_DELETE(R, int)

EVIDA_DEFINE_FAMILY(Adresa)
EVIDA_DEFINE_FAMILY(Kontakt)
// Deleting registers, accounts and pre-postings and writing journal entries follow their own
// rules (dbmodel_denik.cpp, dbmodel_pokladna.cpp).
EVIDA_DEFINE_GET(Pokladna, int)
EVIDA_DEFINE_ADD(Pokladna)
EVIDA_DEFINE_EDIT(Pokladna)
EVIDA_DEFINE_GET(Banka, int)
EVIDA_DEFINE_ADD(Banka)
EVIDA_DEFINE_EDIT(Banka)
EVIDA_DEFINE_GET(Predkontace, int)
EVIDA_DEFINE_ADD(Predkontace)
EVIDA_DEFINE_EDIT(Predkontace)
EVIDA_DEFINE_GET(Denik, int)
EVIDA_DEFINE_DELETE(Denik, int)
// Invoices and receivables/liabilities are added and deleted with their dependent rows
// (fakturace/dbmodel_faktura.cpp).
EVIDA_DEFINE_GET(Faktura, int)
EVIDA_DEFINE_EDIT(Faktura)
EVIDA_DEFINE_GET(ZavPoh, int)
EVIDA_DEFINE_EDIT(ZavPoh)
EVIDA_DEFINE_FAMILY(FaPolozka)
EVIDA_DEFINE_FAMILY(FaUhrada)
EVIDA_DEFINE_FAMILY(Uhrada)
EVIDA_DEFINE_FAMILY(Majetek)
EVIDA_DEFINE_FAMILY(Odpis)
EVIDA_DEFINE_FAMILY(Settings)
EVIDA_DEFINE_FAMILY(Sklad)
EVIDA_DEFINE_FAMILY(Zasoba)
EVIDA_DEFINE_FAMILY(Pohybzasob)
EVIDA_DEFINE_FAMILY(Inventura)
EVIDA_DEFINE_FAMILY(IvPolozka)
EVIDA_DEFINE_FAMILY(Ridic)
EVIDA_DEFINE_FAMILY(Vozidlo)
EVIDA_DEFINE_FAMILY(Jizda)
EVIDA_DEFINE_FAMILY(Odeslany)
EVIDA_DEFINE_FAMILY(Ulozene)
EVIDA_DEFINE_FAMILY(Odpiskupina)
EVIDA_DEFINE_FAMILY(Phm)
EVIDA_DEFINE_FAMILY(DruhVozidla)
EVIDA_DEFINE_FAMILY(CenaPhm)
EVIDA_DEFINE_FAMILY(NahradaKm)
// Rates: hasKurz(id) knows daily rates only; the yearly single rates are looked up by year.
Kurz DbModel::getKurz(int key) { return isForeignStorage() ? Kurz() : recordio::get<Kurz>(m_db, key); }
bool DbModel::hasKurz(int key) {
    return !isForeignStorage() &&
           recordio::queryOne<Kurz>(m_db, "SELECT * FROM kurz WHERE id=? AND jednotny=0", key).isValid();
}
EVIDA_DEFINE_ADD(Kurz)
EVIDA_DEFINE_EDIT(Kurz)
EVIDA_DEFINE_DELETE(Kurz, int)
// Periods: adding one also caches the current year (dbmodel_obdobi.cpp).
EVIDA_DEFINE_GET(Obdobi, int)
EVIDA_DEFINE_EDIT(Obdobi)
bool DbModel::deleteObdobi(int rok) {
    if (isForeignStorage() || !deleteRow<Obdobi>(m_db, rok)) return false;
    // Deleting the current period leaves no current year until another one is chosen.
    if (rok == m_currentRok) m_currentRok = -1;
    fireUpdated(NAV_ALL);
    return true;
}

EVIDA_DEFINE_GET(DphSazba, int)
EVIDA_DEFINE_GET(DphDruh, int)
EVIDA_DEFINE_GET(DenikSloupec, int)
EVIDA_DEFINE_GET(Mena, int)
EVIDA_DEFINE_GET(FaTyp, int)
EVIDA_DEFINE_GET(BankovniUstav, int)
EVIDA_DEFINE_GET(Rada, const wxString&)
