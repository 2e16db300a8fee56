// The template editor's geometry without any window: millimetres against pixels, the section
// bands, hit testing, the grips and the move and resize rules.
#include <gtest/gtest.h>

#include "editor/editorgeometry.h"
#include "imageelement.h"
#include "lineelement.h"
#include "rectangleelement.h"
#include "tablerowelement.h"
#include "textparagraphelement.h"

using namespace editorgeo;

namespace {
wxRect2DDouble box(double x, double y, double w, double h) { return wxRect2DDouble(x, y, w, h); }
}  // namespace

TEST(EditorGeometry, PixelsAndMillimetresRoundTripAtEveryZoom) {
    for (double zoom : {0.5, 1.0, 2.0}) {
        PageView v;
        v.pxPerMm = 96 / 25.4 * zoom;
        v.marginLeft = 12;
        v.marginTop = 20;
        for (const wxPoint mm : {wxPoint(0, 0), wxPoint(37, 140), wxPoint(190, 262)}) {
            const wxPoint px = v.toPx(wxRealPoint(mm.x, mm.y));
            EXPECT_EQ(v.toWholeMm(px), mm) << zoom;
        }
        // The margin corner lies GAP + margin millimetres into the canvas.
        EXPECT_EQ(v.toPx(wxRealPoint(0, 0)),
                  wxPoint(wxRound((GAP_LEFT_MM + 12) * v.pxPerMm), wxRound((GAP_TOP_MM + 20) * v.pxPerMm)));
        EXPECT_GE(v.canvasPx().x, v.sheetPx().GetRight());
        EXPECT_GE(v.canvasPx().y, v.sheetPx().GetBottom());
    }
}

TEST(EditorGeometry, EmptySectionsStackAtTheirSmallestHeightAndTheLastFillsThePage) {
    const Bands b = sectionBands({}, 267);
    for (int s = 0; s < DOCSECTION_COUNT; ++s) {
        EXPECT_DOUBLE_EQ(b[s].top, s * MIN_BAND_MM) << s;
        if (s + 1 < DOCSECTION_COUNT) {
            EXPECT_DOUBLE_EQ(b[s].bottom, b[s + 1].top) << s;
        }
    }
    EXPECT_DOUBLE_EQ(b[DOCSECTION_FOOTER3].bottom, 267);
}

TEST(EditorGeometry, BandsReachTheLowestEdgeOfTheirElements) {
    const Bands b = sectionBands({{DOCSECTION_HEADER1, box(0, 0, 50, 30)},
                                  {DOCSECTION_HEADER1, box(0, 40, 50, 12)},  // lowest edge 52
                                  {DOCSECTION_ITEMS, box(0, 80, 190, 5)},
                                  {DOCSECTION_FOOTER3, box(0, 300, 10, 10)}},
                                 267);
    EXPECT_DOUBLE_EQ(b[DOCSECTION_HEADER1].bottom, 52);
    EXPECT_DOUBLE_EQ(b[DOCSECTION_HEADER2].top, 52);
    EXPECT_DOUBLE_EQ(b[DOCSECTION_HEADER3].bottom, 52 + 2 * MIN_BAND_MM);
    EXPECT_DOUBLE_EQ(b[DOCSECTION_ITEMS].bottom, 85);
    // An element below the printable height stretches the last band past it.
    EXPECT_DOUBLE_EQ(b[DOCSECTION_FOOTER3].bottom, 310);

    struct Case {
        double y;
        DOCSECTION section;
    };
    for (const Case& c : {Case{-5, DOCSECTION_HEADER1}, Case{0, DOCSECTION_HEADER1}, Case{51.9, DOCSECTION_HEADER1},
                          Case{52, DOCSECTION_HEADER2}, Case{84.9, DOCSECTION_ITEMS}, Case{85, DOCSECTION_FOOTER1},
                          Case{500, DOCSECTION_FOOTER3}})
        EXPECT_EQ(sectionAt(b, c.y), c.section) << c.y;
}

TEST(EditorGeometry, HitTestFindsTheTopmostShapeAndLooksThroughFrames) {
    const std::vector<Shape> shapes = {
        {Element::TEXT, box(10, 10, 40, 5), {}, {}},
        {Element::RECTANGLE, box(0, 0, 100, 50), {}, {}},  // a frame round the text, drawn later
        {Element::LINE, box(0, 60, 100, 0), wxRealPoint(0, 60), wxRealPoint(100, 60)},
        {Element::TEXT, box(120, 10, 0, 0), {}, {}},  // an empty text: only its point
        {Element::TEXT, box(30, 12, 10, 5), {}, {}},  // lies on the first text
    };
    struct Case {
        const char* what;
        wxRealPoint at;
        int hit;
    };
    for (const Case& c : {Case{"text inside a frame", {15, 12}, 0}, Case{"topmost of two texts", {32, 13}, 4},
                          Case{"frame outline", {50, 0.5}, 1}, Case{"frame corner from outside", {-1, -1}, 1},
                          Case{"inside the frame, on nothing", {70, 30}, -1}, Case{"near a line", {50, 61.2}, 2},
                          Case{"past a line's end", {103, 60}, -1}, Case{"empty text's point", {121, 11}, 3},
                          Case{"nothing at all", {150, 150}, -1}})
        EXPECT_EQ(hitTest(shapes, c.at), c.hit) << c.what;
}

TEST(EditorGeometry, GripsSitWhereEachKindResizes) {
    const Shape text{Element::TEXT, box(10, 20, 40, 6), {}, {}};
    const Shape rect{Element::RECTANGLE, box(10, 20, 40, 30), {}, {}};
    const Shape line{Element::LINE, box(10, 20, 40, 0), wxRealPoint(10, 20), wxRealPoint(50, 20)};
    EXPECT_EQ(handleAt(text, wxRealPoint(50, 23)), HANDLE_WIDTH);
    EXPECT_EQ(handleAt(text, wxRealPoint(30, 23)), HANDLE_NONE);
    EXPECT_EQ(handleAt(rect, wxRealPoint(49, 49)), HANDLE_SIZE);
    EXPECT_EQ(handleAt(rect, wxRealPoint(50, 20)), HANDLE_NONE);
    EXPECT_EQ(handleAt(line, wxRealPoint(10.5, 20)), HANDLE_START);
    EXPECT_EQ(handleAt(line, wxRealPoint(51, 21)), HANDLE_END);
}

TEST(EditorGeometry, MovesGoByWholeMillimetresAndStopAtTheMarginCorner) {
    LineElement line(wxPoint(5, 30), wxPoint(60, 10));
    moveElement(line, -8, 3);  // the left end would pass x 0: the move stops there
    EXPECT_EQ(line.start, wxPoint(0, 33));
    EXPECT_EQ(line.end, wxPoint(55, 13));
    moveElement(line, 4, -20);  // the upper end would pass y 0
    EXPECT_EQ(line.start, wxPoint(4, 20));
    EXPECT_EQ(line.end, wxPoint(59, 0));

    RectangleElement rect(wxPoint(10, 10), wxSize(20, 20));
    moveElement(rect, 7, -3);
    EXPECT_EQ(rect.start, wxPoint(17, 7));
    EXPECT_EQ(rect.size, wxSize(20, 20));

    TableRowElement row;
    row.pos = wxPoint(3, 3);
    moveElement(row, -5, -1);
    EXPECT_EQ(row.pos, wxPoint(0, 2));
}

TEST(EditorGeometry, ResizeRulesOfEachKind) {
    TextParagraphElement para;
    para.pos = wxPoint(10, 0);
    ASSERT_TRUE(resizeElement(para, HANDLE_WIDTH, wxPoint(75, 40)));
    EXPECT_EQ(para.width, 65);
    ASSERT_TRUE(resizeElement(para, HANDLE_WIDTH, wxPoint(2, 0)));  // left of its start
    EXPECT_EQ(para.width, MIN_SIZE_MM);
    EXPECT_FALSE(resizeElement(para, HANDLE_SIZE, wxPoint(50, 50)));

    TableRowElement row;
    row.pos = wxPoint(20, 0);
    for (int w : {30, 40, 10}) {
        row.addCellValue("x");
        row.addCellWidth(w);
        row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    }
    ASSERT_TRUE(resizeElement(row, HANDLE_WIDTH, wxPoint(120, 0)));  // 100 mm in all: the last cell takes it
    EXPECT_EQ(row.width[0], 30);
    EXPECT_EQ(row.width[1], 40);
    EXPECT_EQ(row.width[2], 30);
    EXPECT_EQ(row.totalWidth(), 100);
    EXPECT_FALSE(resizeElement(*TableRowElement().clone(), HANDLE_WIDTH, wxPoint(50, 0)));  // no cells

    struct ImageCase {
        wxTextAttrAlignment alignment;
        int expectedWidth, expectedX;
    };
    // Each picture starts 40 mm wide at pos.x 100; the grip is dragged to x 130.
    for (const ImageCase& c : {ImageCase{wxTEXT_ALIGNMENT_LEFT, 30, 100}, ImageCase{wxTEXT_ALIGNMENT_CENTRE, 60, 100},
                               ImageCase{wxTEXT_ALIGNMENT_RIGHT, 70, 130}}) {
        ImageElement image;
        image.path = ImageElement::PATH_LOGO;
        image.pos = wxPoint(100, 5);
        image.width = 40;
        image.alignment = c.alignment;
        ASSERT_TRUE(resizeElement(image, HANDLE_WIDTH, wxPoint(130, 5)));
        EXPECT_EQ(image.width, c.expectedWidth) << c.alignment;
        EXPECT_EQ(image.pos.x, c.expectedX) << c.alignment;
        EXPECT_DOUBLE_EQ(image.bounds().m_x + image.bounds().m_width, 130) << c.alignment;
    }

    RectangleElement rect(wxPoint(10, 10), wxSize(20, 20));
    ASSERT_TRUE(resizeElement(rect, HANDLE_SIZE, wxPoint(45, 5)));  // above its top: the smallest height
    EXPECT_EQ(rect.size, wxSize(35, MIN_SIZE_MM));
    EXPECT_FALSE(resizeElement(rect, HANDLE_WIDTH, wxPoint(45, 5)));

    LineElement line(wxPoint(0, 0), wxPoint(10, 0));
    ASSERT_TRUE(resizeElement(line, HANDLE_END, wxPoint(80, 12)));
    ASSERT_TRUE(resizeElement(line, HANDLE_START, wxPoint(-4, 3)));  // kept at the margin corner
    EXPECT_EQ(line.start, wxPoint(0, 3));
    EXPECT_EQ(line.end, wxPoint(80, 12));
}

TEST(EditorGeometry, OnlyWholeNumbersAreMillimetres) {
    struct Case {
        const char* text;
        bool ok;
        long value;
    };
    for (const Case& c :
         {Case{"12", true, 12}, Case{" 7 ", true, 7}, Case{"-3", true, -3}, Case{"0", true, 0},
          Case{"12.500", false, 0}, Case{"12,5", false, 0}, Case{"abc", false, 0}, Case{"", false, 0},
          Case{"-", false, 0}, Case{"1e3", false, 0}, Case{"1 000", false, 0}, Case{"99999999999", false, 0}}) {
        long value = 0;
        EXPECT_EQ(parseWholeNumber(wxString::FromUTF8(c.text), &value), c.ok) << c.text;
        if (c.ok) {
            EXPECT_EQ(value, c.value) << c.text;
        }
    }
}
