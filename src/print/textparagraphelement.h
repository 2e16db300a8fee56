// A paragraph: a list of lines, each wrapped to the paragraph's width, with an optional
// border around it.
#pragma once

#include <wx/arrstr.h>
#include <wx/gdicmn.h>

#include "element.h"

class TextParagraphElement : public Element {
 public:
    TextParagraphElement() = default;

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return PARAGRAPH; }
    TextStyle style() const override { return textStyle; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<TextParagraphElement>(*this); }

    wxArrayString value;  // one entry a line
    wxPoint pos;
    int width = 50;
    wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT;
    TextStyle textStyle;
    bool border = false;
    LineStyle borderStyle;

 private:
    // Inside a border the text keeps this distance from its sides and half of it from its
    // top and bottom, mm.
    static constexpr double BORDER_PADDING = 1.0;
    double padding() const { return border ? BORDER_PADDING : 0.0; }
    std::vector<wxString> lines() const;
};
