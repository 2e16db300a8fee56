// The "Uložená přiznání" command of the main window opens the list of saved filings once
// there is one (with none it only says so, see test_companies.cpp).
#include <wx/app.h>
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

    command(evidaFrame::ID_ULOZENA_PRIZNANI);
    UlozeneDialog* dialog = nullptr;
    for (wxWindow* w : wxTopLevelWindows)
        if (auto* d = dynamic_cast<UlozeneDialog*>(w)) dialog = d;
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->GetTitle(), u8("Uložená přiznání"));
    EXPECT_EQ(dialog->list()->GetItemCount(), 1);
    EXPECT_TRUE(m_prompts.shown().empty());
    EXPECT_FALSE(m_frame->IsEnabled());
    dialog->Close();
    wxTheApp->ProcessIdle();
    EXPECT_TRUE(m_frame->IsEnabled());
}
