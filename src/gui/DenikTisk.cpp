#include "DenikTisk.h"

#include <map>

#include "bankaknihaprint.h"
#include "dbmodel.h"
#include "fulldenikprint.h"
#include "listdenikprint.h"
#include "lxformat.h"
#include "navigation.h"
#include "peneznidokladprint.h"
#include "pokladniknihaprint.h"
#include "printchoice.h"
#include "prompts.h"
#include "simpledenikprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// The shown entries of the page, in the shown order, read in one pass over the year.
std::vector<Denik> zaznamy(DbModel& model, const std::vector<int>& ids) {
    std::map<int, Denik> podleId;
    for (const auto& d : model.denik()) podleId.emplace(d->id(), *d);
    std::vector<Denik> vysledek;
    for (int id : ids) {
        const auto it = podleId.find(id);
        if (it != podleId.end()) vysledek.push_back(it->second);
    }
    return vysledek;
}

// What an entry's amount means for its register: the foreign amount in a foreign register.
template <class Registr>
double castkaRegistru(const Denik& d, const Registr& registr) {
    return registr.menaid() == 1 ? d.castka() : d.castkacizi();
}

wxString menaKod(DbModel& model, int menaid) {
    const wxString kod = model.getMena(wxString::Format("%d", menaid)).kod();
    return kod.empty() ? wxString("CZK") : kod;
}

// The default account of a new company has the number 0, which says nothing on a print.
bool maCisloUctu(const Banka& banka) { return !banka.cislouctu().empty() && banka.cislouctu() != "0"; }

}  // namespace

DenikTisk::DenikTisk(wxWindow* parent, int nav, std::vector<int> ids, int vybrany)
    : m_parent(parent), m_nav(nav), m_ids(std::move(ids)), m_vybrany(vybrany) {}

wxArrayString DenikTisk::nabidka() const {
    wxArrayString tisky;
    tisky.Add(u8("Seznam záznamů"));
    tisky.Add(u8("Stručný přehled"));
    tisky.Add(u8("Peněžní deník se všemi sloupci"));
    tisky.Add(u8(m_nav == NAV_BANKA ? "Bankovní kniha" : "Pokladní kniha"));
    tisky.Add(u8("Doklad vybraného záznamu"));
    return tisky;
}

wxString DenikTisk::run() {
    const int tisk = prompts().singleChoice(u8("Vyberte tiskovou sestavu"), u8("Tisk"), nabidka(), 0, m_parent);
    return tisk < 0 ? wxString() : run(static_cast<Tisk>(tisk));
}

wxString DenikTisk::run(Tisk tisk) {
    DbModel* model = openModel();
    if (!model) return wxString();
    const wxString firma = model->firma().nazev();
    const int rok = model->currentRok();
    const wxString nadpis = u8(m_nav == NAV_POKLADNA ? "Pokladna" : m_nav == NAV_BANKA ? "Banka" : "Peněžní deník");

    if (tisk == KNIHA) return kniha(*model);
    if (tisk == DOKLAD) return doklad(*model);

    std::map<int, Predkontace> predkontace;
    for (const auto& p : model->predkontace()) predkontace.emplace(p->id(), *p);
    std::map<int, wxString> pokladny, banky;
    for (const auto& p : model->pokladny()) pokladny.emplace(p->id(), p->zkratka());
    for (const auto& b : model->banky()) banky.emplace(b->id(), b->zkratka());
    const std::vector<Denik> denik = zaznamy(*model, m_ids);

    if (tisk == UPLNY) {
        // One amount column per journal column; an entry fills the column of its pre-posting.
        std::vector<FullDenikPrint::Sloupec> sloupce;
        for (const auto& s : model->deniksloupce()) sloupce.push_back({s->sloupec(), s->popis()});
        std::vector<FullDenikPrint::Radek> radky;
        for (const Denik& d : denik) {
            const auto p = predkontace.find(d.predkontaceid());
            const int sloupec = p != predkontace.end() ? p->second.deniksloupecid() : 0;
            radky.push_back({d.datum(), d.cislo(), d.popis(), sloupec, d.castka()});
        }
        FullDenikPrint print(m_parent, firma, rok, sloupce, radky);
        return nahledNeboPdf(print, wxString::Format(u8("Peněžní deník %d"), rok), m_parent);
    }

    std::vector<DenikRadek> radky;
    for (const Denik& d : denik) {
        DenikRadek r;
        r.datum = lxformat::formatDatum(d.datum());
        r.cislo = d.cislo();
        r.popis = d.popis();
        const auto p = predkontace.find(d.predkontaceid());
        if (p != predkontace.end()) {
            r.predkontace = p->second.zkratka();
            r.prijem = p->second.prijem();
        }
        if (d.pokladnaid() > 0) r.registr = pokladny[d.pokladnaid()];
        if (d.bankaid() > 0) r.registr = banky[d.bankaid()];
        r.vypis = d.bankaid() > 0 ? d.vypis() : 0;
        r.castka = d.castka();
        radky.push_back(r);
    }
    if (tisk == STRUCNY) {
        SimpleDenikPrint print(m_parent, nadpis, firma, rok, radky);
        return nahledNeboPdf(print, print.printTitle(), m_parent);
    }
    ListDenikPrint print(m_parent, nadpis, firma, rok, radky);
    return nahledNeboPdf(print, print.printTitle(), m_parent);
}

wxString DenikTisk::kniha(DbModel& model) {
    const int rok = model.currentRok();
    const wxString firma = model.firma().nazev();
    std::map<int, bool> prijmove;
    for (const auto& p : model.predkontace()) prijmove[p->id()] = p->prijem();
    auto pohyb = [&](const Denik& d, double castka) {
        PokladniPohyb p;
        p.datum = lxformat::formatDatum(d.datum());
        p.doklad = d.cislo();
        p.popis = d.popis();
        (prijmove[d.predkontaceid()] ? p.prijem : p.vydej) = castka;
        return p;
    };

    if (m_nav == NAV_BANKA) {
        std::vector<BankovniUcet> ucty;
        for (const auto& b : model.banky()) {
            BankovniUcet ucet;
            ucet.nazev = b->zkratka() + " " + b->popis();
            if (maCisloUctu(*b)) ucet.nazev += "  " + b->cislouctu() + "/" + b->kodbanky();
            ucet.mena = menaKod(model, b->menaid());
            ucet.pocatecniStav = model.getBankaZustatek(b->id());
            for (const auto& d : model.denikBankaById(b->id()))
                ucet.pohyby.push_back(pohyb(*d, castkaRegistru(*d, *b)));
            ucty.push_back(ucet);
        }
        BankaKnihaPrint print(m_parent, firma, rok, ucty);
        return nahledNeboPdf(print, print.printTitle(), m_parent);
    }

    // The cash book is kept per register: the selected entry's register, otherwise ask.
    const lxPokladnaArray pokladny = model.pokladny();
    if (pokladny.empty()) return wxString();
    int index = 0;
    const Denik vybrany = m_vybrany > 0 ? model.getDenik(m_vybrany) : Denik();
    for (size_t i = 0; i < pokladny.size(); ++i)
        if (vybrany.isValid() && pokladny[i]->id() == vybrany.pokladnaid()) index = static_cast<int>(i);
    if (pokladny.size() > 1 && !(vybrany.isValid() && vybrany.pokladnaid() > 0)) {
        wxArrayString kody;
        for (const auto& p : pokladny) kody.Add(p->zkratka() + " " + p->popis());
        index = prompts().singleChoice(u8("Vyberte pokladnu"), u8("Pokladny"), kody, 0, m_parent);
        if (index < 0) return wxString();
    }
    const Pokladna& pokladna = *pokladny[index];
    std::vector<PokladniPohyb> pohyby;
    for (const auto& d : model.denikPokladnaById(pokladna.id()))
        pohyby.push_back(pohyb(*d, castkaRegistru(*d, pokladna)));
    PokladniKnihaPrint print(m_parent, firma, pokladna.zkratka(), rok, model.getPokladnaZustatek(pokladna.id()),
                             pohyby);
    return nahledNeboPdf(print, print.printTitle(), m_parent);
}

wxString DenikTisk::doklad(DbModel& model) {
    const Denik d = m_vybrany > 0 ? model.getDenik(m_vybrany) : Denik();
    if (!d.isValid()) {
        prompts().info(u8("Vyberte záznam, jehož doklad chcete tisknout"), wxString(), m_parent);
        return wxString();
    }
    const bool prijem = model.isDenikPrijem(d.id());
    const wxString partner = d.protistranaid() > 0 ? model.getKontakt(d.protistranaid()).nazev() : wxString();
    const int menaid = d.menaid() > 0 ? d.menaid() : 1;
    const double castka = menaid == 1 ? d.castka() : d.castkacizi();
    PenezniDoklad doklad;
    doklad.banka = d.bankaid() > 0;
    doklad.prijem = prijem;
    doklad.cislo = d.cislo();
    doklad.datum = d.datum();
    doklad.firma = model.firma().nazev();
    doklad.firmaIc = model.firma().ic();
    doklad.partner = partner;
    doklad.ucel = d.popis();
    doklad.castka = castka;
    doklad.mena = menaKod(model, menaid);
    if (doklad.banka) {
        const Banka banka = model.getBanka(d.bankaid());
        doklad.ucet =
            banka.zkratka() + (maCisloUctu(banka) ? "  " + banka.cislouctu() + "/" + banka.kodbanky() : wxString());
        doklad.vypis = d.vypis();
        doklad.reference = d.reference();
    }
    PenezniDokladPrint print(m_parent, doklad);
    return nahledNeboPdf(print, d.cislo(), m_parent);
}
