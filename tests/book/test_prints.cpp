// The print commands of the program: the address book and the home page, each to a PDF
// chosen through the prompts, read back with poppler.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KontaktyDialog.h"
#include "book/homepage.h"
#include "book/lxbook.h"
#include "booktest.h"
#include "lxformat.h"
#include "printtest.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

class ProgramPrints : public BookTest {
 protected:
    // Answers "Uložit do PDF" and the file name.
    wxString choosePdf(const char* name) {
        const wxString pdf = m_home + "/" + name;
        m_prompts.answerChoice(1);
        m_prompts.answerPath(pdf);
        return pdf;
    }
    static std::string text(const wxString& pdf, int page = 0) { return PrintTest::pdfText(pdf, page).utf8_string(); }
};

TEST_F(ProgramPrints, AddressBookPrintsEveryContactToTheChosenPdf) {
    kontakt("Žluťoučký kůň s.r.o.", "České Budějovice");
    kontakt("O'Brien & syn", "Brno");
    KontaktyDialog adresar(m_frame);
    const wxString pdf = choosePdf("adresar.pdf");
    EXPECT_EQ(adresar.printKontakty(), pdf);
    EXPECT_THAT(std::vector<wxString>(m_prompts.lastChoices.begin(), m_prompts.lastChoices.end()),
                ElementsAre(u8("Náhled"), u8("Uložit do PDF")));
    ASSERT_EQ(PrintTest::pdfPages(pdf), 1);
    const std::string all = text(pdf);
    for (const char* expected : {"Seznam kontaktů", "Žluťoučký kůň s.r.o.", "České Budějovice", "O'Brien & syn"})
        EXPECT_THAT(all, HasSubstr(expected));
    EXPECT_EQ(PrintTest::pdfInfo(pdf)["Title"], u8("Seznam kontaktů"));
}

TEST_F(ProgramPrints, CancelledChoiceOrFileWritesNothing) {
    kontakt("Alfa");
    KontaktyDialog adresar(m_frame);
    EXPECT_TRUE(adresar.printKontakty().empty());  // no answer: the choice is cancelled
    m_prompts.answerChoice(1);                     // PDF, but no file chosen
    EXPECT_TRUE(adresar.printKontakty().empty());
    EXPECT_EQ(m_prompts.shown().back().kind, "file");
    EXPECT_FALSE(wxFileExists(m_home + "/adresar.pdf"));
}

TEST_F(ProgramPrints, OverviewShowsTheCompanyAndTheSummariesOfTheYear) {
    denik("P001", 1000, "2024-03-01", "Prodej");
    denik("V101", 400, "2024-03-02", "Auto");
    faktura(true, 250, "2024-05-01");
    Firma firma = m_model->firma();
    firma.setNazev(u8("Šťastná & <Veselá> s.r.o."));
    firma.setIc("27074358");
    ASSERT_TRUE(m_model->setFirma(firma));
    m_book->createPages();

    const wxString pdf = choosePdf("prehled.pdf");
    EXPECT_EQ(m_book->homePage()->printPrehled(), pdf);
    ASSERT_EQ(PrintTest::pdfPages(pdf), 1);
    const std::string all = text(pdf);
    for (const char* expected : {"Přehled firmy", "Šťastná & <Veselá> s.r.o.", "IČ: 27074358", "účetní období 2024",
                                 "Příjmy:", "Daňové: 1 000,00 Kč", "Výdaje:", "Celkem: 400,00 Kč",
                                 "Vydané faktury:", "Neuhrazené: 1", "Přijaté faktury:", "Pohledávky:", "Závazky:"})
        EXPECT_THAT(all, HasSubstr(expected));
    EXPECT_THAT(all, Not(HasSubstr("<b>")));
    EXPECT_THAT(all, Not(HasSubstr("<br>")));
}

TEST_F(ProgramPrints, BalancesPrintRegistersThenAccountsEachOnItsOwnPage) {
    denik("P001", 1500, "2024-03-01", "Prodej");
    denik("V101", 250.5, "2024-03-02", "Auto");
    denik("P001", 8000, "2024-03-03", "Faktura", /*banka=*/true);
    m_book->createPages();

    const std::vector<DbModel::StavUctu> stavy = m_model->stavyUctu();
    ASSERT_GE(stavy.size(), 2u);
    const wxString pdf = choosePdf("stav.pdf");
    EXPECT_EQ(m_book->homePage()->printStavUctu(), pdf);
    ASSERT_EQ(PrintTest::pdfPages(pdf), 2);
    const std::string pokladny = text(pdf, 1), banky = text(pdf, 2);
    EXPECT_THAT(pokladny, HasSubstr("Pokladny"));
    EXPECT_THAT(banky, HasSubstr("Bankovní účty"));
    for (const DbModel::StavUctu& s : stavy) {
        const std::string& page = s.banka ? banky : pokladny;
        EXPECT_THAT(page, HasSubstr(s.zkratka.utf8_string()));
        // pdftotext reads the no-break space between thousands as a plain one.
        wxString castka = lxformat::formatCastka(s.stav);
        castka.Replace(wxString(wxUniChar(0x00A0)), " ");
        EXPECT_THAT(page, HasSubstr(castka.utf8_string()));
    }
    // The balances are those of the journal, not zero.
    EXPECT_THAT(pokladny, HasSubstr("1 249,50"));
    EXPECT_THAT(banky, HasSubstr("8 000,00"));
}
