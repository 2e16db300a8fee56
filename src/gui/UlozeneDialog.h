// "Uložená přiznání": the filings kept in the company (VAT returns, EC sales lists, control
// statements) with their kind and description. Each can be previewed as its print, saved
// again as the XML file the tax administration takes, or deleted after a question.
#pragma once

#include <memory>

#include "SeznamDialog.h"

class wxWindowDisabler;

class UlozeneDialog : public SeznamDialog {
 public:
    explicit UlozeneDialog(wxWindow* parent);
    ~UlozeneDialog() override;

    // Shows the list without a modal loop of its own: the other windows of the program are
    // disabled as under a modal dialog, but the print previews opened from the list take
    // the mouse and keyboard (a modal dialog would keep them to itself). Closing the list
    // enables the windows again and deletes it.
    void ukazat();

    // The commands of the buttons and of the context menu, on a saved filing's id.
    void nahled(int id);
    void ulozitJako(int id);
    void smazat(int id);

    // "Přiznání k DPH", "Souhrnné hlášení DPH" or "Kontrolní hlášení DPH" for the stored kinds
    // 0, 1 and 2; empty for any other.
    static wxString druhNazev(int typ);

 protected:
    std::vector<Row> rows() override;

 private:
    std::unique_ptr<wxWindowDisabler> m_disabler;
    // A command on the selected row, as a button and as the same context-menu item.
    static Command prikaz(const char* nazev, std::function<void(int)> run, bool dvojklik = false);
};

// Opens the print preview of a filing of kind `typ` from its XML text. Kinds this program
// cannot print yet are told so; a text that is not a filing of its kind is told why.
void nahledPodani(wxWindow* parent, int typ, const wxString& xml);
