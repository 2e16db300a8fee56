#include "dic.h"

#include <regex>

namespace {

// The VAT number formats of the member states, after the country prefix (as the EU's VIES
// system lists them; letters upper case, without separators).
struct FormatDic {
    const char* stat;
    const char* vzor;
};

const FormatDic FORMATY[] = {
    {"AT", "U[0-9]{8}"},
    {"BE", "[01][0-9]{9}"},
    {"BG", "[0-9]{9,10}"},
    {"CY", "[0-9]{8}[A-Z]"},
    {"CZ", "[0-9]{8,10}"},
    {"DE", "[0-9]{9}"},
    {"DK", "[0-9]{8}"},
    {"EE", "[0-9]{9}"},
    {"EL", "[0-9]{9}"},
    {"ES", "[0-9A-Z][0-9]{7}[0-9A-Z]"},
    {"FI", "[0-9]{8}"},
    {"FR", "[0-9A-Z]{2}[0-9]{9}"},
    {"HR", "[0-9]{11}"},
    {"HU", "[0-9]{8}"},
    {"IE", "[0-9][0-9A-Z+*][0-9]{5}[A-Z]{1,2}"},
    {"IT", "[0-9]{11}"},
    {"LT", "[0-9]{9}|[0-9]{12}"},
    {"LU", "[0-9]{8}"},
    {"LV", "[0-9]{11}"},
    {"MT", "[0-9]{8}"},
    {"NL", "[0-9]{9}B[0-9]{2}"},
    {"PL", "[0-9]{10}"},
    {"PT", "[0-9]{9}"},
    {"RO", "[0-9]{2,10}"},
    {"SE", "[0-9]{12}"},
    {"SI", "[0-9]{8}"},
    {"SK", "[0-9]{10}"},
    // Northern Ireland's traders keep EU VAT numbers for goods.
    {"XI", "[0-9]{9}|[0-9]{12}|GD[0-9]{3}|HA[0-9]{3}"},
};

bool isLetter(wxUniChar c) { return c >= 'A' && c <= 'Z'; }

}  // namespace

namespace dic {

RozdelenaDic rozdel(const wxString& text, const wxString& vychozi) {
    wxString cisty;
    for (wxUniChar c : text.Upper()) {
        if (c == ' ' || c == '.' || c == '-' || c == '/' || c == 0xA0) continue;
        cisty += c;
    }
    RozdelenaDic d;
    if (cisty.length() >= 2 && isLetter(cisty[0]) && isLetter(cisty[1])) {
        d.stat = cisty.Left(2);
        d.cislo = cisty.Mid(2);
    } else {
        d.stat = vychozi;
        d.cislo = cisty;
    }
    if (d.stat == "GR") d.stat = "EL";
    return d;
}

bool isPlatnaCz(const wxString& cislo) { return isPlatnaEu({"CZ", cislo}); }

bool isPlatnaEu(const RozdelenaDic& d) {
    for (const FormatDic& f : FORMATY) {
        if (d.stat != f.stat) continue;
        static thread_local std::vector<std::pair<const char*, std::regex>> cache;
        for (const auto& [stat, re] : cache) {
            if (stat == f.stat) return std::regex_match(d.cislo.ToStdString(), re);
        }
        cache.emplace_back(f.stat, std::regex(f.vzor));
        return std::regex_match(d.cislo.ToStdString(), cache.back().second);
    }
    return false;
}

}  // namespace dic
