#include "document.h"

#include <wx/filename.h>
#include <wx/log.h>
#include <wx/xml/xml.h>

#include <algorithm>

namespace {

const char* const ROOT = "evidaDocument";

// The comparator of element order: section first, then the top edge.
bool lxSortElements(const std::unique_ptr<Element>& a, const std::unique_ptr<Element>& b) {
    if (a->section != b->section) return a->section < b->section;
    return a->posY() < b->posY();
}

void appendChild(wxXmlNode* parent, wxXmlNode* child, wxXmlNode** last) {
    if (*last)
        parent->InsertChildAfter(child, *last);
    else
        parent->AddChild(child);
    *last = child;
}

}  // namespace

std::unique_ptr<Element> createElement(int type) {
    switch (type) {
        case Element::TEXT:
            return std::make_unique<TextElement>();
        case Element::PARAGRAPH:
            return std::make_unique<TextParagraphElement>();
        case Element::TABLE_ROW:
            return std::make_unique<TableRowElement>();
        case Element::IMAGE:
            return std::make_unique<ImageElement>();
        case Element::LINE:
            return std::make_unique<LineElement>();
        case Element::RECTANGLE:
            return std::make_unique<RectangleElement>();
        default:
            return nullptr;
    }
}

Document::Document() = default;

Document::Document(const Document& other) { setFromDoc(other); }

Document& Document::operator=(const Document& other) {
    if (this != &other) setFromDoc(other);
    return *this;
}

void Document::addElement(const TextElement& element) { m_elements.push_back(element.clone()); }
void Document::addElement(const TextParagraphElement& element) { m_elements.push_back(element.clone()); }
void Document::addElement(const TableRowElement& element) { m_elements.push_back(element.clone()); }
void Document::addElement(const ImageElement& element) { m_elements.push_back(element.clone()); }
void Document::addElement(const LineElement& element) { m_elements.push_back(element.clone()); }
void Document::addElement(const RectangleElement& element) { m_elements.push_back(element.clone()); }

void Document::addElement(std::unique_ptr<Element> element) {
    if (element) m_elements.push_back(std::move(element));
}

void Document::deleteElement(size_t i) {
    if (i < m_elements.size()) m_elements.erase(m_elements.begin() + i);
}

std::vector<Element*> Document::elementsByPage(int page) const {
    std::vector<Element*> found;
    for (const auto& e : m_elements)
        if (e->page == page) found.push_back(e.get());
    return found;
}

std::vector<Element*> Document::elementsBySection(DOCSECTION section) const {
    std::vector<Element*> found;
    for (const auto& e : m_elements)
        if (e->section == section) found.push_back(e.get());
    return found;
}

double Document::sectionHeight(DOCSECTION section) const {
    double height = 0;
    for (const auto& e : m_elements)
        if (e->section == section) height = std::max(height, e->posY() + e->height(false));
    return height;
}

void Document::sortElements() { std::stable_sort(m_elements.begin(), m_elements.end(), lxSortElements); }

void Document::setFromDoc(const Document& other) {
    if (this == &other) return;
    layout = other.layout;
    style = other.style;
    pages = other.pages;
    m_elements.clear();
    m_elements.reserve(other.m_elements.size());
    for (const auto& e : other.m_elements) m_elements.push_back(e->clone());
}

void Document::clearElementSelection() {
    for (auto& e : m_elements) e->selected = false;
}

int Document::lastElementPage() const {
    int last = 1;
    for (const auto& e : m_elements) last = std::max(last, e->page);
    return last;
}

bool Document::saveToXml(const wxString& path, wxString* error) const {
    auto* root = new wxXmlNode(wxXML_ELEMENT_NODE, ROOT);
    wxXmlNode* last = nullptr;

    auto* margins = new wxXmlNode(wxXML_ELEMENT_NODE, "Margins");
    xmlattr::setInt(margins, "Left", layout.marginLeft);
    xmlattr::setInt(margins, "Top", layout.marginTop);
    xmlattr::setInt(margins, "Bottom", layout.marginBottom);
    xmlattr::setInt(margins, "Right", layout.marginRight);
    appendChild(root, margins, &last);

    auto* header = new wxXmlNode(wxXML_ELEMENT_NODE, "Header");
    header->AddAttribute("Left", layout.headerLeftText);
    header->AddAttribute("Center", layout.headerCenterText);
    header->AddAttribute("Right", layout.headerRightText);
    xmlattr::setInt(header, "Line", layout.headerLine);
    appendChild(root, header, &last);

    auto* footer = new wxXmlNode(wxXML_ELEMENT_NODE, "Footer");
    xmlattr::setInt(footer, "Type", layout.footer);
    footer->AddAttribute("Text", layout.footerText);
    appendChild(root, footer, &last);

    appendChild(root, style.createXmlNode(), &last);

    auto* elements = new wxXmlNode(wxXML_ELEMENT_NODE, "Elements");
    wxXmlNode* lastElement = nullptr;
    for (const auto& e : m_elements) appendChild(elements, e->createXmlNode(), &lastElement);
    appendChild(root, elements, &last);

    wxXmlDocument doc;
    doc.SetRoot(root);
    bool saved = false;
    {
        wxLogNull quiet;  // the message below says it in Czech
        saved = doc.Save(path, 2);
    }
    if (!saved && error)
        *error = wxString::Format(wxString::FromUTF8("Šablonu dokumentu nelze uložit do souboru %s."), path);
    return saved;
}

bool Document::readFromXml(const wxString& path, wxString* error) {
    auto fail = [&](const char* message) {
        if (error) *error = wxString::Format(wxString::FromUTF8(message), path);
        return false;
    };
    if (!wxFileName::FileExists(path)) return fail("Soubor šablony %s neexistuje.");
    wxXmlDocument doc;
    bool loaded = false;
    {
        wxLogNull quiet;  // the parser's English messages would pop up as error boxes
        // Whitespace is kept so that a value of spaces survives; the indentation between
        // nodes is skipped below, where only element nodes are read.
        loaded = doc.Load(path, "UTF-8", wxXMLDOC_KEEP_WHITESPACE_NODES);
    }
    if (!loaded || !doc.GetRoot()) return fail("Soubor %s není čitelná šablona dokumentu (chybné XML).");
    const wxXmlNode* root = doc.GetRoot();
    if (root->GetName() != ROOT) return fail("Soubor %s není šablona dokumentu Evidy.");

    Document read;
    if (const wxXmlNode* margins = xmlattr::child(root, "Margins")) {
        xmlattr::readInt(margins, "Left", &read.layout.marginLeft);
        xmlattr::readInt(margins, "Top", &read.layout.marginTop);
        xmlattr::readInt(margins, "Bottom", &read.layout.marginBottom);
        xmlattr::readInt(margins, "Right", &read.layout.marginRight);
    }
    if (const wxXmlNode* header = xmlattr::child(root, "Header")) {
        xmlattr::readString(header, "Left", &read.layout.headerLeftText);
        xmlattr::readString(header, "Center", &read.layout.headerCenterText);
        xmlattr::readString(header, "Right", &read.layout.headerRightText);
        xmlattr::readBool(header, "Line", &read.layout.headerLine);
    }
    if (const wxXmlNode* footer = xmlattr::child(root, "Footer")) {
        int type = read.layout.footer;
        xmlattr::readInt(footer, "Type", &type);
        if (type >= lxPrint::FOOTER_PAGES && type <= lxPrint::FOOTER_NONE)
            read.layout.footer = static_cast<lxPrint::Footer>(type);
        xmlattr::readString(footer, "Text", &read.layout.footerText);
    }
    read.style.fromXmlNode(xmlattr::child(root, "TextStyle"));
    const wxXmlNode* elements = xmlattr::child(root, "Elements");
    for (const wxXmlNode* n = elements ? elements->GetChildren() : nullptr; n; n = n->GetNext()) {
        if (n->GetType() != wxXML_ELEMENT_NODE || n->GetName() != "Element") continue;
        int type = 0;
        xmlattr::readInt(n, "Type", &type);
        // An element of a kind this program does not know is left out.
        std::unique_ptr<Element> e = createElement(type);
        if (!e) continue;
        e->fromXmlNode(n);
        read.m_elements.push_back(std::move(e));
    }
    layout = read.layout;
    style = read.style;
    m_elements = std::move(read.m_elements);
    pages = lastElementPage();
    return true;
}

namespace {

// The position of the kinds placed at a point with a width; null for lines and rectangles.
wxPoint* placedPos(Element& e) {
    if (auto* t = dynamic_cast<TextElement*>(&e)) return &t->pos;
    if (auto* p = dynamic_cast<TextParagraphElement*>(&e)) return &p->pos;
    if (auto* r = dynamic_cast<TableRowElement*>(&e)) return &r->pos;
    if (auto* i = dynamic_cast<ImageElement*>(&e)) return &i->pos;
    return nullptr;
}

}  // namespace

wxPoint originOf(const Element& element) {
    auto& e = const_cast<Element&>(element);
    if (const wxPoint* pos = placedPos(e)) return *pos;
    if (const auto* line = dynamic_cast<const LineElement*>(&element))
        return wxPoint(std::min(line->start.x, line->end.x), std::min(line->start.y, line->end.y));
    if (const auto* rect = dynamic_cast<const RectangleElement*>(&element)) return rect->start;
    return wxPoint();
}

void moveElement(Element& element, int dx, int dy) {
    const wxPoint origin = originOf(element);
    const wxPoint by(std::max(dx, -origin.x), std::max(dy, -origin.y));
    if (wxPoint* pos = placedPos(element)) {
        *pos += by;
    } else if (auto* line = dynamic_cast<LineElement*>(&element)) {
        line->start += by;
        line->end += by;
    } else if (auto* rect = dynamic_cast<RectangleElement*>(&element)) {
        rect->start += by;
    }
}
