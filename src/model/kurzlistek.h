// The text of an exchange-rate list, read without a network or a database: the national
// bank's daily list ("země|měna|množství|kód|kurz") and the program's own file of single
// yearly rates ("země|množství|kód|kurz"). The downloads save a list and hand its bytes here;
// the tests and the fuzz driver call it directly.
#pragma once

#include <wx/datetime.h>

#include <string>
#include <vector>

#include "records.h"

namespace lxutils {

enum class DruhListku { DENNI, JEDNOTNY };

// A real list has a line per currency, some forty of them; one with more lines than this is
// not a rate list and nothing of it is stored.
constexpr size_t MAX_RADKU_LISTKU = 1000;
// The bytes a list may have, a generous multiple of the longest real one.
constexpr size_t MAX_BAJTU_LISTKU = 256 * 1024;

struct KurzovniListek {
    bool ok = false;          // false: not a list (no line feed, too many lines, too long)
    std::vector<Kurz> kurzy;  // the rates with id 0, per one unit of the currency
};

// Reads a list. Only lines ended by a line feed count; a line that names the column "kurz"
// (the header) or holds "#" (the list's date and number) is skipped, as is every line
// without the exact number of fields. Each rate gets `datum` and the yearly flag of its kind.
// A quantity or rate that does not read as a number counts as 1; a quantity below 1 too.
KurzovniListek readKurzovniListek(const std::string& bytes, DruhListku druh, const wxDateTime& datum);

}  // namespace lxutils
