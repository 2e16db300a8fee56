// "Zadejte příjem" / "Zadejte výdaj": one journal entry of a cash register or a bank account,
// added, edited or finishing a copy that the journal page made with copyDenik. The dialog reads
// its fields into a DenikForm (typed amounts, rate and date through the one parser of each),
// asks before a cash register goes below zero, and leaves the checks, the counterparty, the
// entry and the series advance to the model's denik form functions.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "denikform.h"

class lxAmountCtrl;
class lxDateCtrl;
class wxButton;
class wxChoice;
class wxSpinCtrl;
class wxStaticText;
class wxTextCtrl;
class wxWindow;

class PrijemVydejDialog : public wxDialog {
 public:
    // `id` is the edited entry (EDIT) or the copy (COPY); ignored when adding.
    PrijemVydejDialog(wxWindow* parent, bool prijem, bool banka, DenikForm::Mode mode = DenikForm::ADD, int id = -1);

    // The fields as the model's form. A field whose text does not read leaves its value at 0
    // and, when asked, names itself in `chyba` with the message in `zprava` (the first such
    // field in the order of the dialog).
    DenikForm readForm(DenikPole* chyba = nullptr, wxString* zprava = nullptr) const;
    // OK: reads and checks the fields, asks before a cash register goes below zero, and stores
    // the entry; false (with the message shown and the focus on the field) when it is not stored.
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
    void recalculate(ZmenaCastky zmena);
    void chooseRegistr();
    void choosePredkontace();
    void chooseProtistrana();
    int menaId() const;
    // Puts the focus on the field a failed check names, with its text selected.
    void focusField(DenikPole pole);
    // Lays the fields out again after some appeared or vanished, growing the dialog so that
    // every field keeps its natural size.
    void fitFields();

    DenikForm m_form;
    int m_savedId = -1;
    std::vector<int> m_menaIds;

    wxChoice* m_typ = nullptr;
    lxDateCtrl* m_datum = nullptr;
    wxTextCtrl* m_cislo = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_reference = nullptr;
    wxStaticText* m_registrLabel = nullptr;
    wxTextCtrl* m_registr = nullptr;
    wxButton* m_registrButton = nullptr;
    wxTextCtrl* m_predkontace = nullptr;
    lxAmountCtrl* m_castka = nullptr;
    wxChoice* m_mena = nullptr;
    wxStaticText* m_castkaCiziLabel = nullptr;
    lxAmountCtrl* m_castkaCizi = nullptr;
    wxStaticText* m_kurzLabel = nullptr;
    lxAmountCtrl* m_kurz = nullptr;
    wxButton* m_kurzButton = nullptr;
    wxStaticText* m_vypisLabel = nullptr;
    wxSpinCtrl* m_vypis = nullptr;
    wxChoice* m_pausal = nullptr;
    wxTextCtrl* m_protistrana = nullptr;
};
