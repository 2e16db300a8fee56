#include "lxprint.h"

#include <wx/dcscreen.h>
#include <wx/log.h>

#include "lxpdfdc.h"
#include "textmeasure.h"
#include "textstyle.h"

namespace {

constexpr double A4_SHORT_MM = 210;
constexpr double A4_LONG_MM = 297;
// A4 height less 8 mm that no printer reaches: the height the table prints are cut into.
constexpr double UNPRINTABLE_MM = 8;
constexpr double HEADER_FONT_POINTS = 10;

}  // namespace

lxPrint::lxPrint(const wxString& title) : wxPrintout(title), m_headerFont(printFont(HEADER_FONT_POINTS)) {
    performPageSetup();
}

wxString lxPrint::errorMessage() { return wxString::FromUTF8("Chyba při přípravě tisku, ukončuji tisk"); }

void lxPrint::setLayout(const Layout& layout) {
    m_layout = layout;
    performPageSetup();
}

void lxPrint::performPageSetup() {
    wxPrintData data;
    data.SetPaperId(wxPAPER_A4);
    data.SetOrientation(m_layout.paperOrientation);
    m_pageSetup = wxPageSetupDialogData(data);
    m_pageSetup.SetMarginTopLeft(wxPoint(0, 0));
    m_pageSetup.SetMarginBottomRight(wxPoint(0, 0));
}

double lxPrint::sheetWidthMm() const { return sheetWidthMm(m_layout.paperOrientation); }

double lxPrint::sheetWidthMm(wxPrintOrientation orientation) {
    return orientation == wxLANDSCAPE ? A4_LONG_MM : A4_SHORT_MM;
}

double lxPrint::printableWidthMm(const Layout& layout) {
    return sheetWidthMm(layout.paperOrientation) - layout.marginLeft - layout.marginRight;
}

double lxPrint::sheetHeightMm() const { return m_layout.paperOrientation == wxLANDSCAPE ? A4_SHORT_MM : A4_LONG_MM; }

double lxPrint::usablePageHeightMm(wxPrintOrientation orientation) {
    return (orientation == wxLANDSCAPE ? A4_SHORT_MM : A4_LONG_MM) - UNPRINTABLE_MM;
}

wxCoord lxPrint::toDc(double mm) const { return wxRound(mm * m_mmFactor); }

bool lxPrint::usableDc() const {
    wxDC* dc = GetDC();
    if (!dc || !dc->IsOk()) return false;
    if (auto* pdf = dynamic_cast<lxPdfDC*>(dc)) return pdf->isValid();
    return true;
}

bool lxPrint::OnBeginDocument(int startPage, int endPage) {
    if (!usableDc()) {
        wxLogError(errorMessage());
        return false;
    }
    return wxPrintout::OnBeginDocument(startPage, endPage);
}

void lxPrint::OnBeginPrinting() {
    m_failed = false;
    m_mmFactor = 0;
    if (!usableDc()) {
        m_failed = true;
        wxLogError(errorMessage());
        return;
    }
    wxDC* dc = GetDC();
    m_pdf = dynamic_cast<lxPdfDC*>(dc) != nullptr;
    // Every device is scaled so that a logical unit is a screen pixel, the unit text is
    // measured in; a millimetre is then the same number of logical units everywhere.
    const double screenPpi = lxTextMeasure::screenPpi();
    double scale = 0;
    if (m_pdf) {
        // The PDF counts in points.
        scale = lxPdfDC::POINTS_PER_INCH / screenPpi;
    } else {
        // A printer DC is as large as the page in printer pixels. The preview draws into a
        // bitmap as large as the page on screen at its zoom, and says so through the DC's
        // size: dcW / pageW brings the printer's resolution down to that bitmap.
        int printerX = 0, printerY = 0, pageW = 0, pageH = 0, dcW = 0, dcH = 0;
        GetPPIPrinter(&printerX, &printerY);
        GetPageSizePixels(&pageW, &pageH);
        dc->GetSize(&dcW, &dcH);
        if (printerX > 0 && pageW > 0 && dcW > 0)
            scale = static_cast<double>(printerX) / screenPpi * (static_cast<double>(dcW) / pageW);
    }
    m_mmFactor = screenPpi / 25.4;
    if (scale <= 0 || m_mmFactor <= 0) {
        m_failed = true;
        wxLogError(errorMessage());
        return;
    }
    dc->SetUserScale(scale, scale);
}

bool lxPrint::HasPage(int page) { return page >= 1 && page <= m_pages; }

void lxPrint::GetPageInfo(int* minPage, int* maxPage, int* pageFrom, int* pageTo) {
    *minPage = 1;
    *maxPage = m_pages;
    *pageFrom = 1;
    *pageTo = m_pages;
}

bool lxPrint::OnPrintPage(int page) {
    if (m_failed || m_mmFactor <= 0 || !usableDc()) {
        wxLogError(errorMessage());
        return false;
    }
    wxDC* dc = GetDC();
    dc->SetBackgroundMode(wxBRUSHSTYLE_TRANSPARENT);
    drawHeader(dc, m_mmFactor);
    drawFooter(page, dc, m_mmFactor);
    return printPage(dc, page, m_mmFactor);
}

void lxPrint::drawHeader(wxDC* dc, double mmFactor) {
    const Layout& l = m_layout;
    if (l.headerLeftText.empty() && l.headerCenterText.empty() && l.headerRightText.empty() && !l.headerLine) return;
    const wxFont& font = m_headerFont;
    dc->SetFont(font);
    dc->SetTextForeground(wxColour(0, 0, 0));
    const double side = m_pdf ? 15 : 10;
    const double bottom = m_pdf ? 10 : 5;
    const double top = bottom - lxTextMeasure::pxToMm(lxTextMeasure::textHeightPx(font));
    auto width = [&](const wxString& text) { return lxTextMeasure::pxToMm(lxTextMeasure::widestLinePx(font, text)); };
    auto at = [&](double mm) { return wxRound(mm * mmFactor); };
    if (!l.headerLeftText.empty()) dc->DrawText(l.headerLeftText, at(side), at(top));
    if (!l.headerCenterText.empty())
        dc->DrawText(l.headerCenterText, at((sheetWidthMm() - width(l.headerCenterText)) / 2), at(top));
    if (!l.headerRightText.empty())
        dc->DrawText(l.headerRightText, at(sheetWidthMm() - side - width(l.headerRightText)), at(top));
    if (l.headerLine) {
        dc->SetPen(*wxBLACK_PEN);
        dc->DrawLine(at(side), at(bottom + 0.5), at(sheetWidthMm() - side), at(bottom + 0.5));
    }
}

void lxPrint::drawFooter(int page, wxDC* dc, double mmFactor) {
    if (m_layout.footer == FOOTER_NONE) return;
    const wxString text = m_layout.footer == FOOTER_PAGES
                              ? wxString::Format(wxString::FromUTF8("Stránka %d z %d"), page, m_pages)
                              : m_layout.footerText;
    if (text.empty()) return;
    const wxFont& font = m_headerFont;
    dc->SetFont(font);
    dc->SetTextForeground(wxColour(0, 0, 0));
    const double side = m_pdf ? 15 : 10;
    // Centred between the side offset and 10 mm from the right edge: the sheet's centre on
    // paper, 2.5 mm right of it in a PDF, where PDF output has always put it.
    const double centre = side + (sheetWidthMm() - side - 10) * 0.5;
    const double width = lxTextMeasure::pxToMm(lxTextMeasure::widestLinePx(font, text));
    const double top = sheetHeightMm() - (m_pdf ? 10 : 5);
    dc->DrawText(text, wxRound((centre - width / 2) * mmFactor), wxRound(top * mmFactor));
}
