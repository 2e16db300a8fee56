// Importing a bank statement as a person does: the file chosen in the dialog, the proposals
// read in the list, a partial payment ticked, a bank fee booked with a pre-posting, OK; the
// invoices are paid and the same statement imported again writes nothing. A CSV statement
// goes through the column mapping saved once for the account.
#include <wx/ffile.h>
#include <wx/listctrl.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>

#include "CsvMapovaniDialog.h"
#include "VypisImportDialog.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "booktest.h"
#include "navigation.h"
#include "lxsettings.h"

namespace {

std::string gpcRadek(std::initializer_list<std::pair<size_t, std::string>> pole) {
    std::string l(128, ' ');
    for (const auto& [pos, text] : pole) l.replace(pos - 1, text.size(), text);
    return l + "\r\n";
}

std::string gpcPohyb(const char* castka, const char* kod, const char* vs, const char* ref) {
    return gpcRadek({{1, "075"}, {4, "0000192000145399"}, {20, "0000000123456789"}, {36, ref}, {49, castka}, {61, kod},
                     {62, vs}, {72, "0800000000"}, {82, "0000000000"}, {92, "150524"}, {98, "Platba"}, {119, "0203"},
                     {123, "150524"}});
}

using Texty = std::vector<wxString>;

Texty sloupec(wxListCtrl* list, int column) {
    const wxArrayString texts = listTexts(list, column);
    return Texty(texts.begin(), texts.end());
}

}  // namespace

class VypisImport : public BookTest {
   protected:
    void SetUp() override {
        BookTest::SetUp();
        lxSettings::instance()->setDatum(iso("2024-06-10"));
        Banka b = m_model->getBanka(1);
        b.setCislouctu("19-2000145399");
        b.setKodbanky("0800");
        ASSERT_TRUE(m_model->editBanka(b));
    }
    int invoice(const char* cislo, const char* vs, double celkem, int kontaktId) {
        const int id = m_model->getLastId("faktura");
        EXPECT_TRUE(m_model->addFaktura(Faktura(id, kontaktId, "", celkem, cislo, vs, "", "", 1, 2, -1, 1, 1,
                                                m_model->getPredkontaceIdByZkratka("P002"), 2024, true, false,
                                                iso("2024-05-01"), iso("2024-05-01"), wxDateTime(), iso("2024-05-15"),
                                                -1, 1, 0)));
        return id;
    }
    wxString soubor(const char* nazev, const std::string& obsah) {
        const wxString path = m_home + "/" + nazev;
        wxFFile(path, "wb").Write(obsah.data(), obsah.size());
        return path;
    }
    std::string statement() {
        return gpcRadek({{1, "074"}, {4, "0000192000145399"}, {40, "010524"}, {46, "00000000000000"}, {60, "+"},
                         {61, "00000000000000"}, {75, "+"}, {76, "00000000000000"}, {90, "0"},
                         {91, "00000000000000"}, {105, "0"}, {106, "005"}, {109, "310524"}}) +
               gpcPohyb("000000121000", "2", "0020240001", "0000000000001") +  // pays FV20240001
               gpcPohyb("000000050000", "2", "0020240002", "0000000000002") +  // part of FV20240002
               gpcPohyb("000000015000", "1", "0000000000", "0000000000003") +  // the bank's fee
               gpcPohyb("000000099900", "2", "0000000123", "0000000000004");   // nothing fits
    }
};

TEST_F(VypisImport, ProposalsAcceptedInTheDialogPayTheInvoicesOnce) {
    const int k = kontakt("Novák");
    const int a = invoice("FV20240001", "20240001", 1210, k);
    const int b = invoice("FV20240002", "20240002", 800, k);
    const wxString gpc = soubor("vypis.gpc", statement());
    {
        VypisImportDialog dialog(m_frame, 1);
        EXPECT_EQ(dialog.GetTitle(), u8("Import bankovního výpisu"));
        // A file that is not there, then a broken one: each refused with its message.
        typeText(&dialog, "soubor", m_home + "/nic.gpc");
        pressButton(&dialog, "nacist");
        std::string vadny = statement();
        vadny[128 + 2 + 60] = '3';  // the accounting code of the first movement
        typeText(&dialog, "soubor", soubor("vadny.gpc", vadny));
        pressButton(&dialog, "nacist");
        EXPECT_EQ(m_prompts.transcript(), u8("Soubor výpisu nelze otevřít: ") + m_home + "/nic.gpc\n" +
                                              u8("Řádek 2: neznámý kód účtování „3“\n"));
        EXPECT_EQ(dialog.list()->GetItemCount(), 0);
        m_prompts.clear();

        m_prompts.answerPath(gpc);
        pressButton(&dialog, "vybratSoubor");
        wxListCtrl* list = dialog.list();
        ASSERT_EQ(list->GetItemCount(), 4);
        EXPECT_EQ(sloupec(list, 1), (Texty{u8("1\u00a0210,00"), "500,00", "-150,00", "999,00"}));
        EXPECT_EQ(sloupec(list, 5), (Texty{"FV20240001", "FV20240002", "", ""}));
        EXPECT_EQ(sloupec(list, 6), (Texty{u8("VS a částka souhlasí"),
                                                     u8("VS souhlasí, částka je nižší — částečná úhrada (zbývá 300,00)"),
                                                     u8("Nenalezen žádný otevřený doklad"),
                                                     u8("Nenalezen žádný otevřený doklad")}));
        EXPECT_TRUE(list->IsItemChecked(0));
        EXPECT_FALSE(list->IsItemChecked(1));  // a partial payment waits for the user
        EXPECT_EQ(field<wxStaticText>(&dialog, "stav")->GetLabel(),
                  u8("Výpis č. 5: pohybů 4, navrženo k zápisu 1, už importováno 0."));
        m_prompts.clear();

        // Ticking a row without a document says what to do and stays unticked.
        list->CheckItem(3, true);
        EXPECT_FALSE(list->IsItemChecked(3));
        EXPECT_TRUE(m_prompts.transcript().StartsWith(u8("Pohyb nemá vybraný doklad ani předkontaci.")));
        // The partial payment is accepted, the fee booked as overheads.
        list->CheckItem(1, true);
        list->SetItemState(2, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
        int rezie = -1;
        const lxPredkontaceArray vydaje = m_model->predkontaceVydaj();
        for (size_t i = 0; i < vydaje.size(); ++i)
            if (vydaje[i]->zkratka() == "V008") rezie = static_cast<int>(i);
        m_prompts.answerChoice(rezie);
        pressButton(&dialog, "prijemVydej");
        EXPECT_TRUE(list->IsItemChecked(2));
        EXPECT_EQ(list->GetItemText(2, 5), "V008");
        screenshot(dialog, "vypisimport");
        ASSERT_TRUE(fillAndOk(dialog, [](wxDialog*) {}).closed);
    }
    EXPECT_TRUE(m_model->isFakturaUhrazena(a));
    EXPECT_DOUBLE_EQ(m_model->uhrazenoByFakturaId(b), 500);
    EXPECT_EQ(m_model->denikBanka().size(), 3u);
    EXPECT_EQ(m_model->getLastVypis(1), 5);

    // The same statement again: every written movement is known and none is written twice.
    VypisImportDialog znovu(m_frame, 1);
    typeText(&znovu, "soubor", gpc);
    pressButton(&znovu, "nacist");
    EXPECT_EQ(field<wxStaticText>(&znovu, "stav")->GetLabel(),
              u8("Výpis č. 5: pohybů 4, navrženo k zápisu 0, už importováno 3."));
    for (long i = 0; i < 4; ++i) EXPECT_FALSE(znovu.list()->IsItemChecked(i)) << i;
    ASSERT_TRUE(fillAndOk(znovu, [](wxDialog*) {}).closed);
    EXPECT_EQ(m_model->denikBanka().size(), 3u);
    EXPECT_EQ(m_model->uhrazenoByFakturaId(b), 500);
}

TEST_F(VypisImport, ACsvStatementIsReadByTheMappingSavedForTheAccount) {
    const int a = invoice("FV20240001", "20240001", 1210, kontakt("Novák"));
    const wxString klic = vypis::klicMapovani(m_model->firma().ic(), "BU1");
    {
        CsvMapovaniDialog mapovani(m_frame, klic, vypis::CsvMapovani{});
        const Outcome spatne = fillAndOk(mapovani, [](wxDialog* d) {
            field<wxSpinCtrl>(d, "datum")->SetValue(2);
            field<wxSpinCtrl>(d, "castka")->SetValue(2);
        });
        EXPECT_FALSE(spatne.closed);
        EXPECT_EQ(m_prompts.transcript(), u8("Sloupec data a sloupec částky musí být vyplněné a různé\n"));
    }
    {
        CsvMapovaniDialog mapovani(m_frame, klic, vypis::CsvMapovani{});
        screenshot(mapovani, "csvmapovani");
        ASSERT_TRUE(fillAndOk(mapovani, [](wxDialog* d) {
                        field<wxSpinCtrl>(d, "datum")->SetValue(1);
                        field<wxSpinCtrl>(d, "castka")->SetValue(2);
                        field<wxSpinCtrl>(d, "vs")->SetValue(3);
                        field<wxSpinCtrl>(d, "zprava")->SetValue(4);
                    }).closed);
    }
    VypisImportDialog dialog(m_frame, 1);
    typeText(&dialog, "soubor",
             soubor("vypis.csv", "Datum;Částka;VS;Zpráva\n15.05.2024;1 210,00;20240001;Faktura\n"));
    pressButton(&dialog, "nacist");
    ASSERT_EQ(dialog.list()->GetItemCount(), 1);
    EXPECT_TRUE(dialog.list()->IsItemChecked(0));
    ASSERT_TRUE(fillAndOk(dialog, [](wxDialog*) {}).closed);
    EXPECT_TRUE(m_model->isFakturaUhrazena(a));
}

// Only the bank page offers the import among its tools.
TEST_F(VypisImport, TheBankPageOffersTheImport) {
    auto maImport = [this](int nav) {
        for (wxWindow* child : m_book->page(nav)->GetChildren())
            if (auto* toolbar = wxDynamicCast(child, wxToolBar))
                for (size_t i = 0; i < toolbar->GetToolsCount(); ++i)
                    if (toolbar->GetToolByPos(static_cast<int>(i))->GetLabel() == u8("Import výpisu")) return true;
        return false;
    };
    m_book->createPages();
    ASSERT_NE(m_book->page(NAV_BANKA), nullptr);
    EXPECT_TRUE(maImport(NAV_BANKA));
    EXPECT_FALSE(maImport(NAV_POKLADNA));
    EXPECT_FALSE(maImport(NAV_DENIK));
}
