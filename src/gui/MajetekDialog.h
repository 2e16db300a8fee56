// An asset: number, name, description, type, acquisition date and price, depreciation group
// and method, disposal; below the fields the whole depreciation plan to the end, recomputed
// as the fields change (stored years as they are, the others as they will be computed).
#pragma once

#include "FormDialog.h"
#include "majetek/majetekform.h"

class lxAmountCtrl;
class lxDateCtrl;
class wxCheckBox;
class wxChoice;
class wxListCtrl;

class MajetekDialog : public FormDialog {
 public:
    // id > 0 edits that asset; vzor > 0 starts a new asset from that one (a copy).
    explicit MajetekDialog(wxWindow* parent, int id = -1, int vzor = -1);
    bool save() override;
    int id() const { return m_id; }
    wxListCtrl* plan() const { return m_plan; }

 private:
    // The form as the fields say; false with the message of a field that does not read.
    bool readForm(MajetekForm* form, wxString* zprava, wxWindow** pole) const;
    void updatePlan();
    void updateVyrazeni();

    int m_id;
    wxTextCtrl* m_cislo = nullptr;
    wxTextCtrl* m_nazev = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxChoice* m_typ = nullptr;
    lxDateCtrl* m_porizen = nullptr;
    lxAmountCtrl* m_cena = nullptr;
    wxChoice* m_skupina = nullptr;
    wxChoice* m_odpis = nullptr;
    wxCheckBox* m_vyrazen = nullptr;
    lxDateCtrl* m_datumvyrazeni = nullptr;
    wxListCtrl* m_plan = nullptr;
    std::vector<int> m_skupinaIds;
};
