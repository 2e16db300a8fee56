// The taxpayer dialog driven through its controls over installed code lists, the activity
// picker's search, and the download offered before a filing when the lists are missing.
#include <gmock/gmock.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/modalhook.h>
#include <wx/textctrl.h>

#include <functional>

#include "HledaciDialog.h"
#include "OkecDialog.h"
#include "PriznaniDialog.h"
#include "booktest.h"
#include "ciselnikyprompt.h"
#include "ciselnikyserver.h"
#include "clock.h"
#include "controls/lxdatectrl.h"
#include "dph/ciselniky.h"

namespace {

wxString sample(const char* name) { return wxString(EVIDA_TEST_DATA) + "/ciselniky/" + name; }

void writeText(const wxString& path, const char* text) {
    wxFFile f(path, "wb");
    ASSERT_TRUE(f.IsOpened()) << path;
    f.Write(text, strlen(text));
}

const char* const OBCE_XML = R"(<?xml version="1.0" encoding="UTF-8"?><Ciselnik Nazev="obce">
<Veta naz_obce="Brno" psc="60200" c_fu="3001"/>
<Veta naz_obce="Brno" psc="60100" c_fu="3001"/>
<Veta naz_obce="Břeclav" psc="69002" c_fu="3004"/>
<Veta naz_obce="Tábor" psc="39002" c_fu="2210"/>
</Ciselnik>)";

const char* const PRACUFO_XML = R"(<?xml version="1.0" encoding="UTF-8"?><Ciselnik Nazev="pracufo">
<Veta c_pracufo="2001" nazu_pracufo="Územní pracoviště pro Prahu 1" c_ufo="451" d_zaniku=""/>
<Veta c_pracufo="3001" nazu_pracufo="Územní pracoviště Brno I" c_ufo="461" d_zaniku=""/>
<Veta c_pracufo="3002" nazu_pracufo="Územní pracoviště Brno II" c_ufo="461" d_zaniku=""/>
</Ciselnik>)";

// Answers the code-list pickers a dialog opens: the search text is typed as a person would and
// the first row found is taken; other modal dialogs are shown as usual.
class PickerHook : public wxModalDialogHook {
 public:
    PickerHook() { Register(); }
    ~PickerHook() override { Unregister(); }
    void search(const char* text) { m_texts.push_back(text); }
    size_t shown = 0;  // rows the last picker showed

 protected:
    int Enter(wxDialog* dialog) override {
        auto* picker = dynamic_cast<HledaciDialog*>(dialog);
        if (!picker || m_texts.empty()) return wxID_NONE;
        typeText(picker, "hledat", u8(m_texts.front()));
        m_texts.erase(m_texts.begin());
        shown = picker->shownCount();
        return picker->takeSelected() ? wxID_OK : wxID_CANCEL;
    }
    void Exit(wxDialog*) override {}

 private:
    std::vector<const char*> m_texts;
};

void click(wxWindow* dialog, const char* name) {
    auto* button = field<wxButton>(dialog, name);
    if (!button) return;
    wxCommandEvent event(wxEVT_BUTTON, button->GetId());
    event.SetEventObject(button);
    button->GetEventHandler()->ProcessEvent(event);
}

int indexOf(wxChoice* choice, const char* text) { return choice->FindString(u8(text)); }

}  // namespace

class PriznaniDialogTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        lxutils::setToday(iso("2026-03-15"));
        ASSERT_TRUE(wxCopyFile(sample("ufo_epo_ciselnik.xml"), lxutils::ciselnikPath("ufo.xml")));
        ASSERT_TRUE(wxCopyFile(sample("okec_mepo_subset.txt"), lxutils::ciselnikPath("okec.xml")));
        ASSERT_TRUE(wxCopyFile(sample("zeme_mojedane_subset.txt"), lxutils::ciselnikPath("zeme.xml")));
        writeText(lxutils::ciselnikPath("pracufo.xml"), PRACUFO_XML);
        writeText(lxutils::ciselnikPath("obce.xml"), OBCE_XML);
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        BookTest::TearDown();
    }

    // The taxpayer's part of the form, from the lists, without e-mail or data box.
    void fillTaxpayer(wxDialog* d) {
        typeText(d, "jmeno", u8("Jan"));
        typeText(d, "prijmeni", u8("Novák"));
        typeText(d, "ulice", u8("Dlouhá"));
        typeText(d, "c_pop", "12");
        typeText(d, "email", "");
        typeText(d, "id_dats", "");
        auto* ufo = field<wxChoice>(d, "c_ufo");
        choose(ufo, indexOf(ufo, "Finanční úřad pro Jihomoravský kraj"));
        auto* prac = field<wxChoice>(d, "c_pracufo");
        EXPECT_EQ(prac->GetCount(), 2u);  // only the workplaces of that office
        choose(prac, indexOf(prac, "Územní pracoviště Brno I"));
        m_pickers.search("brno");
        click(d, "vybratObec");
        EXPECT_EQ(m_pickers.shown, 2u);
        m_pickers.search("POCITACU");
        click(d, "vybratOkec");
        EXPECT_EQ(m_pickers.shown, 1u);
    }

    PickerHook m_pickers;
};

TEST_F(PriznaniDialogTest, NeitherMailNorDataBoxIsRefusedAndTheDialogStaysOpen) {
    PriznaniDialog dialog(m_frame, m_model.get());
    // A new record has no office; the directorate-general is not offered.
    EXPECT_EQ(field<wxChoice>(&dialog, "c_ufo")->GetSelection(), wxNOT_FOUND);
    EXPECT_EQ(field<wxChoice>(&dialog, "c_ufo")->GetCount(), 15u);
    const Outcome outcome = fillAndOk(dialog, [this](wxDialog* d) {
        fillTaxpayer(d);
        EXPECT_EQ(field<wxTextCtrl>(d, "naz_obce")->GetValue(), "Brno");
        EXPECT_EQ(field<wxTextCtrl>(d, "psc")->GetValue(), "60100");
        EXPECT_EQ(field<wxTextCtrl>(d, "c_okec")->GetValue(), "629000");
    });
    EXPECT_FALSE(outcome.closed);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Vyplňte buď email\nnebo identifikátor datové schránky"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Informace"));
    EXPECT_EQ(outcome.focus, wxWindow::FindWindowByName("email", &dialog));
    EXPECT_EQ(m_model->db().ExecuteScalar("SELECT count(*) FROM priznani"), 0);
}

TEST_F(PriznaniDialogTest, DataBoxIsEnoughAndEverythingChosenIsStored) {
    PriznaniDialog dialog(m_frame, m_model.get());
    const Outcome outcome = fillAndOk(dialog, [this](wxDialog* d) {
        fillTaxpayer(d);
        typeText(d, "id_dats", "ab12cd3");
    });
    EXPECT_TRUE(outcome.closed) << m_prompts.transcript();
    const Priznani& p = m_model->priznani();
    EXPECT_EQ(p.stat(), u8("ČESKÁ REPUBLIKA"));
    EXPECT_EQ(p.prijmeni(), u8("Novák"));
    EXPECT_EQ(p.c_pop(), 12);
    EXPECT_EQ(p.c_ufo(), 461);
    EXPECT_EQ(p.c_pracufo(), 3001);
    EXPECT_EQ(p.c_okec(), 629000);
    EXPECT_EQ(p.naz_obce(), "Brno");
    EXPECT_EQ(p.psc(), "60100");
    EXPECT_EQ(p.id_dats(), "ab12cd3");
    EXPECT_EQ(p.zast_typ(), "");

    // Opened again, the form shows what was stored.
    PriznaniDialog again(m_frame, m_model.get());
    screenshot(again, "priznani");
    EXPECT_EQ(field<wxChoice>(&again, "c_ufo")->GetStringSelection(), u8("Finanční úřad pro Jihomoravský kraj"));
    EXPECT_EQ(field<wxChoice>(&again, "c_pracufo")->GetStringSelection(), u8("Územní pracoviště Brno I"));
    EXPECT_EQ(field<wxTextCtrl>(&again, "id_dats")->GetValue(), "ab12cd3");
}

TEST_F(PriznaniDialogTest, LegalPersonRepresentativeNeedsItsNameAndKeepsOnlyItsFields) {
    PriznaniDialog dialog(m_frame, m_model.get());
    const Outcome outcome = fillAndOk(dialog, [this](wxDialog* d) {
        fillTaxpayer(d);
        typeText(d, "email", "jan@example.cz");
        choose(field<wxChoice>(d, "zast_typ"), 2);
        EXPECT_TRUE(field<wxTextCtrl>(d, "zast_nazev")->IsEnabled());
        EXPECT_TRUE(field<wxTextCtrl>(d, "opr_postaveni")->IsEnabled());
        EXPECT_FALSE(field<wxTextCtrl>(d, "zast_jmeno")->IsEnabled());
        EXPECT_FALSE(field<lxDateCtrl>(d, "zast_dat_nar")->IsEnabled());
        choose(field<wxChoice>(d, "zast_kod"), 5);
        typeText(d, "opr_jmeno", "Petr");
        typeText(d, "opr_prijmeni", u8("Velký"));
        typeText(d, "opr_postaveni", "jednatel");
    });
    EXPECT_FALSE(outcome.closed);
    EXPECT_EQ(m_prompts.transcript(), u8("Název právnické osoby nemůže být prázdný\n"));

    m_prompts.clear();
    EXPECT_TRUE(fillAndOk(dialog, [](wxDialog* d) { typeText(d, "zast_nazev", u8("Poradci s.r.o.")); }).closed)
        << m_prompts.transcript();
    EXPECT_EQ(m_model->priznani().zast_typ(), "P");
    EXPECT_EQ(m_model->priznani().zast_kod(), "4c");
    EXPECT_EQ(m_model->priznani().zast_nazev(), u8("Poradci s.r.o."));
}

TEST_F(PriznaniDialogTest, WithoutCodeListsTheChoicesAreEmptyAndTypedCodesAreKept) {
    for (const char* file : {"ufo.xml", "pracufo.xml", "okec.xml", "obce.xml"})
        ASSERT_TRUE(wxRemoveFile(lxutils::ciselnikPath(file)));
    PriznaniDialog dialog(m_frame, m_model.get());
    EXPECT_EQ(field<wxChoice>(&dialog, "c_ufo")->GetCount(), 0u);
    const Outcome outcome = fillAndOk(dialog, [](wxDialog* d) {
        typeText(d, "jmeno", u8("Jan"));
        typeText(d, "prijmeni", u8("Novák"));
        typeText(d, "ulice", u8("Dlouhá"));
        typeText(d, "naz_obce", u8("Tábor"));
        typeText(d, "c_okec", "620100");
        typeText(d, "email", "jan@example.cz");
        typeText(d, "zast_dat_narText", "1.2.1980");
    });
    EXPECT_TRUE(outcome.closed) << m_prompts.transcript();
    EXPECT_EQ(m_model->priznani().c_okec(), 620100);
    EXPECT_EQ(m_model->priznani().naz_obce(), u8("Tábor"));
    EXPECT_EQ(m_model->priznani().zast_dat_nar(), "");  // no representative: the date is not kept
}

TEST_F(PriznaniDialogTest, ActivityPickerSearchesRegardlessOfAccentsAndCase) {
    OkecDialog dialog(m_frame, 14400);
    screenshot(dialog, "okec");
    EXPECT_EQ(dialog.shownCount(), 20u);
    ASSERT_TRUE(dialog.takeSelected());
    EXPECT_EQ(dialog.chosenOkec(), 14400);  // the code it was opened with
    const struct {
        const char* text;
        size_t shown;
    } cases[] = {{"zivocisna", 2}, {"ŽIVOČIŠNÁ výroba", 2}, {"1440", 1}, {"nic takového", 0}, {"  ", 20}};
    for (const auto& c : cases) {
        typeText(&dialog, "hledat", u8(c.text));
        EXPECT_EQ(dialog.shownCount(), c.shown) << c.text;
    }
    typeText(&dialog, "hledat", "rybolov");
    ASSERT_TRUE(dialog.takeSelected());
    EXPECT_EQ(dialog.chosenOkec(), 31000);
    EXPECT_EQ(dialog.chosenNazev(), "RYBOLOV");
}

class CiselnikyPrompt : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        lxutils::setToday(iso("2026-03-15"));
        m_www = m_home + "/www";
        ASSERT_TRUE(wxFileName::Mkdir(m_www));
        for (const char* name : {"okec", "ufo", "pracufo", "zeme", "obce", "dp_fu", "pbucelur", "ucelur", "obcezujzko"})
            writeText(m_www + "/" + name + ".xml", OBCE_XML);
        m_server = std::make_unique<LoopbackHttpServer>(m_www, CISELNIKY_SERVER_PY);
        ASSERT_TRUE(m_server->running());
        wxSetEnv("EVIDA_CISELNIKY_URL", m_server->url());
    }
    void TearDown() override {
        wxUnsetEnv("EVIDA_CISELNIKY_URL");
        m_server.reset();
        lxutils::setToday(wxDateTime());
        BookTest::TearDown();
    }
    wxString m_www;
    std::unique_ptr<LoopbackHttpServer> m_server;
};

TEST_F(CiselnikyPrompt, DeclinedDownloadLeavesTheFilingWithout) {
    m_prompts.answerQuestion(false);
    EXPECT_FALSE(ensureCiselniky(m_frame, true));
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Je třeba stáhnout číselníky potřebné pro přiznání.\nStáhnout teď?"));
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Dotaz"));
    EXPECT_TRUE(ciselnikyRequests(m_www).empty());
}

TEST_F(CiselnikyPrompt, AcceptedDownloadFetchesTheListsOnceAndThenAsksNoMore) {
    m_prompts.answerQuestion(true);
    EXPECT_TRUE(ensureCiselniky(m_frame, false));
    EXPECT_EQ(m_prompts.transcript(), u8("Je třeba stáhnout číselníky potřebné pro hlášení.\nStáhnout teď?\n"));
    EXPECT_EQ(ciselnikyRequests(m_www).size(), 9u);
    EXPECT_TRUE(lxutils::haveCiselniky());
    m_prompts.clear();
    EXPECT_TRUE(ensureCiselniky(m_frame, true));
    EXPECT_TRUE(m_prompts.shown().empty());
    EXPECT_EQ(ciselnikyRequests(m_www).size(), 9u);
}

TEST_F(CiselnikyPrompt, FailedDownloadIsReported) {
    ASSERT_TRUE(wxRemoveFile(m_www + "/zeme.xml"));
    m_prompts.answerQuestion(true);
    EXPECT_FALSE(ensureCiselniky(m_frame, true));
    ASSERT_EQ(m_prompts.shown().size(), 2u);
    EXPECT_EQ(m_prompts.shown()[1].kind, "error");
    EXPECT_THAT(m_prompts.shown()[1].text.ToStdString(wxConvUTF8), ::testing::HasSubstr("nepodařilo stáhnout"));
    EXPECT_EQ(ciselnikyRequests(m_www).size(), 4u);
    EXPECT_FALSE(lxutils::haveCiselniky());
}
