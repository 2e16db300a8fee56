// Autocompletion of the counterparty field: the contacts whose name, a word of the name or
// IČ begins with the typed letters, regardless of case and accents, offered as "name, IČ
// number". The field asks which contact an offered text stands for, so that choosing one
// leaves just the name in the field.
#pragma once

#include <wx/textcompleter.h>

#include <vector>

class DbModel;

class KontaktCompleter : public wxTextCompleter {
 public:
    // Reads the contacts once; a dialog lives shorter than any change to them matters.
    explicit KontaktCompleter(DbModel& model);

    bool Start(const wxString& prefix) override;
    wxString GetNext() override;

    // The contact an offered text stands for, or -1 for any other text.
    int kontaktId(const wxString& nabidka) const;
    // The name of that contact.
    wxString nazev(int kontaktId) const;

 private:
    struct Kontakt {
        int id;
        wxString nazev;
        wxString nabidka;  // the offered text
        wxString slozeny;  // the name folded for matching
        wxString ic;
    };
    std::vector<Kontakt> m_kontakty;
    std::vector<size_t> m_shody;
    size_t m_next = 0;
};
