// lxRowModel: the rows of one list as the list control sees them: a fixed set of columns and
// the rows that pass the page's filter, in the chosen order. The control asks for the text
// of the cells it paints and nothing else, so a page of a million rows shows at once.
// The model holds no window and can be filled, filtered and sorted without a display.
#pragma once

#include <wx/arrstr.h>
#include <wx/colour.h>
#include <wx/datetime.h>
#include <wx/string.h>

#include <cstddef>

// Caption, default width in pixels and alignment of one list column.
struct lxColumnInfo {
    wxString caption;
    int width = 80;
    bool right = false;  // amounts and counts are right-aligned
};

// What a page's filter lets through. Every condition that is set must hold.
struct lxFilter {
    wxDateTime od;     // the first day shown; invalid: no lower bound
    wxDateTime doDne;  // the last day shown; invalid: no upper bound
    wxString text;     // contained in one of the text columns, without regard to case
    int choice = 0;    // 0: every row; n: the page's n-th choice (lxRowModel::filterChoices)

    bool isActive() const { return od.IsValid() || doDne.IsValid() || !text.empty() || choice > 0; }
};

class lxRowModel {
 public:
    virtual ~lxRowModel() = default;

    // The name under which the page's column widths are remembered.
    virtual wxString key() const = 0;
    virtual int columnCount() const = 0;
    virtual const lxColumnInfo& column(int column) const = 0;

    // Reads the rows again from the database, keeping filter and order.
    virtual void reload() = 0;
    // Rows that pass the filter, in the shown order; totalCount() counts every loaded row.
    virtual std::size_t rowCount() const = 0;
    virtual std::size_t totalCount() const = 0;
    virtual wxString text(std::size_t row, int column) const = 0;
    // The colour a shown row is written in (an overdue document in red); invalid for the
    // list's own colour.
    virtual wxColour textColour(std::size_t) const { return wxColour(); }
    // The record id of a shown row, and the shown row of an id (-1 when not shown).
    virtual int id(std::size_t row) const = 0;
    virtual long indexOfId(int id) const = 0;

    // Orders the shown rows by a column; an index outside the columns restores the order
    // in which the database gave them.
    virtual void sort(int column, bool ascending) = 0;
    virtual int sortColumn() const = 0;
    virtual bool sortAscending() const = 0;

    virtual void setFilter(const lxFilter& filter) = 0;
    virtual const lxFilter& filter() const = 0;
    // Whether the page's rows carry a date the filter can limit.
    virtual bool hasDateFilter() const = 0;
    // The page's own filter choices (without the leading "all rows").
    virtual wxArrayString filterChoices() const = 0;

    // The line under the list: totals of the shown rows, or what the empty list means.
    virtual wxString footer() const = 0;
};
