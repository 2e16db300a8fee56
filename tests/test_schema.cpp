// A fresh company database: its tables, seed rows and the rules of its foreign keys.
#include <gtest/gtest.h>

#include "schema.h"
#include "testcompany.h"

class FreshCompany : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
};

struct SeedCount {
    const char* table;
    int rows;
};

TEST_F(FreshCompany, EveryTableHasItsSeedRows) {
    // nahradakm: 36 statements, the four of 2025 collide with the ids of 2024 and are not stored;
    // cenaphm: 53 statements, five collide the same way.
    const SeedCount expected[] = {
        {"version", 1},        {"smtp", 1},          {"adresa", 2},         {"kontakt", 1},     {"firma", 1},
        {"obdobi", 1},         {"pokladna", 1},      {"banka", 1},          {"fatyp", 2},       {"fauhrada", 2},
        {"rada", 15},          {"deniksloupec", 23}, {"predkontace", 23},   {"odpiskupina", 6}, {"mena", 39},
        {"dphsazba", 54},      {"dphdruh", 119},     {"bankovniustav", 68}, {"kurz", 95},       {"druhvozidla", 4},
        {"phm", 5},            {"nahradakm", 32},    {"cenaphm", 48},       {"priznani", 0},    {"denik", 0},
        {"ridic", 0},          {"settings", 0},
    };
    for (const SeedCount& c : expected) EXPECT_EQ(m_model->tableRows(c.table), c.rows) << c.table;
    int count = 0;
    schema::checkOrder(&count);
    EXPECT_EQ(count, 42);
    EXPECT_EQ(scalar("SELECT count(*) FROM sqlite_master WHERE type='table' AND name NOT LIKE 'sqlite_%'"), 42);
}

TEST_F(FreshCompany, SeedListsCountTheirInserts) {
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_kurz), 95);
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_rada), 15);
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_mena), 39);
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_nahradakm), 36);
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_cenaphm), 53);
    EXPECT_EQ(DbModel::rowsForInsertToTable(sqlite_tb_denik), 0);
}

TEST_F(FreshCompany, StartsWithPlaceholderCompanyAndOneCurrentPeriod) {
    EXPECT_EQ(m_model->firma().nazev(), "ABC");
    EXPECT_EQ(m_model->firma().ic(), "0");
    EXPECT_EQ(m_model->firma().adresaid(), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM obdobi WHERE current=1"), 1);
    EXPECT_EQ(m_model->currentRok(), wxDateTime::Today().GetYear());
    EXPECT_EQ(text("SELECT verze FROM version"), "1.40.14");
    // Contact 0 with address 0 is the permanent "no counterparty".
    EXPECT_EQ(scalar("SELECT count(*) FROM kontakt WHERE id=0 AND adresaid=0 AND public=0"), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM adresa WHERE id=0 AND ulice IS NULL"), 1);
    EXPECT_EQ(text("SELECT zkratka || '/' || popis || '/' || menaid FROM pokladna WHERE id=1"),
              u8("POK1/Výchozí pokladna/1"));
    EXPECT_EQ(text("SELECT zkratka || '/' || menaid FROM banka WHERE id=1"), "BU1/1");
    EXPECT_EQ(text("SELECT kod FROM mena WHERE id=1"), "CZK");
    EXPECT_EQ(text("SELECT text FROM smtp"), u8("Dobrý den,\nv příloze Vám zasíláme fakturu"));
    EXPECT_EQ(scalar("SELECT port FROM smtp"), 25);
}

TEST_F(FreshCompany, PrePostingsPointAtExistingColumnsWithCrossedTransitItems) {
    EXPECT_EQ(scalar("SELECT count(*) FROM predkontace p JOIN deniksloupec d ON p.deniksloupecid=d.sloupec"), 23);
    // Every pre-posting stands on the side of its column; the two transit columns carry the
    // opposite word in their title.
    EXPECT_EQ(scalar("SELECT count(*) FROM predkontace p JOIN deniksloupec d ON p.deniksloupecid=d.sloupec "
                     "WHERE p.prijem<>d.prijem"),
              0);
    EXPECT_EQ(scalar("SELECT deniksloupecid FROM predkontace WHERE zkratka='P201'"), 32);
    EXPECT_EQ(scalar("SELECT deniksloupecid FROM predkontace WHERE zkratka='V201'"), 31);
    EXPECT_EQ(scalar("SELECT prijem FROM deniksloupec WHERE sloupec=31"), 0);
    EXPECT_EQ(scalar("SELECT prijem FROM deniksloupec WHERE sloupec=32"), 1);
    EXPECT_EQ(text("SELECT popis FROM predkontace WHERE zkratka='V006'"), u8("Sociální pojištění zaměstanci"));
}

TEST_F(FreshCompany, RatesAndCurrenciesHaveTheirYears) {
    struct Year {
        int rok;
        int zakladni;
        const char* snizene;
    };
    for (const Year& y : {Year{2005, 19, "5"}, Year{2008, 19, "9"}, Year{2010, 20, "10"}, Year{2012, 20, "14"},
                          Year{2013, 21, "15"}, Year{2015, 21, "10,15"}, Year{2023, 21, "10,15"},
                          Year{2024, 21, "12"}, Year{2026, 21, "12"}}) {
        EXPECT_EQ(scalar(wxString::Format("SELECT sazba FROM dphsazba WHERE rok=%d AND zakladni=1", y.rok)), y.zakladni);
        EXPECT_EQ(text(wxString::Format("SELECT group_concat(sazba) FROM (SELECT sazba FROM dphsazba WHERE rok=%d "
                                        "AND zakladni=0 ORDER BY id)",
                                        y.rok)),
                  y.snizene);
    }
    EXPECT_EQ(scalar("SELECT count(*) FROM dphsazba WHERE id=0 AND sazba=0 AND rok IS NULL"), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphsazba WHERE rok=2004 OR rok=2027"), 0);
    EXPECT_EQ(text("SELECT od || '/' || do FROM mena WHERE kod='BRL'"), "2008-01-01/2100-12-31");
    EXPECT_EQ(text("SELECT od || '/' || do FROM mena WHERE kod='SIT'"), "2005-01-01/2006-12-31");
    EXPECT_EQ(scalar("SELECT id FROM mena WHERE kod='GBP'"), 33);
    EXPECT_EQ(text("SELECT hodnota FROM kurz WHERE datum='2005-01-01' AND kod='EUR'"), "30.465");
    EXPECT_EQ(scalar("SELECT count(*) FROM kurz WHERE jednotny<>0"), 0);
    EXPECT_EQ(scalar("SELECT count(*) FROM kurz WHERE datum='2020-12-11'"), 33);
}

TEST_F(FreshCompany, VatClassificationsAsTheFormRowsGoIn) {
    EXPECT_EQ(text("SELECT zkratka FROM dphdruh WHERE id=1"), "R1,2");
    EXPECT_EQ(text("SELECT kh FROM dphdruh WHERE zkratka='R1,2'"), "A4,A5");
    EXPECT_EQ(text("SELECT popis FROM dphdruh WHERE zkratka='R7,8,42-K'"),
              u8("Dovoz zboží (§23 odst.3 - 5) - krácený odpočet"));
    EXPECT_EQ(scalar(u8("SELECT count(*) FROM dphdruh WHERE zkratka LIKE '%-K' AND (kraceny<>1 OR popis NOT LIKE "
                        "'% - krácený odpočet')")),
              0);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE kraceny=1"),
              scalar("SELECT count(*) FROM dphdruh WHERE zkratka LIKE '%-K'"));
    EXPECT_EQ(scalar(u8("SELECT count(*) FROM dphdruh WHERE (zkratka LIKE '%,43,44' OR zkratka LIKE '%,42' OR "
                        "zkratka LIKE '%,43,44-%' AND zkratka NOT LIKE '%-K') AND popis NOT LIKE '%v plné výši'")),
              0);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE zkratka='R24'"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE zkratka='R0P'"), 2);
    EXPECT_EQ(text("SELECT do FROM dphdruh WHERE zkratka='R24' ORDER BY id LIMIT 1"), "2021-09-30");
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE od='2016-02-01'"), 12);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE od='2016-10-01'"), 4);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE od='2017-07-01'"), 20);
    EXPECT_EQ(scalar("SELECT count(*) FROM dphdruh WHERE radky='25' AND (kh<>'A1' OR kpp IS NULL)"), 0);
    EXPECT_EQ(text("SELECT popis FROM dphdruh WHERE zkratka='R25-1'"),
              u8("Režim přenesení daňové povinnosti (§92a) - dodavatel zboží nebo poskytovatel služeb - Zlato"));
    EXPECT_EQ(text("SELECT zkratka FROM dphdruh WHERE id=119"), "R25-7");
}

TEST_F(FreshCompany, BankRegisterAndVehicleKinds) {
    EXPECT_EQ(text("SELECT bic FROM bankovniustav WHERE kod='0800'"), "GIBACZPX");
    EXPECT_EQ(text("SELECT nazev FROM bankovniustav WHERE kod='2010'"), "Fio banka, a.s.");
    EXPECT_EQ(text("SELECT bic FROM bankovniustav WHERE kod='2100'"), "");
    EXPECT_EQ(text("SELECT kod FROM bankovniustav ORDER BY id DESC LIMIT 1"), "8296");
    EXPECT_EQ(text("SELECT jmeno FROM druhvozidla WHERE id=0"), u8("Při použití přívěsu k motorovému vozidlu"));
    EXPECT_EQ(scalar("SELECT count(*) FROM nahradakm WHERE rok=2025"), 0);
    EXPECT_EQ(text("SELECT nahrada FROM nahradakm WHERE rok=2026 AND druhvozidlaid=0"), "6.785");
    EXPECT_EQ(text("SELECT cena FROM cenaphm WHERE id=48"), "7.2");
    EXPECT_EQ(scalar("SELECT count(*) FROM cenaphm WHERE phmid=4 AND cena<>0"), 0);
}

// The delete rules that keep the books consistent.
class DeleteRules : public FreshCompany {
   protected:
    void SetUp() override {
        FreshCompany::SetUp();
        wxSQLite3Database& db = m_model->db();
        db.ExecuteUpdate("INSERT INTO obdobi(rok,current) VALUES(2020,0)");
        db.ExecuteUpdate("INSERT INTO adresa(id) VALUES(5)");
        db.ExecuteUpdate("INSERT INTO kontakt(id,nazev,adresaid) VALUES(7,'O''Brien',5)");
        db.ExecuteUpdate("INSERT INTO denik(id,castka,pausal,menaid,predkontaceid,pokladnaid,protistranaid,obdobirok) "
                         "VALUES(1,100,0,1,1,1,7,2020)");
        db.ExecuteUpdate("INSERT INTO faktura(id,protistranaid,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana) "
                         "VALUES(1,7,1,1,1,1,2020,1)");
        db.ExecuteUpdate("INSERT INTO zavpoh(id,protistranaid,uhradaid,menaid,predkontaceid,obdobirok) "
                         "VALUES(1,7,1,1,1,2020)");
        db.ExecuteUpdate("INSERT INTO sklad(id,nazev,ocenovani) VALUES(1,'S',0)");
        db.ExecuteUpdate("INSERT INTO zasoba(id,nazev,ocenovani,skladid) VALUES(1,'Z',0,1)");
        db.ExecuteUpdate("INSERT INTO fapolozka(id,fakturaid,sazbaid,zasobaid) VALUES(1,1,0,1)");
        db.ExecuteUpdate("INSERT INTO fapolozka(id,zavpohid,sazbaid,zasobaid) VALUES(2,1,0,1)");
        db.ExecuteUpdate("INSERT INTO uhrada(id,castka,denikid,fakturaid,obdobirok) VALUES(1,100,1,1,2020)");
        db.ExecuteUpdate("INSERT INTO pohybzasob(id,fakturaid,zasobaid,obdobirok) VALUES(1,1,1,2020)");
    }
};

TEST_F(DeleteRules, DeletingAPeriodRemovesItsRows) {
    m_model->db().ExecuteUpdate("DELETE FROM obdobi WHERE rok=2020");
    for (const char* table : {"denik", "faktura", "zavpoh", "uhrada", "pohybzasob", "fapolozka"})
        EXPECT_EQ(m_model->tableRows(table), 0) << table;  // items go with their documents
    EXPECT_EQ(m_model->tableRows("kontakt"), 2);
}

TEST_F(DeleteRules, DeletingAContactLeavesDocumentsWithNoCounterparty) {
    m_model->db().ExecuteUpdate("DELETE FROM kontakt WHERE id=7");
    for (const char* table : {"denik", "faktura", "zavpoh"})
        EXPECT_EQ(scalar(wxString::Format("SELECT protistranaid FROM %s WHERE id=1", table)), 0) << table;
}

TEST_F(DeleteRules, DeletingAnInvoiceTakesItsItemsPaymentsAndMovements) {
    m_model->db().ExecuteUpdate("DELETE FROM faktura WHERE id=1");
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka WHERE id=1"), 0);
    EXPECT_EQ(m_model->tableRows("uhrada"), 0);
    EXPECT_EQ(m_model->tableRows("pohybzasob"), 0);
    EXPECT_EQ(m_model->tableRows("denik"), 1);  // the money stays in the journal
}

TEST_F(DeleteRules, DeletingAStockItemOnlyClearsItemLinks) {
    m_model->db().ExecuteUpdate("DELETE FROM pohybzasob");
    m_model->db().ExecuteUpdate("DELETE FROM zasoba WHERE id=1");
    EXPECT_EQ(m_model->tableRows("fapolozka"), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka WHERE zasobaid IS NULL"), 2);
}

TEST_F(DeleteRules, ReferencedRowsCannotBeDeleted) {
    EXPECT_THROW(m_model->db().ExecuteUpdate("DELETE FROM mena WHERE id=1"), wxSQLite3Exception);
    EXPECT_THROW(m_model->db().ExecuteUpdate("DELETE FROM predkontace WHERE id=1"), wxSQLite3Exception);
    EXPECT_EQ(m_model->tableRows("mena"), 39);
}
