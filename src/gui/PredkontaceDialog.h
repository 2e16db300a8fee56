// One pre-posting: code, description, direction and the journal column it books into (only
// columns of the same direction are offered).
#pragma once

#include "FormDialog.h"

#include <vector>

class wxCheckBox;
class wxChoice;

class PredkontaceDialog : public FormDialog {
 public:
    // `id` of the edited pre-posting (or of a fresh copy), -1 for a new one.
    PredkontaceDialog(wxWindow* parent, int id = -1);
    bool save() override;
    int predkontaceId() const { return m_id; }

 private:
    void fillSloupce(int selected);

    int m_id;
    std::vector<int> m_sloupce;
    wxTextCtrl* m_zkratka = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxCheckBox* m_prijem = nullptr;
    wxChoice* m_sloupec = nullptr;
};
