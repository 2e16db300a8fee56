// Reader of the CSV statements of internet banking. Every bank lays its columns out its own
// way, so the user describes the file once per account (separator, encoding, header lines and
// which column holds what) and the description is kept in the program's settings.
#pragma once

#include <string>

#include "pohyb.h"

namespace vypis {

// Which column holds what, counted from 1; 0 for a column the file does not have.
struct CsvMapovani {
    wxString oddelovac = ";";   // ";", ",", or "\t"
    wxString kodovani = "auto"; // "auto" (UTF-8 or Windows-1250 as the bytes say), "UTF-8", "windows-1250"
    int hlavicka = 1;           // lines before the first movement
    int datum = 0;
    int castka = 0;             // signed: a minus is money going out
    int vs = 0;
    int protiucet = 0;
    int kodBanky = 0;           // when the bank code stands in a column of its own
    int zprava = 0;
    int nazev = 0;
    int reference = 0;

    // The three columns without which no movement can be read.
    bool isValid() const { return datum > 0 && castka > 0 && datum != castka; }
    // One line of text for the settings, and back; an unreadable text gives an invalid mapping.
    wxString toString() const;
    static CsvMapovani fromString(const wxString& text);
};

// The mapping saved for an account (empty key: none), and saving one. `klic` names the
// company and the account, see klicMapovani.
CsvMapovani nacistMapovani(const wxString& klic);
void ulozitMapovani(const wxString& klic, const CsvMapovani& mapovani);
wxString klicMapovani(const wxString& ic, const wxString& zkratkaUctu);

// Reads the movements of the file as one statement. A line that cannot be read refuses the
// file with a message naming it: "Řádek 4: Částka: „12,5x“ není platná částka".
CteniVypisu cistCsv(const std::string& bytes, const CsvMapovani& mapovani);

}  // namespace vypis
