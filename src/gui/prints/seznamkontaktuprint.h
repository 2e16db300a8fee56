// The list of contacts (customers and suppliers) as a table print.
#pragma once

#include <vector>

#include "table.h"
#include "tableprint.h"

// One contact as the list shows it.
struct KontaktRadek {
    wxString nazev;
    wxString ic;
    wxString dic;
    wxString ulice;
    wxString misto;
    wxString psc;
    wxString telefon;
    wxString email;
};

class SeznamKontaktuPrint : public TablePrint {
 public:
    // `firma` names the company in the header.
    SeznamKontaktuPrint(wxWindow* parent, const wxString& firma, const std::vector<KontaktRadek>& kontakty);

 private:
    Table m_kontakty;
};
