// List rows of the book pages and the summaries of the home page, on the year 2024.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lxsettings.h"
#include "testcompany.h"

using ::testing::ElementsAre;

namespace {

wxDateTime iso(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

template <class R>
std::vector<int> idsOf(const std::vector<std::unique_ptr<R>>& rows) {
    std::vector<int> ids;
    for (const auto& r : rows) ids.push_back(r->id());
    return ids;
}

}  // namespace

class BookViews : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->setCurrentRok(2024));
        ASSERT_TRUE(m_model->addObdobi(Obdobi(2023, false)));
        lxSettings::instance()->setDatum(iso("2024-06-01"));
    }
    // A journal entry of the cash register or (with a negative register) of bank account 1.
    int entry(const char* zkratka, double castka, const char* datum = "2024-03-01", int pokladna = 1, int rok = 2024) {
        const int id = m_model->getLastId("denik");
        const int predkontace = m_model->getPredkontaceIdByZkratka(zkratka);
        EXPECT_TRUE(
            m_model->addDenik(Denik(id, iso(datum), wxString::Format("D%d", id), "", castka, 0, 1, "", 0, 1,
                                    predkontace, pokladna, pokladna < 0 ? 1 : -1, pokladna < 0 ? id : 0, 0, rok)));
        return id;
    }
    int faktura(bool vydana, double celkem, double kurz, const char* splatnost, int rok = 2024, int kontakt = 0) {
        const int id = m_model->getLastId("faktura");
        EXPECT_TRUE(m_model->addFaktura(Faktura(id, kontakt, "", celkem, wxString::Format("F%02d", 20 - id), "", "", "",
                                                1, 1, 1, -1, 1, 1, rok, vydana, false, iso("2024-01-10"), wxDateTime(),
                                                wxDateTime(), iso(splatnost), -1, kurz, 0)));
        return id;
    }
    int zavpoh(bool zavazek, double celkem, double kurz, const char* splatnost) {
        const int id = m_model->getLastId("zavpoh");
        EXPECT_TRUE(m_model->addZavPoh(ZavPoh(id, 0, "", celkem, wxString::Format("Z%d", id), "", 1, 1, -1, 1, 1, 2024,
                                              zavazek, false, iso("2024-01-10"), wxDateTime(), wxDateTime(),
                                              iso(splatnost), -1, kurz, 0)));
        return id;
    }
    void pay(int faktura, int zavpoh, double castka) {
        const int denik = entry("P002", castka);
        EXPECT_TRUE(m_model->addUhrada(Uhrada(m_model->getLastId("uhrada"), castka, denik, faktura, zavpoh, 2024)));
    }
};

TEST_F(BookViews, JournalListsBankEntriesThenCashEntriesByDate) {
    const int cashLate = entry("P001", 100, "2024-01-10");
    const int bankLate = entry("V001", 50, "2024-02-01", -1);
    const int cashEarly = entry("V001", 30, "2024-01-05");
    const int bankEarly = entry("P001", 70, "2024-01-20", -1);
    entry("P001", 1000, "2023-12-31", 1, 2023);

    const lxDenikViewArray rows = m_model->denikview();
    EXPECT_THAT(idsOf(rows), ElementsAre(bankEarly, bankLate, cashEarly, cashLate));
    EXPECT_EQ(rows[0]->zkratka(), "BU1");
    EXPECT_TRUE(rows[0]->prijem());
    EXPECT_EQ(rows[1]->vypis(), bankLate);
    EXPECT_EQ(rows[2]->zkratka(), "POK1");
    EXPECT_FALSE(rows[2]->prijem());
    EXPECT_EQ(rows[3]->datum(), iso("2024-01-10"));
    EXPECT_DOUBLE_EQ(rows[3]->castka(), 100);
    EXPECT_THAT(idsOf(m_model->denikviewBanka()), ElementsAre(bankEarly, bankLate));
    EXPECT_THAT(idsOf(m_model->denikviewPokladna()), ElementsAre(cashEarly, cashLate));
}

TEST_F(BookViews, EntryOfARegisterDeletedInTheTableLeavesTheJournalList) {
    ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "POK2", "", 1)));
    const int kept = entry("P001", 10);
    entry("P001", 20, "2024-03-01", 2);
    m_model->db().EnableForeignKeySupport(false);
    m_model->db().ExecuteUpdate("DELETE FROM pokladna WHERE id=2");
    m_model->db().EnableForeignKeySupport(true);

    EXPECT_THAT(idsOf(m_model->denikview()), ElementsAre(kept));
    EXPECT_THAT(idsOf(m_model->denikviewPokladna()), ElementsAre(kept));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE obdobirok=2024"), 2);
}

TEST_F(BookViews, DocumentListsShowCounterpartyAndPaidAmount) {
    ASSERT_TRUE(m_model->addKontakt(Kontakt(2, "O'Brien", "", "", "", "", false, 1)));
    const int partlyPaid = faktura(true, 1210, 1, "2024-02-10", 2024, 2);
    const int unpaid = faktura(true, 500, 1, "2024-02-10");
    const int received = faktura(false, 300, 1, "2024-02-10");
    faktura(true, 800, 1, "2023-02-10", 2023);
    pay(partlyPaid, -1, 600);
    pay(partlyPaid, -1, 5);
    pay(received, -1, 300);

    const lxFakturaViewArray vydane = m_model->vystaveneview();
    EXPECT_THAT(idsOf(vydane), ElementsAre(unpaid, partlyPaid));  // by number: F18, F19
    EXPECT_EQ(vydane[1]->protistrana(), "O'Brien");
    EXPECT_EQ(vydane[0]->protistrana(), "");
    EXPECT_DOUBLE_EQ(vydane[1]->uhrazeno(), 605);
    EXPECT_DOUBLE_EQ(vydane[0]->uhrazeno(), 0);
    EXPECT_EQ(vydane[1]->splatnost(), iso("2024-02-10"));
    EXPECT_EQ(vydane[1]->typid(), 1);
    const lxFakturaViewArray prijate = m_model->prijateview();
    ASSERT_THAT(idsOf(prijate), ElementsAre(received));
    EXPECT_DOUBLE_EQ(prijate[0]->uhrazeno(), 300);

    const int pohledavka = zavpoh(false, 100, 1, "2024-02-10");
    const int zavazek = zavpoh(true, 200, 1, "2024-02-10");
    pay(-1, zavazek, 50);
    EXPECT_THAT(idsOf(m_model->pohledavkyview()), ElementsAre(pohledavka));
    const lxZavPohViewArray zavazky = m_model->zavazkyview();
    ASSERT_THAT(idsOf(zavazky), ElementsAre(zavazek));
    EXPECT_DOUBLE_EQ(zavazky[0]->uhrazeno(), 50);
}

TEST_F(BookViews, OtherBooksListTheirRowsWithJoinedNames) {
    ASSERT_TRUE(m_model->addKontakt(Kontakt(2, "Firma \"Alfa\"", "", "1", "", "", false, 1)));
    m_model->db().ExecuteUpdate("UPDATE adresa SET misto='Brno' WHERE id=1");
    const lxKontaktViewArray kontakty = m_model->kontaktyview();
    ASSERT_THAT(idsOf(kontakty), ElementsAre(2));
    EXPECT_EQ(kontakty[0]->misto(), "Brno");

    ASSERT_TRUE(
        m_model->addMajetek(Majetek(1, "MA1", "Stroj", "", iso("2023-05-01"), false, wxDateTime(), 90000, 0, 0, 2)));
    ASSERT_TRUE(m_model->addMajetek(Majetek(2, "MA2", "Auto", "", iso("2025-05-01"), false, wxDateTime(), 1, 0, 0, 2)));
    for (int rok : {2023, 2024, 2025}) ASSERT_TRUE(m_model->addOdpis(Odpis(rok, rok, 1000, 1)));
    const lxMajetekViewArray majetek = m_model->majetekview();
    ASSERT_THAT(idsOf(majetek), ElementsAre(1));  // acquired after 2024: not yet in the book
    EXPECT_DOUBLE_EQ(majetek[0]->odepsano(), 2000);
    EXPECT_EQ(majetek[0]->skupina(), u8("2. - Motorová vozidla, stroje ..."));

    ASSERT_TRUE(m_model->addRidic(Ridic(1, "Jan")));
    ASSERT_TRUE(m_model->addVozidlo(Vozidlo(1, "1A2 3456", "Octavia", 1, 6.5, true, 3)));
    for (const char* start : {"2024-04-01 08:00:00", "2023-04-01 08:00:00"}) {
        wxDateTime t;
        t.ParseISOCombined(start, ' ');
        ASSERT_TRUE(m_model->addJizda(Jizda(m_model->getLastId("jizda"), t, t, 1200, 1350, "Brno", "Servis", 1, 1)));
    }
    const lxJizdaViewArray jizdy = m_model->jizdyview();
    ASSERT_THAT(idsOf(jizdy), ElementsAre(1));
    EXPECT_EQ(jizdy[0]->km(), 150);
    EXPECT_EQ(jizdy[0]->vozidlo() + "/" + jizdy[0]->ridic(), "1A2 3456/Jan");
    EXPECT_TRUE(jizdy[0]->soukrome());
}

TEST_F(BookViews, IncomeAndExpenseFollowTheColumnOfThePrePosting) {
    // A pre-posting marked as expense that books into the income column 32.
    ASSERT_TRUE(m_model->addPredkontace(Predkontace(24, "X32", "", false, 32)));
    entry("P001", 100);
    entry("P101", 40, "2024-03-01", -1);
    entry("P201", 7);  // column 32 "Průběžné položky - výdaj" is an income column
    entry("X32", 3);
    entry("V001", 30);
    entry("V101", 20);
    entry("V201", 5);  // column 31 "Průběžné položky - příjem" is an expense column
    entry("P001", 1000, "2023-06-01", 1, 2023);

    EXPECT_EQ(m_model->homepagePrijmy(), u8("<b>Příjmy:</b><br>Daňové: 100,00 Kč<br>Celkem: 150,00 Kč<br><br>"));
    EXPECT_EQ(m_model->homepageVydaje(), u8("<b>Výdaje:</b><br>Daňové: 30,00 Kč<br>Celkem: 55,00 Kč<br><br>"));
}

TEST_F(BookViews, UnpaidDocumentsAreCountedInHomeCurrency) {
    EXPECT_EQ(m_model->homepagePrijate(),
              u8("<b>Přijaté faktury:</b><br>Neuhrazené: 0<br>Celkem: 0,00 Kč<br>Po splatnosti: 0<br><br>"));

    pay(faktura(true, 1210, 0, "2024-05-01"), -1, 605);   // half paid, overdue
    pay(faktura(true, 1000, 1, "2024-05-01"), -1, 1000);  // paid
    faktura(true, 100, 25, "2024-06-01");                 // 100 EUR due on the working date itself
    pay(faktura(true, 50, 1, "2024-05-31"), -1, 49.999);  // short by 0.001, overdue
    const int rounding = faktura(true, 0.8, 1, "2024-01-01");
    pay(rounding, -1, 0.7);
    pay(rounding, -1, 0.1);  // 0.7 + 0.1 falls a hair short of 0.8: the exact rule keeps it open
    faktura(true, 999, 1, "2023-05-01", 2023);  // another year
    faktura(false, 400, 1, "2024-07-01");
    zavpoh(false, 300, 0, "2024-01-01");
    zavpoh(true, 250, 2, "");

    EXPECT_EQ(m_model->homepageVydane(),
              u8("<b>Vydané faktury:</b><br>Neuhrazené: 4<br>Celkem: 3\u00A0760,80 Kč<br>Po splatnosti: 3<br><br>"));
    EXPECT_EQ(m_model->homepagePrijate(),
              u8("<b>Přijaté faktury:</b><br>Neuhrazené: 1<br>Celkem: 400,00 Kč<br>Po splatnosti: 0<br><br>"));
    EXPECT_EQ(m_model->homepagePohledavky(),
              u8("<b>Pohledávky:</b><br>Neuhrazené: 1<br>Celkem: 300,00 Kč<br>Po splatnosti: 1<br><br>"));
    EXPECT_EQ(m_model->homepageZavazky(),
              u8("<b>Závazky:</b><br>Neuhrazené: 1<br>Celkem: 500,00 Kč<br>Po splatnosti: 0<br><br>"));
}
