#include "lxutils.h"

#include "lxsettings.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/tokenzr.h>

#include <algorithm>
#include <cmath>

namespace lxutils {

int versionToInt(const wxString& version) {
    wxArrayString parts = wxStringTokenize(version, ".", wxTOKEN_RET_EMPTY_ALL);
    if (parts.size() != 3) return 0;
    long v[3];
    for (int i = 0; i < 3; ++i) {
        // Digits only: a blank, a sign or a letter makes the text unreadable, not a number.
        if (parts[i].empty() || parts[i].length() > 4) return 0;
        for (wxUniChar c : parts[i]) {
            if (c < '0' || c > '9') return 0;
        }
        parts[i].ToLong(&v[i]);
    }
    return static_cast<int>(v[0] * 1000 + v[1] * 10 + v[2]);
}

bool isSameDouble(double a, double b, double absTolerance, double relTolerance) {
    const double diff = std::fabs(a - b);
    if (diff <= absTolerance) return true;
    return diff <= relTolerance * std::max(std::fabs(a), std::fabs(b));
}

wxString dataDir() {
    wxString dir = wxStandardPaths::Get().GetUserDataDir();
    if (!wxFileName::DirExists(dir)) wxFileName::Mkdir(dir, 0777, wxPATH_MKDIR_FULL);
    return dir;
}

wxString getUniqueDbName() {
    if (lxSettings::instance()->dbmodel() != DBMODEL_SQLITE) return wxString();
    const wxString dir = dataDir();
    for (int i = 1;; ++i) {
        const wxString name = wxString::Format("evida%d.db", i);
        if (!wxFileName::FileExists(dir + "/" + name)) return name;
    }
}

namespace {

bool allDigits(const wxString& s) {
    if (s.empty()) return false;
    for (wxUniChar c : s) {
        if (c < '0' || c > '9') return false;
    }
    return true;
}

bool splitUcet(const wxString& cisloUctu, wxString* prefix, wxString* number) {
    wxString text = cisloUctu;
    text.Trim(true).Trim(false);
    *prefix = text.Contains("-") ? text.BeforeFirst('-') : wxString();
    *number = text.Contains("-") ? text.AfterFirst('-') : text;
    if (!prefix->empty() && (!allDigits(*prefix) || prefix->length() > 6)) return false;
    return allDigits(*number) && number->length() <= 10;
}

bool weightedMod11(const wxString& digits, const int* weights, int count) {
    // Digits are aligned to the right of the weight table.
    int sum = 0;
    const int offset = count - static_cast<int>(digits.length());
    for (size_t i = 0; i < digits.length(); ++i) sum += (digits[i].GetValue() - '0') * weights[offset + i];
    return sum % 11 == 0;
}

} // namespace

bool isCzechAccountValid(const wxString& cisloUctu) {
    static const int prefixWeights[] = {10, 5, 8, 4, 2, 1};
    static const int numberWeights[] = {6, 3, 7, 9, 10, 5, 8, 4, 2, 1};
    wxString prefix, number;
    if (!splitUcet(cisloUctu, &prefix, &number)) return false;
    if (!prefix.empty() && !weightedMod11(prefix, prefixWeights, 6)) return false;
    // The account number proper must have at least two significant digits.
    wxString significant = number;
    significant.erase(0, std::min(significant.find_first_not_of('0'), significant.length()));
    if (significant.length() < 2) return false;
    return weightedMod11(number, numberWeights, 10);
}

wxString ibanFromUcet(const wxString& cisloUctu, const wxString& kodBanky) {
    wxString prefix, number;
    if (!splitUcet(cisloUctu, &prefix, &number)) return wxString();
    wxString kod = kodBanky;
    kod.Trim(true).Trim(false);
    if (!allDigits(kod) || kod.length() != 4) return wxString();
    const wxString bban = kod + wxString('0', 6 - prefix.length()) + prefix + wxString('0', 10 - number.length()) + number;
    // ISO 7064 mod 97-10: the country code and "00" move to the end, letters become 10..35.
    const wxString check = bban + "123500"; // C = 12, Z = 35, then 00
    int rest = 0;
    for (wxUniChar c : check) rest = (rest * 10 + (c.GetValue() - '0')) % 97;
    return wxString::Format("CZ%02d", 98 - rest) + bban;
}

} // namespace lxutils
