// The invoice and receivable/liability dialogs driven through their controls: items added in
// the item dialog while the document dialog runs modally, typed amounts and dates, OK and
// Cancel, and what the company file then holds.
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/listctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include "FakturaDialog.h"
#include "KontaktCompleter.h"
#include "PolozkaDialog.h"
#include "ZavpohDialog.h"
#include "booktest.h"
#include "fakturace/uhradaform.h"
#include "lxformat.h"

namespace {

struct Item {
    const char* popis;
    const char* pocet;
    const char* cena;
    const char* sazba;  // as offered, "21 %"; nullptr for a non-payer's document
    bool bezDph;
};

// The item dialog that the document dialog has open.
PolozkaDialog* openItemDialog() {
    for (wxWindow* w : wxTopLevelWindows)
        if (auto* d = dynamic_cast<PolozkaDialog*>(w); d && d->IsModal()) return d;
    return nullptr;
}

// "Přidat položku" pressed and the item typed into the item dialog, which is confirmed.
void addItem(DokladDialog* doklad, const Item& item) {
    wxTheApp->CallAfter([item] {
        PolozkaDialog* d = openItemDialog();
        ASSERT_NE(d, nullptr);
        typeText(d, "popis", u8(item.popis));
        typeText(d, "mj", "ks");
        typeText(d, "pocet", u8(item.pocet));
        typeText(d, "cenamj", u8(item.cena));
        if (item.sazba) {
            auto* sazba = field<wxChoice>(d, "sazba");
            choose(sazba, sazba->FindString(item.sazba));
            auto* bezdph = field<wxCheckBox>(d, "bezdph");
            bezdph->SetValue(item.bezDph);
            wxCommandEvent event(wxEVT_CHECKBOX, bezdph->GetId());
            event.SetEventObject(bezdph);
            bezdph->ProcessWindowEvent(event);
        }
        pressOk(d);
        if (d->IsModal()) d->EndModal(wxID_CANCEL);
    });
    doklad->pridatPolozku();
}

void fillDoklad(wxDialog* d, const char* predkontace) {
    typeText(d, "popis", u8("Dodávka"));
    typeText(d, "predkontace", predkontace);
}

}  // namespace

class DokladDialogTest : public BookTest {
 protected:
    void platce() {
        nastavPlatceDph();
    }
    // A paid issued invoice of one item, made through the dialog.
    int zaplacenaFaktura() {
        FakturaDialog dialog(m_frame, true);
        EXPECT_TRUE(fillAndOk(dialog,
                              [](wxDialog* d) {
                                  fillDoklad(d, "P001");
                                  addItem(static_cast<DokladDialog*>(d), Item{"Práce", "1", "1000", nullptr, false});
                              })
                        .closed)
            << m_prompts.transcript();
        const PlacenyDoklad doklad = placenyFaktura(*m_model, dialog.dokladId());
        EXPECT_EQ(writeUhrada(*m_model, doklad), "");
        EXPECT_TRUE(m_model->someUhradaForFaktura(dialog.dokladId()));
        return dialog.dokladId();
    }
};

TEST_F(DokladDialogTest, TypedItemsOfAPayersInvoiceAreStoredExactlyAndAdvanceTheSeries) {
    platce();
    const int cislo = m_model->getRadaCislo("FV");
    FakturaDialog dialog(m_frame, true);
    m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta Trade s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                Adresa(-1, u8("Vídeňská"), "12", "Brno", "63900", ""));
    const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
        auto* doklad = static_cast<DokladDialog*>(d);
        fillDoklad(d, "P001");
        typeText(d, "protistrana", u8("Beta Trade s.r.o."));
        typeText(d, "duzpText", "15.10.2024");
        addItem(doklad, Item{"Montáž", "2", "1 250,50", "21 %", false});
        addItem(doklad, Item{"Materiál", "1,125", "100", "12 %", true});
        auto* mena = field<wxChoice>(d, "mena");
        choose(mena, menaIndex(mena, "EUR"));
        typeText(d, "kurz", "25,125");
        EXPECT_EQ(doklad->polozkyList()->GetItemCount(), 2);
        EXPECT_EQ(doklad->polozkyList()->GetItemText(1, 2), "1,125");
    });
    ASSERT_TRUE(o.closed) << m_prompts.transcript();
    const Faktura f = m_model->getFaktura(dialog.dokladId());
    ASSERT_TRUE(f.isValid());
    EXPECT_EQ(f.duzp().FormatISODate(), "2024-10-15");
    EXPECT_EQ(f.kurz(), 25.125);
    EXPECT_TRUE(f.platce());
    const lxFaPolozkaArray items = m_model->fapolozkyByFakturaId(f.id());
    ASSERT_EQ(items.size(), 2u);
    // Price with VAT: the total is quantity × price and the VAT is taken out of it.
    EXPECT_EQ(items[0]->cenamj(), 1250.5);
    EXPECT_EQ(items[0]->pocet(), 2.0);
    EXPECT_EQ(items[0]->celkem(), 2501.0);
    EXPECT_DOUBLE_EQ(items[0]->dph(), 2501.0 * 21 / 121);
    EXPECT_EQ(m_model->getDphSazbaValue(items[0]->sazbaid()), 21);
    // Price without VAT: the VAT is added on top, nothing rounded to hellers.
    EXPECT_EQ(items[1]->pocet(), 1.125);
    EXPECT_TRUE(items[1]->bezdph());
    EXPECT_DOUBLE_EQ(items[1]->dph(), 13.5);
    EXPECT_DOUBLE_EQ(items[1]->celkem(), 126.0);
    EXPECT_EQ(m_model->getDphSazbaValue(items[1]->sazbaid()), 12);
    EXPECT_EQ(f.celkem(), items[0]->celkem() + items[1]->celkem());
    EXPECT_EQ(dialog.celkemText(), lxformat::formatCastka(f.celkem(), wxString("EUR")));
    EXPECT_EQ(m_model->getRadaCislo("FV"), cislo + 1);
    FakturaDialog stored(m_frame, true, f.id());
    EXPECT_EQ(stored.polozkyList()->GetItemCount(), 2);
    screenshot(stored, "faktura_vydana");
}

TEST_F(DokladDialogTest, CancelOfANewDocumentOrACopyLeavesNoRowItemOrSeriesChange) {
    const int faktura = zaplacenaFaktura();
    const int cislo = m_model->getRadaCislo("FV");
    const int faktur = m_model->tableRows("faktura"), polozek = m_model->tableRows("fapolozka");
    struct Case {
        const char* name;
        bool kopie;
        bool shown;  // closed through Cancel of the running dialog, or destroyed unshown
    };
    for (const Case& c : {Case{"new", false, true}, Case{"copy", true, true}, Case{"new unshown", false, false}}) {
        {
            const int id = c.kopie ? m_model->copyFaktura(faktura) : -1;
            FakturaDialog dialog(m_frame, true, id, c.kopie);
            ASSERT_TRUE(dialog.isNovy()) << c.name;
            if (c.shown) {
                wxTheApp->CallAfter([&] {
                    addItem(&dialog, Item{"Navíc", "3", "10", nullptr, false});
                    dialog.EndModal(wxID_CANCEL);
                });
                EXPECT_EQ(dialog.ShowModal(), wxID_CANCEL) << c.name;
            }
        }
        EXPECT_EQ(m_model->tableRows("faktura"), faktur) << c.name;
        EXPECT_EQ(m_model->tableRows("fapolozka"), polozek) << c.name;
        EXPECT_EQ(m_model->getRadaCislo("FV"), cislo) << c.name;
    }
}

TEST_F(DokladDialogTest, FieldThatDoesNotReadOrAnInvalidClassificationSavesNothing) {
    platce();
    struct Case {
        const char* field;
        const char* typed;
        const char* focus;
        const char* message;
        const char* dphdruh = nullptr;
    };
    // "R1,2-C" (the travel-service regime) exists only from 2016 on.
    const Case cases[] = {
        {"splatnostText", "31.2.2024", "splatnostText",
         "Splatnost: „31.2.2024“ není platné datum.\nZadejte například 15.10.2026."},
        {"vystaveniText", "zítra", "vystaveniText",
         "Vystavení: „zítra“ není platné datum.\nZadejte například 15.10.2026."},
        {"duzpText", "31.12.2015", "duzpText", "Členění DPH R1,2-C není platné pro DUZP 31.12.2015", "R1,2-C"},
        {"dphdruh", "R99", "dphdruh", "Členění DPH R99 neexistuje"},
    };
    const int cislo = m_model->getRadaCislo("FV");
    for (const Case& c : cases) {
        m_prompts.clear();
        FakturaDialog dialog(m_frame, true);
        const Outcome o = fillAndOk(dialog, [&](wxDialog* d) {
            fillDoklad(d, "P001");
            if (c.dphdruh) dynamic_cast<wxComboBox*>(d->FindWindow("dphdruh"))->SetValue(c.dphdruh);
            if (auto* combo = dynamic_cast<wxComboBox*>(d->FindWindow(c.field)))
                combo->SetValue(c.typed);
            else
                typeText(d, c.field, u8(c.typed));
        });
        EXPECT_FALSE(o.closed) << c.field;
        EXPECT_EQ(m_prompts.transcript(), u8(c.message) + "\n");
        ASSERT_EQ(m_prompts.shown().size(), 1u);
        EXPECT_EQ(m_prompts.shown()[0].caption, "Informace");
        wxWindow* focus = wxWindow::FindWindowByName(c.focus, &dialog);
        EXPECT_TRUE(o.focus == focus || (o.focus && o.focus->GetParent() == focus)) << c.field;
    }
    EXPECT_EQ(m_model->tableRows("faktura"), 0);
    EXPECT_EQ(m_model->getRadaCislo("FV"), cislo);
}

// A change of what the payments were computed from (here the date of taxable supply) asks;
// a new due date alone does not touch them.
TEST_F(DokladDialogTest, ChangingAPaidInvoiceDeletesItsPaymentsOnlyWhenConfirmed) {
    const int id = zaplacenaFaktura();
    const int zaznamu = m_model->tableRows("denik");
    ASSERT_GT(zaznamu, 0);
    for (const bool yes : {false, true}) {
        m_prompts.clear();
        m_prompts.answerQuestion(yes);
        FakturaDialog dialog(m_frame, true, id);
        const Outcome o = fillAndOk(dialog, [](wxDialog* d) { typeText(d, "duzpText", "30.5.2024"); });
        EXPECT_EQ(o.closed, yes);
        ASSERT_EQ(m_prompts.shown().size(), 1u);
        EXPECT_EQ(m_prompts.shown()[0].kind, "question");
        EXPECT_EQ(m_prompts.shown()[0].caption, "Dotaz");
        EXPECT_EQ(m_prompts.shown()[0].text, u8("Faktura byla změněna\nPoužít nové hodnoty?\n(Úhrady budou smazány)"));
        EXPECT_EQ(m_model->getFaktura(id).duzp().FormatISODate(), yes ? "2024-05-30" : "2024-06-01");
        EXPECT_EQ(m_model->someUhradaForFaktura(id), !yes);
        EXPECT_EQ(m_model->tableRows("denik"), yes ? 0 : zaznamu);
    }
}

TEST_F(DokladDialogTest, LiabilityIsSavedInItsOwnSeriesWithoutInvoiceFields) {
    const int za = m_model->getRadaCislo("ZA"), po = m_model->getRadaCislo("PO");
    ZavpohDialog dialog(m_frame, true);
    for (const char* name : {"typ", "ss", "ks"}) EXPECT_EQ(dialog.FindWindow(name), nullptr) << name;
    const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
        fillDoklad(d, "V001");
        typeText(d, "protistrana", u8("Nový dodavatel"));
        addItem(static_cast<DokladDialog*>(d), Item{"Nájem", "1", "8000", nullptr, false});
    });
    ASSERT_TRUE(o.closed) << m_prompts.transcript();
    const ZavPoh z = m_model->getZavPoh(dialog.dokladId());
    EXPECT_TRUE(z.zavazek());
    EXPECT_TRUE(z.cislo().StartsWith("ZA")) << z.cislo();
    EXPECT_EQ(z.celkem(), 8000.0);
    EXPECT_EQ(m_model->getKontakt(z.protistranaid()).nazev(), u8("Nový dodavatel"));
    EXPECT_EQ(m_model->getRadaCislo("ZA"), za + 1);
    EXPECT_EQ(m_model->getRadaCislo("PO"), po);
}

TEST_F(DokladDialogTest, ItemDialogRefusesQuantitiesAndShowsItsAmountsLive) {
    platce();
    FakturaDialog doklad(m_frame, true);
    const DokladForm form = doklad.readForm();
    struct Case {
        const char* pocet;
        const char* message;
    };
    for (const Case& c :
         {Case{"0", "Počet nemůže být nulový"}, Case{"-1", "Počet nemůže být záporný"}, Case{"1,5x", nullptr}}) {
        m_prompts.clear();
        PolozkaDialog dialog(&doklad, form);
        typeText(&dialog, "popis", "Test");
        typeText(&dialog, "cenamj", "121");
        typeText(&dialog, "pocet", c.pocet);
        EXPECT_FALSE(dialog.save()) << c.pocet;
        const wxString expected =
            c.message ? u8(c.message) : lxformat::castkaZprava(u8("Počet"), c.pocet, lxformat::Chyba::SYNTAXE);
        EXPECT_EQ(m_prompts.transcript(), expected + "\n");
    }
    EXPECT_EQ(m_model->tableRows("fapolozka"), 0);

    PolozkaDialog dialog(&doklad, form);
    screenshot(dialog, "polozka");
    typeText(&dialog, "cenamj", "121");
    choose(field<wxChoice>(&dialog, "sazba"), field<wxChoice>(&dialog, "sazba")->FindString("21 %"));
    EXPECT_EQ(dialog.dphText(), "21,00");
    EXPECT_EQ(dialog.celkemText(), "121,00");
    typeText(&dialog, "pocet", "2");
    EXPECT_EQ(dialog.celkemText(), "242,00");
}

TEST_F(DokladDialogTest, CounterpartyCompletionMatchesRegardlessOfAccentsAndLeavesTheName) {
    const int capek =
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Čapek a syn s.r.o."), "", "12345678", "CZ12345678", "", true, -1),
                                    Adresa(-1, u8("Dlouhá"), "5", "Brno", "60200", ""));
    kontakt("Alfa");
    KontaktCompleter completer(*m_model);
    struct Case {
        const char* typed;
        std::vector<const char*> offered;
    };
    for (const Case& c :
         {Case{"cap", {"Čapek a syn s.r.o., IČ 12345678"}}, Case{"SYN", {"Čapek a syn s.r.o., IČ 12345678"}},
          Case{"1234", {"Čapek a syn s.r.o., IČ 12345678"}}, Case{"al", {"Alfa"}}, Case{"apek", {}}}) {
        wxArrayString offered;
        if (completer.Start(u8(c.typed)))
            for (wxString s = completer.GetNext(); !s.empty(); s = completer.GetNext()) offered.Add(s);
        wxArrayString expected;
        for (const char* e : c.offered) expected.Add(u8(e));
        EXPECT_EQ(offered, expected) << c.typed;
    }

    FakturaDialog dialog(m_frame, true);
    typeText(&dialog, "protistrana", u8("Čapek a syn s.r.o., IČ 12345678"));
    wxTheApp->ProcessPendingEvents();
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "protistrana")->GetValue(), u8("Čapek a syn s.r.o."));
    const wxString info = field<wxStaticText>(&dialog, "kontaktInfo")->GetLabel();
    EXPECT_EQ(info, u8("Dlouhá 5, 60200 Brno\nIČ: 12345678   DIČ: CZ12345678"));
    EXPECT_EQ(m_model->getKontakt(capek).nazev(), u8("Čapek a syn s.r.o."));
}

// Keys sent to the display; see the fixture note in CMakeLists.txt.
class DokladDialogRealInput : public DokladDialogTest {};

TEST_F(DokladDialogRealInput, DeleteKeyInTheItemsAsksBeforeDeleting) {
    FakturaDialog dialog(m_frame, true);
    int left[2] = {-1, -1};
    wxTheApp->CallAfter([&] {
        addItem(&dialog, Item{"Jedna", "1", "10", nullptr, false});
        wxListCtrl* list = dialog.polozkyList();
        for (int i = 0; i < 2; ++i) {
            m_prompts.answerQuestion(i == 1);
            list->SetFocus();
            list->SetItemState(0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                               wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
            for (int k = 0; k < 20; ++k) {
                wxYield();
                wxMilliSleep(20);
            }
            wxUIActionSimulator().Char(WXK_DELETE);
            for (int k = 0; k < 20; ++k) {
                wxYield();
                wxMilliSleep(20);
            }
            left[i] = list->GetItemCount();
        }
        dialog.EndModal(wxID_CANCEL);
    });
    dialog.ShowModal();
    EXPECT_EQ(left[0], 1) << "answered no";
    EXPECT_EQ(left[1], 0) << "answered yes";
    EXPECT_EQ(m_prompts.transcript(), u8("Opravdu smazat položku:\nJedna?\nOpravdu smazat položku:\nJedna?\n"));
}
