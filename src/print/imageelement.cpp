#include "imageelement.h"

#include <wx/dc.h>
#include <wx/filename.h>
#include <wx/graphics.h>
#include <wx/log.h>
#include <wx/xml/xml.h>

const char* const ImageElement::PATH_LOGO = "{firma-logo}";
const char* const ImageElement::PATH_STAMP = "{firma-razitko}";
const char* const ImageElement::PATH_QR = "{qr-platba}";

bool ImageElement::isSpecialPath() const { return path == PATH_LOGO || path == PATH_STAMP || path == PATH_QR; }

const wxImage& ImageElement::image() const {
    if (!m_loaded || m_loadedPath != path) {
        m_loaded = true;
        m_loadedPath = path;
        m_image = wxImage();
        if (!isSpecialPath() && !path.empty() && wxFileName::FileExists(path)) {
            if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG)) wxInitAllImageHandlers();
            // A damaged picture prints as nothing rather than as an error box per page.
            wxLogNull quiet;
            m_image.LoadFile(path);
        }
    }
    return m_image;
}

wxRect2DDouble ImageElement::bounds() const {
    const double w = width > 0 ? width : 0;
    double h = 0;
    if (isSpecialPath()) {
        // Until they are filled in, the company pictures and the QR code keep a square place.
        h = w;
    } else if (image().IsOk() && image().GetWidth() > 0) {
        h = w * image().GetHeight() / image().GetWidth();
    }
    double x = pos.x;
    if (alignment == wxTEXT_ALIGNMENT_CENTRE) x -= w / 2;
    if (alignment == wxTEXT_ALIGNMENT_RIGHT) x -= w;
    return wxRect2DDouble(x, pos.y, w, h);
}

void ImageElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    const wxRect2DDouble b = bounds();
    if (!isSpecialPath() && image().IsOk() && b.m_width > 0 && b.m_height > 0) {
        const wxCoord x = at(offsetX + b.m_x, mmFactor), y = at(offsetY + b.m_y, mmFactor);
        const wxCoord w = at(offsetX + b.m_x + b.m_width, mmFactor) - x;
        const wxCoord h = at(offsetY + b.m_y + b.m_height, mmFactor) - y;
        if (w > 0 && h > 0) {
            if (wxGraphicsContext* gc = dc->GetGraphicsContext()) {
                // A vector device (the PDF) keeps the picture at its own resolution.
                gc->DrawBitmap(wxBitmap(image()), x, y, w, h);
            } else {
                dc->DrawBitmap(wxBitmap(image().Scale(w, h, wxIMAGE_QUALITY_HIGH)), x, y, true);
            }
        }
    }
    drawSelection(dc, mmFactor, offsetX, offsetY);
}

void ImageElement::writeXml(wxXmlNode* node) const {
    node->AddAttribute("Path", path);
    writePlacement(node, pos, width, alignment);
}

void ImageElement::fromXmlNode(const wxXmlNode* node) {
    Element::fromXmlNode(node);
    xmlattr::readString(node, "Path", &path);
    readPlacement(node, &pos, &width, &alignment);
}
