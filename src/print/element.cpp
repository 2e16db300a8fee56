#include "element.h"

#include <wx/dc.h>
#include <wx/xml/xml.h>

#include <algorithm>

#include "table.h"
#include "textmeasure.h"

wxArrayString docSectionNames() {
    wxArrayString names;
    for (const char* name :
         {"Hlavička 1", "Hlavička 2", "Hlavička 3", "Položky", "Patička 1", "Patička 2", "Patička 3"})
        names.push_back(wxString::FromUTF8(name));
    return names;
}

Element::~Element() = default;

TextStyle Element::style() const { return TextStyle(); }

wxString Element::fontString() const { return style().fontString(); }

wxXmlNode* Element::createXmlNode() const {
    auto* node = new wxXmlNode(wxXML_ELEMENT_NODE, "Element");
    xmlattr::setInt(node, "Type", elementType());
    xmlattr::setInt(node, "Section", section);
    writeXml(node);
    xmlattr::setInt(node, "Page", page);
    return node;
}

void Element::writeXml(wxXmlNode*) const {}

void Element::writePlacement(wxXmlNode* node, const wxPoint& pos, int width, int alignment) {
    writePair(node, "X", "Y", pos);
    xmlattr::setInt(node, "Width", width);
    xmlattr::setInt(node, "Alignment", alignment);
}

void Element::readPlacement(const wxXmlNode* node, wxPoint* pos, int* width, wxTextAttrAlignment* alignment) {
    readPair(node, "X", "Y", pos);
    xmlattr::readInt(node, "Width", width);
    int a = *alignment;
    xmlattr::readInt(node, "Alignment", &a);
    *alignment = static_cast<wxTextAttrAlignment>(a);
}

void Element::fromXmlNode(const wxXmlNode* node) {
    int number = section;
    xmlattr::readInt(node, "Section", &number);
    if (number >= 0 && number < DOCSECTION_COUNT) section = static_cast<DOCSECTION>(number);
    number = page;
    xmlattr::readInt(node, "Page", &number);
    if (number >= 1) page = number;
}

double Element::height(bool withSelection) const {
    return bounds().m_height + (withSelection ? 2 * SELECTION_MARGIN : 0);
}

double Element::posY() const { return bounds().m_y; }

double Element::lineHeight(const wxFont& font) { return font.GetFractionalPointSize() * LINE_SPACING * MM_PER_POINT; }

std::vector<wxString> Element::textLines(const wxFont& font, const wxString& text, double width) {
    // Without a width only line feeds break the text.
    const double limit = width > 0 ? lxTextMeasure::mmToPx(width) : 1e12;
    return lxTextMeasure::wrapText(font, text, limit);
}

void Element::drawLines(wxDC* dc, double mmFactor, const TextStyle& style, const std::vector<wxString>& lines, double x,
                        double y, double width, int alignment) {
    dc->SetFont(style.font);
    dc->SetTextForeground(style.fontColour);
    const double lh = lineHeight(style.font);
    const double textTop = lxTextMeasure::textTopInLineMm(style.font, lh);
    for (size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        const double w = lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(style.font, lines[i]));
        double tx = x;
        if (alignment == wxTEXT_ALIGNMENT_CENTRE)
            tx = width > 0 ? x + (width - w) / 2 : x - w / 2;
        else if (alignment == wxTEXT_ALIGNMENT_RIGHT)
            tx = width > 0 ? x + width - w : x - w;
        dc->DrawText(lines[i], at(tx, mmFactor), at(y + i * lh + textTop, mmFactor));
    }
}

void Element::fillBack(wxDC* dc, double mmFactor, const TextStyle& style, const wxRect2DDouble& area) {
    const wxColour& back = style.backColour;
    if (!back.IsOk() || back.Alpha() == 0 || back == wxColour(255, 255, 255)) return;
    if (area.m_width <= 0 || area.m_height <= 0) return;
    dc->SetPen(*wxTRANSPARENT_PEN);
    dc->SetBrush(wxBrush(back));
    const wxCoord left = at(area.m_x, mmFactor), top = at(area.m_y, mmFactor);
    dc->DrawRectangle(left, top, at(area.m_x + area.m_width, mmFactor) - left,
                      at(area.m_y + area.m_height, mmFactor) - top);
}

void Element::drawSelection(wxDC* dc, double mmFactor, int offsetX, int offsetY) const {
    if (!selected) return;
    const wxRect2DDouble b = bounds();
    dc->SetPen(wxPen(wxColour(0, 0, 255), 1, wxPENSTYLE_DOT));
    dc->SetBrush(*wxTRANSPARENT_BRUSH);
    const double left = offsetX + b.m_x - SELECTION_MARGIN, top = offsetY + b.m_y - SELECTION_MARGIN;
    const wxCoord x = at(left, mmFactor), y = at(top, mmFactor);
    dc->DrawRectangle(x, y, at(left + b.m_width + 2 * SELECTION_MARGIN, mmFactor) - x,
                      at(top + b.m_height + 2 * SELECTION_MARGIN, mmFactor) - y);
}

namespace xmllist {

wxXmlNode* create(const wxString& listName, const wxString& itemName, const wxArrayString& items) {
    auto* list = new wxXmlNode(wxXML_ELEMENT_NODE, listName);
    wxXmlNode* last = nullptr;
    for (const wxString& item : items) {
        auto* node = new wxXmlNode(wxXML_ELEMENT_NODE, itemName);
        if (!item.empty()) node->AddChild(new wxXmlNode(wxXML_TEXT_NODE, wxEmptyString, item));
        // Appending after the last child keeps the list linear instead of walking it each time.
        if (last)
            list->InsertChildAfter(node, last);
        else
            list->AddChild(node);
        last = node;
    }
    return list;
}

wxArrayString read(const wxXmlNode* parent, const wxString& listName, const wxString& itemName) {
    wxArrayString items;
    const wxXmlNode* list = xmlattr::child(parent, listName);
    for (const wxXmlNode* c = list ? list->GetChildren() : nullptr; c; c = c->GetNext())
        if (c->GetType() == wxXML_ELEMENT_NODE && c->GetName() == itemName) items.push_back(c->GetNodeContent());
    return items;
}

}  // namespace xmllist
