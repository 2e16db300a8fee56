// The dialog of a table row: its cells in a grid (text, width in mm, alignment) with buttons
// to add and delete a cell, the row's place, style and an optional border.
#pragma once

#include "PrvekDialog.h"
#include "tablerowelement.h"

class wxGrid;

class RadekTabulkyDialog : public PrvekDialog {
 public:
    RadekTabulkyDialog(wxWindow* parent, TableRowElement& element);
    bool save() override;
    // Into the text of the selected cell, at its end.
    void insertPlaceholder(const wxString& key) override;

    // The grid's columns.
    enum { COL_HODNOTA, COL_SIRKA, COL_ZAROVNANI };
    wxGrid* grid() const { return m_grid; }
    // "Přidat buňku" appends a cell after the selected one (or at the end); "Smazat buňku"
    // removes the selected cell.
    void pridatBunku();
    void smazatBunku();

 private:
    void setRow(int row, const wxString& value, int width, int alignment);
    int currentRow() const;

    TableRowElement& m_element;
    wxGrid* m_grid;
    wxCheckBox* m_border;
};
