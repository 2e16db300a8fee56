// A bank statement as the readers of the bank formats give it: the account it is for, its
// number and date, and its movements, each with the symbols and the counter-account the
// pairing of payments looks at. Whatever the file's format, the rest of the import sees only
// these structures.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <string>
#include <vector>

// One movement on the account.
struct Pohyb {
    wxDateTime datum;     // the day the bank booked it
    double castka = 0;    // always positive; the direction is `prijem`
    bool prijem = true;   // money came in (credit) or went out (debit)
    bool storno = false;  // the bank reverses an earlier movement
    wxString mena;        // ISO code of the movement's currency, empty when the file does not say
    wxString vs, ks, ss;  // symbols, digits without leading zeros
    wxString protiucet;   // counter-account as "prefix-number/bank", see normalizovatUcet
    wxString nazev;       // counterparty's name or the bank's short text
    wxString zprava;      // message for the recipient
    wxString reference;   // the bank's own identifier of the movement; may be empty
};

// One statement of a file; a camt.053 file may carry several.
struct Vypis {
    wxString ucet;        // own account as the file names it (normalised like protiucet, or an IBAN)
    int cislo = 0;        // statement number, 0 when the file has none
    wxDateTime datum;
    wxString mena;
    std::vector<Pohyb> pohyby;
};

// What a reader made of a file: the statements, or the reason it was refused. A refused file
// gives no statement at all, so nothing half-read can be stored.
struct CteniVypisu {
    bool ok = false;
    wxString zprava;
    std::vector<Vypis> vypisy;
};

namespace vypis {

// The largest file a reader accepts; statements are small, and a stray multi-gigabyte file
// must end in a message rather than in exhausted memory.
constexpr size_t MAX_VELIKOST = 64u * 1024u * 1024u;

// A symbol as the pairing compares it: the digits without leading zeros. "0000012345" and
// "12345" are the same variable symbol; a text that is not all digits stays as it is, trimmed.
wxString normalizovatSymbol(const wxString& text);

// A Czech account number in one form whatever way it was written: "19-2000145399/0800",
// "000019-2000145399/0800", the 16 digits of ABO with the bank code apart, or a Czech IBAN
// "CZ65 0800 0000 1920 0014 5399". The result is "prefix-number/bank" without leading zeros
// and without the prefix when it is zero ("2000145399/0800"). Texts that are none of these
// (a foreign IBAN) come back without spaces, in capitals.
wxString normalizovatUcet(const wxString& ucet, const wxString& kodBanky = wxString());

// The variable symbol Czech banks hide in a free text or an end-to-end reference:
// "/VS/123/SS/..", "VS:123", "VS 123", "VS123", or the whole text when it is a bare number of
// at most ten digits. Empty when there is none. `ks` and `ss` receive those symbols when the
// text carries them.
wxString symbolZTextu(const wxString& text, wxString* ks = nullptr, wxString* ss = nullptr);

}  // namespace vypis
