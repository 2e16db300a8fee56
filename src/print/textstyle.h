// Font and colours of printed text, and the pen of printed lines. Tables, document elements
// and template files share these two small value types.
#pragma once

#include <wx/colour.h>
#include <wx/font.h>
#include <wx/pen.h>
#include <wx/string.h>

class wxXmlNode;

// The font every print starts from; fontconfig substitutes it where it is not installed.
extern const char* const PRINT_FONT_FACE;

// "Lucida Grande" at the given size, default family, normal weight.
wxFont printFont(double pointSize);

// A font as a short readable text, "face;size[;bold][;italic|;slant][;underlined][;weight=N]",
// and back. Unreadable text leaves `fallback`. The face name survives even where the font
// itself is missing, so a template keeps the font its author chose.
wxString fontToString(const wxFont& font);
wxFont fontFromString(const wxString& text, const wxFont& fallback);

// Colours as the wxWidgets colour classes write them ("black", "rgb(12, 34, 56)").
wxString colourToString(const wxColour& colour);

class TextStyle {
 public:
    // "Lucida Grande" 8 pt, black on white.
    TextStyle();
    TextStyle(const wxFont& font, const wxColour& fontColour, const wxColour& backColour);

    wxString fontString() const { return fontToString(font); }
    // A "TextStyle" node; reading one without colours gives black on white.
    wxXmlNode* createXmlNode() const;
    void fromXmlNode(const wxXmlNode* node);
    bool operator==(const TextStyle& other) const;
    bool operator!=(const TextStyle& other) const { return !(*this == other); }

    wxFont font;
    wxColour fontColour;
    wxColour backColour;
};

class LineStyle {
 public:
    LineStyle();
    LineStyle(const wxColour& colour, int width, wxPenStyle style = wxPENSTYLE_SOLID);

    wxPen pen() const;
    // A "LineStyle" node; missing attributes read as black, width 1, solid (100).
    wxXmlNode* createXmlNode() const;
    void fromXmlNode(const wxXmlNode* node);
    bool operator==(const LineStyle& other) const;

    wxColour lineColour;
    int width;
    wxPenStyle style;
};

// Attribute helpers of the template format: numbers with "%d", booleans as 0 or 1. Reading
// keeps the current value when the attribute is missing or not a number.
namespace xmlattr {
void setInt(wxXmlNode* node, const wxString& name, long value);
void readInt(const wxXmlNode* node, const wxString& name, int* value);
void readBool(const wxXmlNode* node, const wxString& name, bool* value);
void readString(const wxXmlNode* node, const wxString& name, wxString* value);
// The first child element with this name, or null.
const wxXmlNode* child(const wxXmlNode* node, const wxString& name);
}  // namespace xmlattr
