// Setting up a company database from nothing, as a first start does when the current
// company's file is missing: the same steps for the main window and for evida-cli.
#pragma once

#include <wx/string.h>

class DbModel;

namespace companysetup {

// The first free placeholder company key: "ABC_0", then "ABC_1", "ABC_2", ...
wxString placeholderKey();

// Creates the file at `path` with every table, the placeholder address 1, the placeholder
// company "ABC" with the next free IČ, and the current calendar year as the current period.
bool createPlaceholderCompany(DbModel& model, const wxString& path);

} // namespace companysetup
