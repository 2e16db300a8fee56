// A straight line between two points. The anchor and border flags belong to the invoice
// layout: an anchored line moves with the item rows, and a border line marks the top or
// bottom edge of the item band.
#pragma once

#include <wx/gdicmn.h>

#include "element.h"

class LineElement : public Element {
 public:
    LineElement() = default;
    LineElement(const wxPoint& start, const wxPoint& end, const LineStyle& style = LineStyle());

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return LINE; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<LineElement>(*this); }

    wxPoint start;
    wxPoint end;
    LineStyle lineStyle;
    bool anchor = false;
    bool borderTop = false;
    bool borderBottom = false;
};
