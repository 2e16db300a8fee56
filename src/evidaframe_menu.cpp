// The main window's menu bar, its navigation tree and the pages they select.
#include <wx/menu.h>
#include <wx/treectrl.h>

#include <functional>
#include <iterator>

#include "DphDruhyDialog.h"
#include "Dphdp3Wizard.h"
#include "Dphkh1Wizard.h"
#include "DphshWizard.h"
#include "ciselnikyprompt.h"
#include "FauhradyDialog.h"
#include "InventuryDialog.h"
#include "JizdyCiselnikDialog.h"
#include "MajetekZavazkyDialog.h"
#include "NahradaDialog.h"
#include "OProgramuDialog.h"
#include "OdeslaneDialog.h"
#include "OdpiskupinyDialog.h"
#include "SkladyDialog.h"
#include "PredkontacesDialog.h"
#include "PrijmyVydajeDialog.h"
#include "KontrolaPodaniDialog.h"
#include "SeznamDphDialog.h"
#include "VypisImportDialog.h"
#include "editor/SablonaEditor.h"
#include "book/lxbook.h"
#include "dbmodel.h"
#include "evidaframe.h"
#include "lxsettings.h"
#include "navigation.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The page a tree item or menu item shows.
class NavigationData : public wxTreeItemData {
 public:
    explicit NavigationData(int nav) : m_nav(nav) {}
    int nav() const { return m_nav; }

 private:
    int m_nav;
};

struct Leaf {
    const char* label;
    int nav;
};
struct Group {
    const char* label;
    std::initializer_list<Leaf> leaves;
};

// The journal leaf is spelt "Pěněžní deník" here, unlike the menu; both spellings are kept.
const Group NAVIGATION[] = {
    {"Účetnictví", {{"Pěněžní deník", NAV_DENIK}, {"Pokladna", NAV_POKLADNA}, {"Banka", NAV_BANKA}}},
    {"Fakturace", {{"Faktury vydané", NAV_FAKTURY_VYDANE}, {"Faktury přijaté", NAV_FAKTURY_PRIJATE}}},
    {"Pohledávky a závazky", {{"Pohledávky", NAV_POHLEDAVKY}, {"Závazky", NAV_ZAVAZKY}}},
    {"Majetek", {{"Kniha majetku", NAV_MAJETEK}}},
    {"Sklad", {{"Kniha zásob", NAV_ZASOBY}}},
    {"Jízdy", {{"Kniha jízd", NAV_JIZDY}}},
};

// Menu items that show a page of the book.
struct PageItem {
    int id;
    int nav;
};
const PageItem PAGE_ITEMS[] = {
    {evidaFrame::ID_DENIK, NAV_DENIK},
    {evidaFrame::ID_POKLADNA, NAV_POKLADNA},
    {evidaFrame::ID_BANKA, NAV_BANKA},
    {evidaFrame::ID_FAKTURY_VYDANE, NAV_FAKTURY_VYDANE},
    {evidaFrame::ID_FAKTURY_PRIJATE, NAV_FAKTURY_PRIJATE},
    {evidaFrame::ID_POHLEDAVKY, NAV_POHLEDAVKY},
    {evidaFrame::ID_ZAVAZKY, NAV_ZAVAZKY},
    {evidaFrame::ID_MAJETEK, NAV_MAJETEK},
    {evidaFrame::ID_ZASOBY, NAV_ZASOBY},
};

// Commands whose dialogs come with later parts of the program (tax overviews and income
// tax, the sent-invoice log, stock-takings, the template editor). Their items are in place
// and stay disabled until then.
const int LATER_ITEMS[] = {
    evidaFrame::ID_DAN_Z_PRIJMU,
};

// The VAT commands, for VAT payers only.
const int VAT_ITEMS_READY[] = {evidaFrame::ID_ULOZENA_PRIZNANI, evidaFrame::ID_CLENENI_DPH,    evidaFrame::ID_DPH_SEZNAM,
                               evidaFrame::ID_DPH_PRIZNANI,     evidaFrame::ID_DPH_KONTROLNI, evidaFrame::ID_DPH_SOUHRNNE,
                               evidaFrame::ID_KONTROLA_PODANI};

bool isVatItemReady(int id) {
    for (int ready : VAT_ITEMS_READY) {
        if (ready == id) return true;
    }
    return false;
}

// The commands of the vehicle log's menu; it is there only for companies that keep the log.
enum {
    ID_KNIHA_JIZD = wxID_HIGHEST + 400,
    ID_VOZIDLA,
    ID_RIDICI,
    ID_PHM,
    ID_DRUHY_VOZIDEL,
    ID_NAHRADA,
};

// Opens a code-list dialog over the open company.
template <class Dialog>
void showCodeList(wxWindow* parent, DbModel* model) {
    if (!model || !model->isOpen()) return;
    Dialog dialog(parent);
    dialog.ShowModal();
}

}  // namespace

void evidaFrame::createMenuBar() {
    auto* bar = new wxMenuBar();

    auto* firma = new wxMenu();
    firma->Append(ID_FIRMA_UPRAVIT, u8("Upravit firmu"), u8("Otevřít nastavení účtované firmy"));
    firma->Append(ID_FIRMA_SMAZAT, u8("Smazat firmu"));
    firma->Append(ID_FIRMA_PRIDAT, u8("Přidat firmu"));
    m_firmaZmenit = firma->Append(ID_FIRMA_ZMENIT, u8("Změnit firmu"));
    auto* obdobi = new wxMenu();
    obdobi->Append(ID_OBDOBI_PRIDAT, u8("Přidat období"));
    m_obdobiItems = {obdobi->Append(ID_OBDOBI_ZMENIT, u8("Změnit období")),
                     obdobi->Append(ID_OBDOBI_SMAZAT, u8("Smazat období"))};
    auto* dph = new wxMenu();
    m_dphItems = {dph->Append(ID_DPH_PRIZNANI, u8("Přiznání k DPH")),
                  dph->Append(ID_DPH_KONTROLNI, u8("Kontrolní hlášení DPH")),
                  dph->Append(ID_DPH_SOUHRNNE, u8("Souhrnné hlášení DPH")),
                  dph->Append(ID_KONTROLA_PODANI, u8("Kontrola podání")),
                  dph->Append(ID_DPH_SEZNAM, u8("Seznam dokladů k DPH"))};
    auto* dane = new wxMenu();
    dane->Append(ID_PREHLED_PRIJMU, u8("Přehled příjmů a výdajů"));
    // "závázků" is misspelt on purpose: it is the item's name users know.
    dane->Append(ID_PREHLED_MAJETKU, u8("Přehled majetku a závázků"));
    dane->Append(ID_DAN_Z_PRIJMU, u8("Daň z příjmů"));
    dane->AppendSubMenu(dph, "DPH");
    m_dphItems.push_back(dane->Append(ID_ULOZENA_PRIZNANI, u8("Uložená přiznání")));

    auto* system = new wxMenu();
    system->AppendSubMenu(firma, "Firma");
    system->AppendSubMenu(obdobi, u8("Období"));
    system->Append(ID_ADRESAR, u8("Adresář"), u8("Otevřít adresář"));
    system->AppendSubMenu(dane, u8("Daně"));
    system->AppendSeparator();
    system->Append(ID_ZALOHOVAT, u8("Zálohovat data"));
    system->Append(ID_OBNOVIT, u8("Obnovit data ze zálohy"));
    system->AppendSeparator();
    system->Append(wxID_EXIT, u8("Konec\tCtrl-Q"));
    bar->Append(system, u8("&Systém"));

    auto* ucetnictvi = new wxMenu();
    ucetnictvi->Append(ID_DENIK, u8("Peněžní deník"));
    ucetnictvi->Append(ID_POKLADNA, u8("Pokladna"));
    ucetnictvi->Append(ID_BANKA, u8("Banka"));
    ucetnictvi->Append(ID_IMPORT_VYPISU, u8("Import bankovního výpisu"), u8("Načíst bankovní výpis a spárovat platby s doklady"));
    ucetnictvi->AppendSeparator();
    ucetnictvi->Append(ID_PREDKONTACE, u8("Předkontace"));
    ucetnictvi->AppendSeparator();
    ucetnictvi->Append(ID_STAV_UCTU, u8("Stav pokladen a bankovních účtů"));
    bar->Append(ucetnictvi, u8("Úče&tnictví"));

    auto* fakturace = new wxMenu();
    fakturace->Append(ID_FAKTURY_VYDANE, u8("Faktury vydané"));
    fakturace->Append(ID_FAKTURY_PRIJATE, u8("Faktury přijaté"));
    fakturace->Append(ID_POHLEDAVKY, u8("Pohledávky"));
    fakturace->Append(ID_ZAVAZKY, u8("Závazky"));
    fakturace->AppendSeparator();
    fakturace->Append(ID_UHRADY, u8("Úhrady"));
    fakturace->Append(ID_ODESLANE_FAKTURY, u8("Seznam odeslaných faktur"));
    m_dphItems.push_back(fakturace->Append(ID_CLENENI_DPH, u8("Členění DPH")));
    bar->Append(fakturace, u8("&Fakturace"));

    auto* majetek = new wxMenu();
    majetek->Append(ID_MAJETEK, u8("Kniha majetku"));
    majetek->Append(ID_ODPISKUPINY, u8("Odpisové skupiny"));
    bar->Append(majetek, u8("Ma&jetek"));

    auto* sklad = new wxMenu();
    sklad->Append(ID_ZASOBY, u8("Kniha zásob"));
    sklad->Append(ID_INVENTURY, u8("Inventury"));
    sklad->Append(ID_SKLADY, u8("Sklady"));
    bar->Append(sklad, u8("Sk&lad"));

    auto* jizdy = new wxMenu();
    jizdy->Append(ID_KNIHA_JIZD, u8("Kniha jízd"));
    jizdy->AppendSeparator();
    jizdy->Append(ID_VOZIDLA, u8("Vozidla"));
    jizdy->Append(ID_RIDICI, u8("Řidiči"));
    jizdy->Append(ID_PHM, u8("Pohonné hmoty"));
    jizdy->Append(ID_DRUHY_VOZIDEL, u8("Druhy vozidel a sazby náhrad"));
    jizdy->AppendSeparator();
    jizdy->Append(ID_NAHRADA, u8("Náhrada za použití vozidla"));
    bar->Append(jizdy, u8("Jí&zdy"));

    auto* upravy = new wxMenu();
    upravy->Append(ID_DATUM, u8("Datum aplikace\tAlt-D"));
    upravy->Append(ID_EDITOR_SABLON, u8("Editor šablon"));
    upravy->AppendSeparator();
    upravy->Append(wxID_PREFERENCES, u8("Nastavení..."));
    bar->Append(upravy, u8("Ú&pravy"));

    auto* napoveda = new wxMenu();
    napoveda->Append(wxID_HELP, u8("Nápověda\tF1"));
    napoveda->Append(ID_AKTUALIZACE, u8("Zkontrolovat aktualizace"));
    napoveda->AppendSeparator();
    napoveda->Append(wxID_ABOUT, u8("O programu"), u8("Verze programu, datová složka a otevřená firma"));
    bar->Append(napoveda, u8("&Nápověda"));

    SetMenuBar(bar);
    for (int id : LATER_ITEMS) bar->Enable(id, false);
    for (wxMenuItem* item : m_dphItems) item->Enable(false);

    Bind(wxEVT_MENU, &evidaFrame::onUpravitFirmu, this, ID_FIRMA_UPRAVIT);
    Bind(wxEVT_MENU, &evidaFrame::onSmazatFirmu, this, ID_FIRMA_SMAZAT);
    Bind(wxEVT_MENU, &evidaFrame::onPridatFirmu, this, ID_FIRMA_PRIDAT);
    Bind(wxEVT_MENU, &evidaFrame::onZmenitFirmu, this, ID_FIRMA_ZMENIT);
    Bind(wxEVT_MENU, &evidaFrame::onPridatObdobi, this, ID_OBDOBI_PRIDAT);
    Bind(wxEVT_MENU, &evidaFrame::onZmenitObdobi, this, ID_OBDOBI_ZMENIT);
    Bind(wxEVT_MENU, &evidaFrame::onSmazatObdobi, this, ID_OBDOBI_SMAZAT);
    Bind(wxEVT_MENU, &evidaFrame::onAdresar, this, ID_ADRESAR);
    Bind(wxEVT_MENU, &evidaFrame::onStavUctu, this, ID_STAV_UCTU);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { VypisImportDialog(this).ShowModal(); }, ID_IMPORT_VYPISU);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { (new SablonaEditor(this))->Show(); }, ID_EDITOR_SABLON);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<PredkontacesDialog>(this, m_model.get()); }, ID_PREDKONTACE);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<FauhradyDialog>(this, m_model.get()); }, ID_UHRADY);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<OdpiskupinyDialog>(this, m_model.get()); },
         ID_ODPISKUPINY);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<PrijmyVydajeDialog>(this, m_model.get()); },
         ID_PREHLED_PRIJMU);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<MajetekZavazkyDialog>(this, m_model.get()); },
         ID_PREHLED_MAJETKU);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<InventuryDialog>(this, m_model.get()); }, ID_INVENTURY);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<SkladyDialog>(this, m_model.get()); }, ID_SKLADY);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { showCodeList<OdeslaneDialog>(this, m_model.get()); },
         ID_ODESLANE_FAKTURY);
    // The item is disabled for other companies; a shortcut must not get round that.
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (m_model && m_model->isFirmaPlatce()) showCodeList<DphDruhyDialog>(this, m_model.get());
        },
        ID_CLENENI_DPH);
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (m_model && m_model->isFirmaPlatce()) showCodeList<SeznamDphDialog>(this, m_model.get());
        },
        ID_DPH_SEZNAM);
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (m_model && m_model->isFirmaPlatce()) showCodeList<KontrolaPodaniDialog>(this, m_model.get());
        },
        ID_KONTROLA_PODANI);
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (!m_model || !m_model->isOpen() || !m_model->isFirmaPlatce() || !ensureCiselniky(this, true)) return;
            Dphdp3Wizard wizard(this, m_model.get());
            wizard.run();
        },
        ID_DPH_PRIZNANI);
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (!m_model || !m_model->isOpen() || !m_model->isFirmaPlatce()) return;
            if (m_model->currentRok() < 2016) {
                prompts().info(u8("Kontrolní hlášení se podává až od roku 2016."), u8("Informace"), this);
                return;
            }
            if (!ensureCiselniky(this, false)) return;
            Dphkh1Wizard wizard(this, m_model.get());
            wizard.run();
        },
        ID_DPH_KONTROLNI);
    Bind(
        wxEVT_MENU,
        [this](wxCommandEvent&) {
            if (!m_model || !m_model->isOpen() || !m_model->isFirmaPlatce() || !ensureCiselniky(this, false)) return;
            DphshWizard wizard(this, m_model.get());
            wizard.run();
        },
        ID_DPH_SOUHRNNE);
    Bind(wxEVT_MENU, &evidaFrame::onUlozenaPriznani, this, ID_ULOZENA_PRIZNANI);
    Bind(wxEVT_MENU, &evidaFrame::onZalohovat, this, ID_ZALOHOVAT);
    Bind(wxEVT_MENU, &evidaFrame::onObnovit, this, ID_OBNOVIT);
    Bind(wxEVT_MENU, &evidaFrame::onQuit, this, wxID_EXIT);
    Bind(wxEVT_MENU, &evidaFrame::onDatum, this, ID_DATUM);
    Bind(wxEVT_MENU, &evidaFrame::onPreferences, this, wxID_PREFERENCES);
    Bind(wxEVT_MENU, &evidaFrame::onHelp, this, wxID_HELP);
    Bind(wxEVT_MENU, &evidaFrame::onAktualizace, this, ID_AKTUALIZACE);
    Bind(wxEVT_MENU, [this](wxCommandEvent&) { OProgramuDialog(this).ShowModal(); }, wxID_ABOUT);
    for (const PageItem& item : PAGE_ITEMS) Bind(wxEVT_MENU, &evidaFrame::onPage, this, item.id);

    // The menu is disabled without the vehicle log; a shortcut must not get round that.
    auto jenSKnihouJizd = [this](std::function<void()> command) {
        return [this, command](wxCommandEvent&) {
            if (m_jizdy && m_model && m_model->isOpen()) command();
        };
    };
    auto ciselnik = [this](JizdyCiselnik (*popis)()) {
        return [this, popis] {
            JizdyCiselnikDialog dialog(this, popis());
            dialog.ShowModal();
        };
    };
    Bind(wxEVT_MENU, jenSKnihouJizd([this] { selectNavigation(NAV_JIZDY); }), ID_KNIHA_JIZD);
    Bind(wxEVT_MENU, jenSKnihouJizd(ciselnik(&jizdyciselniky::vozidla)), ID_VOZIDLA);
    Bind(wxEVT_MENU, jenSKnihouJizd(ciselnik(&jizdyciselniky::ridici)), ID_RIDICI);
    Bind(wxEVT_MENU, jenSKnihouJizd(ciselnik(&jizdyciselniky::phm)), ID_PHM);
    Bind(wxEVT_MENU, jenSKnihouJizd(ciselnik(&jizdyciselniky::druhyVozidel)), ID_DRUHY_VOZIDEL);
    Bind(wxEVT_MENU, jenSKnihouJizd([this] {
             NahradaDialog dialog(this);
             dialog.ShowModal();
         }),
         ID_NAHRADA);
}

void evidaFrame::onStavUctu(wxCommandEvent&) {
    if (m_model && m_model->isOpen()) prompts().info(m_model->stavUctuAPokladen(), u8("Stav účtů a pokladen"), this);
}

void evidaFrame::enableCommands() {
    if (m_firmaZmenit) m_firmaZmenit->Enable(lxSettings::instance()->dbcount() > 1);
    const bool obdobi = m_model && m_model->getObdobiCount() > 1;
    for (wxMenuItem* item : m_obdobiItems) item->Enable(obdobi);
    const bool platce = m_model && m_model->isFirmaPlatce();
    for (wxMenuItem* item : m_dphItems) item->Enable(platce && isVatItemReady(item->GetId()));
}

void evidaFrame::createNavigation() {
    m_buildingNavigation = true;
    m_navigation->DeleteAllItems();
    const wxTreeItemId root = m_navigation->AddRoot("Evida");
    wxTreeItemId selected;
    const int current = m_book->currentNavigation();
    for (const Group& group : NAVIGATION) {
        const bool jizdy = group.leaves.begin()->nav == NAV_JIZDY;
        if (jizdy && !m_jizdy) continue;
        // A group shows the home page with the summaries.
        const wxTreeItemId item = m_navigation->AppendItem(root, u8(group.label), -1, -1, new NavigationData(NAV_HOME));
        for (const Leaf& leaf : group.leaves) {
            const wxTreeItemId child =
                m_navigation->AppendItem(item, u8(leaf.label), -1, -1, new NavigationData(leaf.nav));
            if (leaf.nav == current) selected = child;
        }
        m_navigation->Expand(item);
    }
    if (selected.IsOk()) m_navigation->SelectItem(selected);
    m_buildingNavigation = false;
    // A page whose leaf is gone (the vehicle log) gives way to the home page.
    if (!selected.IsOk() && current != NAV_HOME && current >= 0) selectNavigation(NAV_HOME);
}

void evidaFrame::selectNavigation(int nav) { m_book->selectPage(nav); }

void evidaFrame::onNavigation(wxTreeEvent& event) {
    if (m_buildingNavigation || IsBeingDeleted() || !event.GetItem().IsOk()) return;
    auto* data = dynamic_cast<NavigationData*>(m_navigation->GetItemData(event.GetItem()));
    if (data) selectNavigation(data->nav());
}

void evidaFrame::onPage(wxCommandEvent& event) {
    for (const PageItem& item : PAGE_ITEMS) {
        if (item.id != event.GetId()) continue;
        selectNavigation(item.nav);
        // Mark the page's leaf in the tree as well.
        wxTreeItemIdValue groupCookie;
        for (wxTreeItemId group = m_navigation->GetFirstChild(m_navigation->GetRootItem(), groupCookie); group.IsOk();
             group = m_navigation->GetNextChild(m_navigation->GetRootItem(), groupCookie)) {
            wxTreeItemIdValue cookie;
            for (wxTreeItemId leaf = m_navigation->GetFirstChild(group, cookie); leaf.IsOk();
                 leaf = m_navigation->GetNextChild(group, cookie)) {
                auto* data = dynamic_cast<NavigationData*>(m_navigation->GetItemData(leaf));
                if (data && data->nav() == item.nav) {
                    m_buildingNavigation = true;
                    m_navigation->SelectItem(leaf);
                    m_buildingNavigation = false;
                }
            }
        }
    }
}

void evidaFrame::createRemoveJizdy() {
    // Flat-rate expenses already cover the costs of a vehicle, so such a company keeps no
    // vehicle log; every other company has it.
    m_jizdy = !(m_model && m_model->isOpen() && m_model->isFirmaPausal());
    if (m_pagesCreated) m_book->setJizdyVisible(m_jizdy);
    if (wxMenuBar* bar = GetMenuBar()) {
        const int menu = bar->FindMenu(u8("Jízdy"));
        if (menu != wxNOT_FOUND) bar->EnableTop(menu, m_jizdy);
    }
    createNavigation();
}
