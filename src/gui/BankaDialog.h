// One bank account: code, description, account number and bank code with the IBAN computed
// from them ("Spočítat IBAN"), the BIC filled from the chosen bank, and the currency.
#pragma once

#include "FormDialog.h"

class BankaDialog : public FormDialog {
 public:
    // `id` of the edited account, -1 for a new one; a new one may start as a copy of
    // `vzor` without its code.
    BankaDialog(wxWindow* parent, int id = -1, int vzor = -1);
    bool save() override;
    int bankaId() const { return m_id; }

    // "Spočítat IBAN".
    void spocitatIban();
    // The "..." of "Kód banky": the list "Vyberte banku"; the chosen code brings its BIC.
    void vybratBanku();

 private:
    int m_id;
    wxTextCtrl* m_zkratka = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_cislo = nullptr;
    wxTextCtrl* m_kod = nullptr;
    wxTextCtrl* m_iban = nullptr;
    wxTextCtrl* m_bic = nullptr;
};
