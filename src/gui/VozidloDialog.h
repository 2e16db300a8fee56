// One vehicle of the vehicle log: its name, registration plate, kind (for the per-km
// allowance), fuel with its consumption per 100 km, and whether it is a private vehicle used
// for business.
#pragma once

#include <vector>

#include "FormDialog.h"

class lxAmountCtrl;
class wxCheckBox;

class VozidloDialog : public FormDialog {
 public:
    // `id` of the edited vehicle, -1 for a new one; a new one may start as a copy of `vzor`
    // without its plate.
    VozidloDialog(wxWindow* parent, int id = -1, int vzor = -1);
    bool save() override;
    int vozidloId() const { return m_id; }

 private:
    int m_id;
    wxTextCtrl* m_jmeno = nullptr;
    wxTextCtrl* m_rz = nullptr;
    wxChoice* m_druh = nullptr;
    wxChoice* m_phm = nullptr;
    lxAmountCtrl* m_spotreba = nullptr;
    wxCheckBox* m_soukrome = nullptr;
    std::vector<int> m_druhIds;
    std::vector<int> m_phmIds;
};
