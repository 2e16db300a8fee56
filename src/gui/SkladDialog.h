// One warehouse: name, description and the valuation method its new items start with.
#pragma once

#include "FormDialog.h"

class SkladDialog : public FormDialog {
 public:
    // `id` of the edited warehouse, -1 for a new one; a new one may start as a copy of
    // `vzor` without its name.
    SkladDialog(wxWindow* parent, int id = -1, int vzor = -1);
    // OK: checks the name and stores the warehouse; false with the message shown.
    bool save() override;
    int skladId() const { return m_id; }

 private:
    int m_id;
    wxTextCtrl* m_nazev = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxChoice* m_ocenovani = nullptr;
};
