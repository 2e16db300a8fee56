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

wxXmlNode* RectangleElement::createXmlNode() const {
    wxXmlNode* node = Element::createXmlNode();
    xmlattr::setInt(node, "StartX", start.x);
    xmlattr::setInt(node, "StartY", start.y);
    xmlattr::setInt(node, "Width", size.x);
    xmlattr::setInt(node, "Height", size.y);
    xmlattr::setInt(node, "anchor", anchor);
    xmlattr::setInt(node, "fillet", fillet);
    xmlattr::setInt(node, "Page", page);
    node->AddChild(lineStyle.createXmlNode());
    return node;
}

void RectangleElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    xmlattr::readInt(node, "StartX", &start.x);
    xmlattr::readInt(node, "StartY", &start.y);
    xmlattr::readInt(node, "Width", &size.x);
    xmlattr::readInt(node, "Height", &size.y);
    xmlattr::readBool(node, "anchor", &anchor);
    xmlattr::readInt(node, "fillet", &fillet);
    lineStyle.fromXmlNode(xmlattr::child(node, "LineStyle"));
}
