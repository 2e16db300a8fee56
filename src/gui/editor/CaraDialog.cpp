#include "CaraDialog.h"

#include <wx/checkbox.h>

CaraDialog::CaraDialog(wxWindow* parent, LineElement& element)
    : PrvekDialog(parent, wxString::FromUTF8("Čára")), m_element(element) {
    addPair("Začátek (mm):", "x1", "y1", element.start, 0, MAX_MM);
    addPair("Konec (mm):", "x2", "y2", element.end, 0, MAX_MM);
    addLineStyle(element.lineStyle);
    m_anchor = addCheck("Ukotvit (posouvá se s položkami)", "ukotvit", element.anchor);
    m_borderTop = addCheck("Horní okraj položek", "horniOkraj", element.borderTop);
    m_borderBottom = addCheck("Dolní okraj položek", "dolniOkraj", element.borderBottom);
    addSectionAndPage(element);
    finish();
}

bool CaraDialog::save() {
    LineElement e = m_element;
    if (!readPair("x1", "y1", &e.start) || !readPair("x2", "y2", &e.end)) return false;
    if (e.start == e.end) {
        refused(wxString::FromUTF8("Začátek a konec čáry nesmí být stejný bod."), FindWindow("x2"));
        return false;
    }
    if (!readLineStyle(&e.lineStyle) || !readSectionAndPage(e)) return false;
    e.anchor = m_anchor->GetValue();
    e.borderTop = m_borderTop->GetValue();
    e.borderBottom = m_borderBottom->GetValue();
    m_element = e;
    return true;
}
