// The invoice print: placeholders of a template filled from the invoice, item and VAT rows
// repeated with what follows moved down and over pages, the built-in layouts, and the QR
// payment code read back from the rendered PDF page by a real reader (zbarimg).
#include <gtest/gtest.h>
#include <wx/utils.h>

#include <algorithm>

#include "fakturaprint.h"
#include "printtest.h"

namespace {

// Renders the first page of the PDF at 300 dpi and decodes every code on it; empty when
// there is none.
wxString decodeQr(const wxString& pdf, const wxString& dir) {
    const std::string png = std::string(dir.utf8_str()) + "/strana";
    runCommand("pdftoppm -r 300 -f 1 -l 1 -singlefile -png '" + std::string(pdf.utf8_str()) + "' '" + png + "'");
    return wxString::FromUTF8(runCommand("zbarimg --raw -q '" + png + ".png' 2>/dev/null")).Strip(wxString::both);
}

void keepForPeople(const wxString& pdf, const wxString& name) {
    wxString dir;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty()) wxCopyFile(pdf, dir + "/" + name + ".pdf");
}

TableRowElement radek(DOCSECTION section, int y, std::initializer_list<const char*> cells) {
    TableRowElement r;
    r.section = section;
    r.pos = wxPoint(0, y);
    for (const char* c : cells) {
        r.addCellValue(u8(c));
        r.addCellWidth(40);
        r.addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    }
    return r;
}

TextElement text(DOCSECTION section, int y, const char* value) {
    TextElement t(u8(value), wxPoint(0, y), 100);
    t.section = section;
    return t;
}

// A template of a header text, the item row, a VAT recap row and a total under them.
Document sablona() {
    Document doc;
    doc.addElement(text(DOCSECTION_HEADER1, 0, "Faktura {faktura-cislo}"));
    doc.addElement(radek(DOCSECTION_ITEMS, 50, {"{polozka-popis}", "{polozka-pocet} {polozka-mj}", "{polozka-celkem}"}));
    doc.addElement(radek(DOCSECTION_FOOTER1, 60, {"{dph-sazba}", "{dph-zaklad}", "{dph-dph}"}));
    doc.addElement(text(DOCSECTION_FOOTER2, 70, "Celkem {faktura-celkem}"));
    return doc;
}

std::vector<const Element*> podle(const Document& doc, DOCSECTION section) {
    std::vector<const Element*> out;
    for (const auto& e : doc.elements())
        if (e->section == section) out.push_back(e.get());
    // In the order they print: page by page, top down.
    std::stable_sort(out.begin(), out.end(), [](const Element* a, const Element* b) {
        return a->page != b->page ? a->page < b->page : a->posY() < b->posY();
    });
    return out;
}

}  // namespace

class FakturaPrint : public PrintTest {};

TEST_F(FakturaPrint, PlaceholdersAreFilledFromTheirSourceAndMissingSourcesGiveASpace) {
    const FakturaTisk vzor = ukazkovaFaktura();
    FakturaTisk bezAdresy = vzor;
    bezAdresy.maFirmaAdresu = false;
    bezAdresy.maKontakt = false;
    FakturaTisk hotove = vzor;
    hotove.pokladnou = true;
    FakturaTisk bezUhrady = vzor;
    bezUhrady.maUhradu = false;
    const wxString datum = vzor.faktura.splatnost().Format("%x");
    struct {
        const char* nazev;
        const FakturaTisk& data;
        const char* line;
        wxString expected;
    } cases[] = {
        {"company", vzor, "{firma-nazev}, {firma-ulice}, {firma-psc} {firma-misto}",
         u8("Vzorová firma s.r.o., Hlavní 1, 110 00 Praha")},
        {"company without address", bezAdresy, "[{firma-ulice}|{firma-misto}|{firma-psc}|{firma-zeme}]", "[ | | | ]"},
        {"customer", vzor, "{kontakt-nazev} {kontakt-ic} {kontakt-dic}", u8("Odběratel s.r.o. 87654321 CZ87654321")},
        {"no customer", bezAdresy, "[{kontakt-nazev}|{kontakt-ulice}|{kontakt-ic}]", "[ | | ]"},
        {"every occurrence", vzor, "{faktura-vs}/{faktura-vs}", "00001/00001"},
        {"account", vzor, "{faktura-banka} {faktura-uhrada}", u8("19-2000145399/0800 Převodem")},
        {"paid in cash: no account", hotove, "[{faktura-banka}]", "[ ]"},
        {"no payment form", bezUhrady, "[{faktura-uhrada}|{faktura-banka}]", "[ | ]"},
        {"dates", vzor, "{faktura-splatnost}", datum},
        {"symbols and currency", vzor, "{faktura-ks}|{faktura-ss}|{faktura-mena}", "0308||CZK"},
        {"unknown placeholder stays", vzor, "{faktura-nic}", "{faktura-nic}"},
    };
    for (const auto& c : cases) EXPECT_EQ(parseLine(u8(c.line), c.data), c.expected) << c.nazev;

    const FaPolozka& p = vzor.polozky[1];
    EXPECT_EQ(parsePolozkaLine("{polozka-popis}: {polozka-pocet} {polozka-mj} x {polozka-cenamj}, {polozka-sazba}", p,
                               21, 1),
              u8("Položka č.2: ") + wxString::Format("%.3f", 2.0) + " ks x " + wxString::Format("%.2f", 200.0) + ", 21");
    EXPECT_EQ(parseSazbaLine("{dph-sazba} {dph-zaklad} {dph-dph}", 21, 100, 21),
              "21% " + wxString::Format("%.2f %.2f", 100.0, 21.0));
}

TEST_F(FakturaPrint, ItemAndRecapRowsRepeatAndPushWhatFollows) {
    const FakturaTisk data = ukazkovaFaktura();  // three items at one rate
    Document doc = sablona();
    const double h = std::ceil(doc.element(1)->height(false));
    vyplnSablonu(doc, data);

    const auto polozky = podle(doc, DOCSECTION_ITEMS);
    ASSERT_EQ(polozky.size(), 3u);
    for (size_t i = 0; i < 3; ++i) {
        const auto* r = dynamic_cast<const TableRowElement*>(polozky[i]);
        EXPECT_EQ(r->pos.y, 50 + static_cast<int>(i * h));
        EXPECT_EQ(r->cellValue(0), data.polozky[i].popis());
        EXPECT_EQ(r->cellValue(2), wxString::Format("%.2f", data.polozky[i].celkem()));
    }
    const auto* rekap = dynamic_cast<const TableRowElement*>(podle(doc, DOCSECTION_FOOTER1).at(0));
    EXPECT_EQ(rekap->pos.y, 60 + static_cast<int>(2 * h));
    EXPECT_EQ(rekap->cellValue(0), "21%");
    const auto* celkem = dynamic_cast<const TextElement*>(podle(doc, DOCSECTION_FOOTER2).at(0));
    EXPECT_EQ(celkem->pos.y, 70 + static_cast<int>(2 * h));
    EXPECT_EQ(celkem->value, "Celkem " + wxString::Format("%.2f", data.faktura.celkem()));
    EXPECT_EQ(dynamic_cast<const TextElement*>(podle(doc, DOCSECTION_HEADER1).at(0))->value, "Faktura FV-00001");

    // No items: the row goes and what followed moves up into its place.
    FakturaTisk prazdna = data;
    prazdna.polozky.clear();
    prazdna.sazbyPolozek.clear();
    Document bez = sablona();
    vyplnSablonu(bez, prazdna);
    EXPECT_TRUE(podle(bez, DOCSECTION_ITEMS).empty());
    EXPECT_EQ(dynamic_cast<const TextElement*>(podle(bez, DOCSECTION_FOOTER2).at(0))->pos.y, 70 - static_cast<int>(h));
}

TEST_F(FakturaPrint, ManyItemsGoOnOverPagesAndTheTotalFollowsTheLastRow) {
    FakturaTisk data = ukazkovaFaktura();
    const FaPolozka vzor = data.polozky[0];
    data.polozky.assign(120, vzor);
    data.sazbyPolozek.assign(120, 21);
    // An item whose own text looks like a placeholder is printed as it is.
    data.polozky[5].setPopis("{polozka-popis}");
    Document doc = sablona();
    vyplnSablonu(doc, data);

    const auto polozky = podle(doc, DOCSECTION_ITEMS);
    ASSERT_EQ(polozky.size(), 120u);
    EXPECT_GE(doc.pages, 2);
    const int limit = 297 - doc.layout.marginTop - doc.layout.marginBottom;
    int strana = 1;
    for (const Element* e : polozky) {
        EXPECT_LE(e->posY() + e->height(false), limit);
        EXPECT_GE(e->page, strana);  // rows never go back a page
        strana = e->page;
    }
    const Element* posledni = polozky.back();
    const auto* celkem = podle(doc, DOCSECTION_FOOTER2).at(0);
    EXPECT_EQ(celkem->page, doc.pages);
    if (celkem->page == posledni->page) {
        EXPECT_GT(celkem->posY(), posledni->posY());
    }
    EXPECT_EQ(dynamic_cast<const TableRowElement*>(polozky[5])->cellValue(0), "{polozka-popis}");
}

TEST_F(FakturaPrint, BuiltInLayoutsPrintTheInvoiceAndAScannableCode) {
    const FakturaTisk data = ukazkovaFaktura();
    FakturaPlatcePrint platce(nullptr, data);
    ASSERT_TRUE(platce.writePdf(path("platce.pdf"), "Faktura"));
    keepForPeople(path("platce.pdf"), "faktura_platce");
    const wxString text = pdfText(path("platce.pdf"));
    for (const char* expected : {"Faktura - daňový doklad č. FV-00001", "Dodavatel", "Odběratel s.r.o.", "Položka č.3",
                                 "Rekapitulace DPH", "19-2000145399/0800", "CZ6508000000192000145399", "0308",
                                 "Celkem k úhradě", "1 694,00", "QR Platba"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    EXPECT_EQ(decodeQr(path("platce.pdf"), m_dir), data.qrtext);

    wxString shots;
    const wxString png = wxGetEnv("EVIDA_SCREENSHOTS", &shots) ? shots + "/preview_faktura.png" : wxString();
    EXPECT_GT(previewDarkPixels(platce, png), 5000);

    // A non-payer's invoice has no VAT columns or recap; without a code nothing decodes.
    FakturaTisk neplatce = data;
    neplatce.faktura.setPlatce(false);
    neplatce.qrtext.clear();
    FakturaNeplatcePrint print(nullptr, neplatce);
    ASSERT_TRUE(print.writePdf(path("neplatce.pdf"), "Faktura"));
    const wxString text2 = pdfText(path("neplatce.pdf"));
    EXPECT_NE(text2.Find(u8("Faktura č. FV-00001")), wxNOT_FOUND);
    EXPECT_EQ(text2.Find(u8("Rekapitulace DPH")), wxNOT_FOUND);
    EXPECT_EQ(text2.Find(u8("QR Platba")), wxNOT_FOUND);
    EXPECT_EQ(decodeQr(path("neplatce.pdf"), m_dir), "");
}

TEST_F(FakturaPrint, TemplateFileIsFilledAndItsCodeScans) {
    Document doc = sablona();
    ImageElement qr;
    qr.path = ImageElement::PATH_QR;
    qr.pos = wxPoint(120, 90);
    qr.section = DOCSECTION_FOOTER3;
    doc.addElement(qr);
    ASSERT_TRUE(doc.saveToXml(path("sablona.xml")));

    const FakturaTisk data = ukazkovaFaktura();
    FakturaXmlPrint print(nullptr, data, path("sablona.xml"));
    ASSERT_TRUE(print.ok()) << print.error();
    EXPECT_EQ(print.printTitle(), "Faktura");
    ASSERT_TRUE(print.writePdf(path("sablona.pdf"), "Faktura"));
    keepForPeople(path("sablona.pdf"), "faktura_sablona");
    const wxString text = pdfText(path("sablona.pdf"));
    for (const char* expected : {"Faktura FV-00001", "Položka č.1", "Položka č.2", "21%", "QR Platba"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;
    EXPECT_EQ(text.Find("{"), wxNOT_FOUND);
    EXPECT_EQ(decodeQr(path("sablona.pdf"), m_dir), data.qrtext);

    FakturaXmlPrint chybi(nullptr, data, path("neni.xml"));
    EXPECT_FALSE(chybi.ok());
    EXPECT_FALSE(chybi.error().empty());
}
