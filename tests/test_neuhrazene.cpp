// evida-cli neuhrazene: the unpaid documents of every year up to the current one, each on
// its line with the overdue ones marked, and the open totals of both sides in crowns.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lxformat.h"
#include "testcompany.h"

using ::testing::HasSubstr;

class Neuhrazene : public TestCompany {
 protected:
    wxDateTime den(int rok, int mesic, int d) { return wxDateTime(d, static_cast<wxDateTime::Month>(mesic - 1), rok); }

    int faktura(const char* cislo, bool vydana, double celkem, int menaid, double kurz, int rok,
                const wxDateTime& splatnost, int kontakt) {
        const int id = m_model->getLastId("faktura");
        EXPECT_TRUE(
            m_model->addFaktura(Faktura(id, kontakt, "", celkem, cislo, "", "", "", 1, 2, -1, 1, menaid, 1, rok, vydana,
                                        false, den(rok, 1, 10), wxDateTime(), wxDateTime(), splatnost, -1, kurz, 0)));
        return id;
    }
    void zavpoh(const char* cislo, bool zavazek, double celkem, int rok, const wxDateTime& splatnost) {
        EXPECT_TRUE(m_model->addZavPoh(ZavPoh(m_model->getLastId("zavpoh"), 0, "", celkem, cislo, "", 2, -1, 1, 1, 1,
                                              rok, zavazek, false, den(rok, 1, 10), wxDateTime(), wxDateTime(),
                                              splatnost, -1, 1, 0)));
    }
    void zaplatit(int faktura, double castka, int rok) {
        const int entry = m_model->getLastId("denik");
        ASSERT_TRUE(m_model->addDenik(Denik(entry, den(rok, 1, 20), wxString::Format("BP%d", entry), "", castka, 0, 1,
                                            "", 0, 1, m_model->getPredkontaceIdByZkratka("P002"), -1, 1, 1, 0, rok)));
        ASSERT_TRUE(m_model->addUhrada(Uhrada(m_model->getLastId("uhrada"), castka, entry, faktura, -1, rok)));
    }
};

// The company's year is this calendar year: due dates of last year are past whatever the
// day, those at the end of next year are not.
TEST_F(Neuhrazene, ListsOpenDocumentsOfPastAndCurrentYearsWithTotals) {
    const wxString path = createCompany();
    const int rok = m_model->currentRok();
    ASSERT_TRUE(m_model->addObdobi(Obdobi(rok - 1, false)));
    ASSERT_TRUE(m_model->addObdobi(Obdobi(rok + 1, false)));
    const int alfa = m_model->addKontaktSAdresou(Kontakt(-1, u8("Alfa Čermák"), "", "", "", "", true, -1),
                                                 Adresa(-1, "", "", "", "", ""));
    const wxDateTime minule = den(rok - 1, 1, 31), pristi = den(rok + 1, 12, 31);
    zaplatit(faktura("FV0001", true, 1210, 1, 1, rok - 1, minule, alfa), 605, rok - 1);
    zaplatit(faktura("FV0002", true, 500, 1, 1, rok, minule, alfa), 500, rok);  // paid
    faktura("FP0001", false, 100, 2, 25, rok, pristi, 0);
    faktura("FV0003", true, 999, 1, 1, rok + 1, minule, alfa);  // a later year
    zavpoh("PO0001", false, 300, rok, minule);
    zavpoh("ZA0001", true, 50, rok, pristi);
    m_model->closeDatabase();

    const CliResult r = runCli("neuhrazene " + path);
    EXPECT_EQ(r.status, 0) << r.output;
    const wxString splatnost = lxformat::formatDatum(minule), pozdeji = lxformat::formatDatum(pristi);
    const std::string nbsp = "\u00A0";
    const std::string expected =
        "FV  FV0001  " + std::string(u8("Alfa Čermák").utf8_str()) + "  " + std::string(splatnost.utf8_str()) + "  1" +
        nbsp + "210,00  605,00  CZK  PO SPLATNOSTI\n" + "FP  FP0001    " + std::string(pozdeji.utf8_str()) +
        "  100,00  100,00  EUR\n" + "PO  PO0001    " + std::string(splatnost.utf8_str()) +
        "  300,00  300,00  CZK  PO SPLATNOSTI\n" + "ZA  ZA0001    " + std::string(pozdeji.utf8_str()) +
        "  50,00  50,00  CZK\n" +
        std::string(u8("Neuhrazeno: pohledávky 905,00 Kč (po splatnosti 905,00 Kč), závazky 2").utf8_str()) + nbsp +
        std::string(u8("550,00 Kč (po splatnosti 0,00 Kč)\n").utf8_str());
    EXPECT_EQ(r.output, expected);
}

TEST_F(Neuhrazene, NothingOpenSaysSoAndABadFileFails) {
    const wxString path = createCompany();
    m_model->closeDatabase();
    const CliResult empty = runCli("neuhrazene " + path);
    EXPECT_EQ(empty.status, 0);
    EXPECT_THAT(empty.output, HasSubstr(std::string(u8("Žádné neuhrazené doklady.").utf8_str())));

    const CliResult missing = runCli("neuhrazene " + m_home + "/nic.db");
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.output, HasSubstr("neexistuje"));
}
