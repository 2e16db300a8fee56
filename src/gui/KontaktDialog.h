// KontaktDialog: one contact of the address book with its address ("Název", "Jméno", "IČ",
// "DIČ", "E-mail", "Ulice", "Č.p.", "Místo", "PSČ", "Země"). OK stores both together.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "records.h"

class wxTextCtrl;

class KontaktDialog : public wxDialog {
 public:
    // -1 opens an empty form for a new contact, otherwise the stored contact.
    explicit KontaktDialog(wxWindow* parent, int kontaktId = -1);

    void setKontakt(const Kontakt& kontakt, const Adresa& adresa);
    // The contact and address as the form holds them.
    Kontakt kontakt() const;
    Adresa adresa() const;
    // Checks the form and stores it. False, after telling the user why, when the name is
    // empty or the database refused the write; also when the IČ, DIČ or e-mail fails its
    // check and the user, asked, does not want it saved anyway.
    bool save();
    // The stored contact's id (a new one after its first save), or -1.
    int kontaktId() const { return m_kontakt.id(); }

 private:
    enum Field { NAZEV, JMENO, IC, DIC, EMAIL, ULICE, CP, MISTO, PSC, ZEME, FIELDS };
    wxString value(Field field) const;

    std::vector<wxTextCtrl*> m_fields;
    Kontakt m_kontakt;
};
