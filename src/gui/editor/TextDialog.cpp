#include "TextDialog.h"

#include <wx/checkbox.h>
#include <wx/textctrl.h>

TextDialog::TextDialog(wxWindow* parent, TextElement& element) : PrvekDialog(parent, "Text"), m_element(element) {
    m_value = addText("Text:", "hodnota", 320);
    m_value->ChangeValue(element.value);
    addPlaceholderTarget(m_value);
    addPlaceholderButton();
    addPair("Pozice (mm):", "x", "y", element.pos, 0, MAX_MM);
    addNumber("Šířka (mm):", "sirka", element.width, 0, MAX_MM);
    addAlignment(element.alignment);
    m_forceSpace = addCheck("Ponechat místo i pro prázdný text", "ponechatMisto", element.forceSpace);
    addTextStyle(element.textStyle);
    addSectionAndPage(element);
    finish();
}

bool TextDialog::save() {
    TextElement e = m_element;
    if (!readPair("x", "y", &e.pos) || !readNumber("sirka", &e.width) || !readSectionAndPage(e)) return false;
    e.value = m_value->GetValue();
    e.alignment = alignment();
    e.forceSpace = m_forceSpace->GetValue();
    e.textStyle = textStyle();
    m_element = e;
    return true;
}
