// The dialog of a rectangle: its top left corner, size, corner radius, pen and anchor.
#pragma once

#include "PrvekDialog.h"
#include "rectangleelement.h"

class ObdelnikDialog : public PrvekDialog {
 public:
    ObdelnikDialog(wxWindow* parent, RectangleElement& element);
    bool save() override;

 private:
    RectangleElement& m_element;
    wxCheckBox* m_anchor;
};
