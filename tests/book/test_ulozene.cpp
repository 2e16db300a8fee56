// The saved filings dialog through its buttons: the list of kinds and descriptions, saving a
// filing again as its exact XML, deleting after the question, and the preview of its print.
#include <wx/app.h>
#include <wx/button.h>
#include <wx/dir.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/prntbase.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <functional>
#include <vector>

#include "UlozeneDialog.h"
#include "booktest.h"
#include "dph/dphdp3fill.h"

namespace {

class UlozeneList : public BookTest {
 protected:
    // A saved VAT return of a month of 2024 whose taxpayer's name has diacritics.
    int ulozitPriznani(int mesic, const char* forma) {
        Dphdp3 p;
        p.setAtributValue("VetaD", "dokument", wxString("DP3"));
        p.setAtributValue("VetaD", "dapdph_forma", wxString(forma));
        p.setAtributValue("VetaD", "rok", 2024);
        p.setAtributValue("VetaD", "mesic", mesic);
        p.setAtributValue("VetaP", "prijmeni", u8("Čermák"));
        p.setAtributValue("VetaP", "dic", wxString("7001011234"));
        p.setCastka("obrat23", 1000 * mesic);
        p.setCastka("dan23", 210 * mesic);
        Dp3Zadani z;
        z.obdobi = DphObdobi::zMesice(2024, mesic);
        z.forma = forma;
        const int id = m_model->ulozitPodani(dp3::ulozene(p, z));
        EXPECT_GT(id, 0);
        return id;
    }
    int ulozitHlaseni(const char* xml) {
        Ulozene u;
        u.setId(m_model->getLastId("ulozene"));
        u.setTyp(2);
        u.setPopis(u8("Kontrolní hlášení Duben/2024"));
        u.setForma("B");
        u.setRok(2024);
        u.setDatumOd(iso("2024-04-01"));
        u.setDatumDo(iso("2024-04-30"));
        u.setXml(xml);
        EXPECT_TRUE(m_model->addUlozene(u));
        return u.id();
    }
    static wxButton* button(wxWindow* dialog, const char* label) {
        auto* b = dynamic_cast<wxButton*>(wxWindow::FindWindowByLabel(u8(label), dialog));
        EXPECT_NE(b, nullptr) << label;
        return b;
    }
    static void click(wxWindow* dialog, const char* label) {
        wxButton* b = button(dialog, label);
        if (!b) return;
        wxCommandEvent event(wxEVT_BUTTON, b->GetId());
        event.SetEventObject(b);
        b->ProcessWindowEvent(event);
    }
    static void closePreviews() {
        std::vector<wxWindow*> frames;
        for (wxWindow* w : wxTopLevelWindows)
            if (dynamic_cast<wxPreviewFrame*>(w)) frames.push_back(w);
        for (wxWindow* f : frames) f->Destroy();
        wxTheApp->ProcessIdle();  // deletes them
    }
};

TEST_F(UlozeneList, ListsKindAndDescriptionAndCommandsNeedASelection) {
    ulozitPriznani(3, "B");
    ulozitHlaseni("<Pisemnost/>");
    ulozitPriznani(2, "B");
    UlozeneDialog dialog(m_frame);
    EXPECT_EQ(dialog.GetTitle(), u8("Uložená přiznání"));
    EXPECT_EQ(wxJoin(listTexts(dialog.list(), 0), '|'), u8("Přiznání k DPH|Přiznání k DPH|Kontrolní hlášení DPH"));
    EXPECT_EQ(wxJoin(listTexts(dialog.list(), 1), '|'),
              u8("Řádné přiznání Únor/2024|Řádné přiznání Březen/2024|Kontrolní hlášení Duben/2024"));
    for (const char* b : {"Náhled přiznání", "Uložit přiznání jako", "Smazat přiznání"}) {
        EXPECT_FALSE(button(&dialog, b)->IsEnabled()) << b;
        click(&dialog, b);  // a click without a row does nothing
    }
    EXPECT_TRUE(m_prompts.shown().empty());
    dialog.selectId(1);
    for (const char* b : {"Náhled přiznání", "Uložit přiznání jako", "Smazat přiznání"})
        EXPECT_TRUE(button(&dialog, b)->IsEnabled()) << b;
    screenshot(dialog, "ulozene");
}

TEST_F(UlozeneList, SaveAsWritesTheStoredXmlByteForByte) {
    const int id = ulozitPriznani(3, "B");
    UlozeneDialog dialog(m_frame);
    dialog.selectId(id);

    m_prompts.answerPath(m_home + "/brezen");  // the extension is added
    click(&dialog, "Uložit přiznání jako");
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "file");
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Uložit přiznání/hlášení jako"));
    wxFFile file(m_home + "/brezen.xml", "rb");
    ASSERT_TRUE(file.IsOpened());
    std::string read(static_cast<size_t>(file.Length()), '\0');
    ASSERT_EQ(file.Read(read.data(), read.size()), read.size());
    const wxString xml = m_model->ulozeneXml(id);
    const wxScopedCharBuffer stored = xml.utf8_str();
    EXPECT_EQ(read, std::string(stored.data(), stored.length()));
    EXPECT_NE(read.find("Čermák"), std::string::npos);

    // Cancelled: nothing is written.
    click(&dialog, "Uložit přiznání jako");
    EXPECT_EQ(m_prompts.shown().size(), 2u);
    wxArrayString files;
    EXPECT_EQ(wxDir::GetAllFiles(m_home, &files, "*.xml"), 1u);
}

TEST_F(UlozeneList, DeleteAsksWithKindAndDescriptionAndDeletesOnlyOnYes) {
    const int brezen = ulozitPriznani(3, "B");
    const int unor = ulozitPriznani(2, "B");
    UlozeneDialog dialog(m_frame);
    dialog.selectId(brezen);

    m_prompts.answerQuestion(false);
    click(&dialog, "Smazat přiznání");
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Opravdu smazat přiznání:\nPřiznání k DPH\nŘádné přiznání Březen/2024?"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Dotaz"));
    EXPECT_TRUE(m_model->hasUlozene(brezen));
    EXPECT_EQ(dialog.list()->GetItemCount(), 2);

    m_prompts.answerQuestion(true);
    click(&dialog, "Smazat přiznání");
    EXPECT_FALSE(m_model->hasUlozene(brezen));
    EXPECT_TRUE(m_model->hasUlozene(unor));
    EXPECT_EQ(wxJoin(listTexts(dialog.list(), 1), '|'), u8("Řádné přiznání Únor/2024"));
    EXPECT_FALSE(button(&dialog, "Smazat přiznání")->IsEnabled());
}

TEST_F(UlozeneList, PreviewOpensTheReturnsPrintAndTellsWhatItCannotShow) {
    const int priznani = ulozitPriznani(3, "D");
    const int hlaseni = ulozitHlaseni("<Pisemnost/>");
    UlozeneDialog dialog(m_frame);
    dialog.selectId(priznani);
    click(&dialog, "Náhled přiznání");
    wxPreviewFrame* frame = shownPreview();
    ASSERT_NE(frame, nullptr) << m_prompts.transcript();
    EXPECT_EQ(frame->GetTitle(), u8("Přiznání k DPH"));
    int pages = 0;
    for (wxWindow* child : frame->GetChildren())
        if (auto* bar = dynamic_cast<wxPreviewControlBar*>(child)) pages = bar->GetPrintPreview()->GetMaxPage();
    EXPECT_EQ(pages, 1);
    EXPECT_TRUE(m_prompts.shown().empty());
    wxString dir;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty()) {
        frame->SetSize(wxRect(0, 0, 900, 880));
        for (int i = 0; i < 20; ++i) {
            wxYield();
            wxMilliSleep(25);
        }
        wxExecute("import -window root " + dir + "/ulozene_nahled.png", wxEXEC_SYNC);
    }
    closePreviews();

    dialog.selectId(hlaseni);
    click(&dialog, "Náhled přiznání");
    EXPECT_EQ(shownPreview(), nullptr);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    // A control statement whose stored text is no statement: the reader says why.
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Soubor neobsahuje podání DPHKH1"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));

    // A stored text that is not a return is told, not previewed.
    Ulozene poskozene = m_model->getUlozene(priznani);
    poskozene.setXml("<Pisemnost><DPHDP3><VetaD");
    ASSERT_TRUE(m_model->editUlozene(poskozene));
    m_prompts.clear();
    dialog.selectId(priznani);
    click(&dialog, "Náhled přiznání");
    EXPECT_EQ(shownPreview(), nullptr);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_FALSE(m_prompts.shown()[0].text.empty());
}

// Real clicks: the preview opened from the list must take the mouse, so a person can page
// through it and close it while the list stays open.
class UlozeneListRealInput : public UlozeneList {};

TEST_F(UlozeneListRealInput, PreviewOpenedFromTheListTakesClicks) {
    const int id = ulozitPriznani(3, "B");
    m_frame->Show();
    auto* dialog = new UlozeneDialog(m_frame);
    dialog->ukazat();
    EXPECT_FALSE(m_frame->IsEnabled());  // the list stands in front as a modal one would
    dialog->selectId(id);
    waitFor([] { return false; }, 100);
    wxUIActionSimulator sim;
    wxButton* nahled = button(dialog, "Náhled přiznání");
    sim.MouseMove(nahled->GetScreenRect().GetPosition() + wxPoint(10, 8));
    sim.MouseClick();
    waitFor([] { return shownPreview() != nullptr; }, 100);
    wxPreviewFrame* frame = shownPreview();
    ASSERT_NE(frame, nullptr);
    bool closed = false;
    frame->Bind(wxEVT_CLOSE_WINDOW, [&closed](wxCloseEvent& event) {
        closed = true;
        event.Skip();
    });
    waitFor([] { return false; }, 100);
    wxWindow* zavrit = frame->FindWindow(wxID_PREVIEW_CLOSE);
    ASSERT_NE(zavrit, nullptr);
    sim.MouseMove(zavrit->GetScreenRect().GetPosition() + wxPoint(8, 8));
    sim.MouseClick();
    waitFor([&closed] { return closed; }, 100);
    EXPECT_TRUE(closed);
    closePreviews();
    dialog->Close();
    wxTheApp->ProcessIdle();
    EXPECT_TRUE(m_frame->IsEnabled());
}

}  // namespace
