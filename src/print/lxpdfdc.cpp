#include "lxpdfdc.h"

#include <cairo-pdf.h>
#include <cairo.h>
#include <wx/graphics.h>

#include "lxprint.h"
#include "lxutils.h"
#include "textmeasure.h"

namespace {

constexpr double A4_WIDTH_PT = 595.2756;   // 210 mm
constexpr double A4_HEIGHT_PT = 841.8898;  // 297 mm

cairo_surface_t* createSurface(const wxString& path, wxPrintOrientation orientation) {
    const bool landscape = orientation == wxLANDSCAPE;
    return cairo_pdf_surface_create(path.utf8_str(), landscape ? A4_HEIGHT_PT : A4_WIDTH_PT,
                                    landscape ? A4_WIDTH_PT : A4_HEIGHT_PT);
}

// The context takes its own reference to the cairo context; ours is dropped at once.
wxGraphicsContext* createContext(cairo_surface_t* surface) {
    cairo_t* cr = cairo_create(surface);
    wxGraphicsContext* gc = wxGraphicsRenderer::GetCairoRenderer()->CreateContextFromNativeContext(cr);
    cairo_destroy(cr);
    return gc;
}

}  // namespace

lxPdfDC::lxPdfDC(const wxString& path, wxPrintOrientation orientation) : lxPdfDC(createSurface(path, orientation)) {}

lxPdfDC::lxPdfDC(cairo_surface_t* surface) : wxGCDC(createContext(surface)), m_surface(surface) {}

lxPdfDC::~lxPdfDC() {
    close();
    cairo_surface_destroy(m_surface);
}

bool lxPdfDC::isValid() const { return !m_closed && cairo_surface_status(m_surface) == CAIRO_STATUS_SUCCESS; }

void lxPdfDC::setResolution(int dpi) {
    if (dpi > 0) cairo_surface_set_fallback_resolution(m_surface, dpi, dpi);
}

void lxPdfDC::setMetadata(const wxString& title, const wxString& author, const wxString& creator) {
    if (!isValid()) return;
    if (!title.empty()) cairo_pdf_surface_set_metadata(m_surface, CAIRO_PDF_METADATA_TITLE, title.utf8_str());
    if (!author.empty()) cairo_pdf_surface_set_metadata(m_surface, CAIRO_PDF_METADATA_AUTHOR, author.utf8_str());
    if (!creator.empty()) cairo_pdf_surface_set_metadata(m_surface, CAIRO_PDF_METADATA_CREATOR, creator.utf8_str());
}

void lxPdfDC::startPage() { m_pageOpen = true; }

void lxPdfDC::endPage() {
    if (!m_pageOpen || m_closed) return;
    m_pageOpen = false;
    auto* cr = static_cast<cairo_t*>(GetGraphicsContext()->GetNativeContext());
    cairo_show_page(cr);
}

bool lxPdfDC::close() {
    if (m_closed) return cairo_surface_status(m_surface) == CAIRO_STATUS_SUCCESS;
    // A page still open is written as it is.
    endPage();
    m_closed = true;
    cairo_surface_finish(m_surface);
    return cairo_surface_status(m_surface) == CAIRO_STATUS_SUCCESS;
}

bool lxPdfDC::writePrintout(lxPrint& printout, const wxString& path, const wxString& title, const wxString& author,
                            wxString* error, int* pagesWritten) {
    if (pagesWritten) *pagesWritten = 0;
    auto fail = [&](const wxString& message) {
        if (error) *error = message;
        return false;
    };
    lxPdfDC dc(path, printout.layout().paperOrientation);
    if (!dc.isValid()) return fail(wxString::Format(wxString::FromUTF8("Soubor PDF %s nelze vytvořit."), path));
    dc.setResolution(600);
    dc.setMetadata(title, author, wxString("evida ") + lxutils::EVIDA_VERSION);
    dc.StartDoc("Start PDF...");

    const int ppi = wxRound(lxTextMeasure::screenPpi());
    printout.SetPPIScreen(ppi, ppi);
    printout.SetPPIPrinter(POINTS_PER_INCH, POINTS_PER_INCH);
    const bool landscape = printout.layout().paperOrientation == wxLANDSCAPE;
    const wxSize sheetMm = landscape ? wxSize(297, 210) : wxSize(210, 297);
    const wxSize sheetPt(wxRound(sheetMm.x * POINTS_PER_INCH / 25.4), wxRound(sheetMm.y * POINTS_PER_INCH / 25.4));
    printout.SetPageSizeMM(sheetMm.x, sheetMm.y);
    printout.SetPageSizePixels(sheetPt.x, sheetPt.y);
    printout.SetPaperRectPixels(wxRect(wxPoint(0, 0), sheetPt));
    printout.SetDC(&dc);

    printout.OnPreparePrinting();
    printout.OnBeginPrinting();
    bool ok = true;
    int pages = 0;
    for (int page = 1; page <= printout.pages() && printout.HasPage(page); ++page) {
        dc.startPage();
        const bool drawn = printout.OnPrintPage(page);
        dc.endPage();
        ++pages;
        if (!drawn) {
            ok = false;
            break;
        }
    }
    printout.OnEndPrinting();
    printout.SetDC(nullptr);
    dc.EndDoc();
    const bool written = dc.close();
    if (!written) return fail(wxString::Format(wxString::FromUTF8("Soubor PDF %s nelze zapsat."), path));
    if (pagesWritten) *pagesWritten = pages;
    if (!ok && error) *error = lxPrint::errorMessage();
    return true;
}
