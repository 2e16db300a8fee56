// "Zadejte příjem" / "Zadejte výdaj": one journal entry of a cash register or a bank account,
// added, edited or finishing a copy that the journal page made with copyDenik. The dialog only
// reads its fields into a DenikForm; the checks, the counterparty, the entry and the series
// advance are done by the model's denik form functions.
#pragma once

#include <wx/dialog.h>

#include "denikform.h"

class wxButton;
class wxChoice;
class wxDatePickerCtrl;
class wxSpinCtrl;
class wxStaticText;
class wxTextCtrl;
class wxWindow;

class PrijemVydejDialog : public wxDialog {
 public:
    // `id` is the edited entry (EDIT) or the copy (COPY); ignored when adding.
    PrijemVydejDialog(wxWindow* parent, bool prijem, bool banka, DenikForm::Mode mode = DenikForm::ADD, int id = -1);

    // The fields as the model's form.
    DenikForm readForm() const;
    // OK: checks and stores the entry; false (with the message shown) when it cannot be stored.
    bool save();
    // The stored entry, -1 before a successful save.
    int denikId() const { return m_savedId; }

    // Switches between cash register and bank account, proposing a number of the other series.
    void setBanka(bool banka);
    bool isBanka() const { return m_form.banka; }
    // Shows the rate and the foreign amount only for a foreign currency.
    void showhideKurz();
    // The date changed: takes the stored rate of the day for a foreign currency.
    void onDatumChanged();
    // "Stáhnout kurz z webu ČNB".
    void onKurzDownload();
    // "Přidat hodnotu paušálních výdajů".
    void onPridatPausal();

 private:
    void build();
    void load(const Denik& denik);
    void fillPredkontace();
    void recalculate(ZmenaCastky zmena);
    void chooseRegistr();
    void choosePredkontace();
    void chooseProtistrana();
    int menaId() const;
    void setAmount(wxTextCtrl* field, double value);

    DenikForm m_form;
    int m_savedId = -1;
    bool m_calculating = false;
    std::vector<int> m_menaIds;

    wxChoice* m_typ = nullptr;
    wxDatePickerCtrl* m_datum = nullptr;
    wxTextCtrl* m_cislo = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_reference = nullptr;
    wxStaticText* m_registrLabel = nullptr;
    wxTextCtrl* m_registr = nullptr;
    wxButton* m_registrButton = nullptr;
    wxTextCtrl* m_predkontace = nullptr;
    wxTextCtrl* m_castka = nullptr;
    wxChoice* m_mena = nullptr;
    wxStaticText* m_castkaCiziLabel = nullptr;
    wxTextCtrl* m_castkaCizi = nullptr;
    wxStaticText* m_kurzLabel = nullptr;
    wxTextCtrl* m_kurz = nullptr;
    wxButton* m_kurzButton = nullptr;
    wxStaticText* m_vypisLabel = nullptr;
    wxSpinCtrl* m_vypis = nullptr;
    wxChoice* m_pausal = nullptr;
    wxTextCtrl* m_protistrana = nullptr;
};
