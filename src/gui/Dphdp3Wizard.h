// "Průvodce přiznáním k DPH": the period, the kind of return, then print or export. The
// amounts are computed by dp3::fillData from the documents of the period when the user leaves
// the page of the kind; finishing offers to save the return among the saved filings.
#pragma once

#include <wx/wizard.h>

#include "dph/dphdp3fill.h"

class DbModel;
class ObdobiPanel;
class PodaniKonecPage;
class PodaniUvodPage;
class lxAmountCtrl;
class lxDateCtrl;
class wxChoice;
class wxRadioButton;
class wxTextCtrl;
class Dphdp3Wizard;

class Dp3Page2 : public wxWizardPageSimple {
 public:
    Dp3Page2(Dphdp3Wizard* parent, DbModel* model);
    // Reads the page into the answers; false with the focus on the field and its message shown.
    bool read(Dp3Zadani* zadani);
    DphObdobi obdobi() const;
    // "", "Q" or "M"; empty also while the period is not the year's last.
    wxString kodZo() const;
    void OnKoefP20Vypor();

 private:
    void enableKodZo();
    Dphdp3Wizard* m_wizard;
    DbModel* m_model;
    ObdobiPanel* m_obdobi;
    lxDateCtrl* m_datum;
    wxChoice* m_kodZo;
    lxAmountCtrl* m_koefNov;
    lxAmountCtrl* m_koefVypor;
    lxAmountCtrl* m_vyporOdp;
};

class Dp3Page3 : public wxWizardPageSimple {
 public:
    Dp3Page3(wxWizard* parent, DbModel* model);
    bool read(Dp3Zadani* zadani);
    // Offers the saved regular returns of the year as the base of a supplementary one.
    void nactiUlozena(int rok);
    wxString forma() const;

 private:
    void enableDodatecne();
    DbModel* m_model;
    wxRadioButton* m_formy[4];
    wxChoice* m_ulozene;
    std::vector<int> m_ulozeneIds;
    lxDateCtrl* m_dzjist;
    wxTextCtrl* m_duvod;
};

class Dphdp3Wizard : public wxWizard {
 public:
    Dphdp3Wizard(wxWindow* parent, DbModel* model);
    // Runs the wizard from its first page; true when it was finished.
    bool run();

    wxWizardPageSimple* firstPage() const;
    Dp3Page2* page2() const { return m_page2; }
    Dp3Page3* page3() const { return m_page3; }
    PodaniKonecPage* page4() const { return m_page4; }
    const Dphdp3& dphdp3() const { return m_dp3; }
    const Dp3Zadani& zadani() const { return m_zadani; }

    // Computes the return from the answers of pages 2 and 3; false with a message shown.
    bool fillData();
    // The current return's amounts for the settlement coefficient (as fillData computes them).
    Dphdp3 fillDataForKoefP20Vypor(double koefP20Nov);
    // Asks "Uložit daňové přiznání?" and saves the return on yes.
    void OnFinished();

 private:
    void onPageChanging(wxWizardEvent& event);

    DbModel* m_model;
    Dphdp3 m_dp3;
    Dp3Zadani m_zadani;
    PodaniUvodPage* m_page1;
    Dp3Page2* m_page2;
    Dp3Page3* m_page3;
    PodaniKonecPage* m_page4;
};
