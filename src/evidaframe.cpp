#include "evidaframe.h"

#include <wx/app.h>
#include <wx/busyinfo.h>
#include <wx/config.h>
#include <wx/dcmemory.h>
#include <wx/display.h>
#include <wx/filename.h>
#include <wx/html/helpctrl.h>
#include <wx/menu.h>
#include <wx/splash.h>
#include <wx/statusbr.h>
#include <wx/stdpaths.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include "DatumDialog.h"
#include "FirmaWizard.h"
#include "KontaktyDialog.h"
#include "PreferencesDialog.h"
#include "UlozeneDialog.h"
#include "ZalohaDialog.h"
#include "book/lxbook.h"
#include "clock.h"
#include "companyfiles.h"
#include "companysetup.h"
#include "dbmodel.h"
#include "editor/SablonaEditor.h"
#include "lxformat.h"
#include "lxhelp.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "navigation.h"
#include "prompts.h"
#include "zdroje.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
const char* const INFORMACE = "Informace";

// The splash image is drawn here rather than shipped: the program's name and version.
wxBitmap splashBitmap() {
    wxBitmap bitmap(380, 170);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(wxBrush(wxColour(31, 84, 140)));
    dc.Clear();
    dc.SetBrush(wxBrush(wxColour(242, 177, 52)));
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.DrawRectangle(0, 150, 380, 20);
    dc.SetTextForeground(*wxWHITE);
    dc.SetFont(wxFontInfo(30).Bold());
    dc.DrawText("Evida", 28, 34);
    dc.SetFont(wxFontInfo(10));
    dc.DrawText(u8("Daňová evidence pro živnostníky a malé firmy"), 30, 92);
    dc.DrawText(wxString::Format(u8("Verze %s – načítám data…"), lxutils::EVIDA_VERSION), 30, 116);
    dc.SelectObject(wxNullBitmap);
    return bitmap;
}

// The size of the first start, 1200 × 800: the whole toolbar of a book page and every column
// of the journal beside the navigation; on a screen without room for that and a margin
// around it, 80 % of the screen. Centred.
wxSize firstStartSize(const wxRect& area) {
    return wxSize(area.width >= 1260 ? 1200 : area.width * 4 / 5, area.height >= 840 ? 800 : area.height * 4 / 5);
}

wxRect firstStartRect(const wxRect& area) {
    const wxSize size = firstStartSize(area);
    return wxRect(area.x + (area.width - size.x) / 2, area.y + (area.height - size.y) / 2, size.x, size.y);
}

}  // namespace

wxRect evidaFrame::initialRect() {
    lxSettings* settings = lxSettings::instance();
    const wxRect saved(settings->x(), settings->y(), settings->w(), settings->h());
    const int shown = wxDisplay::GetFromPoint(saved.GetTopLeft() + wxPoint(40, 20));
    const wxRect area = wxDisplay(shown != wxNOT_FOUND ? static_cast<unsigned>(shown) : 0u).GetClientArea();
    // Before the first close the settings file holds no geometry, or the settings' defaults
    // (50, 50, 888 × 666) when it was saved before the window ever closed; a geometry that no
    // screen shows any more (a monitor unplugged) is as good as none.
    const wxConfigBase* config = wxConfigBase::Get(false);
    const bool placed = config && config->HasEntry("/GUI/w") && config->HasEntry("/GUI/h") &&
                        saved != wxRect(50, 50, 888, 666);
    if (!placed || shown == wxNOT_FOUND || saved.width < 200 || saved.height < 150) return firstStartRect(area);
    return saved;
}

void evidaFrame::placeWindow() { SetSize(initialRect()); }

wxString evidaFrame::resourcesDir() { return zdroje::resourcesDir(); }

evidaFrame::evidaFrame(const wxString& title) : wxFrame(nullptr, wxID_ANY, title) {
    lxSettings* settings = lxSettings::instance();
    m_mgr.SetManagedWindow(this);
    m_help = std::make_unique<wxHtmlHelpController>(wxHF_DEFAULT_STYLE, this);
    const wxString book = zdroje::helpBook();
    if (!book.empty()) m_help->AddBook(wxFileName(book));

    createMenuBar();
    CreateStatusBar(3);
    const int widths[] = {-3, -1, -2};
    GetStatusBar()->SetStatusWidths(3, widths);

    m_navigation = new wxTreeCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(200, 300),
                                  wxTR_DEFAULT_STYLE | wxTR_HIDE_ROOT | wxTR_SINGLE | wxNO_BORDER);
    m_book = new lxBook(this);
    m_mgr.AddPane(m_navigation, wxAuiPaneInfo()
                                    .Name("Navigation")
                                    .Caption("Navigation")
                                    .Left()
                                    .BestSize(200, 100)
                                    .MinSize(100, 100)
                                    .CloseButton(false));
    m_mgr.AddPane(m_book, wxAuiPaneInfo().Name("Book").Caption("Book").CenterPane());
    if (!m_mgr.LoadPerspective(settings->auiperspective())) m_mgr.LoadPerspective(lxSettings::DEFAULT_PERSPECTIVE);
    m_mgr.Update();

    placeWindow();
    if (settings->maximized()) Maximize();

    Bind(MODEL_UPDATED, &evidaFrame::onModelUpdated, this);
    Bind(MODEL_MSG, &evidaFrame::onModelMsg, this);
    Bind(wxEVT_CLOSE_WINDOW, &evidaFrame::onClose, this);
    m_navigation->Bind(wxEVT_TREE_SEL_CHANGED, &evidaFrame::onNavigation, this);

    m_loaded = loadDatabase();
    if (m_loaded) selectNavigation(NAV_HOME);
}

evidaFrame::~evidaFrame() {
    lxSettings* settings = lxSettings::instance();
    const bool maximized = IsMaximized();
    if (!maximized) {
        const wxRect r = GetRect();
        settings->setX(r.x);
        settings->setY(r.y);
        settings->setW(r.width);
        settings->setH(r.height);
    }
    settings->setMaximized(maximized);
    settings->setAuiperspective(m_mgr.SavePerspective());
    settings->save();
    if (m_model) {
        m_model->closeDatabase();
        m_model->shutdownModel();
    }
    m_mgr.UnInit();
    m_help.reset();
    closeSplash();
    // The pages may still ask the model while they go; let them go before it does.
    DestroyChildren();
    m_model.reset();
}

bool evidaFrame::loadDatabase() {
    m_model = std::make_unique<DbModel>(this);
    m_model->initModel();
    lxSettings* settings = lxSettings::instance();
    if (settings->dbname().empty()) {
        FirmaWizard wizard(this, true);
        if (!wizard.run()) return false;
    }
    showSplash();
    // Settings written before company keys existed name companies without their IČ.
    if (lxutils::versionToInt(lxutils::EVIDA_VERSION) > 1299) m_model->updateDbFirma();
    const wxString path = lxutils::dataDir() + "/" + settings->dbname();
    if (wxFileName::FileExists(path)) {
        if (!m_model->openDatabase()) {
            closeSplash();
            prompts().error(m_model->openError(), u8(INFORMACE), this);
            return false;
        }
        m_model->fillData();
    } else {
        if (settings->dbname().empty()) settings->setDbname(lxutils::getUniqueDbName());
        if (!companysetup::createPlaceholderCompany(*m_model, lxutils::dataDir() + "/" + settings->dbname())) {
            closeSplash();
            prompts().error(u8("Nepodařilo se otevřít databázi"), u8(INFORMACE), this);
            return false;
        }
        refreshPages(NAV_ALL);
        // The splash stays on top of everything; it must not hide the message.
        closeSplash();
        prompts().info(u8("Nepodařilo se otevřít databázi\nByla vytvořena nová"), u8(INFORMACE), this);
    }
    finishLoad();
    return true;
}

void evidaFrame::finishLoad() {
    closeSplash();
    lxSettings* settings = lxSettings::instance();
    const Firma& firma = m_model->firma();
    const wxString key = companyfiles::firmaKey(firma.nazev(), firma.ic());
    // The settings always follow the company record in the database.
    if (settings->dbmap().count(settings->dbname()))
        settings->editDbnamePair(settings->dbname(), key);
    else
        settings->addDbnamePair(settings->dbname(), key);
    enableCommands();
    settings->setDatum(lxutils::todayForObdobi());
    settings->setSplatnost(m_model->getSplatnost(m_model->currentRok()));
    if (!m_pagesCreated) {
        m_book->createPages();
        m_pagesCreated = true;
    }
    refreshPages(NAV_ALL);
    createRemoveJizdy();
    updateStatusBar();
}

void evidaFrame::showSplash() {
    if (m_splash) return;
    m_splash =
        new wxSplashScreen(splashBitmap(), wxSPLASH_CENTRE_ON_SCREEN | wxSPLASH_NO_TIMEOUT, 0, nullptr, wxID_ANY);
    // A click closes the splash by itself.
    m_splash->Bind(wxEVT_DESTROY, [this](wxWindowDestroyEvent& event) {
        if (event.GetEventObject() == m_splash) m_splash = nullptr;
        event.Skip();
    });
    wxTheApp->Yield(true);
}

void evidaFrame::closeSplash() {
    if (!m_splash) return;
    wxSplashScreen* splash = m_splash;
    m_splash = nullptr;
    splash->Destroy();
}

void evidaFrame::updateStatusBar() {
    if (!m_model || !GetStatusBar()) return;
    const Firma& firma = m_model->firma();
    SetStatusText(wxString::Format(u8("%s, IČ: %s"), firma.nazev(), firma.ic()), 0);
    SetStatusText(wxString::Format("%d", m_model->currentRok()), 1);
    SetStatusText("Datum: " + lxformat::formatDatum(lxSettings::instance()->datum()), 2);
}

void evidaFrame::refreshPages(int nav) {
    if (m_pagesCreated && m_model && m_model->isOpen()) m_book->refresh(nav);
}

void evidaFrame::quit(const wxString& reason) {
    prompts().info(reason, u8(INFORMACE), this);
    Close(true);
}

void evidaFrame::onModelUpdated(wxCommandEvent& event) {
    refreshPages(event.GetInt());
    updateStatusBar();
}

void evidaFrame::onModelMsg(wxCommandEvent& event) { prompts().info(event.GetString(), u8(INFORMACE), this); }

void evidaFrame::onDatum(wxCommandEvent&) {
    lxSettings* settings = lxSettings::instance();
    DatumDialog dialog(this, settings->datum());
    if (dialog.ShowModal() != wxID_OK) return;
    settings->setDatum(dialog.datum());
    refreshPages(NAV_ALL);
    updateStatusBar();
}

void evidaFrame::onAktualizace(wxCommandEvent&) {
    wxString available;
    {
        wxBusyCursor busy;
        available = lxutils::availableVersion();
    }
    prompts().info(lxutils::updateMessage(available), u8(INFORMACE), this);
}

// The page of the book shown, or the contents.
void evidaFrame::onHelp(wxCommandEvent&) {
    const wxString page = m_book ? lxhelp::pageForNavigation(m_book->currentNavigation()) : wxString();
    const bool shown = page.empty() ? m_help->DisplayContents() : m_help->DisplaySection(page);
    if (!shown) prompts().info(u8("Nápověda není nainstalována."), u8(INFORMACE), this);
}

void evidaFrame::onPreferences(wxCommandEvent&) {
    {
        PreferencesDialog dialog(this);
        m_preferences = &dialog;
        dialog.ShowModal();
        m_preferences = nullptr;
    }
    // The editor changes the due period of the years and the number series.
    lxSettings::instance()->setSplatnost(m_model->getSplatnost(m_model->currentRok()));
    refreshPages(NAV_ALL);
}

void evidaFrame::onAdresar(wxCommandEvent&) {
    KontaktyDialog dialog(this);
    dialog.ShowModal();
}

void evidaFrame::onUlozenaPriznani(wxCommandEvent&) {
    if (!m_model || m_model->getUlozeneCount() == 0) {
        prompts().info(u8("Žádná uložená přiznání"), u8(INFORMACE), this);
        return;
    }
    (new UlozeneDialog(this))->ukazat();
}

void evidaFrame::onQuit(wxCommandEvent&) { Close(); }

void evidaFrame::onClose(wxCloseEvent& event) {
    // An open template editor with unsaved changes asks first; its answer may keep the
    // program open.
    if (event.CanVeto()) {
        for (wxWindow* child : GetChildren()) {
            auto* editor = dynamic_cast<SablonaEditor*>(child);
            if (editor && !editor->muzeZavrit()) {
                event.Veto();
                return;
            }
        }
    }
    lxSettings* settings = lxSettings::instance();
    if (event.CanVeto() && m_loaded && lxutils::isZalohaDue(settings->lastBackup())) {
        ZalohaDialog reminder(this, settings->lastBackup());
        if (reminder.ShowModal() == wxID_OK) zalohovat();
    }
    if (auto* preferences = dynamic_cast<wxDialog*>(m_preferences)) {
        if (preferences->IsModal()) preferences->EndModal(wxID_CANCEL);
    }
    Destroy();
}
