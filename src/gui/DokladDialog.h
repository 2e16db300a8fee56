// The dialog of an invoice, a receivable or a liability: the document's fields, its items and
// its total. A new document's row exists from the moment the dialog opens (the items refer to
// it); Cancel, Escape or closing the window undoes that row with its items, and Cancel of an
// edited document puts its items back as they were. OK reads the fields (typed dates and
// amounts through their one parser each), leaves the checks and the saving to the model's
// document form functions and asks before a changed paid document loses its payments.
// FakturaDialog and ZavpohDialog only say which kind of document it is.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "fakturace/dokladform.h"

class KontaktCompleter;
class lxAmountCtrl;
class lxDateCtrl;
class wxButton;
class wxCheckBox;
class wxChoice;
class wxComboBox;
class wxFlexGridSizer;
class wxListCtrl;
class wxStaticText;
class wxTextCtrl;

class DokladDialog : public wxDialog {
 public:
    ~DokladDialog() override;

    // wxID_OK only when the document was saved; a new document not saved is undone.
    int ShowModal() override;
    // The document's row (a new one's too, while the dialog is open).
    int dokladId() const { return m_form.id; }
    bool isNovy() const { return m_form.novy; }
    // Which of the four kinds of document the dialog edits.
    DruhDokladu druh() const { return m_form.druh; }

    // The fields as the model's form. A date or rate whose text does not read names itself
    // in `chyba` with the message in `zprava` (the first such field in the dialog's order).
    DokladForm readForm(DokladPole* chyba = nullptr, wxString* zprava = nullptr) const;
    // OK: reads and checks the fields, asks about a changed paid document and stores it;
    // false (with the message shown and the focus on the field) when nothing was stored.
    bool save();

    // The buttons under the items.
    void pridatPolozku();
    void upravitPolozku();
    void smazatPolozku();
    void zaokrouhlit();
    void pridatUhradu();
    // "Stáhnout kurz z webu ČNB".
    void onKurzDownload();

    // The items as listed, and the total shown.
    wxListCtrl* polozkyList() const { return m_polozky; }
    wxString celkemText() const;

 protected:
    // `id` -1 opens a new document; `kopie` says that `id` is a fresh copy to finish as new.
    DokladDialog(wxWindow* parent, DruhDokladu druh, int id, bool kopie);

 private:
    void build();
    void buildHlavicka(wxFlexGridSizer* grid);
    void buildDatumy(wxFlexGridSizer* grid);
    void load();
    void refreshPolozky();
    void onUhradaChanged(bool navrhnoutRegistr);
    void onTypChanged();
    void onVystaveniChanged();
    void onDuzpChanged();
    void onProtistranaText();
    void showKontakt(int kontaktId);
    void showhideKurz();
    void chooseRegistr();
    void choosePredkontace();
    void chooseProtistrana();
    void focusField(DokladPole pole);
    int menaId() const;
    int uhradaId() const;
    bool pokladnou() const;
    int selectedPolozka() const;
    // Cancel: a new document goes, an edited one gets its items back.
    void undo();

    DokladForm m_form;
    bool m_saved = false;
    bool m_undone = false;
    bool m_splatnostZmenena = false;
    bool m_polozkyZmeneny = false;      // items added, edited or deleted since the last save
    lxFaPolozkaArray m_puvodniPolozky;  // an edited document's items when the dialog opened
    lxPohybzasobArray m_puvodniPohyby;  // and the stock movements they made
    std::vector<int> m_menaIds;
    std::vector<int> m_uhradaIds;
    std::vector<int> m_polozkaIds;            // the listed items' ids, in list order
    KontaktCompleter* m_completer = nullptr;  // owned by the counterparty field

    wxChoice* m_typ = nullptr;
    wxTextCtrl* m_cislo = nullptr;
    wxTextCtrl* m_vs = nullptr;
    wxTextCtrl* m_ss = nullptr;
    wxTextCtrl* m_ks = nullptr;
    wxTextCtrl* m_popis = nullptr;
    wxTextCtrl* m_protistrana = nullptr;
    wxStaticText* m_kontaktInfo = nullptr;
    wxChoice* m_uhrada = nullptr;
    wxStaticText* m_registrLabel = nullptr;
    wxTextCtrl* m_registr = nullptr;
    wxTextCtrl* m_predkontace = nullptr;
    wxComboBox* m_dphdruh = nullptr;
    wxButton* m_dphdruhButton = nullptr;
    lxDateCtrl* m_vystaveni = nullptr;
    lxDateCtrl* m_duzp = nullptr;
    lxDateCtrl* m_dppd = nullptr;
    lxDateCtrl* m_splatnost = nullptr;
    wxChoice* m_mena = nullptr;
    wxStaticText* m_kurzLabel = nullptr;
    lxAmountCtrl* m_kurz = nullptr;
    wxButton* m_kurzButton = nullptr;
    wxChoice* m_pausal = nullptr;
    wxCheckBox* m_platce = nullptr;
    wxListCtrl* m_polozky = nullptr;
    wxStaticText* m_celkem = nullptr;
};
