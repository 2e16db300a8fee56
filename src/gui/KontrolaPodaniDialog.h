// "Kontrola podání": before filing, the user picks a period and sees where the VAT return and
// the control statement computed from the books disagree, each difference with the documents
// behind it, and the documents the control statement cannot place. Any document in the list
// opens in its own dialog; after it is saved the check runs again. The comparison itself is
// kontrola::zkontrolovat (GUI-free); the dialog only asks for the period and shows the result.
#pragma once

#include <wx/dialog.h>

#include <vector>

#include "dph/kontrola.h"

class ObdobiPanel;
class wxButton;
class wxListCtrl;
class wxListEvent;
class wxStaticText;

class KontrolaPodaniDialog : public wxDialog {
 public:
    explicit KontrolaPodaniDialog(wxWindow* parent);

    ObdobiPanel* obdobiPanel() const { return m_obdobi; }
    wxListCtrl* list() const { return m_list; }

    // "Zkontrolovat": checks the chosen period and lists the result; false (with the reason
    // told) when the period does not read or no company is open.
    bool zkontrolovat();
    // "Otevřít doklad": the selected row's document in its own dialog; true when it was saved
    // (the check has then run again).
    bool otevritDoklad();
    // "Export CSV": the shown lines to the file the user chooses; its path, else empty.
    wxString exportCsv();

    // One line of the list: a difference or a group heading, a document, or the line saying
    // that all agrees. Document lines know their table ("FV", "FP", "PO", "ZA") and row.
    struct Radek {
        enum class Druh { SKUPINA, DOKLAD, SHODA };
        Druh druh = Druh::SKUPINA;
        wxArrayString sloupce;  // as shown: one text a column
        wxArrayString csv;      // the same with amounts without thousands groups
        wxString popis;         // the whole sentence shown under the list when selected
        wxString zdroj;
        int id = 0;
    };
    const std::vector<Radek>& radky() const { return m_radky; }

 private:
    void zobrazit(const kontrola::Vysledek& vysledek);
    void addRadek(Radek radek);
    void onSelection();
    int selectedRow() const;
    // The width a column needs for `text`, bold for headings.
    int sirkaTextu(const wxString& text, bool tucne) const;

    ObdobiPanel* m_obdobi = nullptr;
    wxListCtrl* m_list = nullptr;
    wxStaticText* m_popis = nullptr;
    wxButton* m_otevrit = nullptr;
    wxButton* m_export = nullptr;
    std::vector<Radek> m_radky;
};
