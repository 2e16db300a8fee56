// An image scaled to a width, its height following the picture's proportions. The path is a
// file or one of the special names the invoice print fills in.
#pragma once

#include <wx/gdicmn.h>
#include <wx/image.h>

#include <vector>

#include "element.h"

class ImageElement : public Element {
 public:
    static const char* const PATH_LOGO;   // "{firma-logo}", the company logo
    static const char* const PATH_STAMP;  // "{firma-razitko}", the company stamp
    static const char* const PATH_QR;     // "{qr-platba}", the invoice's QR payment code

    ImageElement() = default;

    void DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) override;
    int elementType() const override { return IMAGE; }
    void writeXml(wxXmlNode* node) const override;
    void fromXmlNode(const wxXmlNode* node) override;
    wxRect2DDouble bounds() const override;
    std::unique_ptr<Element> clone() const override { return std::make_unique<ImageElement>(*this); }

    // Whether the path is one of the special names rather than a file.
    bool isSpecialPath() const;

    wxString path;
    // The payment string of a "{qr-platba}" element, filled in when the invoice is printed;
    // without it the element draws nothing. Not part of the template.
    wxString qr;
    wxPoint pos;
    int width = 30;
    // Left: the image starts at pos.x; centre: it is centred on it; right: it ends there.
    wxTextAttrAlignment alignment = wxTEXT_ALIGNMENT_LEFT;

 private:
    // The picture of a file path, loaded once per path; not OK when it cannot be read.
    const wxImage& image() const;
    // Modules a side of the QR symbol of `qr`, 0 without one; computed once per text.
    int qrModules() const;
    void drawQr(wxDC* dc, double mmFactor, const wxRect2DDouble& box) const;

    mutable wxImage m_image;
    mutable wxString m_loadedPath;
    mutable bool m_loaded = false;
    mutable wxString m_qrFor;
    mutable std::vector<bool> m_qrModules;
    mutable int m_qrSize = 0;
};
