// The print tests measure text on the screen and draw through real device contexts, so they
// run inside a wxApp with a display (CI uses xvfb-run).
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/image.h>
#include <wx/log.h>

#include "../guiapp.h"

class PrintTestApp : public wxApp {
 public:
    bool OnInit() override { return true; }
};

wxIMPLEMENT_APP_NO_MAIN(PrintTestApp);

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Listing the tests (test discovery at build time) needs no display.
    if (::testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    if (!startGuiApp(argc, argv)) return 1;
    wxTheApp->SetAppName("evida");
    wxInitAllImageHandlers();
    // Errors go to stderr instead of message boxes.
    wxLog::SetActiveTarget(new wxLogStderr());
    const int result = RUN_ALL_TESTS();
    wxTheApp->OnExit();
    wxEntryCleanup();
    return result;
}
