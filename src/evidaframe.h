// The main window: menus, the navigation tree on the left, the book of pages in the centre,
// the status bar, and the commands that open, create, switch, delete, back up and restore
// companies and manage accounting periods. The handlers are split by area:
//   evidaframe.cpp        construction, loading a company, status bar, model events, date,
//                         update check, help, shutdown
//   evidaframe_firma.cpp  companies, periods, backup and restore
//   evidaframe_menu.cpp   the menu bar, the navigation tree and the pages they select
#pragma once

#include <wx/aui/framemanager.h>
#include <wx/frame.h>

#include <memory>
#include <vector>

class DbModel;
class lxBook;
class wxHtmlHelpController;
class wxMenuItem;
class wxSplashScreen;
class wxTreeCtrl;
class wxTreeEvent;

class evidaFrame : public wxFrame {
 public:
    // Command identifiers of the menu items.
    enum {
        ID_FIRMA_UPRAVIT = wxID_HIGHEST + 100,
        ID_FIRMA_SMAZAT,
        ID_FIRMA_PRIDAT,
        ID_FIRMA_ZMENIT,
        ID_OBDOBI_PRIDAT,
        ID_OBDOBI_ZMENIT,
        ID_OBDOBI_SMAZAT,
        ID_ADRESAR,
        ID_PREHLED_PRIJMU,
        ID_PREHLED_MAJETKU,
        ID_DAN_Z_PRIJMU,
        ID_DPH_PRIZNANI,
        ID_DPH_KONTROLNI,
        ID_DPH_SOUHRNNE,
        ID_KONTROLA_PODANI,
        ID_DPH_SEZNAM,
        ID_ULOZENA_PRIZNANI,
        ID_ZALOHOVAT,
        ID_OBNOVIT,
        ID_DENIK,
        ID_POKLADNA,
        ID_BANKA,
        ID_PREDKONTACE,
        ID_STAV_UCTU,
        ID_FAKTURY_VYDANE,
        ID_FAKTURY_PRIJATE,
        ID_POHLEDAVKY,
        ID_ZAVAZKY,
        ID_UHRADY,
        ID_ODESLANE_FAKTURY,
        ID_CLENENI_DPH,
        ID_MAJETEK,
        ID_ODPISKUPINY,
        ID_ZASOBY,
        ID_INVENTURY,
        ID_SKLADY,
        ID_DATUM,
        ID_EDITOR_SABLON,
        ID_AKTUALIZACE,
        ID_IMPORT_VYPISU
    };

    // Builds the window and loads the current company (the first-run wizard when there is
    // none). When that fails, isLoaded() is false and the caller destroys the window.
    explicit evidaFrame(const wxString& title);
    ~evidaFrame() override;

    bool isLoaded() const { return m_loaded; }
    lxBook* book() const { return m_book; }
    wxTreeCtrl* navigation() const { return m_navigation; }
    // Whether the vehicle log is shown (not for flat-rate expenses, see createRemoveJizdy).
    bool jizdyShown() const { return m_jizdy; }
    // Where the help book, icon and message catalogues are: "../Resources" beside the
    // program, the installed share directory, or the source tree when run from a build.
    static wxString resourcesDir();
    // Where the window opens: as it was left, or on the first start (and when no screen shows
    // the saved place any more) 1200×800, or 80 % of a smaller screen, centred.
    static wxRect initialRect();

 private:
    // --- evidaframe.cpp ---
    bool loadDatabase();
    // Steps that end every load of a company: settings, commands, date, pages, status bar.
    void finishLoad();
    void placeWindow();
    void showSplash();
    void closeSplash();
    void updateStatusBar();
    void refreshPages(int nav);
    void quit(const wxString& reason);
    void onModelUpdated(wxCommandEvent& event);
    void onModelMsg(wxCommandEvent& event);
    void onDatum(wxCommandEvent& event);
    void onAktualizace(wxCommandEvent& event);
    void onHelp(wxCommandEvent& event);
    void onPreferences(wxCommandEvent& event);
    void onAdresar(wxCommandEvent& event);
    void onStavUctu(wxCommandEvent& event);
    void onUlozenaPriznani(wxCommandEvent& event);
    void onQuit(wxCommandEvent& event);
    void onClose(wxCloseEvent& event);

    // --- evidaframe_firma.cpp ---
    void onUpravitFirmu(wxCommandEvent& event);
    void onSmazatFirmu(wxCommandEvent& event);
    void onPridatFirmu(wxCommandEvent& event);
    void onZmenitFirmu(wxCommandEvent& event);
    void onPridatObdobi(wxCommandEvent& event);
    void onZmenitObdobi(wxCommandEvent& event);
    void onSmazatObdobi(wxCommandEvent& event);
    void onZalohovat(wxCommandEvent& event);
    void onObnovit(wxCommandEvent& event);
    // The command bodies; `zMenu` is false when another command runs them (after a
    // deletion), where a cancel ends the program.
    void pridatFirmu(bool zMenu);
    void zmenitFirmu(bool zMenu);
    void zmenitObdobi(bool zMenu);
    bool zalohovat();
    // Opens the company file named by the settings after another one was closed.
    bool openCurrent();

    // --- evidaframe_menu.cpp ---
    void createMenuBar();
    void createNavigation();
    void selectNavigation(int nav);
    void onNavigation(wxTreeEvent& event);
    void onPage(wxCommandEvent& event);
    // Shows the vehicle log unless the company claims flat-rate expenses.
    void createRemoveJizdy();
    // Enables the commands that depend on the companies, periods and VAT registration.
    void enableCommands();

    wxAuiManager m_mgr;
    std::unique_ptr<wxHtmlHelpController> m_help;
    std::unique_ptr<DbModel> m_model;
    lxBook* m_book = nullptr;
    wxTreeCtrl* m_navigation = nullptr;
    wxSplashScreen* m_splash = nullptr;
    wxWindow* m_preferences = nullptr;  // the preferences editor while it is open
    wxMenuItem* m_firmaZmenit = nullptr;
    std::vector<wxMenuItem*> m_obdobiItems;
    std::vector<wxMenuItem*> m_dphItems;
    bool m_loaded = false;
    bool m_buildingNavigation = false;
    bool m_pagesCreated = false;
    bool m_jizdy = true;
};
