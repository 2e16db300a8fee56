// "Nastavení přiznání": the taxpayer record every filing copies into its taxpayer row, in two
// grids, the taxpayer and the signing representative. The municipality, tax office, workplace
// and main economic activity are chosen from the tax administration's code lists; without
// those files the choices stay empty and the rest of the form still works.
#pragma once

#include <wx/dialog.h>

#include <map>
#include <vector>

#include "dbmodel.h"
#include "dph/ciselniky.h"

class lxDateCtrl;
class wxChoice;
class wxFlexGridSizer;
class wxStaticText;
class wxTextCtrl;

class PriznaniDialog : public wxDialog {
 public:
    PriznaniDialog(wxWindow* parent, DbModel* model);

    // Checks the form (the first refusal is shown, the dialog stays open) and stores it.
    bool save();
    // The record as the form says it.
    Priznani readForm() const;

    // Opens the municipality picker and takes the chosen town with its postcode.
    void chooseObec();
    // Opens the activity picker and takes the chosen activity.
    void chooseOkec();

 private:
    wxTextCtrl* addText(wxWindow* box, wxFlexGridSizer* grid, const char* label, const char* column, int width,
                        const char* tooltip = nullptr);
    void addRow(wxWindow* box, wxFlexGridSizer* grid, const char* label, wxWindow* control, wxWindow* button = nullptr);
    void fillForm(const Priznani& p);
    void fillPracufo(int c_pracufo);
    void showOkecName();
    void enableZastupce();
    int ufoKod() const;
    int pracufoKod() const;
    wxWindow* control(const wxString& column) const;

    DbModel* m_model;
    Priznani m_start;
    std::vector<lxutils::Ufo> m_ufo;
    std::vector<lxutils::Pracufo> m_pracufoAll;
    std::vector<lxutils::Pracufo> m_pracufo;  // the workplaces of the chosen office
    std::vector<lxutils::Okec> m_okec;
    std::map<wxString, wxWindow*> m_controls;  // by the column they edit
    wxChoice* m_ufoChoice = nullptr;
    wxChoice* m_pracufoChoice = nullptr;
    wxChoice* m_zastTyp = nullptr;
    wxChoice* m_zastKod = nullptr;
    lxDateCtrl* m_datumNarozeni = nullptr;
    wxStaticText* m_okecNazev = nullptr;
};
