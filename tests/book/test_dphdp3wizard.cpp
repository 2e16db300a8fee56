// The VAT return wizard driven page by page as a person does: the period typed, a coefficient
// refused and corrected, the kind chosen, the export to a file checked by the official
// schema, saving on finishing, and a supplementary return built on the saved one.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/prntbase.h>
#include <wx/uiaction.h>

#include <functional>
#include <wx/radiobut.h>
#include <wx/textctrl.h>

#include "Dphdp3Wizard.h"
#include "booktest.h"
#include "controls/lxdatectrl.h"
#include "dphdoklady.h"
#include "podanipages.h"

using ::testing::HasSubstr;

namespace {

}  // namespace

class Dphdp3WizardTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2", {{21, 1210}});
        dphDoklad(*m_model, DruhDokladu::ZAVAZEK, "2024-03-12", "2024-03-12", "R40,41-K", {{21, 605}});
        m_prompts.clear();
    }
    // Pages 1 and 2 with March 2024 typed as free dates and the coefficient of row 52.
    void obdobiBrezen(Dphdp3Wizard& w, const char* koeficient) {
        w.ShowPage(w.firstPage());
        w.Show();
        wizardNext(w);
        ASSERT_EQ(w.GetCurrentPage(), w.page2());
        selectRadio(w.page2(), "volbaObdobi");
        typeDate(w.page2(), "od", "1.3.2024");
        typeDate(w.page2(), "do", "31. 3. 2024");
        typeDate(w.page2(), "datumVyhotoveni", "20.4.2024");
        typeText(w.page2(), "koefNov", u8(koeficient));
        wizardNext(w);
    }
};

TEST_F(Dphdp3WizardTest, PagesComputeExportAndSave) {
    Dphdp3Wizard w(m_frame, m_model.get());
    obdobiBrezen(w, "60,5x");
    EXPECT_EQ(w.GetCurrentPage(), w.page2());  // refused, stays
    EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr("ř.52 - Koeficient (%)"));
    typeText(w.page2(), "koefNov", u8("120"));
    m_prompts.clear();
    wizardNext(w);
    EXPECT_EQ(m_prompts.transcript(), u8("ř.52 - Koeficient (%): koeficient musí být od 0 do 100 %\n"));
    typeText(w.page2(), "koefNov", u8("60,5"));
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page3());

    m_prompts.clear();
    selectRadio(w.page3(), "formaD");
    wizardNext(w);  // no saved return to supplement
    EXPECT_EQ(w.GetCurrentPage(), w.page3());
    EXPECT_THAT(m_prompts.transcript().utf8_string(), HasSubstr("Vyberte přiznání"));
    selectRadio(w.page3(), "formaB");
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page4());
    const Dphdp3& p = w.dphdp3();
    EXPECT_EQ(p.atributValue("Veta1", "obrat23"), "1000");
    EXPECT_EQ(p.atributValue("Veta4", "odp_tuz23"), "105");
    EXPECT_EQ(p.atributValue("Veta5", "koef_p20_nov"), "60.5");
    EXPECT_EQ(p.atributValue("Veta5", "odp_uprav_kf"), "64");  // 105 × 0.605 = 63.525
    EXPECT_EQ(p.atributValue("VetaD", "zdobd_do"), "31.03.2024");

    const wxString path = m_home + "/priznani";
    m_prompts.answerPath(path);
    pressButton(w.page4(), "export");
    std::string xml;
    {
        wxFFile file(path + ".xml", "rb");
        ASSERT_TRUE(file.IsOpened());
        xml.resize(static_cast<size_t>(file.Length()));
        file.Read(xml.data(), xml.size());
    }
    EXPECT_EQ(xml, p.createXml());
    EXPECT_EQ(lxutils::validateXml(xml, lxutils::xsdDir() + "/dphdp3_epo2.xsd"), "");

    m_prompts.answerQuestion(true);
    w.OnFinished();
    ASSERT_EQ(m_model->getUlozeneCount(), 1);
    EXPECT_EQ(m_model->ulozene()[0]->popis(), u8("Řádné přiznání 01.03.2024 - 31.03.2024"));
}

TEST_F(Dphdp3WizardTest, SupplementaryReturnOnTheSavedOneAndInvalidExportWritesNothing) {
    {
        Dphdp3Wizard w(m_frame, m_model.get());
        obdobiBrezen(w, "");
        wizardNext(w);
        m_prompts.answerQuestion(true);
        w.OnFinished();
    }
    dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-20", "2024-03-20", "R1,2", {{21, 363}});
    Dphdp3Wizard w(m_frame, m_model.get());
    obdobiBrezen(w, "");
    ASSERT_EQ(w.GetCurrentPage(), w.page3());
    selectRadio(w.page3(), "formaD");
    auto* k = field<wxChoice>(w.page3(), "dodatecneK");
    ASSERT_EQ(k->GetCount(), 1u);
    EXPECT_EQ(k->GetString(0), u8("Řádné přiznání 01.03.2024 - 31.03.2024"));
    typeDate(w.page3(), "datumZjisteni", "2.5.2024");
    typeText(w.page3(), "duvod", u8("Opomenutá faktura"));
    wizardNext(w);
    ASSERT_EQ(w.GetCurrentPage(), w.page4());
    EXPECT_EQ(w.dphdp3().atributValue("Veta1", "obrat23"), "300");
    EXPECT_EQ(w.dphdp3().atributValue("Veta6", "dano"), "63");
    EXPECT_EQ(w.dphdp3().atributValue("VetaR", "t_prilohy"), u8("Opomenutá faktura"));

    // A taxpayer without a tax office: the schema refuses it, nothing is asked or written.
    Priznani p = m_model->priznani();
    p.setC_ufo(0);
    ASSERT_TRUE(m_model->setPriznani(p));
    ASSERT_TRUE(w.fillData());
    m_prompts.clear();
    EXPECT_FALSE(w.page4()->exportovat());
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "error");
    EXPECT_THAT(m_prompts.shown()[0].text.utf8_string(), HasSubstr("Věta VetaP, údaj c_ufo: chybí povinný údaj"));
}

// The wizard runs modally; the preview of "Tisk přiznání" opened from it must take the
// mouse, so a person can page through it and close it.
class Dphdp3WizardRealInput : public Dphdp3WizardTest {};

TEST_F(Dphdp3WizardRealInput, PreviewFromTheModalWizardTakesClicks) {
    m_frame->Show();
    Dphdp3Wizard w(m_frame, m_model.get());
    bool closed = false;
    w.CallAfter([&] {
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphdp3wizard-page2");
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphdp3wizard-page3");
        wizardNext(w);
        waitFor([] { return false; });
        screenshot(w, "dphdp3wizard-page4");
        ASSERT_EQ(w.GetCurrentPage(), w.page4());
        waitFor([] { return false; });
        wxUIActionSimulator sim;
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
            wxWindow* zavrit = frame->FindWindow(wxID_PREVIEW_CLOSE);
            sim.MouseMove(zavrit->GetScreenRect().GetPosition() + wxPoint(8, 8));
            sim.MouseClick();
            waitFor([&closed] { return closed; });
            if (!closed) frame->Destroy();
        }
        if (w.IsModal()) w.EndModal(wxID_CANCEL);  // a screenshot hides the wizard, which ends it
    });
    w.RunWizard(w.firstPage());
    EXPECT_TRUE(closed);
    wxTheApp->ProcessIdle();
}
