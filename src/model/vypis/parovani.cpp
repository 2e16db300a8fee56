#include "parovani.h"

#include <algorithm>
#include <cmath>

#include "lxformat.h"
#include "sqllog.h"

namespace vypis {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The symbols under which a document is found: its VS and, when the number ends in digits
// ("FV20260001"), those digits, which is what customers often type as the VS.
std::vector<wxString> klice(const OtevrenyDoklad& d) {
    std::vector<wxString> k;
    const wxString vs = normalizovatSymbol(d.vs);
    if (!vs.empty()) k.push_back(vs);
    size_t i = 0;
    while (i < d.cislo.length() && !(d.cislo[i] >= '0' && d.cislo[i] <= '9')) ++i;
    const wxString cislice = normalizovatSymbol(d.cislo.Mid(i));
    bool jenCislice = !cislice.empty();
    for (wxUniChar c : cislice) jenCislice = jenCislice && c >= '0' && c <= '9';
    if (jenCislice && cislice != vs) k.push_back(cislice);
    return k;
}

wxString cisla(const std::vector<OtevrenyDoklad>& doklady, const std::vector<int>& indexy) {
    wxString s;
    for (int i : indexy) s += (s.empty() ? "" : ", ") + doklady[i].cislo;
    return s;
}

void nacist(DbModel& model, const char* sql, bool faktura, std::vector<OtevrenyDoklad>& out) {
    try {
        wxSQLite3Statement st = model.db().PrepareStatement(sql);
        st.Bind(1, model.currentRok());
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            OtevrenyDoklad d;
            d.id = rs.GetInt(0);
            const bool prvni = rs.GetInt(1) == 1;  // vydana / zavazek
            d.druh = faktura ? (prvni ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA)
                             : (prvni ? DruhDokladu::ZAVAZEK : DruhDokladu::POHLEDAVKA);
            d.cislo = rs.GetAsString(2);
            d.vs = rs.GetAsString(3);
            d.zbyva = rs.GetDouble(4) - rs.GetDouble(5);
            d.menaid = rs.GetInt(6, 1) > 0 ? rs.GetInt(6, 1) : 1;
            d.protistranaid = rs.GetInt(7, 0);
            d.protistrana = rs.GetAsString(8);
            out.push_back(d);
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("otevrene doklady", e);
    }
}

}  // namespace

long long centy(double castka) { return std::llround(castka * 100.0); }

std::vector<OtevrenyDoklad> otevreneDoklady(DbModel& model) {
    std::vector<OtevrenyDoklad> doklady;
    if (model.isForeignStorage()) return doklady;
    // The paid totals are summed once per table and joined, not asked for per document.
    nacist(model,
                 "SELECT f.id, f.vydana, f.cislo, f.vs, IFNULL(f.celkem,0), IFNULL(u.s,0), f.menaid, f.protistranaid, "
                 "k.nazev FROM faktura f "
                 "LEFT JOIN (SELECT fakturaid, SUM(castka) s FROM uhrada WHERE fakturaid IS NOT NULL "
                 "GROUP BY fakturaid) u ON u.fakturaid=f.id LEFT JOIN kontakt k ON k.id=f.protistranaid "
                 "WHERE f.obdobirok<=? AND IFNULL(f.celkem,0)>IFNULL(u.s,0) ORDER BY f.id",
                 true, doklady);
    nacist(model,
                 "SELECT f.id, f.zavazek, f.cislo, f.vs, IFNULL(f.celkem,0), IFNULL(u.s,0), f.menaid, f.protistranaid, "
                 "k.nazev FROM zavpoh f "
                 "LEFT JOIN (SELECT zavpohid, SUM(castka) s FROM uhrada WHERE zavpohid IS NOT NULL "
                 "GROUP BY zavpohid) u ON u.zavpohid=f.id LEFT JOIN kontakt k ON k.id=f.protistranaid "
                 "WHERE f.obdobirok<=? AND IFNULL(f.celkem,0)>IFNULL(u.s,0) ORDER BY f.id",
                 false, doklady);
    return doklady;
}

Parovani::Parovani(std::vector<OtevrenyDoklad> doklady, ZnameUcty ucty, int menaid) : m_ucty(std::move(ucty)) {
    for (OtevrenyDoklad& d : doklady)
        if (d.menaid == menaid && d.zbyva > 0) m_doklady.push_back(std::move(d));
    for (int i = 0; i < static_cast<int>(m_doklady.size()); ++i) {
        for (const wxString& k : klice(m_doklady[i])) m_podleVs[k].push_back(i);
        m_podleCastky[centy(m_doklady[i].zbyva)].push_back(i);
    }
}

std::vector<int> Parovani::podleCastky(long long c, bool prijem) const {
    std::vector<int> out;
    const auto it = m_podleCastky.find(c);
    if (it == m_podleCastky.end()) return out;
    // A bucket may hold documents whose open amount changed since; they are checked again.
    for (int i : it->second)
        if (m_doklady[i].prijem() == prijem && centy(m_doklady[i].zbyva) == c &&
            std::find(out.begin(), out.end(), i) == out.end())
            out.push_back(i);
    return out;
}

void Parovani::zapocitat(int doklad, double castka) {
    if (doklad < 0 || doklad >= static_cast<int>(m_doklady.size())) return;
    OtevrenyDoklad& d = m_doklady[doklad];
    d.zbyva -= castka;
    if (d.zbyva > 0) m_podleCastky[centy(d.zbyva)].push_back(doklad);
}

std::vector<int> Parovani::dokladySmeru(bool prijem) const {
    std::vector<int> out;
    for (int i = 0; i < static_cast<int>(m_doklady.size()); ++i)
        if (m_doklady[i].prijem() == prijem && m_doklady[i].zbyva > 0) out.push_back(i);
    return out;
}

Navrh Parovani::navrh(const Pohyb& p) const {
    Navrh n;
    if (p.storno) {
        n.druh = DruhNavrhu::STORNO;
        n.duvod = u8("Storno pohybu — zaúčtujte ručně");
        return n;
    }
    const long long castka = centy(p.castka);
    std::vector<int> podleVs;
    if (!p.vs.empty()) {
        const auto it = m_podleVs.find(normalizovatSymbol(p.vs));
        if (it != m_podleVs.end())
            for (int i : it->second)
                if (m_doklady[i].prijem() == p.prijem && m_doklady[i].zbyva > 0) podleVs.push_back(i);
    }
    if (!podleVs.empty()) {
        std::vector<int> presne;
        for (int i : podleVs)
            if (centy(m_doklady[i].zbyva) == castka) presne.push_back(i);
        if (presne.size() == 1) {
            n.druh = DruhNavrhu::PRESNY;
            n.doklad = presne.front();
            n.kandidati = presne;
            n.duvod = u8("VS a částka souhlasí");
            return n;
        }
        if (podleVs.size() > 1) {
            n.druh = DruhNavrhu::NEJEDNOZNACNY;
            n.kandidati = presne.empty() ? podleVs : presne;
            n.duvod = wxString::Format(u8("VS souhlasí u více dokladů (%s) — vyberte doklad"),
                                       cisla(m_doklady, n.kandidati));
            return n;
        }
        const int i = podleVs.front();
        const OtevrenyDoklad& d = m_doklady[i];
        n.kandidati = podleVs;
        if (castka < centy(d.zbyva)) {
            n.druh = DruhNavrhu::CASTECNY;
            n.doklad = i;
            n.duvod = wxString::Format(u8("VS souhlasí, částka je nižší — částečná úhrada (zbývá %s)"),
                                       lxformat::formatCastka(d.zbyva - p.castka));
            return n;
        }
        // More than is open: either an overpayment, or one payment of this and another document
        // of the same counterparty, which the user has to split.
        const long long zbytek = castka - centy(d.zbyva);
        std::vector<int> dalsi;
        if (d.protistranaid > 0)
            for (int j : podleCastky(zbytek, p.prijem))
                if (j != i && m_doklady[j].protistranaid == d.protistranaid) dalsi.push_back(j);
        if (!dalsi.empty()) {
            n.druh = DruhNavrhu::NEJEDNOZNACNY;
            n.kandidati = {i};
            n.kandidati.insert(n.kandidati.end(), dalsi.begin(), dalsi.end());
            n.duvod = wxString::Format(u8("Částka odpovídá součtu dokladů %s — platba více dokladů najednou, "
                                          "zaúčtujte ručně"),
                                       cisla(m_doklady, n.kandidati));
            return n;
        }
        n.druh = DruhNavrhu::PREPLATEK;
        n.doklad = i;
        n.duvod = wxString::Format(u8("VS souhlasí, částka je vyšší — přeplatek %s"),
                                   lxformat::formatCastka(p.castka - d.zbyva));
        return n;
    }
    // No symbol to go by: the amount, and a counter-account that paid the counterparty before.
    const std::vector<int> stejnaCastka = podleCastky(castka, p.prijem);
    std::vector<int> znamy;
    const auto ucet = p.protiucet.empty() ? m_ucty.end() : m_ucty.find(p.protiucet);
    if (ucet != m_ucty.end())
        for (int i : stejnaCastka)
            if (std::find(ucet->second.begin(), ucet->second.end(), m_doklady[i].protistranaid) != ucet->second.end())
                znamy.push_back(i);
    if (znamy.size() == 1) {
        n.druh = DruhNavrhu::UCET;
        n.doklad = znamy.front();
        n.kandidati = znamy;
        n.duvod = u8("Částka souhlasí a účet protistrany je znám z dřívější úhrady");
        return n;
    }
    if (znamy.size() > 1) {
        n.druh = DruhNavrhu::NEJEDNOZNACNY;
        n.kandidati = znamy;
        n.duvod = wxString::Format(u8("Částka a účet souhlasí u více dokladů (%s) — vyberte doklad"),
                                   cisla(m_doklady, znamy));
        return n;
    }
    n.kandidati = stejnaCastka;
    n.duvod = stejnaCastka.empty()
                  ? u8("Nenalezen žádný otevřený doklad")
                  : wxString::Format(u8("Souhlasí jen částka (%s) — vyberte doklad ručně"), cisla(m_doklady, stejnaCastka));
    return n;
}

}  // namespace vypis
