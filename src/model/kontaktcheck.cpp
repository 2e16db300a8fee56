#include "kontaktcheck.h"

namespace kontaktcheck {

namespace {

wxString compact(const wxString& text) {
    wxString out;
    for (const wxUniChar c : text) {
        if (c != ' ' && c != 0xA0 && c != '\t') out += c;
    }
    return out;
}

bool isDigit(wxUniChar c) { return c >= '0' && c <= '9'; }
bool isAsciiAlnum(wxUniChar c) { return isDigit(c) || (c >= 'A' && c <= 'Z'); }

// The VAT prefixes of the EU members (Greece uses EL, Northern Ireland XI).
const char* const EU_PREFIXES[] = {"AT", "BE", "BG", "CY", "CZ", "DE", "DK", "EE", "EL", "ES", "FI", "FR", "HR", "HU",
                                   "IE", "IT", "LT", "LU", "LV", "MT", "NL", "PL", "PT", "RO", "SE", "SI", "SK", "XI"};

}  // namespace

bool isIcValid(const wxString& ic) {
    const wxString digits = compact(ic);
    if (digits.length() != 8) return false;
    int sum = 0;
    for (size_t i = 0; i < 8; ++i) {
        if (!isDigit(digits[i])) return false;
        if (i < 7) sum += static_cast<int>(digits[i].GetValue() - '0') * static_cast<int>(8 - i);
    }
    const int check = (11 - sum % 11) % 10;
    return static_cast<int>(digits[7].GetValue() - '0') == check;
}

bool isDicValid(const wxString& dic) {
    const wxString text = compact(dic).Upper();
    if (text.length() < 4) return false;
    const wxString prefix = text.Left(2);
    const wxString rest = text.Mid(2);
    bool known = false;
    for (const char* p : EU_PREFIXES) known = known || prefix == p;
    if (!known) return false;
    if (prefix == "CZ") {
        if (rest.length() < 8 || rest.length() > 10) return false;
        for (const wxUniChar c : rest)
            if (!isDigit(c)) return false;
        return true;
    }
    if (rest.length() < 2 || rest.length() > 12) return false;
    for (const wxUniChar c : rest)
        if (!isAsciiAlnum(c)) return false;
    return true;
}

bool isEmailValid(const wxString& email) {
    const int at = email.Find('@', true);
    if (at <= 0 || static_cast<size_t>(at) + 1 >= email.length()) return false;
    for (const wxUniChar c : email)
        if (c == ' ' || c == '\t' || c == 0xA0) return false;
    return true;
}

wxString warnings(const Kontakt& kontakt) {
    wxString text;
    const wxString ic = kontakt.ic().Strip(wxString::both);
    const wxString dic = kontakt.dic().Strip(wxString::both);
    const wxString email = kontakt.email().Strip(wxString::both);
    if (!ic.empty() && !isIcValid(ic))
        text += wxString::Format(wxString::FromUTF8("IČ %s není platné (8 číslic s kontrolní číslicí)\n"), ic);
    if (!dic.empty() && !isDicValid(dic))
        text += wxString::Format(
            wxString::FromUTF8("DIČ %s nemá platný tvar (CZ a 8 až 10 číslic, nebo kód státu EU a 2 až 12 znaků)\n"),
            dic);
    if (!email.empty() && !isEmailValid(email))
        text += wxString::Format(wxString::FromUTF8("E-mail %s není platná adresa\n"), email);
    return text;
}

}  // namespace kontaktcheck
