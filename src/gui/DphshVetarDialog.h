// A row of the EC sales list: the customer's country and VAT id, the code of supply, the
// number of supplies and their value; in a follow-up list also whether the row cancels the
// same row of the lists filed before. The dialog writes into the list it was given.
#pragma once

#include "FormDialog.h"

class Dphshv;
class lxAmountCtrl;
class wxCheckBox;

class DphshVetarDialog : public FormDialog {
 public:
    // Edits row `index` of the list, or adds a row when it is -1.
    DphshVetarDialog(wxWindow* parent, Dphshv& hlaseni, int index);
    bool save() override;

 private:
    Dphshv& m_hlaseni;
    int m_index;
    wxCheckBox* m_storno;
    wxTextCtrl* m_stat;
    wxTextCtrl* m_cislo;
    wxChoice* m_kod;
    wxTextCtrl* m_pocet;
    lxAmountCtrl* m_hodnota;
};
