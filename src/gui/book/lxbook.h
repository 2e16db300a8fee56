// lxBook: the book of pages in the centre of the main window, one page per navigation leaf
// (journal, cash, bank, issued and received invoices, receivables, liabilities, assets,
// stock, vehicle log) and the home page. The main window selects pages by their navigation
// code and asks the book to refresh the page a model change names.
#pragma once

#include <wx/simplebook.h>

#include <map>

class lxBookPage;
class HomePage;

class lxBook : public wxSimplebook {
 public:
    explicit lxBook(wxWindow* parent);

    // Builds the pages (after a company is loaded); the vehicle log only when asked.
    void createPages();
    // Shows the page of a navigation code (NavigationCode in navigation.h).
    void selectPage(int nav);
    // Reloads the page of a navigation code from the model; NAV_ALL reloads every page.
    void refresh(int nav);
    // Adds or removes the vehicle-log page.
    void setJizdyVisible(bool visible);
    int currentNavigation() const { return m_current; }
    lxBookPage* page(int nav) const;
    // The home page (NAV_HOME), null before createPages.
    HomePage* homePage() const { return m_home; }

 private:
    void addPage(int nav);
    wxWindow* window(int nav) const;

    std::map<int, lxBookPage*> m_pages;
    int m_current = -1;
    HomePage* m_home = nullptr;
    bool m_jizdy = false;
};
