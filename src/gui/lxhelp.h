// Context help: F1 in any dialog or wizard opens the help book at the page about it.
//
// One event filter, installed by the main window, sees the key for every window of the
// program; the page is looked up by the dialog's class in one table (lxhelp.cpp), so a dialog
// needs no code of its own. A dialog the table does not name (an item of an invoice, a column
// mapping, a chooser) gets the page of the dialog that opened it; one with no such parent
// gets the contents. In the main window F1 is the menu's "Nápověda", which opens the page of
// the book shown (pageForNavigation).
#pragma once

#include <wx/event.h>
#include <wx/eventfilter.h>
#include <wx/string.h>

#include <functional>
#include <vector>

class wxWindow;

namespace lxhelp {

// The page shown when nothing more specific is known.
extern const char* const CONTENTS_PAGE;

// The page (a file name of the help book, "pokladna.html") of `window`'s dialog or of the
// nearest dialog that opened it; empty when none is named.
wxString pageFor(const wxWindow* window);
// The page of a book of the main window (a NavigationCode); empty when none.
wxString pageForNavigation(int nav);
// Every page the tables name, each once: the test checks the book has them all.
std::vector<wxString> allPages();

// Shows `page` of the installed help book over `parent`, modally: the dialog asking is
// itself modal, and a help frame beside it could not be used. Says so when the help book
// is not installed.
void showPage(wxWindow* parent, const wxString& page);

// The F1 key for every dialog of the program, for as long as it lives.
class lxHelpKey : public wxEventFilter {
 public:
    using Shower = std::function<void(wxWindow* dialog, const wxString& page)>;
    explicit lxHelpKey(Shower shower = showPage);
    ~lxHelpKey() override;
    lxHelpKey(const lxHelpKey&) = delete;
    lxHelpKey& operator=(const lxHelpKey&) = delete;

    int FilterEvent(wxEvent& event) override;

 private:
    Shower m_shower;
};

}  // namespace lxhelp
