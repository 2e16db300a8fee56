#include "fulldenikprint.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// Date, document number and description come before the amount columns; the first two are
// repeated with every group of amount columns.
constexpr int DATUM = 0, DOKLAD = 1, POPIS = 2, PRVNI_CASTKA = 3;
constexpr int OPAKOVANE = 2;
// A long description wraps rather than taking the room of amount columns.
constexpr double POPIS_MAX_MM = 50;
// Thousands are grouped as long as an amount column stays this narrow (or its header needs
// more room anyway); beyond it the digits run together.
constexpr double CASTKA_MAX_MM = 24;
// Room between the title and the header row, as the table print leaves it.
constexpr double TITLE_GAP_MM = 2;

TextStyle souctovyStyl() { return TextStyle(printFont(8).Bold(), wxColour(0, 0, 0), wxColour(255, 255, 255)); }

}  // namespace

FullDenikPrint::FullDenikPrint(wxWindow* parent, const wxString& firma, int rok, const std::vector<Sloupec>& sloupce,
                               const std::vector<Radek>& radky)
    : SplitTablePrint(parent, wxString::Format(u8("Peněžní deník %d"), rok)), m_sloupce(sloupce), m_radky(radky) {
    setBookHeader(firma);
    m_layout.paperOrientation = wxLANDSCAPE;
    setTable(&m_denik);
}

wxString FullDenikPrint::zahlavi(const Sloupec& sloupec) {
    wxString nazev = sloupec.popis.Strip(wxString::both);
    wxString upresneni;
    const int zavorka = nazev.Find('(');
    if (zavorka > 0 && nazev.EndsWith(")")) {
        upresneni = nazev.Mid(zavorka + 1, nazev.length() - zavorka - 2).Strip(wxString::both);
        nazev = nazev.Left(zavorka).Strip(wxString::both);
        const wxString smer = upresneni.BeforeFirst(' ');
        if (upresneni.Contains(u8("neovlivňující")))
            upresneni = u8("nedaňový ") + smer;
        else if (upresneni.Contains(u8("ovlivňující")))
            upresneni = u8("daňový ") + smer;
    }
    wxString text = wxString::Format("%d %s", sloupec.cislo, nazev);
    if (!upresneni.empty()) text += "\n" + upresneni;
    return text;
}

wxString FullDenikPrint::castka(double value, int sloupec) const {
    return lxformat::formatCastka(value, m_skupiny[sloupec]);
}

void FullDenikPrint::sirkySloupcu(const std::vector<std::vector<double>>& castky) {
    const TextStyle bezny = m_denik.style, soucet = souctovyStyl();
    m_skupiny.assign(m_sloupce.size(), true);
    for (size_t i = 0; i < m_sloupce.size(); ++i) {
        double bezSkupin = 0, seSkupinami = 0;
        for (size_t k = 0; k < castky[i].size(); ++k) {
            // The last amount of each column stands for the totals, which print in bold.
            const TextStyle& styl = k + 1 == castky[i].size() ? soucet : bezny;
            const double v = castky[i][k];
            bezSkupin = std::max(
                bezSkupin, Table::cellWidth(TableCell(lxformat::formatCastka(v, false), wxTEXT_ALIGNMENT_RIGHT, styl)));
            seSkupinami =
                std::max(seSkupinami,
                         Table::cellWidth(TableCell(lxformat::formatCastka(v, true), wxTEXT_ALIGNMENT_RIGHT, styl)));
        }
        double sirka = std::max(Table::narrowestWidth(m_denik.header[PRVNI_CASTKA + i]), bezSkupin);
        if (seSkupinami <= std::max(sirka, CASTKA_MAX_MM))
            sirka = std::max(sirka, seSkupinami);
        else
            m_skupiny[i] = false;
        m_denik.setColumnWidth(PRVNI_CASTKA + static_cast<int>(i), sirka);
    }
}

void FullDenikPrint::addRadekSouctu(const wxString& nazev, const std::vector<double>& soucty) {
    const TextStyle styl = souctovyStyl();
    m_denik.addRow();
    m_denik.addCell(nazev, wxTEXT_ALIGNMENT_LEFT, styl);
    m_denik.addCell(wxString(), wxTEXT_ALIGNMENT_LEFT, styl);
    m_denik.addCell(wxString(), wxTEXT_ALIGNMENT_LEFT, styl);
    for (size_t i = 0; i < soucty.size(); ++i) m_denik.addCell(castka(soucty[i], i), wxTEXT_ALIGNMENT_RIGHT, styl);
}

int FullDenikPrint::paginate() {
    const size_t n = m_sloupce.size();
    std::map<int, size_t> indexSloupce;
    for (size_t i = 0; i < n; ++i) indexSloupce[m_sloupce[i].cislo] = i;

    m_denik = Table();
    m_denik.tableTitle.title = m_title;
    m_denik.repeatedColumns = OPAKOVANE;
    m_denik.setColumns(PRVNI_CASTKA + static_cast<int>(n));
    m_denik.addCellToHeader(u8("Datum"));
    m_denik.addCellToHeader(u8("Doklad"));
    m_denik.addCellToHeader(u8("Popis"));
    for (const Sloupec& s : m_sloupce) m_denik.addCellToHeader(zahlavi(s));

    // Each entry's column, and every amount a column will show: the entries' amounts and,
    // last, a stand-in for the totals as wide as any running total can be.
    std::vector<int> sloupecRadku;
    std::vector<std::vector<double>> castky(n);
    std::vector<double> celkem(n, 0.0), absolutne(n, 0.0);
    for (const Radek& r : m_radky) {
        const auto it = indexSloupce.find(r.sloupec);
        sloupecRadku.push_back(it == indexSloupce.end() ? -1 : static_cast<int>(it->second));
        if (it == indexSloupce.end()) continue;
        castky[it->second].push_back(r.castka);
        celkem[it->second] += r.castka;
        absolutne[it->second] += std::fabs(r.castka);
    }
    for (size_t i = 0; i < n; ++i) {
        const bool zaporne = std::any_of(castky[i].begin(), castky[i].end(), [](double v) { return v < 0; });
        castky[i].push_back(zaporne ? -absolutne[i] : absolutne[i]);
    }
    sirkySloupcu(castky);

    lxTableRowArray radky;
    for (size_t r = 0; r < m_radky.size(); ++r) {
        m_denik.addRow();
        m_denik.addCell(lxformat::formatDatum(m_radky[r].datum));
        m_denik.addCell(m_radky[r].cislo);
        m_denik.addCell(m_radky[r].popis);
        for (size_t i = 0; i < n; ++i)
            m_denik.addCell(sloupecRadku[r] == static_cast<int>(i) ? castka(m_radky[r].castka, i) : wxString(),
                            wxTEXT_ALIGNMENT_RIGHT);
    }
    // A totals row measures the label columns and the height of every totals row.
    addRadekSouctu(u8("Převod"), celkem);
    m_denik.refreshCellsSize();
    if (m_denik.columnWidth(POPIS) > POPIS_MAX_MM) m_denik.setColumnWidth(POPIS, POPIS_MAX_MM);
    for (int c : {DATUM, DOKLAD}) m_denik.setColumnWidth(c, m_denik.columnWidth(c));
    m_denik.refreshCellsSize();
    const double vyskaSouctu = m_denik.rowHeight(static_cast<int>(m_denik.rows.size()) - 1);
    std::vector<double> vysky;
    for (size_t r = 0; r < m_radky.size(); ++r) vysky.push_back(m_denik.rowHeight(static_cast<int>(r)));
    radky.assign(m_denik.rows.begin(), m_denik.rows.end() - 1);
    m_denik.rows.clear();

    // Rows per page: each page keeps room for its closing totals and, after the first, for
    // the totals carried over; the first page also holds the title.
    const double vyska = lxPrint::usablePageHeightMm(m_layout.paperOrientation) - m_layout.marginTop -
                         m_layout.marginBottom - m_denik.headerHeight();
    std::vector<std::pair<size_t, size_t>> strany;  // [first, end) of the entries
    size_t r = 0;
    do {
        const bool prvni = strany.empty();
        const double misto = vyska - vyskaSouctu - (prvni ? m_denik.titleHeight() + TITLE_GAP_MM : vyskaSouctu);
        const size_t od = r;
        double obsazeno = 0;
        while (r < radky.size() && (r == od || obsazeno + vysky[r] <= misto)) obsazeno += vysky[r++];
        strany.emplace_back(od, r);
    } while (r < radky.size());

    std::vector<double> prubezne(n, 0.0);
    lxTableRowsPerPageArray stranky;
    for (size_t s = 0; s < strany.size(); ++s) {
        const int zacatek = static_cast<int>(m_denik.rows.size());
        if (s > 0) addRadekSouctu(u8("Převod"), prubezne);
        for (size_t k = strany[s].first; k < strany[s].second; ++k) {
            m_denik.rows.push_back(radky[k]);
            if (sloupecRadku[k] >= 0) prubezne[sloupecRadku[k]] += m_radky[k].castka;
        }
        addRadekSouctu(s + 1 == strany.size() ? u8("Celkem") : u8("Převod"), prubezne);
        stranky.push_back({zacatek, static_cast<int>(m_denik.rows.size()) - 1});
    }
    m_denik.refreshCellsSize();
    m_denik.setRowsPerPage(stranky);
    m_denik.columnsSplit = splitColumns(m_denik, lxPrint::printableWidthMm(m_layout));
    return m_denik.pages();
}
