// The list dialogs of the journal's code lists (cash registers, bank accounts, pre-postings):
// a report list with add, edit, copy and delete as buttons and as a context menu, and as a
// chooser a "Vybrat" button that closes the dialog with the selected row. Each list says
// what its columns, rows and commands are.
#pragma once

#include <wx/dialog.h>

#include <vector>

class wxButton;
class wxListCtrl;
class wxListEvent;

class CiselnikDialog : public wxDialog {
 public:
    // The row chosen with "Vybrat", or -1.
    int chosenId() const { return m_chosen; }
    wxListCtrl* list() const { return m_list; }
    // The id of the selected row, -1 for none; selects a row by id.
    int selectedId() const;
    void selectId(int id);

    // The commands, on the selected row where they need one.
    virtual void addRow() = 0;
    virtual void editRow(int id) = 0;
    virtual void copyRow(int id) = 0;
    virtual void deleteRow(int id) = 0;
    // Reads the rows again, keeping the selection when the row is still there.
    void refresh();

 protected:
    struct Row {
        int id;
        wxArrayString cells;
    };
    // `menu` holds the context menu's four captions: add, edit, copy, delete.
    CiselnikDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns, const wxArrayString& menu,
                   bool chooser);
    virtual std::vector<Row> rows() = 0;

 private:
    void updateButtons();
    void run(int command);

    bool m_chooser;
    int m_chosen = -1;
    wxArrayString m_menu;
    std::vector<int> m_ids;
    wxListCtrl* m_list = nullptr;
    std::vector<wxButton*> m_needSelection;
};
