// Output: PDF files read back with poppler, the page furniture's placement on paper and in
// a PDF, failures of devices and files, and the preview.
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dcmemory.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/print.h>

#include <algorithm>

#include "companysetup.h"
#include "dbmodel.h"
#include "documentprint.h"
#include "lxpdfdc.h"
#include "lxsettings.h"
#include "printtest.h"
#include "tableprint.h"

namespace {

const char* const CZECH = "Příliš žluťoučký kůň úpěl ďábelské ódy";

// A table of `rows` one-line rows of Czech text.
Table czechTable(int rows) {
    Table t;
    t.tableTitle.title = u8("Kniha faktur");
    t.addCellToHeader(u8("Číslo"));
    t.addCellToHeader("Popis");
    t.setColumnWidth(1, 80);  // one line a row
    for (int i = 0; i < rows; ++i) {
        t.addRow();
        t.addCell(wxString::Format("FV%04d", i), wxTEXT_ALIGNMENT_RIGHT);
        t.addCell(u8(CZECH));
    }
    return t;
}

// Collects what is logged.
class LogCapture : public wxLog {
 public:
    LogCapture() : m_previous(wxLog::SetActiveTarget(this)) {}
    ~LogCapture() override { wxLog::SetActiveTarget(m_previous); }
    wxString text;

 protected:
    void DoLogTextAtLevel(wxLogLevel, const wxString& message) override { text += message + "\n"; }

 private:
    wxLog* m_previous;
};

// A document printout whose drawing fails from one page on.
class FailingPrintout : public DocumentPrintout {
 public:
    FailingPrintout(const Document* d, int failAt) : DocumentPrintout(d, "failing"), m_failAt(failAt) {}

 protected:
    bool printPage(wxDC* dc, int page, double f) override {
        return page < m_failAt && DocumentPrintout::printPage(dc, page, f);
    }

 private:
    int m_failAt;
};

// The box of the footer line ("Stránka 1 z 1") on page 1, in mm.
struct Box {
    double left, top, right, bottom;
    double centre() const { return (left + right) / 2; }
};

}  // namespace

class PdfOutput : public PrintTest {};

TEST_F(PdfOutput, TableOverThreePagesCarriesMetadataPageNumbersAndCzechText) {
    Table table = czechTable(150);
    TablePrint print(nullptr, "Kniha");
    print.setTable(&table);
    print.layout().marginTop = 10;
    print.layout().marginBottom = 10;
    print.layout().headerLeftText = u8("Účetní firma");
    wxString error;
    ASSERT_TRUE(print.writePdf(path("kniha.pdf"), u8("Kniha vydaných faktur"), &error)) << error;

    auto info = pdfInfo(path("kniha.pdf"));
    EXPECT_EQ(info["Pages"], "3");
    EXPECT_EQ(info["Title"], u8("Kniha vydaných faktur"));
    EXPECT_EQ(info["Creator"], "evida 1.40.14");
    EXPECT_NE(info["Page size"].Find("595.27"), wxNOT_FOUND) << info["Page size"];
    EXPECT_NE(pdfText(path("kniha.pdf"), 2).Find(u8("Stránka 2 z 3")), wxNOT_FOUND);
    const wxString first = pdfText(path("kniha.pdf"), 1);
    EXPECT_NE(first.Find(u8(CZECH)), wxNOT_FOUND);
    EXPECT_NE(first.Find(u8("Účetní firma")), wxNOT_FOUND);
    EXPECT_NE(first.Find(u8("Kniha faktur")), wxNOT_FOUND);
    // The title is on the first page only; the header row on every page.
    const wxString last = pdfText(path("kniha.pdf"), 3);
    EXPECT_EQ(last.Find(u8("Kniha faktur")), wxNOT_FOUND);
    EXPECT_NE(last.Find(u8("Číslo")), wxNOT_FOUND);
    EXPECT_NE(last.Find("FV0149"), wxNOT_FOUND);
}

TEST_F(PdfOutput, AuthorIsTheOpenCompanysName) {
    wxSetEnv("HOME", m_dir);
    lxSettings::reset();
    DbModel model;
    model.initModel();
    ASSERT_TRUE(companysetup::createPlaceholderCompany(model, path("firma.db")));
    Firma firma = model.firma();
    firma.setNazev(u8("Žluťoučký kůň s.r.o."));
    ASSERT_TRUE(model.setFirma(firma));
    Table table = czechTable(1);
    TablePrint print(nullptr, "Kniha");
    print.setTable(&table);
    ASSERT_TRUE(print.writePdf(path("a.pdf"), ""));
    auto info = pdfInfo(path("a.pdf"));
    EXPECT_EQ(info["Author"], u8("Žluťoučký kůň s.r.o."));
    EXPECT_EQ(info.count("Title"), 0u);  // no title given, none written
    model.closeDatabase();
    lxSettings::reset();
}

TEST_F(PdfOutput, FooterSitsRightOfCentreAndTenMillimetresUpInAPdf) {
    Table table = czechTable(3);
    TablePrint print(nullptr, "Kniha");
    print.setTable(&table);
    print.layout().headerLeftText = "Vlevo";
    print.layout().headerRightText = "Vpravo";
    ASSERT_TRUE(print.writePdf(path("f.pdf"), ""));
    Box footer{1e9, 1e9, -1e9, -1e9};
    Box left{}, right{};
    for (const PdfWord& w : pdfWords(path("f.pdf"))) {
        const Box b{w.xMin / PT_PER_MM, w.yMin / PT_PER_MM, w.xMax / PT_PER_MM, w.yMax / PT_PER_MM};
        if (w.text == "Vlevo") left = b;
        if (w.text == "Vpravo") right = b;
        if (b.top > 280) {
            footer.left = std::min(footer.left, b.left);
            footer.right = std::max(footer.right, b.right);
            footer.top = std::min(footer.top, b.top);
        }
    }
    EXPECT_NEAR(footer.centre(), 105 + 2.5, 0.7);
    EXPECT_NEAR(footer.top, 297 - 10, 0.3);
    // The header: 15 mm from the sides, its bottom 10 mm below the top.
    EXPECT_NEAR(left.left, 15, 0.3);
    EXPECT_NEAR(right.right, 210 - 15, 0.7);
    EXPECT_NEAR(left.bottom, 10, 0.5);
}

TEST_F(PdfOutput, FooterIsCentredAndFiveMillimetresUpOnPaper) {
    // A memory DC at 96 dpi stands in for the printer.
    Table table = czechTable(1);
    table.refreshCellsSize();
    table.calculatePages(15, 15, 289);
    TablePrintout printout(&table, "paper");
    printout.setPages(1);
    const int w = 794, h = 1123;  // A4 at 96 dpi
    wxBitmap bitmap(w, h, 24);
    {
        wxMemoryDC dc(bitmap);
        dc.SetBackground(*wxWHITE_BRUSH);
        dc.Clear();
        printout.SetDC(&dc);
        printout.SetPPIScreen(96, 96);
        printout.SetPPIPrinter(96, 96);
        printout.SetPageSizePixels(w, h);
        printout.OnBeginPrinting();
        ASSERT_TRUE(printout.OnPrintPage(1));
        printout.SetDC(nullptr);
    }
    const wxImage image = bitmap.ConvertToImage();
    int inkLeft = w, inkRight = -1, inkTop = h;
    const int bandTop = static_cast<int>(280 / 25.4 * 96);
    for (int y = bandTop; y < h; ++y)
        for (int x = 0; x < w; ++x)
            if (image.GetRed(x, y) < 128) {
                inkLeft = std::min(inkLeft, x);
                inkRight = std::max(inkRight, x);
                inkTop = std::min(inkTop, y);
            }
    ASSERT_GE(inkRight, 0) << "no footer drawn";
    const double px = 25.4 / 96;
    EXPECT_NEAR((inkLeft + inkRight + 1) / 2.0 * px, 105, 0.7);
    // Glyphs start a little below the top of the text line.
    EXPECT_GE(inkTop * px, 297 - 5 - 0.1);
    EXPECT_LE(inkTop * px, 297 - 5 + 1.2);
}

TEST_F(PdfOutput, PageThatFailsEndsTheFileEarlyWithThePagesBefore) {
    Document doc;
    for (int page = 1; page <= 5; ++page) {
        TextElement e(wxString::Format(u8("Strana číslo %d"), page), wxPoint(10, 10));
        e.page = page;
        doc.addElement(e);
    }
    FailingPrintout printout(&doc, 3);
    printout.setPages(5);
    wxString error;
    int pages = 0;
    LogCapture log;
    EXPECT_TRUE(lxPdfDC::writePrintout(printout, path("early.pdf"), "", "", &error, &pages));
    EXPECT_EQ(pages, 3);
    EXPECT_EQ(pdfPages(path("early.pdf")), 3);
    EXPECT_EQ(error, u8("Chyba při přípravě tisku, ukončuji tisk"));
    EXPECT_NE(pdfText(path("early.pdf"), 2).Find(u8("Strana číslo 2")), wxNOT_FOUND);
}

TEST_F(PdfOutput, UnwritablePathIsReportedNotCrashed) {
    Document doc;
    DocumentPrintout printout(&doc, "x");
    wxString error;
    EXPECT_FALSE(lxPdfDC::writePrintout(printout, path("no/such/dir/x.pdf"), "", "", &error));
    EXPECT_NE(error.Find(u8("nelze vytvořit")), wxNOT_FOUND) << error;
    EXPECT_FALSE(wxFileName::FileExists(path("no/such/dir/x.pdf")));
}

TEST_F(PdfOutput, MissingDeviceIsLoggedAndNothingIsDrawn) {
    Document doc;
    DocumentPrintout printout(&doc, "x");
    LogCapture log;
    printout.OnBeginPrinting();
    EXPECT_FALSE(printout.OnPrintPage(1));
    EXPECT_NE(log.text.Find(u8("Chyba při přípravě tisku, ukončuji tisk")), wxNOT_FOUND);
}

TEST_F(PdfOutput, DocumentWithoutDialogGoesToTheTemporaryFolder) {
    Document doc;
    doc.addElement(TextElement(u8("Faktura – daňový doklad"), wxPoint(0, 0), 190, wxTEXT_ALIGNMENT_CENTRE));
    TextParagraphElement para;
    para.value.push_back(u8(CZECH));
    para.pos = wxPoint(0, 20);
    para.border = true;
    doc.addElement(para);
    doc.addElement(RectangleElement(wxPoint(0, 50), wxSize(100, 20), LineStyle(), 3));
    DocumentPrint print(nullptr, "Faktura");
    print.setDocument(&doc);
    const wxString pdf = print.CreatePDF("FV2024/001", "Faktura FV2024/001", false);
    EXPECT_EQ(pdf, path("FV2024_001.pdf"));
    ASSERT_TRUE(wxFileName::FileExists(pdf));
    EXPECT_EQ(pdfPages(pdf), 1);
    const wxString text = pdfText(pdf);
    EXPECT_NE(text.Find(u8("Faktura – daňový doklad")), wxNOT_FOUND);
    // The paragraph wraps its 50 mm; every word is there, in order.
    wxString words = text;
    words.Replace("\n", " ");
    while (words.Replace("  ", " ")) {
    }
    EXPECT_NE(words.Find(u8(CZECH)), wxNOT_FOUND) << words;
}

TEST_F(PdfOutput, ImageKeepsItsProportionsAndGoesIntoThePdf) {
    wxImage picture(200, 100);
    picture.SetRGB(wxRect(0, 0, 200, 100), 200, 30, 30);
    ASSERT_TRUE(picture.SaveFile(path("logo.png"), wxBITMAP_TYPE_PNG));
    ImageElement image;
    image.path = path("logo.png");
    image.pos = wxPoint(100, 10);
    image.width = 40;
    image.alignment = wxTEXT_ALIGNMENT_CENTRE;
    EXPECT_DOUBLE_EQ(image.height(false), 20);
    EXPECT_DOUBLE_EQ(image.bounds().m_x, 80);
    ImageElement missing = image;
    missing.path = path("none.png");
    EXPECT_DOUBLE_EQ(missing.height(false), 0);
    ImageElement qr = image;
    qr.path = ImageElement::PATH_QR;
    EXPECT_DOUBLE_EQ(qr.height(false), 40);  // a square place until the code is drawn

    Document doc;
    doc.addElement(image);
    doc.addElement(missing);
    DocumentPrint print(nullptr, "Logo");
    print.setDocument(&doc);
    ASSERT_TRUE(print.writePdf(path("logo.pdf"), ""));
    const std::string images = runCommand("pdfimages -list '" + std::string(path("logo.pdf").utf8_str()) + "'");
    EXPECT_NE(images.find(" 200   100 "), std::string::npos) << images;  // at its own resolution
}

TEST_F(PdfOutput, PreviewFrameOutlivesTheControllerAndItsTable) {
    wxPreviewFrame* frame = nullptr;
    {
        Table table = czechTable(120);
        TablePrint print(nullptr, u8("Náhled knihy"));
        print.setTable(&table);
        frame = print.Preview();
    }
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->GetTitle(), u8("Náhled knihy"));
    EXPECT_EQ(frame->GetSize(), wxSize(880, 650));
    EXPECT_TRUE(frame->IsShown());
    // Painting the page now draws the preview's own copy of the table.
    frame->Refresh();
    frame->Update();
    wxTheApp->Yield(true);
    frame->Destroy();
    wxTheApp->Yield(true);
}
