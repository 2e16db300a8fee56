// The income/expense dialog as a person uses it: text typed into its real fields (the date,
// the amounts and the rate), OK pressed while the dialog runs modally as it does from the
// journal page, and what it then stores, refuses or asks.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/calctrl.h>
#include <wx/choice.h>
#include <wx/generic/calctrlg.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <functional>

#include "PrijemVydejDialog.h"
#include "booktest.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "denikform.h"
#include "lxformat.h"

namespace {

// The ordinary fields of a cash entry; the test types the rest.
void fillIncome(wxDialog* d, const char* castka = "100") {
    typeText(d, "popis", u8("Tržba"));
    typeText(d, "predkontace", "P001");
    typeText(d, "castka", u8(castka));
}

}  // namespace

class DenikDialog : public BookTest {
 protected:
    Denik stored(const PrijemVydejDialog& dialog) { return m_model->getDenik(dialog.denikId()); }
};

TEST_F(DenikDialog, TypedDateIsTheDateStored) {
    struct Case {
        const char* typed;
        const char* stored;
    };
    for (const Case& c :
         {Case{"15.10.2024", "2024-10-15"}, Case{"15.10.", "2024-10-15"}, Case{"2024-10-15", "2024-10-15"},
          Case{" 5. 3. 2024 ", "2024-03-05"}, Case{"31.12.", "2024-12-31"}}) {
        PrijemVydejDialog dialog(m_frame, true, false);
        const Outcome o = fillAndOk(dialog, [&](wxDialog* d) {
            fillIncome(d);
            typeText(d, "datumText", c.typed);
        });
        ASSERT_TRUE(o.closed) << c.typed << "\n" << m_prompts.transcript();
        EXPECT_EQ(stored(dialog).datum().FormatISODate(), c.stored) << c.typed;
    }
    EXPECT_EQ(m_prompts.transcript(), "");
}

TEST_F(DenikDialog, TypedAmountIsStoredAsTyped) {
    struct Case {
        const char* typed;
        double stored;
    };
    for (const Case& c : {Case{"1.250,00", 1250}, Case{"1 250,50", 1250.5}, Case{"1250.5", 1250.5}, Case{"0,1", 0.1},
                          Case{"1234,5678901", 1234.5678901}, Case{u8"12\u00A0500 Kč", 12500}}) {
        PrijemVydejDialog dialog(m_frame, true, false);
        ASSERT_TRUE(fillAndOk(dialog, [&](wxDialog* d) { fillIncome(d, c.typed); }).closed) << c.typed;
        EXPECT_EQ(stored(dialog).castka(), c.stored) << c.typed;
    }
    EXPECT_EQ(m_prompts.transcript(), "");
}

TEST_F(DenikDialog, FieldThatDoesNotReadIsRefusedWithTheFocusOnIt) {
    struct Case {
        const char* field;  // the field typed into and expected to get the focus
        const char* typed;
        const char* message;
    };
    const Case cases[] = {
        {"castka", "12,5x", "Částka v Kč: „12,5x“ není platná částka.\nZadejte například 1250, 1 250,50 nebo 1250.50."},
        {"castka", "12.500",
         "Částka v Kč: „12.500“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), "
         "tisíce mezerou (12 500)."},
        {"castka", "", "Částka v Kč: zadejte částku"},
        {"datumText", "31.2.2024", "Datum: „31.2.2024“ není platné datum.\nZadejte například 15.10.2026."},
        {"datumText", "zítra", "Datum: „zítra“ není platné datum.\nZadejte například 15.10.2026."},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        PrijemVydejDialog dialog(m_frame, true, false);
        auto* target = field<wxTextCtrl>(&dialog, c.field);
        const Outcome o = fillAndOk(dialog, [&](wxDialog* d) {
            fillIncome(d);
            typeText(d, c.field, u8(c.typed));
        });
        EXPECT_FALSE(o.closed) << c.typed;
        ASSERT_EQ(m_prompts.shown().size(), 1u) << c.typed;
        EXPECT_EQ(m_prompts.shown()[0].text, u8(c.message));
        EXPECT_EQ(m_prompts.shown()[0].caption, "Informace");
        EXPECT_EQ(o.focus, target) << c.typed;
        // The whole text is selected for retyping.
        long from = -1, to = -1;
        target->GetSelection(&from, &to);
        EXPECT_EQ(from, 0) << c.typed;
        EXPECT_EQ(to, target->GetLastPosition()) << c.typed;
    }
    EXPECT_EQ(m_model->tableRows("denik"), 0);
}

TEST_F(DenikDialog, EditAndOkKeepsAForeignEntryToTheBit) {
    const int idr = 13;
    const double kurz = 0.001547;
    const double castkacizi = 1234.5678901;
    const double castka = 1.9098765432109876;  // not kurz × castkacizi: it is kept as it is
    const int id = m_model->getLastId("denik");
    ASSERT_TRUE(m_model->addDenik(Denik(id, iso("2024-04-02"), "PP0042", u8("Rupie"), castka, castkacizi, kurz, "", 0,
                                        idr, m_model->getPredkontaceIdByZkratka("P001"), 1, -1, 0, 0, 2024)));
    PrijemVydejDialog dialog(m_frame, true, false, DenikForm::EDIT, id);
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "kurz")->GetValue(), "0,001547");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "castkacizi")->GetValue(), u8("1\u00A0234,57"));
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "castka")->GetValue(), "1,91");
    ASSERT_TRUE(fillAndOk(dialog, [](wxDialog*) {}).closed) << m_prompts.transcript();
    const Denik d = m_model->getDenik(id);
    EXPECT_EQ(d.kurz(), kurz);
    EXPECT_EQ(d.castkacizi(), castkacizi);
    EXPECT_EQ(d.castka(), castka);
    EXPECT_EQ(d.menaid(), idr);
    EXPECT_EQ(d.cislo(), "PP0042");
}

TEST_F(DenikDialog, TypedRateAndForeignAmountGiveTheExactProduct) {
    PrijemVydejDialog dialog(m_frame, true, false);
    const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
        fillIncome(d, "1");
        auto* mena = field<wxChoice>(d, "mena");
        choose(mena, menaIndex(mena, "EUR"));
        typeText(d, "kurz", "25,345");
        typeText(d, "castkacizi", "100,10");
        // The home amount shows rounded; it is computed from the typed values, not re-read.
        EXPECT_EQ(field<wxTextCtrl>(d, "castka")->GetValue(), u8("2\u00A0537,03"));
    });
    ASSERT_TRUE(o.closed) << m_prompts.transcript();
    const Denik d = stored(dialog);
    EXPECT_EQ(d.kurz(), 25.345);
    EXPECT_EQ(d.castkacizi(), 100.1);
    EXPECT_EQ(d.castka(), 25.345 * 100.1);
    EXPECT_EQ(d.menaid(), 2);
}

TEST_F(DenikDialog, EntryOutsideItsYearOrDirectionIsRefused) {
    denik("P001", 50, "2024-02-01", u8("Starší"));  // number D001
    struct Case {
        bool prijem;
        const char* field;
        const char* typed;
        const char* focus;
        const char* message;
    };
    const Case cases[] = {
        {true, "datumText", "23.11.2025", "datumText", "Datum 23.11.2025 není v účetním období 2024"},
        {true, "datumText", "31.12.2023", "datumText", "Datum 31.12.2023 není v účetním období 2024"},
        {true, "predkontace", "V001", "predkontace", "Předkontace V001 je výdajová, zadejte příjmovou"},
        {false, "predkontace", "P001", "predkontace", "Předkontace P001 je příjmová, zadejte výdajovou"},
        {true, "cislo", "D001", "cislo", "Doklad s číslem D001 už existuje"},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        PrijemVydejDialog dialog(m_frame, c.prijem, false);
        const Outcome o = fillAndOk(dialog, [&](wxDialog* d) {
            fillIncome(d);
            if (!c.prijem) typeText(d, "predkontace", "V001");
            typeText(d, c.field, u8(c.typed));
        });
        EXPECT_FALSE(o.closed) << c.message;
        EXPECT_EQ(m_prompts.transcript(), u8(c.message) + "\n");
        EXPECT_EQ(o.focus, wxWindow::FindWindowByName(c.focus, &dialog)) << c.message;
    }
    EXPECT_EQ(m_model->tableRows("denik"), 1);
}

TEST_F(DenikDialog, CashGoingBelowZeroIsSavedOnlyWhenConfirmed) {
    denik("P001", 300, "2024-02-01", u8("Vklad"));
    for (const bool yes : {false, true}) {
        m_prompts.clear();
        m_prompts.answerQuestion(yes);
        PrijemVydejDialog dialog(m_frame, /*prijem=*/false, /*banka=*/false);
        const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
            typeText(d, "predkontace", "V001");
            typeText(d, "castka", "500");
        });
        ASSERT_EQ(m_prompts.shown().size(), 1u);
        EXPECT_EQ(m_prompts.shown()[0].kind, "question");
        EXPECT_EQ(m_prompts.shown()[0].caption, "Dotaz");
        EXPECT_EQ(m_prompts.shown()[0].text, u8("Stav pokladny POK1 bude záporný (-200,00 Kč). Přesto uložit?"));
        EXPECT_EQ(o.closed, yes);
        EXPECT_EQ(m_model->tableRows("denik"), yes ? 2 : 1);
    }
    // A bank expense of the same amount is not asked about.
    m_prompts.clear();
    PrijemVydejDialog banka(m_frame, false, true);
    EXPECT_TRUE(fillAndOk(banka, [](wxDialog* d) {
                    typeText(d, "predkontace", "V001");
                    typeText(d, "castka", "5000");
                }).closed);
    EXPECT_EQ(m_prompts.transcript(), "");
}

TEST_F(DenikDialog, StoredRateOfATypedOrPickedDayIsFilledIn) {
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), iso("2024-03-01"), 25.125, "EUR", false)));
    ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), iso("2024-03-04"), 25.5, "EUR", false)));
    PrijemVydejDialog dialog(m_frame, true, false);
    auto* mena = field<wxChoice>(&dialog, "mena");
    choose(mena, menaIndex(mena, "EUR"));
    auto* datum = field<lxDateCtrl>(&dialog, "datum");
    auto* kurz = field<lxAmountCtrl>(&dialog, "kurz");
    typeText(&dialog, "castkacizi", "10");
    typeText(&dialog, "datumText", "1.3.");
    datum->commitText();  // the focus leaves the field
    EXPECT_EQ(datum->text(), "01.03.2024");
    EXPECT_EQ(kurz->wxTextCtrl::GetValue(), "25,125");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "castka")->GetValue(), "251,25");
    datum->pick(iso("2024-03-04"));  // a day clicked in the calendar
    EXPECT_EQ(datum->text(), "04.03.2024");
    EXPECT_EQ(kurz->wxTextCtrl::GetValue(), "25,5");
    datum->pick(iso("2024-03-05"));  // no rate of that day: the rate stays
    EXPECT_EQ(kurz->wxTextCtrl::GetValue(), "25,5");
}

TEST_F(DenikDialog, AmountFieldKeepsItsDoubleUntilTheTextChanges) {
    lxAmountCtrl castka(m_frame, lxAmountCtrl::CASTKA, "castka");
    lxAmountCtrl kurz(m_frame, lxAmountCtrl::KURZ, "kurz");
    double value = 0;
    EXPECT_EQ(castka.GetValue(&value), lxformat::Chyba::PRAZDNE) << "an empty field reads nothing";
    castka.SetValue(0.1 + 0.2);
    EXPECT_EQ(castka.wxTextCtrl::GetValue(), "0,30");
    EXPECT_EQ(castka.GetValue(&value), lxformat::Chyba::ZADNA);
    EXPECT_EQ(value, 0.1 + 0.2);
    castka.ChangeValue("0,30");  // the same text retyped: still the kept double
    EXPECT_EQ(castka.GetValue(&value), lxformat::Chyba::ZADNA);
    EXPECT_EQ(value, 0.1 + 0.2);
    castka.ChangeValue("0,3");
    EXPECT_EQ(castka.GetValue(&value), lxformat::Chyba::ZADNA);
    EXPECT_EQ(value, 0.3);
    castka.ChangeValue("1e5");
    value = 7;
    EXPECT_EQ(castka.GetValue(&value), lxformat::Chyba::SYNTAXE);
    EXPECT_EQ(value, 7) << "an unread text leaves the value alone";
    EXPECT_EQ(castka.zprava("Částka"), lxformat::castkaZprava("Částka", "1e5", lxformat::Chyba::SYNTAXE));

    kurz.SetValue(0.0015471234567);
    EXPECT_EQ(kurz.wxTextCtrl::GetValue(), "0,00154712");
    EXPECT_EQ(kurz.GetValue(&value), lxformat::Chyba::ZADNA);
    EXPECT_EQ(value, 0.0015471234567);
    kurz.ChangeValue("0");
    EXPECT_EQ(kurz.GetValue(&value), lxformat::Chyba::ROZSAH);
    EXPECT_EQ(kurz.zprava("Kurz"), lxformat::kurzZprava("Kurz", "0", lxformat::Chyba::ROZSAH));
}

TEST_F(DenikDialog, SwitchingToBankGrowsTheDialogForItsFields) {
    PrijemVydejDialog dialog(m_frame, true, false);
    const wxSize before = dialog.GetClientSize();
    screenshot(dialog, "pokladna");
    choose(field<wxChoice>(&dialog, "typ"), 1);
    auto* mena = field<wxChoice>(&dialog, "mena");
    choose(mena, menaIndex(mena, "EUR"));
    typeText(&dialog, "kurz", "25,125");
    typeText(&dialog, "castkacizi", "1234,5");
    typeText(&dialog, "protistrana", "Alfa s.r.o.");
    EXPECT_GT(dialog.GetClientSize().y, before.y);
    screenshot(dialog, "banka_eur");
    for (const char* name : {"vypis", "protistrana", "registr", "kurz", "stahnoutKurz", "castkacizi", "datum"}) {
        wxWindow* w = wxWindow::FindWindowByName(name, &dialog);
        ASSERT_NE(w, nullptr) << name;
        EXPECT_TRUE(w->IsShown()) << name;
        EXPECT_GE(w->GetSize().x, w->GetBestSize().x) << name;
        // Inside the dialog, not cut off at its edge.
        EXPECT_LE(w->GetPosition().x + w->GetSize().x, dialog.GetClientSize().x) << name;
    }
}

// Tests that send real keyboard and mouse events to the display. Any window another test opens
// meanwhile would take the focus and the events, so these run alone (see CMakeLists.txt).
class DenikDialogRealInput : public DenikDialog {};

TEST_F(DenikDialogRealInput, EnterInAFieldPressesOk) {
    PrijemVydejDialog dialog(m_frame, true, false);
    EXPECT_EQ(dialog.GetDefaultItem(), dialog.FindWindow(wxID_OK));
    bool typed = false;
    wxTheApp->CallAfter([&] {
        // A person at the keyboard: click into the amount, type, press Enter.
        auto* castka = field<wxTextCtrl>(&dialog, "castka");
        typeText(&dialog, "predkontace", "P001");
        wxUIActionSimulator sim;
        sim.MouseMove(castka->GetScreenPosition() + wxPoint(10, 5));
        sim.MouseClick();
        for (int i = 0; i < 50 && wxWindow::FindFocus() != castka; ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        castka->SelectAll();
        sim.Text("1250,5");
        sim.Char(WXK_RETURN);
        for (int i = 0; i < 100 && dialog.IsModal(); ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        typed = true;
        if (dialog.IsModal()) dialog.EndModal(wxID_CANCEL);
    });
    const int result = dialog.ShowModal();
    ASSERT_TRUE(typed);
    ASSERT_EQ(result, wxID_OK) << m_prompts.transcript();
    EXPECT_EQ(m_model->getDenik(dialog.denikId()).castka(), 1250.5);
}

TEST_F(DenikDialogRealInput, DayClickedInThePopUpCalendarIsTaken) {
    PrijemVydejDialog dialog(m_frame, true, false);
    auto* datum = field<lxDateCtrl>(&dialog, "datum");
    wxDateTime shown;
    bool popupClosed = false;
    wxTheApp->CallAfter([&] {
        datum->showCalendar();
        auto* calendar = dynamic_cast<wxGenericCalendarCtrl*>(wxWindow::FindWindowByName("kalendar", datum));
        ASSERT_NE(calendar, nullptr);
        for (int i = 0; i < 20; ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        // Finds where the 19th of the shown month is drawn and clicks there, as a person would.
        wxPoint at = wxDefaultPosition;
        const wxSize size = calendar->GetClientSize();
        for (int y = 0; y < size.y && at == wxDefaultPosition; y += 3)
            for (int x = 0; x < size.x && at == wxDefaultPosition; x += 3) {
                wxDateTime day;
                if (calendar->HitTest(wxPoint(x, y), &day) == wxCAL_HITTEST_DAY && day.GetDay() == 19 &&
                    day.GetMonth() == wxDateTime::Jun)
                    at = wxPoint(x + 4, y + 4);
            }
        ASSERT_NE(at, wxDefaultPosition);
        wxUIActionSimulator sim;
        sim.MouseMove(calendar->ClientToScreen(at));
        sim.MouseClick();
        for (int i = 0; i < 50 && datum->text() == "01.06.2024"; ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        shown = datum->GetValue();
        const auto open = [datum] {
            wxWindow* popup = wxWindow::FindWindowByName("kalendar", datum);
            return popup && popup->IsShownOnScreen();
        };
        for (int i = 0; i < 50 && open(); ++i) {
            wxYield();
            wxMilliSleep(20);
        }
        popupClosed = !open();
        dialog.EndModal(wxID_CANCEL);
    });
    dialog.ShowModal();
    EXPECT_EQ(shown.FormatISODate(), "2024-06-19");
    EXPECT_TRUE(popupClosed);
}
