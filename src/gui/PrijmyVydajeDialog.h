// "Přehled příjmů a výdajů": the year's taxable income and expenses from the journal, with or
// without flat-rate expenses, shown as a list and printed or exported to CSV.
#pragma once

#include <wx/dialog.h>

#include "dane/prijmyvydaje.h"

class wxCheckBox;
class wxChoice;
class wxListCtrl;

class PrijmyVydajeDialog : public wxDialog {
 public:
    explicit PrijmyVydajeDialog(wxWindow* parent);
    const PrijmyVydaje& prehled() const { return m_prehled; }
    wxListCtrl* list() const { return m_list; }
    // "Vytisknout přehled": the preview or a PDF.
    void tisk();
    // Asks for a file and writes the overview into it; the path, empty when nothing was written.
    wxString exportCsv();

 private:
    void nacist();
    int rok() const;

    wxChoice* m_rok = nullptr;
    wxCheckBox* m_pausal = nullptr;
    wxListCtrl* m_list = nullptr;
    PrijmyVydaje m_prehled;
};
