// One payment form of invoices ("Zadejte úhradu"): its text and whether it pays in cash.
#pragma once

#include "FormDialog.h"

class wxCheckBox;

class FauhradaDialog : public FormDialog {
 public:
    // `id` of the edited form, -1 for a new one; a new one may start as a copy of `vzor`
    // without its text.
    FauhradaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    // OK: checks the text and stores the form; false with the message shown.
    bool save() override;
    int fauhradaId() const { return m_id; }

 private:
    int m_id;
    wxTextCtrl* m_uhrada = nullptr;
    wxCheckBox* m_pokladnou = nullptr;
};
