// The journal in short: date, number, description and the signed amount of each entry.
#pragma once

#include <vector>

#include "listdenikprint.h"

class SimpleDenikPrint : public TablePrint {
 public:
    SimpleDenikPrint(wxWindow* parent, const wxString& nadpis, const wxString& firma, int rok,
                     const std::vector<DenikRadek>& radky);

 private:
    Table m_denik;
};
