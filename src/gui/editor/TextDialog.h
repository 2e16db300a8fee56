// The dialog of a text element: the text, its place and width, alignment and style.
#pragma once

#include "PrvekDialog.h"
#include "textelement.h"

class TextDialog : public PrvekDialog {
 public:
    TextDialog(wxWindow* parent, TextElement& element);
    bool save() override;

 private:
    TextElement& m_element;
    wxTextCtrl* m_value;
    wxCheckBox* m_forceSpace;
};
