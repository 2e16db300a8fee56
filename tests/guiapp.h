// Starting a wxApp with a display for GUI tests. Under a loaded virtual X server the first
// connection now and then fails; the start is retried a few times before giving up.
#pragma once

#include <wx/app.h>
#include <wx/init.h>
#include <wx/utils.h>

#include <cstdio>

inline bool startGuiApp(int& argc, char** argv) {
    for (int attempt = 0; attempt < 5; ++attempt) {
        if (wxEntryStart(argc, argv) && wxTheApp && wxTheApp->CallOnInit()) return true;
        wxEntryCleanup();
        wxMilliSleep(300);
    }
    std::fprintf(stderr, "GUI tests need a display (run them under xvfb-run -a).\n");
    return false;
}
