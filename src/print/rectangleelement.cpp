#include "rectangleelement.h"

#include <wx/dc.h>
#include <wx/xml/xml.h>

#include <algorithm>

RectangleElement::RectangleElement(const wxPoint& start_, const wxSize& size_, const LineStyle& style_, int fillet_)
    : start(start_), size(size_), lineStyle(style_), fillet(fillet_) {}

wxRect2DDouble RectangleElement::bounds() const {
    return wxRect2DDouble(start.x, start.y, std::max(0, size.x), std::max(0, size.y));
}

void RectangleElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    const wxRect2DDouble b = bounds();
    const wxCoord x = at(offsetX + b.m_x, mmFactor), y = at(offsetY + b.m_y, mmFactor);
    const wxCoord w = at(offsetX + b.m_x + b.m_width, mmFactor) - x;
    const wxCoord h = at(offsetY + b.m_y + b.m_height, mmFactor) - y;
    dc->SetPen(lineStyle.pen());
    dc->SetBrush(*wxTRANSPARENT_BRUSH);
    if (fillet > 0)
        dc->DrawRoundedRectangle(x, y, w, h, std::min<double>(fillet * mmFactor, std::min(w, h) / 2.0));
    else
        dc->DrawRectangle(x, y, w, h);
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void RectangleElement::writeXml(wxXmlNode* node) const {
    writePair(node, "StartX", "StartY", start);
    writePair(node, "Width", "Height", size);
    xmlattr::setInt(node, "anchor", anchor);
    xmlattr::setInt(node, "fillet", fillet);
    node->AddChild(lineStyle.createXmlNode());
}

void RectangleElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    readPair(node, "StartX", "StartY", &start);
    readPair(node, "Width", "Height", &size);
    xmlattr::readBool(node, "anchor", &anchor);
    xmlattr::readInt(node, "fillet", &fillet);
    lineStyle.fromXmlNode(xmlattr::child(node, "LineStyle"));
}
