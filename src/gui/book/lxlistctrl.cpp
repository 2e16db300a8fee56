#include "lxlistctrl.h"

#include "lxcolumnwidths.h"
#include "lxrowmodel.h"

lxListCtrl::lxListCtrl(wxWindow* parent, lxRowModel* model, wxWindowID id)
    : wxListCtrl(parent, id, wxDefaultPosition, wxDefaultSize,
                 wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL | wxLC_HRULES | wxLC_VRULES),
      m_model(model) {
    std::vector<int> defaults;
    for (int c = 0; c < m_model->columnCount(); ++c) defaults.push_back(m_model->column(c).width);
    const std::vector<int> widths = lxcolumnwidths::load(m_model->key(), defaults);
    for (int c = 0; c < m_model->columnCount(); ++c) {
        const lxColumnInfo& info = m_model->column(c);
        AppendColumn(info.caption, info.right ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT, widths[c]);
    }
    Bind(wxEVT_LIST_COL_CLICK, &lxListCtrl::onColumnClick, this);
    Bind(wxEVT_LIST_COL_END_DRAG, &lxListCtrl::onColumnDragged, this);
    sync(-1, -1);
}

void lxListCtrl::reload() {
    apply([](lxRowModel& model) { model.reload(); });
}

void lxListCtrl::apply(const std::function<void(lxRowModel&)>& change) {
    const int id = selectedId();
    const long row = selectedRow();
    change(*m_model);
    sync(id, row);
}

void lxListCtrl::sync(int id, long row) {
    if (row >= 0) SetItemState(row, 0, wxLIST_STATE_SELECTED);
    SetItemCount(static_cast<long>(m_model->rowCount()));
    if (m_model->sortColumn() >= 0) {
        ShowSortIndicator(m_model->sortColumn(), m_model->sortAscending());
    } else {
        RemoveSortIndicator();
    }
    // The selection follows the record; when it is no longer shown, the row at its place.
    if (row >= 0 && !(id >= 0 && selectId(id)) && GetItemCount() > 0)
        selectRow(std::min(row, static_cast<long>(GetItemCount()) - 1));
    Refresh();
}

void lxListCtrl::sortBy(int column, bool ascending) {
    apply([column, ascending](lxRowModel& model) { model.sort(column, ascending); });
}

long lxListCtrl::selectedRow() const {
    const long row = GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return row < static_cast<long>(m_model->rowCount()) ? row : -1;
}

int lxListCtrl::selectedId() const {
    const long row = selectedRow();
    return row >= 0 ? m_model->id(static_cast<size_t>(row)) : -1;
}

bool lxListCtrl::selectId(int id) {
    const long row = m_model->indexOfId(id);
    if (row < 0) return false;
    selectRow(row);
    return true;
}

void lxListCtrl::selectRow(long row) {
    SetItemState(row, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
    EnsureVisible(row);
}

std::vector<int> lxListCtrl::columnWidths() const {
    std::vector<int> widths;
    for (int c = 0; c < GetColumnCount(); ++c) widths.push_back(GetColumnWidth(c));
    return widths;
}

void lxListCtrl::saveColumnWidths() const { lxcolumnwidths::save(m_model->key(), columnWidths()); }

wxString lxListCtrl::OnGetItemText(long item, long column) const {
    if (item < 0 || column < 0) return wxString();
    return m_model->text(static_cast<size_t>(item), static_cast<int>(column));
}

wxItemAttr* lxListCtrl::OnGetItemAttr(long item) const {
    if (item < 0) return nullptr;
    const wxColour colour = m_model->textColour(static_cast<size_t>(item));
    if (!colour.IsOk()) return nullptr;
    m_attr.SetTextColour(colour);
    return &m_attr;
}

void lxListCtrl::onColumnClick(wxListEvent& event) {
    const int column = event.GetColumn();
    if (column < 0 || column >= m_model->columnCount()) return;
    // A new column sorts ascending, the sorted one turns round.
    const bool ascending = column == m_model->sortColumn() ? !m_model->sortAscending() : true;
    sortBy(column, ascending);
}

void lxListCtrl::onColumnDragged(wxListEvent& event) {
    event.Skip();
    // The control applies the new width after this event; store it once it has.
    CallAfter([this]() { saveColumnWidths(); });
}
