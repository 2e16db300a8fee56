#include "podaniprint.h"

#include <cmath>

#include "dph/ciselniky.h"
#include "dph/dphobdobi.h"
#include "dph/podani.h"
#include "lxformat.h"

namespace podaniprint {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString platce(const Podani& p, const char* atribut) { return p.atributValue("VetaP", atribut); }

}  // namespace

Styly styly() {
    const wxColour black(0, 0, 0), white(255, 255, 255), grey(225, 225, 225);
    return {TextStyle(printFont(13).Bold(), black, white), TextStyle(printFont(10).Bold(), black, white),
            TextStyle(printFont(8).Bold(), black, white),  TextStyle(printFont(8), black, white),
            TextStyle(printFont(7), black, white),         TextStyle(printFont(7).Bold(), black, grey)};
}

TableRowElement radek(const std::vector<Bunka>& bunky, const TextStyle& style) {
    TableRowElement row;
    row.textStyle = style;
    row.border = true;
    for (const Bunka& b : bunky) {
        row.addCellValue(b.text);
        row.addCellWidth(b.sirka);
        row.addCellAlignment(b.zarovnani);
    }
    return row;
}

int vyska(const Element& e) { return static_cast<int>(std::ceil(e.bounds().m_height)); }

void nastavitStranu(Document& doc) {
    doc.layout.marginLeft = 10;
    doc.layout.marginRight = 10;
    doc.layout.marginTop = 8;
    doc.layout.marginBottom = 12;
    doc.layout.footer = lxPrint::FOOTER_PAGES;
}

bool Sazba::need(int mm) {
    // An element taller than a whole page still goes somewhere: on the empty page it starts.
    if (m_y + mm <= m_bottom || m_y == 0) return true;
    novaStrana();
    return false;
}

void Sazba::tabulka(const std::optional<TextElement>& nazev, const TableRowElement& hlava,
                    const std::vector<TableRowElement>& radky) {
    const int nazevVyska = nazev ? vyska(*nazev) + 1 : 0;
    const int prvniVyska = radky.empty() ? 0 : vyska(radky.front());
    need(nazevVyska + vyska(hlava) + prvniVyska);
    if (nazev) {
        append(*nazev);
        skip(1);
    }
    append(hlava);
    for (const TableRowElement& row : radky) {
        if (!need(vyska(row))) append(hlava);
        append(row);
    }
}

wxString celeKoruny(const wxString& ulozeno) {
    if (ulozeno.empty()) return wxString();
    wxString text = lxformat::formatCastka(vetaformat::parseCislo(ulozeno));
    if (text.EndsWith(",00")) text.RemoveLast(3);
    return text;
}

std::vector<Udaj> udajeUradu(const Podani& p) {
    // Named from the downloaded code lists; without them, or for a code they do not know, by
    // the code itself.
    const auto nazev = [&p](const char* atribut, wxString (*podleKodu)(int)) {
        const wxString kod = platce(p, atribut);
        const wxString text = kod.empty() ? wxString() : podleKodu(p.atributValueInt("VetaP", atribut));
        return text.empty() ? kod : text;
    };
    const wxString dic = platce(p, "dic");
    return {{u8("Finančnímu úřadu pro / Specializovanému finančnímu úřadu"), nazev("c_ufo", lxutils::nazevUfo)},
            {u8("Územní pracoviště v, ve, pro"), nazev("c_pracufo", lxutils::nazevPracufo)},
            {u8("Daňové identifikační číslo"), dic.empty() ? wxString() : "CZ" + dic}};
}

wxString osobaNadpis(const Podani& p) { return u8(platce(p, "typ_ds") == "P" ? "Právnická osoba:" : "Fyzická osoba:"); }

std::vector<Udaj> udajeOsoby(const Podani& p) {
    if (platce(p, "typ_ds") == "P") return {{u8("Obchodní jméno"), platce(p, "zkrobchjm")}};
    return {
        {u8("Příjmení"), platce(p, "prijmeni")}, {u8("Jméno"), platce(p, "jmeno")}, {u8("Titul"), platce(p, "titul")}};
}

Udaj obdobi(const Podani& p) {
    const wxString rok = p.atributValue("VetaD", "rok");
    const int mesic = p.atributValueInt("VetaD", "mesic");
    if (mesic > 0) return {u8("za kalendářní měsíc"), lxutils::mesicString(mesic) + " " + rok};
    const int ctvrt = p.atributValueInt("VetaD", "ctvrt");
    if (ctvrt > 0) return {u8("za kalendářní čtvrtletí"), lxutils::ctvrtletiString(ctvrt) + " " + rok};
    return {u8("za období"), p.atributValue("VetaD", "zdobd_od") + " - " + p.atributValue("VetaD", "zdobd_do")};
}

}  // namespace podaniprint
