// CSV export of a list: the captions and the shown rows of a row model, as the user sees
// them. Every field is put in double quotes (quotes inside doubled), fields are separated by
// commas and lines end with "\r\n"; the file is UTF-8.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

class lxRowModel;

namespace lxcsv {

// One field in double quotes, with the quotes inside doubled.
wxString field(const wxString& text);
// One line of fields with its "\r\n".
wxString line(const wxArrayString& fields);
// Writes the column captions and every shown row to `path`. On failure returns false with a
// Czech message in *error and leaves no partial file behind.
bool write(const wxString& path, const lxRowModel& rows, wxString* error = nullptr);

}  // namespace lxcsv
