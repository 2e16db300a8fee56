// One stock item: its number from the ZB series, name, description, unit, warehouse,
// valuation method, unit price with or without VAT and rate, the minimum the stock page warns
// under, and below them the item's movements with the running state and the commands to
// receive, issue, edit and delete them.
#pragma once

#include <wx/dialog.h>

#include <vector>

class SkladChoice;
class lxAmountCtrl;
class wxCheckBox;
class wxChoice;
class wxListCtrl;
class wxStaticText;
class wxTextCtrl;

class ZasobaDialog : public wxDialog {
 public:
    // `id` of the edited item, -1 for a new one; a new one may start as a copy of `vzor`.
    ZasobaDialog(wxWindow* parent, int id = -1, int vzor = -1);

    // OK: checks and stores the item; false with the message shown.
    bool save();
    int zasobaId() const { return m_id; }
    // The movement commands on the movement selected in the list (a new item is stored first).
    void prijem();
    void vydej();
    void upravitPohyb();
    void smazatPohyb();
    wxListCtrl* pohyby() const { return m_pohyby; }

 private:
    void build();
    void refreshPohyby();
    int selectedPohyb() const;
    // Movements made by an invoice or a stock-taking change only there; false with the reason shown.
    bool zmenitelny(int id);

    int m_id;
    std::vector<int> m_sazby;
    std::vector<int> m_pohybIds;

    wxStaticText* m_cislo = nullptr;
    wxTextCtrl* m_nazev = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_mj = nullptr;
    SkladChoice* m_sklad = nullptr;
    wxChoice* m_ocenovani = nullptr;
    lxAmountCtrl* m_cenamj = nullptr;
    wxCheckBox* m_bezdph = nullptr;
    wxChoice* m_sazba = nullptr;
    lxAmountCtrl* m_minimum = nullptr;
    wxListCtrl* m_pohyby = nullptr;
};
