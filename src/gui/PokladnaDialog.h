// One cash register: code, description and currency.
#pragma once

#include "FormDialog.h"

class PokladnaDialog : public FormDialog {
 public:
    // `id` of the edited register, -1 for a new one; a new one may start as a copy of
    // `vzor` without its code.
    PokladnaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    // OK: checks the code and stores the register; false with the message shown.
    bool save() override;
    int pokladnaId() const { return m_id; }

 private:
    int m_id;
    wxTextCtrl* m_zkratka = nullptr;
    wxTextCtrl* m_popis = nullptr;
};
