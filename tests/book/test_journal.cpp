// The journal, cash and bank pages: the income/expense dialog storing through the model's
// form functions, its register switch and currency fields, and the pages' prints to PDF.
#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "DenikTisk.h"
#include "PrijemVydejDialog.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "denikform.h"
#include "navigation.h"
#include "printtest.h"

using ::testing::HasSubstr;

namespace {

void type(wxWindow* dialog, const char* name, const char* text) {
    field<wxTextCtrl>(dialog, name)->ChangeValue(u8(text));
}

std::string text(const wxString& pdf) { return PrintTest::pdfText(pdf).utf8_string(); }

}  // namespace

class Journal : public BookTest {
 protected:
    wxString choosePdf(const char* name) {
        const wxString pdf = m_home + "/" + name;
        m_prompts.answerChoice(1);  // "Uložit do PDF"
        m_prompts.answerPath(pdf);
        return pdf;
    }
    std::vector<int> allIds() {
        std::vector<int> ids;
        for (const auto& d : m_model->denik()) ids.push_back(d->id());
        return ids;
    }
};

TEST_F(Journal, AddingAdvancesTheSeriesAndEditingDoesNot) {
    PrijemVydejDialog add(m_frame, /*prijem=*/true, /*banka=*/false);
    EXPECT_EQ(add.GetTitle(), u8("Zadejte příjem"));
    const wxString cislo = field<wxTextCtrl>(&add, "cislo")->GetValue();
    EXPECT_EQ(cislo, navrhCislaDenik(*m_model, true, false));
    EXPECT_EQ(field<wxTextCtrl>(&add, "registr")->GetValue(), "POK1");
    type(&add, "popis", "Prodej zboží");
    type(&add, "predkontace", "P001");
    type(&add, "castka", "1 250,50");
    type(&add, "protistrana", "Nový odběratel");
    ASSERT_TRUE(add.save());
    EXPECT_EQ(m_prompts.transcript(), "");

    const Denik stored = m_model->getDenik(add.denikId());
    EXPECT_EQ(stored.cislo(), cislo);
    EXPECT_EQ(stored.popis(), u8("Prodej zboží"));
    EXPECT_DOUBLE_EQ(stored.castka(), 1250.5);
    EXPECT_EQ(stored.pokladnaid(), 1);
    EXPECT_EQ(stored.datum().Format("%Y-%m-%d"), "2024-06-01");  // the working date
    EXPECT_EQ(m_model->getKontakt(stored.protistranaid()).nazev(), u8("Nový odběratel"));
    const wxString next = navrhCislaDenik(*m_model, true, false);
    EXPECT_NE(next, cislo);

    PrijemVydejDialog edit(m_frame, true, false, DenikForm::EDIT, add.denikId());
    EXPECT_EQ(field<wxTextCtrl>(&edit, "popis")->GetValue(), u8("Prodej zboží"));
    EXPECT_EQ(field<wxTextCtrl>(&edit, "protistrana")->GetValue(), u8("Nový odběratel"));
    type(&edit, "castka", "99");
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(edit.denikId(), add.denikId());
    EXPECT_DOUBLE_EQ(m_model->getDenik(add.denikId()).castka(), 99);
    EXPECT_EQ(m_model->tableRows("denik"), 1);
    EXPECT_EQ(navrhCislaDenik(*m_model, true, false), next);
}

TEST_F(Journal, InvalidFieldsAreToldInOrderAndNothingIsStored) {
    struct Case {
        bool banka;
        const char* registr;
        const char* predkontace;
        const char* message;
    };
    const Case cases[] = {
        {false, "", "P001", "Pokladna nemůže být prázdná"},     {false, "XX", "P001", "Pokladna XX neexistuje"},
        {true, "", "P001", "Bankovní účet nemůže být prázdný"}, {true, "BU9", "", "Bankovní účet BU9 neexistuje"},
        {false, "POK1", "", "Předkontace nemůže být prázdná"},  {true, "BU1", "Q9", "Předkontace Q9 neexistuje"},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        PrijemVydejDialog dialog(m_frame, true, c.banka);
        type(&dialog, "registr", c.registr);
        type(&dialog, "predkontace", c.predkontace);
        type(&dialog, "castka", "100");
        EXPECT_FALSE(dialog.save()) << c.message;
        ASSERT_EQ(m_prompts.shown().size(), 1u) << c.message;
        EXPECT_EQ(m_prompts.shown()[0].text, u8(c.message));
        EXPECT_EQ(m_prompts.shown()[0].caption, "Informace");
    }
    EXPECT_EQ(m_model->tableRows("denik"), 0);
}

TEST_F(Journal, SwitchToBankProposesItsSeriesAndTheLastStatement) {
    denik("P001", 100, "2024-03-01", "Příjem na účet", /*banka=*/true);  // statement 7 of BU1
    PrijemVydejDialog dialog(m_frame, /*prijem=*/false, /*banka=*/false);
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "cislo")->GetValue(), navrhCislaDenik(*m_model, false, false));
    EXPECT_FALSE(field<wxSpinCtrl>(&dialog, "vypis")->IsShown());

    choose(field<wxChoice>(&dialog, "typ"), 1);
    EXPECT_TRUE(dialog.isBanka());
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "cislo")->GetValue(), navrhCislaDenik(*m_model, false, true));
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "registr")->GetValue(), "BU1");
    EXPECT_TRUE(field<wxSpinCtrl>(&dialog, "vypis")->IsShown());
    EXPECT_EQ(field<wxSpinCtrl>(&dialog, "vypis")->GetValue(), 7);

    type(&dialog, "predkontace", "V001");
    type(&dialog, "castka", "40");
    const wxString bv = navrhCislaDenik(*m_model, false, true);
    const wxString pv = navrhCislaDenik(*m_model, false, false);
    ASSERT_TRUE(dialog.save());
    const Denik stored = m_model->getDenik(dialog.denikId());
    EXPECT_EQ(stored.bankaid(), 1);
    EXPECT_EQ(stored.vypis(), 7);
    EXPECT_EQ(stored.cislo(), bv);
    // Only the bank expense series moved on.
    EXPECT_NE(navrhCislaDenik(*m_model, false, true), bv);
    EXPECT_EQ(navrhCislaDenik(*m_model, false, false), pv);
}

TEST_F(Journal, ForeignCurrencyShowsTheRateAndComputesTheHomeAmount) {
    PrijemVydejDialog dialog(m_frame, true, false);
    auto* kurz = field<wxTextCtrl>(&dialog, "kurz");
    EXPECT_FALSE(kurz->IsShown());
    auto* mena = field<wxChoice>(&dialog, "mena");
    int eur = -1;
    for (unsigned i = 0; i < mena->GetCount(); ++i)
        if (mena->GetString(i).StartsWith("EUR")) eur = static_cast<int>(i);
    ASSERT_GE(eur, 0);
    choose(mena, eur);
    EXPECT_TRUE(kurz->IsShown());

    kurz->SetValue("25");  // SetValue sends the change as typing does
    field<wxTextCtrl>(&dialog, "castkacizi")->SetValue("10");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "castka")->GetValue(), "250,00");
    field<wxTextCtrl>(&dialog, "castka")->SetValue("100");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "castkacizi")->GetValue(), "4,00");
    const DenikForm form = dialog.readForm();
    EXPECT_NE(form.menaid, 1);
    EXPECT_DOUBLE_EQ(form.kurz, 25);
}

TEST_F(Journal, CashBookPrintsTheRunningBalanceToPdf) {
    denik("P001", 1000, "2024-03-01", "Prodej zboží");
    denik("V001", 300, "2024-03-05", "Nákup materiálu");
    denik("P001", 5000, "2024-03-06", "Na účet", /*banka=*/true);
    DenikTisk tisk(m_frame, NAV_POKLADNA, allIds(), -1);
    const wxString pdf = choosePdf("pokladna.pdf");
    ASSERT_EQ(tisk.run(DenikTisk::KNIHA), pdf);
    const std::string all = text(pdf);
    for (const char* expected :
         {"Pokladní kniha POK1 2024", "Prodej zboží", "Nákup materiálu", "1 000,00", "700,00", "Konečný stav"})
        EXPECT_THAT(all, HasSubstr(expected));
    EXPECT_THAT(all, ::testing::Not(HasSubstr("Na účet")));  // the bank's entry is not in the cash book

    DenikTisk banka(m_frame, NAV_BANKA, allIds(), -1);
    const wxString bankPdf = choosePdf("banka.pdf");
    ASSERT_EQ(banka.run(DenikTisk::KNIHA), bankPdf);
    EXPECT_THAT(text(bankPdf), HasSubstr("Na účet"));
    EXPECT_THAT(text(bankPdf), HasSubstr("5 000,00"));
}

TEST_F(Journal, ReceiptOfTheSelectedEntryFitsItsRegister) {
    const int hotove = denik("V001", 321.5, "2024-03-01", "Kancelářský papír");
    const int banka = denik("P001", 800, "2024-03-02", "Úhrada od Alfa", /*banka=*/true);

    const wxString cash = choosePdf("doklad.pdf");
    ASSERT_EQ(DenikTisk(m_frame, NAV_DENIK, allIds(), hotove).run(DenikTisk::DOKLAD), cash);
    EXPECT_EQ(PrintTest::pdfPages(cash), 1);
    EXPECT_THAT(text(cash), HasSubstr(wxString::Format(u8("Výdajový pokladní doklad D%03d"), hotove).utf8_string()));
    EXPECT_THAT(text(cash), HasSubstr("321,50 CZK"));

    const wxString bank = choosePdf("vypis.pdf");
    ASSERT_EQ(DenikTisk(m_frame, NAV_DENIK, allIds(), banka).run(DenikTisk::DOKLAD), bank);
    EXPECT_THAT(text(bank), HasSubstr("Bankovní doklad - příjem"));
    EXPECT_THAT(text(bank), HasSubstr("800,00 CZK"));

    m_prompts.clear();
    EXPECT_TRUE(DenikTisk(m_frame, NAV_DENIK, allIds(), -1).run(DenikTisk::DOKLAD).empty());
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "info");
}

TEST_F(Journal, PagePrintOffersTheJournalPrintsAndListsTheShownRows) {
    denik("P001", 1000, "2024-03-01", "Prodej zboží");
    denik("V001", 300, "2024-03-05", "Nákup materiálu");
    m_book->createPages();
    m_book->selectPage(NAV_DENIK);
    lxBookPage* page = m_book->page(NAV_DENIK);
    lxFilter filter;
    filter.text = u8("prodej");
    page->setFilter(filter);

    m_prompts.answerChoice(DenikTisk::SEZNAM);
    const wxString pdf = choosePdf("denik.pdf");
    page->print();
    EXPECT_EQ(m_prompts.shown()[0].kind, "choice");
    ASSERT_TRUE(wxFileExists(pdf));
    const std::string all = text(pdf);
    EXPECT_THAT(all, HasSubstr(u8("Peněžní deník 2024").utf8_string()));
    EXPECT_THAT(all, HasSubstr(u8("Prodej zboží").utf8_string()));
    EXPECT_THAT(all, ::testing::Not(HasSubstr(u8("Nákup materiálu").utf8_string())));
    EXPECT_THAT(all, HasSubstr("Celkem"));
}

TEST_F(Journal, FilterOffersTheRegistersAndPrePostingsOfTheCompany) {
    denik("P001", 1000, "2024-03-01", "Prodej hotově");
    denik("V001", 300, "2024-03-05", "Materiál hotově");
    denik("P001", 700, "2024-03-06", "Prodej na účet", /*banka=*/true);
    m_book->createPages();
    m_book->selectPage(NAV_DENIK);
    lxBookPage* page = m_book->page(NAV_DENIK);
    const wxArrayString choices = page->rows().filterChoices();
    auto choice = [&](const char* caption) {
        for (size_t i = 0; i < choices.size(); ++i)
            if (choices[i].StartsWith(u8(caption))) return static_cast<int>(i) + 1;
        ADD_FAILURE() << caption;
        return 0;
    };
    auto shown = [&](const char* caption) {
        lxFilter filter;
        filter.choice = choice(caption);
        page->setFilter(filter);
        wxArrayString popisy;
        for (size_t r = 0; r < page->rows().rowCount(); ++r) popisy.Add(page->rows().text(r, 2));
        popisy.Sort();
        return wxJoin(popisy, '|');
    };
    EXPECT_EQ(shown("Bankovní účet BU1"), u8("Prodej na účet"));
    EXPECT_EQ(shown("Pokladna POK1"), u8("Materiál hotově|Prodej hotově"));
    EXPECT_EQ(shown("Předkontace P001"), u8("Prodej hotově|Prodej na účet"));
    EXPECT_THAT(page->footerText().utf8_string(), HasSubstr("Příjmy: 1\u00A0700,00 Kč"));

    // A register added later is offered after the next reload.
    ASSERT_TRUE(m_model->addPokladna(Pokladna(m_model->getLastId("pokladna"), "POK2", u8("Druhá"), 1)));
    page->refresh();
    EXPECT_TRUE(page->rows().filterChoices().Index(u8("Pokladna POK2")) != wxNOT_FOUND);
}
