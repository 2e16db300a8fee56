// "Datum aplikace": the working date of this run, the default date of new documents and
// the "today" of overdue checks. It is not stored.
#pragma once

#include <wx/datetime.h>
#include <wx/dialog.h>

class wxDatePickerCtrl;

class DatumDialog : public wxDialog {
 public:
    DatumDialog(wxWindow* parent, const wxDateTime& datum);
    wxDateTime datum() const;

 private:
    wxDatePickerCtrl* m_datum;
};
