// A rectangle outline, with rounded corners when `fillet` (the corner radius, mm) is set.
#pragma once

#include <wx/gdicmn.h>

#include "element.h"

class RectangleElement : public Element {
 public:
    RectangleElement() = default;
    RectangleElement(const wxPoint& start, const wxSize& size, const LineStyle& style = LineStyle(), int fillet = 0);

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return RECTANGLE; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<RectangleElement>(*this); }

    wxPoint start;
    wxSize size;
    LineStyle lineStyle;
    int fillet = 0;
    // An anchored rectangle stretches with the item rows of an invoice.
    bool anchor = false;
};
