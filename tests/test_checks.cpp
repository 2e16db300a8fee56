// Damaged files are repaired when opened: code lists are replaced, user data keep every row,
// and no document moves to another register, account, classification or currency (except a
// currency that does not exist, which becomes CZK): a missing row comes back as OBNOVENO-<id>.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/filename.h>

#include <cmath>

#include "testcompany.h"

using ::testing::HasSubstr;

class Checks : public TestCompany {
   protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
        const int rok = m_model->currentRok();
        wxSQLite3Database& db = m_model->db();
        db.ExecuteUpdate("INSERT INTO adresa(id) VALUES(2)");
        db.ExecuteUpdate("INSERT INTO kontakt(id,nazev,adresaid) VALUES(5,'Firma \"Alfa\"',2)");
        for (int i = 1; i <= 3; ++i) {
            db.ExecuteUpdate(wxString::Format(
                u8("INSERT INTO denik(id,datum,popis,castka,castkacizi,pausal,menaid,predkontaceid,pokladnaid,vypis,"
                   "protistranaid,obdobirok) VALUES(%d,'%d-01-0%d','Zápis %d',%d00,%d00,0,1,1,1,4,5,%d)"),
                i, rok, i, i, i, i, rok));
        }
        m_model->closeDatabase();
        m_events.messages.clear();
    }

    // Reopens the company after `sql` damaged it; returns the one report, or "" when none.
    wxString reopenAfter(const wxString& sql) {
        if (!sql.empty()) execOnFile(m_path, sql);
        EXPECT_TRUE(m_model->openDatabase(m_path));
        EXPECT_LE(m_events.messages.size(), 1u);
        return m_events.messages.empty() ? wxString() : m_events.messages.front();
    }

    // SQL that moves `table` into a table made by `create` (named x), keeping `columns`.
    static wxString replaceTable(const wxString& table, const wxString& create, const wxString& columns) {
        return wxString::Format("%s; INSERT INTO x(%s) SELECT %s FROM %s; DROP TABLE %s; ALTER TABLE x RENAME TO %s",
                                create, columns, columns, table, table, table);
    }

    // The report of the last open as UTF-8, for matchers.
    std::string reportText() const {
        return m_events.messages.empty() ? std::string() : std::string(m_events.messages.front().utf8_str());
    }

    // A repair of user rows left a whole copy of the file as it was before, named in the report.
    void expectCopyBefore(const wxString& sqlOnCopy, int expected) {
        const wxString copy = m_model->safetyCopy();
        ASSERT_FALSE(copy.empty());
        EXPECT_THAT(std::string(copy.utf8_str()), ::testing::MatchesRegex(".*/firma\\.pred-upravou-[0-9]{8}-[0-9]{6}\\.db"));
        EXPECT_THAT(reportText(), HasSubstr(std::string(copy.utf8_str())));
        wxSQLite3Database db;
        db.Open(copy, wxEmptyString, WXSQLITE_OPEN_READONLY);
        EXPECT_EQ(db.ExecuteScalar(sqlOnCopy), expected) << sqlOnCopy;
    }

    wxString m_path;
};

TEST_F(Checks, SoundFileGivesNoReport) {
    EXPECT_EQ(reopenAfter(""), "");
    EXPECT_EQ(m_model->safetyCopy(), "");
}

struct CodeListCase {
    const char* name;
    const char* damage;
    const char* table;
    int rows;
};
class CodeLists : public Checks, public ::testing::WithParamInterface<CodeListCase> {};

TEST_P(CodeLists, DamagedCodeListIsReplacedSilently) {
    const CodeListCase c = GetParam();
    EXPECT_EQ(reopenAfter(c.damage), "");
    EXPECT_EQ(m_model->tableRows(c.table), c.rows);
}
INSTANTIATE_TEST_SUITE_P(
    Reseed, CodeLists,
    ::testing::Values(
        CodeListCase{"currency_deleted", "DELETE FROM mena WHERE id=39", "mena", 39},
        CodeListCase{"rate_added", "INSERT INTO kurz(datum,hodnota,kod,jednotny) VALUES('2024-01-02',25,'EUR',0)",
                     "kurz", 95},
        CodeListCase{"classification_column_missing",
                     "CREATE TABLE x AS SELECT id,zkratka,popis,radky FROM dphdruh; DROP TABLE dphdruh; "
                     "ALTER TABLE x RENAME TO dphdruh",
                     "dphdruh", 119},
        CodeListCase{"vat_rates_missing", "DROP TABLE dphsazba", "dphsazba", 54},
        CodeListCase{"bank_register_emptied", "DELETE FROM bankovniustav", "bankovniustav", 68},
        CodeListCase{"depreciation_group_added", "INSERT INTO odpiskupina(id,popis) VALUES(7,'x')", "odpiskupina",
                     6}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Checks, SixteenthSeriesResetsAllSeriesToTheirStart) {
    EXPECT_EQ(reopenAfter("UPDATE rada SET cislo=42 WHERE id='FV';"
                          "INSERT INTO rada(id,popis,prefix,znaku,cislo) VALUES('XX','Moje','XX',4,3)"),
              "");
    EXPECT_EQ(m_model->tableRows("rada"), 15);
    EXPECT_EQ(scalar("SELECT count(*) FROM rada WHERE cislo=1"), 15);
}

TEST_F(Checks, JournalWithoutStatementColumnGetsMinusOneAndIsReported) {
    const wxString report = reopenAfter(replaceTable(
        "denik",
        "CREATE TABLE x (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, cislo TEXT, popis TEXT, castka REAL, "
        "castkacizi REAL, kurz REAL, reference TEXT, pausal INTEGER NOT NULL, menaid INTEGER NOT NULL REFERENCES "
        "mena(id) ON UPDATE CASCADE, predkontaceid INTEGER NOT NULL REFERENCES predkontace(id) ON UPDATE CASCADE, "
        "pokladnaid INTEGER REFERENCES pokladna(id) ON UPDATE CASCADE, bankaid INTEGER REFERENCES banka(id) ON UPDATE "
        "CASCADE, protistranaid INTEGER NOT NULL DEFAULT 0 REFERENCES kontakt(id) ON UPDATE CASCADE ON DELETE SET "
        "DEFAULT, obdobirok INTEGER NOT NULL REFERENCES obdobi(rok) ON UPDATE CASCADE ON DELETE CASCADE)",
        "id,datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,menaid,predkontaceid,pokladnaid,bankaid,"
        "protistranaid,obdobirok"));
    EXPECT_EQ(report, u8("Struktura databáze byla poškozená.\nByla obnovena, ale data mohou obsahovat chyby:\n"
                         "Peněžní deník\n\nPřed úpravou byla databáze zkopírována do souboru:\n") +
                          m_model->safetyCopy() + "\n");
    expectCopyBefore("SELECT count(*) FROM pragma_table_info('denik') WHERE name='vypis'", 0);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE vypis=-1"), 3);
    EXPECT_EQ(text("SELECT popis FROM denik WHERE id=2"), u8("Zápis 2"));
}

TEST_F(Checks, JournalMissingSeveralColumnsGetsTheirFillValues) {
    const wxString report = reopenAfter(
        "CREATE TABLE x AS SELECT id,datum,cislo,popis FROM denik; DROP TABLE denik; ALTER TABLE x RENAME TO denik");
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Peněžní deník"));
    EXPECT_EQ(m_model->tableRows("denik"), 3);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE castka=0 AND castkacizi=0 AND pausal=0 AND menaid=1 AND "
                     "predkontaceid=1 AND pokladnaid=1 AND bankaid IS NULL AND vypis=-1 AND protistranaid=0"),
              3);
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE obdobirok=(SELECT rok FROM obdobi WHERE current=1)"), 3);
    // The rate stays empty: the statement meant to fill it names the rate table.
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE kurz IS NULL"), 3);
    // The rebuilt table has today's keys, so references are enforced again.
    EXPECT_EQ(m_model->tableKeys("denik").size(), 6u);
    EXPECT_THROW(m_model->db().ExecuteUpdate("UPDATE denik SET menaid=999 WHERE id=1"), wxSQLite3Exception);
}

TEST_F(Checks, TableWithoutKeysIsRebuiltWithAllRows) {
    const wxString report = reopenAfter(replaceTable(
        "denik",
        "CREATE TABLE x (id INTEGER PRIMARY KEY AUTOINCREMENT, datum TEXT, cislo TEXT, popis TEXT, castka REAL, "
        "castkacizi REAL, kurz REAL, reference TEXT, pausal INTEGER NOT NULL, menaid INTEGER NOT NULL, predkontaceid "
        "INTEGER NOT NULL, pokladnaid INTEGER, bankaid INTEGER, vypis INTEGER, protistranaid INTEGER NOT NULL DEFAULT "
        "0, obdobirok INTEGER NOT NULL)",
        "id,datum,cislo,popis,castka,castkacizi,kurz,reference,pausal,menaid,predkontaceid,pokladnaid,bankaid,vypis,"
        "protistranaid,obdobirok"));
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Peněžní deník"));
    EXPECT_EQ(m_model->tableRows("denik"), 3);
    EXPECT_EQ(scalar("SELECT sum(castka) FROM denik"), 600);
    EXPECT_EQ(m_model->tableKeys("denik").size(), 6u);
    EXPECT_FALSE(m_model->hasTable("denik_t"));
    // Deleting the contact now clears the reference as it should.
    m_model->db().ExecuteUpdate("DELETE FROM kontakt WHERE id=5");
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE protistranaid=0"), 3);
}

TEST_F(Checks, MissingRowsComeBackAsPlaceholdersAndNothingMoves) {
    const wxString report = reopenAfter(
        "UPDATE denik SET menaid=77 WHERE id=1; UPDATE denik SET protistranaid=66 WHERE id=2;"
        "UPDATE denik SET pokladnaid=NULL, bankaid=55 WHERE id=3; UPDATE kontakt SET adresaid=44 WHERE id=5;"
        "INSERT INTO faktura(id,protistranaid,celkem,cislo,typid,uhradaid,menaid,predkontaceid,obdobirok,vydana,"
        "duzp,dphdruhid) VALUES(1,5,1210,'FV0001',1,2,1,1,(SELECT rok FROM obdobi),1,'2024-03-01',500)");
    const std::string msg = report.ToStdString(wxConvUTF8);
    EXPECT_THAT(msg, HasSubstr("Peněžní deník\n"));
    EXPECT_THAT(msg, HasSubstr("Odběratelé a dodavatelé\n"));
    EXPECT_THAT(msg, HasSubstr("Faktury\n"));
    // Every recreated row and the one moved reference are named.
    EXPECT_THAT(msg, HasSubstr("Peněžní deník: záznam 1 měl neexistující měnu 77, nastavena měna CZK"));
    EXPECT_THAT(msg, HasSubstr("Odběratelé a dodavatelé: doplněn chybějící záznam OBNOVENO-66"));
    EXPECT_THAT(msg, HasSubstr("Bankovní účty: doplněn chybějící záznam OBNOVENO-55"));
    EXPECT_THAT(msg, HasSubstr("Adresy: doplněn chybějící záznam OBNOVENO-44"));
    EXPECT_THAT(msg, HasSubstr("Druhy plnění DPH: doplněn chybějící záznam OBNOVENO-500"));

    EXPECT_EQ(scalar("SELECT menaid FROM denik WHERE id=1"), 1);
    EXPECT_EQ(scalar("SELECT protistranaid FROM denik WHERE id=2"), 66);
    EXPECT_EQ(scalar("SELECT bankaid FROM denik WHERE id=3"), 55);
    EXPECT_EQ(scalar("SELECT adresaid FROM kontakt WHERE id=5"), 44);
    EXPECT_EQ(scalar("SELECT dphdruhid FROM faktura WHERE id=1"), 500);
    EXPECT_EQ(text("SELECT nazev FROM kontakt WHERE id=66"), "OBNOVENO-66");
    EXPECT_EQ(text("SELECT zkratka FROM banka WHERE id=55"), "OBNOVENO-55");
    EXPECT_EQ(text("SELECT zkratka FROM dphdruh WHERE id=500"), "OBNOVENO-500");
    EXPECT_EQ(scalar("SELECT count(*) FROM pragma_foreign_key_check"), 0);
    expectCopyBefore("SELECT count(*) FROM denik WHERE menaid=77 OR protistranaid=66 OR bankaid=55", 3);

    // The recreated classification is kept by the next open, which has nothing to repair.
    m_model->closeDatabase();
    m_events.messages.clear();
    EXPECT_EQ(reopenAfter(""), "");
    EXPECT_EQ(text("SELECT zkratka FROM dphdruh WHERE id=500"), "OBNOVENO-500");
}

TEST_F(Checks, AJournalOfAVanishedAccountKeepsItsBalanceOnThatAccount) {
    reopenAfter("INSERT INTO banka(id,zkratka,cislouctu,kodbanky,menaid) VALUES(10,'BU10','1','0800',1);"
                "UPDATE denik SET pokladnaid=NULL, bankaid=10; DELETE FROM banka WHERE id=10");
    EXPECT_THAT(reportText(), HasSubstr("OBNOVENO-10"));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE bankaid=10"), 3);
    EXPECT_DOUBLE_EQ(std::fabs(m_model->getBankaStav(10)), 600.0);
    EXPECT_DOUBLE_EQ(m_model->getBankaStav(1), 0.0);
    EXPECT_NE(m_model->stavUctuAPokladen().Find("OBNOVENO-10"), wxNOT_FOUND);
}

TEST_F(Checks, CurrenciesInUseAreNeverDropped) {
    // A currency beyond the program's list (a newer program's file) with an entry in it.
    const char* const ISK = "INSERT INTO mena(id,kod,nazev) VALUES(40,'ISK','islandská koruna');"
                            "UPDATE denik SET menaid=40, castkacizi=10000, castka=1700 WHERE id=1;";
    EXPECT_EQ(reopenAfter(u8(ISK)), "");
    EXPECT_EQ(m_model->tableRows("mena"), 40);
    EXPECT_EQ(text("SELECT kod FROM mena WHERE id=(SELECT menaid FROM denik WHERE id=1)"), "ISK");

    // Rows missing from the list bring the program's list back, with the currency in use.
    m_model->closeDatabase();
    EXPECT_EQ(reopenAfter("DELETE FROM mena WHERE id IN (38,39)"), "");
    EXPECT_EQ(m_model->tableRows("mena"), 40);
    EXPECT_EQ(scalar("SELECT count(*) FROM mena WHERE id IN (38,39)"), 2);
    EXPECT_EQ(text("SELECT kod FROM mena WHERE id=(SELECT menaid FROM denik WHERE id=1)"), "ISK");
    EXPECT_EQ(text("SELECT castkacizi FROM denik WHERE id=1"), "10000.0");

    // A currency in use under an id the program gives another currency stays what it was.
    m_model->closeDatabase();
    EXPECT_EQ(reopenAfter("DELETE FROM mena WHERE id IN (38,39,40); UPDATE mena SET kod='ISK' WHERE id=5;"
                          "UPDATE denik SET menaid=5 WHERE id=1"),
              "");
    EXPECT_EQ(text("SELECT kod FROM mena WHERE id=5"), "ISK");
    EXPECT_EQ(scalar("SELECT menaid FROM denik WHERE id=1"), 5);
    EXPECT_EQ(m_model->safetyCopy(), "");
}

TEST_F(Checks, RowsOfAVanishedPeriodGetTheirPeriodBack) {
    const wxString report = reopenAfter("UPDATE denik SET obdobirok=2019 WHERE id=1");
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Peněžní deník"));
    EXPECT_EQ(scalar("SELECT count(*) FROM obdobi WHERE rok=2019 AND current=0"), 1);
    EXPECT_EQ(scalar("SELECT count(*) FROM obdobi WHERE current=1"), 1);
    EXPECT_EQ(scalar("SELECT obdobirok FROM denik WHERE id=1"), 2019);
}

TEST_F(Checks, MissingUserTablesAreCreatedWithoutReport) {
    EXPECT_EQ(reopenAfter("DROP TABLE jizda; DROP TABLE smtp; DROP TABLE fauhrada"), "");
    EXPECT_TRUE(m_model->hasTable("jizda"));
    EXPECT_EQ(m_model->tableRows("smtp"), 1);
    EXPECT_EQ(m_model->tableRows("fauhrada"), 2);
}

TEST_F(Checks, TableWithoutIdKeepsItsRowsUnderNewIds) {
    const wxString report = reopenAfter(
        "INSERT INTO odeslany(cas,faktura,prijemce) VALUES('2024-01-01 10:00','FV1','a@b.cz');"
        "INSERT INTO odeslany(cas,faktura,prijemce) VALUES('2024-01-02 10:00','FV2','c@d.cz');"
        "CREATE TABLE x AS SELECT cas,faktura,prijemce FROM odeslany; DROP TABLE odeslany;"
        "ALTER TABLE x RENAME TO odeslany");
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Odeslané faktury"));
    EXPECT_TRUE(m_model->hasTableColumn("odeslany", "id"));
    EXPECT_EQ(text("SELECT group_concat(faktura) FROM (SELECT faktura FROM odeslany ORDER BY id)"), "FV1,FV2");
}

TEST_F(Checks, LostNoCounterpartyRowIsRestored) {
    const wxString report = reopenAfter("DELETE FROM kontakt WHERE id=0");
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Odběratelé a dodavatelé"));
    EXPECT_EQ(scalar("SELECT count(*) FROM kontakt WHERE id=0 AND adresaid=0"), 1);
}

TEST_F(Checks, SeveralDamagedTablesAreNamedInOneReport) {
    const wxString report = reopenAfter(
        "CREATE TABLE x AS SELECT id,zkratka,popis FROM pokladna; DROP TABLE pokladna; ALTER TABLE x RENAME TO "
        "pokladna; CREATE TABLE y AS SELECT rok FROM settings; DROP TABLE settings; ALTER TABLE y RENAME TO settings");
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Pokladny\n"));
    EXPECT_THAT(report.ToStdString(wxConvUTF8), HasSubstr("Nastavení\n"));
    EXPECT_LT(report.Find("Pokladny"), report.Find(u8("Nastavení")));
    EXPECT_EQ(scalar("SELECT menaid FROM pokladna WHERE id=1"), 1);
    EXPECT_EQ(m_model->tableKeys("pokladna").size(), 1u);
}

// Files made when the seeds held the bank's figure per 100 units get the per-unit seed back;
// a rate that is no such multiple of its seed is left as it is.
TEST_F(Checks, SeededRatesOfOldFilesBecomePerUnit) {
    EXPECT_EQ(reopenAfter("UPDATE kurz SET hodnota=21.815 WHERE kod='JPY' AND datum='2005-01-01';"
                          "UPDATE kurz SET hodnota=31 WHERE kod='EUR' AND datum='2005-01-01'"),
              "");
    const auto hodnota = [&](const char* kod) {
        return m_model->db().ExecuteScalar(
            wxString::Format("SELECT round(hodnota*100000) FROM kurz WHERE kod='%s' AND datum='2005-01-01'", kod));
    };
    EXPECT_EQ(hodnota("JPY"), 21815);
    EXPECT_EQ(hodnota("EUR"), 3100000);
    m_model->closeDatabase();
}
