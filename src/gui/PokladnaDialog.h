// One cash register: code, description and currency.
#pragma once

#include <wx/dialog.h>

#include <vector>

class wxChoice;
class wxTextCtrl;

class PokladnaDialog : public wxDialog {
 public:
    // `id` of the edited register, -1 for a new one; a new one may start as a copy of
    // `vzor` without its code.
    PokladnaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    // OK: checks the code and stores the register; false with the message shown.
    bool save();
    int pokladnaId() const { return m_id; }

 private:
    int m_id;
    std::vector<int> m_menaIds;
    wxTextCtrl* m_zkratka = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxChoice* m_mena = nullptr;
};
