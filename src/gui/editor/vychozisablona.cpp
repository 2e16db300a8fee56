#include "vychozisablona.h"

#include <initializer_list>

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

TextStyle styl(double points, bool bold = false) {
    TextStyle s;
    s.font = printFont(points);
    if (bold) s.font.MakeBold();
    return s;
}

struct Bunka {
    const char* text;
    int sirka;
    wxTextAttrAlignment zarovnani;
};

constexpr auto L = wxTEXT_ALIGNMENT_LEFT;
constexpr auto R = wxTEXT_ALIGNMENT_RIGHT;

// The page is A4 with 10 mm side margins: 190 mm of width, split in two 90 mm columns.
struct Sablona {
    Document doc;

    void text(DOCSECTION s, const char* value, int x, int y, int width, wxTextAttrAlignment a, const TextStyle& st) {
        TextElement e(u8(value), wxPoint(x, y), width, a, st);
        e.section = s;
        doc.addElement(e);
    }
    void odstavec(DOCSECTION s, int x, int y, int width, std::initializer_list<const char*> lines) {
        TextParagraphElement e;
        e.section = s;
        e.pos = wxPoint(x, y);
        e.width = width;
        e.textStyle = styl(9);
        for (const char* line : lines) e.value.push_back(u8(line));
        doc.addElement(e);
    }
    void radek(DOCSECTION s, int y, std::initializer_list<Bunka> cells, const TextStyle& st, bool border) {
        TableRowElement e;
        e.section = s;
        e.pos = wxPoint(0, y);
        e.textStyle = st;
        e.border = border;
        for (const Bunka& c : cells) {
            e.addCellValue(u8(c.text));
            e.addCellWidth(c.sirka);
            e.addCellAlignment(c.zarovnani);
        }
        doc.addElement(e);
    }
    void cara(DOCSECTION s, int x1, int y1, int x2, int y2, int width = 1) {
        LineElement e(wxPoint(x1, y1), wxPoint(x2, y2), LineStyle(*wxBLACK, width));
        e.section = s;
        doc.addElement(e);
    }
};

}  // namespace

Document vychoziSablona() {
    Sablona t;
    t.doc.style = styl(9);
    t.doc.layout.footer = lxPrint::FOOTER_NONE;

    const DOCSECTION H1 = DOCSECTION_HEADER1, H2 = DOCSECTION_HEADER2, H3 = DOCSECTION_HEADER3;
    t.text(H1, "FAKTURA – daňový doklad", 0, 0, 0, L, styl(16, true));
    t.text(H1, "{faktura-cislo}", 190, 1, 0, R, styl(14, true));
    t.cara(H1, 0, 10, 190, 10, 2);
    t.text(H1, "Dodavatel:", 0, 13, 0, L, styl(9, true));
    t.odstavec(H1, 0, 18, 90,
               {"{firma-nazev}", "{firma-ulice}", "{firma-psc} {firma-misto}", "{firma-zeme}", "IČ: {firma-ic}",
                "DIČ: {firma-dic}", "{firma-registrace}"});
    t.text(H1, "Odběratel:", 102, 13, 0, L, styl(9, true));
    RectangleElement ramec(wxPoint(100, 12), wxSize(90, 44), LineStyle(*wxBLACK, 1), 2);
    ramec.section = H1;
    t.doc.addElement(ramec);
    t.odstavec(H1, 102, 18, 86,
               {"{kontakt-nazev}", "{kontakt-ulice}", "{kontakt-psc} {kontakt-misto}", "{kontakt-zeme}",
                "IČ: {kontakt-ic}", "DIČ: {kontakt-dic}"});

    t.odstavec(H2, 0, 60, 90,
               {"Datum vystavení: {faktura-vystaveni}", "Datum splatnosti: {faktura-splatnost}",
                "Datum zdanitelného plnění: {faktura-duzp}", "Forma úhrady: {faktura-uhrada}"});
    t.odstavec(H2, 102, 60, 88,
               {"Bankovní účet: {faktura-banka}", "Variabilní symbol: {faktura-vs}", "Konstantní symbol: {faktura-ks}",
                "Specifický symbol: {faktura-ss}"});

    t.radek(H3, 80,
            {{"Popis", 66, L},
             {"Počet", 20, R},
             {"MJ", 12, L},
             {"Cena MJ", 24, R},
             {"DPH %", 14, R},
             {"DPH", 24, R},
             {"Celkem", 30, R}},
            styl(9, true), true);
    t.radek(DOCSECTION_ITEMS, 86,
            {{"{polozka-popis}", 66, L},
             {"{polozka-pocet}", 20, R},
             {"{polozka-mj}", 12, L},
             {"{polozka-cenamj}", 24, R},
             {"{polozka-sazba}", 14, R},
             {"{polozka-dph}", 24, R},
             {"{polozka-celkem}", 30, R}},
            styl(9), false);

    t.text(DOCSECTION_FOOTER1, "Rekapitulace DPH", 0, 94, 0, L, styl(9, true));
    t.radek(DOCSECTION_FOOTER1, 99, {{"Sazba", 30, L}, {"Základ", 40, R}, {"DPH", 40, R}}, styl(9, true), false);
    t.radek(DOCSECTION_FOOTER2, 104, {{"{dph-sazba}", 30, L}, {"{dph-zaklad}", 40, R}, {"{dph-dph}", 40, R}}, styl(9),
            false);

    t.cara(DOCSECTION_FOOTER3, 0, 112, 190, 112, 2);
    t.text(DOCSECTION_FOOTER3, "Celkem k úhradě: {faktura-celkem} {faktura-mena}", 190, 115, 0, R, styl(12, true));
    ImageElement qr;
    qr.section = DOCSECTION_FOOTER3;
    qr.path = ImageElement::PATH_QR;
    qr.pos = wxPoint(0, 116);
    qr.width = 40;
    t.doc.addElement(qr);
    t.text(DOCSECTION_FOOTER3, "{firma-telefon}  {firma-email}  {firma-www}", 190, 130, 0, R, styl(8));
    return t.doc;
}
