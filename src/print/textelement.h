// A text at a position: one line, or several at line feeds, wrapped to `width` when set.
#pragma once

#include <wx/gdicmn.h>

#include "element.h"

class TextElement : public Element {
 public:
    TextElement() = default;
    TextElement(const wxString& value, const wxPoint& pos, int width = 0,
                wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT, const TextStyle& style = TextStyle());

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return TEXT; }
    TextStyle style() const override { return textStyle; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<TextElement>(*this); }

    wxString value;
    wxPoint pos;
    int width = 0;  // 0: as wide as the text, no wrapping
    wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT;
    TextStyle textStyle;
    // An empty text still takes its line, so the elements laid out below it keep their place.
    bool forceSpace = false;

 private:
    std::vector<wxString> lines() const;
};
