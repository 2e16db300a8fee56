// The book: its pages by navigation code, refreshing after model changes, the actions a page
// offers, the state shown for invoices, and the home page.
#include <gmock/gmock.h>

#include "book/bookpages.h"
#include "book/homepage.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST_F(BookTest, BookHasAPagePerLeafAndTheVehicleLogOnlyWhenAsked) {
    m_book->createPages();
    EXPECT_EQ(m_book->currentNavigation(), NAV_HOME);
    EXPECT_NE(m_book->homePage(), nullptr);
    for (int nav : bookpages::navigations()) {
        if (nav == NAV_JIZDY) continue;
        ASSERT_NE(m_book->page(nav), nullptr) << nav;
        EXPECT_EQ(m_book->page(nav)->title(), bookpages::title(nav));
    }
    EXPECT_EQ(m_book->page(NAV_DENIK)->title(), u8("Pěněžní deník"));
    EXPECT_EQ(m_book->page(NAV_JIZDY), nullptr);

    m_book->setJizdyVisible(true);
    ASSERT_NE(m_book->page(NAV_JIZDY), nullptr);
    m_book->selectPage(NAV_JIZDY);
    EXPECT_EQ(m_book->currentNavigation(), NAV_JIZDY);
    m_book->setJizdyVisible(false);
    EXPECT_EQ(m_book->page(NAV_JIZDY), nullptr);
    EXPECT_EQ(m_book->currentNavigation(), NAV_HOME);
    // A rebuilt book follows the last choice.
    m_book->setJizdyVisible(true);
    m_book->createPages();
    EXPECT_NE(m_book->page(NAV_JIZDY), nullptr);
}

TEST_F(BookTest, ChangeReloadsTheShownPageAtOnceAndTheOthersWhenShown) {
    m_book->createPages();
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    m_book->selectPage(NAV_POKLADNA);
    denik("P001", 100, "2024-03-01", "Prodej");

    // A cash entry is named as a journal change; the cash page on screen follows at once.
    EXPECT_EQ(m_book->page(NAV_POKLADNA)->list()->GetItemCount(), 1);
    lxBookPage* journal = m_book->page(NAV_DENIK);
    EXPECT_TRUE(journal->isStale());
    EXPECT_EQ(journal->list()->GetItemCount(), 0);
    EXPECT_FALSE(m_book->page(NAV_FAKTURY_VYDANE)->isStale());
    m_book->selectPage(NAV_DENIK);
    EXPECT_EQ(journal->list()->GetItemCount(), 1);
    EXPECT_FALSE(journal->isStale());
}

TEST_F(BookTest, RowActionsNeedASelectedRow) {
    faktura(true, 100, "2024-02-01");
    m_book->createPages();
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    lxBookPage* faktury = m_book->page(NAV_FAKTURY_VYDANE);
    faktury->list()->selectId(1);
    ASSERT_EQ(faktury->list()->selectedId(), 1);
    for (lxBookAction a : {BOOK_ADD, BOOK_EDIT, BOOK_COPY, BOOK_DELETE}) EXPECT_TRUE(faktury->canRun(a)) << a;

    // Without a selected row only adding can run; the row commands stay disabled.
    lxBookPage* majetek = m_book->page(NAV_MAJETEK);
    ASSERT_EQ(majetek->list()->selectedId(), -1);
    EXPECT_TRUE(majetek->canRun(BOOK_ADD));
    for (lxBookAction a : {BOOK_EDIT, BOOK_COPY, BOOK_DELETE}) {
        EXPECT_FALSE(majetek->canRun(a)) << a;
        EXPECT_FALSE(majetek->run(a)) << a;
    }
}

TEST_F(BookTest, DeletingAJournalEntryAsksFirst) {
    denik("P001", 100, "2024-03-01", "Prodej");
    m_book->createPages();
    m_book->selectPage(NAV_DENIK);
    lxBookPage* page = m_book->page(NAV_DENIK);
    page->list()->selectId(1);

    m_prompts.answerQuestion(false);
    EXPECT_TRUE(page->run(BOOK_DELETE));
    EXPECT_EQ(m_prompts.transcript(), u8("Opravdu smazat záznam\nD001\nProdej?\n"));
    EXPECT_EQ(m_prompts.shown().back().caption, "Dotaz");
    EXPECT_EQ(page->list()->GetItemCount(), 1);

    m_prompts.answerQuestion(true);
    EXPECT_TRUE(page->run(BOOK_DELETE));
    EXPECT_FALSE(m_model->hasDenik(1));
    EXPECT_EQ(page->list()->GetItemCount(), 0);
    EXPECT_EQ(page->footerText(), u8("Žádné záznamy"));
}

// Deleting the entry that paid an invoice makes the invoice unpaid: every page that shows
// payments hears of it, not only the journal.
TEST_F(BookTest, DeletingAPaymentRefreshesThePagesOfThePaidDocument) {
    const int invoice = faktura(true, 300, "2024-07-01");
    const int payment = denik("P002", 300, "2024-04-01", "Platba");
    const int plain = denik("P001", 10, "2024-04-02", "Prodej");
    ASSERT_TRUE(m_model->addUhrada(Uhrada(m_model->getLastId("uhrada"), 300, payment, invoice, -1, 2024)));
    std::vector<int> notices;
    m_frame->Bind(MODEL_UPDATED, [&notices](wxCommandEvent& e) {
        notices.push_back(e.GetInt());
        e.Skip();
    });
    m_book->createPages();
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    EXPECT_EQ(m_book->page(NAV_FAKTURY_VYDANE)->list()->GetItemText(0, 9), "Uhrazeno");

    m_book->selectPage(NAV_DENIK);
    lxBookPage* journal = m_book->page(NAV_DENIK);
    journal->list()->selectId(plain);
    m_prompts.answerQuestion(true);
    ASSERT_TRUE(journal->run(BOOK_DELETE));
    EXPECT_EQ(notices, std::vector<int>{NAV_DENIK}) << "an entry that pays nothing concerns the journal only";
    EXPECT_FALSE(m_book->page(NAV_FAKTURY_VYDANE)->isStale());

    journal->list()->selectId(payment);
    m_prompts.answerQuestion(true);
    ASSERT_TRUE(journal->run(BOOK_DELETE));
    EXPECT_EQ(notices, (std::vector<int>{NAV_DENIK, NAV_ALL}));
    EXPECT_FALSE(m_model->hasDenik(payment));
    for (int nav : {NAV_FAKTURY_VYDANE, NAV_FAKTURY_PRIJATE, NAV_POHLEDAVKY, NAV_ZAVAZKY})
        EXPECT_TRUE(m_book->page(nav)->isStale()) << nav;
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    EXPECT_EQ(m_book->page(NAV_FAKTURY_VYDANE)->list()->GetItemText(0, 9), "Neuhrazeno");
}

TEST_F(BookTest, InvoicePageShowsCounterpartyAndPaymentState) {
    const int alfa = kontakt("Alfa");
    faktura(true, 100, "2024-07-01", alfa);  // not due yet on 1 June
    faktura(true, 200, "2024-05-01");        // overdue
    const int paid = faktura(true, 300, "2024-05-01");
    const int entry = denik("P002", 300, "2024-04-01", "Platba");
    ASSERT_TRUE(m_model->addUhrada(Uhrada(m_model->getLastId("uhrada"), 300, entry, paid, -1, 2024)));
    faktura(false, 50, "2024-05-01");  // a received one belongs to the other page

    m_book->createPages();
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    lxBookPage* page = m_book->page(NAV_FAKTURY_VYDANE);
    const lxListCtrl* list = page->list();
    ASSERT_EQ(list->GetItemCount(), 3);
    EXPECT_EQ(list->GetItemText(0, 2), "Alfa");
    const wxArrayString stav = column(list, 9);
    EXPECT_THAT(std::vector<wxString>(stav.begin(), stav.end()),
                ElementsAre("Neuhrazeno", "Po splatnosti", "Uhrazeno"));
    EXPECT_EQ(page->footerText(), u8("Celkem: 600,00 Kč    Uhrazeno: 300,00 Kč    Neuhrazeno: 300,00 Kč    "
                                     "Po splatnosti: 200,00 Kč    Dokladů: 3"));
    lxFilter overdue;
    overdue.choice = 3;
    page->setFilter(overdue);
    EXPECT_EQ(list->GetItemCount(), 1);
}

TEST_F(BookTest, HomePageShowsCompanyPeriodAndTheSixSummaries) {
    denik("P001", 1000, "2024-03-01", "Prodej");
    denik("V101", 400, "2024-03-02", "Auto");
    faktura(true, 250, "2024-05-01");
    Firma firma = m_model->firma();
    firma.setNazev("Alfa & <Beta>");
    ASSERT_TRUE(m_model->setFirma(firma));
    m_book->createPages();

    const std::string text = m_book->homePage()->ToText().utf8_string();
    EXPECT_THAT(text, HasSubstr("Alfa & <Beta>"));
    EXPECT_THAT(text, HasSubstr("2024"));
    for (const char* part : {"Příjmy:", "Výdaje:", "Vydané faktury:", "Přijaté faktury:", "Pohledávky:", "Závazky:"})
        EXPECT_THAT(text, HasSubstr(part));
    // Amounts in the Czech form whatever the system locale (the tests run under C).
    EXPECT_THAT(text, HasSubstr("Daňové: 1 000,00 Kč"));  // the text view shows the no-break space as a space
    EXPECT_THAT(text, HasSubstr("Celkem: 400,00 Kč"));
    EXPECT_THAT(HomePage::html(m_model.get()).utf8_string(), HasSubstr("Celkem: 1\u00A0000,00 Kč<br>"));
    EXPECT_THAT(text, HasSubstr("Neuhrazené: 1"));

    // Every change refreshes the summaries.
    denik("P001", 500, "2024-03-03", "Prodej");
    EXPECT_THAT(m_book->homePage()->ToText().utf8_string(), HasSubstr("Daňové: 1 500,00 Kč"));
    EXPECT_THAT(HomePage::html(nullptr).utf8_string(), HasSubstr("Není otevřena žádná firma"));
}
