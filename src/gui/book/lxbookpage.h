// lxBookPage: one page of the book: a toolbar, the virtual list of the page's rows and a
// footer with the totals of the shown rows. The toolbar and the list's context menu offer
// add, edit, copy, delete, print, CSV export and the filter. Add, edit, copy and delete run
// the handlers given to the page; one without a handler stays visibly disabled.
#pragma once

#include <wx/panel.h>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "lxcsv.h"
#include "lxrowmodel.h"

class lxListCtrl;
class wxStaticText;
class wxToolBar;
class wxMenu;
class wxListEvent;
class Table;

enum lxBookAction { BOOK_ADD = 0, BOOK_EDIT, BOOK_COPY, BOOK_DELETE, BOOK_ACTIONS };

class lxBookPage : public wxPanel {
 public:
    // Receives the record id of the selected row (-1 for add).
    using Action = std::function<void(int id)>;

    lxBookPage(wxWindow* parent, int navigation, const wxString& title, std::unique_ptr<lxRowModel> rows);
    ~lxBookPage() override;

    int navigation() const { return m_navigation; }
    const wxString& title() const { return m_title; }
    lxRowModel& rows() const { return *m_rows; }
    lxListCtrl* list() const { return m_list; }

    // Reloads the rows from the database now.
    void refresh();
    // Marks the rows as out of date; the book reloads them when it shows the page.
    void markStale() { m_stale = true; }
    bool isStale() const { return m_stale; }

    void setAction(lxBookAction action, Action handler);
    // Whether an action can run now: it has a handler and, except add, a row is selected.
    bool canRun(lxBookAction action) const;
    // Runs an action on the selected row; false when it cannot run.
    bool run(lxBookAction action);

    // A command of this page on the selected row ("Zaplatit", "Úhrady"): a tool at the end of
    // the toolbar (unless `naListe` is false) and an item of the context menu, enabled while a
    // row is selected.
    void addRowCommand(const wxString& label, const wxString& help, const wxString& art, Action handler,
                       bool naListe = true);
    // Runs the n-th such command on the selected row; false when no row is selected.
    bool runRowCommand(size_t index);
    // Runs the command with this label; false when there is none or no row is selected.
    bool runRowCommand(const wxString& label);

    // Shows the filter dialog, or applies a filter directly.
    void editFilter();
    void setFilter(const lxFilter& filter);
    wxString footerText() const;

    // Asks for a file and its encoding, writes the shown rows into it as CSV and tells where.
    void exportCsv();
    bool exportCsv(const wxString& path, wxString* error = nullptr,
                   lxcsv::Kodovani kodovani = lxcsv::Kodovani::UTF8);
    // Gives the page its own CSV form (the journal's full entries); without one the export
    // holds the shown columns.
    using CsvExport = std::function<bool(const wxString& path, lxcsv::Kodovani kodovani, wxString* error)>;
    void setCsvExport(CsvExport handler) { m_csvExport = std::move(handler); }
    // The shown rows as a print table, and its preview.
    Table printTable() const;
    // "Tisk": the page's own print command when it has one, else the preview of the shown rows.
    void print();
    // Gives the page its own print command.
    void setPrintAction(std::function<void()> handler) { m_printAction = std::move(handler); }

 private:
    void onCommand(wxCommandEvent& event);
    void onContextMenu(wxContextMenuEvent& event);
    void onKey(wxListEvent& event);
    void updateTools();
    void enableCommands(const std::function<void(int id, bool enable)>& enable) const;
    wxMenu* createMenu() const;

    int m_navigation;
    wxString m_title;
    std::unique_ptr<lxRowModel> m_rows;
    std::array<Action, BOOK_ACTIONS> m_actions;
    struct RowCommand {
        wxString label;
        wxString help;
        Action handler;
    };
    std::vector<RowCommand> m_rowCommands;
    std::function<void()> m_printAction;
    CsvExport m_csvExport;
    bool m_stale = true;
    wxToolBar* m_toolbar = nullptr;
    lxListCtrl* m_list = nullptr;
    wxStaticText* m_footer = nullptr;
};
