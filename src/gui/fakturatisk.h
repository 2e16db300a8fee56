// Printing an issued invoice from the program: the choice of the layout ("Typ šablony") and
// the print, preview, PDF and e-mail of the invoice pages.
#pragma once

#include <wx/string.h>

#include <memory>

class DocumentPrint;
class wxWindow;

// Asks "Typ šablony" (the built-in layout, the last template used when its file still
// exists, or a template file picked in "Otevřít šablonu") and builds the invoice's print.
// Null when the user cancels, or when the invoice or the template cannot be read (told).
std::unique_ptr<DocumentPrint> vyberTiskFaktury(wxWindow* parent, int fakturaId);

// The invoice as a PDF without a file dialog, for an e-mail attachment: the layout is asked
// for, the title is "Faktura č. <number>". Empty when cancelled or failed.
wxString fakturaPdf(wxWindow* parent, int fakturaId);

// The invoice's print from its page: the layout is asked for, then preview or PDF.
void tiskFaktury(wxWindow* parent, int fakturaId);
