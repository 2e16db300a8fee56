// The EC sales list wizard driven as a person does: the month chosen, the rows computed from
// the invoices to customers in other member states (counted and summed per customer and code
// of supply, foreign currency in crowns, values rounded up), rows refused, added, edited and
// deleted through their dialog, a list without rows neither printed nor exported, the list
// saved on finishing, and a follow-up list started from the saved one.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/listctrl.h>
#include <wx/prntbase.h>
#include <wx/radiobut.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <functional>

#include "DphshVetarDialog.h"
#include "DphshWizard.h"
#include "UlozeneDialog.h"
#include "booktest.h"
#include "controls/lxdatectrl.h"
#include "dph/dphkh1fill.h"
#include "dphdoklady.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

// The rows of page 3 as "country|VAT id|code|count|value|storno", top to bottom.
std::vector<std::string> radky(ShPage3* page) {
    std::vector<std::string> out;
    wxListCtrl* list = page->list();
    for (long i = 0; i < list->GetItemCount(); ++i) {
        wxString r = list->GetItemText(i, 1) + "|" + list->GetItemText(i, 2) + "|" + list->GetItemText(i, 3) + "|" +
                     list->GetItemText(i, 4) + "|" + list->GetItemText(i, 5) + "|" + list->GetItemText(i, 0);
        r.Replace(wxString(wxUniChar(0x00A0)), " ");
        out.push_back(r.utf8_string());
    }
    return out;
}

void vybratRadek(ShPage3* page, int index) {
    page->list()->SetItemState(index, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
}

// Runs `otevrit`, which opens the row dialog modally; once it is up, `person` fills it in and
// OK is pressed. A dialog that stays open is cancelled. True when OK closed it.
bool radkovyDialog(const std::function<void()>& otevrit, const std::function<void(wxDialog*)>& person) {
    bool closed = false, found = false;
    wxTheApp->CallAfter([&] {
        for (wxWindow* t : wxTopLevelWindows) {
            auto* d = dynamic_cast<DphshVetarDialog*>(t);
            if (!d || !d->IsModal()) continue;
            found = true;
            person(d);
            pressOk(d);
            closed = !d->IsModal();
            if (!closed) d->EndModal(wxID_CANCEL);
        }
    });
    otevrit();
    EXPECT_TRUE(found) << "the row dialog did not open";
    return closed;
}

void vyplnit(wxDialog* d, const char* stat, const char* cislo, int kod, const char* pocet, const char* hodnota) {
    typeText(d, "stat", u8(stat));
    typeText(d, "cislo", u8(cislo));
    choose(field<wxChoice>(d, "kod"), kod);
    typeText(d, "pocet", u8(pocet));
    typeText(d, "hodnota", u8(hodnota));
}

}  // namespace

class DphshWizardTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        for (const auto& [nazev, dic] : {std::pair{"Gamma GmbH", "DE123456789"}, {"Delta SARL", "FR12345678901"}})
            m_model->addKontaktSAdresou(Kontakt(-1, u8(nazev), "", "", dic, "", true, -1),
                                        Adresa(-1, "", "", "", "", ""));
        int eur = 0;
        for (const auto& mena : m_model->meny())
            if (mena->kod() == "EUR") eur = mena->id();
        ASSERT_GT(eur, 0);
        // Goods to Gamma twice (1 000 + 234,10), to Delta in euros, services to Gamma once,
        // and goods in April that March does not take.
        faktura("2024-03-04", "R20", 1000);
        faktura("2024-03-05", "R20", 234.10);
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-11", "2024-03-11", "R20", {{0, 100}}, wxString(),
                  u8("Delta SARL"), eur, 25.125);
        faktura("2024-03-20", "R21", 500);
        faktura("2024-04-02", "R20", 9999);
        m_prompts.clear();
    }
    void faktura(const char* datum, const char* druh, double cena) {
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, datum, datum, druh, {{0, cena}}, wxString(), u8("Gamma GmbH"));
    }
    // Page 1 with March 2024 and the day of filling in, then page 2 as it stands.
    void brezen(DphshWizard& w) {
        w.ShowPage(w.page1());
        choose(field<wxChoice>(w.page1(), "mesic"), 2);
        typeText(w.page1(), "datumVyplneniText", u8("10.4.2024"));
        wizardNext(w);
        ASSERT_EQ(w.GetCurrentPage(), w.page2());
    }
    void ulozitBrezen() {
        DphshWizard w(m_frame, m_model.get());
        brezen(w);
        wizardNext(w);
        m_prompts.answerQuestion(true);
        w.OnFinished();
    }
};

TEST_F(DphshWizardTest, RowsPerCustomerAndCodeInCrownsRoundedUpExportedAndSaved) {
    DphshWizard w(m_frame, m_model.get());
    brezen(w);
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page3());
    EXPECT_THAT(radky(w.page3()), ElementsAre("DE|123456789|0|2|1 235,00|",    // 1 234,10 up to 1 235
                                              "FR|12345678901|0|1|2 513,00|",  // 100 EUR × 25,125
                                              "DE|123456789|3|1|500,00|"));
    const Dphshv& p = w.dphshv();
    EXPECT_EQ(p.atributValue("VetaD", "mesic"), "3");
    EXPECT_EQ(p.atributValue("VetaD", "rok"), "2024");
    EXPECT_EQ(p.atributValue("VetaD", "d_poddp"), "10.04.2024");
    EXPECT_EQ(p.atributValue("VetaD", "shvies_forma"), Dphshv::RADNE);
    EXPECT_EQ(p.atributValue("VetaR", "pln_hodnota", 1), "2513");
    EXPECT_EQ(p.atributValue("VetaR", "c_rad", 2), "3");

    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page4());
    const wxString path = m_home + "/hlaseni";
    m_prompts.answerPath(path);
    pressButton(w.page4(), "export");
    EXPECT_EQ(lxutils::validateXml(fileBytes(path + ".xml"), lxutils::xsdDir() + "/dphshv_epo2.xsd"), "");
    EXPECT_EQ(fileBytes(path + ".xml"), p.createXml());

    m_prompts.clear();
    m_prompts.answerQuestion(true);
    w.OnFinished();
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Uložit souhrnné hlášení?"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Dotaz"));
    const lxUlozeneArray ulozene = m_model->ulozene();
    ASSERT_EQ(ulozene.size(), 1u);
    EXPECT_EQ(ulozene[0]->typ(), 1);
    EXPECT_EQ(ulozene[0]->forma(), Dphshv::RADNE);
    EXPECT_EQ(ulozene[0]->mesic(), 3);
    EXPECT_EQ(ulozene[0]->xml(), p.saveToString());
}

TEST_F(DphshWizardTest, AMonthWithoutSuppliesIsNeitherPrintedNorExported) {
    DphshWizard w(m_frame, m_model.get());
    w.ShowPage(w.page1());
    choose(field<wxChoice>(w.page1(), "mesic"), 1);  // February
    wizardNext(w);
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page3());
    EXPECT_EQ(w.page3()->list()->GetItemCount(), 0);
    wizardNext(w);
    for (const char* button : {"tisk", "export"}) {
        m_prompts.clear();
        pressButton(w.page4(), button);
        ASSERT_EQ(m_prompts.shown().size(), 1u) << button;  // no file asked for
        EXPECT_EQ(m_prompts.shown()[0].text, u8("Nejsou žádné doklady pro vybrané období"));
        EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));
    }
}

// The name stays inside this file: other tests of the executable have their own refusal cases.
namespace {
struct ShOdmitnuti {
    const char* name;
    const char* stat;
    const char* cislo;
    int kod;
    const char* pocet;
    const char* hodnota;
    const char* zprava;
    const char* pole;  // where the focus is left
};
}  // namespace

class DphshRadekOdmitnuti : public DphshWizardTest, public ::testing::WithParamInterface<ShOdmitnuti> {};

TEST_P(DphshRadekOdmitnuti, DialogStaysOpenAndTheListIsUnchanged) {
    const ShOdmitnuti c = GetParam();
    DphshWizard w(m_frame, m_model.get());
    brezen(w);
    wizardNext(w);
    const std::vector<std::string> pred = radky(w.page3());
    const std::string xml = w.dphshv().createXml();
    m_prompts.clear();
    wxString focus;  // the dialog is gone afterwards: its field is remembered by name
    EXPECT_FALSE(radkovyDialog([&] { pressButton(w.page3(), "pridat"); },
                               [&](wxDialog* d) {
                                   EXPECT_FALSE(field<wxCheckBox>(d, "storno")->IsEnabled());  // not a follow-up
                                   vyplnit(d, c.stat, c.cislo, c.kod, c.pocet, c.hodnota);
                                   pressOk(d);
                                   if (wxWindow* f = wxWindow::FindFocus()) focus = f->GetName();
                               }));
    ASSERT_GE(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "info");
    EXPECT_EQ(m_prompts.shown()[0].text, u8(c.zprava));
    EXPECT_EQ(focus, c.pole);
    EXPECT_EQ(radky(w.page3()), pred);
    EXPECT_EQ(w.dphshv().createXml(), xml);
}

INSTANTIATE_TEST_SUITE_P(
    Radek, DphshRadekOdmitnuti,
    ::testing::Values(
        ShOdmitnuti{"no_country", " ", "987654321", 0, "1", "100", "Kód země nemůže být prázdný", "stat"},
        ShOdmitnuti{"no_vat_id", "AT", " - ", 0, "1", "100", "DIČ pořizovatele zboží nemůže být prázdné", "cislo"},
        ShOdmitnuti{"zero_count", "AT", "U12345678", 0, "0", "100", "Počet plnění nemůže být nulový", "pocet"},
        ShOdmitnuti{"empty_count", "AT", "U12345678", 0, "", "100", "Počet plnění nemůže být nulový", "pocet"},
        ShOdmitnuti{"fractional_count", "AT", "U12345678", 0, "1,5", "100", "Počet plnění musí být celé kladné číslo",
                    "pocet"},
        ShOdmitnuti{"zero_value", "AT", "U12345678", 0, "2", "0,00", "Celková hodnota plnění nemůže být nulová",
                    "hodnota"},
        ShOdmitnuti{"empty_value", "AT", "U12345678", 3, "2", "", "Celková hodnota plnění nemůže být nulová",
                    "hodnota"},
        ShOdmitnuti{"same_customer_and_code", "de", "123 456 789", 0, "1", "5",
                    "Řádek pro DE123456789 s kódem plnění 0 už v hlášení je", "cislo"}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(DphshWizardTest, RowsAddedEditedDeletedAndComputedAgain) {
    DphshWizard w(m_frame, m_model.get());
    brezen(w);
    wizardNext(w);
    ShPage3* page = w.page3();

    EXPECT_TRUE(radkovyDialog([&] { pressButton(page, "pridat"); },
                              [](wxDialog* d) { vyplnit(d, "at", "U 1234-5678", 2, "3", "1 000,01"); }))
        << m_prompts.transcript().utf8_string();
    ASSERT_EQ(page->list()->GetItemCount(), 4);
    EXPECT_EQ(radky(page)[3], "AT|U12345678|2|3|1 001,00|");
    EXPECT_EQ(w.dphshv().atributValue("VetaR", "c_rad", 3), "4");

    // Changing the count keeps the unrounded value behind the row: 1 234,10 still goes up to 1 235.
    vybratRadek(page, 0);
    EXPECT_TRUE(radkovyDialog([&] { pressButton(page, "upravit"); }, [](wxDialog* d) { typeText(d, "pocet", "5"); }));
    EXPECT_EQ(radky(page)[0], "DE|123456789|0|5|1 235,00|");
    EXPECT_NEAR(w.dphshv().radek(0).hodnota, 1234.10, 1e-9);

    vybratRadek(page, 1);
    m_prompts.clear();
    m_prompts.answerQuestion(false);
    pressButton(page, "smazat");
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Smazat řádek pro FR12345678901?"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Dotaz"));
    EXPECT_EQ(page->list()->GetItemCount(), 4);
    m_prompts.answerQuestion(true);
    pressButton(page, "smazat");
    EXPECT_THAT(radky(page),
                ElementsAre("DE|123456789|0|5|1 235,00|", "DE|123456789|3|1|500,00|", "AT|U12345678|2|3|1 001,00|"));
    EXPECT_EQ(w.dphshv().atributValue("VetaR", "c_rad", 2), "3");  // numbered again

    pressButton(page, "znovuNacist");
    EXPECT_THAT(radky(page),
                ElementsAre("DE|123456789|0|2|1 235,00|", "FR|12345678901|0|1|2 513,00|", "DE|123456789|3|1|500,00|"));
}

TEST_F(DphshWizardTest, FollowUpListStartsFromTheSavedListAndMayCancelItsRows) {
    {
        // Without a saved list there is nothing to follow.
        DphshWizard w(m_frame, m_model.get());
        brezen(w);
        selectRadio(w.page2(), "formaN");
        EXPECT_FALSE(field<wxChoice>(w.page2(), "nasledneK")->IsEnabled());
        m_prompts.clear();
        wizardNext(w);
        EXPECT_EQ(w.GetCurrentPage(), w.page2());
        EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr("Vyberte souhrnné hlášení"));
    }
    ulozitBrezen();
    ASSERT_EQ(m_model->getUlozeneCount(), 1);

    DphshWizard w(m_frame, m_model.get());
    w.ShowPage(w.page1());
    wizardNext(w);  // May stays chosen: the follow-up takes the period of the list it follows
    selectRadio(w.page2(), "formaN");
    auto* k = field<wxChoice>(w.page2(), "nasledneK");
    ASSERT_TRUE(k->IsEnabled());
    ASSERT_EQ(k->GetCount(), 1u);
    EXPECT_EQ(k->GetString(0), m_model->ulozene()[0]->popis());
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page3());
    EXPECT_EQ(w.dphshv().atributValue("VetaD", "shvies_forma"), Dphshv::NASLEDNE);
    EXPECT_EQ(w.dphshv().atributValue("VetaD", "mesic"), "3");
    EXPECT_EQ(w.page3()->list()->GetItemCount(), 3);

    // A cancelling row needs the country, VAT id and code only.
    EXPECT_TRUE(radkovyDialog([&] { pressButton(w.page3(), "pridat"); },
                              [](wxDialog* d) {
                                  auto* storno = field<wxCheckBox>(d, "storno");
                                  ASSERT_TRUE(storno->IsEnabled());
                                  storno->SetValue(true);
                                  vyplnit(d, "FR", "12345678901", 0, "", "");
                              }));
    EXPECT_EQ(radky(w.page3())[3], "FR|12345678901|0|||Ano");
    EXPECT_EQ(w.dphshv().atributValue("VetaR", "k_storno", 3), Dphshv::STORNO);
    EXPECT_EQ(w.dphshv().validate(), "");

    m_prompts.answerQuestion(true);
    w.OnFinished();
    const lxUlozeneArray ulozene = m_model->ulozeneDphShv();
    ASSERT_EQ(ulozene.size(), 2u);
    EXPECT_EQ(ulozene[0]->forma() + ulozene[1]->forma(), wxString(Dphshv::RADNE) + Dphshv::NASLEDNE);
}

// The wizard runs modally: its pages and the row dialog as a person sees them, and the
// preview of "Tisk hlášení" opened from it takes the mouse and closes.
class DphshWizardRealInput : public DphshWizardTest {};

TEST_F(DphshWizardRealInput, PagesAndThePreviewFromTheModalWizard) {
    m_frame->Show();
    DphshWizard w(m_frame, m_model.get());
    bool closed = false;
    w.CallAfter([&] {
        choose(field<wxChoice>(w.page1(), "mesic"), 2);
        waitFor([] { return false; });
        screenshot(w, "dphshwizard-page1");
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphshwizard-page2");
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphshwizard-page3");
        {
            DphshVetarDialog d(&w, w.dphshv(), 0);
            screenshot(d, "dphshwizard-radek");
        }
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphshwizard-page4");
        ASSERT_EQ(w.GetCurrentPage(), w.page4());
        w.page4()->tisknout();
        waitFor([&] { return shownPreview() != nullptr; });
        wxPreviewFrame* frame = shownPreview();
        EXPECT_NE(frame, nullptr) << "the preview did not open";
        if (frame) {
            frame->Bind(wxEVT_CLOSE_WINDOW, [&closed](wxCloseEvent& e) {
                closed = true;
                e.Skip();
            });
            waitFor([] { return false; });
            wxString dir;
            if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty())
                wxExecute("import -window root " + dir + "/dphshwizard-preview.png", wxEXEC_SYNC);
            wxUIActionSimulator sim;
            wxWindow* zavrit = frame->FindWindow(wxID_PREVIEW_CLOSE);
            sim.MouseMove(zavrit->GetScreenRect().GetPosition() + wxPoint(8, 8));
            sim.MouseClick();
            waitFor([&closed] { return closed; });
            if (!closed) frame->Destroy();
        }
        if (w.IsModal()) w.EndModal(wxID_CANCEL);
    });
    w.RunWizard(w.page1());
    EXPECT_TRUE(closed);
    wxTheApp->ProcessIdle();
}

// A saved list or statement opens its print preview from its stored XML; a text that is not
// such a filing is reported and opens nothing.
TEST_F(DphshWizardTest, SavedListsAndStatementsOpenTheirPreview) {
    ulozitBrezen();
    Dphkh1 kh;
    Kh1Zadani z;
    z.obdobi = DphObdobi::zMesice(2024, 3);
    z.datumPodani = iso("2024-04-20");
    kh1::fillData(*m_model, kh, z);
    const auto nahledy = [] {
        std::vector<wxPreviewFrame*> out;
        for (wxWindow* t : wxTopLevelWindows)
            if (auto* f = dynamic_cast<wxPreviewFrame*>(t); f && !f->IsBeingDeleted()) out.push_back(f);
        return out;
    };
    const struct {
        int typ;
        wxString xml;
        const char* titulek;  // empty: refused
    } pripady[] = {{1, m_model->ulozene()[0]->xml(), "Souhrnné hlášení VIES"},
                   {2, kh.saveToString(), "Kontrolní hlášení DPH"},
                   {1, kh.saveToString(), ""},
                   {2, "<Pisemnost><DPHKH1><VetaD", ""}};
    for (const auto& c : pripady) {
        m_prompts.clear();
        nahledPodani(m_frame, c.typ, c.xml);
        const std::vector<wxPreviewFrame*> otevrene = nahledy();
        if (*c.titulek) {
            EXPECT_TRUE(m_prompts.shown().empty()) << m_prompts.transcript().utf8_string();
            ASSERT_EQ(otevrene.size(), 1u) << c.titulek;
            EXPECT_THAT(otevrene[0]->GetTitle().utf8_string(), HasSubstr(c.titulek));
            wxString dir;
            if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty()) {
                otevrene[0]->Move(0, 0);
                for (int i = 0; i < 20; ++i) {
                    wxYield();
                    wxMilliSleep(25);
                }
                wxExecute(wxString::Format("import -window root %s/nahled-typ%d.png", dir, c.typ), wxEXEC_SYNC);
            }
            otevrene[0]->Destroy();
            wxTheApp->ProcessIdle();
        } else {
            EXPECT_TRUE(otevrene.empty());
            ASSERT_EQ(m_prompts.shown().size(), 1u);
            EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));
            EXPECT_FALSE(m_prompts.shown()[0].text.empty());
        }
    }
}
