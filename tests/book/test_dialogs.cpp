// The shared dialogs: the address book "Adresář" with its contact form, the preferences
// with the due days and the number series, and the typed dates of the working date and of
// the book filters.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/spinctrl.h>
#include <wx/srchctrl.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <functional>

#include "DatumDialog.h"
#include "KontaktDialog.h"
#include "KontaktyDialog.h"
#include "PreferencesDialog.h"
#include "RadaDialog.h"
#include "RadyPanel.h"
#include "book/lxfilterdialog.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "lxformat.h"
#include "lxsettings.h"

using ::testing::ElementsAre;

namespace {

// Types a number into a spinner as the user would: the control tells its parent.
void spin(wxSpinCtrl* control, int value) {
    control->SetValue(value);
    wxSpinEvent event(wxEVT_SPINCTRL, control->GetId());
    event.SetEventObject(control);
    event.SetPosition(value);
    control->GetEventHandler()->ProcessEvent(event);
}

std::vector<wxString> names(const lxListCtrl* list) {
    std::vector<wxString> all;
    for (long i = 0; i < list->GetItemCount(); ++i) all.push_back(list->GetItemText(i, 0));
    return all;
}

}  // namespace

using Adresar = BookTest;

TEST_F(Adresar, ContactNeedsANameAndIsStoredWithItsAddress) {
    const int adresy = m_model->tableRows("adresa");
    KontaktDialog form(m_frame);
    field<wxTextCtrl>(&form, "nazev")->ChangeValue("   ");
    field<wxTextCtrl>(&form, "misto")->ChangeValue("Brno");
    EXPECT_FALSE(form.save());
    EXPECT_EQ(m_prompts.transcript(), u8("Název nemůže být prázdný\n"));
    EXPECT_EQ(m_model->tableRows("adresa"), adresy);

    field<wxTextCtrl>(&form, "nazev")->ChangeValue("O'Brien \"Alfa\"");
    field<wxTextCtrl>(&form, "ic")->ChangeValue("45274649");
    ASSERT_TRUE(form.save());
    const Kontakt stored = m_model->getKontakt(form.kontaktId());
    EXPECT_EQ(stored.nazev(), "O'Brien \"Alfa\"");
    EXPECT_EQ(stored.ic(), "45274649");
    EXPECT_EQ(m_model->getAdresa(stored.adresaid()).misto(), "Brno");

    // Editing changes the same address.
    KontaktDialog edit(m_frame, stored.id());
    EXPECT_EQ(field<wxTextCtrl>(&edit, "misto")->GetValue(), "Brno");
    field<wxTextCtrl>(&edit, "misto")->ChangeValue("Praha");
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(m_model->getAdresa(stored.adresaid()).misto(), "Praha");
    EXPECT_EQ(m_model->tableRows("adresa"), adresy + 1);
}

TEST_F(Adresar, ListCopiesAndDeletesAfterAQuestion) {
    kontakt("beta", "Ostrava");
    const int alfa = kontakt("Alfa", "Brno");
    KontaktyDialog adresar(m_frame);
    lxListCtrl* list = adresar.list();
    // Contact 0, "no counterparty", is not an entry of the book.
    EXPECT_THAT(names(list), ElementsAre("Alfa", "beta"));
    EXPECT_EQ(list->GetItemText(0, 4), "Brno");

    list->selectId(alfa);
    adresar.copyKontakt();
    EXPECT_THAT(names(list), ElementsAre("Alfa", "Alfa (1)", "beta"));
    const int copy = list->selectedId();
    EXPECT_NE(copy, alfa);
    EXPECT_EQ(m_model->getAdresa(m_model->getKontakt(copy).adresaid()).misto(), "Brno");

    m_prompts.answerQuestion(false);
    adresar.deleteKontakt();
    EXPECT_EQ(m_prompts.transcript(), u8("Opravdu smazat kontakt Alfa (1)?\n"));
    EXPECT_EQ(list->GetItemCount(), 3);
    m_prompts.answerQuestion(true);
    adresar.deleteKontakt();
    EXPECT_THAT(names(list), ElementsAre("Alfa", "beta"));
    EXPECT_FALSE(m_model->hasKontakt(copy));
}

TEST_F(Adresar, DeletedContactLeavesItsDocumentsWithoutCounterparty) {
    const int alfa = kontakt("Alfa");
    const int fa = faktura(true, 100, "2024-07-01", alfa);
    KontaktyDialog adresar(m_frame);
    adresar.list()->selectId(alfa);
    m_prompts.answerQuestion(true);
    adresar.deleteKontakt();
    EXPECT_FALSE(m_model->hasKontakt(alfa));
    EXPECT_EQ(m_model->getFaktura(fa).protistranaid(), 0);
    EXPECT_EQ(adresar.list()->GetItemCount(), 0);
}

TEST_F(Adresar, ChooserReturnsTheSelectedContact) {
    kontakt("Alfa");
    const int beta = kontakt("Beta");
    KontaktyDialog chooser(m_frame, true);
    EXPECT_EQ(chooser.selectedKontaktId(), -1);
    chooser.list()->selectId(beta);
    chooser.chooseKontakt();
    EXPECT_EQ(chooser.selectedKontaktId(), beta);
}

// A number that fails its check is asked about, not refused: the user may save it anyway.
TEST_F(Adresar, DoubtfulIcDicOrEmailAsksBeforeSaving) {
    KontaktDialog form(m_frame);
    field<wxTextCtrl>(&form, "nazev")->ChangeValue(u8("Šťastný"));
    field<wxTextCtrl>(&form, "ic")->ChangeValue("12345678");
    field<wxTextCtrl>(&form, "dic")->ChangeValue("CZ12345678");
    field<wxTextCtrl>(&form, "email")->ChangeValue("stastny.cz");
    const int before = m_model->tableRows("kontakt");

    m_prompts.answerQuestion(false);
    EXPECT_FALSE(form.save());
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "question");
    EXPECT_EQ(m_prompts.shown()[0].caption, "Dotaz");
    const wxString text = m_prompts.shown()[0].text;
    EXPECT_TRUE(text.StartsWith(u8("IČ 12345678"))) << text;
    EXPECT_FALSE(text.Contains(u8("DIČ"))) << "CZ and eight digits is a well-formed DIČ: " << text;
    EXPECT_TRUE(text.Contains("E-mail stastny.cz")) << text;
    EXPECT_TRUE(text.EndsWith(u8("Přesto uložit?"))) << text;
    EXPECT_EQ(m_model->tableRows("kontakt"), before);

    m_prompts.answerQuestion(true);
    ASSERT_TRUE(form.save());
    EXPECT_EQ(m_model->getKontakt(form.kontaktId()).ic(), "12345678");

    // Right numbers, or none, ask nothing.
    m_prompts.clear();
    KontaktDialog good(m_frame);
    field<wxTextCtrl>(&good, "nazev")->ChangeValue("Beta");
    field<wxTextCtrl>(&good, "ic")->ChangeValue("27074358");
    field<wxTextCtrl>(&good, "dic")->ChangeValue("CZ27074358");
    field<wxTextCtrl>(&good, "email")->ChangeValue("beta@example.cz");
    EXPECT_TRUE(good.save());
    EXPECT_TRUE(m_prompts.shown().empty()) << m_prompts.transcript();
}

// Names in the order of a Czech phone book; the search field narrows the list by name, IČ or
// town as the user types, whatever the case and accents.
TEST_F(Adresar, ListIsInCzechOrderAndTheSearchFieldNarrowsIt) {
    for (const auto& [nazev, misto] : std::vector<std::pair<const char*, const char*>>{
             {"Řepa", "Plzeň"}, {"Chrudim s.r.o.", "Chrudim"}, {"Čapek", "Žďár nad Sázavou"},
             {"Hradec", "Hradec Králové"}, {"Cyril", "Brno"}, {"Rum", "Ústí nad Labem"}})
        kontakt(nazev, misto);
    Kontakt withIc = m_model->getKontakt(kontakt("Dvořák", "Olomouc"));
    withIc.setIc("45274649");
    ASSERT_TRUE(m_model->editKontakt(withIc));

    KontaktyDialog adresar(m_frame);
    lxListCtrl* list = adresar.list();
    ASSERT_NE(adresar.searchField(), nullptr);
    EXPECT_THAT(names(list), ElementsAre("Cyril", u8("Čapek"), u8("Dvořák"), "Hradec", "Chrudim s.r.o.", "Rum",
                                         u8("Řepa")));

    const struct {
        const char* typed;
        std::vector<const char*> shown;
    } cases[] = {
        {"CHRUD", {"Chrudim s.r.o."}},                 // case
        {"zdar", {"Čapek"}},                          // a town without its accents
        {"cap", {"Čapek"}},                           // a name without its háček
        {"4527", {"Dvořák"}},                         // the IČ
        {"hradec", {"Hradec"}},                       // name and town of one contact
        {"ne", {}},                                   // nothing of the kind
        {"", {"Cyril", "Čapek", "Dvořák", "Hradec", "Chrudim s.r.o.", "Rum", "Řepa"}},
    };
    for (const auto& c : cases) {
        adresar.searchField()->SetValue(u8(c.typed));  // sends its change like typing
        std::vector<wxString> expected;
        for (const char* n : c.shown) expected.push_back(u8(n));
        EXPECT_EQ(names(list), expected) << c.typed;
    }
    adresar.searchField()->SetValue("cap");
    ASSERT_EQ(list->GetItemCount(), 1);
    EXPECT_EQ(m_model->getKontakt(list->selectedId()).nazev(), u8("Čapek")) << "a single match is selected";

    if (wxGetEnv("EVIDA_SHOTS", nullptr)) {
        wxString dir;
        wxGetEnv("EVIDA_SHOTS", &dir);
        adresar.searchField()->SetValue("");
        adresar.Show();
        adresar.Raise();
        for (int i = 0; i < 20; ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        const wxSize size = adresar.GetClientSize();
        wxBitmap shot(size);
        wxMemoryDC memory(shot);
        wxClientDC screen(&adresar);
        memory.Blit(0, 0, size.x, size.y, &screen, 0, 0);
        memory.SelectObject(wxNullBitmap);
        shot.SaveFile(dir + "/adresar.png", wxBITMAP_TYPE_PNG);
        adresar.Hide();
    }
}

struct BoundsCase {
    const char* name;
    const char* prefix;
    int cislo;
    int min;
};

const std::string LONG_PREFIX(98, 'P');

class RadaBounds : public BookTest, public ::testing::WithParamInterface<BoundsCase> {};

TEST_P(RadaBounds, WidthFollowsPrefixAndNumber) {
    const BoundsCase c = GetParam();
    EXPECT_EQ(RadaDialog::minZnaku(u8(c.prefix), c.cislo), c.min);

    RadaDialog dialog(m_frame, m_model->getRada("PP"));
    auto* znaku = field<wxSpinCtrl>(&dialog, "znaku");
    spin(field<wxSpinCtrl>(&dialog, "cislo"), c.cislo);
    field<wxTextCtrl>(&dialog, "prefix")->SetValue(u8(c.prefix));  // sends its change like typing
    EXPECT_EQ(znaku->GetMin(), c.min);
    EXPECT_EQ(znaku->GetMax(), 100);
    EXPECT_EQ(znaku->GetValue(), std::max(6, c.min));
}

INSTANTIATE_TEST_SUITE_P(Rada, RadaBounds,
                         ::testing::Values(BoundsCase{"four_digits_at_least", "PP", 1, 6},
                                           BoundsCase{"no_prefix", "", 7, 4}, BoundsCase{"long_number", "FV", 12345, 7},
                                           BoundsCase{"three_letter_prefix", "ZFV", 123456, 9},
                                           BoundsCase{"never_above_hundred", LONG_PREFIX.c_str(), 1, 100}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_F(BookTest, RadaDialogKeepsAStoredWidthUntilAChangeAndWritesTheSeries) {
    // ZFV's default width 6 is below the rule's 7; only editing brings it up.
    RadaDialog dialog(m_frame, m_model->getRada("ZFV"));
    auto* znaku = field<wxSpinCtrl>(&dialog, "znaku");
    EXPECT_EQ(znaku->GetValue(), 6);
    spin(field<wxSpinCtrl>(&dialog, "cislo"), 12);
    EXPECT_EQ(znaku->GetValue(), 7);
    field<wxTextCtrl>(&dialog, "popis")->SetValue(u8("Zálohy"));
    ASSERT_TRUE(dialog.save());
    const Rada stored = m_model->getRada("ZFV");
    EXPECT_EQ(stored.popis(), u8("Zálohy"));
    EXPECT_EQ(stored.znaku(), 7);
    EXPECT_EQ(stored.cislo(), 12);
    EXPECT_EQ(m_model->getCisloDokladu("ZFV"), "ZFV0012");
}

TEST_F(BookTest, PreferencesListSeriesAndStoreDueDaysOfTheYear) {
    PreferencesDialog preferences(m_frame);
    lxListCtrl* rady = preferences.radyPanel()->list();
    EXPECT_EQ(rady->GetItemCount(), 15);
    EXPECT_EQ(rady->GetItemText(0, 0), u8("Příjmový pokladní doklad"));
    EXPECT_EQ(rady->GetItemText(0, 3), "1");

    for (int days : {30, 21}) {  // the first stores the year's row, the second edits it
        field<wxSpinCtrl>(&preferences, "splatnost")->SetValue(days);
        ASSERT_TRUE(preferences.save());
        EXPECT_EQ(m_model->getSplatnost(2024), days);
        EXPECT_EQ(lxSettings::instance()->splatnost(), days);
    }
    EXPECT_EQ(m_model->tableRows("settings"), 1);
}

// ---------------------------------------------------------------- typed dates

namespace {

void check(wxCheckBox* box, bool value) {
    box->SetValue(value);
    wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
    event.SetEventObject(box);
    event.SetInt(value);
    box->GetEventHandler()->ProcessEvent(event);
}

// Runs a dialog modally; `person` acts once it is on the screen and presses OK. A dialog
// still open after that is cancelled. The result is how it ended.
int runAndOk(wxDialog& dialog, const std::function<void(wxDialog*)>& person) {
    wxTheApp->CallAfter([&] {
        person(&dialog);
        auto* ok = dialog.FindWindow(wxID_OK);
        wxCommandEvent event(wxEVT_BUTTON, wxID_OK);
        event.SetEventObject(ok);
        ok->ProcessWindowEvent(event);
        if (dialog.IsModal()) dialog.EndModal(wxID_CANCEL);
    });
    return dialog.ShowModal();
}

}  // namespace

using TypedDates = BookTest;

TEST_F(TypedDates, WorkingDateIsTypedInItsYearOrRefused) {
    struct Case {
        const char* typed;
        const char* datum;  // ISO; empty when refused
    };
    for (const Case& c : {Case{"15.10.", "2024-10-15"}, Case{"3.1.2025", "2025-01-03"}, Case{"2025-02-28", "2025-02-28"},
                          Case{"29.2.2025", ""}, Case{"", ""}}) {
        m_prompts.clear();
        DatumDialog dialog(m_frame, iso("2024-06-01"));
        EXPECT_EQ(field<wxTextCtrl>(&dialog, "datumText")->GetValue(), "01.06.2024");
        const int result = runAndOk(dialog, [&](wxDialog* d) { typeText(d, "datumText", u8(c.typed)); });
        if (*c.datum) {
            EXPECT_EQ(result, wxID_OK) << c.typed;
            EXPECT_EQ(dialog.datum().FormatISODate(), c.datum);
            EXPECT_EQ(m_prompts.transcript(), "");
        } else {
            EXPECT_EQ(result, wxID_CANCEL) << c.typed;
            EXPECT_EQ(m_prompts.transcript(), lxformat::datumZprava(u8("Datum aplikace"), u8(c.typed)) + "\n");
        }
    }
}

TEST_F(TypedDates, FilterRangeIsTypedAndUnreadableDatesAreNamed) {
    lxFilterDialog dialog(m_frame, "Filtr", lxFilter(), /*hasDate=*/true, wxArrayString());
    // Unused fields offer the accounting year.
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "odText")->GetValue(), "01.01.2024");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "doText")->GetValue(), "31.12.2024");
    EXPECT_FALSE(field<wxTextCtrl>(&dialog, "odText")->IsEnabled());
    check(field<wxCheckBox>(&dialog, "useOd"), true);
    check(field<wxCheckBox>(&dialog, "useDo"), true);
    EXPECT_TRUE(field<wxTextCtrl>(&dialog, "odText")->IsEnabled());
    struct Case {
        const char* od;
        const char* doDne;
        const char* message;
    };
    const Case cases[] = {
        {"1.3.", "2024-03-31", ""},
        {"1.3.", "31.3", "Do: „31.3“ není platné datum.\nZadejte například 15.10.2026."},
        {"32.1.", "31.3.", "Od: „32.1.“ není platné datum.\nZadejte například 15.10.2026."},
        {"1.4.", "31.3.", "Datum od nemůže být pozdější než datum do"},
    };
    for (const Case& c : cases) {
        typeText(&dialog, "odText", u8(c.od));
        typeText(&dialog, "doText", u8(c.doDne));
        EXPECT_EQ(dialog.validate(), u8(c.message)) << c.od << " " << c.doDne;
    }
    typeText(&dialog, "odText", "1.3.");
    typeText(&dialog, "doText", "31.3.2024");
    const lxFilter f = dialog.filter();
    EXPECT_EQ(f.od.FormatISODate(), "2024-03-01");
    EXPECT_EQ(f.doDne.FormatISODate(), "2024-03-31");
}
