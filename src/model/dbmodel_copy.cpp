// Copies of records: a new row with a new id and the copied content, named so that it can
// be told apart from the original. Copies with dependent rows (a contact's address, an
// invoice's items) are written in one transaction.
#include <wx/datetime.h>

#include "dbmodel.h"
#include "lxsettings.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

// "<text> (n)" with the smallest n from 1 that no row of the table has in the column.
wxString uniqueCopyName(wxSQLite3Database& db, const wxString& table, const wxString& column, const wxString& text,
                        const wxString& pattern) {
    const wxString sql = wxString::Format("SELECT count(*) FROM %s WHERE %s=?", table, column);
    for (int n = 1;; ++n) {
        const wxString candidate = wxString::Format(pattern, text, n);
        try {
            wxSQLite3Statement st = db.PrepareStatement(sql);
            st.Bind(1, candidate);
            wxSQLite3ResultSet rs = st.ExecuteQuery();
            if (rs.NextRow() && rs.GetInt(0) == 0) return candidate;
        } catch (const wxSQLite3Exception& e) {
            sqllog::error(sql, e);
            return candidate;
        }
    }
}

// The series of a new invoice of the given direction and type (2 = advance invoice).
wxString fakturaRada(bool vydana, int typid) {
    if (vydana) return typid == 2 ? "ZFV" : "FV";
    return typid == 2 ? "ZFP" : "FP";
}

} // namespace

int DbModel::copyKontakt(int id) {
    if (isForeignStorage()) return -1;
    Kontakt kontakt = getKontakt(id);
    if (!kontakt.isValid()) return -1;
    Adresa adresa = getAdresa(kontakt.adresaid());
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        // The copy gets an address of its own, so that editing one does not change the other.
        adresa.setId(getLastId("adresa"));
        if (!recordio::insert(m_db, adresa)) return -1;
        kontakt.setId(getLastId("kontakt"));
        kontakt.setAdresaid(adresa.id());
        kontakt.setNazev(uniqueCopyName(m_db, "kontakt", "nazev", kontakt.nazev(), "%s (%d)"));
        if (!recordio::insert(m_db, kontakt)) return -1;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("copyKontakt", e);
        return -1;
    }
    fireUpdated(NAV_ALL);
    return kontakt.id();
}

int DbModel::copyPredkontace(int id) {
    if (isForeignStorage()) return -1;
    Predkontace p = getPredkontace(id);
    if (!p.isValid()) return -1;
    p.setId(getLastId("predkontace"));
    p.setZkratka(uniqueCopyName(m_db, "predkontace", "zkratka", p.zkratka(), "%s%d"));
    return addPredkontace(p) ? p.id() : -1;
}

int DbModel::copyDenik(int id) {
    if (isForeignStorage()) return -1;
    Denik d = getDenik(id);
    if (!d.isValid()) return -1;
    const bool prijem = getPredkontace(d.predkontaceid()).prijem();
    const bool pokladna = d.pokladnaid() > 0;
    d.setId(getLastId("denik"));
    d.setDatum(lxSettings::instance()->datum());
    d.setCislo(getCisloDokladu(pokladna ? (prijem ? "PP" : "PV") : (prijem ? "BP" : "BV")));
    return addDenik(d) ? d.id() : -1;
}

namespace {

// Fills the number, variable symbol, dates and due date of a copied document as for a new
// one of the same kind.
template <class Document>
void renewDocument(DbModel& model, Document& doc, const wxString& rada) {
    const wxDateTime datum = lxSettings::instance()->datum();
    doc.setCislo(model.getCisloDokladu(rada));
    doc.setVs(wxString::Format("%d", model.getRadaCislo(rada)));
    doc.setVystaveni(datum);
    doc.setDuzp(datum);
    doc.setDppd(datum);
    doc.setSplatnost(datum + wxDateSpan::Days(lxSettings::instance()->splatnost()));
    doc.setObdobirok(model.currentRok());
}

// Copies the items of one document to another; the copies move no stock.
bool copyPolozky(wxSQLite3Database& db, DbModel& model, const char* column, int from, int to) {
    const auto items =
        recordio::query<FaPolozka>(db, wxString::Format("SELECT * FROM fapolozka WHERE %s=? ORDER BY id", column), from);
    int nextId = model.getLastId("fapolozka");
    for (const auto& item : items) {
        FaPolozka copy = *item;
        copy.setId(nextId++);
        if (wxString(column) == "fakturaid") {
            copy.setFakturaid(to);
        } else {
            copy.setZavpohid(to);
        }
        copy.setZasobaid(-1);
        if (!recordio::insert(db, copy)) return false;
    }
    return true;
}

} // namespace

int DbModel::copyFaktura(int id) {
    if (isForeignStorage()) return -1;
    Faktura f = getFaktura(id);
    if (!f.isValid()) return -1;
    renewDocument(*this, f, fakturaRada(f.vydana(), f.typid()));
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        f.setId(getLastId("faktura"));
        if (!recordio::insert(m_db, f) || !copyPolozky(m_db, *this, "fakturaid", id, f.id())) return -1;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("copyFaktura", e);
        return -1;
    }
    fireUpdated(f.vydana() ? NAV_FAKTURY_VYDANE : NAV_FAKTURY_PRIJATE);
    return f.id();
}

int DbModel::copyZavPoh(int id) {
    if (isForeignStorage()) return -1;
    ZavPoh z = getZavPoh(id);
    if (!z.isValid()) return -1;
    renewDocument(*this, z, z.zavazek() ? "ZA" : "PO");
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        z.setId(getLastId("zavpoh"));
        if (!recordio::insert(m_db, z) || !copyPolozky(m_db, *this, "zavpohid", id, z.id())) return -1;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("copyZavPoh", e);
        return -1;
    }
    fireUpdated(z.zavazek() ? NAV_ZAVAZKY : NAV_POHLEDAVKY);
    return z.id();
}

int DbModel::copyMajetek(int id) {
    if (isForeignStorage()) return -1;
    Majetek m = getMajetek(id);
    if (!m.isValid()) return -1;
    m.setId(getLastId("majetek"));
    m.setCislo(getCisloDokladu("MA"));
    m.setNazev(uniqueCopyName(m_db, "majetek", "nazev", m.nazev(), "%s (%d)"));
    return addMajetek(m) ? m.id() : -1;
}

int DbModel::copyZasoba(int id) {
    if (isForeignStorage()) return -1;
    Zasoba z = getZasoba(id);
    if (!z.isValid()) return -1;
    z.setId(getLastId("zasoba"));
    z.setCislo(getCisloDokladu("ZB"));
    z.setNazev(uniqueCopyName(m_db, "zasoba", "nazev", z.nazev(), "%s (%d)"));
    // A new item has no movements yet, so nothing in stock.
    z.setPocet(0);
    z.setCelkem(0);
    return addZasoba(z) ? z.id() : -1;
}

int DbModel::copyVozidlo(int id) {
    if (isForeignStorage()) return -1;
    Vozidlo v = getVozidlo(id);
    if (!v.isValid()) return -1;
    v.setId(getLastId("vozidlo"));
    v.setJmeno(uniqueCopyName(m_db, "vozidlo", "jmeno", v.jmeno(), "%s (%d)"));
    // The plate identifies a vehicle, so the copy gets one of its own too.
    v.setRz(uniqueCopyName(m_db, "vozidlo", "rz", v.rz(), "%s (%d)"));
    return addVozidlo(v) ? v.id() : -1;
}

int DbModel::copyJizda(int id) {
    if (isForeignStorage()) return -1;
    Jizda j = getJizda(id);
    if (!j.isValid()) return -1;
    j.setId(getLastId("jizda"));
    return addJizda(j) ? j.id() : -1;
}
