// The form of a code-list row that is just a name: a driver, a fuel, a kind of vehicle. The
// list that opens it says how the row is read and stored.
#pragma once

#include <functional>

#include "FormDialog.h"

class JmenoDialog : public FormDialog {
 public:
    // Stores the name: `id` of the row, `novy` for a new one; false when the model refused.
    using Ulozit = std::function<bool(int id, const wxString& jmeno, bool novy)>;

    // `id` of the edited row (0 is a row too), -1 for a new one that gets `novyId`; `jmeno` is
    // shown at first.
    JmenoDialog(wxWindow* parent, const wxString& title, int id, int novyId, const wxString& jmeno, Ulozit ulozit);
    bool save() override;

 private:
    int m_id;
    int m_novyId;
    Ulozit m_ulozit;
    wxTextCtrl* m_jmeno = nullptr;
};
