// The main window: menus, navigation, status bar, model events, the application date, the
// update check, the backup reminder, where the window opens and what it stores when it closes.
#include <wx/accel.h>
#include <wx/dcclient.h>
#include <wx/dcmemory.h>
#include <wx/display.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/html/helpfrm.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/menu.h>
#include <wx/toolbar.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include "OProgramuDialog.h"
#include "book/lxbook.h"
#include "controls/lxdatectrl.h"
#include "book/lxbookpage.h"
#include "book/lxlistctrl.h"
#include "dbmodel.h"
#include "editor/SablonaCanvas.h"
#include "editor/SablonaEditor.h"
#include "editor/vychozisablona.h"
#include "fakturace/dokladform.h"
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

namespace {

// With EVIDA_SHOTS naming a directory, the window's client area is saved there as `name`.png
// for a person to look at.
void saveShot(wxWindow* window, const char* name) {
    wxString shots;
    if (!wxGetEnv("EVIDA_SHOTS", &shots)) return;
    window->Raise();
    for (int i = 0; i < 30; ++i) {
        wxYield();
        wxMilliSleep(20);
    }
    const wxSize size = window->GetClientSize();
    wxBitmap shot(size);
    wxMemoryDC memory(shot);
    wxClientDC screen(window);
    memory.Blit(0, 0, size.x, size.y, &screen, 0, 0);
    memory.SelectObject(wxNullBitmap);
    shot.SaveFile(shots + "/" + name + ".png", wxBITMAP_TYPE_PNG);
}

}  // namespace

TEST_F(MainWindow, MenusHoldEveryCommandWithMnemonicsAndKeptSpellings) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    wxMenuBar* bar = m_frame->GetMenuBar();
    const char* const expected[][2] = {
        {"&Systém",
         "Firma{Upravit firmu|Smazat firmu|Přidat firmu|Změnit firmu}|Období{Přidat období|Změnit období|Smazat "
         "období}|Adresář|Daně{Přehled příjmů a výdajů|Přehled majetku a závázků|Daň z příjmů|DPH{Přiznání k "
         "DPH|Kontrolní hlášení DPH|Souhrnné hlášení DPH|Kontrola podání|Seznam dokladů k DPH}|Uložená "
         "přiznání}|Zálohovat data|Obnovit data ze zálohy|Konec\tCtrl-Q"},
        {"Úče&tnictví", "Peněžní deník|Pokladna|Banka|Import bankovního výpisu|Předkontace|Stav pokladen a bankovních účtů"},
        {"&Fakturace", "Faktury vydané|Faktury přijaté|Pohledávky|Závazky|Úhrady|Seznam odeslaných faktur|Členění DPH"},
        {"Ma&jetek", "Kniha majetku|Odpisové skupiny"},
        {"Sk&lad", "Kniha zásob|Inventury|Sklady"},
        {"Jí&zdy",
         "Kniha jízd|Vozidla|Řidiči|Pohonné hmoty|Druhy vozidel a sazby náhrad|Náhrada za použití vozidla"},
        {"Ú&pravy", "Datum aplikace\tAlt-D|Editor šablon|Nastavení..."},
        {"&Nápověda", "Nápověda\tF1|Zkontrolovat aktualizace|O programu"},
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
             evidaFrame::ID_DAN_Z_PRIJMU,
             evidaFrame::ID_DPH_PRIZNANI, evidaFrame::ID_DPH_KONTROLNI, evidaFrame::ID_DPH_SOUHRNNE,
             evidaFrame::ID_DPH_SEZNAM, evidaFrame::ID_CLENENI_DPH, evidaFrame::ID_ULOZENA_PRIZNANI,
             evidaFrame::ID_KONTROLA_PODANI})
        EXPECT_FALSE(bar->IsEnabled(id)) << id;
    for (int id : std::initializer_list<int>{evidaFrame::ID_FIRMA_UPRAVIT, evidaFrame::ID_FIRMA_SMAZAT,
                                             evidaFrame::ID_FIRMA_PRIDAT, evidaFrame::ID_OBDOBI_PRIDAT,
                                             evidaFrame::ID_ADRESAR, evidaFrame::ID_ZALOHOVAT, evidaFrame::ID_OBNOVIT,
                                             evidaFrame::ID_DENIK, evidaFrame::ID_PREDKONTACE, evidaFrame::ID_UHRADY,
                                             evidaFrame::ID_STAV_UCTU, evidaFrame::ID_DATUM, evidaFrame::ID_AKTUALIZACE,
                                             evidaFrame::ID_INVENTURY, evidaFrame::ID_SKLADY, evidaFrame::ID_ODESLANE_FAKTURY,
                                             evidaFrame::ID_ODPISKUPINY, evidaFrame::ID_PREHLED_PRIJMU,
                                             evidaFrame::ID_PREHLED_MAJETKU, evidaFrame::ID_EDITOR_SABLON,
                                             static_cast<int>(wxID_PREFERENCES)})
        EXPECT_TRUE(bar->IsEnabled(id)) << id;
}

TEST_F(MainWindow, TemplateEditorOpensFromTheMenuWithTheStarterInvoice) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    wxCommandEvent menu(wxEVT_MENU, evidaFrame::ID_EDITOR_SABLON);
    m_frame->ProcessWindowEvent(menu);
    SablonaEditor* editor = nullptr;
    for (wxWindow* w : wxTopLevelWindows)
        if (auto* e = dynamic_cast<SablonaEditor*>(w)) editor = e;
    ASSERT_NE(editor, nullptr);
    EXPECT_TRUE(editor->IsShown());
    EXPECT_EQ(editor->document().count(), vychoziSablona().count());
    EXPECT_EQ(editor->GetTitle(), u8("Editor šablon – Nová šablona"));
    // Quitting the program with an unsaved template asks; "save" without a file chosen keeps
    // the program open with the changes.
    editor->canvas()->select(0);
    editor->smazat();
    ASSERT_TRUE(editor->isModified());
    m_prompts.answerQuestion(true);
    EXPECT_FALSE(m_frame->Close());
    EXPECT_FALSE(m_frame->IsBeingDeleted());
    EXPECT_TRUE(editor->isModified());
    EXPECT_EQ(m_prompts.shown().front().text, u8("Šablona byla změněna. Uložit změny?"));
    editor->Destroy();
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
    wxMenuBar* bar = m_frame->GetMenuBar();
    const int jizdy = bar->FindMenu(u8("Jízdy"));
    ASSERT_NE(jizdy, wxNOT_FOUND);
    EXPECT_TRUE(bar->IsEnabledTop(jizdy));
    const int knihaJizd = bar->FindMenuItem(u8("Jízdy"), u8("Kniha jízd"));
    command(knihaJizd);
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_JIZDY);

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
    EXPECT_FALSE(bar->IsEnabledTop(jizdy));
    command(knihaJizd);  // a shortcut does not get round the disabled menu
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_HOME);
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
    EXPECT_EQ(statusText(2), "Datum: 15.01.2025") << "the Czech form whatever the system locale";
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

// The first start opens a window that shows the whole toolbar and the journal's columns;
// later starts open it where it was left.
TEST_F(MainWindow, FirstStartFitsTheWorkAndIsCentredLaterStartsKeepTheirPlace) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    const wxRect area = wxDisplay(0u).GetClientArea();
    const wxRect first = m_frame->GetRect();
    EXPECT_EQ(first.width, area.width >= 1260 ? 1200 : area.width * 4 / 5);
    EXPECT_EQ(first.height, area.height >= 840 ? 800 : area.height * 4 / 5);
    EXPECT_NEAR(first.x + first.width / 2, area.x + area.width / 2, 2);
    m_frame->SetSize(30, 40, 900, 650);
    closeFrame();
    lxSettings::reset();
    lxSettings::instance()->load();
    const wxRect again = evidaFrame::initialRect();
    EXPECT_EQ(again, wxRect(30, 40, 900, 650));
}

// At the first-start size the journal page shows its whole toolbar and every column, the
// entries in the order of days, and the status bar the Czech date.
TEST_F(MainWindow, JournalFitsTheFirstStartWindow) {
    addCompany("evida1.db", "Alfa", "27074358");
    ASSERT_TRUE(start()->isLoaded());
    DbModel* model = DbModel::instance();
    const struct {
        const char* datum;
        const char* popis;
        const char* predkontace;
        double castka;
        bool banka;
    } entries[] = {{"2025-03-02", "Prodej zboží", "P001", 31458, false},
                   {"2025-01-15", "Nájem kanceláře", "V008", 12500, true},
                   {"2025-02-01", "Materiál", "V001", 1250.5, false},
                   {"2025-01-15", "Tržba hotově", "P001", 980, false},
                   {"2025-04-10", "Platba od odběratele", "P002", 60500, true}};
    for (const auto& e : entries) {
        const int id = model->getLastId("denik");
        ASSERT_TRUE(model->addDenik(Denik(id, isoDay(e.datum), wxString::Format("D%03d", id), u8(e.popis), e.castka,
                                          0, 1, "", 0, 1, model->getPredkontaceIdByZkratka(e.predkontace),
                                          e.banka ? -1 : 1, e.banka ? 1 : -1, e.banka ? 3 : 0, 0, 2025)));
    }
    m_frame->book()->selectPage(NAV_DENIK);
    for (int i = 0; i < 10; ++i) wxYield();
    lxBookPage* page = m_frame->book()->page(NAV_DENIK);
    lxListCtrl* list = page->list();
    ASSERT_EQ(list->GetItemCount(), 5);
    std::vector<wxString> dates;
    for (long i = 0; i < list->GetItemCount(); ++i) dates.push_back(list->GetItemText(i, 0));
    EXPECT_EQ(dates, (std::vector<wxString>{"15.01.2025", "15.01.2025", "01.02.2025", "02.03.2025", "10.04.2025"}));
    EXPECT_EQ(list->GetItemText(3, 3), u8("31\u00A0458,00"));
    EXPECT_EQ(statusText(2), "Datum: 20.06.2025");

    int columns = 0;
    for (int c = 0; c < list->GetColumnCount(); ++c) columns += list->GetColumnWidth(c);
    EXPECT_LE(columns, list->GetClientSize().x) << "every column of the journal is in view";
    auto* toolbar = dynamic_cast<wxToolBar*>(page->GetChildren().GetFirst()->GetData());
    ASSERT_NE(toolbar, nullptr);
    EXPECT_LE(toolbar->GetBestSize().x, page->GetClientSize().x) << "the whole toolbar is in view";

    saveShot(m_frame, "journal");
}

// The issued invoices of the year in their three states, told apart in the list, with the
// page's own commands in view.
TEST_F(MainWindow, IssuedInvoicesShowTheirStateAndTheWholeToolbar) {
    addCompany("evida1.db", "Alfa", "27074358");
    ASSERT_TRUE(start()->isLoaded());
    DbModel* model = DbModel::instance();
    const struct {
        double cena;
        const char* splatnost;
        double zaplaceno;
    } doklady[] = {{12100, "2025-07-01", 12100}, {24200, "2025-07-01", 10000}, {3630, "2025-06-01", 0}};
    for (const auto& d : doklady) {
        DokladForm form = novyDoklad(*model, DruhDokladu::FAKTURA_VYDANA);
        ASSERT_TRUE(model->addFaPolozka(FaPolozka(model->getLastId("fapolozka"), u8("Montáž"), "h", 1, d.cena, 0, 0,
                                                  d.cena, false, form.id, -1, -1, false)));
        form.protistrana = u8("Beta Trade s.r.o.");
        form.splatnost = isoDay(d.splatnost);
        ASSERT_EQ(ulozitDoklad(*model, form), wxString());
        if (d.zaplaceno > 0) {
            const PlacenyDoklad doklad = placenyFaktura(*model, form.id);
            UhradaForm uhrada = novaUhrada(*model, doklad);
            uhrada.castka = d.zaplaceno;
            ASSERT_EQ(ulozitUhradu(*model, doklad, uhrada), wxString());
        }
    }
    m_frame->book()->selectPage(NAV_FAKTURY_VYDANE);
    for (int i = 0; i < 10; ++i) wxYield();
    lxBookPage* page = m_frame->book()->page(NAV_FAKTURY_VYDANE);
    lxListCtrl* list = page->list();
    ASSERT_EQ(list->GetItemCount(), 3);
    int stav = -1;
    for (int c = 0; c < list->GetColumnCount(); ++c) {
        wxListItem column;
        column.SetMask(wxLIST_MASK_TEXT);
        list->GetColumn(c, column);
        if (column.GetText() == "Stav") stav = c;
    }
    ASSERT_GE(stav, 0);
    std::vector<wxString> stavy;
    for (long i = 0; i < list->GetItemCount(); ++i) stavy.push_back(list->GetItemText(i, stav));
    EXPECT_EQ(stavy, (std::vector<wxString>{u8("Uhrazeno"), u8("Částečně uhrazeno"), u8("Po splatnosti")}));
    auto* toolbar = dynamic_cast<wxToolBar*>(page->GetChildren().GetFirst()->GetData());
    ASSERT_NE(toolbar, nullptr);
    EXPECT_LE(toolbar->GetBestSize().x, page->GetClientSize().x) << "the whole toolbar is in view";
    saveShot(m_frame, "faktury");
}

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

TEST_F(MainWindow, AboutFromTheHelpMenuNamesTheOpenCompanyFile) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    wxString verze, firma;
    m_dialogs.then([&](wxDialog* dialog) {
        auto* about = dynamic_cast<OProgramuDialog*>(dialog);
        ASSERT_NE(about, nullptr) << dialog->GetTitle();
        verze = about->verze();
        firma = about->otevrenaFirma();
        click(dialog, wxID_OK);
    });
    command(wxID_ABOUT);
    EXPECT_EQ(m_dialogs.titles.back(), u8("O programu"));
    EXPECT_EQ(verze, lxutils::EVIDA_VERSION);
    EXPECT_EQ(wxFileName(firma), wxFileName(lxutils::dataDir(), "evida1.db"));
}

TEST_F(MainWindow, HelpOpensThePageOfTheBookShown) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    auto openedPage = [] {
        for (wxWindow* w : wxTopLevelWindows) {
            if (auto* viewer = dynamic_cast<wxHtmlHelpFrame*>(w))
                return viewer->GetHelpWindow()->GetHtmlWindow()->GetOpenedPage();
        }
        return wxString();
    };
    const struct {
        int command;
        const char* page;
    } cases[] = {
        {evidaFrame::ID_POKLADNA, "pokladna.html"},
        {evidaFrame::ID_FAKTURY_PRIJATE, "fakturyprijate.html"},
        {evidaFrame::ID_ZASOBY, "sklad.html"},
    };
    for (const auto& c : cases) {
        command(c.command);
        command(wxID_HELP);
        EXPECT_TRUE(openedPage().EndsWith(c.page)) << c.page << ": " << openedPage();
    }
}
