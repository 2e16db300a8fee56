// "Úhrada faktury" / "Úhrada pohledávky" / "Úhrada závazku": one payment of a document from a
// cash register or a bank account, with the amount in crowns or, for a foreign document, in
// its currency at a rate. The fields go into an UhradaForm; checking and writing the journal
// entries and their links is the model's (fakturace/uhradaform.h).
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "fakturace/uhradaform.h"

class lxAmountCtrl;
class lxDateCtrl;
class wxButton;
class wxChoice;
class wxSpinCtrl;
class wxStaticText;
class wxTextCtrl;

class UhradaDialog : public wxDialog {
 public:
    UhradaDialog(wxWindow* parent, const PlacenyDoklad& doklad);

    // The fields as the model's form; a field that does not read names itself in `zprava`.
    UhradaForm readForm(UhradaPole* chyba = nullptr, wxString* zprava = nullptr) const;
    // OK: reads, checks and writes the payment; false with the message shown and the focus on
    // the field when nothing was written.
    bool save();
    // The journal entries the payment wrote.
    const std::vector<int>& denikIds() const { return m_denikIds; }

 private:
    void build();
    void setBanka(bool banka);
    void recalculate(bool zCizi);
    void onKurzDownload();
    void chooseRegistr();
    void focusField(UhradaPole pole);

    PlacenyDoklad m_doklad;
    UhradaForm m_form;
    std::vector<int> m_denikIds;

    wxChoice* m_typ = nullptr;
    wxStaticText* m_registrLabel = nullptr;
    wxTextCtrl* m_registr = nullptr;
    wxStaticText* m_vypisLabel = nullptr;
    wxSpinCtrl* m_vypis = nullptr;
    lxDateCtrl* m_datum = nullptr;
    lxAmountCtrl* m_castka = nullptr;
    lxAmountCtrl* m_castkaCizi = nullptr;
    lxAmountCtrl* m_kurz = nullptr;
    wxChoice* m_pausal = nullptr;
};
