// Setting a document print from the top down: elements are placed at a running height and a
// new page starts when the next one would run past the bottom. Table rows are framed cells
// edge to edge; a wrapped cell makes its row taller.
#pragma once

#include <vector>

#include "document.h"

// A column of a framed row: its caption, width in mm and alignment.
struct Sloupec {
    const char* nazev;
    int sirka;
    wxTextAttrAlignment zarovnani;
};

class Sazba {
 public:
    // The line step of table rows and the lowest top edge an element may have on a page, in mm.
    static constexpr int ROW_STEP = 6;
    static constexpr int PAGE_BOTTOM = 262;

    // `sirkaPole` is the width of a label-and-value pair of field().
    Sazba(Document& doc, const TextStyle& text, int sirkaPole) : m_doc(doc), m_text(text), m_sirkaPole(sirkaPole) {}

    int y() const { return m_y; }
    void skip(int mm) { m_y += mm; }
    // Makes room for `mm` on this page, or moves to the next one.
    void need(int mm);
    int page() const { return m_page; }

    template <class E>
    void add(E element) {
        element.page = m_page;
        m_doc.addElement(element);
    }

    // A framed row of cells starting `x` mm from the left.
    void row(const std::vector<wxString>& hodnoty, const std::vector<Sloupec>& s, const TextStyle& style, int x = 0);
    // The captions of the columns as a row.
    void header(const std::vector<Sloupec>& s, const TextStyle& style, int x = 0);
    // A label and its value on one line, label at `x`, value 35 mm further.
    void field(int x, int y, const wxString& label, const wxString& value);

 private:
    Document& m_doc;
    TextStyle m_text;
    int m_sirkaPole;
    int m_y = 0;
    int m_page = 1;
};
