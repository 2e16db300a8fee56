// The main of every GUI test executable (print, shell, book pages): the tests build real
// windows and measure text, so they run inside a wxApp with a display (CI uses xvfb-run -a).
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/image.h>
#include <wx/log.h>

#include "guiapp.h"

class GuiTestApp : public wxApp {
   public:
    bool OnInit() override { return true; }
};

wxIMPLEMENT_APP_NO_MAIN(GuiTestApp);

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests (test discovery at build time) needs no display.
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    if (!startGuiApp(argc, argv)) return 1;
    wxTheApp->SetAppName("evida");
    wxInitAllImageHandlers();
    // Warnings go to stderr instead of message boxes that nobody would close.
    wxLog::SetActiveTarget(new wxLogStderr());
    const int result = RUN_ALL_TESTS();
    wxTheApp->OnExit();
    wxEntryCleanup();
    return result;
}
