// "Úhrady faktury %s" / "Úhrady pohledávky %s" / "Úhrady závazku %s": the journal entries that
// pay one document, with adding a payment and deleting one (the entry goes, and with it the
// link, so the document is open again by that amount).
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "fakturace/uhradaform.h"

class wxListCtrl;

class UhradyDialog : public wxDialog {
 public:
    UhradyDialog(wxWindow* parent, DruhDokladu druh, int id);

    void refresh();
    void addUhrada();
    void deleteUhrada(int denikId);
    wxListCtrl* list() const { return m_list; }
    // The journal entries listed, in the list's order.
    const std::vector<int>& denikIds() const { return m_ids; }

 private:
    PlacenyDoklad doklad() const;

    DruhDokladu m_druh;
    int m_id;
    wxListCtrl* m_list = nullptr;
    std::vector<int> m_ids;
};
