// The wizard that creates a company: its identity, its address and contacts, and its first
// accounting year. On Finish it creates the company's database, lists it in the settings
// and leaves it open. Run at the first start (no company yet) and from "Přidat firmu". At the
// first start it also offers the demo company instead, made and opened on Finish.
#pragma once

#include <wx/wizard.h>

class FirmaPanel;
class wxRadioButton;
class wxSpinCtrl;
class wxWizardPageSimple;

class FirmaWizard : public wxWizard {
 public:
    FirmaWizard(wxWindow* parent, bool prvniSpusteni);

    // Shows the wizard; true when a company was created and is now open. When it was not,
    // the company open before stays open.
    bool run();

 private:
    void onPageChanging(wxWizardEvent& event);
    wxString check() const;
    // The first start's choice of the demo company instead of a new one.
    bool ukazka() const;
    void onVolba();
    bool vytvorUkazku();

    bool m_prvniSpusteni;
    wxWizardPageSimple* m_firmaPage;
    wxWizardPageSimple* m_adresaPage;
    wxWizardPageSimple* m_obdobiPage;
    FirmaPanel* m_identity;
    FirmaPanel* m_adresa;
    wxSpinCtrl* m_rok;
    wxRadioButton* m_nova = nullptr;
    wxRadioButton* m_ukazka = nullptr;
};
