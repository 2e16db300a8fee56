// evida-cli import-vypis: a bank statement read, paired with the open documents and, unless
// only the proposals are asked for, its sure payments written as the import dialog writes them.
#pragma once

#include <wx/string.h>

#include <vector>

class DbModel;

namespace evidacli {

// `args` are the words after "import-vypis FILE": the statement, then --ucet CODE and
// --jen-navrh in any order. Returns 0 done, 1 refused (the Czech message on the standard
// error), 2 wrong usage.
int importVypisu(DbModel& model, const std::vector<wxString>& args);
wxString importVypisuUsage();

}  // namespace evidacli
