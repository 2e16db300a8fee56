// Fuzz driver of the camt.053 reader: any bytes read as a bank statement.
#include <wx/init.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "vypis/camt053.h"
#include "vypischeck.h"

namespace {

std::unique_ptr<wxInitializer> g_wx;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    g_wx = std::make_unique<wxInitializer>();
    if (!g_wx->IsOk()) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    zkontrolovatCteni(vypis::cistCamt053(bytes));
    return 0;
}
