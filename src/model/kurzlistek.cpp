#include "kurzlistek.h"

#include <algorithm>

#include "lxformat.h"

namespace lxutils {

namespace {

// Where the fields of one rate are on a line of a list.
struct ListFormat {
    size_t fields;    // a line counts only with exactly this many "|"-separated fields
    size_t quantity;  // indexes from 0
    size_t code;
    size_t rate;
};
const ListFormat DAILY_LIST = {5, 2, 3, 4};
const ListFormat YEARLY_LIST = {4, 1, 2, 3};

std::vector<std::string> splitFields(const std::string& line) {
    std::vector<std::string> fields;
    size_t start = 0;
    for (size_t bar = line.find('|'); bar != std::string::npos; start = bar + 1, bar = line.find('|', start))
        fields.push_back(line.substr(start, bar - start));
    fields.push_back(line.substr(start));
    return fields;
}

std::string trimmed(const std::string& s) {
    const size_t first = s.find_first_not_of(" \t\r");
    if (first == std::string::npos) return std::string();
    return s.substr(first, s.find_last_not_of(" \t\r") - first + 1);
}

// A number of the list with its decimal comma; 1 when it does not read as a rate (the list
// carries only ASCII in its numbers, so the bytes are taken as Latin-1).
double listNumber(const std::string& text) {
    double value = 1.0;
    if (lxformat::parseKurz(wxString(text.data(), wxConvISO8859_1, text.size()), &value) != lxformat::Chyba::ZADNA)
        value = 1.0;
    return value;
}

// An ISO 4217 code: three capital letters. Anything else is not a currency of the list.
bool isCurrencyCode(const std::string& code) {
    return code.size() == 3 && std::all_of(code.begin(), code.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

}  // namespace

KurzovniListek readKurzovniListek(const std::string& bytes, DruhListku druh, const wxDateTime& datum) {
    KurzovniListek listek;
    if (bytes.size() > MAX_BAJTU_LISTKU || bytes.find('\n') == std::string::npos) return listek;
    if (static_cast<size_t>(std::count(bytes.begin(), bytes.end(), '\n')) > MAX_RADKU_LISTKU) return listek;
    const ListFormat& format = druh == DruhListku::DENNI ? DAILY_LIST : YEARLY_LIST;
    const bool jednotny = druh == DruhListku::JEDNOTNY;
    size_t start = 0;
    for (size_t end = bytes.find('\n'); end != std::string::npos; start = end + 1, end = bytes.find('\n', start)) {
        const std::string line = bytes.substr(start, end - start);
        if (line.find("kurz") != std::string::npos || line.find('#') != std::string::npos) continue;
        const std::vector<std::string> fields = splitFields(line);
        if (fields.size() != format.fields) continue;
        const std::string code = trimmed(fields[format.code]);
        if (!isCurrencyCode(code)) continue;
        // Rates are quoted for 1, 100 or 1000 units; a quantity below one would multiply the
        // rate past any real one, so it counts as one too. The quotient then stays positive and
        // below the largest rate.
        double quantity = listNumber(fields[format.quantity]);
        if (quantity < 1) quantity = 1;
        const double rate = listNumber(fields[format.rate]) / quantity;
        listek.kurzy.emplace_back(0, datum, rate, wxString::FromAscii(code.c_str()), jednotny);
    }
    listek.ok = true;
    return listek;
}

}  // namespace lxutils
