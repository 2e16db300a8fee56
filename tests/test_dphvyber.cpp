// The documents of a VAT period: the period rule by DUZP or DPPD, the base and VAT per rate of
// the document's year in home currency, the counterparty's VAT id and the existence checks.
#include <gtest/gtest.h>

#include "dphfixture.h"
#include "lxsettings.h"

using DphVyber = DphFixture;

TEST_F(DphVyber, ExpensesByDppdIncomeByDuzp) {
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-03-20", "2024-04-02", "R40,41", {{21, 121}});
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-20", "2024-04-02", "R1,2", {{21, 242}});
    doklad(DruhDokladu::ZAVAZEK, "2024-04-30", "2024-05-01", "R40,41", {{12, 112}});
    const wxDateTime brezen = isoDatum("2024-03-01"), konecBrezna = isoDatum("2024-03-31");
    const wxDateTime duben = isoDatum("2024-04-01"), konecDubna = isoDatum("2024-04-30");
    EXPECT_TRUE(m_model->dokladyForDph(druh("R40,41"), brezen, konecBrezna, false).empty());
    ASSERT_EQ(m_model->dokladyForDph(druh("R40,41"), duben, konecDubna, false).size(), 1u);
    EXPECT_EQ(m_model->dokladyForDph(druh("R40,41"), duben, konecDubna, false)[0].zdroj, "FP");
    EXPECT_EQ(m_model->dokladyForDph(druh("R1,2"), brezen, konecBrezna, false).size(), 1u);
    EXPECT_TRUE(m_model->dokladyForDph(druh("R1,2"), duben, konecDubna, false).empty());
    // The liability's DPPD is in May, the last day of April is its DUZP only.
    EXPECT_FALSE(m_model->someDokladForDph(druh("R40,41"), isoDatum("2024-04-30"), konecDubna, false));
    EXPECT_TRUE(m_model->someDokladForDph(druh("R40,41"), isoDatum("2024-05-01"), isoDatum("2024-05-01"), false));
    EXPECT_TRUE(m_model->someDokladForDph(brezen, konecBrezna));
    EXPECT_FALSE(m_model->someDokladForDph(isoDatum("2024-06-01"), isoDatum("2024-06-30")));
    EXPECT_TRUE(m_model->someDokladForDphKh(duben, konecDubna));
    EXPECT_FALSE(m_model->someDokladForDphKhA1(duben, konecDubna));
}

TEST_F(DphVyber, LinesPerRateOfTheYearInHomeCurrency) {
    const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    const DokladForm f = doklad(DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2",
                                {{21, 121}, {12, 112}, {12, 56}}, 2024, eur, 25.0);
    const lxDphDokladArray d = m_model->dokladyForDph(druh("R1,2"), isoDatum("2024-03-01"), isoDatum("2024-03-31"), false);
    ASSERT_EQ(d.size(), 1u);
    EXPECT_EQ(d[0].cislo, f.cislo);
    EXPECT_EQ(d[0].dic, "CZ27082440");
    EXPECT_EQ(d[0].kontaktid, m_dic);
    EXPECT_DOUBLE_EQ(d[0].celkem, 289);  // in euros, as stored
    ASSERT_EQ(d[0].dph.size(), 3u);     // 21, 12, then the zero rate
    EXPECT_EQ(d[0].dph[0].sazba, 21);
    EXPECT_TRUE(d[0].dph[0].zakladni);
    EXPECT_NEAR(d[0].dph[0].zaklad, 100 * 25.0, 1e-9);
    EXPECT_NEAR(d[0].dph[0].dph, 21 * 25.0, 1e-9);
    EXPECT_EQ(d[0].dph[1].sazba, 12);
    EXPECT_NEAR(d[0].dph[1].zaklad, 150 * 25.0, 1e-9);
    EXPECT_NEAR(d[0].dph[1].dph, 18 * 25.0, 1e-9);
    EXPECT_EQ(d[0].dph[2].sazba, 0);
    EXPECT_EQ(d[0].dph[2].zaklad, 0.0);
    EXPECT_EQ(d[0].krp, "0");
}

TEST_F(DphVyber, YearsWithOtherRatesCountersWithoutDicAndOrder) {
    ASSERT_TRUE(m_model->addObdobi(Obdobi(2015, false)));
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-04-10", "2024-04-12", "R40,41", {{21, 121}});
    doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-04-01", "2024-04-03", "R40,41", {{21, 242}}, 2024, 1, 1, false);
    const DokladForm stary = doklad(DruhDokladu::FAKTURA_PRIJATA, "2024-04-05", "2024-04-05", "R40,41", {{15, 115}});
    m_model->db().ExecuteUpdate(wxString::Format("UPDATE faktura SET obdobirok=2015 WHERE id=%d", stary.id));
    lxDphDokladArray d = m_model->dokladyForDph(druh("R40,41"), isoDatum("2024-04-01"), isoDatum("2024-04-30"), false);
    ASSERT_EQ(d.size(), 3u);
    DbModel::sortDphDoklad(d);
    EXPECT_EQ(d[0].dppd, isoDatum("2024-04-03"));
    EXPECT_EQ(d[1].dppd, isoDatum("2024-04-05"));
    EXPECT_EQ(d[0].dic, wxString());
    // 2015 had 21, 15 and 10 %; its item at 15 % (a 2024 rate row) counts in none of them.
    ASSERT_EQ(d[1].dph.size(), 4u);
    EXPECT_EQ(d[1].dph[1].sazba, 15);
    EXPECT_FALSE(DbModel::isDphSazbySameForDoklad(d[0].dph, d[1].dph));
    EXPECT_TRUE(DbModel::isDphSazbySameForDoklad(d[0].dph, d[2].dph));
    // Only documents whose counterparty has a VAT id.
    EXPECT_EQ(m_model->dokladyForDph(druh("R40,41"), isoDatum("2024-04-01"), isoDatum("2024-04-30"), true).size(), 2u);
    EXPECT_FALSE(m_model->someDokladForDphSh(isoDatum("2024-04-01"), isoDatum("2024-04-30")));
    doklad(DruhDokladu::FAKTURA_VYDANA, "2024-04-08", "2024-04-08", "R20", {{0, 1000}});
    EXPECT_TRUE(m_model->someDokladForDphSh(isoDatum("2024-04-01"), isoDatum("2024-04-30")));
}
