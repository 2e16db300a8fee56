// The invoice and receivable/liability pages: their footers in crowns over documents in
// several currencies, the text filter, and their prints read back from PDF.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "DokladTisk.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "knihadokladuprint.h"
#include "printtest.h"
#include "zavpohprint.h"

using ::testing::HasSubstr;
using ::testing::Not;

namespace {

// pdftotext and the list's footer differ only in the no-break space between thousands.
std::string plain(const wxString& text) {
    wxString t = text;
    t.Replace(wxString(wxUniChar(0x00A0)), " ");
    return t.utf8_string();
}

}  // namespace

class DokladyPages : public BookTest {
 protected:
    // An issued invoice in currency `menaid` at `kurz`, due on `splatnost`.
    int vydana(const char* cislo, double celkem, int menaid, double kurz, const char* splatnost, int kontakt = 0) {
        const int id = m_model->getLastId("faktura");
        EXPECT_TRUE(m_model->addFaktura(Faktura(id, kontakt, u8("Služby"), celkem, cislo, "", "", "", 1, 1, 1, -1,
                                                menaid, 1, 2024, true, false, iso("2024-01-10"), wxDateTime(),
                                                wxDateTime(), iso(splatnost), -1, kurz, 0)));
        return id;
    }
    void zaplatit(int faktura, double castka) {
        const int entry = denik("P002", castka, "2024-04-01", "Platba");
        ASSERT_TRUE(m_model->addUhrada(Uhrada(m_model->getLastId("uhrada"), castka, entry, faktura, -1, 2024)));
    }
    lxBookPage* vydane() {
        m_book->createPages();
        m_book->selectPage(NAV_FAKTURY_VYDANE);
        return m_book->page(NAV_FAKTURY_VYDANE);
    }
};

// Working date 1 June 2024: a paid invoice, a euro one paid in part and not yet due, an
// overdue one, and one in crowns stored without a rate.
TEST_F(DokladyPages, FooterSumsEveryCurrencyInCrownsAtItsRate) {
    zaplatit(vydana("FV1", 1000, 1, 1, "2024-05-01"), 1000);
    zaplatit(vydana("FV2", 100, 2, 25, "2024-07-01"), 40);
    vydana("FV3", 300, 1, 1, "2024-05-01");
    vydana("FV4", 500, 1, 0, "2024-12-01");
    lxBookPage* page = vydane();
    EXPECT_EQ(plain(page->footerText()),
              "Celkem: 4 300,00 Kč    Uhrazeno: 2 000,00 Kč    Neuhrazeno: 2 300,00 Kč    "
              "Po splatnosti: 300,00 Kč    Dokladů: 4");

    lxFilter overdue;
    overdue.choice = 3;
    page->setFilter(overdue);
    EXPECT_EQ(plain(page->footerText()),
              "Filtr: 1 z 4    Celkem: 300,00 Kč    Uhrazeno: 0,00 Kč    Neuhrazeno: 300,00 Kč    "
              "Po splatnosti: 300,00 Kč    Dokladů: 1");
}

TEST_F(DokladyPages, TextFilterIgnoresCaseAndAccents) {
    vydana("FV2024001", 100, 1, 1, "2024-07-01", kontakt("Jiří Čermák"));
    vydana("FV2024002", 200, 1, 1, "2024-07-01", kontakt("Alfa"));
    lxBookPage* page = vydane();
    struct Case {
        const char* text;
        int rows;
    };
    for (const Case& c :
         {Case{"cermak", 1}, Case{"ČERMÁK", 1}, Case{"fv2024002", 1}, Case{"sluzby", 2}, Case{"beta", 0}}) {
        lxFilter f;
        f.text = u8(c.text);
        page->setFilter(f);
        EXPECT_EQ(page->list()->GetItemCount(), c.rows) << c.text;
    }
}

// The book prints the shown rows only, in their order, with the totals in crowns.
TEST_F(DokladyPages, BookPrintListsTheShownDocumentsAndTheirTotal) {
    zaplatit(vydana("FV1", 1000, 1, 1, "2024-05-01"), 1000);
    vydana("FV2", 100, 2, 25, "2024-07-01", kontakt("Žluťoučký kůň"));
    vydana("FV3", 300, 1, 1, "2024-05-01");
    lxBookPage* page = vydane();
    lxFilter neuhrazene;
    neuhrazene.choice = 1;
    page->setFilter(neuhrazene);

    const wxString pdf = m_home + "/kniha.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(pdf);
    page->print();
    ASSERT_TRUE(wxFileExists(pdf));
    const std::string text = plain(PrintTest::pdfText(pdf));
    for (const char* expected : {"Kniha vydaných faktur 2024", "Odběratel", "FV2", "FV3", "Žluťoučký kůň", "EUR",
                                 "Po splatnosti", "Celkem", "2 800,00", "Dokladů: 2"})
        EXPECT_THAT(text, HasSubstr(expected));
    EXPECT_THAT(text, Not(HasSubstr("FV1")));
}

TEST_F(DokladyPages, ReceivableDocumentHasItsPartiesItemsVatAndTotal) {
    const int odberatel = kontakt("Jiří Čermák", "Brno");
    const int id = m_model->getLastId("zavpoh");
    ASSERT_TRUE(m_model->addZavPoh(ZavPoh(id, odberatel, u8("Nájem"), 1322, "PO0007", "7", 2, -1, 1, 1, 1, 2024, false,
                                          true, iso("2024-03-01"), iso("2024-03-01"), iso("2024-03-01"),
                                          iso("2024-03-15"), -1, 1, 0)));
    const int s21 = m_model->getDphSazbaId(21, 2024), s12 = m_model->getDphSazbaId(12, 2024);
    ASSERT_TRUE(m_model->addFaPolozka(FaPolozka(m_model->getLastId("fapolozka"), u8("Pronájem"), "ks", 1, 1000, s21,
                                                210, 1210, true, -1, id, -1, false)));
    ASSERT_TRUE(m_model->addFaPolozka(
        FaPolozka(m_model->getLastId("fapolozka"), u8("Úklid"), "h", 2, 50, s12, 12, 112, true, -1, id, -1, false)));

    const ZavpohDoklad d = zavpohDoklad(*m_model, id);
    EXPECT_EQ(d.cislo, "PO0007");
    ASSERT_EQ(d.souhrn.size(), 2u);
    EXPECT_EQ(d.souhrn[0].sazba, 21);  // highest rate first

    const wxString pdf = m_home + "/po.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(pdf);
    tiskZavpoh(m_frame, id);
    ASSERT_TRUE(wxFileExists(pdf));
    EXPECT_EQ(PrintTest::pdfPages(pdf), 1);
    const std::string text = plain(PrintTest::pdfText(pdf));
    for (const char* expected :
         {"Pohledávka PO0007", "Jiří Čermák", "Brno", "Pronájem", "Úklid", "Rekapitulace DPH", "1 000,00", "1 210,00",
          "100,00", "112,00", "Převodem", "15.03.2024", "Celkem k úhradě: 1 322,00 CZK"})
        EXPECT_THAT(text, HasSubstr(expected));

    // No document of that id: a message, no print.
    tiskZavpoh(m_frame, id + 100);
    EXPECT_EQ(m_prompts.shown().back().kind, "info");
}
