// The code lists of the journal: cash registers, bank accounts and pre-postings, their forms
// storing through the model and their lists asking before a delete.
#include <gmock/gmock.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include "BankaDialog.h"
#include "BankyDialog.h"
#include "PokladnaDialog.h"
#include "PokladnyDialog.h"
#include "PredkontaceDialog.h"
#include "PredkontacesDialog.h"
#include "booktest.h"

namespace {

void type(wxWindow* dialog, const char* name, const char* text) {
    field<wxTextCtrl>(dialog, name)->ChangeValue(u8(text));
}

}  // namespace

using Ciselniky = BookTest;

TEST_F(Ciselniky, CodesMustBeGivenAndUniqueInEveryForm) {
    PokladnaDialog pokladna(m_frame);
    EXPECT_FALSE(pokladna.save());
    type(&pokladna, "zkratka", "POK1");
    EXPECT_FALSE(pokladna.save());
    type(&pokladna, "zkratka", "POK2");
    type(&pokladna, "popis", "Trhy");
    ASSERT_TRUE(pokladna.save());
    EXPECT_EQ(m_prompts.transcript(), u8("Zkratka nemůže být prázdná\nZkratka 'POK1' už existuje\nZvolte jinou\n"));
    EXPECT_EQ(m_model->getPokladna(pokladna.pokladnaId()).popis(), "Trhy");

    // An edited row keeps its own code without complaint.
    PredkontaceDialog edit(m_frame, m_model->getPredkontaceIdByZkratka("P001"));
    EXPECT_EQ(field<wxTextCtrl>(&edit, "zkratka")->GetValue(), "P001");
    type(&edit, "popis", "Tržby");
    m_prompts.clear();
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(m_prompts.transcript(), "");
    EXPECT_EQ(m_model->getPredkontace("P001").popis(), u8("Tržby"));
}

TEST_F(Ciselniky, PrePostingOffersOnlyColumnsOfItsDirection) {
    PredkontaceDialog dialog(m_frame);
    auto* prijem = field<wxCheckBox>(&dialog, "prijem");
    auto* sloupec = field<wxChoice>(&dialog, "sloupec");
    EXPECT_EQ(sloupec->GetCount(), m_model->deniksloupcePrijem().size());
    prijem->SetValue(false);
    wxCommandEvent event(wxEVT_CHECKBOX, prijem->GetId());
    event.SetEventObject(prijem);
    prijem->GetEventHandler()->ProcessEvent(event);
    EXPECT_EQ(sloupec->GetCount(), m_model->deniksloupceVydaj().size());
    type(&dialog, "zkratka", "V900");
    ASSERT_TRUE(dialog.save());
    const Predkontace stored = m_model->getPredkontace("V900");
    EXPECT_FALSE(stored.prijem());
    EXPECT_FALSE(m_model->isPredkontacePrijem(stored.id()));
}

TEST_F(Ciselniky, BankFormComputesTheIbanAndTakesTheBicOfTheChosenBank) {
    BankaDialog dialog(m_frame);
    dialog.spocitatIban();
    EXPECT_EQ(m_prompts.transcript(), u8("Kód banky nemůže být prázdný\n"));

    const wxArrayString kody = m_model->kodyBank(true);
    const int index = kody.Index("0800");
    ASSERT_NE(index, wxNOT_FOUND);
    m_prompts.answerChoice(index);
    dialog.vybratBanku();
    EXPECT_EQ(m_prompts.shown().back().text, u8("Vyberte banku"));
    EXPECT_EQ(m_prompts.shown().back().caption, "Banky");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "kodbanky")->GetValue(), "0800");
    EXPECT_EQ(field<wxTextCtrl>(&dialog, "bic")->GetValue(), m_model->bicByKod("0800"));
    EXPECT_FALSE(field<wxTextCtrl>(&dialog, "bic")->GetValue().empty());

    type(&dialog, "cislouctu", "19-2000145399");
    dialog.spocitatIban();
    wxString iban = field<wxTextCtrl>(&dialog, "iban")->GetValue();
    iban.Replace(" ", "");
    EXPECT_EQ(iban, "CZ6508000000192000145399");
}

TEST_F(Ciselniky, ListsShowBalancesAndRefuseToDeleteTheLastOrAUsedRow) {
    denik("P001", 250, "2024-03-01", "Prodej");
    PokladnyDialog pokladny(m_frame);
    EXPECT_EQ(listTexts(pokladny.list(), 0), wxArrayString(1, "POK1"));
    EXPECT_EQ(listTexts(pokladny.list(), 2), wxArrayString(1, "250,00"));

    pokladny.selectId(1);
    m_prompts.answerQuestion(true);
    pokladny.deleteRow(1);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Opravdu smazat pokladnu POK1?"));
    EXPECT_EQ(m_prompts.shown().size(), 2u);  // the reason follows the question
    EXPECT_TRUE(m_model->hasPokladna(1));

    BankyDialog banky(m_frame);
    m_prompts.clear();
    m_prompts.answerQuestion(false);
    banky.deleteRow(1);
    EXPECT_EQ(m_prompts.transcript(), u8("Opravdu smazat bankovní účet BU1?\n"));
    m_prompts.answerQuestion(true);
    banky.deleteRow(1);
    EXPECT_EQ(m_prompts.shown().back().text,
              u8("Nelze smazat poslední bankovní účet,\nv programu musí alespoň jeden existovat"));
    EXPECT_TRUE(m_model->hasBanka(1));

    PredkontacesDialog prijmy(m_frame, /*chooser=*/true, PredkontacesDialog::PRIJMY);
    const wxArrayString typy = listTexts(prijmy.list(), 2);
    EXPECT_EQ(typy.size(), m_model->predkontacePrijem().size());
    EXPECT_EQ(typy.Index(u8("Výdaj")), wxNOT_FOUND);
}
