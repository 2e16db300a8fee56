#include "textparagraphelement.h"

#include <wx/dc.h>
#include <wx/xml/xml.h>

std::vector<wxString> TextParagraphElement::lines() const {
    std::vector<wxString> all;
    const double inner = width - 2 * padding();
    for (const wxString& line : value) {
        // An empty entry is an empty line, not nothing.
        if (line.empty()) {
            all.emplace_back();
            continue;
        }
        auto wrapped = textLines(textStyle.font, line, inner > 0 ? inner : 0);
        all.insert(all.end(), wrapped.begin(), wrapped.end());
    }
    return all;
}

wxRect2DDouble TextParagraphElement::bounds() const {
    return wxRect2DDouble(pos.x, pos.y, width, lines().size() * lineHeight(textStyle.font) + padding());
}

void TextParagraphElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    wxRect2DDouble area = bounds();
    area.m_x += offsetX;
    area.m_y += offsetY;
    fillBack(dc, mmFactor, textStyle, area);
    drawLines(dc, mmFactor, textStyle, lines(), area.m_x + padding(), area.m_y + padding() / 2, width - 2 * padding(),
              alignment);
    if (border) {
        dc->SetPen(borderStyle.pen());
        dc->SetBrush(*wxTRANSPARENT_BRUSH);
        const wxCoord x = at(area.m_x, mmFactor), y = at(area.m_y, mmFactor);
        dc->DrawRectangle(x, y, at(area.m_x + area.m_width, mmFactor) - x, at(area.m_y + area.m_height, mmFactor) - y);
    }
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void TextParagraphElement::writeXml(wxXmlNode* node) const {
    writePlacement(node, pos, width, alignment);
    xmlattr::setInt(node, "Border", border);
    node->AddChild(xmllist::create("Values", "Value", value));
    node->AddChild(textStyle.createXmlNode());
    node->AddChild(borderStyle.createXmlNode());
}

void TextParagraphElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    readPlacement(node, &pos, &width, &alignment);
    xmlattr::readBool(node, "Border", &border);
    if (xmlattr::child(node, "Values")) value = xmllist::read(node, "Values", "Value");
    textStyle.fromXmlNode(xmlattr::child(node, "TextStyle"));
    borderStyle.fromXmlNode(xmlattr::child(node, "LineStyle"));
}
