// Element: one positioned piece of a document (text, paragraph, table row, image, line,
// rectangle). Positions and sizes are whole millimetres measured from the document's top
// left margin corner; each element belongs to one section of the page and to one page.
#pragma once

#include <wx/geometry.h>
#include <wx/string.h>
#include <wx/textctrl.h>

#include <memory>
#include <vector>

#include "textstyle.h"

class wxDC;
class wxXmlNode;

// The section of the page an element belongs to; the stored number is the position in
// docSectionNames().
enum DOCSECTION {
    DOCSECTION_HEADER1 = 0,
    DOCSECTION_HEADER2,
    DOCSECTION_HEADER3,
    DOCSECTION_ITEMS,
    DOCSECTION_FOOTER1,
    DOCSECTION_FOOTER2,
    DOCSECTION_FOOTER3,
    DOCSECTION_COUNT
};

// "Hlavička 1" ... "Patička 3", in the order the template dialogs offer them.
wxArrayString docSectionNames();

class Element {
 public:
    enum Type { TEXT = 1, PARAGRAPH = 2, TABLE_ROW = 3, IMAGE = 4, LINE = 5, RECTANGLE = 6 };

    virtual ~Element();
    // Draws the element with the document's top left margin corner at (offsetX, offsetY) mm.
    virtual void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) = 0;
    virtual int elementType() const = 0;
    // The text style of text-like elements; the default style for the others.
    virtual TextStyle style() const;
    virtual wxString fontString() const;
    // An "Element" node: "Type" and "Section", the attributes and child nodes of the kind
    // (writeXml), then "Page". The attribute order is the one of the template files.
    wxXmlNode* createXmlNode() const;
    // Reads what the node holds; missing or unreadable attributes keep their values.
    virtual void fromXmlNode(const wxXmlNode* node);
    // Height in mm; with the selection frame the editor draws around a selected element.
    virtual double height(bool withSelection) const;
    // Top edge in mm.
    virtual double posY() const;
    // The area the element covers, mm.
    virtual wxRect2DDouble bounds() const = 0;
    virtual std::unique_ptr<Element> clone() const = 0;

    int page = 1;
    DOCSECTION section = DOCSECTION_HEADER1;
    bool selected = false;  // editor state, never stored

 protected:
    // Margin of the selection frame around a selected element, mm.
    static constexpr double SELECTION_MARGIN = 1.0;

    // Line height of text in this font, mm.
    static double lineHeight(const wxFont& font);
    // Lines of `text` broken at line feeds and, when width > 0, wrapped to that width in mm.
    static std::vector<wxString> textLines(const wxFont& font, const wxString& text, double width);
    // Draws lines from (x, y) mm, aligned within `width` mm (with no width: left aligned
    // from x, centred on x or ending at x).
    static void drawLines(wxDC* dc, double mmFactor, const TextStyle& style, const std::vector<wxString>& lines,
                          double x, double y, double width, int alignment);
    // Fills the area with the style's back colour unless it is white.
    static void fillBack(wxDC* dc, double mmFactor, const TextStyle& style, const wxRect2DDouble& area);
    void drawSelection(wxDC* dc, double mmFactor, int offsetX, int offsetY) const;
    static wxCoord at(double mm, double mmFactor) { return wxRound(mm * mmFactor); }

    // The attributes and child nodes of the kind.
    virtual void writeXml(wxXmlNode* node) const;
    // "X", "Y", "Width" and "Alignment" of the elements placed at a point with a width.
    static void writePlacement(wxXmlNode* node, const wxPoint& pos, int width, int alignment);
    static void readPlacement(const wxXmlNode* node, wxPoint* pos, int* width, wxTextAttrAlignment* alignment);
    // A point or a size as two whole-millimetre attributes.
    template <class Pair>
    static void writePair(wxXmlNode* node, const char* xName, const char* yName, const Pair& pair) {
        xmlattr::setInt(node, xName, pair.x);
        xmlattr::setInt(node, yName, pair.y);
    }
    template <class Pair>
    static void readPair(const wxXmlNode* node, const char* xName, const char* yName, Pair* pair) {
        xmlattr::readInt(node, xName, &pair->x);
        xmlattr::readInt(node, yName, &pair->y);
    }
};

using lxElementsArray = std::vector<std::unique_ptr<Element>>;

// Lists of child nodes in the template format: <Values><Value>text</Value>...</Values>.
namespace xmllist {
wxXmlNode* create(const wxString& listName, const wxString& itemName, const wxArrayString& items);
// The items of the list node, or nothing when the node is missing.
wxArrayString read(const wxXmlNode* parent, const wxString& listName, const wxString& itemName);
}  // namespace xmllist
