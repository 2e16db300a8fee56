// Cash registers and bank accounts: lookups by code, the rules for deleting them, their
// balances and the list of Czech bank codes. There is no stored balance: every balance is a
// sum over the journal, where an entry whose pre-posting is income adds and any other
// entry subtracts.
#include <wx/datetime.h>

#include <cmath>

#include "dbmodel.h"
#include "lxformat.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// The signed amount of an entry d joined with its pre-posting p; `amount` is a column of d.
wxString signedAmount(const char* amount) {
    return wxString::Format("CASE WHEN p.prijem=1 THEN d.%s ELSE -d.%s END", amount, amount);
}

// The all-years balance of one register or account r in its own currency: home-currency
// registers sum the home amounts, the others the foreign amounts.
wxString balanceSql(const char* table, const char* column, const char* condition) {
    return wxString::Format(
        "SELECT total(CASE WHEN r.menaid=1 THEN %s ELSE %s END) FROM denik d JOIN %s r ON d.%s=r.id "
        "LEFT JOIN predkontace p ON d.predkontaceid=p.id WHERE d.%s=?%s",
        signedAmount("castka"), signedAmount("castkacizi"), table, column, column, condition);
}

// The home-currency total of every existing register (or account) before a date. Dates are
// stored as ISO text, which sorts as the days do (a date with a time of day sorts after the
// plain day), so the text is compared as it is rather than through date() on every row.
wxString totalBeforeSql(const char* table, const char* column) {
    return wxString::Format(
        "SELECT total(%s) FROM denik d JOIN %s r ON d.%s=r.id LEFT JOIN predkontace p ON d.predkontaceid=p.id "
        "WHERE d.datum<?",
        signedAmount("castka"), table, column);
}

// A sum read by `sql` with its "?" bound to `args`; 0 for no row or a failing statement.
template <class... Args>
double sum(wxSQLite3Database& db, const wxString& sql, const Args&... args) {
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        recordio::bindValues(st, args...);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        // Adding 0.0 turns a negative zero into zero, so that it never prints as "-0.00".
        if (rs.NextRow() && !rs.IsNull(0)) return rs.GetDouble(0) + 0.0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return 0.0;
}

bool deleteById(wxSQLite3Database& db, const char* table, int id) {
    const wxString sql = wxString::Format("DELETE FROM %s WHERE id=?", table);
    try {
        wxSQLite3Statement st = db.PrepareStatement(sql);
        st.Bind(1, id);
        return st.ExecuteUpdate() > 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
}

// The balances of every register and account in one pass over the journal: the entries are
// summed per register and account first, in both currencies, and each register then takes
// the sum of its own currency.
const char* const ALL_BALANCES =
    "WITH s AS MATERIALIZED (SELECT d.pokladnaid AS pid, d.bankaid AS bid, "
    "total(CASE WHEN p.prijem=1 THEN d.castka ELSE -d.castka END) AS doma, "
    "total(CASE WHEN p.prijem=1 THEN d.castkacizi ELSE -d.castkacizi END) AS cizi "
    "FROM denik d LEFT JOIN predkontace p ON d.predkontaceid=p.id GROUP BY d.pokladnaid, d.bankaid) "
    "SELECT 0 AS banka, r.id AS id, r.zkratka AS zkratka, r.popis AS popis, m.kod AS mena, "
    "(SELECT total(CASE WHEN r.menaid=1 THEN s.doma ELSE s.cizi END) FROM s WHERE s.pid=r.id) AS stav "
    "FROM pokladna r LEFT JOIN mena m ON r.menaid=m.id "
    "UNION ALL "
    "SELECT 1, b.id, b.zkratka, b.popis, m.kod, "
    "(SELECT total(CASE WHEN b.menaid=1 THEN s.doma ELSE s.cizi END) FROM s WHERE s.bid=b.id) "
    "FROM banka b LEFT JOIN mena m ON b.menaid=m.id "
    "ORDER BY banka, zkratka COLLATE NOCASE, id";

// A balance in the Czech form, "1 250,50"; sums that differ from zero only by rounding show
// as 0,00, not -0,00.
wxString formatStav(double stav) { return lxformat::formatCastka(std::fabs(stav) < 0.005 ? 0.0 : stav); }

// The bank codes in code order, each alone or followed by one space and the bank's name.
wxArrayString bankCodes(wxSQLite3Database& db, bool onlyActive, bool withName) {
    wxArrayString kody;
    const wxString sql =
        wxString::Format("SELECT * FROM bankovniustav%s ORDER BY kod, id", onlyActive ? " WHERE aktivni=1" : "");
    for (const auto& u : recordio::query<BankovniUstav>(db, sql))
        kody.Add(withName ? u->kod() + " " + u->nazev() : u->kod());
    return kody;
}

}  // namespace

// ---------------------------------------------------------------- cash registers

Pokladna DbModel::getPokladna(const wxString& zkratka) {
    if (isForeignStorage()) return Pokladna();
    return recordio::queryOne<Pokladna>(m_db, "SELECT * FROM pokladna WHERE zkratka=? ORDER BY id LIMIT 1", zkratka);
}

bool DbModel::hasPokladna(const wxString& zkratka) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM pokladna WHERE zkratka=?", zkratka);
}

wxString DbModel::getPokladnaZkratka(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT zkratka FROM pokladna WHERE id=?", id);
}

bool DbModel::deletePokladna(int id) { return deletePokladna(id, nullptr); }

bool DbModel::deletePokladna(int id, wxString* duvod) {
    if (duvod) duvod->clear();
    if (isForeignStorage()) return false;
    const Pokladna p = getPokladna(id);
    if (!p.isValid()) return false;
    wxString refused;
    if (isPokladnaUsed(id)) {
        refused = wxString::Format(wxString::FromUTF8("Nelze smazat pokladnu\n%s\n%s\nprotože je použita v dokladech"),
                                   p.zkratka(), p.popis());
    } else if (tableRows("pokladna") <= 1) {
        refused = wxString::FromUTF8("Nelze smazat poslední pokladnu,\nv programu musí alespoň jedna existovat");
    }
    if (!refused.empty()) {
        if (duvod) *duvod = refused;
        return false;
    }
    if (!deleteById(m_db, "pokladna", id)) return false;
    fireUpdated(NAV_POKLADNA);
    return true;
}

// ---------------------------------------------------------------- bank accounts

Banka DbModel::getBanka(const wxString& zkratka) {
    if (isForeignStorage()) return Banka();
    return recordio::queryOne<Banka>(m_db, "SELECT * FROM banka WHERE zkratka=? ORDER BY id LIMIT 1", zkratka);
}

bool DbModel::hasBanka(const wxString& zkratka) {
    if (isForeignStorage()) return false;
    return sqlvalue::exists(m_db, "SELECT count(*) FROM banka WHERE zkratka=?", zkratka);
}

wxString DbModel::getBankaZkratka(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT zkratka FROM banka WHERE id=?", id);
}

bool DbModel::deleteBanka(int id) { return deleteBanka(id, nullptr); }

bool DbModel::deleteBanka(int id, wxString* duvod) {
    if (duvod) duvod->clear();
    if (isForeignStorage()) return false;
    const Banka b = getBanka(id);
    if (!b.isValid()) return false;
    wxString refused;
    if (isBankaUsed(id)) {
        refused =
            wxString::Format(wxString::FromUTF8("Nelze smazat bankovní účet\n%s\n%s\nprotože je použit v dokladech"),
                             b.zkratka(), b.popis());
    } else if (tableRows("banka") <= 1) {
        refused = wxString::FromUTF8("Nelze smazat poslední bankovní účet,\nv programu musí alespoň jeden existovat");
    }
    if (!refused.empty()) {
        if (duvod) *duvod = refused;
        return false;
    }
    if (!deleteById(m_db, "banka", id)) return false;
    fireUpdated(NAV_BANKA);
    return true;
}

// ---------------------------------------------------------------- balances

double DbModel::getPokladnaStav(int id) {
    if (isForeignStorage()) return 0.0;
    return sum(m_db, balanceSql("pokladna", "pokladnaid", ""), id);
}

// The opening balance of the current year: everything booked in earlier years.
double DbModel::getPokladnaZustatek(int id) {
    if (isForeignStorage()) return 0.0;
    return sum(m_db, balanceSql("pokladna", "pokladnaid", " AND d.obdobirok<?"), id, currentRok());
}

double DbModel::getPokladnyStav(const wxDateTime& datum) {
    if (isForeignStorage() || !datum.IsValid()) return 0.0;
    return sum(m_db, totalBeforeSql("pokladna", "pokladnaid"), datum.FormatISODate());
}

double DbModel::getBankaStav(int id) {
    if (isForeignStorage()) return 0.0;
    return sum(m_db, balanceSql("banka", "bankaid", ""), id);
}

double DbModel::getBankaZustatek(int id) {
    if (isForeignStorage()) return 0.0;
    return sum(m_db, balanceSql("banka", "bankaid", " AND d.obdobirok<?"), id, currentRok());
}

double DbModel::getBankyStav(const wxDateTime& datum) {
    if (isForeignStorage() || !datum.IsValid()) return 0.0;
    return sum(m_db, totalBeforeSql("banka", "bankaid"), datum.FormatISODate());
}

std::vector<DbModel::StavUctu> DbModel::stavyUctu() {
    std::vector<StavUctu> stavy;
    if (isForeignStorage()) return stavy;
    try {
        wxSQLite3ResultSet rs = m_db.ExecuteQuery(ALL_BALANCES);
        while (rs.NextRow()) {
            stavy.push_back(StavUctu{rs.GetInt(0) == 1, rs.GetInt(1), rs.GetAsString(2), rs.GetAsString(3),
                                     rs.GetAsString(4), rs.GetDouble(5) + 0.0});
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(ALL_BALANCES, e);
        stavy.clear();
    }
    return stavy;
}

wxString DbModel::stavUctuAPokladen() {
    wxString pokladny = "Pokladny:\n";
    wxString banky = "Banky:\n";
    for (const StavUctu& s : stavyUctu()) {
        (s.banka ? banky : pokladny) << s.zkratka << wxString::Format(" (%s): ", s.popis) << formatStav(s.stav) << " "
                                     << s.mena << "\n";
    }
    return pokladny + banky;
}

// ---------------------------------------------------------------- bank codes

wxArrayString DbModel::kodyBank(bool onlyActive) {
    if (isForeignStorage()) return wxArrayString();
    return bankCodes(m_db, onlyActive, false);
}

wxArrayString DbModel::kodyBankSNazvem(bool onlyActive) {
    if (isForeignStorage()) return wxArrayString();
    return bankCodes(m_db, onlyActive, true);
}

// A code listed twice (an old and a current provider) gives the active one's BIC.
wxString DbModel::bicByKod(const wxString& kod) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT bic FROM bankovniustav WHERE kod=? ORDER BY IFNULL(aktivni,0) DESC, id LIMIT 1",
                          kod);
}
