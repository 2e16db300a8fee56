// Whole lists of the code lists and books, lookups of a row by the text the user typed,
// and the checks that tell the dialogs whether a code-list row is still referenced.
#include <initializer_list>

#include "dbmodel.h"
#include "recordio.h"
#include "sqlvalue.h"

namespace {

// Id of the row whose text column holds exactly `value`, or -1. Codes should be unique;
// when a file holds duplicates anyway the oldest row wins.
int idByText(wxSQLite3Database& db, const char* table, const char* column, const wxString& value) {
    return sqlvalue::integer(
        db, -1, wxString::Format("SELECT id FROM %s WHERE %s=? ORDER BY id LIMIT 1", table, column), value);
}

// Whether any of `tables` has a row whose `column` is `id`; one statement over all of them.
bool referencedIn(wxSQLite3Database& db, std::initializer_list<const char*> tables, const char* column, int id) {
    // Every ":id" is the same parameter, bound once.
    wxString tests;
    for (const char* table : tables) {
        if (!tests.empty()) tests += " OR ";
        tests += wxString::Format("EXISTS(SELECT 1 FROM %s WHERE %s=:id)", table, column);
    }
    return sqlvalue::exists(db, "SELECT " + tests, id);
}

}  // namespace

// Contact 0 is the permanent "no counterparty" row, not a contact anybody picks.
lxKontaktArray DbModel::kontakty() {
    if (isForeignStorage()) return {};
    return recordio::query<Kontakt>(m_db, "SELECT * FROM kontakt WHERE id<>0 ORDER BY nazev COLLATE NOCASE, id");
}

lxPokladnaArray DbModel::pokladny() {
    if (isForeignStorage()) return {};
    return recordio::query<Pokladna>(m_db, "SELECT * FROM pokladna ORDER BY zkratka COLLATE NOCASE, id");
}

lxBankaArray DbModel::banky() {
    if (isForeignStorage()) return {};
    return recordio::query<Banka>(m_db, "SELECT * FROM banka ORDER BY zkratka COLLATE NOCASE, id");
}

lxPredkontaceArray DbModel::predkontace() {
    if (isForeignStorage()) return {};
    return recordio::query<Predkontace>(m_db, "SELECT * FROM predkontace ORDER BY zkratka COLLATE NOCASE, id");
}

lxDenikSloupecArray DbModel::deniksloupce() {
    if (isForeignStorage()) return {};
    return recordio::query<DenikSloupec>(m_db, "SELECT * FROM deniksloupec ORDER BY sloupec");
}

lxFaUhradaArray DbModel::fauhrady() {
    if (isForeignStorage()) return {};
    return recordio::query<FaUhrada>(m_db, "SELECT * FROM fauhrada ORDER BY id");
}

lxFaTypArray DbModel::fatypy() {
    if (isForeignStorage()) return {};
    return recordio::query<FaTyp>(m_db, "SELECT * FROM fatyp ORDER BY id");
}

lxSkladArray DbModel::sklady() {
    if (isForeignStorage()) return {};
    return recordio::query<Sklad>(m_db, "SELECT * FROM sklad ORDER BY nazev COLLATE NOCASE, id");
}

lxZasobaArray DbModel::zasoby() {
    if (isForeignStorage()) return {};
    return recordio::query<Zasoba>(m_db, "SELECT * FROM zasoba ORDER BY cislo, id");
}

lxMajetekArray DbModel::majetky() {
    if (isForeignStorage()) return {};
    return recordio::query<Majetek>(m_db, "SELECT * FROM majetek ORDER BY cislo, id");
}

lxOdpiskupinaArray DbModel::odpiskupiny() {
    if (isForeignStorage()) return {};
    return recordio::query<Odpiskupina>(m_db, "SELECT * FROM odpiskupina ORDER BY id");
}

lxRidicArray DbModel::ridici() {
    if (isForeignStorage()) return {};
    return recordio::query<Ridic>(m_db, "SELECT * FROM ridic ORDER BY jmeno COLLATE NOCASE, id");
}

lxVozidloArray DbModel::vozidla() {
    if (isForeignStorage()) return {};
    return recordio::query<Vozidlo>(m_db, "SELECT * FROM vozidlo ORDER BY rz COLLATE NOCASE, id");
}

lxPhmArray DbModel::phm() {
    if (isForeignStorage()) return {};
    return recordio::query<Phm>(m_db, "SELECT * FROM phm ORDER BY id");
}

lxDruhVozidlaArray DbModel::druhyVozidel() {
    if (isForeignStorage()) return {};
    return recordio::query<DruhVozidla>(m_db, "SELECT * FROM druhvozidla ORDER BY id");
}

lxOdeslanyArray DbModel::odeslane() {
    if (isForeignStorage()) return {};
    return recordio::query<Odeslany>(m_db, "SELECT * FROM odeslany ORDER BY cas, id");
}

lxDphDruhArray DbModel::dphdruhy() {
    if (isForeignStorage()) return {};
    return recordio::query<DphDruh>(m_db, "SELECT * FROM dphdruh ORDER BY id");
}

// The rates of a year, highest first. The zero rate (id 0, no year) is not among them;
// the callers that offer it append it themselves.
lxDphSazbaArray DbModel::dphsazby(int rok) {
    if (isForeignStorage()) return {};
    return recordio::query<DphSazba>(m_db, "SELECT * FROM dphsazba WHERE rok=? ORDER BY sazba DESC, id", rok);
}

int DbModel::getKontaktIdByNazev(const wxString& nazev) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "kontakt", "nazev", nazev);
}

int DbModel::getPokladnaIdByZkratka(const wxString& zkratka) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "pokladna", "zkratka", zkratka);
}

int DbModel::getBankaIdByZkratka(const wxString& zkratka) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "banka", "zkratka", zkratka);
}

int DbModel::getPredkontaceIdByZkratka(const wxString& zkratka) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "predkontace", "zkratka", zkratka);
}

int DbModel::getVozidloIdByRz(const wxString& rz) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "vozidlo", "rz", rz);
}

// Some classifications ("R24", "R0P") exist twice, for different validity or direction;
// the first one is returned.
int DbModel::getDphDruhIdByZkratka(const wxString& zkratka) {
    if (isForeignStorage()) return -1;
    return idByText(m_db, "dphdruh", "zkratka", zkratka);
}

bool DbModel::isPokladnaUsed(int id) {
    if (isForeignStorage()) return false;
    return referencedIn(m_db, {"denik", "faktura", "zavpoh"}, "pokladnaid", id);
}

bool DbModel::isBankaUsed(int id) {
    if (isForeignStorage()) return false;
    return referencedIn(m_db, {"denik", "faktura", "zavpoh"}, "bankaid", id);
}

bool DbModel::isPredkontaceUsed(int id) {
    if (isForeignStorage()) return false;
    return referencedIn(m_db, {"denik", "faktura", "zavpoh"}, "predkontaceid", id);
}

bool DbModel::isFauhradaUsed(int id) {
    if (isForeignStorage()) return false;
    return referencedIn(m_db, {"faktura", "zavpoh"}, "uhradaid", id);
}

// A warehouse is in use while it holds stock items or has stock-takings.
bool DbModel::isSkladUsed(int id) {
    if (isForeignStorage()) return false;
    return referencedIn(m_db, {"zasoba", "inventura"}, "skladid", id);
}
