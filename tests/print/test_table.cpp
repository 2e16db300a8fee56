// Layout of tables: cell sizes, wrapping and the cutting of rows into pages.
#include <gtest/gtest.h>

#include "multitableprint.h"
#include "printtest.h"
#include "splittableprint.h"
#include "table.h"
#include "textmeasure.h"

namespace {

TextStyle styleOf(double points) {
    TextStyle s;
    s.font = printFont(points);
    return s;
}

// A table of `rows` one-line rows under a one-line header, all 8 pt: 3 mm a line and
// 2 x 0.6 mm of room, 4.2 mm a row.
Table plainTable(int rows, const wxString& title = wxString()) {
    Table t;
    t.tableTitle.title = title;
    t.addCellToHeader("Header");
    for (int i = 0; i < rows; ++i) {
        t.addRow();
        t.addCell(wxString::Format("Row %d", i));
    }
    t.refreshCellsSize();
    return t;
}

std::vector<std::pair<int, int>> pagesOf(const Table& t) {
    std::vector<std::pair<int, int>> pages;
    for (const auto& p : t.rowsPerPage()) pages.emplace_back(p.rowStart, p.rowEnd);
    return pages;
}

}  // namespace

struct LineHeightCase {
    double points;
    double mm;
};
void PrintTo(const LineHeightCase& c, std::ostream* os) { *os << c.points << " pt"; }
class CellLineHeight : public ::testing::TestWithParam<LineHeightCase> {};

TEST_P(CellLineHeight, IsPointSizeTimesSpacingTruncatedToWholeMillimetresAndRowsGetRoomAround) {
    Table t;
    t.addRow();
    t.addCell("Text", wxTEXT_ALIGNMENT_LEFT, styleOf(GetParam().points));
    t.refreshCellsSize();
    EXPECT_DOUBLE_EQ(Table::cellLineHeight(t.rows[0][0]), GetParam().mm);
    EXPECT_DOUBLE_EQ(t.rowHeight(0), GetParam().mm + 2 * ROW_PADDING_MM);
}

INSTANTIATE_TEST_SUITE_P(Sizes, CellLineHeight,
                         ::testing::Values(LineHeightCase{6, 2}, LineHeightCase{8, 3}, LineHeightCase{10, 4},
                                           LineHeightCase{12, 5}, LineHeightCase{20, 8}));

TEST(TableCellSize, ColumnTakesItsWidestCellOverHeaderAndRowsPlusPadding) {
    Table t;
    t.addCellToHeader("Id");
    t.addCellToHeader(u8("A rather long header caption"));
    t.addRow();
    t.addCell(u8("Příliš žluťoučký kůň úpěl ďábelské ódy"));
    t.addCell("x");
    t.refreshCellsSize();
    const double rowText =
        lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(t.style.font, u8("Příliš žluťoučký kůň úpěl ďábelské ódy")));
    const double headerText =
        lxTextMeasure::pxToMm(lxTextMeasure::textWidthPx(t.style.font, "A rather long header caption"));
    EXPECT_NEAR(t.columnWidth(0), rowText + 4.0, 1e-9);
    EXPECT_NEAR(t.columnWidth(1), headerText + 4.0, 1e-9);
    EXPECT_NEAR(t.tableWidth(), t.columnWidth(0) + t.columnWidth(1), 1e-9);
}

TEST(TableCellSize, OnlyTheWidestLineOfAMultiLineCellCounts) {
    Table t;
    t.addRow();
    t.addCell("ab\nabcdefgh\nabc");
    t.refreshCellsSize();
    EXPECT_NEAR(t.columnWidth(0), Table::cellWidth(TableCell("abcdefgh")), 1e-9);
    EXPECT_DOUBLE_EQ(t.rowHeight(0), 9 + 2 * ROW_PADDING_MM);  // three lines of 3 mm
}

TEST(TableCellSize, WidestCellOfAColumnSizedToItWrapsWhenWiderThanAbout36mm) {
    // The column is the text plus 4 mm, the wrap limit 90 % of that: below about 36 mm of
    // text the limit is the wider of the two, above it the last word moves down.
    Table t;
    t.addRow();
    t.addCell("aa bb");
    t.addCell(u8("Úhrada faktury za dodávku materiálu na opravu"));
    t.refreshCellsSize();
    EXPECT_LT(t.columnWidth(0), 36);
    EXPECT_EQ(lxTextMeasure::wrappedLineCount(t.style.font, "aa bb", t.wrapLimitPx(0)), 1);
    EXPECT_GT(t.columnWidth(1), 40);
    EXPECT_EQ(t.numberOfWrappedLines(t.rows[0]), 2);
}

TEST(TableCellSize, FixedWidthSurvivesRefreshAndLongContent) {
    Table t;
    t.addRow();
    t.addCell(u8("Nákup kancelářských potřeb pro provozovnu v Brně"));
    t.setColumnWidth(0, 20);
    t.refreshCellsSize();
    t.refreshCellsSize();
    EXPECT_DOUBLE_EQ(t.columnWidth(0), 20);
    t.setColumnWidth(0, 0);
    t.refreshCellsSize();
    EXPECT_GT(t.columnWidth(0), 20);
}

struct WrapCase {
    const char* name;
    const char* text;
    double columnMm;
    int lines;
};
void PrintTo(const WrapCase& c, std::ostream* os) { *os << c.name; }
class CellWrapping : public ::testing::TestWithParam<WrapCase> {};

TEST_P(CellWrapping, RowHeightCountsTheWrappedLines) {
    const WrapCase& c = GetParam();
    Table t;
    t.setColumnWidth(0, c.columnMm);
    t.addRow();
    t.addCell(wxString::FromUTF8(c.text));
    t.refreshCellsSize();
    EXPECT_EQ(t.numberOfWrappedLines(t.rows[0]), c.lines);
    EXPECT_DOUBLE_EQ(t.rowHeight(0), 3.0 * c.lines + 2 * ROW_PADDING_MM);
}

INSTANTIATE_TEST_SUITE_P(Texts, CellWrapping,
                         ::testing::Values(WrapCase{"fits", "Tržba", 40, 1},
                                           WrapCase{"line_feeds_count_even_when_it_fits", "a\nb\nc", 40, 3},
                                           WrapCase{"empty_cell_is_one_line", "", 10, 1}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(CellWrapping, EachWordTakesALineWhenTwoDoNotFit) {
    const wxFont font = printFont(8);
    const double one = lxTextMeasure::textWidthPx(font, "mmmm");
    const double two = lxTextMeasure::textWidthPx(font, "mmmm mmmm");
    Table t;
    t.setColumnWidth(0, lxTextMeasure::pxToMm((one + two) / 2) / 0.9);
    t.addRow();
    t.addCell("mmmm mmmm mmmm mmmm mmmm");
    t.refreshCellsSize();
    EXPECT_EQ(t.numberOfWrappedLines(t.rows[0]), 5);
    EXPECT_DOUBLE_EQ(t.rowHeight(0), 15 + 2 * ROW_PADDING_MM);
}

TEST(CellWrapping, WrappedLinesStayWithinTheLimitUnlessOneWord) {
    const wxFont font = printFont(8);
    const wxString text =
        u8("Úhrada faktury za dodávku materiálu na opravu střechy skladu a kanceláří "
           "včetně dopravy, montáže, lešení a odvozu odpadu ze stavby");
    const double limit = lxTextMeasure::mmToPx(30);
    const auto lines = lxTextMeasure::wrapText(font, text, limit);
    ASSERT_GT(lines.size(), 3u);
    wxString joined;
    for (const auto& line : lines) {
        if (line.Find(' ') != wxNOT_FOUND) {
            EXPECT_LE(lxTextMeasure::textWidthPx(font, line), limit) << line;
        }
        joined += (joined.empty() ? "" : " ") + line;
    }
    EXPECT_EQ(joined, text);  // only the break spaces are gone
    EXPECT_EQ(lxTextMeasure::wrappedLineCount(font, text, limit), static_cast<int>(lines.size()));
}

TEST(TablePagination, EmptyTableIsOnePageWithTheHeader) {
    Table t = plainTable(0);
    EXPECT_EQ(t.calculatePages(10, 10, 289), 1);
    EXPECT_EQ(pagesOf(t), (std::vector<std::pair<int, int>>{{0, -1}}));
}

TEST(TablePagination, RowThatOpensAPageIsNotCountedOnIt) {
    // Room 269 mm, header and rows 4.2 mm: page 1 holds 63 rows; the later pages hold 64
    // because the row that opened them is left out of their sum.
    Table t = plainTable(150);
    EXPECT_EQ(t.calculatePages(10, 10, 289), 3);
    EXPECT_EQ(pagesOf(t), (std::vector<std::pair<int, int>>{{0, 62}, {63, 126}, {127, 149}}));
    EXPECT_EQ(t.pagesWithoutSplit(), 3);
}

TEST(TablePagination, TitleTakesRoomOnTheFirstPageOnly) {
    Table one = plainTable(200, "Title");
    EXPECT_DOUBLE_EQ(one.titleHeight(), 5);  // round(12 pt * 1.2 * 25.4 / 72)
    one.calculatePages(10, 10, 289);
    EXPECT_EQ(one.rowsPerPage()[0].rowEnd, 60);

    Table two = plainTable(200, "Title\nsecond line");
    EXPECT_DOUBLE_EQ(two.titleHeight(), 10);
    two.calculatePages(10, 10, 289);
    ASSERT_GE(two.rowsPerPage().size(), 2u);
    EXPECT_EQ(two.rowsPerPage()[0].rowEnd, 59);
    // Page 2 holds as many rows as it would without a title.
    EXPECT_EQ(two.rowsPerPage()[1].rowEnd - two.rowsPerPage()[1].rowStart + 1, 64);
}

TEST(TablePagination, RowTallerThanTheRoomStartsAPageAndIsNotSplit) {
    const wxString tall = wxString('\n', 100);  // 101 lines of 3 mm
    Table t;
    t.addCellToHeader("Header");
    for (int i = 0; i < 11; ++i) {
        t.addRow();
        t.addCell(i == 5 ? tall : wxString("x"));
    }
    t.refreshCellsSize();
    t.calculatePages(10, 10, 289);
    EXPECT_EQ(pagesOf(t), (std::vector<std::pair<int, int>>{{0, 4}, {5, 10}}));

    // As the very first row it stays on page 1 instead of leaving that page empty.
    Table first;
    first.addCellToHeader("Header");
    for (int i = 0; i < 4; ++i) {
        first.addRow();
        first.addCell(i == 0 ? tall : wxString("x"));
    }
    first.refreshCellsSize();
    first.calculatePages(10, 10, 289);
    EXPECT_EQ(pagesOf(first), (std::vector<std::pair<int, int>>{{0, 0}, {1, 3}}));
}

TEST(SplitTable, PagesRunThroughAllGroupsOfOneRowPageBeforeTheNext) {
    Table t = plainTable(120);
    t.columnsSplit = {{0, 0}, {0, 0}, {0, 0}};
    t.calculatePages(10, 10, 289);
    ASSERT_EQ(t.pagesWithoutSplit(), 2);
    EXPECT_EQ(t.pages(), 6);
    SplitTablePrintout printout(&t, "split");
    const int expected[][2] = {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2}};  // row page, group
    for (int page = 1; page <= 6; ++page) {
        EXPECT_EQ(printout.rowPageFromPage(page), expected[page - 1][0]) << page;
        EXPECT_EQ(printout.splitFromPage(page), expected[page - 1][1]) << page;
    }
}

TEST(SplitTable, ColumnsAreGroupedToFitTheWidth) {
    Table t;
    const double widths[] = {30, 50, 40, 120, 20, 20};
    for (int c = 0; c < 6; ++c) t.setColumnWidth(c, widths[c]);
    t.refreshCellsSize();
    const auto groups = SplitTablePrint::splitColumns(t, 100);
    ASSERT_EQ(groups.size(), 4u);
    const int expected[][2] = {{0, 1}, {2, 2}, {3, 3}, {4, 5}};
    for (size_t g = 0; g < groups.size(); ++g) {
        EXPECT_EQ(groups[g].columnStart, expected[g][0]);
        EXPECT_EQ(groups[g].columnEnd, expected[g][1]);
    }
    t.columnsSplit = groups;
    EXPECT_DOUBLE_EQ(t.tableWidthForSplit(0), 80);
    EXPECT_DOUBLE_EQ(t.tableWidthForSplit(3), 40);
}

TEST(MultiTable, TablesFollowOneAnotherPageByPage) {
    lxTableArray tables{plainTable(100), plainTable(5), plainTable(150)};  // 2, 1 and 3 pages
    for (auto& t : tables) t.calculatePages(10, 10, 289);
    MultiTablePrintout printout(&tables, "multi");
    const int tableOf[] = {0, 0, 1, 2, 2, 2};
    for (int page = 1; page <= 6; ++page) EXPECT_EQ(printout.getTableForPage(page), tableOf[page - 1]) << page;
    EXPECT_EQ(printout.getTableForPage(7), -1);
    EXPECT_EQ(printout.pageForTable(0), 1);
    EXPECT_EQ(printout.pageForTable(1), 3);
    EXPECT_EQ(printout.pageForTable(2), 4);
}

TEST(CellWrapping, LongWordIsCutBetweenLettersToStayInsideItsColumn) {
    const wxString word = u8("Nejnepravděpodobnějšími");
    Table t;
    t.setColumnWidth(0, 14);
    t.addRow();
    t.addCell(word);
    t.refreshCellsSize();
    const auto lines = Table::wrapCell(t.rows[0][0], 14);
    ASSERT_GT(lines.size(), 1u);
    wxString joined;
    for (const auto& line : lines) {
        EXPECT_LE(lxTextMeasure::textWidthPx(t.style.font, line), t.wrapLimitPx(0)) << line;
        joined += line;
    }
    EXPECT_EQ(joined, word);  // nothing lost, nothing added
    EXPECT_EQ(t.numberOfWrappedLines(t.rows[0]), static_cast<int>(lines.size()));
}

TEST(CellWrapping, NarrowColumnWrapsInsideItsPadding) {
    // 90 % of a narrow column would reach into the 2 mm padding on the right.
    for (double width : {6.0, 10.0, 20.0, 39.0}) {
        EXPECT_LE(Table::wrapLimitPx(width), lxTextMeasure::mmToPx(width - 2 * CELL_PADDING_MM) + 1e-5) << width;
        EXPECT_LE(Table::wrapLimitPx(width), lxTextMeasure::mmToPx(width * 0.9) + 1e-5) << width;
    }
}

TEST(TableFit, WideTextColumnGivesWayAndShortColumnsKeepTheirWidth) {
    Table t;
    for (const char* h : {"Datum", "Popis", "Částka"}) t.addCellToHeader(u8(h));
    t.addRow();
    t.addCell("12.03.2024");
    t.addCell(u8("Úhrada faktury za dodávku materiálu na opravu střechy skladu a kanceláří včetně dopravy"));
    t.addCell("1 250,00", wxTEXT_ALIGNMENT_RIGHT);
    t.refreshCellsSize();
    const double datum = t.columnWidth(0), castka = t.columnWidth(2), before = t.rowHeight(0);
    ASSERT_GT(t.tableWidth(), 100);
    t.fitToWidth(100);
    EXPECT_NEAR(t.tableWidth(), 100, 0.01);
    EXPECT_DOUBLE_EQ(t.columnWidth(0), datum);
    EXPECT_DOUBLE_EQ(t.columnWidth(2), castka);
    EXPECT_GT(t.rowHeight(0), before) << "the description wraps onto more lines";
    for (const auto& line : Table::wrapCell(t.rows[0][1], t.columnWidth(1)))
        EXPECT_LE(lxTextMeasure::textWidthPx(t.style.font, line), t.wrapLimitPx(1)) << line;
}

TEST(TableFit, TableThatFitsIsLeftAloneAndTooManyColumnsShrinkAlike) {
    Table fits = plainTable(3);
    const double width = fits.tableWidth();
    fits.fitToWidth(width + 1);
    EXPECT_DOUBLE_EQ(fits.tableWidth(), width);

    // Twenty columns of long words cannot keep their words whole in 100 mm.
    Table many;
    for (int c = 0; c < 20; ++c) many.addCellToHeader(u8("Nejnepravděpodobnější"));
    many.refreshCellsSize();
    many.fitToWidth(100);
    EXPECT_NEAR(many.tableWidth(), 100, 0.01);
    for (int c = 1; c < 20; ++c) EXPECT_NEAR(many.columnWidth(c), many.columnWidth(0), 1e-9);
    EXPECT_GT(many.headerHeight(), 3 * 3.0) << "the cut words take several lines";
}

TEST(SplitTable, RepeatedColumnsGoWithEveryGroupAndTakeTheirRoom) {
    Table t;
    const double widths[] = {20, 20, 30, 30, 30, 30};
    for (int c = 0; c < 6; ++c) t.setColumnWidth(c, widths[c]);
    t.repeatedColumns = 2;
    t.refreshCellsSize();
    t.columnsSplit = SplitTablePrint::splitColumns(t, 105);  // 40 repeated + two of 30
    ASSERT_EQ(t.numberOfColumnsSplit(), 2);
    EXPECT_EQ(t.columnsForSplit(0), (std::vector<int>{0, 1, 2, 3}));
    EXPECT_EQ(t.columnsForSplit(1), (std::vector<int>{0, 1, 4, 5}));
    EXPECT_DOUBLE_EQ(t.tableWidthForSplit(1), 100);
    EXPECT_EQ(t.columnsForSplit(-1).size(), 6u);  // no group: every column
}
