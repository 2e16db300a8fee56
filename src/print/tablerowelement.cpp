#include "tablerowelement.h"

#include <wx/dc.h>
#include <wx/xml/xml.h>

#include <algorithm>

void TableRowElement::deleteCell(size_t i) {
    if (i < value.size()) value.RemoveAt(i);
    if (i < width.size()) width.RemoveAt(i);
    if (i < alignment.size()) alignment.RemoveAt(i);
}

int TableRowElement::totalWidth() const {
    int total = 0;
    for (int w : width) total += w;
    return total;
}

int TableRowElement::lineCount() const {
    size_t lines = 1;
    for (size_t i = 0; i < value.size(); ++i)
        lines =
            std::max(lines, textLines(textStyle.font, value[i], std::max(1.0, cellWidth(i) - 2 * CELL_PADDING)).size());
    return static_cast<int>(lines);
}

double TableRowElement::rowHeight() const {
    return lineCount() * lineHeight(textStyle.font) + (border ? 2 * BORDER_PADDING_Y : 0);
}

wxRect2DDouble TableRowElement::bounds() const { return wxRect2DDouble(pos.x, pos.y, totalWidth(), rowHeight()); }

void TableRowElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    const double height = rowHeight();
    const double left = offsetX + pos.x;
    const double top = offsetY + pos.y;
    const double textTop = top + (border ? BORDER_PADDING_Y : 0);
    double x = left;
    const size_t cells = std::max(value.size(), width.size());
    for (size_t i = 0; i < cells; ++i) {
        const double w = cellWidth(i);
        fillBack(dc, mmFactor, textStyle, wxRect2DDouble(x, top, w, height));
        const double inner = std::max(1.0, w - 2 * CELL_PADDING);
        const int align = i < alignment.size() ? alignment[i] : wxTEXT_ALIGNMENT_LEFT;
        drawLines(dc, mmFactor, textStyle, textLines(textStyle.font, cellValue(i), inner), x + CELL_PADDING, textTop,
                  inner, align);
        x += w;
    }
    if (border) {
        // Rules rather than one rectangle a cell, so that shared edges are drawn once and
        // meet exactly.
        dc->SetPen(borderStyle.pen());
        const wxCoord t = at(top, mmFactor), b = at(top + height, mmFactor);
        dc->DrawLine(at(left, mmFactor), t, at(x, mmFactor), t);
        dc->DrawLine(at(left, mmFactor), b, at(x, mmFactor), b);
        double edge = left;
        for (size_t i = 0; i <= cells; ++i) {
            dc->DrawLine(at(edge, mmFactor), t, at(edge, mmFactor), b);
            if (i < cells) edge += cellWidth(i);
        }
    }
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void TableRowElement::writeXml(wxXmlNode* node) const {
    writePair(node, "X", "Y", pos);
    xmlattr::setInt(node, "Border", border);
    wxArrayString widths, alignments;
    for (int w : width) widths.push_back(wxString::Format("%d", w));
    for (int a : alignment) alignments.push_back(wxString::Format("%d", a));
    node->AddChild(xmllist::create("Values", "Value", value));
    node->AddChild(xmllist::create("Widths", "Width", widths));
    node->AddChild(xmllist::create("Alignments", "Alignment", alignments));
    node->AddChild(textStyle.createXmlNode());
    node->AddChild(borderStyle.createXmlNode());
}

void TableRowElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    readPair(node, "X", "Y", &pos);
    xmlattr::readBool(node, "Border", &border);
    if (xmlattr::child(node, "Values")) value = xmllist::read(node, "Values", "Value");
    auto numbers = [&](const wxString& list, const wxString& item, wxArrayInt* target, int fallback) {
        if (!xmlattr::child(node, list)) return;
        target->clear();
        for (const wxString& text : xmllist::read(node, list, item)) {
            long n = fallback;
            target->push_back(text.Strip(wxString::both).ToLong(&n) ? static_cast<int>(n) : fallback);
        }
    };
    numbers("Widths", "Width", &width, 0);
    numbers("Alignments", "Alignment", &alignment, wxTEXT_ALIGNMENT_LEFT);
    // A hand-edited file may list fewer widths or alignments than cells; pad them all to
    // the longest so that the three arrays stay in step.
    const size_t cells = std::max({value.size(), width.size(), alignment.size()});
    while (value.size() < cells) value.push_back(wxString());
    while (width.size() < cells) width.push_back(0);
    while (alignment.size() < cells) alignment.push_back(wxTEXT_ALIGNMENT_LEFT);
    textStyle.fromXmlNode(xmlattr::child(node, "TextStyle"));
    borderStyle.fromXmlNode(xmlattr::child(node, "LineStyle"));
}
