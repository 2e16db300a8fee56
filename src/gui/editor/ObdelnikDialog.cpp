#include "ObdelnikDialog.h"

#include <wx/checkbox.h>

ObdelnikDialog::ObdelnikDialog(wxWindow* parent, RectangleElement& element)
    : PrvekDialog(parent, wxString::FromUTF8("Obdélník")), m_element(element) {
    addPair("Levý horní roh (mm):", "x", "y", element.start, 0, MAX_MM);
    addPair("Rozměr (mm):", "sirka", "vyska", wxPoint(element.size.x, element.size.y), 1, MAX_MM, "šířka:", "výška:");
    addNumber("Zaoblení rohů (mm):", "zaobleni", element.fillet, 0, 50);
    addLineStyle(element.lineStyle);
    m_anchor = addCheck("Ukotvit (roztahuje se s položkami)", "ukotvit", element.anchor);
    addSectionAndPage(element);
    finish();
}

bool ObdelnikDialog::save() {
    RectangleElement e = m_element;
    wxPoint size;
    if (!readPair("x", "y", &e.start) || !readPair("sirka", "vyska", &size) || !readNumber("zaobleni", &e.fillet) ||
        !readLineStyle(&e.lineStyle) || !readSectionAndPage(e))
        return false;
    e.size = wxSize(size.x, size.y);
    e.anchor = m_anchor->GetValue();
    m_element = e;
    return true;
}
