// Fuzz driver of the CSV statement reader with a mapping of five columns: any bytes read as a bank statement.
#include <wx/init.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "vypis/csvvypis.h"
#include "vypischeck.h"

namespace {

std::unique_ptr<wxInitializer> g_wx;

vypis::CsvMapovani mapovani() {
    vypis::CsvMapovani m;
    m.datum = 1;
    m.castka = 2;
    m.vs = 3;
    m.protiucet = 4;
    m.zprava = 5;
    return m;
}
}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    g_wx = std::make_unique<wxInitializer>();
    if (!g_wx->IsOk()) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    zkontrolovatCteni(vypis::cistCsv(bytes, mapovani()));
    return 0;
}
