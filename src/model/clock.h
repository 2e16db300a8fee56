// The one place the program asks for today's date. Everything that depends on "today"
// (the application date, the backup reminder, the dated backup directory, the year of a new
// company) reads it here, so that tests can fix the day.
#pragma once

#include <wx/datetime.h>

namespace lxutils {

// Today's date with the time cleared; the fixed day when one was set.
wxDateTime today();
// Fixes "today" to the given day (tests); an invalid date returns to the real clock.
void setToday(const wxDateTime& day);

}  // namespace lxutils
