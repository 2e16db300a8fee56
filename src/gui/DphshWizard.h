// "Průvodce souhrnným hlášením VIES": the period and the day, the kind of list (a follow-up
// list starts from a saved one), the rows to check and edit, then print or export. The rows
// are computed by shv::fillData when the user leaves the page of the kind; finishing offers
// to save the list among the saved filings.
#pragma once

#include <wx/wizard.h>

#include <vector>

#include "dph/dphshvfill.h"
#include "podanipages.h"

class DbModel;
class ObdobiPanel;
class lxDateCtrl;
class wxChoice;
class wxListCtrl;
class wxRadioButton;
class DphshWizard;

// The introduction, the period (a month or a quarter of the company's year) and the day the
// list is filled in.
class ShPage1 : public PodaniUvodPage {
 public:
    ShPage1(wxWizard* parent, DbModel* model);
    // Reads the page into the answers; false with the focus on the field and its message shown.
    bool read(ShZadani* zadani);

 private:
    ObdobiPanel* m_obdobi;
    lxDateCtrl* m_datum;
};

// The kind: a list, or a follow-up list to one of the saved lists.
class ShPage2 : public wxWizardPageSimple {
 public:
    ShPage2(wxWizard* parent, DbModel* model);
    // Offers the saved lists, the one of `obdobi` first chosen when there is one.
    void nactiUlozena(const DphObdobi& obdobi);
    // A follow-up list takes the period of the list it follows.
    bool read(ShZadani* zadani);
    wxString forma() const;

 private:
    void enableNasledne();
    DbModel* m_model;
    wxRadioButton* m_radne;
    wxRadioButton* m_nasledne;
    wxChoice* m_ulozene;
    std::vector<int> m_ulozeneIds;
};

// The rows of the list, with the commands to add, edit and delete a row and to compute
// them again from the books.
class ShPage3 : public wxWizardPageSimple {
 public:
    ShPage3(DphshWizard* parent, DbModel* model);
    // Shows the wizard's rows again, keeping the selected row.
    void refresh();
    wxListCtrl* list() const { return m_list; }
    // The selected row, -1 for none.
    int selected() const;

    void pridat();
    void upravit();
    void smazat();
    // Empties the rows and builds them again from the documents of the period.
    void addVetyForDoklady();

 private:
    void select(int index);
    DphshWizard* m_wizard;
    DbModel* m_model;
    wxListCtrl* m_list;
};

class DphshWizard : public wxWizard {
 public:
    DphshWizard(wxWindow* parent, DbModel* model);
    // Runs the wizard from its first page; true when it was finished.
    bool run();

    ShPage1* page1() const { return m_page1; }
    ShPage2* page2() const { return m_page2; }
    ShPage3* page3() const { return m_page3; }
    PodaniKonecPage* page4() const { return m_page4; }
    Dphshv& dphshv() { return m_shv; }
    const ShZadani& zadani() const { return m_zadani; }

    // Computes the list from the answers of pages 1 and 2; false with a message shown.
    bool fillData();
    // Asks "Uložit souhrnné hlášení?" and saves the list on yes.
    void OnFinished();

 private:
    void onPageChanging(wxWizardEvent& event);
    // A list without rows is neither printed nor exported; true when it may go.
    bool lzePodat();

    DbModel* m_model;
    Dphshv m_shv;
    ShZadani m_zadani;
    ShPage1* m_page1;
    ShPage2* m_page2;
    ShPage3* m_page3;
    PodaniKonecPage* m_page4;
};
