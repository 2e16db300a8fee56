// The vehicle log: typed times and odometer states, the checks of a trip, the odometer's
// continuity over a vehicle's trips, and the monthly reimbursement over the seeded allowances
// and average fuel prices.
#include <gtest/gtest.h>

#include <functional>

#include "jizdy/jizdy.h"
#include "jizdy/jizdydb.h"
#include "testcompany.h"

namespace {

// "2026-10-15 08:00" as a moment.
wxDateTime cas(const char* text) {
    wxDateTime t;
    EXPECT_TRUE(t.ParseISOCombined(text, ' ') || t.ParseISOCombined(wxString(text) + ":00", ' ')) << text;
    return t;
}

std::unique_ptr<Jizda> jizda(int id, const char* od, const char* doKdy, int startkm, int endkm, int vozidlo = 1,
                             int ridic = 1, const char* cesta = "Praha - Brno") {
    return std::make_unique<Jizda>(id, cas(od), cas(doKdy), startkm, endkm, cesta, "Jednání", vozidlo, ridic);
}

lxJizdaArray pole(std::initializer_list<Jizda*> jizdy) {
    lxJizdaArray a;
    for (Jizda* j : jizdy) a.emplace_back(j);
    return a;
}

bool obsahuje(const std::vector<wxString>& texty, const char* cast) {
    for (const wxString& t : texty)
        if (t.Contains(u8(cast))) return true;
    return false;
}

}  // namespace

TEST(JizdyVstup, TimesAndOdometerStatesAsTyped) {
    struct {
        const char* text;
        int minuty;
    } casy[] = {{"8:30", 510}, {"08:30", 510}, {"8.30", 510}, {"8", 480},   {"", 0},       {"23:59", 1439},
                {"24:00", -1}, {"8:60", -1},   {"8:3", -1},   {"8h", -1},  {"-1:00", -1}, {"12:300", -1}};
    for (const auto& c : casy) EXPECT_EQ(jizdy::parseCas(u8(c.text)), c.minuty) << c.text;

    struct {
        const char* text;
        bool platne;
        int km;
    } kms[] = {{"1 250", true, 1250}, {"1250", true, 1250}, {"0", true, 0},        {"12.500", false, 0},
               {"1250,5", false, 0},  {"-5", false, 0},     {"", false, 0},        {"abc", false, 0},
               {"99 999 999", false, 0}};
    for (const auto& c : kms) {
        int km = -1;
        EXPECT_EQ(jizdy::parseKm(u8(c.text), &km), c.platne) << c.text;
        if (c.platne) EXPECT_EQ(km, c.km) << c.text;
    }
    EXPECT_EQ(jizdy::formatKm(1250), u8("1\u00a0250"));
    EXPECT_EQ(jizdy::formatCasJizdy(cas("2026-10-15 08:05")), u8("15.10.2026 8:05"));
}

TEST(JizdyVstup, TripRefusedWithTheReason) {
    struct {
        const char* nazev;
        int vozidlo, ridic;
        const char *od, *doKdy;
        int startkm, endkm;
        const char* zprava;
    } cases[] = {
        {"no vehicle", -1, 1, "2026-10-15 08:00", "2026-10-15 09:00", 0, 10, "Vyberte vozidlo."},
        {"no driver", 1, -1, "2026-10-15 08:00", "2026-10-15 09:00", 0, 10, "Vyberte řidiče."},
        {"end before start", 1, 1, "2026-10-15 08:00", "2026-10-15 07:59", 0, 10,
         "Konec jízdy je dříve než její začátek."},
        {"odometer down", 1, 1, "2026-10-15 08:00", "2026-10-15 09:00", 1250, 1249,
         "Konečný stav tachometru je nižší než počáteční."},
        {"zero length and zero km is a trip", 1, 1, "2026-10-15 08:00", "2026-10-15 08:00", 1250, 1250, ""},
    };
    for (const auto& c : cases) {
        const auto j = jizda(1, c.od, c.doKdy, c.startkm, c.endkm, c.vozidlo, c.ridic);
        EXPECT_EQ(jizdy::jizdaValidation(*j), u8(c.zprava)) << c.nazev;
    }
}

TEST(JizdyVarovani, OverlapsAndOdometerAgainstNeighbours) {
    // The trip checked: vehicle 1, driver 1, 15.10.2026 10:00-12:00, 1 300 → 1 400 km.
    struct {
        const char* nazev;
        std::vector<const char*> ocekavane;  // parts of the warnings, in order; none when empty
        std::function<lxJizdaArray()> ostatni;
    } cases[] = {
        {"touching trips and equal km are fine",
         {},
         [] {
             return pole({jizda(2, "2026-10-15 08:00", "2026-10-15 10:00", 1200, 1300).release(),
                          jizda(3, "2026-10-15 12:00", "2026-10-15 13:00", 1400, 1450).release()});
         }},
        {"same vehicle overlapping",
         {"Vozidlo má v tu dobu jinou jízdu: 15.10.2026 11:59 – 15.10.2026 13:00, Praha - Brno."},
         [] { return pole({jizda(2, "2026-10-15 11:59", "2026-10-15 13:00", 1400, 1450).release()}); }},
        {"same driver in another vehicle",
         {"Řidič má v tu dobu jinou jízdu"},
         [] { return pole({jizda(2, "2026-10-15 09:00", "2026-10-15 10:01", 50, 90, 2, 1).release()}); }},
        {"other vehicle and other driver at the same time",
         {},
         [] { return pole({jizda(2, "2026-10-15 09:00", "2026-10-15 11:00", 50, 90, 2, 2).release()}); }},
        {"odometer going backwards after the previous trip",
         {"Počáteční stav tachometru 1\u00a0300 km je nižší než konečný stav 1\u00a0350 km předchozí jízdy"},
         [] {
             return pole({jizda(2, "2026-10-14 08:00", "2026-10-14 10:00", 1000, 1200).release(),
                          jizda(3, "2026-10-15 07:00", "2026-10-15 09:00", 1200, 1350).release()});
         }},
        {"the following trip starts below this trip's end",
         {"Konečný stav tachometru 1\u00a0400 km je vyšší než počáteční stav 1\u00a0390 km následující jízdy"},
         [] {
             return pole({jizda(2, "2026-10-16 08:00", "2026-10-16 10:00", 1390, 1500).release(),
                          jizda(3, "2026-10-17 08:00", "2026-10-17 10:00", 1000, 1100).release()});
         }},
        {"its own saved version is not another trip",
         {},
         [] { return pole({jizda(1, "2026-10-15 10:30", "2026-10-15 11:00", 1350, 1500).release()}); }},
        {"backwards and overlapping at once",
         {"Vozidlo má v tu dobu", "Počáteční stav tachometru"},
         [] { return pole({jizda(2, "2026-10-15 09:00", "2026-10-15 10:30", 1300, 1330).release()}); }},
    };
    const auto checked = jizda(1, "2026-10-15 10:00", "2026-10-15 12:00", 1300, 1400);
    for (auto& c : cases) {
        const std::vector<wxString> varovani = jizdy::varovaniJizdy(*checked, c.ostatni());
        ASSERT_EQ(varovani.size(), c.ocekavane.size()) << c.nazev;
        for (size_t i = 0; i < varovani.size(); ++i)
            EXPECT_TRUE(varovani[i].Contains(u8(c.ocekavane[i]))) << c.nazev << ": " << varovani[i];
    }
}

TEST(JizdyVarovani, YearOfAVehicleCheckedInDrivingOrder) {
    // Given out of order, as a user may have entered them.
    const lxJizdaArray rok = pole({
        jizda(4, "2026-03-02 08:00", "2026-03-02 09:00", 1180, 1200).release(),  // back 20 km
        jizda(1, "2026-01-05 08:00", "2026-01-05 09:00", 1000, 1100).release(),
        jizda(2, "2026-01-05 09:00", "2026-01-05 10:00", 1100, 1150).release(),  // touching, continuous
        jizda(3, "2026-02-01 08:00", "2026-02-01 09:30", 1160, 1200).release(),  // 10 km missing
        jizda(5, "2026-03-02 08:30", "2026-03-02 10:00", 1200, 1250).release(),  // overlaps 4
    });
    const std::vector<jizdy::Navaznost> nalezy = jizdy::kontrolaNavaznosti(rok);
    ASSERT_EQ(nalezy.size(), 3u);
    EXPECT_EQ(nalezy[0].jizdaid, 3);
    EXPECT_TRUE(nalezy[0].text.Contains(u8("chybí 10 km"))) << nalezy[0].text;
    EXPECT_EQ(nalezy[1].jizdaid, 4);
    EXPECT_TRUE(nalezy[1].text.Contains(u8("tachometr jde zpět"))) << nalezy[1].text;
    EXPECT_EQ(nalezy[2].jizdaid, 5);
    EXPECT_TRUE(nalezy[2].text.Contains(u8("se překrývá"))) << nalezy[2].text;
    EXPECT_TRUE(jizdy::kontrolaNavaznosti(lxJizdaArray()).empty());
}

TEST(JizdyNahrada, RoundedToHellersHalfAwayFromZero) {
    struct {
        double castka, zaokrouhleno;
    } cases[] = {{815.55, 815.55}, {1.005, 1.01}, {2.675, 2.68}, {0.004, 0}, {8.1555, 8.16}, {-1.005, -1.01}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(jizdy::zaokrouhliNaHalere(c.castka), c.zaokrouhleno) << c.castka;
}

class JizdyModel : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        ASSERT_TRUE(m_model->addRidic(Ridic(1, u8("Jan Řidič"))));
        ASSERT_TRUE(m_model->addRidic(Ridic(2, u8("Eva Nová"))));
    }
    int vozidlo(bool soukrome, int druh, int phm, double spotreba) {
        const int id = m_model->getLastId("vozidlo");
        EXPECT_TRUE(m_model->addVozidlo(Vozidlo(id, wxString::Format("1A%d", id), "Auto", druh, spotreba, soukrome, phm)));
        return id;
    }
    void pridej(int vozidloid, const char* od, const char* doKdy, int startkm, int endkm, int ridic = 1) {
        const auto j = jizda(m_model->getLastId("jizda"), od, doKdy, startkm, endkm, vozidloid, ridic);
        ASSERT_TRUE(m_model->addJizda(*j));
    }
};

// Worked by hand from the seeded 2026 rows: car 5.90 Kč/km, motorcycle 1.60 Kč/km; petrol 95
// 34.70 Kč/l, diesel 34.10 Kč/l, electricity 7.20 Kč/kWh.
TEST_F(JizdyModel, MonthlyReimbursementOfAVehicle) {
    struct {
        const char* nazev;
        bool soukrome;
        int druh, phm;
        double spotreba;
        std::vector<int> km;  // trips of October 2026, one a day
        double celkem;
        const char* chyba;
    } cases[] = {
        // 100 × 5.90 + 34.70 × 6.5 × 100 / 100 = 590 + 225.55
        {"private car, petrol", true, 1, 1, 6.5, {100}, 815.55, ""},
        // Each 1 km line is 8.1555 → 8.16; three lines 24.48, not the rounded 24.4665.
        {"sum of the rounded lines", true, 1, 1, 6.5, {1, 1, 1}, 24.48, ""},
        // 100 × 5.90 + 7.20 × 20 kWh = 590 + 144
        {"electric car", true, 1, 5, 20, {100}, 734.00, ""},
        // 37 × 1.60 + 34.70 × 3.2 × 37 / 100 = 59.20 + 41.0848
        {"motorcycle", true, 2, 1, 3.2, {37}, 100.28, ""},
        // No allowance: only the fuel, 34.10 × 5.5 = 187.55, as information.
        {"company car, diesel", false, 1, 3, 5.5, {100}, 187.55, ""},
        {"other fuel has no price, only the allowance", true, 1, 4, 6.5, {10}, 59.00, ""},
        {"no trips", true, 1, 1, 6.5, {}, 0, ""},
    };
    for (const auto& c : cases) {
        const int v = vozidlo(c.soukrome, c.druh, c.phm, c.spotreba);
        int km = 1000;
        int den = 1;
        for (int k : c.km) {
            const std::string d = "2026-10-" + std::string(den < 10 ? "0" : "") + std::to_string(den);
            pridej(v, (d + " 08:00").c_str(), (d + " 12:00").c_str(), km, km + k);
            km += k;
            ++den;
        }
        // Trips just outside the month do not count.
        pridej(v, "2026-09-30 23:00", "2026-10-01 01:00", 900, 950);
        pridej(v, "2026-11-01 00:00", "2026-11-01 01:00", km, km + 500);
        const jizdy::Nahrada n = jizdy::nahradaVozidla(*m_model, v, 2026, 10);
        EXPECT_EQ(n.chyba, u8(c.chyba)) << c.nazev;
        EXPECT_NEAR(n.celkem, c.celkem, 1e-9) << c.nazev;
        EXPECT_EQ(n.radky.size(), c.km.size()) << c.nazev;
        EXPECT_EQ(n.soukrome, c.soukrome) << c.nazev;
        double soucet = 0;
        for (const auto& r : n.radky) soucet += r.castka;
        EXPECT_NEAR(soucet, n.celkem, 1e-9) << c.nazev;
    }
}

TEST_F(JizdyModel, YearWithoutAllowanceIsToldAndComputesNothing) {
    // The seeded 2025 allowance rows clash with 2024's ids and are not stored.
    EXPECT_TRUE(m_model->nahradyKm(2025).empty());
    EXPECT_EQ(m_model->nahradyKm(2026).size(), 4u);
    const int soukrome = vozidlo(true, 1, 1, 6.5);
    const int firemni = vozidlo(false, 1, 1, 6.5);
    pridej(soukrome, "2025-05-10 08:00", "2025-05-10 09:00", 0, 100);
    pridej(firemni, "2025-05-10 08:00", "2025-05-10 09:00", 0, 100, 2);
    const jizdy::Nahrada n = jizdy::nahradaVozidla(*m_model, soukrome, 2025, 5);
    EXPECT_EQ(n.chyba,
              u8("Pro rok 2025 není zadána základní náhrada za km pro druh vozidla „Osobní silniční motorové vozidlo“."));
    EXPECT_TRUE(n.radky.empty());
    EXPECT_EQ(n.celkem, 0);
    // A company vehicle needs no allowance: 35.80 × 6.5 = 232.70.
    EXPECT_NEAR(jizdy::nahradaVozidla(*m_model, firemni, 2025, 5).celkem, 232.70, 1e-9);
    // Before the first seeded price there is none to take.
    pridej(firemni, "2017-05-10 08:00", "2017-05-10 09:00", 0, 100, 2);
    EXPECT_EQ(jizdy::nahradaVozidla(*m_model, firemni, 2017, 5).chyba,
              u8("Pro den 10.05.2017 není zadána průměrná cena pohonné hmoty „Benzín automobilový 95 oktanů“."));
}

TEST_F(JizdyModel, NewTripCheckedAgainstStoredTripsAndStartsFromTheLastOdometer) {
    const int v = vozidlo(true, 1, 1, 6.5);
    const int jiny = vozidlo(true, 1, 1, 6.5);
    EXPECT_EQ(jizdy::posledniKm(*m_model, v), 0);
    pridej(v, "2026-10-14 08:00", "2026-10-14 10:00", 1000, 1200);
    pridej(v, "2026-10-16 08:00", "2026-10-16 10:00", 1250, 1300);
    pridej(v, "2026-10-01 08:00", "2026-10-01 10:00", 800, 1000);  // entered late, driven first
    pridej(jiny, "2026-10-15 09:00", "2026-10-15 10:30", 50, 90, 2);
    pridej(jiny, "2026-10-15 11:00", "2026-10-15 12:00", 90, 95, 1);  // the same driver
    EXPECT_EQ(jizdy::posledniKm(*m_model, v), 1300);

    Jizda nova = *jizda(m_model->getLastId("jizda"), "2026-10-15 10:00", "2026-10-15 11:30", 1190, 1260, v, 1);
    const std::vector<wxString> varovani = jizdy::varovaniJizdy(nova, jizdy::souvisejiciJizdy(*m_model, nova));
    EXPECT_EQ(varovani.size(), 3u);
    EXPECT_TRUE(obsahuje(varovani, "Řidič má v tu dobu jinou jízdu: 15.10.2026 11:00"));
    EXPECT_TRUE(obsahuje(varovani, "nižší než konečný stav 1\u00a0200 km předchozí jízdy"));
    EXPECT_TRUE(obsahuje(varovani, "vyšší než počáteční stav 1\u00a0250 km následující jízdy"));

    nova.setStartkm(1200);
    nova.setEndkm(1250);
    nova.setStartcas(cas("2026-10-15 10:00"));
    nova.setEndcas(cas("2026-10-15 11:00"));
    EXPECT_TRUE(jizdy::varovaniJizdy(nova, jizdy::souvisejiciJizdy(*m_model, nova)).empty());

    EXPECT_EQ(m_model->jizdyVozidla(v).size(), 3u);
    EXPECT_EQ(m_model->jizdyVozidla(v).front()->startkm(), 800);
    const auto nalezy = jizdy::navaznostVozidla(*m_model, v, 2026);
    ASSERT_EQ(nalezy.size(), 1u);
    EXPECT_TRUE(nalezy[0].text.Contains(u8("chybí 50 km"))) << nalezy[0].text;
}

TEST_F(JizdyModel, FuelPricesInValidityOrder) {
    const lxCenaPhmArray ceny = m_model->cenyPhm(5);
    ASSERT_FALSE(ceny.empty());
    for (size_t i = 1; i < ceny.size(); ++i) EXPECT_FALSE(ceny[i]->validFrom().IsEarlierThan(ceny[i - 1]->validFrom()));
    EXPECT_DOUBLE_EQ(ceny.back()->cena(), 7.2);
}
