#include "denikexport.h"

#include "dbmodel.h"
#include "lxformat.h"

namespace denikexport {

namespace {

wxString lookup(const std::map<int, wxString>& names, int id) {
    const auto it = names.find(id);
    return it == names.end() ? wxString() : it->second;
}

}  // namespace

wxArrayString header() {
    static const char* const CAPTIONS[] = {"Datum",       "Číslo",         "Popis",  "Částka",    "Pokladna/účet",
                                           "Předkontace", "Protistrana",   "Paušál", "Reference", "Výpis",
                                           "Měna",        "Částka v měně", "Kurz"};
    wxArrayString captions;
    for (const char* c : CAPTIONS) captions.Add(wxString::FromUTF8(c));
    return captions;
}

Nazvy Nazvy::load(DbModel& model) {
    Nazvy n;
    if (!model.isOpen()) return n;
    for (const auto& p : model.pokladny()) n.pokladny[p->id()] = p->zkratka();
    for (const auto& b : model.banky()) n.banky[b->id()] = b->zkratka();
    for (const auto& p : model.predkontace()) n.predkontace[p->id()] = p->zkratka();
    for (const auto& k : model.kontakty()) n.kontakty[k->id()] = k->nazev();
    for (const auto& m : model.meny()) n.meny[m->id()] = m->kod();
    return n;
}

wxArrayString row(const Denik& d, const Nazvy& nazvy) {
    const bool banka = d.pokladnaid() <= 0 && d.bankaid() > 0;
    const wxString mena = lookup(nazvy.meny, d.menaid());
    const bool cizi = d.menaid() > 1 && !mena.empty() && mena != "CZK";
    wxArrayString f;
    f.Add(lxformat::formatDatum(d.datum()));
    f.Add(d.cislo());
    f.Add(d.popis());
    f.Add(lxformat::formatCastka(d.castka(), false));
    f.Add(banka ? lookup(nazvy.banky, d.bankaid()) : lookup(nazvy.pokladny, d.pokladnaid()));
    f.Add(lookup(nazvy.predkontace, d.predkontaceid()));
    f.Add(d.protistranaid() > 0 ? lookup(nazvy.kontakty, d.protistranaid()) : wxString());
    f.Add(d.pausal() != 0 ? wxString::Format("%d", d.pausal()) : wxString());
    f.Add(d.reference());
    f.Add(banka ? wxString::Format("%d", d.vypis()) : wxString());
    f.Add(cizi ? mena : wxString());
    f.Add(cizi ? lxformat::formatCastka(d.castkacizi(), false) : wxString());
    f.Add(cizi ? lxformat::formatKurz(d.kurz()) : wxString());
    return f;
}

std::vector<wxArrayString> rows(DbModel& model, const std::vector<int>& ids) {
    std::vector<wxArrayString> out;
    if (!model.isOpen()) return out;
    Nazvy nazvy = Nazvy::load(model);
    std::map<int, const Denik*> byId;
    const lxDenikArray entries = model.denik();
    for (const auto& d : entries) byId[d->id()] = d.get();
    // An entry may use a currency that is no longer offered in this year.
    for (const auto& d : entries) {
        if (d->menaid() > 0 && !nazvy.meny.count(d->menaid())) nazvy.meny[d->menaid()] = model.kodMena(d->menaid());
    }
    out.reserve(ids.size());
    for (const int id : ids) {
        const auto it = byId.find(id);
        if (it != byId.end()) out.push_back(row(*it->second, nazvy));
    }
    return out;
}

}  // namespace denikexport
