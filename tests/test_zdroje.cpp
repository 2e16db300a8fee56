// Where the installed files are found: an application bundle before an installation under a
// prefix, the source tree only as the last resort of a development build, and paths given
// without "..".
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include "zdroje.h"

namespace {

class TempTree {
 public:
    TempTree() {
        m_root = wxFileName::CreateTempFileName("evida-zdroje");
        wxRemoveFile(m_root);
        wxFileName::Mkdir(m_root + "/bin", 0777, wxPATH_MKDIR_FULL);
    }
    ~TempTree() { wxFileName::Rmdir(m_root, wxPATH_RMDIR_RECURSIVE); }
    void file(const wxString& relative) {
        const wxFileName name(m_root + "/" + relative);
        wxFileName::Mkdir(name.GetPath(), 0777, wxPATH_MKDIR_FULL);
        wxFFile(name.GetFullPath(), "w").Write("x");
    }
    const wxString& root() const { return m_root; }

 private:
    wxString m_root;
};

}  // namespace

TEST(Zdroje, TheBundleComesBeforeThePrefixAndNeedsTheHelpBook) {
    struct Case {
        const char* name;
        std::vector<const char*> files;
        const char* expected;  // relative to the tree; nullptr: not in the tree
    };
    const Case cases[] = {
        {"installed", {"share/evida/help/evida.hhp"}, "share/evida"},
        {"bundle", {"Resources/help/evida.hhp"}, "Resources"},
        {"both", {"share/evida/help/evida.hhp", "Resources/help/evida.hhp"}, "Resources"},
        // Schemas alone or a help directory without its project do not make the resources.
        {"schemas only", {"share/evida/xsd/dphdp3_epo2.xsd", "share/evida/help/index.html"}, nullptr},
        {"empty", {}, nullptr},
    };
    for (const Case& c : cases) {
        TempTree tree;
        for (const char* f : c.files) tree.file(f);
        const wxString found = zdroje::resourcesDirFor(tree.root() + "/bin");
        if (c.expected) {
            EXPECT_EQ(found, tree.root() + "/" + c.expected) << c.name;
        } else {
            // A development build falls back on the source tree, never on the bare tree.
            EXPECT_FALSE(found.StartsWith(tree.root())) << c.name << ": " << found;
        }
        EXPECT_EQ(found.Find(".."), wxNOT_FOUND) << c.name;
        EXPECT_FALSE(found.EndsWith("/")) << c.name;
    }
}

TEST(Zdroje, ADevelopmentBuildFindsEverythingAndTheSchemaDirectoryCanBeOverridden) {
    EXPECT_TRUE(wxFileName::FileExists(zdroje::helpBook())) << zdroje::helpBook();
    EXPECT_TRUE(wxFileName::FileExists(zdroje::xsdDir() + "/dphkh1_epo2.xsd")) << zdroje::xsdDir();
    EXPECT_TRUE(wxFileName::FileExists(zdroje::icon())) << zdroje::icon();
    wxString old;
    const bool had = wxGetEnv("EVIDA_XSD_DIR", &old);
    wxSetEnv("EVIDA_XSD_DIR", "/somewhere/else");
    EXPECT_EQ(zdroje::xsdDir(), "/somewhere/else");
    if (had) wxSetEnv("EVIDA_XSD_DIR", old); else wxUnsetEnv("EVIDA_XSD_DIR");
}
