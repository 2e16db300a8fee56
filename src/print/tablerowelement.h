// A row of cells side by side, each with its own width and alignment; in the item band of
// an invoice template one such row is repeated for every item.
#pragma once

#include <wx/arrstr.h>
#include <wx/dynarray.h>
#include <wx/gdicmn.h>

#include "element.h"

class TableRowElement : public Element {
 public:
    TableRowElement() = default;

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return TABLE_ROW; }
    TextStyle style() const override { return textStyle; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<TableRowElement>(*this); }

    // The three cell arrays move in step.
    void addCellValue(const wxString& text) { value.push_back(text); }
    void addCellWidth(int mm) { width.push_back(mm); }
    void addCellAlignment(int alignment) { this->alignment.push_back(alignment); }
    void deleteCell(size_t i);
    // The cell's text, empty past the end.
    wxString cellValue(size_t i) const { return i < value.size() ? value[i] : wxString(); }
    int totalWidth() const;
    size_t cellCount() const { return value.size(); }

    wxArrayString value;  // one entry a cell
    wxPoint pos;
    wxArrayInt width;      // mm, one a cell
    wxArrayInt alignment;  // wxTextAttrAlignment, one a cell
    TextStyle textStyle;
    bool border = false;
    LineStyle borderStyle;

 private:
    // Text keeps this distance from the cell's sides, mm, and inside a border this much
    // from its top and bottom, so that accents stay clear of the line.
    static constexpr double CELL_PADDING = 1.0;
    static constexpr double BORDER_PADDING_Y = 0.5;
    double rowHeight() const;
    int cellWidth(size_t i) const { return i < width.size() ? width[i] : 0; }
    int lineCount() const;
};
