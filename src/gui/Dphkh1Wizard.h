// "Průvodce kontrolním hlášením DPH": the period, the kind of statement, then one page a
// section where the rows computed from the documents can be added to, edited and deleted,
// and the last page that prints or exports the statement. The statement is computed from the
// books when the user leaves the page of the kind; finishing offers to save it.
#pragma once

#include <wx/wizard.h>

#include <vector>

#include "dph/dphkh1fill.h"

class DbModel;
class Dphkh1Wizard;
class ObdobiPanel;
class PodaniKonecPage;
class PodaniUvodPage;
class lxAmountCtrl;
class lxDateCtrl;
class wxChoice;
class wxListCtrl;
class wxRadioButton;
class wxStaticText;
class wxTextCtrl;
namespace kh1pole {
struct Pole;
}

class Kh1Page2 : public wxWizardPageSimple {
 public:
    Kh1Page2(wxWizard* parent, DbModel* model);
    // Reads the page into the answers; false with the focus on the field and its message shown.
    bool read(Kh1Zadani* zadani);

 private:
    ObdobiPanel* m_obdobi;
    lxDateCtrl* m_datum;
};

class Kh1Page3 : public wxWizardPageSimple {
 public:
    explicit Kh1Page3(wxWizard* parent);
    bool read(Kh1Zadani* zadani);
    wxString forma() const;
    wxString vyzvaOdp() const;
    // A quick answer to a summons has no sections: it goes straight to `konec`.
    void setKonec(wxWizardPage* konec) { m_konec = konec; }
    wxWizardPage* GetNext() const override;

 private:
    void enableNasledne();
    wxRadioButton* m_formy[4];
    lxDateCtrl* m_dzjist;
    wxTextCtrl* m_cjVyzvy;
    wxChoice* m_vyzvaOdp;
    wxWizardPage* m_konec = nullptr;
};

// A section of one row a document (A.1 … A.4, B.1, B.2): its heading, the list of its rows
// with the record's columns, and the commands on them as buttons and in the context menu.
class Kh1SekcePage : public wxWizardPageSimple {
 public:
    Kh1SekcePage(Dphkh1Wizard* parent, kh1::Sekce sekce);
    kh1::Sekce sekce() const { return m_sekce; }
    wxListCtrl* list() const { return m_list; }

    // Shows the heading of the period and the section's rows.
    void nacist();
    void pridat();
    void upravit();
    void smazat();
    // Empties the section and fills it from the documents again.
    void znovuNacist();

 private:
    int selected() const;
    // Section C follows the rows; the list shows them with row `vybrat` selected.
    void zmeneno(int vybrat);
    wxString otazkaSmazat(int index) const;

    Dphkh1Wizard* m_wizard;
    kh1::Sekce m_sekce;
    wxStaticText* m_nadpis;
    wxListCtrl* m_list;
    std::vector<const kh1pole::Pole*> m_pole;
};

// A summary section (A.5, B.3): the six amounts of its one record, which the user may change.
class Kh1SouhrnPage : public wxWizardPageSimple {
 public:
    Kh1SouhrnPage(Dphkh1Wizard* parent, kh1::Sekce sekce);
    kh1::Sekce sekce() const { return m_sekce; }
    void nacist();
    // Writes the changed amounts back and recomputes section C; false with the message shown.
    bool ulozit();

 private:
    Dphkh1Wizard* m_wizard;
    kh1::Sekce m_sekce;
    wxStaticText* m_nadpis;
    lxAmountCtrl* m_castky[6];
};

class Dphkh1Wizard : public wxWizard {
 public:
    Dphkh1Wizard(wxWindow* parent, DbModel* model);
    // Runs the wizard from its first page; true when it was finished.
    bool run();

    wxWizardPageSimple* firstPage() const;
    Kh1Page2* page2() const { return m_page2; }
    Kh1Page3* page3() const { return m_page3; }
    // The page of a section.
    wxWizardPageSimple* sekcePage(kh1::Sekce sekce) const;
    PodaniKonecPage* lastPage() const { return m_konec; }

    DbModel* model() const { return m_model; }
    Dphkh1& dphkh1() { return m_p; }
    const Kh1Zadani& zadani() const { return m_zadani; }

    // Computes the statement from the answers of pages 2 and 3 unless the period and the kind
    // are those it was computed for; then only the header follows the answers, and rows the
    // user changed stay.
    void fillData();
    // Whether the statement may be printed or exported; a zero statement that answers no
    // summons is refused with a message.
    bool lzePodat();
    // Asks "Uložit kontrolní hlášení?" and saves the statement on yes.
    void OnFinished();

 private:
    void onPageChanging(wxWizardEvent& event);
    void onPageChanged(wxWizardEvent& event);

    DbModel* m_model;
    Dphkh1 m_p;
    Kh1Zadani m_zadani;
    bool m_spocitano = false;
    Kh1Zadani m_spocitanoPro;
    PodaniUvodPage* m_page1;
    Kh1Page2* m_page2;
    Kh1Page3* m_page3;
    std::vector<wxWizardPageSimple*> m_sekce;  // in the order of kh1::sekce()
    PodaniKonecPage* m_konec;
};
