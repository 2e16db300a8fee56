#include "OdstavecDialog.h"

#include <wx/checkbox.h>
#include <wx/textctrl.h>

OdstavecDialog::OdstavecDialog(wxWindow* parent, TextParagraphElement& element)
    : PrvekDialog(parent, "Odstavec"), m_element(element) {
    m_value = new wxTextCtrl(this, wxID_ANY, wxJoin(element.value, '\n', '\0'), wxDefaultPosition, wxSize(320, 110),
                             wxTE_MULTILINE, wxDefaultValidator, "hodnota");
    addField("Text:", m_value);
    addPlaceholderTarget(m_value);
    addPlaceholderButton();
    addPair("Pozice (mm):", "x", "y", element.pos, 0, MAX_MM);
    addNumber("Šířka (mm):", "sirka", element.width, 1, MAX_MM);
    addAlignment(element.alignment);
    addTextStyle(element.textStyle);
    m_border = addCheck("Orámovat", "oramovat", element.border);
    addLineStyle(element.borderStyle);
    addSectionAndPage(element);
    finish();
}

bool OdstavecDialog::save() {
    TextParagraphElement e = m_element;
    if (!readPair("x", "y", &e.pos) || !readNumber("sirka", &e.width) || !readLineStyle(&e.borderStyle) ||
        !readSectionAndPage(e))
        return false;
    wxString text = m_value->GetValue();
    // A line break after the last line does not start another one.
    if (text.EndsWith("\n")) text.RemoveLast();
    e.value = text.empty() ? wxArrayString() : wxSplit(text, '\n', '\0');
    e.alignment = alignment();
    e.textStyle = textStyle();
    e.border = m_border->GetValue();
    m_element = e;
    return true;
}
