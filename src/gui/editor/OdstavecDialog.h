// The dialog of a paragraph: its lines (one a line of the text field), place, width,
// alignment, style and an optional border.
#pragma once

#include "PrvekDialog.h"
#include "textparagraphelement.h"

class OdstavecDialog : public PrvekDialog {
 public:
    OdstavecDialog(wxWindow* parent, TextParagraphElement& element);
    bool save() override;

 private:
    TextParagraphElement& m_element;
    wxTextCtrl* m_value;
    wxCheckBox* m_border;
};
