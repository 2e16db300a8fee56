// Fuzz driver of the exchange-rate list reader: the bytes of a downloaded list read as the
// national bank's daily list and as the yearly list.
#include <wx/init.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>

#include "fuzzloop.h"
#include "kurzlistek.h"

namespace {

std::unique_ptr<wxInitializer> g_wx;

void check(const lxutils::KurzovniListek& listek) {
    if (!listek.ok) {
        if (!listek.kurzy.empty()) fuzzFail("a refused list with rates");
        return;
    }
    if (listek.kurzy.size() > lxutils::MAX_RADKU_LISTKU) fuzzFail("more rates than a list may have");
    for (const Kurz& k : listek.kurzy) {
        if (!std::isfinite(k.hodnota()) || !(k.hodnota() > 0) || !(k.hodnota() < 1e6))
            fuzzFail("a rate that is not a positive finite number below a million");
        if (k.kod().length() != 3) fuzzFail("a currency code that is not three letters");
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    g_wx = std::make_unique<wxInitializer>();
    if (!g_wx->IsOk()) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const wxDateTime day(2, wxDateTime::Jan, 2024);
    const lxutils::KurzovniListek denni = lxutils::readKurzovniListek(bytes, lxutils::DruhListku::DENNI, day);
    const lxutils::KurzovniListek jednotny = lxutils::readKurzovniListek(bytes, lxutils::DruhListku::JEDNOTNY, day);
    check(denni);
    check(jednotny);
    if (evidaFuzzOutcome) {
        const std::string outcome = std::to_string(denni.ok) + "/" +
                                    std::to_string(std::min<size_t>(denni.kurzy.size(), 3)) + "/" +
                                    std::to_string(std::min<size_t>(jednotny.kurzy.size(), 3));
        evidaFuzzOutcome(outcome.data(), outcome.size());
    }
    return 0;
}
