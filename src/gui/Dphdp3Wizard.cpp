#include "Dphdp3Wizard.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "ObdobiPanel.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "podanipages.h"
#include "dphdp3print.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

void addRow(wxWindow* parent, wxFlexGridSizer* grid, const char* label, wxWindow* control, wxWindow* extra = nullptr) {
    grid->Add(new wxStaticText(parent, wxID_ANY, u8(label)), 0, wxALIGN_CENTER_VERTICAL);
    if (!extra) {
        grid->Add(control);
        return;
    }
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(control, 0, wxALIGN_CENTER_VERTICAL | wxRIGHT, 8);
    row->Add(extra, 0, wxALIGN_CENTER_VERTICAL);
    grid->Add(row);
}

// A percentage field: empty is 0; otherwise an amount from 0 to 100.
bool readProcento(lxAmountCtrl* field, const char* label, double* value) {
    *value = 0;
    if (field->GetValue().Strip(wxString::both).empty()) return true;
    const lxformat::Chyba chyba = field->GetValue(value);
    wxString zprava;
    if (chyba != lxformat::Chyba::ZADNA) {
        zprava = field->zprava(u8(label));
    } else if (*value < 0 || *value > 100) {
        zprava = wxString::Format(u8("%s: koeficient musí být od 0 do 100 %%"), u8(label));
    }
    if (zprava.empty()) return true;
    prompts().info(zprava, u8("Informace"), field->GetParent());
    field->SetFocus();
    field->SelectAll();
    return false;
}

bool readDatum(lxDateCtrl* field, const char* label, wxDateTime* value) {
    field->commitText();
    *value = field->GetValue();
    if (value->IsValid()) return true;
    prompts().info(lxformat::datumZprava(u8(label), field->text()), u8("Informace"), field->GetParent());
    field->focusText();
    return false;
}

}  // namespace

// ---------------------------------------------------------------- page 2: the period

Dp3Page2::Dp3Page2(Dphdp3Wizard* parent, DbModel* model) : wxWizardPageSimple(parent), m_wizard(parent), m_model(model) {
    const int rok = model->currentRok();
    const wxDateTime dnes = pracovniDen();
    // The month before the working date is what a monthly payer files now.
    const wxDateTime minuly = wxDateTime(1, dnes.GetMonth(), dnes.GetYear()).Subtract(wxDateSpan::Month());
    const DphObdobi vychozi = minuly.GetYear() == rok ? DphObdobi::zMesice(rok, minuly.GetMonth() + 1) : DphObdobi();
    m_obdobi = new ObdobiPanel(this, rok, vychozi);
    m_datum = new lxDateCtrl(this, "datumVyhotoveni", dnes);
    m_kodZo = new wxChoice(this, wxID_ANY);
    m_kodZo->SetName("kodZo");
    for (const char* kod : {"Beze změny", "Q - čtvrletně", "M - měsíčně"}) m_kodZo->Append(u8(kod));
    m_kodZo->SetSelection(0);
    m_kodZo->Bind(wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& e) {
        const DphObdobi o = m_obdobi->obdobi();
        // The code is given only in the return of the year's last period.
        e.Enable(o.isValid() && o.doDne.GetMonth() == wxDateTime::Dec && o.doDne.GetDay() == 31);
    });
    m_koefNov = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "koefNov", 100);
    m_koefVypor = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "koefVypor", 100);
    m_vyporOdp = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "vyporOdp", 100);
    auto* vypocet = new wxButton(this, wxID_ANY, u8("Vypočítat z evidence"));
    vypocet->SetName("vypocitatZEvidence");
    vypocet->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { OnKoefP20Vypor(); });

    auto* grid = new wxFlexGridSizer(2, 6, 10);
    addRow(this, grid, "Datum vyhotovení:", m_datum);
    addRow(this, grid, "Kód zdaňovacího období\nnásledujícího roku:", m_kodZo);
    addRow(this, grid, "ř.52 - Koeficient (%):", m_koefNov);
    addRow(this, grid, "ř.53 - Vypořádací koeficient(%):", m_koefVypor, vypocet);
    addRow(this, grid, "ř.53 - Změna odpočtu:", m_vyporOdp);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_obdobi, 0, wxALL, 5);
    sizer->Add(grid, 0, wxALL, 10);
    SetSizer(sizer);
}

DphObdobi Dp3Page2::obdobi() const { return m_obdobi->obdobi(); }

wxString Dp3Page2::kodZo() const {
    if (!m_kodZo->IsEnabled()) return wxString();
    const int i = m_kodZo->GetSelection();
    return i == 1 ? "Q" : i == 2 ? "M" : "";
}

bool Dp3Page2::read(Dp3Zadani* z) {
    z->obdobi = m_obdobi->obdobi();
    if (!z->obdobi.isValid()) {
        prompts().info(m_obdobi->chyba(), u8("Informace"), this);
        m_obdobi->focusChyba();
        return false;
    }
    if (!readDatum(m_datum, "Datum vyhotovení", &z->datumPodani)) return false;
    m_kodZo->UpdateWindowUI();
    z->kodZo = kodZo();
    if (!readProcento(m_koefNov, "ř.52 - Koeficient (%)", &z->koefP20Nov)) return false;
    if (!readProcento(m_koefVypor, "ř.53 - Vypořádací koeficient(%)", &z->koefP20Vypor)) return false;
    z->vyporOdp = 0;
    if (!m_vyporOdp->GetValue().Strip(wxString::both).empty() &&
        m_vyporOdp->GetValue(&z->vyporOdp) != lxformat::Chyba::ZADNA) {
        prompts().info(m_vyporOdp->zprava(u8("ř.53 - Změna odpočtu")), u8("Informace"), this);
        m_vyporOdp->SetFocus();
        return false;
    }
    z->vyporadani = z->koefP20Vypor != 0 || z->vyporOdp != 0;
    return true;
}

void Dp3Page2::OnKoefP20Vypor() {
    const DphObdobi o = m_obdobi->obdobi();
    const int rok = o.isValid() ? o.rok : m_model->currentRok();
    if (!m_model->someUlozeneDphDp3(rok, true)) {
        prompts().info(u8("Nejsou žádná uložená přiznání k DPH"), u8("Informace"), this);
        return;
    }
    double koefNov = 0;
    if (!readProcento(m_koefNov, "ř.52 - Koeficient (%)", &koefNov)) return;
    const lxUlozeneArray ulozena = m_model->ulozeneDphDp3(rok, true);
    wxArrayString popisy;
    wxArrayInt vybrana;
    for (size_t i = 0; i < ulozena.size(); ++i) {
        popisy.Add(ulozena[i]->popis());
        vybrana.Add(static_cast<int>(i));
    }
    if (!prompts().multiChoice(u8("Vyberte přiznání k DPH,\nzahrnuté do výpočtu vypořádácího koeficientu"),
                               u8("Přiznání k DPH"), popisy, &vybrana, this))
        return;
    std::vector<Dphdp3> podklady;
    for (int i : vybrana) {
        Dphdp3 p;
        if (p.readFromString(ulozena[static_cast<size_t>(i)]->xml())) podklady.push_back(p);
    }
    dp3::Vyporadani v;
    if (!dp3::vypocetVyporadani(podklady, m_wizard->fillDataForKoefP20Vypor(koefNov), koefNov, &v)) {
        prompts().info(u8("Vybraná přiznání ani toto období nemají žádná plnění,\nkoeficient nelze vypočítat"),
                       u8("Informace"), this);
        return;
    }
    m_koefVypor->SetValue(v.koeficient);
    m_vyporOdp->SetValue(v.zmenaOdpoctu);
}

// ---------------------------------------------------------------- page 3: the kind of return

Dp3Page3::Dp3Page3(wxWizard* parent, DbModel* model) : wxWizardPageSimple(parent), m_model(model) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    const char* const nazvy[] = {"Řádné přiznání", "Řádné opravné přiznání", "Dodatečné přiznání",
                                 "Dodatečné opravné přiznání"};
    const char* const kody[] = {Dphdp3::RADNE, Dphdp3::RADNE_OPRAVNE, Dphdp3::DODATECNE, Dphdp3::DODATECNE_OPRAVNE};
    for (int i = 0; i < 4; ++i) {
        m_formy[i] = new wxRadioButton(this, wxID_ANY, u8(nazvy[i]), wxDefaultPosition, wxDefaultSize,
                                       i == 0 ? wxRB_GROUP : 0);
        m_formy[i]->SetName(wxString("forma") + kody[i]);
        m_formy[i]->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { enableDodatecne(); });
        sizer->Add(m_formy[i], 0, wxLEFT | wxTOP, 10);
    }
    m_ulozene = new wxChoice(this, wxID_ANY);
    m_ulozene->SetName("dodatecneK");
    m_dzjist = new lxDateCtrl(this, "datumZjisteni", pracovniDen());
    m_duvod = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(420, 90), wxTE_MULTILINE);
    m_duvod->SetName("duvod");
    auto* grid = new wxFlexGridSizer(1, 4, 4);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Dodatečné k:")));
    grid->Add(m_ulozene, 0, wxEXPAND);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Datum zjištění pro podání dodatečného přiznání:")), 0, wxTOP, 6);
    grid->Add(m_dzjist);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Důvody pro podání dodatečného daňového přiznání:")), 0, wxTOP, 6);
    grid->Add(m_duvod, 0, wxEXPAND);
    sizer->Add(grid, 0, wxALL, 10);
    SetSizer(sizer);
    enableDodatecne();
}

wxString Dp3Page3::forma() const {
    const char* const kody[] = {Dphdp3::RADNE, Dphdp3::RADNE_OPRAVNE, Dphdp3::DODATECNE, Dphdp3::DODATECNE_OPRAVNE};
    for (int i = 0; i < 4; ++i) {
        if (m_formy[i]->GetValue()) return kody[i];
    }
    return Dphdp3::RADNE;
}

void Dp3Page3::enableDodatecne() {
    const bool dodatecne = Dphdp3::isDodatecne(forma());
    m_ulozene->Enable(dodatecne);
    m_dzjist->Enable(dodatecne);
    m_duvod->Enable(dodatecne);
}

void Dp3Page3::nactiUlozena(int rok) {
    // A supplementary return is the difference to a return with whole amounts, so only the
    // regular and corrective returns are offered as its base.
    const int vybrane = m_ulozene->GetSelection() >= 0 ? m_ulozeneIds[static_cast<size_t>(m_ulozene->GetSelection())] : 0;
    m_ulozene->Clear();
    m_ulozeneIds.clear();
    for (const auto& u : m_model->ulozeneDphDp3(rok, true)) {
        m_ulozene->Append(u->popis());
        m_ulozeneIds.push_back(u->id());
        if (u->id() == vybrane) m_ulozene->SetSelection(static_cast<int>(m_ulozeneIds.size() - 1));
    }
    if (m_ulozene->GetSelection() < 0 && !m_ulozeneIds.empty()) m_ulozene->SetSelection(0);
}

bool Dp3Page3::read(Dp3Zadani* z) {
    z->forma = forma();
    z->ulozeneId = 0;
    z->duvod.clear();
    if (!Dphdp3::isDodatecne(z->forma)) return true;
    if (m_ulozene->GetSelection() < 0) {
        prompts().info(u8("Vyberte přiznání, ke kterému se podává dodatečné přiznání.\n"
                          "Dodatečné přiznání lze podat jen k uloženému řádnému nebo opravnému přiznání."),
                       u8("Informace"), this);
        return false;
    }
    z->ulozeneId = m_ulozeneIds[static_cast<size_t>(m_ulozene->GetSelection())];
    if (!readDatum(m_dzjist, "Datum zjištění pro podání dodatečného přiznání", &z->dzjist)) return false;
    z->duvod = m_duvod->GetValue().Strip(wxString::both);
    return true;
}

// ---------------------------------------------------------------- the wizard

Dphdp3Wizard::Dphdp3Wizard(wxWindow* parent, DbModel* model)
    : wxWizard(parent, wxID_ANY, u8("Průvodce přiznáním k DPH")), m_model(model) {
    m_page1 = new PodaniUvodPage(this, model, u8("Průvodce Vás provede vytvořením\nPřiznání k DPH"));
    m_page2 = new Dp3Page2(this, model);
    m_page3 = new Dp3Page3(this, model);
    PodaniKonecPage::Texty texty;
    texty.text = u8("Přiznání k DHP můžete vytisknout nebo\nvyexportovat jako xml soubor.\n\n"
                    "Xml soubor můžete odeslat pomocí datové schránky\nnebo podat pomocí");
    texty.tisk = u8("Tisk přiznání");
    texty.exportu = u8("Export přiznání");
    texty.exportDo = u8("Exportovat přiznání do");
    texty.soubor = "dphdp3.xml";
    m_page4 = new PodaniKonecPage(
        this, texty, [this]() -> const Podani& { return m_dp3; },
        [this](const Podani&) {
            Dphdp3Print print(this, m_dp3);
            print.Preview();
        });
    wxWizardPageSimple::Chain(m_page1, m_page2);
    wxWizardPageSimple::Chain(m_page2, m_page3);
    wxWizardPageSimple::Chain(m_page3, m_page4);
    // The wizard is as large as its largest page.
    for (wxWizardPage* page : std::initializer_list<wxWizardPage*>{m_page1, m_page2, m_page3, m_page4})
        GetPageAreaSizer()->Add(page);
    Bind(wxEVT_WIZARD_PAGE_CHANGING, &Dphdp3Wizard::onPageChanging, this);
    Bind(wxEVT_WIZARD_FINISHED, [this](wxWizardEvent&) { OnFinished(); });
}

wxWizardPageSimple* Dphdp3Wizard::firstPage() const { return m_page1; }

bool Dphdp3Wizard::run() { return RunWizard(m_page1); }

void Dphdp3Wizard::onPageChanging(wxWizardEvent& event) {
    if (!event.GetDirection()) return;
    if (event.GetPage() == m_page2) {
        if (!m_page2->read(&m_zadani)) {
            event.Veto();
            return;
        }
        m_page3->nactiUlozena(m_zadani.obdobi.rok);
    } else if (event.GetPage() == m_page3) {
        if (!m_page3->read(&m_zadani) || !fillData()) event.Veto();
    }
}

bool Dphdp3Wizard::fillData() {
    wxString error;
    wxBusyCursor busy;
    if (dp3::fillData(*m_model, m_dp3, m_zadani, &error)) return true;
    prompts().error(error, u8("Chyba"), this);
    return false;
}

Dphdp3 Dphdp3Wizard::fillDataForKoefP20Vypor(double koefP20Nov) {
    Dphdp3 p;
    const DphObdobi o = m_page2->obdobi();
    if (o.isValid()) dp3::fillVeta1to6(*m_model, p, o.od, o.doDne, koefP20Nov);
    return p;
}

void Dphdp3Wizard::OnFinished() {
    if (!prompts().question(u8("Uložit daňové přiznání?"), u8("Dotaz"), this)) return;
    if (m_model->ulozitPodani(dp3::ulozene(m_dp3, m_zadani)) == 0) {
        prompts().error(u8("Přiznání se nepodařilo uložit"), u8("Chyba"), this);
    }
}
