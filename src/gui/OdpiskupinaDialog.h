// A depreciation group: its description, the number of years and the straight-line rates and
// accelerated coefficients of the first year, the later years and after an increase of the price.
#pragma once

#include <array>

#include "FormDialog.h"

class lxAmountCtrl;

class OdpiskupinaDialog : public FormDialog {
 public:
    OdpiskupinaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    bool save() override;

 private:
    int m_id;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_odpisovat = nullptr;
    std::array<lxAmountCtrl*, 6> m_sazby{};
};
