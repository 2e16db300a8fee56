#include "imageelement.h"

#include <wx/dc.h>
#include <wx/filename.h>
#include <wx/graphics.h>
#include <wx/log.h>
#include <wx/xml/xml.h>

#include "fakturace/qrplatba.h"
#include "textstyle.h"

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

namespace {
// One module of the printed QR code is 1 mm, with a quiet zone of 4 modules all round; the
// caption "QR Platba" sits under the code inside the frame.
constexpr double QR_QUIET = 4;
constexpr double QR_CAPTION = 5;
}  // namespace

int ImageElement::qrModules() const {
    if (m_qrFor != qr) {
        m_qrFor = qr;
        const qrplatba::Symbol s = qr.empty() ? qrplatba::Symbol() : qrplatba::symbol(qr);
        m_qrSize = s.size;
        m_qrModules = s.tmave;
    }
    return m_qrSize;
}

wxRect2DDouble ImageElement::bounds() const {
    double w = width > 0 ? width : 0;
    double h = 0;
    if (path == PATH_QR && qrModules() > 0) {
        // The code has its own size: (modules + 8) mm a side, whatever the width says.
        w = qrModules() + 2 * QR_QUIET;
        h = w + QR_CAPTION;
    } else if (isSpecialPath()) {
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

void ImageElement::drawQr(wxDC* dc, double mmFactor, const wxRect2DDouble& box) const {
    const int n = qrModules();
    const double x0 = box.m_x + QR_QUIET, y0 = box.m_y + QR_QUIET;
    dc->SetPen(*wxTRANSPARENT_PEN);
    dc->SetBrush(*wxBLACK_BRUSH);
    if (wxGraphicsContext* gc = dc->GetGraphicsContext()) {
        // On a vector device (the PDF) each module is exactly 1 mm: one filled path.
        wxGraphicsPath modules = gc->CreatePath();
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                if (m_qrModules[static_cast<size_t>(y) * n + x])
                    modules.AddRectangle((x0 + x) * mmFactor, (y0 + y) * mmFactor, mmFactor, mmFactor);
        gc->SetBrush(*wxBLACK_BRUSH);
        gc->FillPath(modules);
    } else {
        // On pixels, each module runs from its rounded left edge to the next one's, so
        // neighbours touch without gaps.
        for (int y = 0; y < n; ++y)
            for (int x = 0; x < n; ++x)
                if (m_qrModules[static_cast<size_t>(y) * n + x]) {
                    const wxCoord l = at(x0 + x, mmFactor), t = at(y0 + y, mmFactor);
                    dc->DrawRectangle(l, t, at(x0 + x + 1, mmFactor) - l, at(y0 + y + 1, mmFactor) - t);
                }
    }
    TextStyle caption;
    caption.font = printFont(8);
    drawLines(dc, mmFactor, caption, {"QR Platba"}, box.m_x, box.m_y + box.m_height - QR_CAPTION, box.m_width,
              wxTEXT_ALIGNMENT_CENTRE);
    // A thin frame round code and caption: black pen, nothing filled.
    dc->SetPen(wxPen(*wxBLACK, 1));
    dc->SetBrush(*wxTRANSPARENT_BRUSH);
    const wxCoord l = at(box.m_x, mmFactor), t = at(box.m_y, mmFactor);
    dc->DrawRectangle(l, t, at(box.m_x + box.m_width, mmFactor) - l, at(box.m_y + box.m_height, mmFactor) - t);
}

void ImageElement::DrawToDC(wxDC* dc, double mmFactor, int offsetX, int offsetY) {
    const wxRect2DDouble b = bounds();
    if (path == PATH_QR && qrModules() > 0) {
        drawQr(dc, mmFactor, wxRect2DDouble(offsetX + b.m_x, offsetY + b.m_y, b.m_width, b.m_height));
        drawSelection(dc, mmFactor, offsetX, offsetY);
        return;
    }
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
