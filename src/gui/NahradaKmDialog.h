// The basic per-km allowance of a kind of vehicle in one year.
#pragma once

#include "FormDialog.h"

class lxAmountCtrl;
class wxSpinCtrl;

class NahradaKmDialog : public FormDialog {
 public:
    // `id` of the edited allowance, -1 for a new one of the kind `druhvozidlaid`; a new one may
    // start as a copy of `vzor` for the year after.
    NahradaKmDialog(wxWindow* parent, int druhvozidlaid, int id = -1, int vzor = -1);
    bool save() override;

 private:
    int m_id;
    int m_druh;
    wxSpinCtrl* m_rok = nullptr;
    lxAmountCtrl* m_nahrada = nullptr;
};
