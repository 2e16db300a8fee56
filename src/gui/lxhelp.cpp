#include "lxhelp.h"

#include <wx/dialog.h>
#include <wx/filename.h>
#include <wx/html/helpctrl.h>
#include <wx/html/helpdlg.h>
#include <wx/toplevel.h>

#include <algorithm>

#include "BankaDialog.h"
#include "BankyDialog.h"
#include "CenaPhmDialog.h"
#include "DatumDialog.h"
#include "DokladDialog.h"
#include "DphDruhFilter.h"
#include "DphDruhyDialog.h"
#include "Dphdp3Wizard.h"
#include "Dphkh1VetaDialog.h"
#include "Dphkh1Wizard.h"
#include "DphshVetarDialog.h"
#include "DphshWizard.h"
#include "FauhradaDialog.h"
#include "FauhradyDialog.h"
#include "FirmaDialog.h"
#include "FirmaWizard.h"
#include "InventuraDialog.h"
#include "InventuryDialog.h"
#include "JizdaDialog.h"
#include "JizdyCiselnikDialog.h"
#include "KontaktDialog.h"
#include "KontaktyDialog.h"
#include "KontrolaPodaniDialog.h"
#include "MajetekDialog.h"
#include "MajetekZavazkyDialog.h"
#include "NahradaDialog.h"
#include "NahradaKmDialog.h"
#include "NeuhrazeneDialog.h"
#include "OdpiskupinaDialog.h"
#include "OdpiskupinyDialog.h"
#include "PohybDialog.h"
#include "PokladnaDialog.h"
#include "PokladnyDialog.h"
#include "PredkontaceDialog.h"
#include "PredkontacesDialog.h"
#include "PreferencesDialog.h"
#include "PrijemVydejDialog.h"
#include "PrijmyVydajeDialog.h"
#include "PriznaniDialog.h"
#include "RadaDialog.h"
#include "SeznamDphDialog.h"
#include "SkladDialog.h"
#include "SkladyDialog.h"
#include "UhradaDialog.h"
#include "UhradyDialog.h"
#include "UlozeneDialog.h"
#include "VozidloDialog.h"
#include "VypisImportDialog.h"
#include "ZalohaDialog.h"
#include "ZasobaDialog.h"
#include "navigation.h"
#include "prompts.h"
#include "zdroje.h"

namespace lxhelp {

const char* const CONTENTS_PAGE = "index.html";

namespace {

// One row of the table: whether a window is of the class, and its page.
struct Entry {
    bool (*matches)(const wxWindow*);
    const char* page;
};

template <class Dialog>
bool is(const wxWindow* w) {
    return dynamic_cast<const Dialog*>(w) != nullptr;
}

template <class Dialog>
Entry page(const char* name) {
    return {&is<Dialog>, name};
}

const Entry DIALOG_PAGES[] = {
    page<PrijemVydejDialog>("denik.html"),
    page<PredkontacesDialog>("denik.html"),
    page<PredkontaceDialog>("denik.html"),
    page<PokladnyDialog>("pokladna.html"),
    page<PokladnaDialog>("pokladna.html"),
    page<BankyDialog>("banka.html"),
    page<BankaDialog>("banka.html"),
    page<VypisImportDialog>("banka.html"),
    page<UhradaDialog>("uhrady.html"),
    page<UhradyDialog>("uhrady.html"),
    page<FauhradyDialog>("uhrady.html"),
    page<FauhradaDialog>("uhrady.html"),
    page<NeuhrazeneDialog>("uhrady.html"),
    page<MajetekDialog>("majetek.html"),
    page<OdpiskupinyDialog>("majetek.html"),
    page<OdpiskupinaDialog>("majetek.html"),
    page<ZasobaDialog>("sklad.html"),
    page<PohybDialog>("sklad.html"),
    page<InventuraDialog>("sklad.html"),
    page<InventuryDialog>("sklad.html"),
    page<SkladyDialog>("sklad.html"),
    page<SkladDialog>("sklad.html"),
    page<JizdaDialog>("jizdy.html"),
    page<JizdyCiselnikDialog>("jizdy.html"),
    page<VozidloDialog>("jizdy.html"),
    page<CenaPhmDialog>("jizdy.html"),
    page<NahradaKmDialog>("jizdy.html"),
    page<NahradaDialog>("jizdy.html"),
    page<KontaktyDialog>("kontakty.html"),
    page<KontaktDialog>("kontakty.html"),
    page<DphDruhyDialog>("dph.html"),
    page<DphDruhFilter>("dph.html"),
    page<SeznamDphDialog>("dph.html"),
    page<Dphdp3Wizard>("priznanidph.html"),
    page<Dphkh1Wizard>("kontrolnihlaseni.html"),
    page<Dphkh1VetaDialog>("kontrolnihlaseni.html"),
    page<DphshWizard>("souhrnnehlaseni.html"),
    page<DphshVetarDialog>("souhrnnehlaseni.html"),
    page<UlozeneDialog>("podani.html"),
    page<KontrolaPodaniDialog>("podani.html"),
    page<PrijmyVydajeDialog>("prehledy.html"),
    page<MajetekZavazkyDialog>("prehledy.html"),
    page<PriznaniDialog>("prehledy.html"),
    page<FirmaDialog>("firmy.html"),
    page<FirmaWizard>("firmy.html"),
    page<DatumDialog>("obdobi.html"),
    page<ZalohaDialog>("zalohy.html"),
    page<PreferencesDialog>("nastaveni.html"),
    page<RadaDialog>("nastaveni.html"),
};

// The four kinds of document share one dialog class; each has its own book and page.
const char* dokladPage(DruhDokladu druh) {
    switch (druh) {
        case DruhDokladu::FAKTURA_VYDANA:
            return "fakturyvydane.html";
        case DruhDokladu::FAKTURA_PRIJATA:
            return "fakturyprijate.html";
        case DruhDokladu::POHLEDAVKA:
            return "pohledavky.html";
        case DruhDokladu::ZAVAZEK:
            break;
    }
    return "zavazky.html";
}

const DruhDokladu DRUHY[] = {DruhDokladu::FAKTURA_VYDANA, DruhDokladu::FAKTURA_PRIJATA, DruhDokladu::POHLEDAVKA,
                             DruhDokladu::ZAVAZEK};

struct NavigationPage {
    int nav;
    const char* page;
};

const NavigationPage NAVIGATION_PAGES[] = {
    {NAV_HOME, "index.html"},          {NAV_DENIK, "denik.html"},
    {NAV_POKLADNA, "pokladna.html"},   {NAV_BANKA, "banka.html"},
    {NAV_FAKTURY_VYDANE, "fakturyvydane.html"}, {NAV_FAKTURY_PRIJATE, "fakturyprijate.html"},
    {NAV_POHLEDAVKY, "pohledavky.html"}, {NAV_ZAVAZKY, "zavazky.html"},
    {NAV_MAJETEK, "majetek.html"},     {NAV_ZASOBY, "sklad.html"},
    {NAV_JIZDY, "jizdy.html"},
};

wxString ownPage(const wxWindow* w) {
    if (const auto* doklad = dynamic_cast<const DokladDialog*>(w)) return dokladPage(doklad->druh());
    for (const Entry& e : DIALOG_PAGES) {
        if (e.matches(w)) return e.page;
    }
    return wxString();
}

}  // namespace

wxString pageFor(const wxWindow* window) {
    // Up through the windows that opened it: a dialog's parent is the dialog (or the main
    // window) it was opened over.
    for (const wxWindow* w = window; w; w = w->GetParent()) {
        const wxString page = ownPage(w);
        if (!page.empty()) return page;
    }
    return wxString();
}

wxString pageForNavigation(int nav) {
    for (const NavigationPage& p : NAVIGATION_PAGES) {
        if (p.nav == nav) return p.page;
    }
    return wxString();
}

std::vector<wxString> allPages() {
    std::vector<wxString> pages = {CONTENTS_PAGE};
    for (const Entry& e : DIALOG_PAGES) pages.push_back(e.page);
    for (DruhDokladu d : DRUHY) pages.push_back(dokladPage(d));
    for (const NavigationPage& p : NAVIGATION_PAGES) pages.push_back(p.page);
    std::sort(pages.begin(), pages.end());
    pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
    return pages;
}

void showPage(wxWindow* parent, const wxString& page) {
    const wxString book = zdroje::helpBook();
    if (book.empty()) {
        prompts().info(wxString::FromUTF8("Nápověda není nainstalována."), "Informace", parent);
        return;
    }
    wxHtmlHelpController help(wxHF_DEFAULT_STYLE | wxHF_DIALOG | wxHF_MODAL, parent);
    help.SetFrameParameters(wxString::FromUTF8("Nápověda – %s"), parent->FromDIP(wxSize(900, 650)));
    help.AddBook(wxFileName(book));
    help.DisplaySection(page);
}

lxHelpKey::lxHelpKey(Shower shower) : m_shower(std::move(shower)) { wxEvtHandler::AddFilter(this); }

lxHelpKey::~lxHelpKey() { wxEvtHandler::RemoveFilter(this); }

int lxHelpKey::FilterEvent(wxEvent& event) {
    if (event.GetEventType() != wxEVT_CHAR_HOOK) return Event_Skip;
    const auto& key = static_cast<const wxKeyEvent&>(event);
    if (key.GetKeyCode() != WXK_F1 || key.HasAnyModifiers()) return Event_Skip;
    auto* window = wxDynamicCast(event.GetEventObject(), wxWindow);
    auto* dialog = window ? wxDynamicCast(wxGetTopLevelParent(window), wxDialog) : nullptr;
    // The main window has F1 in its menu; the help viewer needs no help on itself.
    if (!dialog || wxDynamicCast(dialog, wxHtmlHelpDialog)) return Event_Skip;
    const wxString page = pageFor(dialog);
    m_shower(dialog, page.empty() ? wxString(CONTENTS_PAGE) : page);
    return Event_Processed;
}

}  // namespace lxhelp
