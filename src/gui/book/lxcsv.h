// CSV export of a list in the form Czech spreadsheets open directly: fields separated by
// ";" (the comma is the decimal mark), every field in double quotes (quotes inside doubled),
// lines ending with "\r\n". UTF-8 files start with a byte-order mark, so that Excel does not
// take them for the system code page; older spreadsheets get Windows-1250 instead.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>
#include <functional>

class lxRowModel;

namespace lxcsv {

enum class Kodovani { UTF8, WINDOWS1250 };

// One field in double quotes, with the quotes inside doubled.
wxString field(const wxString& text);
// One line of fields with its "\r\n".
wxString line(const wxArrayString& fields);

// Writes the captions and `count` rows given by `row(i)` to `path`. On failure returns false
// with a Czech message in *error and leaves no partial file behind. A character Windows-1250
// does not have becomes "?".
bool write(const wxString& path, const wxArrayString& captions, std::size_t count,
           const std::function<wxArrayString(std::size_t)>& row, Kodovani kodovani, wxString* error = nullptr);
// The column captions and every shown row of a list as the user sees them, except that
// amounts lose their thousands groups so that a spreadsheet reads them as numbers.
bool write(const wxString& path, const lxRowModel& rows, Kodovani kodovani = Kodovani::UTF8,
           wxString* error = nullptr);

}  // namespace lxcsv
