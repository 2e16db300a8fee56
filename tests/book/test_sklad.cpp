// The stock dialogs driven as a person drives them: receipts and issues typed into the
// movement dialog with their refusals, an item with its movement list, a stock-taking, an
// invoice line that issues stock, and the stock prints read back from their PDFs.
#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/filefn.h>
#include <wx/listctrl.h>
#include <wx/prntbase.h>
#include <wx/utils.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "InventuraDialog.h"
#include "PohybDialog.h"
#include "PolozkaDialog.h"
#include "SkladTisk.h"
#include "SkladyDialog.h"
#include "ZasobaDialog.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "navigation.h"
#include "fakturace/dokladform.h"
#include "lxsettings.h"
#include "printtest.h"
#include "sklad/minimum.h"
#include "sklad/skladform.h"

using ::testing::HasSubstr;

class StockDialogs : public BookTest {
   protected:
    void SetUp() override {
        BookTest::SetUp();
        lxSettings::instance()->setDatum(iso("2024-06-10"));
        const Sklad sklad(m_model->getLastId("sklad"), u8("Hlavní"), "", 0);
        ASSERT_TRUE(m_model->addSklad(sklad));
        m_skladId = sklad.id();
        m_zasoba = skladform::ulozitZasobu(*m_model, Zasoba(-1, "", u8("Šroub M6"), "", 1, "ks", 0, 0, m_skladId, 2.5,
                                                            true, 21));
        ASSERT_GT(m_zasoba, 0);
    }
    // A receipt typed into the movement dialog; the outcome of OK.
    Outcome prijem(const char* pocet, const char* cena, const char* datum) {
        PohybDialog dialog(m_frame, m_zasoba, true);
        return fillAndOk(dialog, [&](wxDialog* d) {
            typeText(d, "pocet", u8(pocet));
            typeText(d, "cenamj", u8(cena));
            typeDate(d, "datum", datum);
        });
    }
    wxString lastShown() const { return m_prompts.shown().empty() ? wxString() : m_prompts.shown().back().text; }

    int m_skladId = -1;
    int m_zasoba = -1;
};

TEST_F(StockDialogs, MovementDialogTakesTypedReceiptsAndRefusesBadInput) {
    {
        PohybDialog dialog(m_frame, m_zasoba, true);
        EXPECT_EQ(dialog.GetTitle(), u8("Příjem na sklad"));
        EXPECT_EQ(field<wxStaticText>(&dialog, "cislo")->GetLabel(), "PR0001");
        screenshot(dialog, "pohyb_prijem");
    }
    struct Case {
        const char *pocet, *cena, *datum, *message;
    } cases[] = {
        {"12.500", "10", "15.10.2024",
         "Počet: „12.500“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), tisíce mezerou (12 500)."},
        {"10", "1 250,50", "31.2.2024", "Datum: „31.2.2024“ není platné datum.\nZadejte například 15.10.2026."},
        {"0", "10", "15.10.2024", "Nulový příjem na sklad"},
        {"", "10", "15.10.2024", "Nulový příjem na sklad"},
        {"10", "0", "15.10.2024", "Nulová cena za měrnou jednotku"},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        EXPECT_FALSE(prijem(c.pocet, c.cena, c.datum).closed) << c.message;
        EXPECT_EQ(lastShown(), u8(c.message));
    }
    EXPECT_EQ(m_model->pohybyzasobByZasobaId(m_zasoba).size(), 0u);

    ASSERT_TRUE(prijem("10", "1 250,50", "15.10.2024").closed);
    const auto pohyby = m_model->pohybyzasobByZasobaId(m_zasoba);
    ASSERT_EQ(pohyby.size(), 1u);
    EXPECT_EQ(pohyby[0]->datum(), iso("2024-10-15"));
    EXPECT_DOUBLE_EQ(pohyby[0]->cenamj(), 1250.50);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).celkem(), 12505);
}

TEST_F(StockDialogs, IssueBeyondStockIsRefusedAndOfferedAtTheAverageCost) {
    ASSERT_TRUE(prijem("10", "100", "1.3.2024").closed);
    ASSERT_TRUE(prijem("10", "200", "2.3.2024").closed);
    PohybDialog dialog(m_frame, m_zasoba, false);
    EXPECT_EQ(dialog.GetTitle(), u8("Výdej ze skladu"));
    const Outcome refused = fillAndOk(dialog, [](wxDialog* d) {
        typeDate(d, "datum", "10.3.2024");
        typeText(d, "pocet", "25");
    });
    EXPECT_FALSE(refused.closed);
    EXPECT_EQ(lastShown(), u8("Stav zásoby 20.000 na skladě je nižší než požadovaný výdej 25.000"));
    PohybDialog vydej(m_frame, m_zasoba, false);
    ASSERT_TRUE(fillAndOk(vydej, [](wxDialog* d) {
                    typeDate(d, "datum", "10.3.2024");
                    typeText(d, "pocet", "5");
                    // The offered cost is the average one.
                    EXPECT_EQ(field<wxTextCtrl>(d, "cenamj")->GetValue(), u8("150,00"));
                }).closed);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).pocet(), 15);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).celkem(), 2250);
}

TEST_F(StockDialogs, ItemDialogShowsRunningStateAndDeletesAfterTheQuestion) {
    ASSERT_TRUE(prijem("4", "10", "1.3.2024").closed);
    ASSERT_TRUE(prijem("6", "20", "2.3.2024").closed);
    {
        ZasobaDialog dialog(m_frame, m_zasoba);
        EXPECT_EQ(field<wxStaticText>(&dialog, "cislo")->GetLabel(), "ZB0001");
        EXPECT_EQ(wxJoin(listTexts(dialog.pohyby(), 5), '|'), "4,000|10,000");
        EXPECT_EQ(wxJoin(listTexts(dialog.pohyby(), 6), '|'), "40,00|160,00");
        screenshot(dialog, "zasoba");
        dialog.pohyby()->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        m_prompts.answerQuestion(true);
        dialog.smazatPohyb();
        EXPECT_EQ(lastShown(), u8("Opravdu smazat pohyb:\nPR0001\n4.000 ks\nz 01.03.2024 00:00:00?"));
        EXPECT_EQ(dialog.pohyby()->GetItemCount(), 1);
        const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
            typeText(d, "nazev", "");
        });
        EXPECT_FALSE(o.closed);
        EXPECT_EQ(lastShown(), u8("Název nemůže být prázdný"));
    }
    ZasobaDialog dialog(m_frame, m_zasoba);
    ASSERT_TRUE(fillAndOk(dialog, [](wxDialog* d) {
                    typeText(d, "nazev", u8("Šroub M8"));
                    typeText(d, "minimum", "12,5");
                    choose(field<wxChoice>(d, "ocenovani"), 0);
                }).closed);
    EXPECT_EQ(m_model->getZasoba(m_zasoba).nazev(), u8("Šroub M8"));
    EXPECT_DOUBLE_EQ(skladminimum::minimum(m_zasoba), 12.5);
    EXPECT_EQ(m_model->getZasoba(m_zasoba).ocenovani(), 0);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).celkem(), 120);  // state kept, revalued by FIFO
}

TEST_F(StockDialogs, WarehouseNamesMustDifferAndAUsedOneStays) {
    SkladyDialog sklady(m_frame);
    screenshot(sklady, "sklady");
    SkladDialog dialog(&sklady);
    EXPECT_FALSE(fillAndOk(dialog, [](wxDialog* d) { typeText(d, "nazev", u8("Hlavní")); }).closed);
    EXPECT_EQ(lastShown(), u8("Název 'Hlavní' už existuje\nZvolte jiný"));
    m_prompts.answerQuestion(true);
    sklady.deleteRow(m_skladId);
    EXPECT_EQ(m_prompts.shown().at(m_prompts.shown().size() - 2).text, u8("Opravdu smazat sklad Hlavní?"));
    EXPECT_TRUE(m_model->hasSklad(u8("Hlavní")));
}

TEST_F(StockDialogs, StockTakingTurnsTheTypedCountIntoACorrection) {
    ASSERT_TRUE(prijem("10", "100", "1.3.2024").closed);
    InventuraDialog dialog(m_frame);
    EXPECT_EQ(field<wxStaticText>(&dialog, "cislo")->GetLabel(), "IV0001");
    screenshot(dialog, "inventura");
    const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
        typeDate(d, "datum", "1.4.2024");
        auto* radky = field<wxListCtrl>(d, "radky");
        radky->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        typeText(d, "zjisteno", "12.500");
        pressButton(d, "nastavit");
        typeText(d, "zjisteno", "7,5");
        pressButton(d, "nastavit");
        EXPECT_EQ(listTexts(radky, 5)[0], u8("-2,500"));
    });
    ASSERT_TRUE(o.closed);
    EXPECT_EQ(m_prompts.shown().at(0).text,
              u8("Zjištěno: „12.500“ je nejednoznačné.\nDesetinnou část oddělte čárkou (12,5), tisíce mezerou (12 500)."));
    const Pohybzasob korekce = m_model->getPohybzasobByInventura(m_zasoba, dialog.inventuraId());
    ASSERT_TRUE(korekce.isValid());
    EXPECT_FALSE(korekce.prijemka());
    EXPECT_DOUBLE_EQ(korekce.pocet(), 2.5);
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).pocet(), 7.5);
}

TEST_F(StockDialogs, InvoiceLineChoosesTheItemAndIssuesIt) {
    ASSERT_TRUE(prijem("3", "100", "1.3.2024").closed);
    DokladForm doklad = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
    PolozkaDialog dialog(m_frame, doklad);
    screenshot(dialog, "polozka_zasoba");
    const Outcome refused = fillAndOk(dialog, [](wxDialog* d) {
        choose(field<wxChoice>(d, "zasoba"), 1);
        EXPECT_EQ(field<wxTextCtrl>(d, "popis")->GetValue(), u8("Šroub M6"));
        typeText(d, "pocet", "4");
    });
    EXPECT_FALSE(refused.closed);
    EXPECT_EQ(lastShown(), u8("Stav zásoby 3.000 na skladě je nižší než požadovaný výdej 4.000"));
    PolozkaDialog druhy(m_frame, doklad);
    ASSERT_TRUE(fillAndOk(druhy, [](wxDialog* d) {
                    choose(field<wxChoice>(d, "zasoba"), 1);
                    typeText(d, "pocet", "2");
                    typeText(d, "cenamj", "1 250,50");
                }).closed);
    const Pohybzasob vydej = m_model->getPohybzasobByFaktura(m_zasoba, doklad.id);
    ASSERT_TRUE(vydej.isValid());
    EXPECT_FALSE(vydej.prijemka());
    EXPECT_DOUBLE_EQ(m_model->getZasoba(m_zasoba).pocet(), 1);
    EXPECT_DOUBLE_EQ(m_model->getFaPolozka(druhy.polozkaId()).cenamj(), 1250.50);
}

TEST_F(StockDialogs, PrintsShowTheItemsTheirMovementsAndStockTakings) {
    ASSERT_TRUE(prijem("10", "100", "1.3.2024").closed);
    const int iv = skladform::ulozitInventuru(
        *m_model, Inventura(-1, iso("2024-04-01"), "", u8("Pololetní"), u8("Novák"), m_skladId, 2024),
        {{m_zasoba, "", "", "", 10, 8}});
    ASSERT_GT(iv, 0);
    struct Case {
        const char* file;
        std::function<wxString()> print;
        std::vector<const char*> texts;
    } cases[] = {
        {"karta.pdf", [&] { return tiskKartyZasoby(m_frame, m_zasoba); },
         {"Karta zásoby ZB0001", "Šroub M6", "PR0001", "VY0001", "Příjem", "Výdej (inventura)", "800,00"}},
        {"kniha.pdf", [&] { return tiskKnihyZasob(m_frame, {m_zasoba}, iso("2024-06-10")); },
         {"Kniha zásob k 10.06.2024", "Šroub M6", "8,000", "800,00", "Zásob: 1"}},
        {"inventura.pdf", [&] { return tiskInventury(m_frame, iv); },
         {"Inventura IV0001", "Pololetní", "Novák", "10,000", "8,000", "-2,000"}},
        {"inventury.pdf", [&] { return tiskKnihyInventur(m_frame); }, {"Kniha inventur 2024", "IV0001", "Hlavní"}},
    };
    for (const Case& c : cases) {
        const wxString pdf = m_home + "/" + c.file;
        m_prompts.answerChoice(1);
        m_prompts.answerPath(pdf);
        ASSERT_EQ(c.print(), pdf) << c.file;
        const std::string text = PrintTest::pdfText(pdf, 0).utf8_string();
        for (const char* expected : c.texts) EXPECT_THAT(text, HasSubstr(expected)) << c.file;
        wxString shots;
        if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) wxCopyFile(pdf, shots + "/" + c.file);
    }
    // "Náhled" opens the preview of the card with its page drawn.
    m_prompts.answerChoice(0);
    EXPECT_EQ(tiskKartyZasoby(m_frame, m_zasoba), wxString());
    wxPreviewFrame* nahled = nullptr;
    for (wxWindow* w : wxTopLevelWindows)
        if (auto* f = dynamic_cast<wxPreviewFrame*>(w)) nahled = f;
    ASSERT_NE(nahled, nullptr);
    EXPECT_EQ(nahled->GetTitle(), u8("Karta zásoby ZB0001"));
    wxString shots;
    if (wxGetEnv("EVIDA_SCREENSHOTS", &shots) && !shots.empty()) {
        nahled->Move(0, 0);
        for (int i = 0; i < 20; ++i) {
            wxYield();
            wxMilliSleep(25);
        }
        wxExecute("import -window root " + shots + "/karta_nahled.png", wxEXEC_SYNC);
    }
    nahled->Destroy();
    wxYield();
}

TEST_F(StockDialogs, PageShowsTheWorkingDayStateAndMarksItemsUnderTheirMinimum) {
    ASSERT_TRUE(prijem("10", "100", "1.3.2024").closed);
    ASSERT_TRUE(prijem("5", "100", "20.6.2024").closed);  // after the working day
    const int druha = skladform::ulozitZasobu(*m_model, Zasoba(-1, "", u8("Matice M6"), "", 0, "ks", 0, 0,
                                                                m_skladId, 1, true, 21));
    skladform::PohybForm f;
    f.zasobaid = druha;
    f.datum = iso("2024-06-10");  // on the working day itself
    f.pocet = 3;
    f.cenamj = 2;
    ASSERT_EQ(skladform::ulozitPohyb(*m_model, f), wxString());
    skladminimum::setMinimum(druha, 5);

    m_book->createPages();
    m_book->selectPage(NAV_ZASOBY);
    lxBookPage* page = m_book->page(NAV_ZASOBY);
    ASSERT_NE(page, nullptr);
    ASSERT_EQ(page->rows().rowCount(), 2u);
    struct Row {
        int id;
        const char *mnozstvi, *hodnota;
        bool cervena;
    } rows[] = {{m_zasoba, "10,000", "1\u00a0000,00", false}, {druha, "3,000", "6,00", true}};
    for (const Row& r : rows) {
        const long i = page->rows().indexOfId(r.id);
        ASSERT_GE(i, 0);
        EXPECT_EQ(page->rows().text(i, 4), u8(r.mnozstvi));
        EXPECT_EQ(page->rows().text(i, 6), u8(r.hodnota));
        EXPECT_EQ(page->rows().textColour(i).IsOk(), r.cervena) << r.id;
    }

    page->list()->selectId(m_zasoba);
    m_prompts.answerQuestion(true);
    ASSERT_TRUE(page->run(BOOK_DELETE));
    EXPECT_EQ(lastShown(), u8("Opravdu smazat zásobu\nZB0001\nŠroub M6?"));
    EXPECT_FALSE(m_model->hasZasoba(m_zasoba));
    EXPECT_EQ(m_model->pohybyzasobByZasobaId(m_zasoba).size(), 0u);
}
