// Document: a free-form print (an invoice, a card, a form) as page settings, a default text
// style and an owning list of positioned elements. It is built in code or read from a
// template file (root "evidaDocument"), and printed by DocumentPrint.
#pragma once

#include <wx/string.h>

#include "element.h"
#include "imageelement.h"
#include "lineelement.h"
#include "lxprint.h"
#include "rectangleelement.h"
#include "tablerowelement.h"
#include "textelement.h"
#include "textparagraphelement.h"

class Document {
 public:
    Document();
    Document(const Document& other);
    Document& operator=(const Document& other);

    // Each adds a copy of the element.
    void addElement(const TextElement& element);
    void addElement(const TextParagraphElement& element);
    void addElement(const TableRowElement& element);
    void addElement(const ImageElement& element);
    void addElement(const LineElement& element);
    void addElement(const RectangleElement& element);
    void addElement(std::unique_ptr<Element> element);
    void deleteElement(size_t i);

    const lxElementsArray& elements() const { return m_elements; }
    size_t count() const { return m_elements.size(); }
    Element* element(size_t i) const { return i < m_elements.size() ? m_elements[i].get() : nullptr; }
    std::vector<Element*> elementsByPage(int page) const;
    std::vector<Element*> elementsBySection(DOCSECTION section) const;
    // The lowest bottom edge (posY + height) of the section's elements; 0 when it has none.
    double sectionHeight(DOCSECTION section) const;
    // By section, then by top edge.
    void sortElements();
    // Deep copy of everything, elements included.
    void setFromDoc(const Document& other);
    void clearElementSelection();
    // The last page any element is on, at least 1.
    int lastElementPage() const;

    // Template files. Failures leave the document as it was and put a Czech message into
    // *error when one is given.
    bool saveToXml(const wxString& path, wxString* error = nullptr) const;
    bool readFromXml(const wxString& path, wxString* error = nullptr);

    // Margins, header texts and rule, footer type and text.
    lxPrint::Layout layout;
    // Default style of new elements.
    TextStyle style;
    int pages = 1;

 private:
    lxElementsArray m_elements;
};

// The element's anchor point: the position of the placed kinds, the top left end of a line,
// the corner of a rectangle.
wxPoint originOf(const Element& element);
// Moves the element by whole millimetres; a line moves both ends. Nothing goes left of or
// above the margin corner: the move stops there.
void moveElement(Element& element, int dx, int dy);

// The element kind stored as `type` in a template, or null for an unknown type.
std::unique_ptr<Element> createElement(int type);
