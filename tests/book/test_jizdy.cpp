// The vehicle log's dialogs driven as a person does: a trip typed field by field with its
// refusals and warnings, the vehicle form, the code lists refusing to delete what trips still
// name, and the monthly reimbursement.
#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/file.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "CenaPhmDialog.h"
#include "JizdaDialog.h"
#include "JizdyCiselnikDialog.h"
#include "NahradaDialog.h"
#include "NahradaKmDialog.h"
#include "JizdyTisk.h"
#include "VozidloDialog.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "controls/lxamountctrl.h"
#include "jizdy/jizdy.h"
#include "navigation.h"
#include "printtest.h"

namespace {

wxDateTime cas(const char* text) {
    wxDateTime t;
    t.ParseISOCombined(text, ' ');
    return t;
}

}  // namespace

class Jizdy : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        ASSERT_TRUE(m_model->addVozidlo(Vozidlo(1, "1AB 2345", u8("Škoda Octavia"), 1, 6.5, true, 1)));
        ASSERT_TRUE(m_model->addVozidlo(Vozidlo(2, "2CD 6789", u8("Dodávka"), 3, 9, false, 3)));
        ASSERT_TRUE(m_model->addRidic(Ridic(1, u8("Jan Novák"))));
        ASSERT_TRUE(m_model->addRidic(Ridic(2, u8("Eva Černá"))));
        // The vehicle's last trip ends at 1 250 km.
        ASSERT_TRUE(m_model->addJizda(Jizda(1, cas("2026-10-14 08:00:00"), cas("2026-10-14 09:00:00"), 1200, 1250,
                                            "Praha - Kladno", u8("Jednání"), 1, 1)));
    }
    // Fills a whole valid trip of vehicle 1 and driver 1; a case then overrides fields.
    static void vyplnit(wxDialog* d) {
        choose(field<wxChoice>(d, "vozidlo"), 0);
        choose(field<wxChoice>(d, "ridic"), 1);  // "Jan Novák" after "Eva Černá"
        typeDate(d, "startdatum", "15.10.2026");
        typeText(d, "startcas", "8:00");
        typeDate(d, "enddatum", "15.10.2026");
        typeText(d, "endcas", "10:30");
        typeText(d, "endkm", "1 380");
        typeText(d, "cesta", "Praha - Brno");
        typeText(d, "ucel", u8("Schůzka s dodavatelem"));
    }
};

TEST_F(Jizdy, TripRefusesBadInputWithTheExactMessage) {
    struct {
        const char* nazev;
        const char* pole;  // the field typed over the valid trip; a choice named is left empty
        const char* text;
        const char* zprava;
    } cases[] = {
        {"no vehicle", "vozidlo", "", "Vyberte vozidlo.\n"},
        {"no driver", "ridic", "", "Vyberte řidiče.\n"},
        {"no such day", "startdatum", "31.2.2024", "Začátek jízdy: „31.2.2024“ není platné datum.\nZadejte například 15.10.2026.\n"},
        {"bad time", "endcas", "25:00", "Čas konce: „25:00“ není platný čas.\nZadejte například 8:30.\n"},
        {"ambiguous km", "startkm", "12.500",
         "Tachometr na začátku: „12.500“ není platný stav tachometru.\nZadejte celé kilometry, například 1 250.\n"},
        {"end before start", "endcas", "7:59", "Konec jízdy je dříve než její začátek.\n"},
        {"end km below start", "endkm", "1 249", "Konečný stav tachometru je nižší než počáteční.\n"},
    };
    for (const auto& c : cases) {
        m_prompts.clear();
        JizdaDialog dialog(m_frame);
        const Outcome outcome = fillAndOk(dialog, [&c](wxDialog* d) {
            vyplnit(d);
            const wxString pole(c.pole);
            if (pole == "vozidlo" || pole == "ridic")
                field<wxChoice>(d, c.pole)->SetSelection(wxNOT_FOUND);
            else if (pole.EndsWith("datum"))
                typeDate(d, c.pole, c.text);
            else
                typeText(d, c.pole, u8(c.text));
        });
        EXPECT_FALSE(outcome.closed) << c.nazev;
        EXPECT_EQ(m_prompts.transcript(), u8(c.zprava)) << c.nazev;
    }
    EXPECT_EQ(m_model->jizdyVozidla(1).size(), 1u);
}

TEST_F(Jizdy, TripStartsFromTheVehiclesLastOdometerAndIsStoredAsTyped) {
    JizdaDialog dialog(m_frame);
    const Outcome outcome = fillAndOk(dialog, [](wxDialog* d) {
        vyplnit(d);
        EXPECT_EQ(field<wxTextCtrl>(d, "startkm")->GetValue(), u8("1\u00a0250"));
    });
    ASSERT_TRUE(outcome.closed) << m_prompts.transcript();
    EXPECT_EQ(m_prompts.transcript(), "");
    const Jizda j = m_model->getJizda(dialog.jizdaId());
    EXPECT_EQ(j.startcas(), cas("2026-10-15 08:00:00"));
    EXPECT_EQ(j.endcas(), cas("2026-10-15 10:30:00"));
    EXPECT_EQ(j.startkm(), 1250);
    EXPECT_EQ(j.endkm(), 1380);
    EXPECT_EQ(j.ridicid(), 1);
    EXPECT_EQ(j.ucel(), u8("Schůzka s dodavatelem"));

    // Editing shows the stored trip and keeps it as it was.
    JizdaDialog edit(m_frame, j.id());
    screenshot(edit, "jizda");
    EXPECT_EQ(field<wxTextCtrl>(&edit, "startcas")->GetValue(), "8:00");
    EXPECT_EQ(field<wxTextCtrl>(&edit, "endkm")->GetValue(), u8("1\u00a0380"));
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(m_model->getJizda(j.id()).endcas(), cas("2026-10-15 10:30:00"));

    // A repeated trip continues from 1 380 with the same distance, on the application's date.
    JizdaDialog kopie(m_frame, -1, j.id());
    EXPECT_EQ(field<wxTextCtrl>(&kopie, "startkm")->GetValue(), u8("1\u00a0380"));
    EXPECT_EQ(field<wxTextCtrl>(&kopie, "endkm")->GetValue(), u8("1\u00a0510"));
    EXPECT_EQ(field<wxTextCtrl>(&kopie, "startdatumText")->GetValue(), "01.06.2024");
}

TEST_F(Jizdy, OverlapAndBackwardsOdometerAreSavedOnlyWhenConfirmed) {
    const char* varovani =
        "Počáteční stav tachometru 1\u00a0240 km je nižší než konečný stav 1\u00a0250 km předchozí jízdy "
        "(14.10.2026 8:00 – 14.10.2026 9:00, Praha - Kladno).\n\n"
        "Přesto jízdu uložit?\n";
    for (bool ano : {false, true}) {
        m_prompts.clear();
        m_prompts.answerQuestion(ano);
        JizdaDialog dialog(m_frame);
        const Outcome outcome = fillAndOk(dialog, [](wxDialog* d) {
            vyplnit(d);
            typeText(d, "startkm", "1 240");
        });
        EXPECT_EQ(outcome.closed, ano);
        EXPECT_EQ(m_prompts.transcript(), u8(varovani));
        EXPECT_EQ(m_model->jizdyVozidla(1).size(), ano ? 2u : 1u);
    }
    // Another vehicle at the same time with the same driver.
    m_prompts.clear();
    m_prompts.answerQuestion(false);
    JizdaDialog dialog(m_frame);
    fillAndOk(dialog, [](wxDialog* d) {
        vyplnit(d);
        choose(field<wxChoice>(d, "vozidlo"), 1);
        typeText(d, "startkm", "10");
        typeText(d, "endkm", "20");
    });
    EXPECT_THAT(std::string(m_prompts.transcript().utf8_str()), ::testing::StartsWith(
                    std::string(u8("Řidič má v tu dobu jinou jízdu: 15.10.2026 8:00 – 15.10.2026 10:30").utf8_str())));
}

TEST_F(Jizdy, VehicleFormReadsTheConsumptionAsTyped) {
    struct {
        const char* rz;
        const char* spotreba;
        const char* zprava;
    } cases[] = {
        {"", "6,5", "RZ nemůže být prázdná\n"},
        {"1ab 2345", "6,5", "Vozidlo s RZ '1AB 2345' už existuje\n"},
        {"3EF 1111", "12.500",
         "Spotřeba: „12.500“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), tisíce mezerou (12 500).\n"},
        {"3EF 1111", "0", "Spotřeba musí být větší než nula a menší než 1 000.\n"},
        {"3EF 1111", "6,5", ""},
    };
    for (const auto& c : cases) {
        m_prompts.clear();
        VozidloDialog dialog(m_frame);
        const Outcome outcome = fillAndOk(dialog, [&c](wxDialog* d) {
            typeText(d, "jmeno", u8("Fabia"));
            typeText(d, "rz", c.rz);
            typeText(d, "spotreba", c.spotreba);
        });
        EXPECT_EQ(outcome.closed, !*c.zprava) << c.spotreba;
        EXPECT_EQ(m_prompts.transcript(), u8(c.zprava)) << c.rz << " " << c.spotreba;
        if (outcome.closed) {
            const Vozidlo v = m_model->getVozidlo(dialog.vozidloId());
            EXPECT_EQ(v.spotreba(), 6.5);
            EXPECT_EQ(v.rz(), "3EF 1111");
            EXPECT_TRUE(v.soukrome());
            EXPECT_EQ(v.phmid(), 1);
            VozidloDialog edit(m_frame, v.id());
            EXPECT_EQ(field<lxAmountCtrl>(&edit, "spotreba")->GetValue(), "6,50");
            screenshot(edit, "vozidlo");
        }
    }
}

TEST_F(Jizdy, CodeListsKeepWhatTripsAndVehiclesStillName) {
    struct {
        JizdyCiselnik (*popis)();
        int id;
        const char* zprava;
    } cases[] = {
        {&jizdyciselniky::vozidla, 1, "Vozidlo má zapsané jízdy, nelze ho smazat.\n"},
        {&jizdyciselniky::ridici, 1, "Řidič má zapsané jízdy, nelze ho smazat.\n"},
        {&jizdyciselniky::phm, 3, "Pohonnou hmotu používá některé vozidlo, nelze ji smazat.\n"},
        {&jizdyciselniky::druhyVozidel, 1, "Tento druh má některé vozidlo, nelze ho smazat.\n"},
    };
    for (const auto& c : cases) {
        m_prompts.clear();
        m_prompts.answerQuestion(true);
        JizdyCiselnikDialog dialog(m_frame, c.popis());
        dialog.deleteRow(c.id);
        ASSERT_EQ(m_prompts.shown().size(), 2u);
        EXPECT_EQ(m_prompts.shown()[1].text + "\n", u8(c.zprava));
    }
    EXPECT_TRUE(m_model->hasVozidlo(1));
    EXPECT_TRUE(m_model->hasRidic(1));
    // A driver without trips goes.
    m_prompts.answerQuestion(true);
    JizdyCiselnikDialog ridici(m_frame, jizdyciselniky::ridici());
    EXPECT_EQ(listTexts(ridici.list(), 0).size(), 2u);
    ridici.deleteRow(2);
    EXPECT_FALSE(m_model->hasRidic(2));
    screenshot(ridici, "ridici");

    JizdyCiselnikDialog vozidla(m_frame, jizdyciselniky::vozidla());
    EXPECT_EQ(listTexts(vozidla.list(), 0), wxArrayString(2, std::array<wxString, 2>{"1AB 2345", "2CD 6789"}.data()));
    EXPECT_EQ(listTexts(vozidla.list(), 4)[0], "6,5");
    screenshot(vozidla, "vozidla");
}

TEST_F(Jizdy, AllowancesOnePerYearAndTheTrailerKindIsARealRow) {
    // The trailer surcharge is the kind 0; its allowance list and its form work like any other.
    JizdyCiselnikDialog nahrady(m_frame, jizdyciselniky::nahradyKm(0));
    EXPECT_EQ(listTexts(nahrady.list(), 1)[0], "6,785");
    screenshot(nahrady, "nahradykm");

    NahradaKmDialog dialog(m_frame, 0);
    const Outcome stejny = fillAndOk(dialog, [](wxDialog* d) {
        field<wxSpinCtrl>(d, "rok")->SetValue(2026);
        typeText(d, "nahrada", "7,1");
    });
    EXPECT_FALSE(stejny.closed);
    EXPECT_EQ(m_prompts.transcript(), u8("Náhrada pro rok 2026 je už zadána.\n"));

    m_prompts.clear();
    NahradaKmDialog nova(m_frame, 0);
    const Outcome ulozena = fillAndOk(nova, [](wxDialog* d) {
        field<wxSpinCtrl>(d, "rok")->SetValue(2027);
        typeText(d, "nahrada", "7,1");
    });
    EXPECT_TRUE(ulozena.closed) << m_prompts.transcript();
    bool nalezena = false;
    for (const auto& n : m_model->nahradyKm(2027)) nalezena = nalezena || (n->druhvozidlaid() == 0 && n->nahrada() == 7.1);
    EXPECT_TRUE(nalezena);
}

TEST_F(Jizdy, ReimbursementOfTheMonthListsTheTripsAndTheTotal) {
    // 100 km in October 2026: 100 × 5,90 + 34,70 × 6,5 = 815,55.
    ASSERT_TRUE(m_model->addJizda(Jizda(2, cas("2026-10-20 08:00:00"), cas("2026-10-20 12:00:00"), 1250, 1350,
                                        u8("Praha - Benešov"), u8("Zakázka"), 1, 1)));
    NahradaDialog dialog(m_frame);
    choose(field<wxChoice>(&dialog, "mesic"), 9);
    field<wxSpinCtrl>(&dialog, "rok")->SetValue(2026);
    dialog.prepocitat();
    const wxArrayString castky = listTexts(dialog.list(), 6);
    ASSERT_EQ(castky.size(), 2u);
    EXPECT_EQ(castky[0], u8("407,78"));  // 50 km: 295 + 112,775
    EXPECT_EQ(castky[1], u8("815,55"));
    EXPECT_EQ(listTexts(dialog.list(), 1)[1], u8("Praha - Benešov"));
    EXPECT_EQ(dialog.souhrn(), u8("Jízd: 2, celkem 150 km, náhrada celkem 1\u00a0223,33 Kč"));
    screenshot(dialog, "nahrada");

    // 2025 has no stored allowance: the reason is shown instead of a total.
    field<wxSpinCtrl>(&dialog, "rok")->SetValue(2025);
    dialog.prepocitat();
    EXPECT_EQ(dialog.list()->GetItemCount(), 0);
    ASSERT_TRUE(m_model->addJizda(Jizda(3, cas("2025-10-20 08:00:00"), cas("2025-10-20 12:00:00"), 100, 200, "", "", 1, 1)));
    dialog.prepocitat();
    EXPECT_THAT(std::string(dialog.souhrn().utf8_str()), ::testing::StartsWith("Pro rok 2025"));
}

TEST_F(Jizdy, ReimbursementSheetSavedAsPdfFromTheStoredTrips) {
    ASSERT_TRUE(m_model->addJizda(Jizda(2, cas("2026-10-20 08:00:00"), cas("2026-10-20 12:00:00"), 1250, 1350,
                                        u8("Praha - Benešov"), u8("Zakázka"), 1, 1)));
    const wxString pdf = m_home + "/nahrada.pdf";
    m_prompts.answerChoice(1);  // "Uložit do PDF"
    m_prompts.answerPath(pdf);
    ASSERT_EQ(tiskNahrady(m_frame, 1, 2026, 10), pdf) << m_prompts.transcript();
    const wxString text = PrintTest::pdfText(pdf);
    for (const char* expected : {"Náhrada za použití soukromého vozidla", "RZ: 1AB 2345", "Měsíc: Říjen 2026",
                                 "Praha - Kladno", "407,78", "815,55", "1 223,33"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected;

    // A month that cannot be computed is told, and nothing is printed.
    ASSERT_TRUE(m_model->addJizda(Jizda(3, cas("2025-10-20 08:00:00"), cas("2025-10-20 12:00:00"), 100, 200, "", "", 1, 1)));
    m_prompts.clear();
    EXPECT_EQ(tiskNahrady(m_frame, 1, 2025, 10), "");
    EXPECT_EQ(m_prompts.transcript(),
              u8("Pro rok 2025 není zadána základní náhrada za km pro druh vozidla „Osobní silniční motorové vozidlo“.\n"));
}

TEST_F(Jizdy, PageOfTheYearPrintsExportsChecksAndDeletes) {
    ASSERT_TRUE(m_model->addJizda(Jizda(2, cas("2024-03-01 08:00:00"), cas("2024-03-01 09:00:00"), 500, 560,
                                        u8("Praha - Mělník"), u8("Nákup"), 1, 1)));
    ASSERT_TRUE(m_model->addJizda(Jizda(3, cas("2024-03-02 08:00:00"), cas("2024-03-02 09:00:00"), 550, 600,
                                        u8("Mělník - Praha"), u8("Návrat"), 1, 2)));
    m_book->setJizdyVisible(true);
    m_book->createPages();
    m_book->selectPage(NAV_JIZDY);
    lxBookPage* page = m_book->page(NAV_JIZDY);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->list()->GetItemCount(), 2);  // the 2026 trip is in another year
    for (lxBookAction a : {BOOK_ADD, BOOK_EDIT, BOOK_COPY, BOOK_DELETE}) {
        page->list()->selectId(2);
        EXPECT_TRUE(page->canRun(a)) << a;
    }

    // The book of the selected trip's vehicle, saved as PDF.
    const wxString pdf = m_home + "/kniha.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(pdf);
    page->print();
    const wxString text = PrintTest::pdfText(pdf);
    for (const char* expected : {"Vozidlo: 1AB 2345, Škoda Octavia", "Období: 01.03.2024 – 02.03.2024",
                                 "Praha - Mělník", "Eva Černá", "Jízd: 2", "110"})
        EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected << "\n" << text;

    const wxString csv = m_home + "/jizdy.csv";
    ASSERT_TRUE(page->exportCsv(csv));
    wxString obsah;
    wxFile(csv).ReadAll(&obsah, wxConvUTF8);
    EXPECT_TRUE(obsah.Contains(u8("Mělník - Praha"))) << obsah;

    // The odometer goes back 10 km between the two trips.
    m_prompts.clear();
    page->list()->selectId(3);
    ASSERT_TRUE(page->runRowCommand(1));
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Kontrola tachometru"));
    EXPECT_TRUE(m_prompts.shown()[0].text.Contains(u8("tachometr jde zpět, počáteční stav 550 km je nižší než "
                                                      "konečný stav 560 km")))
        << m_prompts.shown()[0].text;

    m_prompts.answerQuestion(true);
    page->list()->selectId(3);
    ASSERT_TRUE(page->run(BOOK_DELETE));
    EXPECT_FALSE(m_model->hasJizda(3));
    EXPECT_EQ(page->list()->GetItemCount(), 1);
}

TEST_F(Jizdy, FuelPriceValidOnceForEachDay) {
    struct {
        const char* cena;
        const char* od;
        const char* doKdy;
        const char* zprava;
    } cases[] = {
        {"34,50", "1.6.2026", "31.12.2026", "V tomto období už platí cena 34,70 (od 01.01.2026 do 31.12.2026).\n"},
        {"34,50", "1.1.2027", "31.2.2027", "Platí do: „31.2.2027“ není platné datum.\nZadejte například 15.10.2026.\n"},
        {"34,50", "31.12.2027", "1.1.2027", "Konec platnosti je dříve než její začátek.\n"},
        {"-1", "1.1.2027", "31.12.2027", "Cena nemůže být záporná.\n"},
        {"34,50", "1.1.2027", "31.12.2027", ""},
    };
    for (const auto& c : cases) {
        m_prompts.clear();
        CenaPhmDialog dialog(m_frame, 1);
        const Outcome outcome = fillAndOk(dialog, [&c](wxDialog* d) {
            typeText(d, "cena", c.cena);
            typeDate(d, "validfrom", c.od);
            typeDate(d, "validto", c.doKdy);
        });
        EXPECT_EQ(outcome.closed, !*c.zprava) << c.od;
        EXPECT_EQ(m_prompts.transcript(), u8(c.zprava)) << c.od;
    }
    const lxCenaPhmArray ceny = m_model->cenyPhm(1);
    EXPECT_EQ(ceny.back()->cena(), 34.5);
    EXPECT_EQ(ceny.back()->validFrom(), iso("2027-01-01"));
    // A copy starts a year later.
    CenaPhmDialog kopie(m_frame, 1, -1, ceny.back()->id());
    EXPECT_EQ(field<wxTextCtrl>(&kopie, "validfromText")->GetValue(), "01.01.2028");
    screenshot(kopie, "cenaphm");
}
