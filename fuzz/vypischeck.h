// What every bank-statement reader promises, whatever the bytes: a refused file has a message
// and no statement; a read one has statements whose movements have a real day and a finite,
// non-negative amount. The fuzz drivers of the three readers check it after each input.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "fuzzloop.h"
#include "vypis/pohyb.h"

inline void zkontrolovatCteni(const CteniVypisu& c) {
    if (!c.ok) {
        if (!c.vypisy.empty()) fuzzFail("a refused statement with movements");
        if (c.zprava.empty()) fuzzFail("a refused statement without a message");
    } else {
        if (c.vypisy.empty()) fuzzFail("a read file without a statement");
        for (const Vypis& v : c.vypisy)
            for (const Pohyb& p : v.pohyby) {
                if (!p.datum.IsValid()) fuzzFail("a movement without a valid date");
                if (!std::isfinite(p.castka) || p.castka < 0 || p.castka >= 1e13)
                    fuzzFail("a movement amount that is not finite, non-negative and bounded");
            }
    }
    if (evidaFuzzOutcome) {
        // The kind of refusal without its line number or quoted value, so that the corpus
        // grows with new behaviour rather than with every new line number.
        wxString druh = c.zprava.BeforeFirst(wxUniChar(0x201E));
        for (const char* cislice : {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}) druh.Replace(cislice, "");
        const std::string outcome = c.ok ? "ok/" + std::to_string(std::min<size_t>(c.vypisy.size(), 3))
                                         : std::string(druh.utf8_str());
        evidaFuzzOutcome(outcome.data(), outcome.size());
    }
}
