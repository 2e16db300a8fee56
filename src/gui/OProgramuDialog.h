// "O programu": the version, where the program keeps its data and which company file is
// open, in read-only fields whose text can be selected and copied (users send the paths
// to support or open the folder themselves).
#pragma once

#include <wx/dialog.h>

class wxTextCtrl;

class OProgramuDialog : public wxDialog {
 public:
    explicit OProgramuDialog(wxWindow* parent);

    // The texts shown, for the tests.
    wxString verze() const;
    wxString datovaSlozka() const;
    wxString otevrenaFirma() const;

 private:
    wxTextCtrl* pole(const char* name, const wxString& text);

    wxTextCtrl* m_verze = nullptr;
    wxTextCtrl* m_slozka = nullptr;
    wxTextCtrl* m_firma = nullptr;
};
