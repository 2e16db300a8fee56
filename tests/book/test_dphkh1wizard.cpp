// The control statement wizard driven as a person does: the period typed, the kind chosen, a
// sale above the limit seen as its own row and in the summary, rows added, refused, deleted and
// read again from the books, the summary changed by hand, the statement saved; a quick answer
// to a summons and a statement with nothing in it.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include <functional>

#include "Dphkh1VetaDialog.h"
#include "Dphkh1Wizard.h"
#include "booktest.h"
#include "controls/lxdatectrl.h"
#include "dphdoklady.h"
#include "podanipages.h"

using kh1::Sekce;
using ::testing::HasSubstr;

namespace {

const wxString NBSP = wxString::FromUTF8("\u00a0");

// Runs `person` on the row dialog a page opens modally, then presses OK; a dialog that stays
// open is cancelled afterwards. Tells whether OK closed it.
void answerRowDialog(const std::function<void(wxDialog*)>& person, bool* closed) {
    wxTheApp->CallAfter([person, closed] {
        Dphkh1VetaDialog* dialog = nullptr;
        for (wxWindow* w : wxTopLevelWindows)
            if (auto* d = dynamic_cast<Dphkh1VetaDialog*>(w); d && d->IsModal()) dialog = d;
        ASSERT_TRUE(dialog);
        person(dialog);
        pressOk(dialog);
        *closed = !dialog->IsModal();
        if (dialog->IsModal()) dialog->EndModal(wxID_CANCEL);
    });
}

}  // namespace

class Dphkh1WizardTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
        m_prompts.clear();
    }
    // Pages 1 to 3: March 2024 typed as free dates, a regular statement.
    void brezen(Dphkh1Wizard& w, const char* od = "1.3.2024") {
        w.ShowPage(w.firstPage());
        w.Show();
        wizardNext(w);
        ASSERT_EQ(w.GetCurrentPage(), w.page2());
        selectRadio(w.page2(), "volbaObdobi");
        typeDate(w.page2(), "od", od);
        typeDate(w.page2(), "do", "31. 3. 2024");
        typeDate(w.page2(), "datumVyhotoveni", "15.4.2024");
        wizardNext(w);
        ASSERT_EQ(w.GetCurrentPage(), w.page3());
        selectRadio(w.page3(), "formaB");
    }
    void naStranku(Dphkh1Wizard& w, Sekce s) {
        for (int i = 0; i < 12 && w.GetCurrentPage() != w.sekcePage(s); ++i) wizardNext(w);
        ASSERT_EQ(w.GetCurrentPage(), w.sekcePage(s));
    }
    wxListCtrl* seznam(Dphkh1Wizard& w, Sekce s) { return field<wxListCtrl>(w.sekcePage(s), "seznam"); }
    static void vybrat(wxListCtrl* list, long row) {
        list->SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    }
};

TEST_F(Dphkh1WizardTest, SaleAtTheLimitIsARowAndInTheSummaryRowsEditedAndSaved) {
    const DokladForm prodej =
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2", {{21, 10000}});
    Dphkh1Wizard w(m_frame, m_model.get());
    brezen(w);
    screenshot(w, "dphkh1wizard-page3");
    w.Show();
    naStranku(w, Sekce::A4);
    screenshot(w, "dphkh1wizard-a4");
    w.Show();
    Dphkh1& p = w.dphkh1();
    EXPECT_EQ(p.atributValue("VetaD", "zdobd_od"), "01.03.2024");
    wxListCtrl* a4 = seznam(w, Sekce::A4);
    ASSERT_EQ(a4->GetItemCount(), 1);
    EXPECT_EQ(listTexts(a4, 0)[0], "CZ27082440");
    EXPECT_EQ(listTexts(a4, 1)[0], prodej.cislo);
    EXPECT_EQ(listTexts(a4, 2)[0], "10.03.2024");
    EXPECT_EQ(listTexts(a4, 3)[0], "8" + NBSP + "264,46");
    EXPECT_EQ(listTexts(a4, 4)[0], "1" + NBSP + "735,54");
    EXPECT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 2 * 8264.46);  // A.4 and A.5 both hold it

    // Deleting asks about the row by its DIČ and number; No keeps it.
    vybrat(a4, 0);
    pressButton(w.sekcePage(Sekce::A4), "smazatRadek");
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Smazat řádek pro CZ27082440,\ndoklad ") + prodej.cislo + "?");
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Dotaz"));
    EXPECT_EQ(a4->GetItemCount(), 1);
    m_prompts.answerQuestion(true);
    pressButton(w.sekcePage(Sekce::A4), "smazatRadek");
    EXPECT_EQ(a4->GetItemCount(), 0);
    EXPECT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 8264.46);
    pressButton(w.sekcePage(Sekce::A4), "znovuNacist");
    EXPECT_EQ(a4->GetItemCount(), 1);
    EXPECT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 2 * 8264.46);

    // A row typed by hand: refused while its DIČ is empty, then taken as the second row.
    bool closed = true;
    answerRowDialog([](wxDialog* d) { typeText(d, "c_evid_dd", "FV-99"); }, &closed);
    pressButton(w.sekcePage(Sekce::A4), "pridatRadek");
    EXPECT_FALSE(closed);
    EXPECT_EQ(a4->GetItemCount(), 1);
    answerRowDialog(
        [](wxDialog* d) {
            typeText(d, "dic_odb", "CZ 123 456 78");
            typeText(d, "c_evid_dd", "FV-99");
            typeDate(d, "dppd", "15.3.2024");
            typeText(d, "zakl_dane1", u8("1 250,50"));
            typeText(d, "dan1", u8("262,61"));
        },
        &closed);
    pressButton(w.sekcePage(Sekce::A4), "pridatRadek");
    EXPECT_TRUE(closed);
    ASSERT_EQ(a4->GetItemCount(), 2);
    EXPECT_EQ(listTexts(a4, 0)[1], "CZ12345678");
    EXPECT_EQ(listTexts(a4, 3)[1], "1" + NBSP + "250,50");
    EXPECT_EQ(p.atributValue("VetaA4", "c_radku", 1), "2");
    EXPECT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 2 * 8264.46 + 1250.50);

    // The summary shows the sale; a sum that does not read keeps the user on the page.
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.sekcePage(Sekce::A5));
    screenshot(w, "dphkh1wizard-a5");
    w.Show();
    EXPECT_EQ(field<wxTextCtrl>(w.sekcePage(Sekce::A5), "zakl_dane1")->GetValue(), "8" + NBSP + "264,46");
    EXPECT_EQ(field<wxTextCtrl>(w.sekcePage(Sekce::A5), "dan1")->GetValue(), "1" + NBSP + "735,54");
    m_prompts.clear();
    typeText(w.sekcePage(Sekce::A5), "zakl_dane1", u8("9 000,5x"));
    wizardNext(w);
    EXPECT_EQ(w.GetCurrentPage(), w.sekcePage(Sekce::A5));
    EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr("Základ daně pro základní sazbu"));
    typeText(w.sekcePage(Sekce::A5), "zakl_dane1", u8("9 000,50"));
    wizardNext(w);
    EXPECT_EQ(w.GetCurrentPage(), w.sekcePage(Sekce::B1));
    EXPECT_DOUBLE_EQ(p.castka("VetaA5", "zakl_dane1"), 9000.50);
    EXPECT_DOUBLE_EQ(p.castka("VetaA5", "dan1"), 1735.54);
    EXPECT_DOUBLE_EQ(p.castka("VetaC", "obrat23"), 8264.46 + 1250.50 + 9000.50);

    naStranku(w, Sekce::B3);
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.lastPage());
    m_prompts.answerQuestion(true);
    w.OnFinished();
    ASSERT_EQ(m_model->getUlozeneCount(), 1);
    EXPECT_EQ(m_model->ulozene()[0]->typ(), 2);
    Dphkh1 ulozene;
    ASSERT_TRUE(ulozene.readFromString(m_model->ulozene()[0]->xml()));
    EXPECT_EQ(ulozene.pocetVet("VetaA4"), 2);
    EXPECT_DOUBLE_EQ(ulozene.castka("VetaA5", "zakl_dane1"), 9000.50);
}

TEST_F(Dphkh1WizardTest, RowsChangedByHandStayUntilThePeriodChanges) {
    dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2", {{21, 12100}});
    Dphkh1Wizard w(m_frame, m_model.get());
    brezen(w);
    naStranku(w, Sekce::A4);
    vybrat(seznam(w, Sekce::A4), 0);
    m_prompts.answerQuestion(true);
    pressButton(w.sekcePage(Sekce::A4), "smazatRadek");
    ASSERT_EQ(seznam(w, Sekce::A4)->GetItemCount(), 0);

    while (w.GetCurrentPage() != w.page2()) w.ShowPage(w.GetCurrentPage()->GetPrev(), false);
    typeDate(w.page2(), "datumVyhotoveni", "16.4.2024");
    wizardNext(w);
    wizardNext(w);  // the same period and kind: the deleted row stays deleted
    naStranku(w, Sekce::A4);
    EXPECT_EQ(seznam(w, Sekce::A4)->GetItemCount(), 0);
    EXPECT_EQ(w.dphkh1().atributValue("VetaD", "d_poddp"), "16.04.2024");

    while (w.GetCurrentPage() != w.page2()) w.ShowPage(w.GetCurrentPage()->GetPrev(), false);
    typeDate(w.page2(), "od", "2.3.2024");
    wizardNext(w);
    wizardNext(w);  // another period: computed again
    naStranku(w, Sekce::A4);
    EXPECT_EQ(seznam(w, Sekce::A4)->GetItemCount(), 1);
}

TEST_F(Dphkh1WizardTest, ZeroStatementIsNotFiledButAQuickAnswerIs) {
    Dphkh1Wizard w(m_frame, m_model.get());
    brezen(w);
    wizardNext(w);
    naStranku(w, Sekce::B3);
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.lastPage());
    for (const char* tlacitko : {"export", "tisk"}) {
        m_prompts.clear();
        m_prompts.answerPath(m_home + "/kh");
        pressButton(w.lastPage(), tlacitko);
        ASSERT_EQ(m_prompts.shown().size(), 1u) << tlacitko;  // no file asked for
        EXPECT_EQ(m_prompts.shown()[0].text, u8("Nulové kontrolní hlášení se nepodává."));
        EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));
    }
    EXPECT_FALSE(wxFileExists(m_home + "/kh.xml"));

    // "Nemám povinnost podat KH" needs the summons' number, then skips the sections.
    while (w.GetCurrentPage() != w.page3()) w.ShowPage(w.GetCurrentPage()->GetPrev(), false);
    choose(field<wxChoice>(w.page3(), "vyzvaOdp"), 1);
    m_prompts.clear();
    wizardNext(w);
    EXPECT_EQ(w.GetCurrentPage(), w.page3());
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_THAT(m_prompts.shown()[0].text.utf8_string(), HasSubstr("číslo jednací výzvy"));
    typeText(w.page3(), "cjVyzvy", "12345678/24/2001-00000-123456");
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.lastPage());
    EXPECT_EQ(w.dphkh1().atributValue("VetaD", "vyzva_odp"), Dphkh1::VYZVA_NULOVE);
    EXPECT_EQ(w.lastPage()->GetPrev(), w.page3());
    m_prompts.clear();
    m_prompts.answerPath(m_home + "/kh");
    EXPECT_TRUE(w.lastPage()->exportovat()) << m_prompts.transcript();
    EXPECT_TRUE(wxFileExists(m_home + "/kh.xml"));
}

// The row dialog refuses each required field left empty and every text that does not read, with
// the field's own message; the statement is not touched until everything reads.
struct Odmitnuti {
    const char* name;
    Sekce sekce;
    std::vector<std::pair<const char*, const char*>> pole;  // typed; a name ending in Text is a date
    const char* zprava;
    const char* fokus;
};

class Dphkh1VetaRefusal : public Dphkh1WizardTest, public ::testing::WithParamInterface<Odmitnuti> {};

TEST_P(Dphkh1VetaRefusal, StaysOpenWithTheMessageAndTheFocusOnTheField) {
    const Odmitnuti& c = GetParam();
    Dphkh1 p;
    Dphkh1VetaDialog dialog(m_frame, p, c.sekce, -1);
    EXPECT_EQ(dialog.GetTitle(), u8("Přidat řádek ") + kh1::kod(c.sekce));
    const Outcome o = fillAndOk(dialog, [&](wxDialog* d) {
        for (const auto& [name, text] : c.pole) typeText(d, name, u8(text));
    });
    EXPECT_FALSE(o.closed);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8(c.zprava));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));
    ASSERT_TRUE(o.focus);
    EXPECT_EQ(o.focus->GetName(), c.fokus);
    EXPECT_EQ(p.pocetVet(kh1::vetaName(c.sekce)), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, Dphkh1VetaRefusal,
    ::testing::Values(
        Odmitnuti{"A1EmptyDic", Sekce::A1, {{"c_evid_dd", "1"}}, "DIČ odběratele nemůže být prázdné", "dic_odb"},
        Odmitnuti{"A4OnlyPrefix", Sekce::A4, {{"dic_odb", "CZ"}}, "DIČ odběratele nemůže být prázdné", "dic_odb"},
        Odmitnuti{"B1EmptyDic", Sekce::B1, {}, "DIČ dodavatele nemůže být prázdné", "dic_dod"},
        Odmitnuti{"B2EmptyNumber",
                  Sekce::B2,
                  {{"dic_dod", "12345678"}, {"c_evid_dd", "   "}},
                  "Ev. číslo daňového dokladu nemůže být prázdné",
                  "c_evid_dd"},
        Odmitnuti{"A2EmptyCountry", Sekce::A2, {{"vatid_dod", "123"}}, "Kód státu nemůže být prázdný", "k_stat"},
        Odmitnuti{"A2EmptyVatId",
                  Sekce::A2,
                  {{"k_stat", "de"}},
                  "Identifikace dodavatele (VAT ID) nemůže být prázdná",
                  "vatid_dod"},
        Odmitnuti{"A3EmptyNumber", Sekce::A3, {}, "Ev. číslo daňového dokladu nemůže být prázdné", "c_evid_dd"},
        Odmitnuti{"B2BadDate",
                  Sekce::B2,
                  {{"dic_dod", "12345678"}, {"c_evid_dd", "P1"}, {"dppdText", "31.2.2024"}},
                  "DPPD: „31.2.2024“ není platné datum.\nZadejte například 15.10.2026.",
                  "dppdText"},
        Odmitnuti{"A4BadAmount",
                  Sekce::A4,
                  {{"dic_odb", "12345678"}, {"c_evid_dd", "F1"}, {"dppdText", "1.3.2024"}, {"dan1", "1.250"}},
                  "Daň 1: „1.250“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), tisíce mezerou (12 500).",
                  "dan1"}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(Dphkh1WizardTest, EditingARowKeepsWhatWasNotTouched) {
    Dphkh1 p;
    p.setAtributValue("VetaB2", "c_radku", 1, 0);
    p.setAtributValue("VetaB2", "dic_dod", "27082440", 0);
    p.setAtributValue("VetaB2", "c_evid_dd", "P-7", 0);
    p.setAtributValue("VetaB2", "dppd", "05.03.2024", 0);
    p.setCastka("VetaB2", "zakl_dane1", 12345.67, 0);
    p.setCastka("VetaB2", "dan1", 2592.59, 0);
    p.setAtributValue("VetaB2", "pomer", "A", 0);
    p.setAtributValue("VetaB2", "zdph_44", "N", 0);
    const std::string pred = p.createXml();
    Dphkh1VetaDialog dialog(m_frame, p, Sekce::B2, 0);
    EXPECT_EQ(dialog.GetTitle(), u8("Upravit řádek B2"));
    screenshot(dialog, "dphkh1veta-b2");
    EXPECT_EQ(field<wxChoice>(&dialog, "pomer")->GetSelection(), 1);
    EXPECT_TRUE(fillAndOk(dialog, [](wxDialog*) {}).closed);
    EXPECT_EQ(p.createXml(), pred);
}
