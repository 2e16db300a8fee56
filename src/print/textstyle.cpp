#include "textstyle.h"

#include <wx/tokenzr.h>
#include <wx/xml/xml.h>

#include <climits>

const char* const PRINT_FONT_FACE = "Lucida Grande";

namespace {

const wxColour BLACK(0, 0, 0);
const wxColour WHITE(255, 255, 255);

wxColour colourFromString(const wxString& text, const wxColour& fallback) {
    wxColour colour;
    if (!text.empty() && colour.Set(text)) return colour;
    return fallback;
}

}  // namespace

wxFont printFont(double pointSize) {
    return wxFont(wxFontInfo(pointSize).Family(wxFONTFAMILY_DEFAULT).FaceName(PRINT_FONT_FACE));
}

wxString fontToString(const wxFont& font) {
    if (!font.IsOk()) return wxString();
    wxString text = font.GetFaceName() + ";" + wxString::FromCDouble(font.GetFractionalPointSize());
    const int weight = font.GetNumericWeight();
    if (weight == wxFONTWEIGHT_BOLD)
        text += ";bold";
    else if (weight != wxFONTWEIGHT_NORMAL)
        text += wxString::Format(";weight=%d", weight);
    if (font.GetStyle() == wxFONTSTYLE_ITALIC) text += ";italic";
    if (font.GetStyle() == wxFONTSTYLE_SLANT) text += ";slant";
    if (font.GetUnderlined()) text += ";underlined";
    return text;
}

wxFont fontFromString(const wxString& text, const wxFont& fallback) {
    wxArrayString parts = wxStringTokenize(text, ";", wxTOKEN_RET_EMPTY_ALL);
    if (parts.size() < 2 || parts[0].Strip(wxString::both).empty()) return fallback;
    double size = 0;
    if (!parts[1].ToCDouble(&size) || size <= 0 || size > 1000) return fallback;
    wxFontInfo info(size);
    info.Family(wxFONTFAMILY_DEFAULT).FaceName(parts[0].Strip(wxString::both));
    for (size_t i = 2; i < parts.size(); ++i) {
        const wxString flag = parts[i].Strip(wxString::both);
        long weight = 0;
        if (flag == "bold")
            info.Bold();
        else if (flag == "italic")
            info.Italic();
        else if (flag == "slant")
            info.Slant();
        else if (flag == "underlined")
            info.Underlined();
        else if (flag.StartsWith("weight=") && flag.Mid(7).ToLong(&weight) && weight >= 1 && weight <= 1000)
            info.Weight(static_cast<int>(weight));
    }
    wxFont font(info);
    return font.IsOk() ? font : fallback;
}

wxString colourToString(const wxColour& colour) { return colour.GetAsString(wxC2S_NAME | wxC2S_CSS_SYNTAX); }

TextStyle::TextStyle() : font(printFont(8)), fontColour(BLACK), backColour(WHITE) {}

TextStyle::TextStyle(const wxFont& font_, const wxColour& fontColour_, const wxColour& backColour_)
    : font(font_), fontColour(fontColour_), backColour(backColour_) {}

wxXmlNode* TextStyle::createXmlNode() const {
    auto* node = new wxXmlNode(wxXML_ELEMENT_NODE, "TextStyle");
    node->AddAttribute("Font", fontString());
    node->AddAttribute("FontColour", colourToString(fontColour));
    node->AddAttribute("BackColour", colourToString(backColour));
    return node;
}

void TextStyle::fromXmlNode(const wxXmlNode* node) {
    if (!node) return;
    font = fontFromString(node->GetAttribute("Font"), font);
    fontColour = colourFromString(node->GetAttribute("FontColour"), BLACK);
    backColour = colourFromString(node->GetAttribute("BackColour"), WHITE);
}

bool TextStyle::operator==(const TextStyle& other) const {
    return fontToString(font) == fontToString(other.font) && fontColour == other.fontColour &&
           backColour == other.backColour;
}

LineStyle::LineStyle() : lineColour(BLACK), width(1), style(wxPENSTYLE_SOLID) {}

LineStyle::LineStyle(const wxColour& colour, int width_, wxPenStyle style_)
    : lineColour(colour), width(width_), style(style_) {}

wxPen LineStyle::pen() const {
    // A width of 0 would be a hairline on some devices and nothing on others.
    return wxPen(lineColour, width < 1 ? 1 : width, style);
}

wxXmlNode* LineStyle::createXmlNode() const {
    auto* node = new wxXmlNode(wxXML_ELEMENT_NODE, "LineStyle");
    node->AddAttribute("Colour", colourToString(lineColour));
    xmlattr::setInt(node, "Width", width);
    xmlattr::setInt(node, "Style", style);
    return node;
}

void LineStyle::fromXmlNode(const wxXmlNode* node) {
    if (!node) return;
    lineColour = colourFromString(node->GetAttribute("Colour"), BLACK);
    width = 1;
    xmlattr::readInt(node, "Width", &width);
    if (width < 0 || width > 100) width = 1;
    int penStyle = wxPENSTYLE_SOLID;
    xmlattr::readInt(node, "Style", &penStyle);
    // Only the pen styles a template editor offers; anything else would make an invalid pen.
    switch (penStyle) {
        case wxPENSTYLE_SOLID:
        case wxPENSTYLE_DOT:
        case wxPENSTYLE_LONG_DASH:
        case wxPENSTYLE_SHORT_DASH:
        case wxPENSTYLE_DOT_DASH:
        case wxPENSTYLE_TRANSPARENT:
            style = static_cast<wxPenStyle>(penStyle);
            break;
        default:
            style = wxPENSTYLE_SOLID;
    }
}

bool LineStyle::operator==(const LineStyle& other) const {
    return lineColour == other.lineColour && width == other.width && style == other.style;
}

namespace xmlattr {

void setInt(wxXmlNode* node, const wxString& name, long value) {
    node->AddAttribute(name, wxString::Format("%d", static_cast<int>(value)));
}

void readInt(const wxXmlNode* node, const wxString& name, int* value) {
    wxString text;
    long number = 0;
    if (node->GetAttribute(name, &text) && text.Strip(wxString::both).ToLong(&number) && number >= INT_MIN &&
        number <= INT_MAX)
        *value = static_cast<int>(number);
}

void readBool(const wxXmlNode* node, const wxString& name, bool* value) {
    int number = *value ? 1 : 0;
    readInt(node, name, &number);
    *value = number != 0;
}

void readString(const wxXmlNode* node, const wxString& name, wxString* value) {
    wxString text;
    if (node->GetAttribute(name, &text)) *value = text;
}

const wxXmlNode* child(const wxXmlNode* node, const wxString& name) {
    for (const wxXmlNode* c = node ? node->GetChildren() : nullptr; c; c = c->GetNext())
        if (c->GetType() == wxXML_ELEMENT_NODE && c->GetName() == name) return c;
    return nullptr;
}

}  // namespace xmlattr
