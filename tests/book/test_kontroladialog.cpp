// The check before filing driven through its controls: the month chosen as a person does and
// "Zkontrolovat" pressed; a period that agrees, a difference with its document, a document
// the control statement cannot place, opening a listed document and checking again after it
// is saved, the CSV of the shown lines and an unreadable date.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/ffile.h>
#include <wx/listctrl.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>

#include "DokladDialog.h"
#include "KontrolaPodaniDialog.h"
#include "ObdobiPanel.h"
#include "booktest.h"
#include "controls/lxdatectrl.h"
#include "dphdoklady.h"
#include "lxformat.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

// Picks the month (1-12) in the period panel and presses "Zkontrolovat".
void zkontrolovat(KontrolaPodaniDialog& dialog, int mesic) {
    auto* radio = field<wxRadioButton>(&dialog, "volbaMesic");
    ASSERT_TRUE(radio);
    radio->SetValue(true);
    wxCommandEvent event(wxEVT_RADIOBUTTON, radio->GetId());
    event.SetEventObject(radio);
    radio->ProcessWindowEvent(event);
    choose(field<wxChoice>(&dialog, "mesic"), mesic - 1);
    pressButton(&dialog, "zkontrolovat");
}

// The list row showing the document `cislo`, -1 when none does.
long rowOf(wxListCtrl* list, const wxString& cislo) {
    for (long i = 0; i < list->GetItemCount(); ++i)
        if (list->GetItemText(i, 0) == cislo) return i;
    return -1;
}

void selectRow(wxListCtrl* list, long row) { list->SetItemState(row, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED); }

// Once the next modal document dialog runs, `person` works in it.
void inDokladDialog(const std::function<void(DokladDialog*)>& person) {
    wxTheApp->CallAfter([person] {
        for (wxWindow* w : wxTopLevelWindows) {
            auto* dialog = dynamic_cast<DokladDialog*>(w);
            if (dialog && dialog->IsModal()) {
                person(dialog);
                if (dialog->IsModal()) dialog->EndModal(wxID_CANCEL);
                return;
            }
        }
    });
}

}  // namespace

class KontrolaDialogTest : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        nastavPlatceDph();
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Beta s.r.o."), "", "27082440", "CZ27082440", "", true, -1),
                                    Adresa(-1, "", "", "", "", ""));
        m_model->addKontaktSAdresou(Kontakt(-1, u8("Gama"), "", "", "", "", true, -1), Adresa(-1, "", "", "", "", ""));
        // A sales classification that feeds rows 1 and 2 of the return but no section of the
        // control statement: its documents make the two disagree.
        m_model->db().ExecuteUpdate(
            "INSERT INTO dphdruh(zkratka,popis,radky,plneni,vydaj,nabizet,kpp,krp,od,do,kraceny,kh) "
            "VALUES('R1,2-X','Bez oddílu','1,2',0,0,1,NULL,0,'2011-01-01','2100-01-01',0,NULL)");
        // March agrees: a small sale and a purchase from a payer.
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-03-10", "2024-03-10", "R1,2", {{21, 1210}});
        dphDoklad(*m_model, DruhDokladu::ZAVAZEK, "2024-03-12", "2024-03-12", "R40,41-K", {{21, 605}});
        // April: the sale the control statement does not see, beside one it does.
        dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-04-05", "2024-04-05", "R1,2", {{21, 2420}});
        m_chybny =
            dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-04-15", "2024-04-15", "R1,2-X", {{21, 12100}});
        // May: a sale over 10 000 CZK to a customer without a VAT id.
        m_bezDic = dphDoklad(*m_model, DruhDokladu::FAKTURA_VYDANA, "2024-05-20", "2024-05-20", "R1,2", {{21, 24200}},
                             wxString(), u8("Gama"));
        m_prompts.clear();
    }

    DokladForm m_chybny;
    DokladForm m_bezDic;
};

TEST_F(KontrolaDialogTest, AgreeingPeriodSaysSoInOneLine) {
    KontrolaPodaniDialog dialog(m_frame);
    EXPECT_EQ(dialog.obdobiPanel()->obdobi().text(), u8("Květen/2024"));  // the month before the working date
    EXPECT_EQ(dialog.list()->GetItemCount(), 0);
    EXPECT_FALSE(field<wxButton>(&dialog, "exportCsv")->IsEnabled());
    for (int mesic : {3, 7}) {  // with documents, and without any
        zkontrolovat(dialog, mesic);
        ASSERT_EQ(dialog.list()->GetItemCount(), 1) << mesic;
        EXPECT_EQ(
            dialog.list()->GetItemText(0, 0),
            wxString::Format(u8("Přiznání a kontrolní hlášení za %s/2024 se shodují."), lxutils::mesicString(mesic)));
        EXPECT_EQ(dialog.radky()[0].druh, KontrolaPodaniDialog::Radek::Druh::SHODA);
        // The line is bold and read whole, not cut off by its column.
        wxFont font = dialog.list()->GetFont();
        font.SetWeight(wxFONTWEIGHT_BOLD);
        int sirka = 0, vyska = 0;
        dialog.list()->GetTextExtent(dialog.list()->GetItemText(0, 0), &sirka, &vyska, nullptr, nullptr, &font);
        EXPECT_GT(dialog.list()->GetColumnWidth(0), sirka);
    }
    EXPECT_TRUE(m_prompts.shown().empty());
    screenshot(dialog, "kontrola-shoda");
}

TEST_F(KontrolaDialogTest, DifferenceListsItsRowAmountsAndTheDocumentBehindIt) {
    KontrolaPodaniDialog dialog(m_frame);
    zkontrolovat(dialog, 4);
    wxListCtrl* list = dialog.list();
    // Row 1 differs in its base by 10 000 and in its tax by 2 100, both in the return only;
    // each difference heads its lines with the two sides and the difference.
    const kontrola::Vysledek v = kontrola::zkontrolovat(*m_model, DphObdobi::zMesice(2024, 4));
    ASSERT_EQ(v.rozdily.size(), 2u);
    EXPECT_TRUE(v.nezarazene.empty());
    const double ocekavane[] = {10000, 2100};
    for (size_t i = 0; i < v.rozdily.size(); ++i) {
        const kontrola::Rozdil& r = v.rozdily[i];
        EXPECT_NEAR(r.priznani - r.hlaseni, ocekavane[i], 0.5) << r.nazev;
        const long skupina = rowOf(list, r.nazev);
        ASSERT_GE(skupina, 0) << r.nazev;
        EXPECT_EQ(dialog.radky()[skupina].druh, KontrolaPodaniDialog::Radek::Druh::SKUPINA);
        EXPECT_EQ(list->GetItemText(skupina, 4), lxformat::formatCastka(r.priznani));
        EXPECT_EQ(list->GetItemText(skupina, 5), lxformat::formatCastka(r.hlaseni));
        EXPECT_EQ(list->GetItemText(skupina, 6), u8("rozdíl ") + lxformat::formatCastka(ocekavane[i], u8("Kč")));
        EXPECT_EQ(list->GetItemText(skupina + 1, 0), m_chybny.cislo) << "the document follows " << r.nazev;
    }
    EXPECT_THAT(list->GetItemText(0, 0).utf8_string(), StartsWith(u8("Řádek 1").utf8_string()));

    const long doklad = rowOf(list, m_chybny.cislo);
    ASSERT_GT(doklad, 0) << "the document behind the difference is listed";
    EXPECT_EQ(list->GetItemText(doklad, 1), "15.04.2024");
    EXPECT_EQ(list->GetItemText(doklad, 2), lxformat::formatCastka(10000));
    EXPECT_EQ(list->GetItemText(doklad, 3), lxformat::formatCastka(2100));
    EXPECT_EQ(list->GetItemText(doklad, 4), "ano");
    EXPECT_EQ(list->GetItemText(doklad, 5), "ne");
    EXPECT_EQ(dialog.radky()[doklad].zdroj, "FV");
    EXPECT_EQ(dialog.radky()[doklad].id, m_chybny.id);
    // Selecting the difference spells it out under the list.
    selectRow(list, 0);
    EXPECT_THAT(field<wxStaticText>(&dialog, "popis")->GetLabel().utf8_string(),
                HasSubstr(u8(": přiznání ").utf8_string() +
                          lxformat::formatCastka(v.rozdily[0].priznani, u8("Kč")).utf8_string()));
    screenshot(dialog, "kontrola-rozdil");
}

TEST_F(KontrolaDialogTest, SaleOverTheLimitWithoutVatIdIsListedAsNotPlaced) {
    const kontrola::Vysledek v = kontrola::zkontrolovat(*m_model, DphObdobi::zMesice(2024, 5));
    ASSERT_EQ(v.nezarazene.size(), 1u) << "the model reports the customer without a VAT id";
    const kontrola::Nezarazeny& n = v.nezarazene.front();

    KontrolaPodaniDialog dialog(m_frame);
    zkontrolovat(dialog, 5);
    wxListCtrl* list = dialog.list();
    const wxArrayString prvni = listTexts(list, 0);
    const int nadpis = prvni.Index(u8("Doklady, které kontrolní hlášení nezařadí"));
    ASSERT_NE(nadpis, wxNOT_FOUND);
    const long doklad = rowOf(list, m_bezDic.cislo);
    ASSERT_GT(doklad, nadpis) << "the document follows its heading";
    EXPECT_EQ(list->GetItemText(doklad, 6), n.sekce + ": " + n.duvod);
    EXPECT_EQ(list->GetItemText(doklad, 2), lxformat::formatCastka(20000));
    EXPECT_EQ(list->GetItemText(doklad, 3), lxformat::formatCastka(4200));
    EXPECT_EQ(list->GetItemText(doklad, 4), "") << "a document not placed is not marked for the sides";
    screenshot(dialog, "kontrola-nezarazene");
    EXPECT_EQ(list->GetItemCount(), nadpis + 2) << "the one document ends the list";
}

TEST_F(KontrolaDialogTest, DocumentOpensFromTheListAndTheCheckRunsAgainAfterItIsSaved) {
    KontrolaPodaniDialog dialog(m_frame);
    zkontrolovat(dialog, 4);
    const long doklad = rowOf(dialog.list(), m_chybny.cislo);
    ASSERT_GT(doklad, 0);
    EXPECT_FALSE(field<wxButton>(&dialog, "otevritDoklad")->IsEnabled());
    selectRow(dialog.list(), doklad);
    EXPECT_TRUE(field<wxButton>(&dialog, "otevritDoklad")->IsEnabled());

    // Cancelled: the same document was open and nothing was checked again.
    int otevreno = 0;
    inDokladDialog([&](DokladDialog* d) {
        otevreno = d->dokladId();
        d->EndModal(wxID_CANCEL);
    });
    EXPECT_FALSE(dialog.otevritDoklad());
    EXPECT_EQ(otevreno, m_chybny.id);
    EXPECT_EQ(rowOf(dialog.list(), m_chybny.cislo), doklad);

    // Double-click, the classification corrected and saved: April now agrees.
    inDokladDialog([](DokladDialog* d) {
        auto* druh = field<wxComboBox>(d, "dphdruh");
        if (druh) druh->SetValue("R1,2");
        pressOk(d);
    });
    wxListEvent activated(wxEVT_LIST_ITEM_ACTIVATED, dialog.list()->GetId());
    activated.SetEventObject(dialog.list());
    activated.m_itemIndex = doklad;
    dialog.list()->ProcessWindowEvent(activated);
    EXPECT_EQ(m_model->getDphDruh(m_model->getFaktura(m_chybny.id).dphdruhid()).zkratka(), "R1,2");
    ASSERT_EQ(dialog.list()->GetItemCount(), 1);
    EXPECT_EQ(dialog.list()->GetItemText(0, 0), u8("Přiznání a kontrolní hlášení za Duben/2024 se shodují."));
    EXPECT_FALSE(field<wxButton>(&dialog, "otevritDoklad")->IsEnabled());
}

TEST_F(KontrolaDialogTest, ExportWritesTheShownLinesWithPlainAmounts) {
    KontrolaPodaniDialog dialog(m_frame);
    zkontrolovat(dialog, 4);
    m_prompts.answerPath(m_home + "/kontrola");  // the extension is added
    EXPECT_EQ(dialog.exportCsv(), m_home + "/kontrola.csv");
    const std::string csv = fileBytes(m_home + "/kontrola.csv");
    EXPECT_THAT(
        csv, HasSubstr("\"Doklad\";\"Datum\";\"Základ\";\"Daň\";\"Přiznání\";\"Kontrolní hlášení\";\"Poznámka\"\r\n"));
    EXPECT_THAT(csv, HasSubstr("\"" + m_chybny.cislo.utf8_string() +
                               "\";\"15.04.2024\";\"10000,00\";\"2100,00\";\"ano\";\"ne\";\"\"\r\n"));
    size_t lines = 0;
    for (char c : csv) lines += c == '\n';
    EXPECT_EQ(lines, static_cast<size_t>(dialog.list()->GetItemCount()) + 1);
}

TEST_F(KontrolaDialogTest, UnreadableDateIsToldAndTheListStays) {
    KontrolaPodaniDialog dialog(m_frame);
    zkontrolovat(dialog, 3);
    auto* radio = field<wxRadioButton>(&dialog, "volbaObdobi");
    radio->SetValue(true);
    wxCommandEvent event(wxEVT_RADIOBUTTON, radio->GetId());
    radio->ProcessWindowEvent(event);
    typeText(&dialog, "odText", "31.2.2024");
    field<lxDateCtrl>(&dialog, "od")->commitText();
    EXPECT_FALSE(dialog.zkontrolovat());
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_THAT(m_prompts.shown()[0].text.utf8_string(), HasSubstr("31.2.2024"));
    EXPECT_EQ(dialog.list()->GetItemCount(), 1);  // March's result is still shown
}
