// A form of labelled fields in a grid above OK and Cancel (a code-list row, a filter). OK
// takes the form through save() and closes it only when that succeeds.
#pragma once

#include <wx/dialog.h>

#include <vector>

class wxChoice;
class wxFlexGridSizer;
class wxSizer;
class wxTextCtrl;

class FormDialog : public wxDialog {
 public:
    // Checks the fields and stores what they say; false with the message shown.
    virtual bool save() = 0;

 protected:
    FormDialog(wxWindow* parent, const wxString& title);
    // A row of the grid: the label, the control and an optional button beside it.
    void addField(const char* label, wxWindow* control, wxWindow* button = nullptr);
    // A row of several controls side by side.
    void addField(const char* label, wxSizer* row);
    // A named text field of the given width, added as a row.
    wxTextCtrl* addText(const char* label, const char* name, int width, wxWindow* button = nullptr);
    // The currency choice ("mena") with the currency `menaid` selected, added as a row.
    void addMena(int menaid);
    int menaId() const;
    // Lays the form out; call once the fields are in. A window `below` (a list that belongs to
    // the form) takes the room between the fields and the buttons.
    void finish(wxWindow* below = nullptr);
    // Shows a refusal and puts the focus on the field to fix; true when there was one.
    bool refused(const wxString& chyba, wxWindow* field);

 private:
    wxFlexGridSizer* m_grid = nullptr;
    wxChoice* m_mena = nullptr;
    std::vector<int> m_menaIds;
};
