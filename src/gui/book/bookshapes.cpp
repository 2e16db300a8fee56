#include "bookshapes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>

#include "collation.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "fakturace/souhrndokladu.h"
#include "sklad/minimum.h"

namespace bookshapes {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// Rows of a model list, or none while no company is open.
template <class Rows>
std::function<Rows()> fromModel(Rows (DbModel::*list)()) {
    return [list]() {
        DbModel* model = openModel();
        return model ? (model->*list)() : Rows();
    };
}

// A missing date sorts before every real one.
double dateKey(const wxDateTime& datum) { return datum.IsValid() ? datum.GetValue().ToDouble() : -1e300; }

// Column builders; `get` is a record's getter or any callable on a row.
template <class Row, class Get>
lxColumn<Row> textColumn(const char* caption, int width, Get get) {
    return {{u8(caption), width, false}, [get](const Row& r) { return wxString(std::invoke(get, r)); }, {}};
}

template <class Row, class Get>
lxColumn<Row> dateColumn(const char* caption, int width, Get get, bool withTime = false) {
    return {{u8(caption), width, false},
            [get, withTime](const Row& r) { return formatDatum(std::invoke(get, r), withTime); },
            [get](const Row& r) { return dateKey(std::invoke(get, r)); }};
}

// Money in the Czech form, "31 458,00" (thousands grouped by a no-break space), whatever the
// system locale; `format` may give another form (stock quantities).
template <class Row, class Get>
lxColumn<Row> amountColumn(
    const char* caption, int width, Get get,
    wxString (*format)(double) = [](double v) { return lxformat::formatCastka(v); }) {
    return {{u8(caption), width, true},
            [get, format](const Row& r) { return format(static_cast<double>(std::invoke(get, r))); },
            [get](const Row& r) { return static_cast<double>(std::invoke(get, r)); }};
}

// "Příjmy: 1 250,50 Kč" for the footers.
wxString kc(const char* label, double value) { return u8(label) + ": " + lxformat::formatCastka(value, u8("Kč")); }

// Whole numbers; zero shows as an empty cell when it means "none" (a cash entry's statement).
template <class Row, class Get>
lxColumn<Row> intColumn(const char* caption, int width, Get get, bool blankZero = false) {
    return {{u8(caption), width, true},
            [get, blankZero](const Row& r) {
                const int value = std::invoke(get, r);
                return blankZero && value == 0 ? wxString() : wxString::Format("%d", value);
            },
            [get](const Row& r) { return static_cast<double>(std::invoke(get, r)); }};
}

template <class Row, class Get>
lxColumn<Row> flagColumn(const char* caption, int width, Get get, const char* yes, const char* no) {
    return {{u8(caption), width, false},
            [get, yes, no](const Row& r) { return u8(std::invoke(get, r) ? yes : no); },
            [get](const Row& r) { return std::invoke(get, r) ? 1.0 : 0.0; }};
}

wxString count(const char* format, size_t n) { return wxString::Format(u8(format), static_cast<int>(n)); }

// --- invoices, receivables and liabilities -------------------------------------------------

enum Stav { UHRAZENO = 0, NEUHRAZENO = 1, CASTECNE = 2, PO_SPLATNOSTI = 3 };

// The model's own rule of paid and overdue, on the row's summed payments.
template <class Row>
Stav stav(const Row& r) {
    if (isDokladUhrazen(r.celkem(), r.uhrazeno())) return UHRAZENO;
    if (isDokladPoSplatnosti(r.celkem(), r.uhrazeno(), r.splatnost(), pracovniDen())) return PO_SPLATNOSTI;
    return r.uhrazeno() > 0 ? CASTECNE : NEUHRAZENO;
}

wxString stavText(Stav s) {
    static const char* const texts[] = {"Uhrazeno", "Neuhrazeno", "Částečně uhrazeno", "Po splatnosti"};
    return u8(texts[s]);
}

// The columns after the number, shared by invoices and receivables/liabilities.
template <class Row>
void addDokladColumns(std::vector<lxColumn<Row>>& columns, const char* protistrana) {
    // Sized so that every column is in view in the window of the first start.
    columns.push_back(textColumn<Row>(protistrana, 150, &Row::protistrana));
    columns.push_back(textColumn<Row>("Popis", 105, &Row::popis));
    columns.push_back(dateColumn<Row>("Vystaveno", 85, &Row::vystaveni));
    columns.push_back(dateColumn<Row>("Splatnost", 85, &Row::splatnost));
    columns.push_back(amountColumn<Row>("Celkem", 95, &Row::celkem));
    columns.push_back(textColumn<Row>("Měna", 45, &Row::mena));
    columns.push_back(amountColumn<Row>("Uhrazeno", 95, &Row::uhrazeno));
    columns.push_back(lxColumn<Row>{{u8("Stav"), 135, false},
                                    [](const Row& r) { return stavText(stav(r)); },
                                    [](const Row& r) { return static_cast<double>(stav(r)); }});
}

template <class Row>
void addDokladFilter(lxPageShape<Row>& shape) {
    shape.date = [](const Row& r) { return r.vystaveni(); };
    // Overdue documents in red, partly paid ones in brown, so the eye finds what to chase.
    shape.colour = [](const Row& r) {
        switch (stav(r)) {
            case PO_SPLATNOSTI:
                return wxColour(192, 0, 0);
            case CASTECNE:
                return wxColour(150, 90, 0);
            default:
                return wxColour();
        }
    };
    shape.choices.push_back({u8("Neuhrazené"), [](const Row& r) { return stav(r) != UHRAZENO; }});
    shape.choices.push_back({u8("Uhrazené"), [](const Row& r) { return stav(r) == UHRAZENO; }});
    shape.choices.push_back({u8("Po splatnosti"), [](const Row& r) { return stav(r) == PO_SPLATNOSTI; }});
    // The text field finds a document by its number, counterparty or description, whatever
    // the case and accents ("cermak" finds "Čermák").
    shape.search = [](const Row& r, const wxString& folded) {
        for (const wxString& text : {r.cislo(), r.protistrana(), r.popis()})
            if (collation::searchFold(text).Find(folded) != wxNOT_FOUND) return true;
        return false;
    };
    // Documents in several currencies add up in home currency, each at its own rate.
    shape.footer = [](const std::vector<const Row*>& rows) {
        const SouhrnDokladu s = souhrnDokladu(rows, pracovniDen());
        return kc("Celkem", s.celkem) + "    " + kc("Uhrazeno", s.uhrazeno) + "    " +
               kc("Neuhrazeno", s.neuhrazeno) + "    " + kc("Po splatnosti", s.poSplatnosti) + "    " +
               count("Dokladů: %d", rows.size());
    };
}

}  // namespace

wxString formatDatum(const wxDateTime& datum, bool withTime) {
    if (!datum.IsValid()) return wxString();
    return withTime ? lxformat::formatDatum(datum) + datum.Format(" %H:%M") : lxformat::formatDatum(datum);
}

lxPageShape<DenikView> denik(int nav) {
    lxPageShape<DenikView> s;
    s.key = nav == NAV_POKLADNA ? "pokladna" : nav == NAV_BANKA ? "banka" : "denik";
    const char* registr = nav == NAV_POKLADNA ? "Pokladna" : nav == NAV_BANKA ? "Bankovní účet" : "Pokladna / účet";
    s.columns = {dateColumn<DenikView>("Datum", 85, &DenikView::datum),
                 textColumn<DenikView>("Číslo dokladu", 100, &DenikView::cislo),
                 textColumn<DenikView>("Popis", 260, &DenikView::popis),
                 amountColumn<DenikView>("Částka", 100, &DenikView::castka),
                 flagColumn<DenikView>("Typ", 70, &DenikView::prijem, "Příjem", "Výdaj"),
                 textColumn<DenikView>(registr, 110, &DenikView::zkratka)};
    if (nav != NAV_POKLADNA) s.columns.push_back(intColumn<DenikView>("Výpis", 60, &DenikView::vypis, true));
    // The model gives bank entries before cash ones; the page reads in the order of days, and
    // entries of one day by their numbers. Sorting by the date column keeps that tie order.
    const auto list = nav == NAV_POKLADNA ? &DbModel::denikviewPokladna
                      : nav == NAV_BANKA  ? &DbModel::denikviewBanka
                                          : &DbModel::denikview;
    s.source = [list]() {
        auto rows = fromModel(list)();
        std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) {
            if (!a || !b) return a && !b;
            const double da = dateKey(a->datum()), db = dateKey(b->datum());
            if (da != db) return da < db;
            return collation::czechCompare(a->cislo(), b->cislo()) < 0;
        });
        return rows;
    };
    s.sortColumn = 0;
    s.date = [](const DenikView& r) { return r.datum(); };
    s.choices = {{u8("Příjmy"), [](const DenikView& r) { return r.prijem(); }},
                 {u8("Výdaje"), [](const DenikView& r) { return !r.prijem(); }}};
    // Each register or account of the page, then each pre-posting. The journal's rows do not
    // carry their pre-posting, so the entries' pre-postings are read once per reload.
    s.moreChoices = [nav]() {
        std::vector<lxChoice<DenikView>> choices;
        DbModel* model = DbModel::instance();
        if (!model || !model->isOpen()) return choices;
        auto registr = [&](const wxString& caption, const wxString& zkratka) {
            choices.push_back({caption, [zkratka](const DenikView& r) { return r.zkratka() == zkratka; }});
        };
        if (nav != NAV_BANKA)
            for (const auto& p : model->pokladny()) registr(u8("Pokladna ") + p->zkratka(), p->zkratka());
        if (nav != NAV_POKLADNA)
            for (const auto& b : model->banky()) registr(u8("Bankovní účet ") + b->zkratka(), b->zkratka());
        auto predkontace = std::make_shared<std::map<int, int>>();
        for (const auto& d : model->denik()) (*predkontace)[d->id()] = d->predkontaceid();
        for (const auto& p : model->predkontace()) {
            const int id = p->id();
            choices.push_back(
                {u8("Předkontace ") + p->zkratka() + " " + p->popis(), [predkontace, id](const DenikView& r) {
                     const auto it = predkontace->find(r.id());
                     return it != predkontace->end() && it->second == id;
                 }});
        }
        return choices;
    };
    s.footer = [](const std::vector<const DenikView*>& rows) {
        double prijmy = 0, vydaje = 0;
        for (const DenikView* r : rows) (r->prijem() ? prijmy : vydaje) += r->castka();
        return kc("Příjmy", prijmy) + "    " + kc("Výdaje", vydaje) + "    " + kc("Rozdíl", prijmy - vydaje) + "    " +
               count("Záznamů: %d", rows.size());
    };
    return s;
}

lxPageShape<FakturaView> faktury(bool vydane) {
    lxPageShape<FakturaView> s;
    s.key = vydane ? "vydane" : "prijate";
    s.columns = {
        textColumn<FakturaView>("Číslo", 80, &FakturaView::cislo),
        lxColumn<FakturaView>{{u8("Typ"), 100, false},
                              [](const FakturaView& r) { return u8(r.typid() == 2 ? "Zálohová faktura" : "Faktura"); },
                              [](const FakturaView& r) { return static_cast<double>(r.typid()); }}};
    addDokladColumns(s.columns, vydane ? "Odběratel" : "Dodavatel");
    s.source = fromModel(vydane ? &DbModel::vystaveneview : &DbModel::prijateview);
    addDokladFilter(s);
    s.choices.push_back({u8("Zálohové faktury"), [](const FakturaView& r) { return r.typid() == 2; }});
    return s;
}

lxPageShape<ZavPohView> zavpoh(bool zavazky) {
    lxPageShape<ZavPohView> s;
    s.key = zavazky ? "zavazky" : "pohledavky";
    s.columns = {textColumn<ZavPohView>("Číslo", 90, &ZavPohView::cislo)};
    addDokladColumns(s.columns, zavazky ? "Dodavatel" : "Odběratel");
    s.source = fromModel(zavazky ? &DbModel::zavazkyview : &DbModel::pohledavkyview);
    addDokladFilter(s);
    return s;
}

lxPageShape<MajetekView> majetek() {
    lxPageShape<MajetekView> s;
    s.key = "majetek";
    const auto zustatek = [](const MajetekView& r) { return r.cena() - r.odepsano(); };
    s.columns = {textColumn<MajetekView>("Číslo", 80, &MajetekView::cislo),
                 textColumn<MajetekView>("Název", 220, &MajetekView::nazev),
                 dateColumn<MajetekView>("Pořízeno", 85, &MajetekView::porizen),
                 amountColumn<MajetekView>("Vstupní cena", 110, &MajetekView::cena),
                 textColumn<MajetekView>("Odpisová skupina", 200, &MajetekView::skupina),
                 amountColumn<MajetekView>("Odepsáno", 110, &MajetekView::odepsano),
                 amountColumn<MajetekView>("Zůstatková cena", 110, zustatek),
                 flagColumn<MajetekView>("Stav", 90, &MajetekView::vyrazen, "Vyřazen", "V užívání")};
    s.source = fromModel(&DbModel::majetekview);
    s.date = [](const MajetekView& r) { return r.porizen(); };
    s.choices = {{u8("V užívání"), [](const MajetekView& r) { return !r.vyrazen(); }},
                 {u8("Vyřazený"), [](const MajetekView& r) { return r.vyrazen(); }}};
    s.footer = [](const std::vector<const MajetekView*>& rows) {
        double cena = 0, odepsano = 0;
        for (const MajetekView* r : rows) {
            cena += r->cena();
            odepsano += r->odepsano();
        }
        return kc("Vstupní cena", cena) + "    " + kc("Odepsáno", odepsano) + "    " +
               kc("Zůstatková cena", cena - odepsano) + "    " + count("Položek: %d", rows.size());
    };
    return s;
}

lxPageShape<ZasobaView> zasoby() {
    lxPageShape<ZasobaView> s;
    s.key = "zasoby";
    const auto cenaMj = [](const ZasobaView& r) { return r.pocet() != 0.0 ? r.celkem() / r.pocet() : 0.0; };
    s.columns = {textColumn<ZasobaView>("Číslo", 80, &ZasobaView::cislo),
                 textColumn<ZasobaView>("Název", 240, &ZasobaView::nazev),
                 textColumn<ZasobaView>("Sklad", 140, &ZasobaView::sklad),
                 textColumn<ZasobaView>("MJ", 50, &ZasobaView::mj),
                 amountColumn<ZasobaView>("Množství", 100, &ZasobaView::pocet, &lxformat::formatMnozstvi),
                 amountColumn<ZasobaView>("Cena za MJ", 100, cenaMj),
                 amountColumn<ZasobaView>("Hodnota", 110, &ZasobaView::celkem)};
    // The quantity and value at the end of the working day, all items valued in one pass.
    s.source = [] {
        DbModel* model = openModel();
        if (!model) return lxZasobaViewArray();
        lxZasobaViewArray rows = model->zasobyview();
        std::map<int, DbModel::StavZasoby> stavy;
        for (const DbModel::StavZasoby& st : model->getZasobyStav(pracovniDen() + wxDateSpan::Day()))
            stavy[st.zasobaid] = st;
        for (auto& r : rows) {
            const DbModel::StavZasoby& st = stavy[r->id()];
            r->setPocet(st.pocet);
            r->setCelkem(st.celkem);
        }
        return rows;
    };
    const auto podMinimem = [](const ZasobaView& r) {
        return r.pocet() < -1e-9 || r.pocet() < skladminimum::minimum(r.id()) - 1e-9;
    };
    s.choices = {{u8("Na skladě"), [](const ZasobaView& r) { return r.pocet() > 1e-9; }},
                 {u8("Bez zásoby"), [](const ZasobaView& r) { return r.pocet() <= 1e-9; }},
                 {u8("Pod minimem"), podMinimem}};
    // Items in the red and those under the minimum the user set stand out in red.
    s.colour = [podMinimem](const ZasobaView& r) { return podMinimem(r) ? wxColour(192, 0, 0) : wxColour(); };
    s.footer = [](const std::vector<const ZasobaView*>& rows) {
        double hodnota = 0;
        for (const ZasobaView* r : rows) hodnota += r->celkem();
        return kc("Hodnota zásob", hodnota) + "    " + count("Položek: %d", rows.size());
    };
    return s;
}

lxPageShape<JizdaView> jizdy() {
    lxPageShape<JizdaView> s;
    s.key = "jizdy";
    s.columns = {dateColumn<JizdaView>("Začátek", 120, &JizdaView::startcas, true),
                 dateColumn<JizdaView>("Konec", 120, &JizdaView::endcas, true),
                 textColumn<JizdaView>("Vozidlo", 90, &JizdaView::vozidlo),
                 textColumn<JizdaView>("Řidič", 130, &JizdaView::ridic),
                 textColumn<JizdaView>("Trasa", 220, &JizdaView::cesta),
                 textColumn<JizdaView>("Účel", 180, &JizdaView::ucel),
                 intColumn<JizdaView>("km", 60, &JizdaView::km),
                 flagColumn<JizdaView>("Soukromá", 80, &JizdaView::soukrome, "Ano", "Ne")};
    s.source = fromModel(&DbModel::jizdyview);
    s.date = [](const JizdaView& r) { return r.startcas(); };
    s.choices = {{u8("Služební"), [](const JizdaView& r) { return !r.soukrome(); }},
                 {u8("Soukromé"), [](const JizdaView& r) { return r.soukrome(); }}};
    s.footer = [](const std::vector<const JizdaView*>& rows) {
        long km = 0;
        for (const JizdaView* r : rows) km += r->km();
        return wxString::Format(u8("Ujeto: %ld km    "), km) + count("Jízd: %d", rows.size());
    };
    return s;
}

lxPageShape<KontaktView> kontakty() {
    lxPageShape<KontaktView> s;
    s.key = "kontakty";
    s.columns = {textColumn<KontaktView>("Název", 220, &KontaktView::nazev),
                 textColumn<KontaktView>("IČ", 90, &KontaktView::ic),
                 textColumn<KontaktView>("DIČ", 110, &KontaktView::dic),
                 textColumn<KontaktView>("E-mail", 180, &KontaktView::email),
                 textColumn<KontaktView>("Místo", 150, &KontaktView::misto)};
    s.source = fromModel(&DbModel::kontaktyview);
    s.sortColumn = 0;  // by name, in Czech order
    // The search field finds a contact by its name, IČ or town, whatever the case and accents.
    s.search = [](const KontaktView& r, const wxString& folded) {
        for (const wxString& text : {r.nazev(), r.ic(), r.misto()})
            if (collation::searchFold(text).Find(folded) != wxNOT_FOUND) return true;
        return false;
    };
    s.footer = [](const std::vector<const KontaktView*>& rows) { return count("Kontaktů: %d", rows.size()); };
    return s;
}

lxPageShape<Rada> rady() {
    lxPageShape<Rada> s;
    s.key = "rady";
    s.columns = {textColumn<Rada>("Popis", 220, &Rada::popis), textColumn<Rada>("Prefix", 70, &Rada::prefix),
                 intColumn<Rada>("Znaků", 60, &Rada::znaku), intColumn<Rada>("Aktuální číslo", 110, &Rada::cislo)};
    s.source = fromModel(&DbModel::rady);
    return s;
}

}  // namespace bookshapes
