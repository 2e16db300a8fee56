#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/init.h>
#include <wx/log.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    wxInitializer init;
    if (!init.IsOk()) return 1;
    // A console application object: no cast to wxApp (which it is not).
    wxAppConsole::GetInstance()->SetAppName("evida");
    // Expected SQL failures are traced, not printed; warnings of the model stay visible.
    wxLog::SetActiveTarget(new wxLogStderr());
    return RUN_ALL_TESTS();
}
