// The dialog of a line: its two ends, pen, and the flags by which the invoice print moves it
// with the item rows or takes it for the top or bottom edge of the item band.
#pragma once

#include "PrvekDialog.h"
#include "lineelement.h"

class CaraDialog : public PrvekDialog {
 public:
    CaraDialog(wxWindow* parent, LineElement& element);
    bool save() override;

 private:
    LineElement& m_element;
    wxCheckBox* m_anchor;
    wxCheckBox* m_borderTop;
    wxCheckBox* m_borderBottom;
};
