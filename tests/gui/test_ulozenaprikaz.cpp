// The "Uložená přiznání" command of the main window opens the list of saved filings once
// there is one (with none it only says so, see test_companies.cpp).
#include <wx/listctrl.h>

#include "UlozeneDialog.h"
#include "dbmodel.h"
#include "shelltest.h"

using ShellUlozene = ShellTest;

TEST_F(ShellUlozene, CommandOpensTheListOfSavedFilings) {
    addCompany("evida1.db", "Alfa", "1", {2025}, /*platce=*/true);
    ASSERT_TRUE(start()->isLoaded());
    Ulozene u;
    u.setId(1);
    u.setTyp(0);
    u.setPopis(u8("Řádné přiznání Leden/2025"));
    u.setForma("B");
    u.setRok(2025);
    u.setXml("<Pisemnost/>");
    ASSERT_TRUE(DbModel::instance()->addUlozene(u));

    int rows = -1;
    m_dialogs.then([&rows](wxDialog* dialog) {
        if (auto* list = dynamic_cast<UlozeneDialog*>(dialog)) rows = list->list()->GetItemCount();
        dialog->EndModal(wxID_CANCEL);
    });
    command(evidaFrame::ID_ULOZENA_PRIZNANI);
    ASSERT_FALSE(m_dialogs.titles.empty());
    EXPECT_EQ(m_dialogs.titles.back(), u8("Uložená přiznání"));
    EXPECT_EQ(rows, 1);
    EXPECT_TRUE(m_prompts.shown().empty());
}
