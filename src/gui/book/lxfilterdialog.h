// lxFilterDialog: the filter of a book page: a date range (from/to, each may stay open), a
// text the rows must contain, and the page's own choices ("Vše" plus e.g. "Příjmy",
// "Výdaje"). Pages with further conditions derive from it and add their controls.
#pragma once

#include <wx/dialog.h>

#include "lxrowmodel.h"

class wxCheckBox;
class wxChoice;
class lxDateCtrl;
class wxTextCtrl;

class lxFilterDialog : public wxDialog {
 public:
    lxFilterDialog(wxWindow* parent, const wxString& title, const lxFilter& filter, bool hasDate,
                   const wxArrayString& choices);

    // The filter as the controls set it.
    lxFilter filter() const;
    void setFilter(const lxFilter& filter);
    // Why the controls do not make a filter (empty when they do): a date that does not read,
    // or a range that ends before it starts.
    wxString validate() const;

 protected:
    // The sizer a derived dialog adds its own rows to (two columns: label, control).
    wxSizer* fieldsSizer() const { return m_fields; }

 private:
    void onOk(wxCommandEvent& event);
    void onClear(wxCommandEvent& event);
    void updateDates();
    // The date field a failed check names, for the focus.
    lxDateCtrl* invalidDate() const;

    wxSizer* m_fields = nullptr;
    wxCheckBox* m_useOd = nullptr;
    wxCheckBox* m_useDo = nullptr;
    lxDateCtrl* m_od = nullptr;
    lxDateCtrl* m_do = nullptr;
    wxTextCtrl* m_text = nullptr;
    wxChoice* m_choice = nullptr;
};
