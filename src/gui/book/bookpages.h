// The book's list pages by navigation code: each page is its shape (bookshapes) in an
// lxBookPage, with the actions that work today attached. Actions whose dialogs are not part
// of the program yet are left without a handler, so the page shows them disabled; the
// dialogs attach them with lxBookPage::setAction.
#pragma once

#include <wx/string.h>

#include <vector>

class lxBookPage;
class wxWindow;

namespace bookpages {

// The navigation codes of the list pages, in the order of the navigation tree.
const std::vector<int>& navigations();
// The page's title as the navigation tree names it.
wxString title(int nav);
// A new page for a navigation code, or null for a code without a list page.
lxBookPage* create(wxWindow* parent, int nav);

}  // namespace bookpages
