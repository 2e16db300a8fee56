// What the model tells a user when it refuses a company file, and where it puts the copy it
// makes before it changes a file. A damaged or unexpected file is never used as if it were
// whole: the user gets a Czech message that says what is wrong and where the backups are.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

namespace dbsafety {

// The copy made before an upgrade or repair: beside the file, "<name>.pred-upravou-
// YYYYMMDD-HHMMSS.db" (a counter is added when such a file already exists).
wxString copyPath(const wxString& path, const wxDateTime& when);

// The newest dated backup directory ("evida-YYYY-MM-DD") under the backup directory the
// settings remember; empty when there is none.
wxString lastBackupDir();

// The last line of every refusal: where the newest backups are, or the advice to restore
// the file from a backup when none is known.
wxString backupAdvice();

// The messages of a refused file; each ends with backupAdvice() where a backup helps.
wxString damagedMessage(const wxString& path);
wxString emptyFileMessage(const wxString& path);
wxString missingFileMessage(const wxString& path);
wxString unreadableVersionMessage(const wxString& path, const wxString& verze);
wxString newerVersionMessage(const wxString& path, const wxString& verze);
wxString copyFailedMessage(const wxString& path);
// A failed creation in the user's words; `sqliteCode` is the primary SQLite result code.
wxString createFailedMessage(const wxString& path, int sqliteCode);

}  // namespace dbsafety
