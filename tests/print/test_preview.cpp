// The preview draws the same pages as the PDF. A page is rendered the way the preview frame
// shows it (the preview renders into its bitmap, the canvas paints that bitmap) and compared
// with the same page of the PDF rasterised by poppler: the table's rules lie at the same
// places and there is text between them in both.
#include <gtest/gtest.h>
#include <wx/dcmemory.h>
#include <wx/image.h>
#include <wx/prntbase.h>

#include <algorithm>
#include <vector>

#include "fulldenikprint.h"
#include "printtest.h"
#include "tableprint.h"

namespace {

bool isWhite(const wxImage& img, int x, int y) {
    return img.GetRed(x, y) == 255 && img.GetGreen(x, y) == 255 && img.GetBlue(x, y) == 255;
}

bool isDark(const wxImage& img, int x, int y) {
    return img.GetRed(x, y) + img.GetGreen(x, y) + img.GetBlue(x, y) < 3 * 128;
}

// The sheet as the preview frame paints it, cut out of the canvas. Empty when the preview
// could not be made.
wxImage previewSheet(lxPrintController& print, int page) {
    wxPrintPreview* preview = print.createPreview();
    if (!preview) return wxImage();
    auto* frame = new wxPreviewFrame(preview, nullptr, "preview", wxDefaultPosition, wxSize(880, 650));
    frame->Initialize();
    preview->SetZoom(100);
    preview->SetCurrentPage(page);
    preview->UpdatePageRendering();  // what the canvas does before it paints
    wxBitmap canvas(1400, 1400);
    {
        wxMemoryDC dc(canvas);
        dc.SetBackground(wxBrush(wxColour(40, 90, 200)));
        dc.Clear();
        preview->PaintPage(preview->GetCanvas(), dc);
    }
    frame->Destroy();
    const wxImage all = canvas.ConvertToImage();
    // The sheet is the white rectangle on the canvas: the box around every white pixel.
    int left = all.GetWidth(), top = all.GetHeight(), right = -1, bottom = -1;
    for (int y = 0; y < all.GetHeight(); ++y)
        for (int x = 0; x < all.GetWidth(); ++x)
            if (isWhite(all, x, y)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    if (right < left) return wxImage();
    return all.GetSubImage(wxRect(left, top, right - left + 1, bottom - top + 1));
}

// One page of a PDF as an image `widthPx` wide.
wxImage pdfSheet(const wxString& pdf, int page, int widthPx, const wxString& dir) {
    const wxString out = dir + "/sheet";
    runCommand(wxString::Format("pdftoppm -png -singlefile -f %d -l %d -scale-to-x %d -scale-to-y -1 '%s' '%s'", page,
                                page, widthPx, pdf, out)
                   .utf8_string());
    wxImage img;
    img.LoadFile(out + ".png", wxBITMAP_TYPE_PNG);
    return img;
}

// The y (mm from the top of the sheet) of each horizontal rule below `topMm`: rows where most
// pixels between `fromMm` and `toMm` across are dark. Neighbouring rows of one thick rule
// count once. (The rule under the running header lies higher in a PDF than on paper.)
std::vector<double> rulesMm(const wxImage& sheet, double sheetWidthMm, double fromMm, double toMm, double topMm) {
    const double pxPerMm = sheet.GetWidth() / sheetWidthMm;
    const int x0 = wxRound(fromMm * pxPerMm), x1 = wxRound(toMm * pxPerMm);
    std::vector<double> rules;
    int lastRuleRow = -10;
    for (int y = wxRound(topMm * pxPerMm); y < sheet.GetHeight(); ++y) {
        int dark = 0;
        for (int x = x0; x < x1; ++x) dark += isDark(sheet, x, y);
        if (dark > (x1 - x0) * 0.9) {
            if (y - lastRuleRow > 2) rules.push_back(y / pxPerMm);
            lastRuleRow = y;
        }
    }
    return rules;
}

// Dark pixels strictly between two rules (text of a row), away from the vertical rules.
int inkBetween(const wxImage& sheet, double sheetWidthMm, double fromMm, double toMm, double topMm, double bottomMm) {
    const double pxPerMm = sheet.GetWidth() / sheetWidthMm;
    int ink = 0;
    for (int y = wxRound(topMm * pxPerMm) + 2; y < wxRound(bottomMm * pxPerMm) - 1; ++y)
        for (int x = wxRound(fromMm * pxPerMm); x < wxRound(toMm * pxPerMm); ++x) ink += isDark(sheet, x, y);
    return ink;
}

class PreviewPages : public PrintTest {
 protected:
    // Checks that preview and PDF draw the table of `page` with the same rules, and text
    // in every row of both. `fromMm`/`toMm` is a horizontal stretch inside the table.
    void expectSameTable(lxPrintController& print, int page, double sheetWidthMm, double fromMm, double toMm,
                         size_t minRules) {
        const wxImage preview = previewSheet(print, page);
        ASSERT_TRUE(preview.IsOk());
        preview.SaveFile(path("preview.png"), wxBITMAP_TYPE_PNG);  // to look at with EVIDA_KEEP_TEST_FILES
        EXPECT_NEAR(preview.GetWidth() / sheetWidthMm, preview.GetHeight() / (sheetWidthMm > 250 ? 210.0 : 297.0), 0.05)
            << "the sheet keeps its proportions";
        ASSERT_TRUE(print.writePdf(path("same.pdf"), ""));
        const wxImage pdf = pdfSheet(path("same.pdf"), page, preview.GetWidth(), m_dir);
        ASSERT_TRUE(pdf.IsOk());

        const double top = print.layout().marginTop;
        const std::vector<double> inPreview = rulesMm(preview, sheetWidthMm, fromMm, toMm, top);
        const std::vector<double> inPdf = rulesMm(pdf, sheetWidthMm, fromMm, toMm, top);
        ASSERT_GE(inPreview.size(), minRules) << "the preview draws the table";
        ASSERT_EQ(inPreview.size(), inPdf.size());
        for (size_t i = 0; i < inPdf.size(); ++i) EXPECT_NEAR(inPreview[i], inPdf[i], 0.8) << "rule " << i;
        for (size_t i = 0; i + 1 < inPdf.size(); ++i) {
            EXPECT_GT(inkBetween(preview, sheetWidthMm, fromMm, toMm, inPreview[i], inPreview[i + 1]), 10)
                << "text of row " << i << " in the preview";
            EXPECT_GT(inkBetween(pdf, sheetWidthMm, fromMm, toMm, inPdf[i], inPdf[i + 1]), 10)
                << "text of row " << i << " in the PDF";
        }
    }
};

}  // namespace

TEST_F(PreviewPages, PortraitTableLooksAsInThePdf) {
    Table t;
    t.tableTitle.title = u8("Seznam plateb");
    for (const char* h : {"Datum", "Doklad", "Popis", "Částka"}) t.addCellToHeader(u8(h));
    for (int r = 0; r < 12; ++r) {
        t.addRow();
        t.addCell(wxString::Format("%d.3.2024", r + 1));
        t.addCell(wxString::Format("PP%04d", r + 1));
        t.addCell(u8("Čerstvé rohlíky pro Šárku"));
        t.addCell(wxString::Format("%d,00", 100 * (r + 1)), wxTEXT_ALIGNMENT_RIGHT);
    }
    TablePrint print(nullptr, u8("Platby"));
    print.layout().headerLeftText = u8("Účetní firma");
    print.setTable(&t);
    print.paginate();
    // The stretch between the first column's left rule and the last column's right rule.
    const double x0 = (210 - t.tableWidth()) / 2;
    expectSameTable(print, 1, 210, x0 + 1, x0 + t.tableWidth() - 1, 14);
}

TEST_F(PreviewPages, SecondPageOfALandscapeJournalLooksAsInThePdf) {
    wxArrayString sloupce;
    for (const char* s : {"Datum", "Doklad", "Popis"}) sloupce.push_back(u8(s));
    std::vector<FullDenikPrint::Sloupec> castky;
    for (int c = 10; c <= 32; ++c)
        castky.push_back({c, wxString::Format(u8("Sloupec %d (výdaj ovlivňující základ daně)"), c)});
    std::vector<FullDenikPrint::Radek> radky;
    for (int r = 0; r < 6; ++r)
        radky.push_back({wxDateTime(static_cast<wxDateTime::wxDateTime_t>(r + 1), wxDateTime::Mar, 2024),
                         wxString::Format("PV%04d", r + 1), u8("Nákup"), 10 + r * 3, 1234.5 * (r + 1)});
    FullDenikPrint print(nullptr, u8("Účetní firma"), 2024, castky, radky);
    ASSERT_GE(print.paginate(), 2);
    // The date column is repeated at the left edge of every column group.
    const double x0 = print.tableLeftMm(2);
    expectSameTable(print, 2, 297, x0 + 1, x0 + 15, 9);
}
