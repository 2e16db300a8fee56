#include "seznamdphprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const wxColour BLACK(0, 0, 0), WHITE(255, 255, 255), GREY(230, 230, 230);

// One row of the table; `styl` set for the totals and the repeated header inside a section.
void addRow(Table& table, const seznamdph::Radek& radek, const TextStyle* styl = nullptr) {
    table.addRow();
    for (const seznamdph::Bunka& b : radek) {
        const wxTextAttrAlignment zarovnani = b.castka ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT;
        if (styl)
            table.addCell(b.text, zarovnani, *styl);
        else
            table.addCell(b.text, zarovnani);
    }
}

}  // namespace

SeznamDphPrint::SeznamDphPrint(wxWindow* parent, const wxString& firma, DruhObdobi druh, int cislo, int rok,
                               const std::vector<seznamdph::Sekce>& sekce)
    : MultiTablePrint(parent, u8("Seznam dokladů DPH")) {
    build(firma, obdobiText(druh, cislo, rok), sekce);
}

SeznamDphPrint::SeznamDphPrint(wxWindow* parent, const wxString& firma, const wxDateTime& od, const wxDateTime& doDne,
                               const std::vector<seznamdph::Sekce>& sekce)
    : MultiTablePrint(parent, u8("Seznam dokladů DPH")) {
    build(firma, obdobiText(od, doDne), sekce);
}

wxString SeznamDphPrint::obdobiText(DruhObdobi druh, int cislo, int rok) {
    const wxString nazev = druh == DruhObdobi::Ctvrtleti ? lxutils::ctvrtletiString(cislo) : lxutils::mesicString(cislo);
    return nazev + wxString::Format("/%d", rok);
}

wxString SeznamDphPrint::obdobiText(const wxDateTime& od, const wxDateTime& doDne) {
    return lxformat::formatDatum(od) + u8(" – ") + lxformat::formatDatum(doDne);
}

void SeznamDphPrint::build(const wxString& firma, const wxString& obdobi,
                           const std::vector<seznamdph::Sekce>& sekce) {
    m_layout.headerLeftText = firma;
    m_layout.headerCenterText = m_title;
    m_layout.headerRightText = obdobi;
    m_layout.headerLine = true;
    // Wide sections (three rates of older years) do not fit a portrait sheet anyway.
    m_layout.paperOrientation = wxLANDSCAPE;

    const TextStyle soucet(printFont(8).Bold(), BLACK, WHITE);
    const TextStyle hlavicka(printFont(8).Bold(), BLACK, GREY);
    for (const seznamdph::Sekce& s : sekce) {
        if (s.bloky.empty()) continue;
        Table tabulka;
        tabulka.tableTitle.title = s.nadpis + "\n" + s.podnadpis + "\n" + s.strana;
        tabulka.tableTitle.style = TextStyle(printFont(10).Bold(), BLACK, WHITE);
        for (const seznamdph::Bunka& b : s.bloky.front().hlavicka)
            tabulka.addCellToHeader(b.text, b.castka ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
        for (size_t i = 0; i < s.bloky.size(); ++i) {
            const seznamdph::Blok& blok = s.bloky[i];
            // A later block has other rates: its own header stands in the table above its rows.
            if (i > 0) addRow(tabulka, blok.hlavicka, &hlavicka);
            for (const seznamdph::Radek& r : blok.doklady) addRow(tabulka, r);
            addRow(tabulka, blok.celkem, &soucet);
        }
        // "Popis" may hold long texts; they wrap rather than push the amounts off the sheet.
        tabulka.setColumnWidth(3, 45);
        m_tabulky.push_back(tabulka);
    }
    setTables(&m_tabulky);
}
