// A chooser over a long code list (economic activities, municipalities): a "Hledat" field
// above a report list that narrows as one types, matching any column regardless of case and
// accents. A double click, Enter or OK takes the selected row.
#pragma once

#include <wx/arrstr.h>
#include <wx/dialog.h>

#include <vector>

class wxTextCtrl;
class HledaciList;

class HledaciDialog : public wxDialog {
 public:
    // `rows` holds the cells of each row in column order; `selected` is the row shown selected
    // at first (-1 for none).
    HledaciDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns,
                  std::vector<wxArrayString> rows, int selected = -1);
    ~HledaciDialog() override;

    // The index in `rows` of the chosen row, -1 when none was chosen.
    int chosen() const { return m_chosen; }
    // Shows only the rows matching `text`; the first of them is selected.
    void filter(const wxString& text);
    // The number of rows shown.
    size_t shownCount() const { return m_shown.size(); }
    // Takes the selected row as the chosen one; false when none is selected.
    bool takeSelected();

 private:
    int selectedRow() const;

    std::vector<wxArrayString> m_rows;
    std::vector<wxString> m_folded;  // each row's cells, folded for search
    std::vector<int> m_shown;        // indexes of the rows shown, in order
    wxTextCtrl* m_hledat = nullptr;
    HledaciList* m_list = nullptr;
    int m_chosen = -1;

    friend class HledaciList;
};
