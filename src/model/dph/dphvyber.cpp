// The documents of a VAT period: whether there are any (of a classification, with a
// counterparty's VAT id, with a control-statement section) and each one as a DphDoklad with
// its base and VAT per rate of its year. Expense documents (received invoices, liabilities)
// fall into the period by the day the right to deduct arose (DPPD), income documents by the
// day of the taxable supply (DUZP).
#include <algorithm>
#include <map>

#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

// One of the two document tables with its direction column: 0 marks the side dated by DPPD.
struct Tabulka {
    const char* name;
    const char* itemColumn;  // the items' reference to it
    const char* smer;        // vydana / zavazek
    bool vydajJeJedna;       // zavpoh: zavazek = 1 is the expense side
    const char* zdrojPrijem;
    const char* zdrojVydaj;
};
const Tabulka TABULKY[] = {{"faktura", "fakturaid", "vydana", false, "FV", "FP"},
                           {"zavpoh", "zavpohid", "zavazek", true, "PO", "ZA"}};

// The period condition on the table aliased f; binds :od and :do.
wxString obdobi(const Tabulka& t) {
    const int vydaj = t.vydajJeJedna ? 1 : 0;
    return wxString::Format(
        "((date(f.dppd) BETWEEN :od AND :do AND f.%s = %d) OR (date(f.duzp) BETWEEN :od AND :do AND f.%s = %d))",
        t.smer, vydaj, t.smer, 1 - vydaj);
}

const char* const MA_DIC = "EXISTS(SELECT 1 FROM kontakt k WHERE k.id=f.protistranaid AND trim(IFNULL(k.dic,''))<>'')";

wxString iso(const wxDateTime& d) { return d.IsValid() ? d.FormatISODate() : wxString(); }

// Whether some row of either table passes `where` (which may use :od and :do, bound after
// the extra values the caller binds first).
template <class... Args>
bool existuje(wxSQLite3Database& db, const wxDateTime& od, const wxDateTime& doDne, const wxString& where,
              const Args&... args) {
    for (const Tabulka& t : TABULKY) {
        const wxString sql = wxString::Format("SELECT count(*) FROM %s f WHERE %s AND %s", t.name, where, obdobi(t));
        if (sqlvalue::exists(db, sql, args..., iso(od), iso(doDne))) return true;
    }
    return false;
}

wxString idList(const std::vector<int>& ids) {
    wxString list;
    for (int id : ids) list += (list.empty() ? "" : ",") + wxString::Format("%d", id);
    return list.empty() ? wxString("-1") : list;
}

}  // namespace

bool DbModel::someDokladForDph(const wxDateTime& od, const wxDateTime& doDne) {
    if (isForeignStorage()) return false;
    return existuje(m_db, od, doDne, "f.platce = 1");
}

bool DbModel::someDokladForDph(int dphdruhid, const wxDateTime& od, const wxDateTime& doDne, bool onlyWithDic) {
    return someDokladForDph(std::vector<int>{dphdruhid}, od, doDne, onlyWithDic);
}

bool DbModel::someDokladForDph(const std::vector<int>& ids, const wxDateTime& od, const wxDateTime& doDne,
                               bool onlyWithDic) {
    if (isForeignStorage() || ids.empty()) return false;
    wxString where = "f.platce = 1 AND f.dphdruhid IN (" + idList(ids) + ")";
    if (onlyWithDic) where += wxString(" AND ") + MA_DIC;
    return existuje(m_db, od, doDne, where);
}

bool DbModel::someDokladForDphSh(const wxDateTime& od, const wxDateTime& doDne) {
    if (isForeignStorage()) return false;
    wxArrayString radky;
    for (const char* r : {"20", "21", "31"}) radky.Add(r);
    return someDokladForDph(getDphDruhIdByRadek(radky), od, doDne, true);
}

bool DbModel::someDokladForDphKh(const wxDateTime& od, const wxDateTime& doDne) {
    if (isForeignStorage()) return false;
    return existuje(m_db, od, doDne,
                    "EXISTS(SELECT 1 FROM dphdruh d WHERE d.id=f.dphdruhid AND IFNULL(d.kh,'')<>'')");
}

bool DbModel::someDokladForDphKhA1(const wxDateTime& od, const wxDateTime& doDne) {
    if (isForeignStorage()) return false;
    return existuje(m_db, od, doDne, "EXISTS(SELECT 1 FROM dphdruh d WHERE d.id=f.dphdruhid AND d.kh='A1')");
}

std::map<int, bool> DbModel::dphDruhyForObdobi(const wxDateTime& od, const wxDateTime& doDne) {
    std::map<int, bool> druhy;
    if (isForeignStorage()) return druhy;
    for (const Tabulka& t : TABULKY) {
        const wxString sql = wxString::Format(
            "SELECT f.dphdruhid, max(IFNULL(f.platce,0) = 1) FROM %s f WHERE f.dphdruhid IS NOT NULL AND %s "
            "GROUP BY f.dphdruhid",
            t.name, obdobi(t));
        try {
            wxSQLite3Statement st = m_db.PrepareStatement(sql);
            recordio::bindValues(st, iso(od), iso(doDne));
            wxSQLite3ResultSet rs = st.ExecuteQuery();
            while (rs.NextRow()) druhy[rs.GetInt(0)] = druhy[rs.GetInt(0)] || rs.GetInt(1) != 0;
        } catch (const wxSQLite3Exception& e) {
            sqllog::error(sql, e);
        }
    }
    return druhy;
}

lxDphDokladArray DbModel::dokladyForDph(int dphdruhid, const wxDateTime& od, const wxDateTime& doDne,
                                        bool onlyWithDic) {
    if (isForeignStorage()) return {};
    const DphDruh druh = getDphDruh(dphdruhid);
    // The rates of each year the documents belong to, highest first, the zero rate last.
    std::map<int, lxDphForDokladArray> sazbyRoku;
    std::map<int, std::vector<int>> sazbaIdRoku;
    auto sazby = [&](int rok) -> const lxDphForDokladArray& {
        auto found = sazbyRoku.find(rok);
        if (found != sazbyRoku.end()) return found->second;
        lxDphForDokladArray lines;
        std::vector<int> ids;
        for (const auto& s : dphsazby(rok)) {
            lines.push_back({s->sazba(), s->zakladni(), 0, 0});
            ids.push_back(s->id());
        }
        lines.push_back({0, false, 0, 0});
        ids.push_back(0);
        sazbaIdRoku[rok] = ids;
        return sazbyRoku[rok] = lines;
    };
    lxDphDokladArray doklady;
    for (const Tabulka& t : TABULKY) {
        const wxString vyber =
            wxString::Format("FROM %s f WHERE f.dphdruhid=:druh AND %s", t.name, obdobi(t));
        // The items of every selected document summed per rate row, in one query.
        std::map<int, std::map<int, std::pair<double, double>>> polozky;  // document → rate id → (total, VAT)
        const wxString itemsSql = wxString::Format(
            "SELECT p.%s, p.sazbaid, total(p.celkem), total(p.dph) FROM fapolozka p WHERE p.%s IN (SELECT f.id %s) "
            "GROUP BY p.%s, p.sazbaid",
            t.itemColumn, t.itemColumn, vyber, t.itemColumn);
        const wxString docsSql = wxString::Format(
            "SELECT f.id, f.cislo, IFNULL((SELECT trim(IFNULL(k.dic,'')) FROM kontakt k WHERE k.id=f.protistranaid),''), "
            "f.duzp, f.dppd, f.popis, IFNULL(f.celkem,0), IFNULL(f.kurz,0), f.obdobirok, IFNULL(f.protistranaid,0), "
            "f.%s %s ORDER BY f.rowid",
            t.smer, vyber);
        try {
            wxSQLite3Statement items = m_db.PrepareStatement(itemsSql);
            recordio::bindValues(items, dphdruhid, iso(od), iso(doDne));
            wxSQLite3ResultSet rs = items.ExecuteQuery();
            while (rs.NextRow())
                polozky[rs.GetInt(0)][rs.IsNull(1) ? 0 : rs.GetInt(1)] = {rs.GetDouble(2), rs.GetDouble(3)};
            wxSQLite3Statement docs = m_db.PrepareStatement(docsSql);
            recordio::bindValues(docs, dphdruhid, iso(od), iso(doDne));
            wxSQLite3ResultSet d = docs.ExecuteQuery();
            while (d.NextRow()) {
                DphDoklad doklad;
                doklad.dic = d.GetString(2);
                if (onlyWithDic && doklad.dic.empty()) continue;
                const int id = d.GetInt(0);
                doklad.cislo = d.GetString(1);
                doklad.duzp = recordio::parseDateText(d.GetString(3));
                doklad.dppd = recordio::parseDateText(d.GetString(4));
                doklad.popis = d.GetString(5);
                doklad.celkem = d.GetDouble(6);
                // A document in the home currency may carry no rate at all; it counts 1:1.
                const double kurz = d.GetDouble(7) > 0 ? d.GetDouble(7) : 1.0;
                const int rok = d.GetInt(8);
                doklad.kontaktid = d.GetInt(9);
                doklad.id = id;
                doklad.dphdruhid = dphdruhid;
                const bool vydaj = (d.GetInt(10) == 1) == t.vydajJeJedna;
                doklad.zdroj = vydaj ? t.zdrojVydaj : t.zdrojPrijem;
                doklad.dph = sazby(rok);
                const std::vector<int>& ids = sazbaIdRoku[rok];
                const auto& soucty = polozky[id];
                // Items at a rate of another year are in no line: only the year's rates and
                // the zero rate are summed.
                for (size_t i = 0; i < ids.size(); ++i) {
                    const auto found = soucty.find(ids[i]);
                    if (found == soucty.end()) continue;
                    doklad.dph[i].zaklad = (found->second.first - found->second.second) * kurz;
                    doklad.dph[i].dph = found->second.second * kurz;
                }
                doklad.kpp = druh.kpp();
                doklad.krp = wxString::Format("%d", druh.krp());
                doklady.push_back(std::move(doklad));
            }
        } catch (const wxSQLite3Exception& e) {
            sqllog::error(docsSql, e);
        }
    }
    return doklady;
}

lxDphDokladArray DbModel::dokladyForDph(const std::vector<int>& ids, const wxDateTime& od, const wxDateTime& doDne,
                                        bool onlyWithDic) {
    lxDphDokladArray all;
    for (int id : ids) {
        lxDphDokladArray part = dokladyForDph(id, od, doDne, onlyWithDic);
        std::move(part.begin(), part.end(), std::back_inserter(all));
    }
    return all;
}

void DbModel::sortDphDoklad(lxDphDokladArray& doklady) {
    auto den = [](const wxDateTime& d) { return d.IsValid() ? d.GetDateOnly().GetValue().ToDouble() : -1e300; };
    std::stable_sort(doklady.begin(), doklady.end(),
                     [&](const DphDoklad& a, const DphDoklad& b) { return den(a.dppd) < den(b.dppd); });
}

bool DbModel::isDphSazbySameForDoklad(const lxDphForDokladArray& a, const lxDphForDokladArray& b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i].sazba != b[i].sazba) return false;
    return true;
}

wxString DbModel::kontaktDic(int id) {
    if (isForeignStorage()) return wxString();
    return sqlvalue::text(m_db, "SELECT trim(IFNULL(dic,'')) FROM kontakt WHERE id=?", id);
}

bool DbModel::hasKontaktDic(int id) { return !kontaktDic(id).empty(); }
