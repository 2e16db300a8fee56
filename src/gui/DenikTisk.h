// "Tisk" of the journal, cash and bank pages: offers the journal list, its short form, the
// journal with all columns, the cash book or bank book and the receipt of the selected entry,
// gathers the rows from the open company and hands the chosen print to the preview or PDF.
#pragma once

#include <wx/arrstr.h>
#include <wx/string.h>

#include <vector>

class DbModel;
class lxPrintController;
class wxWindow;

class DenikTisk {
 public:
    enum Tisk { SEZNAM = 0, STRUCNY, UPLNY, KNIHA, DOKLAD };

    // `nav` is the page (NAV_DENIK, NAV_POKLADNA, NAV_BANKA), `ids` its shown entries in the
    // shown order and `vybrany` the selected entry (-1 for none).
    DenikTisk(wxWindow* parent, int nav, std::vector<int> ids, int vybrany);

    // The prints offered on this page, in the order of Tisk.
    wxArrayString nabidka() const;
    // Asks which print, then preview or PDF. Returns the written PDF's path or an empty text.
    wxString run();
    // Builds one print and offers preview or PDF.
    wxString run(Tisk tisk);

 private:
    wxString kniha(DbModel& model);
    wxString doklad(DbModel& model);

    wxWindow* m_parent;
    int m_nav;
    std::vector<int> m_ids;
    int m_vybrany;
};
