// One average price of a fuel with the days it is valid from and to.
#pragma once

#include "FormDialog.h"

class lxAmountCtrl;
class lxDateCtrl;

class CenaPhmDialog : public FormDialog {
 public:
    // `id` of the edited price, -1 for a new one of the fuel `phmid`; a new one may start as a
    // copy of `vzor`, a year later.
    CenaPhmDialog(wxWindow* parent, int phmid, int id = -1, int vzor = -1);
    bool save() override;

 private:
    int m_id;
    int m_phmid;
    lxAmountCtrl* m_cena = nullptr;
    lxDateCtrl* m_od = nullptr;
    lxDateCtrl* m_do = nullptr;
};
