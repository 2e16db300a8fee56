// lxPrint: the page base of every print. It owns the A4 page set-up, the margins, the running
// header and the footer, and the millimetre factor that turns the layout's millimetres into
// device units. Subclasses draw the body of a page in printPage().
//
// Every device is scaled so that one logical unit is one screen pixel: text measured on the
// screen (lxTextMeasure) then has the same size on paper, in the preview and in a PDF.
#pragma once

#include <wx/cmndata.h>
#include <wx/print.h>

class lxPrint : public wxPrintout {
 public:
    enum Footer { FOOTER_PAGES = 0, FOOTER_TEXT = 1, FOOTER_NONE = 2 };

    // The page settings shared by printouts, print controllers and documents.
    struct Layout {
        wxString headerLeftText;
        wxString headerCenterText;
        wxString headerRightText;
        bool headerLine = false;
        int marginLeft = 10;
        int marginRight = 10;
        int marginTop = 15;
        int marginBottom = 15;
        Footer footer = FOOTER_PAGES;
        wxString footerText;
        wxPrintOrientation paperOrientation = wxPORTRAIT;
    };

    explicit lxPrint(const wxString& title);

    bool OnBeginDocument(int startPage, int endPage) override;
    void OnBeginPrinting() override;
    bool HasPage(int page) override;
    bool OnPrintPage(int page) override;
    void GetPageInfo(int* minPage, int* maxPage, int* pageFrom, int* pageTo) override;

    void drawHeader(wxDC* dc, double mmFactor);
    void drawFooter(int page, wxDC* dc, double mmFactor);
    // A4 in the layout's orientation with zero printer margins: the print draws its own.
    void performPageSetup();

    wxPrintData& printData() { return m_pageSetup.GetPrintData(); }
    const Layout& layout() const { return m_layout; }
    void setLayout(const Layout& layout);
    int pages() const { return m_pages; }
    void setPages(int pages) { m_pages = pages; }

    // Device units per millimetre, valid from OnBeginPrinting on.
    double mmFactor() const { return m_mmFactor; }
    // Whether the current run draws into a PDF file.
    bool isPdf() const { return m_pdf; }
    double sheetWidthMm() const;
    double sheetHeightMm() const;
    static double sheetWidthMm(wxPrintOrientation orientation);
    // Width between the margins of a layout.
    static double printableWidthMm(const Layout& layout);
    // Height the table prints cut their rows into: 289 mm of a portrait A4 sheet.
    double usablePageHeightMm() const { return usablePageHeightMm(m_layout.paperOrientation); }
    static double usablePageHeightMm(wxPrintOrientation orientation);

    static wxString errorMessage();

 protected:
    // Draws the body of a page after the header and footer; false ends the run.
    virtual bool printPage(wxDC* dc, int page, double mmFactor) = 0;

    // Rounds millimetres to logical units.
    wxCoord toDc(double mm) const;

 private:
    bool usableDc() const;

    Layout m_layout;
    wxFont m_headerFont;  // of the header and the footer
    wxPageSetupDialogData m_pageSetup;
    int m_pages = 1;
    double m_mmFactor = 0;
    bool m_pdf = false;
    bool m_failed = false;
};
