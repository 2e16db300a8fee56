#include "pokladniknihaprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }

}  // namespace

Table tabulkaPohybu(const wxString& nadpis, double pocatecniStav, const std::vector<PokladniPohyb>& pohyby,
                    double* prijmy, double* vydaje, double* stav) {
    Table kniha;
    kniha.tableTitle.title = nadpis;
    for (const char* name : {"Datum", "Doklad", "Popis", "Příjem", "Výdej", "Zůstatek"})
        kniha.addCellToHeader(u8(name));
    kniha.setColumnWidth(2, 70);
    *stav = pocatecniStav;
    *prijmy = *vydaje = 0;
    for (const PokladniPohyb& p : pohyby) {
        *stav += p.prijem - p.vydej;
        *prijmy += p.prijem;
        *vydaje += p.vydej;
        kniha.addRow();
        kniha.addCell(p.datum);
        kniha.addCell(p.doklad);
        kniha.addCell(p.popis);
        kniha.addCell(p.prijem != 0 ? castka(p.prijem) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(p.vydej != 0 ? castka(p.vydej) : wxString(), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(castka(*stav), wxTEXT_ALIGNMENT_RIGHT);
    }
    return kniha;
}

PokladniKnihaPrint::PokladniKnihaPrint(wxWindow* parent, const wxString& firma, const wxString& pokladna, int rok,
                                       double pocatecniStav, const std::vector<PokladniPohyb>& pohyby)
    : MultiTablePrint(parent, wxString::Format(u8("Pokladní kniha %s %d"), pokladna, rok)) {
    setBookHeader(firma);

    double prijmy = 0, vydaje = 0, stav = 0;
    const Table kniha = tabulkaPohybu(m_title, pocatecniStav, pohyby, &prijmy, &vydaje, &stav);

    Table souhrn;
    souhrn.tableTitle.title = u8("Souhrn");
    souhrn.addCellToHeader(u8("Položka"));
    souhrn.addCellToHeader(u8("Částka"), wxTEXT_ALIGNMENT_RIGHT);
    const std::pair<const char*, double> radky[] = {{"Počáteční stav", pocatecniStav},
                                                    {"Příjmy celkem", prijmy},
                                                    {"Výdaje celkem", vydaje},
                                                    {"Konečný stav", stav}};
    for (const auto& [nazev, hodnota] : radky) {
        souhrn.addRow();
        souhrn.addCell(u8(nazev));
        souhrn.addCell(castka(hodnota), wxTEXT_ALIGNMENT_RIGHT);
    }

    m_tabulky.push_back(kniha);
    m_tabulky.push_back(souhrn);
    setTables(&m_tabulky);
}
