// The main window: menus, navigation, status bar, model events, the application date, the
// update check, the backup reminder and what the window stores when it closes.
#include <wx/accel.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include "book/lxbook.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "httpserver.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "shelltest.h"

namespace {

// "label" for an item, "label{...}" for a submenu with its items; separators are left out.
wxString describe(wxMenu* menu) {
    wxString text;
    for (wxMenuItem* item : menu->GetMenuItems()) {
        if (item->IsSeparator()) continue;
        if (!text.empty()) text += "|";
        text += item->GetItemLabel();
        if (item->GetSubMenu()) text += "{" + describe(item->GetSubMenu()) + "}";
    }
    return text;
}

wxString treeText(wxTreeCtrl* tree, wxTreeItemId parent) {
    wxString text;
    wxTreeItemIdValue cookie;
    for (wxTreeItemId item = tree->GetFirstChild(parent, cookie); item.IsOk();
         item = tree->GetNextChild(parent, cookie)) {
        if (!text.empty()) text += "|";
        text += tree->GetItemText(item);
        if (tree->ItemHasChildren(item)) text += "{" + treeText(tree, item) + "}";
    }
    return text;
}

wxTreeItemId findLeaf(wxTreeCtrl* tree, wxTreeItemId parent, const wxString& label) {
    wxTreeItemIdValue cookie;
    for (wxTreeItemId item = tree->GetFirstChild(parent, cookie); item.IsOk();
         item = tree->GetNextChild(parent, cookie)) {
        if (tree->GetItemText(item) == label) return item;
        const wxTreeItemId inner = findLeaf(tree, item, label);
        if (inner.IsOk()) return inner;
    }
    return wxTreeItemId();
}

using MainWindow = ShellTest;

TEST_F(MainWindow, MenusHoldEveryCommandWithMnemonicsAndKeptSpellings) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    wxMenuBar* bar = m_frame->GetMenuBar();
    const char* const expected[][2] = {
        {"&Systém",
         "Firma{Upravit firmu|Smazat firmu|Přidat firmu|Změnit firmu}|Období{Přidat období|Změnit období|Smazat "
         "období}|Adresář|Daně{Přehled příjmů a výdajů|Přehled majetku a závázků|Daň z příjmů|DPH{Přiznání k "
         "DPH|Kontrolní hlášení DPH|Souhrnné hlášení DPH|Seznam dokladů k DPH}|Uložená přiznání}|Zálohovat "
         "data|Obnovit data ze zálohy|Konec\tCtrl-Q"},
        {"Úče&tnictví", "Peněžní deník|Pokladna|Banka|Předkontace|Stav pokladen a bankovních účtů"},
        {"&Fakturace", "Faktury vydané|Faktury přijaté|Pohledávky|Závazky|Úhrady|Seznam odeslaných faktur|Členění DPH"},
        {"Ma&jetek", "Kniha majetku"},
        {"Sk&lad", "Kniha zásob|Inventury"},
        {"Ú&pravy", "Datum aplikace\tAlt-D|Editor šablon|Nastavení..."},
        {"&Nápověda", "Nápověda\tF1|Zkontrolovat aktualizace"},
    };
    ASSERT_EQ(bar->GetMenuCount(), std::size(expected));
    for (size_t i = 0; i < bar->GetMenuCount(); ++i) {
        EXPECT_EQ(bar->GetMenuLabel(i), u8(expected[i][0]));
        EXPECT_EQ(describe(bar->GetMenu(i)), u8(expected[i][1])) << expected[i][0];
    }
    EXPECT_EQ(bar->GetHelpString(evidaFrame::ID_FIRMA_UPRAVIT), u8("Otevřít nastavení účtované firmy"));
    EXPECT_EQ(bar->GetHelpString(evidaFrame::ID_ADRESAR), u8("Otevřít adresář"));
    std::unique_ptr<wxAcceleratorEntry> accel(bar->FindItem(evidaFrame::ID_DATUM)->GetAccel());
    ASSERT_TRUE(accel);
    EXPECT_EQ(accel->GetFlags(), wxACCEL_ALT);
    EXPECT_EQ(accel->GetKeyCode(), 'D');

    // Commands of later parts are there but disabled, as are the VAT ones for a non-payer.
    for (int id : std::initializer_list<int>{
             evidaFrame::ID_PREHLED_PRIJMU, evidaFrame::ID_PREHLED_MAJETKU, evidaFrame::ID_DAN_Z_PRIJMU,
             evidaFrame::ID_UHRADY,
             evidaFrame::ID_ODESLANE_FAKTURY, evidaFrame::ID_INVENTURY, evidaFrame::ID_EDITOR_SABLON,
             evidaFrame::ID_DPH_PRIZNANI, evidaFrame::ID_DPH_KONTROLNI, evidaFrame::ID_DPH_SOUHRNNE,
             evidaFrame::ID_DPH_SEZNAM, evidaFrame::ID_CLENENI_DPH, evidaFrame::ID_ULOZENA_PRIZNANI})
        EXPECT_FALSE(bar->IsEnabled(id)) << id;
    for (int id : std::initializer_list<int>{evidaFrame::ID_FIRMA_UPRAVIT, evidaFrame::ID_FIRMA_SMAZAT,
                                             evidaFrame::ID_FIRMA_PRIDAT, evidaFrame::ID_OBDOBI_PRIDAT,
                                             evidaFrame::ID_ADRESAR, evidaFrame::ID_ZALOHOVAT, evidaFrame::ID_OBNOVIT,
                                             evidaFrame::ID_DENIK, evidaFrame::ID_PREDKONTACE,
                                             evidaFrame::ID_STAV_UCTU, evidaFrame::ID_DATUM, evidaFrame::ID_AKTUALIZACE,
                                             static_cast<int>(wxID_PREFERENCES)})
        EXPECT_TRUE(bar->IsEnabled(id)) << id;
}

TEST_F(MainWindow, NavigationTreeSelectsPagesAndDropsTheVehicleLogForFlatRateExpenses) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2", {2025}, false, /*pausal=*/true);
    ASSERT_TRUE(start()->isLoaded());
    wxTreeCtrl* tree = m_frame->navigation();
    const wxString groups =
        u8("Účetnictví{Pěněžní deník|Pokladna|Banka}|Fakturace{Faktury vydané|Faktury přijaté}|"
           "Pohledávky a závazky{Pohledávky|Závazky}|Majetek{Kniha majetku}|Sklad{Kniha zásob}");
    EXPECT_EQ(treeText(tree, tree->GetRootItem()), groups + u8("|Jízdy{Kniha jízd}"));

    tree->SelectItem(findLeaf(tree, tree->GetRootItem(), u8("Kniha jízd")));
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_JIZDY);
    tree->SelectItem(findLeaf(tree, tree->GetRootItem(), u8("Závazky")));
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_ZAVAZKY);
    command(evidaFrame::ID_DENIK);
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_DENIK);
    EXPECT_EQ(tree->GetItemText(tree->GetSelection()), u8("Pěněžní deník"));
    tree->SelectItem(findLeaf(tree, tree->GetRootItem(), u8("Kniha jízd")));

    m_prompts.answerChoice(1);
    command(evidaFrame::ID_FIRMA_ZMENIT);
    EXPECT_FALSE(m_frame->jizdyShown());
    EXPECT_EQ(treeText(tree, tree->GetRootItem()), groups);
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_HOME);  // the vehicle log is gone
}

TEST_F(MainWindow, BalancesCommandShowsEveryRegisterAndAccount) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    command(evidaFrame::ID_STAV_UCTU);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].kind, "info");
    EXPECT_EQ(m_prompts.shown()[0].caption, u8("Stav účtů a pokladen"));
    const wxString text = m_prompts.shown()[0].text;
    EXPECT_TRUE(text.Contains("Pokladny:") && text.Contains("Banky:")) << text;
    EXPECT_TRUE(text.Contains("POK1") && text.Contains("BU1")) << text;
}

TEST_F(MainWindow, ModelMessagesAreShownUnderInformace) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    DbModel::instance()->fireMsg(u8("Tabulka denik byla opravena"));
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Tabulka denik byla opravena"));
    EXPECT_EQ(m_prompts.shown()[0].caption, "Informace");
}

TEST_F(MainWindow, ApplicationDateDialogSetsTheWorkingDate) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    m_dialogs.then([](wxDialog* dialog) {
        auto* picker = dynamic_cast<lxDateCtrl*>(wxWindow::FindWindowByName("datum", dialog));
        ASSERT_NE(picker, nullptr);
        EXPECT_EQ(picker->GetValue().FormatISODate(), "2025-06-20");
        picker->textCtrl()->ChangeValue("15.1.");  // typed, in the working date's year
        click(dialog, wxID_OK);
    });
    command(evidaFrame::ID_DATUM);
    EXPECT_EQ(lxSettings::instance()->datum().FormatISODate(), "2025-01-15");
    EXPECT_EQ(statusText(2), "Datum: " + isoDay("2025-01-15").Format("%x"));
    m_dialogs.then(cancelDialog());
    command(evidaFrame::ID_DATUM);
    EXPECT_EQ(lxSettings::instance()->datum().FormatISODate(), "2025-01-15");
}

TEST_F(MainWindow, UpdateCheckReportsTheServersVersionOrThatItCannotTell) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    const wxString served = m_home + "/www";
    wxFileName::Mkdir(served, 0777, wxPATH_MKDIR_FULL);
    LoopbackHttpServer server(served);
    ASSERT_TRUE(server.running());
    wxSetEnv("EVIDA_UPDATE_URL", server.url());
    for (const char* version : {"1.40.15\n", "1.40.14"}) {
        wxFFile(served + "/evida-version", "w").Write(version);
        command(evidaFrame::ID_AKTUALIZACE);
    }
    wxSetEnv("EVIDA_UPDATE_URL", "http://127.0.0.1:1");
    command(evidaFrame::ID_AKTUALIZACE);
    wxUnsetEnv("EVIDA_UPDATE_URL");
    EXPECT_EQ(m_prompts.transcript(), u8("Je dostupná novější verze 1.40.15.\nMáte aktuální verzi 1.40.14.\n"
                                         "Aktualizace nebylo možné ověřit.\nZkuste později.\n"));
    for (const auto& shown : m_prompts.shown()) EXPECT_EQ(shown.caption, "Informace");
}

struct ReminderCase {
    const char* name;
    const char* lastBackup;
    bool reminded;
};
class BackupReminder : public ShellTest, public ::testing::WithParamInterface<ReminderCase> {};

TEST_P(BackupReminder, ComesAtCloseAfterFifteenDays) {
    addCompany("evida1.db", "Alfa", "1");
    lxSettings::instance()->setLastBackup(isoDay(GetParam().lastBackup));
    lxSettings::instance()->save();
    ASSERT_TRUE(start()->isLoaded());
    const wxString target = m_home + "/zalohy";
    m_dialogs.then([](wxDialog* dialog) { click(dialog, wxID_OK); });  // "Zálohovat data"
    m_prompts.answerPath(target);
    m_frame->Close();
    EXPECT_TRUE(ended());
    EXPECT_EQ(m_dialogs.titles.size(), GetParam().reminded ? 1u : 0u);
    EXPECT_EQ(wxFileName::FileExists(target + "/evida-2025-06-20/Alfa_1.db"), GetParam().reminded);
    closeFrame();
    lxSettings::reset();
    lxSettings::instance()->load();
    EXPECT_EQ(lxSettings::instance()->lastBackup().FormatISODate(),
              GetParam().reminded ? "2025-06-20" : GetParam().lastBackup);
}

INSTANTIATE_TEST_SUITE_P(LastBackup, BackupReminder,
                         ::testing::Values(ReminderCase{"fourteen_days_ago", "2025-06-06", false},
                                           ReminderCase{"fifteen_days_ago", "2025-06-05", true},
                                           ReminderCase{"months_ago", "2025-01-02", true}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST_F(MainWindow, ForcedCloseSkipsTheReminderAndTheWindowStoresItsGeometryAndLayout) {
    addCompany("evida1.db", "Alfa", "1");
    lxSettings::instance()->setLastBackup(isoDay("2024-01-01"));
    lxSettings::instance()->save();
    ASSERT_TRUE(start()->isLoaded());
    m_frame->SetSize(20, 30, 700, 500);
    m_frame->Close(true);
    EXPECT_TRUE(m_dialogs.titles.empty());
    closeFrame();
    lxSettings::reset();
    lxSettings::instance()->load();
    lxSettings* s = lxSettings::instance();
    EXPECT_EQ(s->w(), 700);
    EXPECT_EQ(s->h(), 500);
    EXPECT_NE(s->auiperspective().Find("name=Navigation"), wxNOT_FOUND);
    EXPECT_NE(s->auiperspective().Find("name=Book"), wxNOT_FOUND);
    EXPECT_EQ(s->dbname(), "evida1.db");
}

}  // namespace
