// The choice every print of the program offers: a preview on screen, or a PDF file saved
// where the user picks.
#pragma once

#include <wx/string.h>

class lxPrintController;
class wxWindow;

// Asks "Náhled" or "Uložit do PDF" and does it. For the PDF the user chooses the file,
// `fileName` + ".pdf" in the home folder being offered. Returns the path of the written PDF;
// empty after a preview, a cancel or a failure (which is told to the user).
wxString nahledNeboPdf(lxPrintController& print, const wxString& fileName, wxWindow* parent);
