// "Neuhrazené": the unpaid documents of this and earlier years on two tabs, "Faktury" and
// "Pohledávky a závazky", with the open amount and the overdue ones marked; a document can
// be paid or its payments listed from here.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "fakturace/uhradaform.h"

class wxListCtrl;
class wxNotebook;

class NeuhrazeneDialog : public wxDialog {
 public:
    explicit NeuhrazeneDialog(wxWindow* parent);

    void refresh();
    wxNotebook* notebook() const { return m_notebook; }
    wxListCtrl* list(int tab) const { return m_lists[tab]; }
    // The documents of a tab in its order.
    struct Radek {
        DruhDokladu druh;
        int id;
    };
    const std::vector<Radek>& rows(int tab) const { return m_rows[tab]; }
    // "Zaplatit" and "Úhrady" on the selected document of the shown tab.
    void zaplatit();
    void uhrady();

 private:
    const Radek* selected() const;

    wxNotebook* m_notebook = nullptr;
    wxListCtrl* m_lists[2] = {nullptr, nullptr};
    std::vector<Radek> m_rows[2];
};
