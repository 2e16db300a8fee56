// A dialog around one report list: its commands stand as buttons beside the list and in the
// list's context menu; as a chooser a "Vybrat" button closes it with the selected row. Each
// list says what its columns, rows and commands are.
#pragma once

#include <wx/dialog.h>

#include <functional>
#include <initializer_list>
#include <vector>

class DbModel;
class wxButton;
class wxListCtrl;

class SeznamDialog : public wxDialog {
 public:
    // The row chosen with "Vybrat", or -1.
    int chosenId() const { return m_chosen; }
    wxListCtrl* list() const { return m_list; }
    // The id of the selected row, -1 for none; selects a row by id.
    int selectedId() const;
    void selectId(int id);
    // Reads the rows again, keeping the selection when the row is still there.
    void refresh();

 protected:
    struct Row {
        int id;
        wxArrayString cells;
    };
    struct Command {
        wxString button;                      // the caption of its button; empty for none
        std::function<wxString(int)> menu;     // its context-menu caption for the selected row; null for none
        bool needsRow;                        // runs only on a selected row
        std::function<void(int id)> run;      // the list is read again after it
        bool onDoubleClick = false;           // a double click runs it (outside the chooser)
    };
    SeznamDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns, std::vector<Command> commands,
                 bool chooser);
    virtual std::vector<Row> rows() = 0;

    // The open company's model, or null.
    static DbModel* openModel();
    static wxArrayString strings(std::initializer_list<const char*> texts);

 private:
    void updateButtons();
    void run(size_t command);
    void choose();

    int m_chosen = -1;
    std::vector<Command> m_commands;
    std::vector<int> m_ids;
    wxListCtrl* m_list = nullptr;
    std::vector<wxButton*> m_needSelection;
};
