// Reading the CSV files people save from spreadsheets: the bytes of a file decided as UTF-8,
// Windows-1250 or UTF-16 (or refused, naming the line with the bad byte), and the text split
// into records with bounds on what one field and one record may hold, so that a hostile or
// mistaken file ends in a message instead of gigabytes of memory.
#pragma once

#include <wx/string.h>

#include <string>
#include <vector>

namespace csvtext {

constexpr size_t MAX_ZNAKU_POLE = 1000;  // characters of one field
constexpr size_t MAX_SLOUPCU = 64;       // fields of one record

// A text for a message: the first forty characters of a field, "…" after them when cut.
wxString ukazka(const wxString& text);

// The text of a file's bytes. Valid UTF-8 (a byte-order mark is dropped) is read as UTF-8; a
// file with the UTF-16 byte-order mark as UTF-16. Otherwise the bytes are Windows-1250 unless
// they hold a byte that code page leaves undefined or look like UTF-8 with a few broken
// sequences; such a file, and one with control characters of a binary file, is refused.
struct Dekodovani {
    bool ok = false;
    wxString text;
    int radek = 0;    // the line of the bad byte
    wxString zprava;  // what is wrong, without the line
};
Dekodovani dekodovat(const std::string& bytes);

// One record of the file with the line it starts on.
struct Zaznam {
    int radek = 0;
    std::vector<wxString> pole;
};

// Splits a text into records one at a time. The separator is ";" or a tab when the first
// non-blank line has one outside quotes, else ","; a byte-order mark at the start is skipped.
// A field quoted with '"' may hold separators, line breaks and doubled quotes; an unquoted
// field is trimmed. "\r\n", "\n" and "\r" each end a record.
class Ctecka {
 public:
    explicit Ctecka(const wxString& text);
    // The same with the separator given, for files whose layout the user has described.
    Ctecka(const wxString& text, wxUniChar oddelovac);
    enum class Stav { ZAZNAM, KONEC, CHYBA };
    // The next record; on CHYBA `zaznam->radek` is the line of the fault and chyba() says it.
    Stav dalsi(Zaznam* zaznam);
    const wxString& chyba() const { return m_chyba; }
    wxUniChar oddelovac() const { return m_sep; }

 private:
    const wxString& m_text;
    wxString::const_iterator m_it;
    wxUniChar m_sep;
    int m_radek = 1;
    wxString m_chyba;
};

}  // namespace csvtext
