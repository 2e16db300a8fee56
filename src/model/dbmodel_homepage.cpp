// The HTML fragments of the home page: income and expense of the current year and the
// unpaid invoices, receivables and liabilities.
#include "dbmodel.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

// "31 458,00 Kč": the Czech form whatever the system locale.
wxString kc(double castka) { return lxformat::formatCastka(castka, wxString::FromUTF8("Kč")); }

// Income or expense of a year by the journal column of each entry's pre-posting. The
// column's own flag decides the direction, so the transit columns 31 and 32 count on the
// side their flag says, not the one their title suggests.
wxString journalSummary(wxSQLite3Database& db, int rok, bool prijem, const char* title) {
    const wxString sql =
        "SELECT total(CASE WHEN s.danovy=1 THEN d.castka ELSE 0 END), total(d.castka) "
        "FROM denik d JOIN predkontace p ON d.predkontaceid=p.id JOIN deniksloupec s ON p.deniksloupecid=s.sloupec "
        "WHERE d.obdobirok=? AND s.prijem=?";
    double danove = 0, celkem = 0;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, rok, prijem ? 1 : 0);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        if (rs.NextRow()) {
            danove = rs.GetDouble(0);
            celkem = rs.GetDouble(1);
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return wxString::FromUTF8(title) + wxString::FromUTF8("Daňové: ") + kc(danove) + "<br>" +
           wxString::FromUTF8("Celkem: ") + kc(celkem) + "<br><br>";
}

// The unpaid documents of a year among `table`'s rows that `direction` picks: how many,
// their total in the home currency and how many are past their due date. A document is
// unpaid while its payments fall short of its total. One query; the payments are summed
// per document by SQLite.
wxString unpaidSummary(wxSQLite3Database& db, int rok, const char* table, const char* paidBy, const char* direction,
                       const char* title) {
    const wxString sql = wxString::Format(
        "SELECT f.celkem, f.kurz, IFNULL(u.uhrazeno,0), f.splatnost FROM %s f "
        "LEFT JOIN (SELECT %s AS dokladid, total(castka) AS uhrazeno FROM uhrada WHERE %s IS NOT NULL GROUP BY %s) u "
        "ON u.dokladid=f.id WHERE f.obdobirok=? AND %s",
        table, paidBy, paidBy, paidBy, direction);
    const wxDateTime dnes = pracovniDen();
    int neuhrazene = 0, poSplatnosti = 0;
    double celkem = 0;
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, rok);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            const double castka = rs.IsNull(0) ? 0.0 : rs.GetDouble(0);
            const double uhrazeno = rs.GetDouble(2);
            if (isDokladUhrazen(castka, uhrazeno)) continue;
            // Documents in the home currency may carry no rate at all.
            const double kurz = rs.IsNull(1) || rs.GetDouble(1) == 0.0 ? 1.0 : rs.GetDouble(1);
            ++neuhrazene;
            celkem += castka * kurz;
            wxDateTime splatnost;
            if (!rs.IsNull(3) && splatnost.ParseISODate(rs.GetAsString(3)) &&
                isDokladPoSplatnosti(castka, uhrazeno, splatnost, dnes))
                ++poSplatnosti;
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return wxString::FromUTF8(title) + wxString::Format(wxString::FromUTF8("Neuhrazené: %d<br>"), neuhrazene) +
           wxString::FromUTF8("Celkem: ") + kc(celkem) + "<br>" +
           wxString::Format("Po splatnosti: %d<br>", poSplatnosti) + "<br>";
}

}  // namespace

wxString DbModel::homepagePrijmy() {
    if (isForeignStorage()) return wxString();
    return journalSummary(m_db, currentRok(), true, "<b>Příjmy:</b><br>");
}

wxString DbModel::homepageVydaje() {
    if (isForeignStorage()) return wxString();
    return journalSummary(m_db, currentRok(), false, "<b>Výdaje:</b><br>");
}

wxString DbModel::homepageVydane() {
    if (isForeignStorage()) return wxString();
    return unpaidSummary(m_db, currentRok(), "faktura", "fakturaid", "f.vydana=1", "<b>Vydané faktury:</b><br>");
}

wxString DbModel::homepagePrijate() {
    if (isForeignStorage()) return wxString();
    return unpaidSummary(m_db, currentRok(), "faktura", "fakturaid", "IFNULL(f.vydana,0)<>1",
                         "<b>Přijaté faktury:</b><br>");
}

wxString DbModel::homepagePohledavky() {
    if (isForeignStorage()) return wxString();
    return unpaidSummary(m_db, currentRok(), "zavpoh", "zavpohid", "IFNULL(f.zavazek,0)<>1", "<b>Pohledávky:</b><br>");
}

wxString DbModel::homepageZavazky() {
    if (isForeignStorage()) return wxString();
    return unpaidSummary(m_db, currentRok(), "zavpoh", "zavpohid", "f.zavazek=1", "<b>Závazky:</b><br>");
}
