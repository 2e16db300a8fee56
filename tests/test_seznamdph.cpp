// The list of VAT documents: sections in the order of the VAT return, a document listed under
// every row its classification feeds, blocks where the rates change, amounts in home currency
// with a decimal point, and the CSV text with quoted texts and CRLF lines.
#include <gmock/gmock.h>

#include <clocale>
#include <set>

#include "dph/seznamdph.h"
#include "dphdoklady.h"
#include "lxformat.h"
#include "testcompany.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;

namespace {

std::vector<wxString> texty(const seznamdph::Radek& radek) {
    std::vector<wxString> t;
    for (const seznamdph::Bunka& b : radek) t.push_back(b.text);
    return t;
}

std::vector<wxString> nadpisy(const std::vector<seznamdph::Sekce>& sekce) {
    std::vector<wxString> t;
    for (const seznamdph::Sekce& s : sekce) t.push_back(s.podnadpis + " / " + s.strana);
    return t;
}

// The document numbers listed in a section, block by block.
std::vector<wxString> cisla(const seznamdph::Sekce& sekce) {
    std::vector<wxString> t;
    for (const seznamdph::Blok& b : sekce.bloky)
        for (const seznamdph::Radek& r : b.doklady) t.push_back(r[0].text);
    return t;
}

const wxString HLAVICKA_2024 = u8(
    "\"Doklad\",\"DUZP\",\"DPPD\",\"Popis\",\"Zdroj\",\"DIČ\",\"Základ\",\"DPH\",\"Sazba\",\"Základ\",\"DPH\","
    "\"Sazba\",\"Základ DPH 0%\",\"Celkem\"");

}  // namespace

class SeznamDph : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createPlatce2024("2024-03-20");
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
    }
    std::vector<seznamdph::Sekce> seznam(const char* od, const char* doDne) {
        return seznamdph::seznam(*m_model, isoDatum(od), isoDatum(doDne));
    }
};

TEST(SeznamDphOddily, EverySeededRowGroupHasItsSectionAndEverySectionNamesSeededRows) {
    const auto& oddily = seznamdph::oddily();
    ASSERT_EQ(oddily.size(), 25u);
    EXPECT_EQ(oddily.front().podnadpis, u8("Řádky v přiznání: 1,2"));
    EXPECT_EQ(oddily.back().nadpis, u8("Vrácení daně (§ 84)"));
    std::set<wxString> podnadpisy;
    for (const auto& o : oddily) podnadpisy.insert(o.podnadpis);
    EXPECT_EQ(podnadpisy.size(), oddily.size());
}

TEST_F(SeznamDph, SectionsOfTheSeedAreAllKnownRows) {
    std::set<wxString> seeded;
    for (const wxString& r : m_model->getDphDruhRadky()) seeded.insert(r);
    std::set<wxString> listed;
    for (const auto& o : seznamdph::oddily())
        for (const wxString& r : o.radky) {
            EXPECT_TRUE(seeded.count(r)) << r;  // a typo would leave a section for ever empty
            listed.insert(r);
        }
    for (const wxString& r : seeded) {
        if (r == "0") continue;  // outside VAT
        EXPECT_TRUE(listed.count(r)) << r;
    }
}

TEST_F(SeznamDph, SectionsInReturnOrderWithTheirSideAndTheTwoRowDocumentListedTwice) {
    const DokladForm dovoz = dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-02", "2024-03-05",
                                       "R3,4,43,44-K", {{21, 121}});
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-02", "2024-03-03", "R40,41", {{21, 242}});
    dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R20", {{0, 1000}});
    dphDoklad(*m_model, DruhDokladu::POHLEDAVKA, "2024-03-11", "2024-03-11", "R1,2", {{12, 112}});
    dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-12", "2024-03-12", "R0P", {{21, 121}});

    const auto sekce = seznam("2024-03-01", "2024-03-31");
    EXPECT_THAT(nadpisy(sekce), ElementsAre(u8("Řádky v přiznání: 1,2 / Uskutečněné plnění"),
                                            u8("Řádky v přiznání: 3,4 / Uskutečněné plnění"),
                                            u8("Řádek v přiznání: 20 / Uskutečněné plnění"),
                                            u8("Řádky v přiznání: 40,41 / Přijaté plnění"),
                                            u8("Řádky v přiznání: 43,44 / Uskutečněné plnění")));
    EXPECT_EQ(sekce[1].nadpis, u8("Pořízení zboží z jiného členského státu (§16; §17 odst.6 písm e); §19 odst.3)"));
    EXPECT_THAT(cisla(sekce[1]), ElementsAre(dovoz.cislo));
    EXPECT_THAT(cisla(sekce[4]), ElementsAre(dovoz.cislo));
    EXPECT_EQ(sekce[0].bloky[0].doklady[0][4].text, "PO");
    // Rows 0 (outside VAT) are in no section, and another month lists nothing.
    EXPECT_TRUE(seznam("2024-04-01", "2024-04-30").empty());
}

TEST_F(SeznamDph, ReceivedDocumentBelongsToItsDppdMonthIssuedToItsDuzpMonth) {
    const DokladForm prijata =
        dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-03-28", "2024-04-02", "R40,41", {{21, 121}});
    const DokladForm vydana =
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-28", "2024-04-02", "R1,2", {{21, 121}});
    const auto brezen = seznam("2024-03-01", "2024-03-31");
    const auto duben = seznam("2024-04-01", "2024-04-30");
    ASSERT_EQ(brezen.size(), 1u);
    ASSERT_EQ(duben.size(), 1u);
    EXPECT_THAT(cisla(brezen[0]), ElementsAre(vydana.cislo));
    EXPECT_THAT(cisla(duben[0]), ElementsAre(prijata.cislo));
    EXPECT_EQ(duben[0].bloky[0].doklady[0][1].text, "28.03.2024") << "DUZP";
    EXPECT_EQ(duben[0].bloky[0].doklady[0][2].text, "02.04.2024") << "DPPD";
}

TEST_F(SeznamDph, ForeignDocumentInHomeCurrencyItsTotalInItsOwn) {
    const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    const DokladForm f = dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2",
                                   {{21, 121}}, u8("Služby"), "Beta s.r.o.", eur, 25.0);
    const auto sekce = seznam("2024-03-01", "2024-03-31");
    ASSERT_EQ(sekce.size(), 1u);
    ASSERT_EQ(sekce[0].bloky.size(), 1u);
    const seznamdph::Blok& b = sekce[0].bloky[0];
    EXPECT_THAT(texty(b.hlavicka), ElementsAre("Doklad", "DUZP", "DPPD", "Popis", "Zdroj", u8("DIČ"), u8("Základ"),
                                               "DPH", "Sazba", u8("Základ"), "DPH", "Sazba", u8("Základ DPH 0%"),
                                               "Celkem"));
    const wxString datum = lxformat::formatDatum(isoDatum("2024-03-10"));
    ASSERT_EQ(b.doklady.size(), 1u);
    EXPECT_THAT(texty(b.doklady[0]), ElementsAre(f.cislo, datum, datum, u8("Služby"), "FV", "CZ27082440", "2500.00",
                                                 "525.00", "21%", "0.00", "0.00", "12%", "0.00", "121.00"));
    EXPECT_THAT(texty(b.celkem), ElementsAre("Celkem", "", "", "", "", "", "2500.00", "525.00", "", "0.00", "0.00", "",
                                             "0.00", "121.00"));
}

TEST_F(SeznamDph, DocumentsOfYearsWithOtherRatesFormTwoBlocksEachWithHeaderAndTotal) {
    // A received invoice of 2023 (rates 21, 15, 10) whose right to deduct arose in January 2024.
    ASSERT_TRUE(m_model->addObdobi(Obdobi(2023, false)));
    const DokladForm stary = dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2023-12-28", "2024-01-03", "R40,41",
                                       {{21, 121}, {10, 110}}, wxString(), "Beta s.r.o.", 1, 1, 2023);
    m_model->db().ExecuteUpdate(wxString::Format("UPDATE faktura SET obdobirok=2023 WHERE id=%d", stary.id));
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-01-05", "2024-01-06", "R40,41", {{21, 242}, {12, 224}});
    dphDoklad(*m_model, DruhDokladu::FAKTURA_PRIJATA, "2024-01-07", "2024-01-08", "R40,41", {{12, 112}});

    const auto sekce = seznam("2024-01-01", "2024-01-31");
    ASSERT_EQ(sekce.size(), 1u);
    ASSERT_EQ(sekce[0].bloky.size(), 2u);
    const seznamdph::Blok& b2023 = sekce[0].bloky[0];
    const seznamdph::Blok& b2024 = sekce[0].bloky[1];
    EXPECT_EQ(b2023.hlavicka.size(), 6u + 3 * 3 + 2);
    EXPECT_EQ(b2024.hlavicka.size(), 6u + 2 * 3 + 2);
    EXPECT_EQ(b2023.doklady.size(), 1u);
    EXPECT_EQ(b2024.doklady.size(), 2u);
    // 2023: 21 %, 15 %, 10 % with the item at 10 % on the third rate.
    EXPECT_THAT(texty(b2023.celkem), ElementsAre("Celkem", "", "", "", "", "", "100.00", "21.00", "", "0.00", "0.00",
                                                 "", "100.00", "10.00", "", "0.00", "231.00"));
    EXPECT_THAT(texty(b2024.celkem), ElementsAre("Celkem", "", "", "", "", "", "200.00", "42.00", "", "300.00",
                                                 "36.00", "", "0.00", "578.00"));
}

TEST_F(SeznamDph, CsvQuotesTextsDoublesInnerQuotesAndEndsLinesWithCrlf) {
    const DokladForm f = dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2",
                                   {{21, 1210}}, u8("Oprava \"rychlá\", servis"));
    const wxString csv = seznamdph::csv(seznam("2024-03-01", "2024-03-31"));
    const wxString datum = lxformat::formatDatum(isoDatum("2024-03-10"));
    wxArrayString lines = wxSplit(csv, '\n', '\0');
    ASSERT_EQ(lines.size(), 7u);  // six lines and the empty rest after the last line break
    EXPECT_EQ(lines.back(), wxString());
    for (size_t i = 0; i + 1 < lines.size(); ++i) {
        ASSERT_TRUE(lines[i].EndsWith("\r")) << i;
        lines[i].RemoveLast();
    }
    EXPECT_THAT(std::vector<wxString>(lines.begin(), lines.end() - 1),
                ElementsAre(u8("\"Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku (např. §13, §14, "
                               "§8)\""),
                            u8("\"Řádky v přiznání: 1,2\""), u8("\"Uskutečněné plnění\""),
                            HLAVICKA_2024,
                            "\"" + f.cislo + "\",\"" + datum + "\",\"" + datum +
                                u8("\",\"Oprava \"\"rychlá\"\", servis\",\"FV\",\"CZ27082440\",1000.00,210.00,\"21%\","
                                   "0.00,0.00,\"12%\",0.00,1210.00"),
                            u8("\"Celkem\",\"\",\"\",\"\",\"\",\"\",1000.00,210.00,\"\",0.00,0.00,\"\",0.00,1210.00")));
}

TEST(SeznamDphHlavicka, RateColumnsPerNonZeroRateHighestFirstAndTheZeroRateLast) {
    EXPECT_EQ(seznamdph::createHeader({{21, true, 0, 0}, {12, false, 0, 0}, {0, false, 0, 0}}), HLAVICKA_2024 + "\r\n");
    // A year without rate rows: only the zero rate.
    EXPECT_EQ(seznamdph::createHeader({{0, false, 0, 0}}),
              u8("\"Doklad\",\"DUZP\",\"DPPD\",\"Popis\",\"Zdroj\",\"DIČ\",\"Základ DPH 0%\",\"Celkem\"\r\n"));
}

TEST(SeznamDphCastka, PointAndTwoDecimalsUnderTheCzechLocaleToo) {
    const struct {
        double value;
        const char* text;
    } cases[] = {{2500, "2500.00"}, {-12.5, "-12.50"}, {1234567.891, "1234567.89"}, {-0.001, "0.00"}, {0.126, "0.13"}};
    const std::string before = std::setlocale(LC_ALL, nullptr);
    ASSERT_NE(std::setlocale(LC_ALL, "cs_CZ.UTF-8"), nullptr) << "scripts/setup.sh generates the Czech locale";
    ASSERT_EQ(wxString::Format("%.2f", 0.5), "0,50");  // the trap: printf follows the locale
    for (const auto& c : cases) EXPECT_EQ(seznamdph::castka(c.value), c.text) << c.value;
    std::setlocale(LC_ALL, before.c_str());
}
