#include "lineelement.h"

#include <wx/dc.h>
#include <wx/xml/xml.h>

#include <algorithm>
#include <cstdlib>

LineElement::LineElement(const wxPoint& start_, const wxPoint& end_, const LineStyle& style_)
    : start(start_), end(end_), lineStyle(style_) {}

wxRect2DDouble LineElement::bounds() const {
    return wxRect2DDouble(std::min(start.x, end.x), std::min(start.y, end.y), std::abs(end.x - start.x),
                          std::abs(end.y - start.y));
}

void LineElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    dc->SetPen(lineStyle.pen());
    dc->DrawLine(at(offsetX + start.x, mmFactor), at(offsetY + start.y, mmFactor), at(offsetX + end.x, mmFactor),
                 at(offsetY + end.y, mmFactor));
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void LineElement::writeXml(wxXmlNode* node) const {
    writePair(node, "StartX", "StartY", start);
    writePair(node, "EndX", "EndY", end);
    xmlattr::setInt(node, "anchor", anchor);
    xmlattr::setInt(node, "borderTop", borderTop);
    xmlattr::setInt(node, "borderBottom", borderBottom);
    node->AddChild(lineStyle.createXmlNode());
}

void LineElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    readPair(node, "StartX", "StartY", &start);
    readPair(node, "EndX", "EndY", &end);
    xmlattr::readBool(node, "anchor", &anchor);
    xmlattr::readBool(node, "borderTop", &borderTop);
    xmlattr::readBool(node, "borderBottom", &borderBottom);
    lineStyle.fromXmlNode(xmlattr::child(node, "LineStyle"));
}
