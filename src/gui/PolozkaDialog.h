// One item of an invoice or a receivable/liability: description, unit, quantity, unit price,
// and for a VAT payer's document the rate and whether the price is without VAT. The item's
// VAT and total are shown as they are typed and stored exactly as computed. An invoice's item
// may name a stock item ("Zásoba"), whose movement the item then makes.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "fakturace/polozkaform.h"

class lxAmountCtrl;
class wxCheckBox;
class wxChoice;
class wxStaticText;
class wxTextCtrl;

class PolozkaDialog : public wxDialog {
 public:
    // `doklad` is the document as its dialog has it now (payer or not, tax date); `id` -1
    // adds an item.
    PolozkaDialog(wxWindow* parent, const DokladForm& doklad, int id = -1);

    // The fields as the model's form; false with the message in `zprava` and the field in
    // `pole` when the quantity or the price does not read.
    bool readForm(PolozkaForm* form, wxString* zprava = nullptr, wxWindow** pole = nullptr) const;
    // OK: checks and stores the item; false (message shown, focus on the field) otherwise.
    bool save();
    int polozkaId() const { return m_form.id; }

    // The computed "DPH" and "Celkem" as shown.
    wxString dphText() const;
    wxString celkemText() const;

 private:
    void build();
    void recalculate();
    // A chosen stock item fills the description, unit, price and rate from its card.
    void zasobaChanged();

    DokladForm m_doklad;
    PolozkaForm m_form;
    std::vector<int> m_sazby;
    std::vector<int> m_zasobaIds;  // the stock choice's items after "(žádná)"

    wxChoice* m_zasoba = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_mj = nullptr;
    lxAmountCtrl* m_pocet = nullptr;
    lxAmountCtrl* m_cenamj = nullptr;
    wxChoice* m_sazba = nullptr;
    wxCheckBox* m_bezdph = nullptr;
    wxStaticText* m_dph = nullptr;
    wxStaticText* m_celkem = nullptr;
};
