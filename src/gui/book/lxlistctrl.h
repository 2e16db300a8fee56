// lxListCtrl: a virtual report list over a row model. It asks the model for the text of the
// cells it paints only, so the number of rows does not slow it down. Clicking a column
// header sorts by that column (again: the other way) with an arrow in the header, and the
// column widths the user sets are remembered per list in the settings file.
#pragma once

#include <wx/listctrl.h>

#include <functional>
#include <vector>

class lxRowModel;

class lxListCtrl : public wxListCtrl {
 public:
    // The model is not owned and must outlive the control.
    lxListCtrl(wxWindow* parent, lxRowModel* model, wxWindowID id = wxID_ANY);

    lxRowModel& model() const { return *m_model; }
    // Reloads the model from the database and shows it, keeping the selected record.
    void reload();
    // Changes the model (filter, order) and shows the result, keeping the selected record.
    void apply(const std::function<void(lxRowModel&)>& change);
    // Sorts by a column and shows the arrow in its header.
    void sortBy(int column, bool ascending);

    // The record id of the selected row, or -1.
    int selectedId() const;
    long selectedRow() const;
    // Selects and shows the row of a record; false when the record is not shown.
    bool selectId(int id);

    // The current widths, and storing them in the settings file.
    std::vector<int> columnWidths() const;
    void saveColumnWidths() const;

 protected:
    wxString OnGetItemText(long item, long column) const override;
    wxItemAttr* OnGetItemAttr(long item) const override;

 private:
    // Shows the model's rows again; `id` and `row` are the selection before the model changed.
    void sync(int id, long row);
    void selectRow(long row);
    void onColumnClick(wxListEvent& event);
    void onColumnDragged(wxListEvent& event);

    lxRowModel* m_model;
    mutable wxItemAttr m_attr;
};
