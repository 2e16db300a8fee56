// Remembered column widths of the lists, kept in "evida.ini" in the data directory under one
// group per list ("Sloupce/<list>"). Nothing here needs a window.
#pragma once

#include <wx/string.h>

#include <vector>

namespace lxcolumnwidths {

// The stored widths of a list's columns; a column without a usable stored width keeps its
// default. The result has as many entries as `defaults`.
std::vector<int> load(const wxString& list, const std::vector<int>& defaults);
// Stores the widths of a list's columns.
void save(const wxString& list, const std::vector<int>& widths);

}  // namespace lxcolumnwidths
