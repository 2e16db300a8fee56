// The payment forms of invoices: typed in their form, refused when empty or taken, and kept
// when documents use them or when only one is left.
#include <wx/checkbox.h>
#include <wx/listctrl.h>
#include <wx/textctrl.h>

#include "FauhradaDialog.h"
#include "FauhradyDialog.h"
#include "booktest.h"

using Fauhrady = BookTest;

TEST_F(Fauhrady, FormIsTypedAndRefusedWhenEmptyOrTaken) {
    FauhradaDialog dialog(m_frame);
    EXPECT_EQ(dialog.GetTitle(), u8("Zadejte úhradu"));
    typeText(&dialog, "uhrada", "   ");
    EXPECT_FALSE(dialog.save());
    typeText(&dialog, "uhrada", u8("Převodem"));
    EXPECT_FALSE(dialog.save());
    EXPECT_EQ(m_prompts.transcript(), u8("Popis nemůže být prázdný\nÚhrada 'Převodem' už existuje\nZvolte jinou\n"));
    EXPECT_EQ(m_model->fauhrady().size(), 2u);

    typeText(&dialog, "uhrada", u8(" Kartou "));
    field<wxCheckBox>(&dialog, "pokladnou")->SetValue(true);
    ASSERT_TRUE(dialog.save());
    const FaUhrada stored = m_model->getFaUhrada(dialog.fauhradaId());
    EXPECT_EQ(stored.uhrada(), "Kartou");
    EXPECT_TRUE(stored.pokladnou());

    // Editing keeps its own text without complaint, and the list shows the change.
    FauhradaDialog edit(m_frame, stored.id());
    EXPECT_EQ(field<wxTextCtrl>(&edit, "uhrada")->GetValue(), "Kartou");
    field<wxCheckBox>(&edit, "pokladnou")->SetValue(false);
    m_prompts.clear();
    ASSERT_TRUE(edit.save());
    EXPECT_EQ(m_prompts.transcript(), "");
    FauhradyDialog list(m_frame);
    ASSERT_EQ(list.list()->GetItemCount(), 3);
    EXPECT_EQ(list.list()->GetItemText(2, 0), "Kartou");
    EXPECT_EQ(list.list()->GetItemText(2, 1), "Ne");
    EXPECT_EQ(list.list()->GetItemText(0, 1), "Ano");  // "Hotově"
}

TEST_F(Fauhrady, DeletionAsksAndRefusesAFormInUseOrTheLastOne) {
    faktura(/*vydana=*/true, 1000, "2024-02-10");  // paid "Hotově" (form 1)
    FauhradyDialog list(m_frame);

    m_prompts.answerQuestion(false);
    list.deleteRow(2);
    EXPECT_EQ(m_prompts.transcript(), u8("Opravdu smazat úhradu Převodem?\n"));
    EXPECT_TRUE(m_model->hasFaUhrada(2));

    m_prompts.clear();
    m_prompts.answerQuestion(true);
    list.deleteRow(1);
    EXPECT_EQ(m_prompts.transcript(),
              u8("Opravdu smazat úhradu Hotově?\nNelze smazat úhradu\nHotově\nprotože je použita v dokladech\n"));
    EXPECT_TRUE(m_model->hasFaUhrada(1));

    m_prompts.answerQuestion(true);
    list.deleteRow(2);
    EXPECT_FALSE(m_model->hasFaUhrada(2));
    list.refresh();
    EXPECT_EQ(list.list()->GetItemCount(), 1);

    // Without the document the last form is still kept.
    ASSERT_TRUE(m_model->deleteFaktura(1, true));
    m_prompts.clear();
    m_prompts.answerQuestion(true);
    list.deleteRow(1);
    EXPECT_EQ(m_prompts.shown().back().text,
              u8("Nelze smazat poslední úhradu,\nv programu musí alespoň jedna existovat"));
    EXPECT_TRUE(m_model->hasFaUhrada(1));
}
