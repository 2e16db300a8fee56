// The asset book as a person uses it: the asset dialog with typed price and dates, its
// refusals, the plan below the fields, a changed price recomputing the stored years, the
// depreciation groups, and the asset card read back from its PDF.
#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filefn.h>
#include <wx/listctrl.h>
#include <wx/utils.h>

#include "MajetekDialog.h"
#include "OdpiskupinaDialog.h"
#include "book/majetekpage.h"
#include "booktest.h"
#include "clock.h"
#include "lxsettings.h"
#include "printtest.h"

using ::testing::HasSubstr;

class AssetBook : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        lxutils::setToday(iso("2026-06-15"));
        lxSettings::instance()->setDatum(iso("2026-06-15"));
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        BookTest::TearDown();
    }
    static std::vector<wxString> column(wxListCtrl* list, int c) {
        std::vector<wxString> out;
        for (long i = 0; i < list->GetItemCount(); ++i) out.push_back(list->GetItemText(i, c));
        return out;
    }
};

TEST_F(AssetBook, TypedAssetIsStoredWithItsDepreciationAndPlan) {
    MajetekDialog dialog(m_frame);
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "cislo")->GetValue(), m_model->getCisloDokladu("MA"));
    const wxString cislo = field<wxTextCtrl>(&dialog, "cislo")->GetValue();
    const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
        typeText(d, "nazev", u8("Soustruh \"Alfa\""));
        typeDate(d, "porizen", "15.10.2024");
        typeText(d, "cena", "10 000,00");
        choose(field<wxChoice>(d, "odpis"), 2);  // accelerated, group 1 stays chosen
    });
    ASSERT_TRUE(o.closed) << m_prompts.transcript();
    screenshot(dialog, "majetek");
    // The plan shows the group's three years; the first two are claimed, the last is to come.
    EXPECT_EQ(column(dialog.plan(), 0), (std::vector<wxString>{"2024", "2025", "2026"}));
    EXPECT_EQ(column(dialog.plan(), 1), (std::vector<wxString>{u8("3\u00a0333,00"), u8("4\u00a0444,00"),
                                                                u8("2\u00a0223,00")}));
    const Majetek m = m_model->getMajetek(dialog.id());
    EXPECT_EQ(m.nazev(), u8("Soustruh \"Alfa\""));
    EXPECT_EQ(m.cena(), 10000);
    EXPECT_EQ(m.cislo(), cislo);
    EXPECT_NE(m_model->getCisloDokladu("MA"), cislo);  // the series moved on
    EXPECT_EQ(m_model->getOdpisy(m.id(), 2026), 10000);
    EXPECT_EQ(m_model->getZustatkovaCenaMajetku(m.id()), 0);

    // A new price drops the stored years and computes them again, after a question.
    m_prompts.answerQuestion(true);
    MajetekDialog edit(m_frame, m.id());
    EXPECT_EQ(column(edit.plan(), 3), (std::vector<wxString>{u8("uplatněno"), u8("uplatněno"), u8("uplatněno")}));
    typeText(&edit, "cena", "1 250,50");
    choose(field<wxChoice>(&edit, "odpis"), 1);
    EXPECT_EQ(column(edit.plan(), 3), (std::vector<wxString>{u8("plán"), u8("plán"), u8("plán")}));
    ASSERT_TRUE(edit.save()) << m_prompts.transcript();
    std::vector<double> roky;
    for (const auto& od : m_model->odpisyMajetku(m.id(), 2026)) roky.push_back(od->odpis());
    EXPECT_EQ(roky, (std::vector<double>{250, 500, 500.5}));
}

TEST_F(AssetBook, RefusalsNameTheFieldAndStoreNothing) {
    struct {
        const char* nazev;
        const char* porizen;
        const char* cena;
        bool vyrazen;
        const char* datumVyrazeni;
        const char* zprava;
    } cases[] = {
        {"", "15.10.2026", "100", false, "", "Název nemůže být prázdný"},
        {"Vrtačka", "31.2.2024", "100", false, "", "Pořízeno: „31.2.2024“ není platné datum"},
        {"Vrtačka", "15.10.2026", "12.500", false, "", "Vstupní cena: „12.500“ je nejednoznačné"},
        {"Vrtačka", "15.10.2026", "0", false, "", "Vstupní cena odpisovaného majetku musí být kladná"},
        {"Vrtačka", "15.10.2026", "100", true, "1.1.2026", "Datum vyřazení nemůže být dříve než datum pořízení"},
    };
    const int rows = m_model->tableRows("majetek");
    for (const auto& c : cases) {
        m_prompts.clear();
        MajetekDialog dialog(m_frame);
        typeText(&dialog, "nazev", u8(c.nazev));
        typeDate(&dialog, "porizen", c.porizen);
        typeText(&dialog, "cena", u8(c.cena));
        field<wxCheckBox>(&dialog, "vyrazen")->SetValue(c.vyrazen);
        if (c.vyrazen) typeDate(&dialog, "datumvyrazeni", c.datumVyrazeni);
        EXPECT_FALSE(dialog.save()) << c.zprava;
        EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr(c.zprava));
    }
    EXPECT_EQ(m_model->tableRows("majetek"), rows);
}

TEST_F(AssetBook, GroupRatesAreTypedAsPeopleWriteThem) {
    OdpiskupinaDialog dialog(m_frame, 2);
    typeText(&dialog, "rov2", "22,5");
    typeText(&dialog, "odpisovat", "pět");
    EXPECT_FALSE(dialog.save());
    EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr("celé číslo"));
    typeText(&dialog, "odpisovat", "5");
    ASSERT_TRUE(dialog.save());
    const Odpiskupina s = m_model->getOdpiskupina(2);
    EXPECT_EQ(s.rov2(), 22.5);
    EXPECT_EQ(s.rov1(), 11);  // untouched fields keep the exact stored value
}

TEST_F(AssetBook, CardPrintsTheWholePlanToTheEnd) {
    MajetekForm form;
    form.cislo = "MA0007";
    form.nazev = u8("Dodávka Ž");
    form.porizen = iso("2025-03-01");
    form.cena = 500000;
    form.odpis = 1;
    form.skupinaid = 2;
    const int id = ulozitMajetek(*m_model, form, -1);
    ASSERT_GT(id, 0);
    const KartaMajetku karta = majetekpage::kartaMajetku(*m_model, id);
    ASSERT_EQ(karta.roky.size(), 5u);  // group 2: five years, two claimed by 2026
    EXPECT_TRUE(karta.roky[1].uplatneno);
    EXPECT_FALSE(karta.roky[2].uplatneno);
    EXPECT_EQ(karta.roky.back().zustatek, 0);

    const wxString pdf = m_home + "/karta.pdf";
    m_prompts.answerChoice(1);
    m_prompts.answerPath(pdf);
    majetekpage::tiskKarty(m_frame, id);
    wxString shots;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(pdf, shots + "/karta.pdf");
    const std::string text = PrintTest::pdfText(pdf, 0).utf8_string();
    EXPECT_THAT(text, HasSubstr("Karta majetku MA0007"));
    EXPECT_THAT(text, HasSubstr(u8("Dodávka Ž").utf8_string()));
    EXPECT_THAT(text, HasSubstr("2029"));  // the last year of the plan
    EXPECT_THAT(text, HasSubstr("55 000,00"));   // 11 % in the first year
    EXPECT_THAT(text, HasSubstr("111 250,00"));  // 22.25 % in the later ones
}
