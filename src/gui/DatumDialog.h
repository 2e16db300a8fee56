// "Datum aplikace": the working date of this run, the default date of new documents and
// the "today" of overdue checks. It is not stored. The date may be typed or picked.
#pragma once

#include <wx/datetime.h>
#include <wx/dialog.h>

class lxDateCtrl;

class DatumDialog : public wxDialog {
 public:
    DatumDialog(wxWindow* parent, const wxDateTime& datum);
    wxDateTime datum() const;
    // OK: a date that does not read is refused with a message and the dialog stays open.
    bool validate();

 private:
    lxDateCtrl* m_datum;
};
