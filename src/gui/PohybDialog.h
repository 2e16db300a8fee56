// One stock movement of an item: a receipt "Příjem na sklad" or an issue "Výdej ze skladu",
// with its date, quantity and unit cost. Its number comes from the PR or VY series when it
// is stored.
#pragma once

#include "FormDialog.h"
#include "sklad/skladform.h"

class lxAmountCtrl;
class lxDateCtrl;
class wxStaticText;

class PohybDialog : public FormDialog {
 public:
    // A new movement of item `zasobaid` (`id` -1), or the movement `id` to edit.
    PohybDialog(wxWindow* parent, int zasobaid, bool prijemka, int id = -1);
    // OK: reads the fields, checks and stores; false with the message shown and the focus on
    // the field to fix.
    bool save() override;
    int pohybId() const { return m_form.id; }

 private:
    void navrhnoutCenu();

    skladform::PohybForm m_form;
    wxString m_navrh;  // the unit cost last offered for an issue, as shown
    wxStaticText* m_cislo = nullptr;
    lxDateCtrl* m_datum = nullptr;
    lxAmountCtrl* m_pocet = nullptr;
    lxAmountCtrl* m_cenamj = nullptr;
};
