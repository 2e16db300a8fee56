#include "csvtext.h"

#include <wx/strconv.h>

namespace csvtext {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const size_t UKAZKA_ZNAKU = 40;

// The length of the UTF-8 sequence at `i` when it is a valid one of two to four bytes (no
// overlong forms, no surrogates, nothing above U+10FFFF); 0 otherwise.
size_t utf8Sequence(const std::string& b, size_t i) {
    const auto at = [&](size_t k) { return k < b.size() ? static_cast<unsigned char>(b[k]) : 0u; };
    const unsigned c = at(i);
    const auto cont = [&](size_t k) { return (at(k) & 0xC0) == 0x80; };
    if (c >= 0xC2 && c <= 0xDF) return cont(i + 1) ? 2 : 0;
    if (c >= 0xE0 && c <= 0xEF) {
        const unsigned c1 = at(i + 1);
        if (c == 0xE0 && c1 < 0xA0) return 0;
        if (c == 0xED && c1 > 0x9F) return 0;
        return cont(i + 1) && cont(i + 2) ? 3 : 0;
    }
    if (c >= 0xF0 && c <= 0xF4) {
        const unsigned c1 = at(i + 1);
        if (c == 0xF0 && c1 < 0x90) return 0;
        if (c == 0xF4 && c1 > 0x8F) return 0;
        return cont(i + 1) && cont(i + 2) && cont(i + 3) ? 4 : 0;
    }
    return 0;
}

// Bytes Windows-1250 does not define.
bool isUndefinedCp1250(unsigned char c) { return c == 0x81 || c == 0x83 || c == 0x88 || c == 0x90 || c == 0x98; }

// Control characters no text file holds (a tab and the line breaks are text).
bool isControl(unsigned char c) { return (c < 0x20 && c != '\t' && c != '\n' && c != '\r') || c == 0x7F; }

// The line of a byte: 1 + the line breaks before it ("\r\n" is one).
int lineOf(const std::string& b, size_t pos) {
    int line = 1;
    for (size_t i = 0; i < pos && i < b.size(); ++i) {
        if (b[i] == '\n' || (b[i] == '\r' && (i + 1 >= b.size() || b[i + 1] != '\n'))) ++line;
    }
    return line;
}

Dekodovani refuse(const std::string& b, size_t pos, const wxString& zprava) {
    Dekodovani d;
    d.radek = lineOf(b, pos);
    d.zprava = zprava;
    return d;
}

wxString badByte(unsigned char c) {
    return wxString::Format(u8("soubor není v kódování UTF-8 ani Windows-1250 (neplatný bajt 0x%02X)"), c);
}

Dekodovani fromUtf16(const std::string& bytes) {
    const bool little = static_cast<unsigned char>(bytes[0]) == 0xFF;
    wxMBConvUTF16LE le;
    wxMBConvUTF16BE be;
    const wxMBConv& conv = little ? static_cast<const wxMBConv&>(le) : static_cast<const wxMBConv&>(be);
    Dekodovani d;
    d.text = wxString(bytes.data() + 2, conv, bytes.size() - 2);
    if (d.text.empty() && bytes.size() > 2) {
        d.radek = 1;
        d.zprava = u8("soubor není platný text v kódování UTF-16");
        return d;
    }
    for (size_t i = 0; i < d.text.length(); ++i) {
        const wxUniChar c = d.text[i];
        if (c.GetValue() < 0x80 && isControl(static_cast<unsigned char>(c.GetValue()))) {
            const std::string before(d.text.Left(i).utf8_str());
            d.radek = lineOf(before, before.size());
            d.zprava = wxString::Format(u8("soubor není text (obsahuje řídicí znak 0x%02X)"), c.GetValue());
            d.text.clear();
            return d;
        }
    }
    d.ok = true;
    return d;
}

}  // namespace

wxString ukazka(const wxString& text) {
    if (text.length() <= UKAZKA_ZNAKU) return text;
    return text.Left(UKAZKA_ZNAKU) + wxString(wxUniChar(0x2026));
}

Dekodovani dekodovat(const std::string& bytes) {
    if (bytes.size() >= 2) {
        const unsigned b0 = static_cast<unsigned char>(bytes[0]), b1 = static_cast<unsigned char>(bytes[1]);
        if ((b0 == 0xFF && b1 == 0xFE) || (b0 == 0xFE && b1 == 0xFF)) return fromUtf16(bytes);
    }
    const size_t start = bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? 3 : 0;
    size_t valid = 0, invalid = 0;
    size_t firstInvalid = std::string::npos, firstUndefined = std::string::npos;
    for (size_t i = start; i < bytes.size();) {
        const unsigned char c = static_cast<unsigned char>(bytes[i]);
        if (c < 0x80) {
            if (isControl(c))
                return refuse(bytes, i, wxString::Format(u8("soubor není text (obsahuje řídicí znak 0x%02X)"), c));
            ++i;
            continue;
        }
        if (isUndefinedCp1250(c) && firstUndefined == std::string::npos) firstUndefined = i;
        const size_t n = utf8Sequence(bytes, i);
        if (n > 0) {
            ++valid;
            i += n;
        } else {
            ++invalid;
            if (firstInvalid == std::string::npos) firstInvalid = i;
            ++i;
        }
    }
    if (invalid == 0) {
        Dekodovani d;
        d.text = wxString::FromUTF8(bytes.data() + start, bytes.size() - start);
        d.ok = !d.text.empty() || bytes.size() == start;
        if (!d.ok) return refuse(bytes, start, badByte(static_cast<unsigned char>(bytes[start])));
        return d;
    }
    // Mostly valid sequences with a few broken ones is UTF-8 damaged somewhere; Czech text in
    // Windows-1250 makes a valid sequence only by chance (a capital before "š" or "ž").
    if (valid > 0 && valid >= invalid)
        return refuse(bytes, firstInvalid, badByte(static_cast<unsigned char>(bytes[firstInvalid])));
    if (firstUndefined != std::string::npos)
        return refuse(bytes, firstUndefined, badByte(static_cast<unsigned char>(bytes[firstUndefined])));
    Dekodovani d;
    d.text = wxString(bytes.data() + start, wxCSConv(wxFONTENCODING_CP1250), bytes.size() - start);
    d.ok = !d.text.empty();
    if (!d.ok) return refuse(bytes, firstInvalid, badByte(static_cast<unsigned char>(bytes[firstInvalid])));
    return d;
}

namespace {

bool isBlankChar(wxUniChar c) { return c == ' ' || c == '\t' || c == 0xFEFF; }

// ";" or a tab when the first line with anything but blanks has one outside quotes, else ",".
wxUniChar detectSeparator(const wxString& text) {
    bool quoted = false, tab = false, content = false;
    for (wxUniChar c : text) {
        if (c == '"') quoted = !quoted;
        if (quoted) {
            content = true;
            continue;
        }
        if (c == '\n' || c == '\r') {
            if (content) break;
            tab = false;
            continue;
        }
        if (c == ';') return ';';
        if (c == '\t') tab = true;
        if (!isBlankChar(c)) content = true;
    }
    return tab ? wxUniChar('\t') : wxUniChar(',');
}

wxString trimmed(const wxString& text) {
    wxString t = text;
    t.Trim(true).Trim(false);
    return t;
}

}  // namespace

Ctecka::Ctecka(const wxString& text) : m_text(text), m_it(text.begin()), m_sep(detectSeparator(text)) {
    if (m_it != m_text.end() && *m_it == 0xFEFF) ++m_it;
}

Ctecka::Ctecka(const wxString& text, wxUniChar oddelovac) : m_text(text), m_it(text.begin()), m_sep(oddelovac) {
    if (m_it != m_text.end() && *m_it == 0xFEFF) ++m_it;
}

Ctecka::Stav Ctecka::dalsi(Zaznam* zaznam) {
    zaznam->radek = m_radek;
    zaznam->pole.clear();
    if (m_it == m_text.end()) return Stav::KONEC;
    wxString field;
    bool quoted = false, wasQuoted = false;
    auto fail = [&](int radek, const wxString& chyba) {
        zaznam->radek = radek;
        m_chyba = chyba;
        m_it = m_text.end();
        return Stav::CHYBA;
    };
    auto endField = [&] {
        zaznam->pole.push_back(wasQuoted ? field : trimmed(field));
        field.clear();
        wasQuoted = false;
        return zaznam->pole.size() <= MAX_SLOUPCU;
    };
    for (; m_it != m_text.end(); ++m_it) {
        const wxUniChar c = *m_it;
        if (quoted) {
            if (c == '"') {
                auto next = m_it + 1;
                if (next != m_text.end() && *next == '"') {
                    field += '"';
                    m_it = next;
                } else {
                    quoted = false;
                }
            } else {
                if (c == '\n') ++m_radek;
                field += c;
            }
        } else if (c == '"' && trimmed(field).empty()) {
            field.clear();
            quoted = wasQuoted = true;
        } else if (c == m_sep) {
            if (!endField())
                return fail(zaznam->radek, wxString::Format(u8("více než %d sloupců"), static_cast<int>(MAX_SLOUPCU)));
        } else if (c == '\r' || c == '\n') {
            // "\r\n" is one line break.
            if (c == '\r' && m_it + 1 != m_text.end() && *(m_it + 1) == '\n') ++m_it;
            ++m_it;
            ++m_radek;
            if (!endField())
                return fail(zaznam->radek, wxString::Format(u8("více než %d sloupců"), static_cast<int>(MAX_SLOUPCU)));
            return Stav::ZAZNAM;
        } else {
            field += c;
        }
        if (field.length() > MAX_ZNAKU_POLE) {
            // An unclosed quote swallows the rest of the file into one field; say so.
            return fail(zaznam->radek,
                        wxString::Format(quoted ? u8("pole „%s“ je delší než %d znaků (neukončené uvozovky?)")
                                                : u8("pole „%s“ je delší než %d znaků"),
                                         ukazka(field), static_cast<int>(MAX_ZNAKU_POLE)));
        }
    }
    if (quoted) return fail(zaznam->radek, u8("neukončené uvozovky"));
    if (!endField())
        return fail(zaznam->radek, wxString::Format(u8("více než %d sloupců"), static_cast<int>(MAX_SLOUPCU)));
    return Stav::ZAZNAM;
}

}  // namespace csvtext
