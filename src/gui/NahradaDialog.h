// "Náhrada za použití vozidla": a vehicle and a month of a year, its business trips with the
// allowance, fuel price and amount of each, the total, and the print of the sheet.
#pragma once

#include <wx/dialog.h>

#include <vector>

class wxChoice;
class wxListCtrl;
class wxSpinCtrl;
class wxStaticText;

class NahradaDialog : public wxDialog {
 public:
    // Opens on the first vehicle and the month of the application's date.
    explicit NahradaDialog(wxWindow* parent);

    // Computes the table for the chosen vehicle and month again.
    void prepocitat();
    // "Tisk": the sheet of the shown month to the preview or a PDF.
    void tisk();
    wxListCtrl* list() const { return m_list; }
    wxString souhrn() const;

 private:
    int vozidloId() const;

    wxChoice* m_vozidlo = nullptr;
    wxChoice* m_mesic = nullptr;
    wxSpinCtrl* m_rok = nullptr;
    wxListCtrl* m_list = nullptr;
    wxStaticText* m_souhrn = nullptr;
    std::vector<int> m_vozidlaIds;
};
