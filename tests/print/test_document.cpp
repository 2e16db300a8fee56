// Documents and their template files.
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include <cstdlib>

#include "document.h"
#include "printtest.h"

namespace {

wxString readFile(const wxString& path) {
    wxString text;
    wxFFile file(path, "rb");
    if (file.IsOpened()) file.ReadAll(&text, wxConvUTF8);
    return text;
}

void writeFile(const wxString& path, const char* utf8) {
    wxFFile file(path, "wb");
    file.Write(utf8, strlen(utf8));
}

// One element of every kind, each with values other than its defaults.
Document sampleDocument() {
    Document d;
    d.layout.marginLeft = 12;
    d.layout.marginTop = 14;
    d.layout.marginBottom = 16;
    d.layout.marginRight = 18;
    d.layout.headerLeftText = u8("Účetní firma");
    d.layout.headerCenterText = "Faktura";
    d.layout.headerRightText = "{faktura-cislo}";
    d.layout.headerLine = true;
    d.layout.footer = lxPrint::FOOTER_TEXT;
    d.layout.footerText = u8("Děkujeme & \"na shledanou\" <brzy>");
    d.style = TextStyle(printFont(9), wxColour(0, 0, 128), wxColour(255, 255, 255));

    TextStyle bold(printFont(12).Bold().Italic(), wxColour(200, 0, 0), wxColour(255, 255, 204));
    TextElement text(u8("Faktura č. {faktura-cislo}\ndruhý řádek"), wxPoint(5, 7), 80, wxTEXT_ALIGNMENT_CENTRE, bold);
    text.forceSpace = true;
    text.section = DOCSECTION_HEADER1;
    d.addElement(text);

    TextParagraphElement para;
    para.value.push_back("{firma-nazev}");
    para.value.push_back("");
    para.value.push_back(u8("  odsazený řádek "));
    para.pos = wxPoint(100, 20);
    para.width = 70;
    para.alignment = wxTEXT_ALIGNMENT_RIGHT;
    para.border = true;
    para.borderStyle = LineStyle(wxColour(0, 128, 0), 2, wxPENSTYLE_DOT);
    para.section = DOCSECTION_HEADER2;
    d.addElement(para);

    TableRowElement row;
    for (auto [v, w, a] : {std::tuple<const char*, int, int>{"{polozka-popis}", 90, wxTEXT_ALIGNMENT_LEFT},
                           {"{polozka-pocet}", 20, wxTEXT_ALIGNMENT_RIGHT},
                           {"{polozka-celkem}", 30, wxTEXT_ALIGNMENT_RIGHT}}) {
        row.addCellValue(v);
        row.addCellWidth(w);
        row.addCellAlignment(a);
    }
    row.pos = wxPoint(0, 60);
    row.border = true;
    row.section = DOCSECTION_ITEMS;
    d.addElement(row);

    ImageElement image;
    image.path = "{firma-logo}";
    image.pos = wxPoint(150, 0);
    image.width = 40;
    image.alignment = wxTEXT_ALIGNMENT_RIGHT;
    d.addElement(image);

    LineElement line(wxPoint(0, 80), wxPoint(190, 80), LineStyle(wxColour(0, 0, 0), 1, wxPENSTYLE_SHORT_DASH));
    line.anchor = true;
    line.borderBottom = true;
    line.section = DOCSECTION_FOOTER1;
    line.page = 2;
    d.addElement(line);

    RectangleElement rect(wxPoint(0, 90), wxSize(190, 30), LineStyle(), 4);
    rect.anchor = true;
    rect.section = DOCSECTION_FOOTER3;
    d.addElement(rect);
    return d;
}

}  // namespace

class TemplateFile : public PrintTest {};

TEST_F(TemplateFile, WritesTheFormatAsTheGoldenFileHoldsIt) {
    const Document d = sampleDocument();
    ASSERT_TRUE(d.saveToXml(path("t.xml")));
    const wxString golden = wxString(EVIDA_PRINT_TEST_DIR) + "/golden/template.xml";
    if (getenv("EVIDA_UPDATE_GOLDEN")) wxCopyFile(path("t.xml"), golden);
    EXPECT_EQ(readFile(path("t.xml")), readFile(golden));
}

TEST_F(TemplateFile, RoundTripKeepsEveryField) {
    const Document d = sampleDocument();
    ASSERT_TRUE(d.saveToXml(path("a.xml")));
    Document back;
    wxString error;
    ASSERT_TRUE(back.readFromXml(path("a.xml"), &error)) << error;
    ASSERT_TRUE(back.saveToXml(path("b.xml")));
    EXPECT_EQ(readFile(path("a.xml")), readFile(path("b.xml")));

    ASSERT_EQ(back.count(), 6u);
    EXPECT_EQ(back.layout.footerText, d.layout.footerText);
    EXPECT_EQ(back.layout.marginRight, 18);
    EXPECT_EQ(back.pages, 2);
    auto* text = dynamic_cast<TextElement*>(back.element(0));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->value, u8("Faktura č. {faktura-cislo}\ndruhý řádek"));
    EXPECT_TRUE(text->forceSpace);
    EXPECT_TRUE(text->textStyle.font.GetWeight() == wxFONTWEIGHT_BOLD);
    EXPECT_EQ(text->textStyle.font.GetStyle(), wxFONTSTYLE_ITALIC);
    EXPECT_EQ(text->textStyle.backColour, wxColour(255, 255, 204));
    auto* para = dynamic_cast<TextParagraphElement*>(back.element(1));
    ASSERT_NE(para, nullptr);
    EXPECT_EQ(para->value[1], "");
    EXPECT_EQ(para->value[2], u8("  odsazený řádek "));
    EXPECT_EQ(para->borderStyle, LineStyle(wxColour(0, 128, 0), 2, wxPENSTYLE_DOT));
    auto* row = dynamic_cast<TableRowElement*>(back.element(2));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->totalWidth(), 140);
    EXPECT_EQ(row->alignment[2], wxTEXT_ALIGNMENT_RIGHT);
    auto* line = dynamic_cast<LineElement*>(back.element(4));
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->anchor && line->borderBottom && !line->borderTop);
    EXPECT_EQ(line->page, 2);
    auto* rect = dynamic_cast<RectangleElement*>(back.element(5));
    ASSERT_NE(rect, nullptr);
    EXPECT_EQ(rect->fillet, 4);
    EXPECT_EQ(rect->section, DOCSECTION_FOOTER3);
}

TEST_F(TemplateFile, MissingAttributesReadAsDefaults) {
    writeFile(path("d.xml"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<evidaDocument>\n"
              "  <TextStyle Font=\"Lucida Grande;11\"/>\n"
              "  <Elements>\n"
              "    <Element Type=\"1\" Value=\"bez barev\" Y=\"abc\"><TextStyle Font=\"Lucida Grande;8\"/></Element>\n"
              "    <Element Type=\"5\" EndX=\"50\"><LineStyle/></Element>\n"
              "    <Element Type=\"6\" StartX=\"3\" Section=\"99\"/>\n"
              "  </Elements>\n</evidaDocument>\n");
    Document d;
    ASSERT_TRUE(d.readFromXml(path("d.xml")));
    ASSERT_EQ(d.count(), 3u);
    EXPECT_EQ(d.style.fontColour, wxColour(0, 0, 0));
    EXPECT_EQ(d.style.backColour, wxColour(255, 255, 255));
    EXPECT_DOUBLE_EQ(d.style.font.GetFractionalPointSize(), 11);
    EXPECT_EQ(d.layout.marginLeft, Document().layout.marginLeft);

    auto* text = dynamic_cast<TextElement*>(d.element(0));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->textStyle.fontColour, wxColour(0, 0, 0));
    EXPECT_EQ(text->textStyle.backColour, wxColour(255, 255, 255));
    EXPECT_EQ(text->pos.y, 0);  // not a number: the default stays
    EXPECT_EQ(text->page, 1);
    auto* line = dynamic_cast<LineElement*>(d.element(1));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->lineStyle, LineStyle(wxColour(0, 0, 0), 1, wxPENSTYLE_SOLID));
    EXPECT_EQ(line->end.x, 50);
    EXPECT_EQ(d.element(2)->section, DOCSECTION_HEADER1);
}

TEST_F(TemplateFile, UnknownElementTypesAreSkipped) {
    writeFile(path("u.xml"),
              "<evidaDocument><Elements><Element Type=\"7\"/><Element Type=\"x\"/>"
              "<Element Type=\"4\" Path=\"logo.png\"/><Other/></Elements></evidaDocument>");
    Document d;
    ASSERT_TRUE(d.readFromXml(path("u.xml")));
    ASSERT_EQ(d.count(), 1u);
    EXPECT_EQ(d.element(0)->elementType(), Element::IMAGE);
}

struct BadFile {
    const char* name;
    const char* content;  // null: no file at all
    const char* message;  // a part of the Czech message
};
void PrintTo(const BadFile& c, std::ostream* os) { *os << c.name; }
class BadTemplateFile : public PrintTest, public ::testing::WithParamInterface<BadFile> {};

TEST_P(BadTemplateFile, IsRefusedWithAMessageAndLeavesTheDocument) {
    const BadFile& c = GetParam();
    if (c.content) writeFile(path("bad.xml"), c.content);
    Document d = sampleDocument();
    wxString error;
    EXPECT_FALSE(d.readFromXml(path("bad.xml"), &error));
    EXPECT_NE(error.Find(wxString::FromUTF8(c.message)), wxNOT_FOUND) << error;
    EXPECT_EQ(d.count(), 6u);
    EXPECT_EQ(d.layout.marginLeft, 12);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadTemplateFile,
    ::testing::Values(BadFile{"missing", nullptr, "neexistuje"},
                      BadFile{"malformed", "<evidaDocument><Elements></evidaDocument>", "chybné XML"},
                      BadFile{"empty", "", "chybné XML"}, BadFile{"other_root", "<Pisemnost/>", "není šablona"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(TemplateFile, UnwritablePathGivesAMessage) {
    wxString error;
    EXPECT_FALSE(sampleDocument().saveToXml(path("no/such/dir/t.xml"), &error));
    EXPECT_NE(error.Find(u8("nelze uložit")), wxNOT_FOUND);
}

struct FontCase {
    const char* name;
    double points;
    bool bold, italic, underlined;
};
void PrintTo(const FontCase& c, std::ostream* os) { *os << c.name; }
class FontString : public ::testing::TestWithParam<FontCase> {};

TEST_P(FontString, ReadsBackTheSameFont) {
    const FontCase& c = GetParam();
    wxFontInfo info(c.points);
    info.FaceName("Lucida Grande").Bold(c.bold).Italic(c.italic).Underlined(c.underlined);
    const wxFont font(info);
    const wxFont back = fontFromString(fontToString(font), wxFont());
    ASSERT_TRUE(back.IsOk()) << fontToString(font);
    EXPECT_EQ(back.GetFaceName(), "Lucida Grande");
    EXPECT_DOUBLE_EQ(back.GetFractionalPointSize(), c.points);
    EXPECT_EQ(back.GetWeight() == wxFONTWEIGHT_BOLD, c.bold);
    EXPECT_EQ(back.GetStyle() == wxFONTSTYLE_ITALIC, c.italic);
    EXPECT_EQ(back.GetUnderlined(), c.underlined);
}

INSTANTIATE_TEST_SUITE_P(Fonts, FontString,
                         ::testing::Values(FontCase{"plain", 8, false, false, false},
                                           FontCase{"bold", 12, true, false, false},
                                           FontCase{"italic_fraction", 7.5, false, true, false},
                                           FontCase{"all", 10, true, true, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(FontString, GarbageKeepsTheFallback) {
    const wxFont fallback = printFont(9);
    for (const char* text : {"", "Lucida Grande", ";8", "Lucida Grande;abc", "Lucida Grande;-3"})
        EXPECT_TRUE(fontFromString(text, fallback) == fallback) << text;
}

TEST(DocumentModel, SortsBySectionThenTopEdge) {
    Document d;
    auto add = [&](DOCSECTION section, int y) {
        TextElement e(wxString::Format("%d/%d", section, y), wxPoint(0, y));
        e.section = section;
        d.addElement(e);
    };
    add(DOCSECTION_FOOTER1, 5);
    add(DOCSECTION_HEADER1, 40);
    add(DOCSECTION_ITEMS, 0);
    add(DOCSECTION_HEADER1, 10);
    d.sortElements();
    std::vector<wxString> order;
    for (const auto& e : d.elements()) order.push_back(static_cast<TextElement*>(e.get())->value);
    EXPECT_EQ(order, (std::vector<wxString>{"0/10", "0/40", "3/0", "4/5"}));
}

TEST(DocumentModel, SectionHeightIsTheLowestBottomEdge) {
    Document d;
    d.addElement(RectangleElement(wxPoint(0, 10), wxSize(50, 20)));  // bottom 30
    d.addElement(LineElement(wxPoint(0, 45), wxPoint(10, 5)));       // 5 ... 45
    TextElement text("Text", wxPoint(0, 40));                        // 8 pt: one line
    text.section = DOCSECTION_ITEMS;
    d.addElement(text);
    EXPECT_DOUBLE_EQ(d.sectionHeight(DOCSECTION_HEADER1), 45);
    EXPECT_NEAR(d.sectionHeight(DOCSECTION_ITEMS), 40 + 8 * 1.2 * 25.4 / 72, 1e-9);
    EXPECT_DOUBLE_EQ(d.sectionHeight(DOCSECTION_FOOTER2), 0);
}

TEST(DocumentModel, ElementsByPageAndSectionAndSelection) {
    Document d = sampleDocument();
    EXPECT_EQ(d.elementsByPage(1).size(), 5u);
    EXPECT_EQ(d.elementsByPage(2).size(), 1u);
    EXPECT_EQ(d.elementsBySection(DOCSECTION_HEADER1).size(), 2u);  // the text and the image
    EXPECT_EQ(d.elementsBySection(DOCSECTION_FOOTER2).size(), 0u);
    d.element(0)->selected = true;
    d.element(3)->selected = true;
    EXPECT_DOUBLE_EQ(d.element(3)->height(true), d.element(3)->height(false) + 2);
    d.clearElementSelection();
    for (const auto& e : d.elements()) EXPECT_FALSE(e->selected);
    d.deleteElement(0);
    d.deleteElement(99);
    EXPECT_EQ(d.count(), 5u);
}

TEST(DocumentModel, CopyIsDeep) {
    Document original = sampleDocument();
    Document copy;
    copy.setFromDoc(original);
    static_cast<TextElement*>(copy.element(0))->value = "changed";
    copy.deleteElement(1);
    EXPECT_EQ(static_cast<TextElement*>(original.element(0))->value.Left(7), "Faktura");
    EXPECT_EQ(original.count(), 6u);
    EXPECT_EQ(copy.layout.headerRightText, "{faktura-cislo}");
}

TEST(TableRowCells, ArraysMoveInStep) {
    TableRowElement row;
    for (int i = 0; i < 3; ++i) {
        row.addCellValue(wxString::Format("c%d", i));
        row.addCellWidth(10 * (i + 1));
        row.addCellAlignment(wxTEXT_ALIGNMENT_LEFT + i);
    }
    row.deleteCell(1);
    row.deleteCell(7);
    ASSERT_EQ(row.cellCount(), 2u);
    EXPECT_EQ(row.cellValue(1), "c2");
    EXPECT_EQ(row.width[1], 30);
    EXPECT_EQ(row.alignment[1], wxTEXT_ALIGNMENT_RIGHT);
    EXPECT_EQ(row.cellValue(5), "");
    EXPECT_EQ(row.totalWidth(), 40);
}
