#include "textelement.h"

#include <wx/xml/xml.h>

#include <algorithm>

#include "textmeasure.h"

TextElement::TextElement(const wxString& value_, const wxPoint& pos_, int width_, wxTextAttrAlignment alignment_,
                         const TextStyle& style_)
    : value(value_), pos(pos_), width(width_), alignment(alignment_), textStyle(style_) {}

std::vector<wxString> TextElement::lines() const {
    if (value.empty()) return {};
    return textLines(textStyle.font, value, width);
}

wxRect2DDouble TextElement::bounds() const {
    const auto l = lines();
    const double lh = lineHeight(textStyle.font);
    const double h = l.empty() ? (forceSpace ? lh : 0) : l.size() * lh;
    double w = width;
    if (w <= 0)
        for (const auto& line : l)
            w = std::max(w, lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(textStyle.font, line)));
    double x = pos.x;
    if (width <= 0 && alignment == wxTEXT_ALIGNMENT_CENTRE) x -= w / 2;
    if (width <= 0 && alignment == wxTEXT_ALIGNMENT_RIGHT) x -= w;
    return wxRect2DDouble(x, pos.y, w, h);
}

void TextElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    wxRect2DDouble area = bounds();
    area.m_x += offsetX;
    area.m_y += offsetY;
    fillBack(dc, mmFactor, textStyle, area);
    drawLines(dc, mmFactor, textStyle, lines(), offsetX + pos.x, offsetY + pos.y, width, alignment);
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void TextElement::writeXml(wxXmlNode* node) const {
    node->AddAttribute("Value", value);
    writePlacement(node, pos, width, alignment);
    xmlattr::setInt(node, "ForceSpace", forceSpace);
    node->AddChild(textStyle.createXmlNode());
}

void TextElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    xmlattr::readString(node, "Value", &value);
    readPlacement(node, &pos, &width, &alignment);
    xmlattr::readBool(node, "ForceSpace", &forceSpace);
    textStyle.fromXmlNode(xmlattr::child(node, "TextStyle"));
}
