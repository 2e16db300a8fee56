#include "camt053.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <wx/regex.h>

#include <cstring>
#include <memory>

namespace vypis {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

bool jmeno(const xmlNode* n, const char* name) {
    return n && n->type == XML_ELEMENT_NODE && std::strcmp(reinterpret_cast<const char*>(n->name), name) == 0;
}

// The first child element of that local name, whatever namespace the version uses.
const xmlNode* dite(const xmlNode* n, const char* name) {
    if (!n) return nullptr;
    for (const xmlNode* c = n->children; c; c = c->next)
        if (jmeno(c, name)) return c;
    return nullptr;
}

// A path of child names: cesta(n, {"BookgDt", "Dt"}).
const xmlNode* cesta(const xmlNode* n, std::initializer_list<const char*> names) {
    for (const char* name : names) n = dite(n, name);
    return n;
}

wxString text(const xmlNode* n) {
    if (!n) return wxString();
    xmlChar* obsah = xmlNodeGetContent(n);
    const wxString t = wxString::FromUTF8(reinterpret_cast<const char*>(obsah)).Strip(wxString::both);
    xmlFree(obsah);
    return t;
}

wxString atribut(const xmlNode* n, const char* name) {
    xmlChar* value = xmlGetProp(n, reinterpret_cast<const xmlChar*>(name));
    if (!value) return wxString();
    const wxString t = wxString::FromUTF8(reinterpret_cast<const char*>(value));
    xmlFree(value);
    return t;
}

struct Odmitnuti {
    wxString zprava;
};

[[noreturn]] void odmitnout(const xmlNode* n, const wxString& co) {
    throw Odmitnuti{wxString::Format(u8("Element %s (řádek %ld): %s"), wxString::FromUTF8(reinterpret_cast<const char*>(n->name)),
                                     xmlGetLineNo(n), co)};
}

const xmlNode* povinne(const xmlNode* n, std::initializer_list<const char*> names, const char* popis) {
    const xmlNode* c = cesta(n, names);
    if (!c) odmitnout(n, wxString::Format(u8("chybí %s"), popis));
    return c;
}

// ISO date, or the date part of a date and time.
wxDateTime datum(const xmlNode* n) {
    const xmlNode* dt = dite(n, "Dt");
    if (!dt) dt = dite(n, "DtTm");
    const wxString t = text(dt).Left(10);
    wxDateTime d;
    wxString::const_iterator end;
    if (t.length() != 10 || !d.ParseFormat(t, "%Y-%m-%d", &end) || end != t.end() || d.FormatISODate() != t)
        return wxDateTime();
    return d;
}

// An unsigned decimal with a point, as the schema writes amounts.
bool castka(const wxString& t, double* value) {
    static const wxRegEx re("^[0-9]{1,13}(\\.[0-9]{1,5})?$", wxRE_ADVANCED);
    return re.Matches(t) && t.ToCDouble(value);
}

wxString ucetStrany(const xmlNode* acct) {
    const xmlNode* id = dite(acct, "Id");
    if (const xmlNode* iban = dite(id, "IBAN")) return normalizovatUcet(text(iban));
    return normalizovatUcet(text(cesta(id, {"Othr", "Id"})));
}

// A name anywhere under the party (Dbtr/Nm, or Dbtr/Pty/Nm in the newer versions).
wxString nazevStrany(const xmlNode* strana) {
    if (!strana) return wxString();
    if (const xmlNode* nm = dite(strana, "Nm")) return text(nm);
    return text(cesta(strana, {"Pty", "Nm"}));
}

// The symbols of a transaction from the places Czech banks use, the most specific first.
void symboly(const xmlNode* tx, Pohyb& p) {
    const xmlNode* refs = dite(tx, "Refs");
    const xmlNode* rmt = dite(tx, "RmtInf");
    wxString ustrd;
    for (const xmlNode* c = rmt ? rmt->children : nullptr; c; c = c->next)
        if (jmeno(c, "Ustrd")) ustrd += (ustrd.empty() ? "" : " ") + text(c);
    p.zprava = ustrd;
    const wxString zdroje[] = {text(dite(refs, "EndToEndId")), ustrd,
                               text(cesta(rmt, {"Strd", "CdtrRefInf", "Ref"})), text(dite(refs, "InstrId"))};
    for (const wxString& z : zdroje) {
        wxString ks, ss;
        const wxString vs = symbolZTextu(z, &ks, &ss);
        if (p.ks.empty()) p.ks = ks;
        if (p.ss.empty()) p.ss = ss;
        if (p.vs.empty()) p.vs = vs;
    }
}

void cistTransakci(const xmlNode* tx, Pohyb& p) {
    symboly(tx, p);
    const xmlNode* strany = dite(tx, "RltdPties");
    // The counterparty is the debtor of an incoming payment and the creditor of an outgoing one.
    p.nazev = nazevStrany(dite(strany, p.prijem ? "Dbtr" : "Cdtr"));
    p.protiucet = ucetStrany(dite(strany, p.prijem ? "DbtrAcct" : "CdtrAcct"));
    const wxString ref = text(cesta(tx, {"Refs", "AcctSvcrRef"}));
    if (!ref.empty()) p.reference = ref;
}

void cistZaznam(const xmlNode* ntry, Vypis& v) {
    const wxString sts = dite(ntry, "Sts") && dite(dite(ntry, "Sts"), "Cd") ? text(cesta(ntry, {"Sts", "Cd"}))
                                                                              : text(dite(ntry, "Sts"));
    if (sts == "PDNG" || sts == "INFO") return;
    Pohyb zaklad;
    const xmlNode* amt = povinne(ntry, {"Amt"}, "Amt");
    if (!castka(text(amt), &zaklad.castka)) odmitnout(amt, wxString::Format(u8("částka „%s“ není číslo"), text(amt)));
    zaklad.mena = atribut(amt, "Ccy");
    const xmlNode* ind = povinne(ntry, {"CdtDbtInd"}, "CdtDbtInd");
    const wxString smer = text(ind);
    if (smer != "CRDT" && smer != "DBIT") odmitnout(ind, wxString::Format(u8("neznámý směr „%s“"), smer));
    zaklad.prijem = smer == "CRDT";
    zaklad.storno = text(dite(ntry, "RvslInd")) == "true";
    const xmlNode* bookg = dite(ntry, "BookgDt");
    const xmlNode* val = dite(ntry, "ValDt");
    if (!bookg && !val) odmitnout(ntry, u8("chybí BookgDt"));
    zaklad.datum = datum(bookg ? bookg : val);
    if (!zaklad.datum.IsValid()) odmitnout(bookg ? bookg : val, u8("neplatné datum"));
    zaklad.reference = text(dite(ntry, "AcctSvcrRef"));

    std::vector<const xmlNode*> transakce;
    for (const xmlNode* d = ntry->children; d; d = d->next)
        if (jmeno(d, "NtryDtls"))
            for (const xmlNode* t = d->children; t; t = t->next)
                if (jmeno(t, "TxDtls")) transakce.push_back(t);
    if (transakce.size() <= 1) {
        if (!transakce.empty()) cistTransakci(transakce.front(), zaklad);
        v.pohyby.push_back(zaklad);
        return;
    }
    // A batch: each transaction with its own amount and, when the bank gives none of its
    // own, the entry's reference with the transaction's order so that each stays unique.
    int poradi = 0;
    for (const xmlNode* tx : transakce) {
        Pohyb p = zaklad;
        ++poradi;
        const xmlNode* txAmt = dite(tx, "Amt");
        if (!txAmt) txAmt = cesta(tx, {"AmtDtls", "TxAmt", "Amt"});
        if (!txAmt) odmitnout(tx, u8("položka dávky nemá částku (Amt)"));
        if (!castka(text(txAmt), &p.castka))
            odmitnout(txAmt, wxString::Format(u8("částka „%s“ není číslo"), text(txAmt)));
        if (!atribut(txAmt, "Ccy").empty()) p.mena = atribut(txAmt, "Ccy");
        const wxString refDavky = zaklad.reference;
        p.reference.clear();
        cistTransakci(tx, p);
        if (p.reference.empty() || p.reference == refDavky) p.reference = wxString::Format("%s/%d", refDavky, poradi);
        v.pohyby.push_back(p);
    }
}

Vypis cistVypis(const xmlNode* stmt) {
    Vypis v;
    const xmlNode* acct = povinne(stmt, {"Acct"}, "Acct");
    v.ucet = ucetStrany(acct);
    v.mena = text(dite(acct, "Ccy"));
    long n = 0;
    wxString cislo = text(dite(stmt, "LglSeqNb"));
    if (cislo.empty()) cislo = text(dite(stmt, "ElctrncSeqNb"));
    if (!cislo.empty() && cislo.ToLong(&n) && n > 0 && n < 1000000) v.cislo = static_cast<int>(n);
    const wxString vytvoreno = text(dite(stmt, "CreDtTm")).Left(10);
    v.datum.ParseISODate(vytvoreno);
    for (const xmlNode* c = stmt->children; c; c = c->next)
        if (jmeno(c, "Ntry")) cistZaznam(c, v);
    for (Pohyb& p : v.pohyby)
        if (p.mena.empty()) p.mena = v.mena;
    return v;
}

struct DocDeleter {
    void operator()(xmlDoc* d) const { xmlFreeDoc(d); }
};

}  // namespace

bool jeCamt053(const std::string& bytes) {
    const std::string zacatek = bytes.substr(0, 4096);
    return zacatek.find('<') != std::string::npos && bytes.find("BkToCstmrStmt") != std::string::npos;
}

CteniVypisu cistCamt053(const std::string& bytes) {
    CteniVypisu result;
    if (bytes.size() > MAX_VELIKOST) {
        result.zprava = u8("Soubor výpisu je příliš velký");
        return result;
    }
    // No network and no entity expansion: a statement never needs either.
    std::unique_ptr<xmlDoc, DocDeleter> doc(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), "vypis.xml",
                                                          nullptr, XML_PARSE_NONET | XML_PARSE_NOERROR |
                                                                       XML_PARSE_NOWARNING | XML_PARSE_NOBLANKS));
    if (!doc) {
        const xmlError* e = xmlGetLastError();
        result.zprava = wxString::Format(u8("Soubor není platné XML (řádek %d)"), e ? e->line : 0);
        return result;
    }
    const xmlNode* root = xmlDocGetRootElement(doc.get());
    const xmlNode* bank = dite(root, "BkToCstmrStmt");
    if (!jmeno(root, "Document") || !bank) {
        result.zprava = u8("Soubor není výpis camt.053 (chybí Document/BkToCstmrStmt)");
        return result;
    }
    try {
        for (const xmlNode* c = bank->children; c; c = c->next)
            if (jmeno(c, "Stmt")) result.vypisy.push_back(cistVypis(c));
    } catch (const Odmitnuti& o) {
        result.vypisy.clear();
        result.zprava = o.zprava;
        return result;
    }
    if (result.vypisy.empty()) {
        result.zprava = u8("Element BkToCstmrStmt: soubor neobsahuje žádný výpis (Stmt)");
        return result;
    }
    result.ok = true;
    return result;
}

}  // namespace vypis
