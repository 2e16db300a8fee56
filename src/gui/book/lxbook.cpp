#include "lxbook.h"

#include "bookpages.h"
#include "homepage.h"
#include "lxbookpage.h"
#include "navigation.h"

namespace {

// The journal, cash and bank pages all show journal entries, and the model names only one
// of them when an entry changes (editing a register changes the entries' codes too).
bool isJournal(int nav) { return nav == NAV_DENIK || nav == NAV_POKLADNA || nav == NAV_BANKA; }

bool affects(int changed, int page) {
    if (changed == NAV_ALL) return true;
    if (isJournal(changed)) return isJournal(page);
    return changed == page;
}

}  // namespace

lxBook::lxBook(wxWindow* parent) : wxSimplebook(parent, wxID_ANY) {}

void lxBook::createPages() {
    DeleteAllPages();
    m_pages.clear();
    m_current = -1;
    m_home = new HomePage(this);
    AddPage(m_home, bookpages::title(NAV_HOME));
    for (int nav : bookpages::navigations()) {
        if (nav != NAV_JIZDY || m_jizdy) addPage(nav);
    }
    selectPage(NAV_HOME);
}

void lxBook::addPage(int nav) {
    lxBookPage* page = bookpages::create(this, nav);
    if (!page) return;
    m_pages[nav] = page;
    AddPage(page, page->title());
}

wxWindow* lxBook::window(int nav) const {
    if (nav == NAV_HOME) return m_home;
    return page(nav);
}

void lxBook::selectPage(int nav) {
    wxWindow* shown = window(nav);
    if (!shown) return;
    if (nav == NAV_HOME) {
        m_home->refresh();
    } else if (page(nav)->isStale()) {
        page(nav)->refresh();
    }
    const int index = FindPage(shown);
    if (index != wxNOT_FOUND) ChangeSelection(static_cast<size_t>(index));
    m_current = nav;
}

// Only the page on screen reloads at once; the others reload when they are next shown, so a
// change does not read every book again.
void lxBook::refresh(int nav) {
    if (nav == NAV_NONE) return;
    // The summaries follow every change of documents; hidden, they are rebuilt when shown.
    if (m_home && m_current == NAV_HOME) m_home->refresh();
    for (auto& [code, page] : m_pages) {
        if (!affects(nav, code)) continue;
        if (code == m_current) {
            page->refresh();
        } else {
            page->markStale();
        }
    }
}

void lxBook::setJizdyVisible(bool visible) {
    m_jizdy = visible;
    if (!m_home) return;  // the pages are not built yet; createPages follows the flag
    const bool present = m_pages.count(NAV_JIZDY) > 0;
    if (visible && !present) {
        addPage(NAV_JIZDY);
    } else if (!visible && present) {
        if (m_current == NAV_JIZDY) selectPage(NAV_HOME);
        const int index = FindPage(m_pages[NAV_JIZDY]);
        m_pages.erase(NAV_JIZDY);
        if (index != wxNOT_FOUND) DeletePage(static_cast<size_t>(index));
    }
}

lxBookPage* lxBook::page(int nav) const {
    const auto it = m_pages.find(nav);
    return it == m_pages.end() ? nullptr : it->second;
}
