#include "pohyb.h"

#include <wx/regex.h>

namespace vypis {

namespace {

bool jenCislice(const wxString& text) {
    if (text.empty()) return false;
    for (wxUniChar c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

wxString bezNul(const wxString& cislice) {
    size_t i = 0;
    while (i + 1 < cislice.length() && cislice[i] == '0') ++i;
    return cislice.Mid(i);
}

}  // namespace

wxString normalizovatSymbol(const wxString& text) {
    const wxString t = text.Strip(wxString::both);
    if (!jenCislice(t)) return t;
    const wxString s = bezNul(t);
    return s == "0" ? wxString() : s;
}

wxString normalizovatUcet(const wxString& ucetText, const wxString& kodBankyText) {
    wxString ucet;
    for (wxUniChar c : ucetText)
        if (c != ' ') ucet += c;
    ucet.MakeUpper();
    wxString kod = kodBankyText.Strip(wxString::both);
    wxString prefix, cislo;
    if (ucet.length() == 24 && ucet.StartsWith("CZ") && jenCislice(ucet.Mid(2))) {
        // Czech IBAN: check digits, bank code (4), prefix (6), number (10).
        kod = ucet.Mid(4, 4);
        prefix = ucet.Mid(8, 6);
        cislo = ucet.Mid(14, 10);
    } else {
        const int lomitko = ucet.Find('/');
        if (lomitko != wxNOT_FOUND) {
            kod = ucet.Mid(lomitko + 1);
            ucet = ucet.Left(lomitko);
        }
        const int pomlcka = ucet.Find('-');
        if (pomlcka != wxNOT_FOUND) {
            prefix = ucet.Left(pomlcka);
            cislo = ucet.Mid(pomlcka + 1);
        } else if (ucet.length() == 16 && jenCislice(ucet)) {
            prefix = ucet.Left(6);
            cislo = ucet.Mid(6);
        } else {
            cislo = ucet;
        }
        if (!jenCislice(cislo) || (!prefix.empty() && !jenCislice(prefix)) || (!kod.empty() && !jenCislice(kod)))
            return ucet + (kod.empty() ? wxString() : "/" + kod);
    }
    cislo = bezNul(cislo);
    prefix = prefix.empty() ? wxString() : bezNul(prefix);
    if (cislo == "0" && (prefix.empty() || prefix == "0")) return wxString();
    wxString result = (prefix.empty() || prefix == "0") ? cislo : prefix + "-" + cislo;
    if (!kod.empty() && kod != "0000" && kod != "0") result += "/" + kod;
    return result;
}

wxString symbolZTextu(const wxString& text, wxString* ks, wxString* ss) {
    // The named forms first; a bare number only when the whole text is one.
    static const wxRegEx vsRe("(^|[^A-Z])VS[/: ]*([0-9]{1,10})([^0-9]|$)", wxRE_ADVANCED | wxRE_ICASE);
    static const wxRegEx ksRe("(^|[^A-Z])KS[/: ]*([0-9]{1,10})([^0-9]|$)", wxRE_ADVANCED | wxRE_ICASE);
    static const wxRegEx ssRe("(^|[^A-Z])SS[/: ]*([0-9]{1,10})([^0-9]|$)", wxRE_ADVANCED | wxRE_ICASE);
    if (ks && ksRe.Matches(text)) *ks = normalizovatSymbol(ksRe.GetMatch(text, 2));
    if (ss && ssRe.Matches(text)) *ss = normalizovatSymbol(ssRe.GetMatch(text, 2));
    if (vsRe.Matches(text)) return normalizovatSymbol(vsRe.GetMatch(text, 2));
    const wxString t = text.Strip(wxString::both);
    if (t.length() <= 10 && jenCislice(t)) return normalizovatSymbol(t);
    return wxString();
}

}  // namespace vypis
