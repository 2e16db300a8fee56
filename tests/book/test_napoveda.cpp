// The help book and the context help: every page a dialog or book asks for is in the book
// and its contents, the book's own references all lead somewhere, F1 in a dialog asks for
// that dialog's page, and the help viewer really opens it. Also the About dialog.
#include <gmock/gmock.h>
#include <wx/app.h>
#include <wx/dir.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/html/helpdata.h>
#include <wx/html/helpdlg.h>
#include <wx/html/helpwnd.h>
#include <wx/html/htmlwin.h>
#include <wx/regex.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <functional>
#include <memory>
#include <set>

#include "FakturaDialog.h"
#include "JizdaDialog.h"
#include "KontaktDialog.h"
#include "MajetekDialog.h"
#include "OProgramuDialog.h"
#include "PokladnaDialog.h"
#include "PrijemVydejDialog.h"
#include "ZavpohDialog.h"
#include "booktest.h"
#include "lxhelp.h"
#include "lxutils.h"
#include "navigation.h"
#include "zdroje.h"

namespace {

wxString helpDir() { return wxFileName(zdroje::helpBook()).GetPath(); }

wxString readFile(const wxString& path) {
    wxString text;
    wxFFile file(path, "rb");
    if (file.IsOpened()) file.ReadAll(&text, wxConvUTF8);
    return text;
}

// Every match of the regular expression's first group in `text`.
std::set<wxString> matches(const wxString& text, const char* pattern) {
    std::set<wxString> found;
    wxRegEx re(pattern, wxRE_ADVANCED | wxRE_ICASE);
    wxString rest = text;
    size_t start = 0, length = 0;
    while (re.Matches(rest) && re.GetMatch(&start, &length, 0)) {
        found.insert(re.GetMatch(rest, 1));
        rest = rest.Mid(start + length);
    }
    return found;
}

std::set<wxString> htmlFiles() {
    std::set<wxString> files;
    wxArrayString paths;
    wxDir::GetAllFiles(helpDir(), &paths, "*.html", wxDIR_FILES);
    for (const wxString& p : paths) files.insert(wxFileName(p).GetFullName());
    return files;
}

// The files of the project's [FILES] section.
std::set<wxString> projectFiles() {
    const wxString hhp = readFile(helpDir() + "/evida.hhp");
    std::set<wxString> files;
    bool inFiles = false;
    for (wxString line : wxSplit(hhp, '\n')) {
        line.Trim().Trim(false);
        if (line.StartsWith("[")) inFiles = line == "[FILES]";
        else if (inFiles && !line.empty()) files.insert(line);
    }
    return files;
}

const char* const LOCAL = "<param name=\"Local\" value=\"([^\"#]+)";

std::set<wxString> contentsPages() { return matches(readFile(helpDir() + "/evida.hhc"), LOCAL); }

}  // namespace

TEST(HelpBook, EveryPageAskedForIsAFileOfTheBookAndInItsContents) {
    ASSERT_FALSE(zdroje::helpBook().empty());
    const std::set<wxString> files = htmlFiles(), project = projectFiles(), contents = contentsPages();
    const std::vector<wxString> asked = lxhelp::allPages();
    ASSERT_GE(asked.size(), 20u);
    wxHtmlHelpData data;
    ASSERT_TRUE(data.AddBook(zdroje::helpBook()));
    for (const wxString& page : asked) {
        EXPECT_TRUE(files.count(page)) << page << " is not a file";
        EXPECT_TRUE(project.count(page)) << page << " is not in [FILES]";
        EXPECT_TRUE(contents.count(page)) << page << " is not in the contents";
        EXPECT_FALSE(data.FindPageByName(page).empty()) << page << " is not found by the viewer";
    }
    // The viewer reads the Czech names of the contents and index (it takes them as bytes of
    // the book's charset: a charset declared in the file as well would blank them).
    std::set<wxString> names;
    const wxHtmlHelpDataItems& viewerContents = data.GetContentsArray();
    for (size_t i = 0; i < viewerContents.size(); ++i) {
        EXPECT_FALSE(viewerContents[i].name.empty()) << viewerContents[i].page;
        names.insert(viewerContents[i].name);
    }
    const wxHtmlHelpDataItems& index = data.GetIndexArray();
    ASSERT_GT(index.size(), 20u);
    for (size_t i = 0; i < index.size(); ++i) EXPECT_FALSE(index[i].name.empty()) << index[i].page;
    for (const char* name : {"Peněžní deník", "Faktury vydané", "Přiznání k DPH", "Kontrolní hlášení", "Souhrnné hlášení",
                             "Kniha jízd", "Zásoby a sklad", "Účetní období"})
        EXPECT_TRUE(names.count(u8(name))) << name;
    // The book has every book of the program and every filing.
    for (int nav : {NAV_DENIK, NAV_POKLADNA, NAV_BANKA, NAV_FAKTURY_VYDANE, NAV_FAKTURY_PRIJATE, NAV_POHLEDAVKY,
                    NAV_ZAVAZKY, NAV_MAJETEK, NAV_ZASOBY, NAV_JIZDY})
        EXPECT_FALSE(lxhelp::pageForNavigation(nav).empty()) << nav;
}

TEST(HelpBook, EveryFileIsListedAndEveryReferenceLeadsToAFile) {
    const std::set<wxString> files = htmlFiles(), project = projectFiles(), contents = contentsPages();
    for (const wxString& file : files) {
        EXPECT_TRUE(project.count(file)) << file << " is not in [FILES]";
        EXPECT_TRUE(contents.count(file)) << file << " is not in the contents";
        const wxString text = readFile(helpDir() + "/" + file);
        EXPECT_EQ(matches(text, "<title>([^<]+)</title>").size(), 1u) << file << " has no title";
        for (const wxString& link : matches(text, "href=\"([^\"#:]+)"))
            EXPECT_TRUE(files.count(link)) << file << " links to " << link;
    }
    // References of the project, contents and index.
    struct Source {
        const char* name;
        std::set<wxString> pages;
    };
    const Source sources[] = {
        {"evida.hhp", project},
        {"evida.hhc", contents},
        {"evida.hhk", matches(readFile(helpDir() + "/evida.hhk"), LOCAL)},
    };
    for (const Source& s : sources) {
        EXPECT_FALSE(s.pages.empty()) << s.name;
        for (const wxString& page : s.pages) EXPECT_TRUE(files.count(page)) << s.name << " names " << page;
    }
}

class ContextHelp : public BookTest {
 protected:
    // F1 (or another key) pressed in the first text field of `dialog`, or on the dialog.
    static void press(wxWindow* dialog, int key, bool control = false) {
        wxWindow* target = dialog;
        for (wxWindow* child : dialog->GetChildren()) {
            if (dynamic_cast<wxTextCtrl*>(child)) {
                target = child;
                break;
            }
        }
        wxKeyEvent event(wxEVT_CHAR_HOOK);
        event.m_keyCode = key;
        event.m_controlDown = control;
        event.SetEventObject(target);
        target->GetEventHandler()->ProcessEvent(event);
    }

    std::vector<std::pair<wxWindow*, wxString>> m_shown;
    lxhelp::lxHelpKey m_key{[this](wxWindow* dialog, const wxString& page) { m_shown.emplace_back(dialog, page); }};
};

TEST_F(ContextHelp, F1InADialogAsksForItsOwnPage) {
    struct Case {
        const char* page;
        std::function<wxDialog*(wxWindow*)> open;
    };
    const Case cases[] = {
        {"pokladna.html", [](wxWindow* p) { return new PokladnaDialog(p); }},
        {"denik.html", [](wxWindow* p) { return new PrijemVydejDialog(p, true, false); }},
        {"fakturyvydane.html", [](wxWindow* p) { return new FakturaDialog(p, true); }},
        {"fakturyprijate.html", [](wxWindow* p) { return new FakturaDialog(p, false); }},
        {"pohledavky.html", [](wxWindow* p) { return new ZavpohDialog(p, false); }},
        {"zavazky.html", [](wxWindow* p) { return new ZavpohDialog(p, true); }},
        {"majetek.html", [](wxWindow* p) { return new MajetekDialog(p); }},
        {"jizdy.html", [](wxWindow* p) { return new JizdaDialog(p); }},
        {"kontakty.html", [](wxWindow* p) { return new KontaktDialog(p); }},
        // A dialog of no page of its own: the contents.
        {"index.html", [](wxWindow* p) { return new wxDialog(p, wxID_ANY, "Jiný"); }},
    };
    for (const Case& c : cases) {
        m_shown.clear();
        std::unique_ptr<wxDialog> dialog(c.open(m_frame));
        press(dialog.get(), WXK_F1);
        ASSERT_EQ(m_shown.size(), 1u) << c.page;
        EXPECT_EQ(m_shown[0].first, dialog.get()) << c.page;
        EXPECT_EQ(m_shown[0].second, c.page);
        // Only F1 alone asks for help.
        press(dialog.get(), WXK_F2);
        press(dialog.get(), WXK_F1, true);
        EXPECT_EQ(m_shown.size(), 1u) << c.page;
    }
}

TEST_F(ContextHelp, ADialogOpenedFromAnotherGetsThePageOfTheOneThatOpenedIt) {
    std::unique_ptr<FakturaDialog> faktura(new FakturaDialog(m_frame, false));
    std::unique_ptr<wxDialog> polozka(new wxDialog(faktura.get(), wxID_ANY, u8("Položka")));
    press(polozka.get(), WXK_F1);
    ASSERT_EQ(m_shown.size(), 1u);
    EXPECT_EQ(m_shown[0].first, polozka.get());
    EXPECT_EQ(m_shown[0].second, "fakturyprijate.html");
    // The main window's F1 belongs to its menu.
    press(m_frame, WXK_F1);
    EXPECT_EQ(m_shown.size(), 1u);
}

TEST_F(ContextHelp, TheViewerOpensTheAskedPageOverTheDialog) {
    PokladnaDialog dialog(m_frame);
    wxString opened, title;
    bool modal = false;
    wxTheApp->CallAfter([&] {
        for (wxWindow* w : wxTopLevelWindows) {
            auto* viewer = dynamic_cast<wxHtmlHelpDialog*>(w);
            if (!viewer) continue;
            modal = viewer->IsModal();
            opened = viewer->GetHelpWindow()->GetHtmlWindow()->GetOpenedPage();
            title = viewer->GetHelpWindow()->GetHtmlWindow()->GetOpenedPageTitle();
            // Shown already, modally: only the picture is taken (screenshot() would hide it).
            wxString dir;
            if (wxGetEnv("EVIDA_SCREENSHOTS", &dir) && !dir.empty()) {
                viewer->Move(0, 0);
                for (int i = 0; i < 20; ++i) {
                    wxYield();
                    wxMilliSleep(25);
                }
                wxExecute("import -window root " + dir + "/napoveda-pokladna.png", wxEXEC_SYNC);
            }
            viewer->EndModal(wxID_OK);
        }
    });
    lxhelp::showPage(&dialog, "pokladna.html");
    EXPECT_TRUE(modal);
    EXPECT_TRUE(opened.EndsWith("pokladna.html")) << opened;
    EXPECT_EQ(title, "Pokladna");
}

TEST_F(ContextHelp, AboutShowsTheVersionTheDataDirectoryAndTheOpenFile) {
    {
        OProgramuDialog about(m_frame);
        EXPECT_EQ(about.verze(), lxutils::EVIDA_VERSION);
        EXPECT_EQ(about.datovaSlozka(), lxutils::dataDir());
        EXPECT_TRUE(about.datovaSlozka().StartsWith(m_home)) << about.datovaSlozka();
        EXPECT_EQ(about.otevrenaFirma(), lxutils::dataDir() + "/firma.db");
        // Read-only, but the path can be selected and copied.
        auto* firma = field<wxTextCtrl>(&about, "firma");
        ASSERT_TRUE(firma);
        EXPECT_FALSE(firma->IsEditable());
        firma->SelectAll();
        EXPECT_EQ(firma->GetStringSelection(), about.otevrenaFirma());
        screenshot(about, "o-programu");
    }
    m_model->closeDatabase();
    OProgramuDialog about(m_frame);
    EXPECT_EQ(about.otevrenaFirma(), u8("žádná firma není otevřena"));
}
