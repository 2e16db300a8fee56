#include "lxformat.h"

#include <algorithm>
#include <cmath>
#include <charconv>
#include <cstdio>
#include <string>

namespace lxformat {

namespace {

// printf-style fixed notation that ignores LC_NUMERIC: the point is always a point.
std::string fixed(double value, int decimals) {
    char buffer[64];
    const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return ec == std::errc() ? std::string(buffer, end) : std::string("0");
}

wxString u8(const char* text) { return wxString::FromUTF8(text); }

bool isDigit(wxUniChar c) { return c >= '0' && c <= '9'; }

// The blanks people put between groups of digits, pasted from the web or from a bank.
bool isBlank(wxUniChar c) { return c == ' ' || c == 0x00A0 || c == 0x202F || c == 0x2009; }

// Checks that the integer part's groups after the first have exactly three digits.
bool groupsOfThree(const std::string& intPart, char sep) {
    size_t start = 0;
    bool first = true;
    while (true) {
        const size_t pos = intPart.find(sep, start);
        const size_t len = (pos == std::string::npos ? intPart.size() : pos) - start;
        if (first ? (len < 1 || len > 3) : len != 3) return false;
        if (pos == std::string::npos) return true;
        first = false;
        start = pos + 1;
    }
}

// Reads the number of an amount or a rate. Spaces between groups become one kind of
// separator first; then the text is digits with at most the separators we know.
Chyba parseNumber(const wxString& text, bool castka, double* value) {
    wxString t = text;
    t.Trim(true).Trim(false);
    if (castka) {
        wxString lower = t.Lower();
        if (lower.EndsWith(u8("kč"))) {
            t.RemoveLast(2);
            t.Trim(true);
        }
    }
    if (t.empty()) return Chyba::PRAZDNE;

    std::string s;  // the text in ASCII, blanks between digits as ' '
    bool negative = false;
    size_t i = 0;
    if (t[0] == '-' || t[0] == 0x2212 || t[0] == '+') {
        negative = t[0] != '+';
        i = 1;
        while (i < t.length() && isBlank(t[i])) ++i;
    }
    for (; i < t.length(); ++i) {
        const wxUniChar c = t[i];
        if (isDigit(c) || c == ',' || c == '.') {
            s += static_cast<char>(c.GetValue());
        } else if (isBlank(c)) {
            // A blank may only stand between two digits.
            if (s.empty() || !isdigit(static_cast<unsigned char>(s.back())) || i + 1 >= t.length() ||
                !isDigit(t[i + 1]))
                return Chyba::SYNTAXE;
            s += ' ';
        } else {
            return Chyba::SYNTAXE;
        }
    }
    if (s.empty() || s.find_first_of("0123456789") == std::string::npos) return Chyba::SYNTAXE;

    const size_t commas = std::count(s.begin(), s.end(), ',');
    const size_t dots = std::count(s.begin(), s.end(), '.');
    const bool blanks = s.find(' ') != std::string::npos;
    std::string intPart, fracPart;
    if (commas > 1) return Chyba::SYNTAXE;
    if (commas == 1) {
        // Decimal comma; dots or blanks, not both, group the thousands before it.
        const size_t pos = s.find(',');
        intPart = s.substr(0, pos);
        fracPart = s.substr(pos + 1);
        if (fracPart.find_first_not_of("0123456789") != std::string::npos) return Chyba::SYNTAXE;
        if (dots > 0 && blanks) return Chyba::SYNTAXE;
        if (dots > 0 && !groupsOfThree(intPart, '.')) return Chyba::SYNTAXE;
    } else if (dots > 1) {
        // "1.250.000": dots between groups, no fraction.
        if (blanks || !groupsOfThree(s, '.')) return Chyba::SYNTAXE;
        intPart = s;
    } else if (dots == 1) {
        const size_t pos = s.find('.');
        intPart = s.substr(0, pos);
        fracPart = s.substr(pos + 1);
        if (fracPart.find_first_not_of("0123456789") != std::string::npos) return Chyba::SYNTAXE;
        // "12.500" may be a grouped twelve thousand; an amount must not guess.
        const std::string digits = intPart;
        if (castka && !blanks && fracPart.size() == 3 && !digits.empty() && digits.size() <= 3 && digits[0] != '0')
            return Chyba::NEJEDNOZNACNE;
    } else {
        intPart = s;
    }
    if (blanks && !groupsOfThree(intPart, ' ')) return Chyba::SYNTAXE;

    std::string plain;
    for (char c : intPart)
        if (isdigit(static_cast<unsigned char>(c))) plain += c;
    if (plain.empty()) plain = "0";
    if (!fracPart.empty()) plain += "." + fracPart;
    // Only digits and one point are left; from_chars reads them without regard to the
    // locale the program runs in (a Czech LC_NUMERIC would make strtod expect a comma).
    double v = 0;
    const auto [end, ec] = std::from_chars(plain.data(), plain.data() + plain.size(), v);
    if (ec != std::errc() || end != plain.data() + plain.size() || !std::isfinite(v)) return Chyba::SYNTAXE;
    *value = negative ? -v : v;
    return Chyba::ZADNA;
}

}  // namespace

Chyba parseCastka(const wxString& text, double* value) {
    double v = 0;
    const Chyba chyba = parseNumber(text, true, &v);
    if (chyba != Chyba::ZADNA) return chyba;
    if (!(std::fabs(v) < MAX_CASTKA)) return Chyba::ROZSAH;
    *value = v == 0 ? 0.0 : v;  // no "-0,00"
    return Chyba::ZADNA;
}

Chyba parseKurz(const wxString& text, double* value) {
    double v = 0;
    const Chyba chyba = parseNumber(text, false, &v);
    if (chyba != Chyba::ZADNA) return chyba;
    if (!(v > 0 && v < MAX_KURZ)) return Chyba::ROZSAH;
    *value = v;
    return Chyba::ZADNA;
}

wxDateTime parseDatum(const wxString& text, int rokBezRoku) {
    wxString t = text;
    t.Trim(true).Trim(false);
    long d = 0, m = 0, y = 0;
    auto number = [](const wxString& part, long* out) {
        wxString p = part;
        p.Trim(true).Trim(false);
        if (p.empty() || p.length() > 4) return false;
        for (wxUniChar c : p)
            if (!isDigit(c)) return false;
        return p.ToLong(out, 10);
    };
    if (t.length() == 10 && t[4] == '-' && t[7] == '-') {
        if (!number(t.Mid(0, 4), &y) || !number(t.Mid(5, 2), &m) || !number(t.Mid(8, 2), &d)) return wxDateTime();
    } else {
        wxArrayString parts;
        wxString rest = t;
        for (int k = 0; k < 3 && !rest.empty(); ++k) {
            parts.Add(rest.BeforeFirst('.'));
            rest = rest.Contains(".") ? rest.AfterFirst('.') : wxString();
        }
        if (!rest.empty()) return wxDateTime();
        // "15.10." leaves an empty year: the given one.
        if (parts.size() == 3 && parts[2].Strip(wxString::both).empty()) parts.RemoveAt(2);
        if (parts.size() == 2 && t.EndsWith(".")) {
            y = rokBezRoku;
        } else if (parts.size() == 3) {
            if (!number(parts[2], &y)) return wxDateTime();
            const wxString yy = parts[2].Strip(wxString::both);
            if (yy.length() == 2) y += 2000;
            else if (yy.length() != 4) return wxDateTime();
        } else {
            return wxDateTime();
        }
        if (!number(parts[0], &d) || !number(parts[1], &m)) return wxDateTime();
    }
    if (y < 1900 || y > 2999 || m < 1 || m > 12 || d < 1) return wxDateTime();
    const auto month = static_cast<wxDateTime::Month>(m - 1);
    if (d > wxDateTime::GetNumberOfDays(month, static_cast<int>(y))) return wxDateTime();
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(d), month, static_cast<int>(y));
}

wxString castkaZprava(const wxString& pole, const wxString& text, Chyba chyba) {
    switch (chyba) {
        case Chyba::ZADNA:
            return wxString();
        case Chyba::PRAZDNE:
            return wxString::Format(u8("%s: zadejte částku"), pole);
        case Chyba::NEJEDNOZNACNE:
            return wxString::Format(u8("%s: „%s“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), "
                                       "tisíce mezerou (12 500)."),
                                    pole, text);
        case Chyba::ROZSAH:
            return wxString::Format(u8("%s: částka „%s“ je mimo povolený rozsah"), pole, text);
        case Chyba::SYNTAXE:
            break;
    }
    return wxString::Format(u8("%s: „%s“ není platná částka.\nZadejte například 1250, 1 250,50 nebo 1250.50."), pole,
                            text);
}

wxString kurzZprava(const wxString& pole, const wxString& text, Chyba chyba) {
    switch (chyba) {
        case Chyba::ZADNA:
            return wxString();
        case Chyba::PRAZDNE:
            return wxString::Format(u8("%s: zadejte kurz"), pole);
        case Chyba::ROZSAH:
            return wxString::Format(u8("%s: kurz „%s“ musí být větší než nula a menší než milion"), pole, text);
        default:
            break;
    }
    return wxString::Format(u8("%s: „%s“ není platný kurz.\nZadejte například 25,345 nebo 0,001547."), pole, text);
}

wxString datumZprava(const wxString& pole, const wxString& text) {
    return wxString::Format(u8("%s: „%s“ není platné datum.\nZadejte například 15.10.2026."), pole, text);
}

wxString formatCastka(double value, bool skupiny) {
    if (!std::isfinite(value)) return wxString("?");
    std::string s = fixed(value, 2);
    if (s == "-0.00") s = "0.00";
    const bool negative = s[0] == '-';
    if (negative) s.erase(0, 1);
    const size_t point = s.find('.');
    const std::string intPart = s.substr(0, point);
    wxString out = negative ? wxString("-") : wxString();
    for (size_t i = 0; i < intPart.size(); ++i) {
        if (skupiny && i > 0 && (intPart.size() - i) % 3 == 0) out += wxUniChar(0x00A0);
        out += intPart[i];
    }
    out += ',';
    out += wxString::FromAscii(s.c_str() + point + 1);
    return out;
}

wxString formatCastka(double value, const wxString& mena, bool skupiny) {
    return formatCastka(value, skupiny) + " " + mena;
}

wxString formatKurz(double value) {
    if (!std::isfinite(value)) return wxString("?");
    std::string s = fixed(value, 8);
    while (!s.empty() && s.back() == '0') s.pop_back();
    if (!s.empty() && s.back() == '.') s.pop_back();
    if (s == "-0") s = "0";
    wxString out = wxString::FromAscii(s.c_str());
    out.Replace(".", ",");
    return out;
}

wxString formatMnozstvi(double value) {
    if (!std::isfinite(value)) return wxString("?");
    wxString out = wxString::FromAscii(fixed(value, 3).c_str());
    if (out == "-0.000") out = "0.000";
    out.Replace(".", ",");
    return out;
}

wxString formatDatum(const wxDateTime& date) {
    if (!date.IsValid()) return wxString();
    return wxString::Format("%02d.%02d.%04d", date.GetDay(), static_cast<int>(date.GetMonth()) + 1, date.GetYear());
}

}  // namespace lxformat
