// The backup reminder shown at the end of a run when the last backup is 15 or more days
// old. OK ("Zálohovat data") asks the main window to run the backup.
#pragma once

#include <wx/datetime.h>
#include <wx/dialog.h>

class ZalohaDialog : public wxDialog {
 public:
    ZalohaDialog(wxWindow* parent, const wxDateTime& lastBackup);
};
