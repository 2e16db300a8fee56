// The home page on paper: the company, its number and accounting period, and the summaries
// of the year as text, two side by side, on one page.
#pragma once

#include <vector>

#include "document.h"
#include "documentprint.h"

struct Prehled {
    wxString firma;
    wxString ic;
    wxString obdobi;  // "účetní období 2024"
    // Each summary is a heading line followed by its lines ("Příjmy:\nDaňové: 0.00 Kč\n...").
    std::vector<wxString> souhrny;
};

class PrehledPrint : public DocumentPrint {
 public:
    PrehledPrint(wxWindow* parent, const Prehled& prehled);

 private:
    Document m_prehled;
};
