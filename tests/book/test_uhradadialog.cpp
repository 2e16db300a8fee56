// Paying documents as a person does: the payment dialog with typed amounts, dates and rates,
// its refusals, and the invoice pages' "Zaplatit", "Úhrady" and delete commands.
#include <wx/app.h>
#include <wx/choice.h>
#include <wx/listctrl.h>

#include "UhradaDialog.h"
#include "NeuhrazeneDialog.h"
#include "UhradyDialog.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "fakturace/castky.h"
#include "fakturace/dokladform.h"
#include "lxsettings.h"

class PaymentDialog : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        lxSettings::instance()->setDatum(iso("2024-06-10"));
    }
    // A payer's issued invoice with one item at 21 % (price with VAT), in `menaid` at `kurz`.
    int invoice(double cena, int menaid = 1, double kurz = 1) {
        DokladForm form = novyDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA);
        const castky::Polozka c = castky::polozka(true, false, 1, cena, 21, form.duzp);
        EXPECT_TRUE(m_model->addFaPolozka(FaPolozka(m_model->getLastId("fapolozka"), "Práce", "h", 1, cena,
                                                    m_model->getDphSazbaId(21, 2024), c.dph, c.celkem, false,
                                                    form.id, -1, -1, false)));
        form.menaid = menaid;
        form.kurz = kurz;
        EXPECT_EQ(ulozitDoklad(*m_model, form), wxString());
        return form.id;
    }
    // The journal entries that pay an invoice: (pre-posting, home amount) in order.
    std::vector<std::pair<wxString, double>> entries(int id) {
        std::vector<std::pair<wxString, double>> rows;
        for (const auto& d : m_model->denikUhradForFaktura(id))
            rows.emplace_back(m_model->getPredkontace(d->predkontaceid()).zkratka(), d->castka());
        return rows;
    }
};

TEST_F(PaymentDialog, TypedPartialPaymentsSplitAndSettle) {
    const int id = invoice(1210);
    {
        UhradaDialog dialog(m_frame, placenyFaktura(*m_model, id));
        EXPECT_EQ(dialog.GetTitle(), u8("Úhrada faktury"));
        EXPECT_EQ(field<wxTextCtrl>(&dialog, "castka")->GetValue(), u8("1\u00a0210,00"));
        screenshot(dialog, "uhrada");
        const Outcome o = fillAndOk(dialog, [](wxDialog* d) {
            typeText(d, "castka", "605");
            typeText(d, "datumText", "15.5.");
        });
        ASSERT_TRUE(o.closed);
    }
    using Entries = std::vector<std::pair<wxString, double>>;
    EXPECT_EQ(entries(id), (Entries{{"P001", 500.0}, {"P102", 105.0}}));
    EXPECT_EQ(m_model->getDenik(m_model->denikUhradForFaktura(id)[0]->id()).datum(), iso("2024-05-15"));
    EXPECT_FALSE(m_model->isFakturaUhrazena(id));
    {
        // The second payment opens with exactly what is open.
        UhradaDialog dialog(m_frame, placenyFaktura(*m_model, id));
        EXPECT_EQ(field<wxTextCtrl>(&dialog, "castka")->GetValue(), u8("605,00"));
        ASSERT_TRUE(fillAndOk(dialog, [](wxDialog*) {}).closed);
    }
    EXPECT_TRUE(m_model->isFakturaUhrazena(id));
}

TEST_F(PaymentDialog, RefusalsStoreNothing) {
    const int id = invoice(2000);
    struct Case {
        std::function<void(wxDialog*)> person;
        const char* message;
    } cases[] = {
        {[](wxDialog* d) { typeText(d, "registr", ""); }, "Pokladna nemůže být prázdná"},
        {[](wxDialog* d) {
             choose(field<wxChoice>(d, "typ"), 1);
             typeText(d, "registr", "XX");
         },
         "Bankovní účet XX neexistuje"},
        {[](wxDialog* d) { typeText(d, "datumText", "31.12.2023"); }, "Datum 31.12.2023 není v účetním období 2024"},
        {[](wxDialog* d) { typeText(d, "castka", "12.500"); }, nullptr},  // ambiguous: the parser's own message
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        UhradaDialog dialog(m_frame, placenyFaktura(*m_model, id));
        EXPECT_FALSE(fillAndOk(dialog, c.person).closed);
        ASSERT_EQ(m_prompts.shown().size(), 1u);
        if (c.message) {
            EXPECT_EQ(m_prompts.shown()[0].text, u8(c.message));
        }
    }
    EXPECT_EQ(m_model->tableRows("denik"), 0);
    EXPECT_EQ(m_model->tableRows("uhrada"), 0);
}

TEST_F(PaymentDialog, ForeignInvoicePaidInItsCurrency) {
    const int eur = m_model->getMena("EUR").id() > 0 ? m_model->getMena("EUR").id() : 2;
    const int id = invoice(121, eur, 25.0);
    {
        UhradaDialog dialog(m_frame, placenyFaktura(*m_model, id));
        ASSERT_TRUE(fillAndOk(dialog, [](wxDialog* d) {
                        typeText(d, "kurz", "24,5");
                        typeText(d, "castkacizi", "121");
                    }).closed);
    }
    // Home amounts at the payment's rate; the links count euros, so the invoice is paid.
    using Entries = std::vector<std::pair<wxString, double>>;
    EXPECT_EQ(entries(id), (Entries{{"P001", 100 * 24.5}, {"P102", 21 * 24.5}}));
    EXPECT_DOUBLE_EQ(m_model->uhrazenoByFakturaId(id), 121);
    EXPECT_TRUE(m_model->isFakturaUhrazena(id));
}

TEST_F(PaymentDialog, PageCommandsPayListAndDelete) {
    const int id = invoice(1000);
    m_book->createPages();
    m_book->selectPage(NAV_FAKTURY_VYDANE);
    lxBookPage* page = m_book->page(NAV_FAKTURY_VYDANE);
    page->refresh();
    page->list()->selectId(id);
    EXPECT_TRUE(page->canRun(BOOK_DELETE));
    // "Zaplatit" opens the payment dialog, which pays the whole amount.
    wxTheApp->CallAfter([] {
        for (wxWindow* w : wxTopLevelWindows) {
            auto* dialog = dynamic_cast<UhradaDialog*>(w);
            if (dialog && dialog->IsModal()) pressOk(dialog);
        }
    });
    ASSERT_TRUE(page->runRowCommand(0));
    EXPECT_TRUE(m_model->isFakturaUhrazena(id));
    {
        UhradyDialog dialog(m_frame, DruhDokladu::FAKTURA_VYDANA, id);
        EXPECT_EQ(dialog.list()->GetItemCount(), 2);  // base and VAT
        m_prompts.answerQuestion(true);
        dialog.deleteUhrada(dialog.denikIds().front());
        EXPECT_EQ(dialog.list()->GetItemCount(), 1);
    }
    EXPECT_FALSE(m_model->isFakturaUhrazena(id));
    // Deleting the invoice asks twice (it has a payment) and takes the remaining entry along.
    page->refresh();
    page->list()->selectId(id);
    m_prompts.answerQuestion(true);
    m_prompts.answerQuestion(true);
    ASSERT_TRUE(page->run(BOOK_DELETE));
    EXPECT_FALSE(m_model->hasFaktura(id));
    EXPECT_EQ(m_model->tableRows("denik"), 0);
}

// The unpaid documents of every year, overdue ones marked, paid from the list.
TEST_F(PaymentDialog, UnpaidListOfAllYearsPaysTheChosenDocument) {
    ASSERT_TRUE(m_model->addObdobi(Obdobi(2023, false)));
    const int stara = faktura(true, 500, "2023-12-01");
    m_model->db().ExecuteUpdate(wxString::Format("UPDATE faktura SET obdobirok=2023 WHERE id=%d", stara));
    const int nova = invoice(1210);
    const int zaplacena = invoice(242);
    UhradaForm vse = novaUhrada(*m_model, placenyFaktura(*m_model, zaplacena));
    ASSERT_EQ(ulozitUhradu(*m_model, placenyFaktura(*m_model, zaplacena), vse), wxString());
    const int zavazek = m_model->getLastId("zavpoh");
    ASSERT_TRUE(m_model->addZavPoh(ZavPoh(zavazek, 0, u8("Nájem"), 8000, "ZA0001", "", 2, -1, 1, 1, 4, 2024, true,
                                          false, iso("2024-06-01"), iso("2024-06-01"), iso("2024-06-01"),
                                          iso("2024-06-20"), -1, 1, 0)));
    NeuhrazeneDialog dialog(m_frame);
    ASSERT_EQ(dialog.rows(0).size(), 2u);
    EXPECT_EQ(dialog.rows(0)[0].id, stara);  // the older year first
    EXPECT_EQ(dialog.rows(0)[1].id, nova);
    EXPECT_EQ(dialog.list(0)->GetItemText(0, 7), u8("Po splatnosti"));
    EXPECT_EQ(dialog.list(0)->GetItemText(1, 7), u8("Neuhrazeno"));
    ASSERT_EQ(dialog.rows(1).size(), 1u);
    EXPECT_EQ(dialog.list(1)->GetItemText(0, 0), u8("Závazek"));
    screenshot(dialog, "neuhrazene");
    // Paying the old invoice in full takes it off the list.
    dialog.list(0)->SetItemState(0, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    wxTheApp->CallAfter([] {
        for (wxWindow* w : wxTopLevelWindows) {
            auto* uhrada = dynamic_cast<UhradaDialog*>(w);
            if (uhrada && uhrada->IsModal()) pressOk(uhrada);
        }
    });
    dialog.zaplatit();
    EXPECT_TRUE(m_model->isFakturaUhrazena(stara));
    ASSERT_EQ(dialog.rows(0).size(), 1u);
    EXPECT_EQ(dialog.rows(0)[0].id, nova);
}
