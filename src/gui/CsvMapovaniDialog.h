// "Mapování sloupců CSV": how an account's CSV statements are laid out (separator, encoding,
// header lines and which column holds the date, the amount, the symbol, the counter-account
// and the message). Saved once per account in the program's settings.
#pragma once

#include "FormDialog.h"
#include "vypis/csvvypis.h"

class wxChoice;
class wxSpinCtrl;

class CsvMapovaniDialog : public FormDialog {
 public:
    // `klic` names the company and account the mapping is saved under.
    CsvMapovaniDialog(wxWindow* parent, const wxString& klic, const vypis::CsvMapovani& mapovani);

    bool save() override;
    const vypis::CsvMapovani& mapovani() const { return m_mapovani; }

 private:
    wxString m_klic;
    vypis::CsvMapovani m_mapovani;
    wxChoice* m_oddelovac = nullptr;
    wxChoice* m_kodovani = nullptr;
    std::vector<wxSpinCtrl*> m_sloupce;
};
