#include "Dphkh1Wizard.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <algorithm>
#include <iterator>

#include "Dphkh1VetaDialog.h"
#include "ObdobiPanel.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "dphkh1print.h"
#include "lxsettings.h"
#include "podanipages.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
const char* const INFORMACE = "Informace";

bool readDatum(lxDateCtrl* field, const char* label, wxDateTime* value) {
    field->commitText();
    *value = field->GetValue();
    if (value->IsValid()) return true;
    prompts().info(lxformat::datumZprava(u8(label), field->text()), u8(INFORMACE), field->GetParent());
    field->focusText();
    return false;
}

wxStaticText* nadpis(wxWindow* parent) {
    auto* text = new wxStaticText(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "nadpis");
    text->SetFont(text->GetFont().Bold());
    return text;
}

void ukazNadpis(wxStaticText* text, kh1::Sekce s, const wxDateTime& od) {
    text->SetLabel(kh1::nadpis(s, od));
    text->Wrap(720);
}

const char* const FORMY[] = {Dphkh1::RADNE, Dphkh1::RADNE_OPRAVNE, Dphkh1::NASLEDNE, Dphkh1::NASLEDNE_OPRAVNE};
// The quick answers to a summons in the order of their choice; the first is none.
const char* const VYZVY[] = {"", Dphkh1::VYZVA_NULOVE, Dphkh1::VYZVA_POTVRZUJI};
const char* const SOUHRN[] = {"zakl_dane1", "dan1", "zakl_dane2", "dan2", "zakl_dane3", "dan3"};

}  // namespace

// ---------------------------------------------------------------- page 2: the period

Kh1Page2::Kh1Page2(wxWizard* parent, DbModel* model) : wxWizardPageSimple(parent) {
    const int rok = model->currentRok();
    const wxDateTime dnes = pracovniDen();
    // The month before the working date is what a monthly payer files now.
    const wxDateTime minuly = wxDateTime(1, dnes.GetMonth(), dnes.GetYear()).Subtract(wxDateSpan::Month());
    const DphObdobi vychozi = minuly.GetYear() == rok ? DphObdobi::zMesice(rok, minuly.GetMonth() + 1) : DphObdobi();
    m_obdobi = new ObdobiPanel(this, rok, vychozi);
    m_datum = new lxDateCtrl(this, "datumVyhotoveni", dnes);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticText(this, wxID_ANY, u8("Datum vyhotovení:")), 0, wxALIGN_CENTER_VERTICAL | wxRIGHT, 8);
    row->Add(m_datum, 0, wxALIGN_CENTER_VERTICAL);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_obdobi, 0, wxALL, 5);
    sizer->Add(row, 0, wxALL, 10);
    SetSizer(sizer);
}

bool Kh1Page2::read(Kh1Zadani* z) {
    z->obdobi = m_obdobi->obdobi();
    if (!z->obdobi.isValid()) {
        prompts().info(m_obdobi->chyba(), u8(INFORMACE), this);
        m_obdobi->focusChyba();
        return false;
    }
    return readDatum(m_datum, "Datum vyhotovení", &z->datumPodani);
}

// ---------------------------------------------------------------- page 3: the kind of statement

Kh1Page3::Kh1Page3(wxWizard* parent) : wxWizardPageSimple(parent) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    const char* const nazvy[] = {"Řádné hlášení", "Řádné opravné hlášení", "Následné hlášení",
                                 "Následné opravné hlášení"};
    for (int i = 0; i < 4; ++i) {
        m_formy[i] =
            new wxRadioButton(this, wxID_ANY, u8(nazvy[i]), wxDefaultPosition, wxDefaultSize, i == 0 ? wxRB_GROUP : 0);
        m_formy[i]->SetName(wxString("forma") + FORMY[i]);
        m_formy[i]->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { enableNasledne(); });
        sizer->Add(m_formy[i], 0, wxLEFT | wxTOP, 10);
    }
    m_dzjist = new lxDateCtrl(this, "datumZjisteni", pracovniDen());
    m_cjVyzvy = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(300, -1), 0, wxDefaultValidator,
                               "cjVyzvy");
    m_vyzvaOdp =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0, wxDefaultValidator, "vyzvaOdp");
    for (const char* text : {"Ne", "Nemám povinnost podat KH (nulové KH)", "Potvrzuji správnost naposledy podaného KH"})
        m_vyzvaOdp->Append(u8(text));
    m_vyzvaOdp->SetSelection(0);

    auto* grid = new wxFlexGridSizer(1, 4, 4);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Datum zjištění pro podání následného kontrolního hlášení:")), 0,
              wxTOP, 6);
    grid->Add(m_dzjist);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Číslo jednací výzvy :")), 0, wxTOP, 6);
    grid->Add(m_cjVyzvy);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Rychlá odpověď na výzvu")), 0, wxTOP, 6);
    grid->Add(m_vyzvaOdp);
    sizer->Add(grid, 0, wxALL, 10);
    SetSizer(sizer);
    enableNasledne();
}

wxString Kh1Page3::forma() const {
    for (int i = 0; i < 4; ++i) {
        if (m_formy[i]->GetValue()) return FORMY[i];
    }
    return Dphkh1::RADNE;
}

wxString Kh1Page3::vyzvaOdp() const {
    const int i = m_vyzvaOdp->GetSelection();
    return i > 0 && i < 3 ? VYZVY[i] : "";
}

void Kh1Page3::enableNasledne() { m_dzjist->Enable(Dphkh1::isNasledne(forma())); }

wxWizardPage* Kh1Page3::GetNext() const {
    return !vyzvaOdp().empty() && m_konec ? m_konec : wxWizardPageSimple::GetNext();
}

bool Kh1Page3::read(Kh1Zadani* z) {
    z->forma = forma();
    z->dzjist = wxDateTime();
    z->cjVyzvy = m_cjVyzvy->GetValue().Strip(wxString::both);
    z->vyzvaOdp = vyzvaOdp();
    if (!z->vyzvaOdp.empty() && z->cjVyzvy.empty()) {
        prompts().info(
            u8("Rychlá odpověď na výzvu se podává jen s číslem jednacím výzvy.\nVyplňte číslo jednací výzvy."),
            u8(INFORMACE), this);
        m_cjVyzvy->SetFocus();
        return false;
    }
    if (!Dphkh1::isNasledne(z->forma)) return true;
    return readDatum(m_dzjist, "Datum zjištění pro podání následného kontrolního hlášení", &z->dzjist);
}

// ---------------------------------------------------------------- the sections of document rows

namespace {

struct Prikaz {
    const char* text;
    const char* name;
    bool radek;  // needs a selected row
    void (Kh1SekcePage::*run)();
};

const Prikaz PRIKAZY[] = {
    {"Přidat řádek", "pridatRadek", false, &Kh1SekcePage::pridat},
    {"Upravit řádek", "upravitRadek", true, &Kh1SekcePage::upravit},
    {"Smazat řádek", "smazatRadek", true, &Kh1SekcePage::smazat},
    {"Znovu načíst data z evidence", "znovuNacist", false, &Kh1SekcePage::znovuNacist},
};

int sirkaSloupce(const kh1pole::Pole& pole) {
    switch (pole.druh) {
        case kh1pole::Druh::CASTKA:
            return 95;
        case kh1pole::Druh::DATUM:
        case kh1pole::Druh::DATUM0:
            return 85;
        case kh1pole::Druh::VOLBA:
            return 80;
        default:
            return std::max(110, pole.sirka * 2 / 3);
    }
}

}  // namespace

Kh1SekcePage::Kh1SekcePage(Dphkh1Wizard* parent, kh1::Sekce sekce)
    : wxWizardPageSimple(parent), m_wizard(parent), m_sekce(sekce) {
    m_nadpis = nadpis(this);
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(720, 260), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "seznam");
    m_pole = kh1pole::polozky(parent->dphkh1(), sekce);
    for (const kh1pole::Pole* pole : m_pole) {
        m_list->AppendColumn(u8(pole->popis),
                             pole->druh == kh1pole::Druh::CASTKA ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                             sirkaSloupce(*pole));
    }
    auto* buttons = new wxBoxSizer(wxVERTICAL);
    for (const Prikaz& prikaz : PRIKAZY) {
        auto* button = new wxButton(this, wxID_ANY, u8(prikaz.text), wxDefaultPosition, wxDefaultSize, 0,
                                    wxDefaultValidator, prikaz.name);
        const auto run = prikaz.run;
        button->Bind(wxEVT_BUTTON, [this, run](wxCommandEvent&) { (this->*run)(); });
        if (prikaz.radek) button->Bind(wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& e) { e.Enable(selected() >= 0); });
        buttons->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, 4));
    }
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { upravit(); });
    m_list->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        wxMenu menu;
        for (size_t i = 0; i < std::size(PRIKAZY); ++i) {
            menu.Append(wxID_HIGHEST + 1 + static_cast<int>(i), u8(PRIKAZY[i].text))
                ->Enable(!PRIKAZY[i].radek || selected() >= 0);
        }
        const int chosen = GetPopupMenuSelectionFromUser(menu) - wxID_HIGHEST - 1;
        if (chosen >= 0 && chosen < static_cast<int>(std::size(PRIKAZY))) (this->*PRIKAZY[chosen].run)();
    });

    auto* body = new wxBoxSizer(wxHORIZONTAL);
    body->Add(m_list, wxSizerFlags(1).Expand());
    body->Add(buttons, wxSizerFlags().Border(wxLEFT, 8));
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_nadpis, wxSizerFlags().Border(wxALL, 5));
    sizer->Add(body, wxSizerFlags(1).Expand().Border(wxALL, 5));
    SetSizer(sizer);
}

int Kh1SekcePage::selected() const {
    return static_cast<int>(m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED));
}

void Kh1SekcePage::nacist() {
    const Dphkh1& p = m_wizard->dphkh1();
    ukazNadpis(m_nadpis, m_sekce, m_wizard->zadani().obdobi.od);
    const int vybrany = selected();
    m_list->DeleteAllItems();
    const int pocet = p.pocetVet(kh1::vetaName(m_sekce));
    for (int i = 0; i < pocet; ++i) {
        m_list->InsertItem(i, wxString());
        for (size_t c = 0; c < m_pole.size(); ++c)
            m_list->SetItem(i, static_cast<int>(c), kh1pole::text(p, m_sekce, *m_pole[c], i));
    }
    if (vybrany >= 0 && vybrany < pocet) m_list->SetItemState(vybrany, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    Layout();
}

void Kh1SekcePage::zmeneno(int vybrat) {
    m_wizard->dphkh1().fillVetaC();
    nacist();
    const int pocet = m_list->GetItemCount();
    for (int i = 0; i < pocet; ++i) m_list->SetItemState(i, 0, wxLIST_STATE_SELECTED);
    if (vybrat >= 0 && vybrat < pocet) {
        m_list->SetItemState(vybrat, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                             wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
        m_list->EnsureVisible(vybrat);
    }
}

void Kh1SekcePage::pridat() {
    Dphkh1VetaDialog dialog(this, m_wizard->dphkh1(), m_sekce, -1);
    if (dialog.ShowModal() == wxID_OK) zmeneno(m_wizard->dphkh1().pocetVet(kh1::vetaName(m_sekce)) - 1);
}

void Kh1SekcePage::upravit() {
    const int index = selected();
    if (index < 0) return;
    Dphkh1VetaDialog dialog(this, m_wizard->dphkh1(), m_sekce, index);
    if (dialog.ShowModal() == wxID_OK) zmeneno(index);
}

wxString Kh1SekcePage::otazkaSmazat(int index) const {
    const Dphkh1& p = m_wizard->dphkh1();
    const wxString veta = kh1::vetaName(m_sekce);
    const wxString doklad = p.atributValue(veta, "c_evid_dd", index);
    switch (m_sekce) {
        case kh1::Sekce::A2:
            return wxString::Format(u8("Smazat řádek pro %s%s,\ndoklad %s?"), p.atributValue(veta, "k_stat", index),
                                    p.atributValue(veta, "vatid_dod", index), doklad);
        case kh1::Sekce::A3:
            return wxString::Format(u8("Smazat řádek pro doklad %s?"), doklad);
        case kh1::Sekce::B1:
        case kh1::Sekce::B2:
            return wxString::Format(u8("Smazat řádek pro CZ%s,\ndoklad %s?"), p.atributValue(veta, "dic_dod", index),
                                    doklad);
        default:
            return wxString::Format(u8("Smazat řádek pro CZ%s,\ndoklad %s?"), p.atributValue(veta, "dic_odb", index),
                                    doklad);
    }
}

void Kh1SekcePage::smazat() {
    const int index = selected();
    if (index < 0) return;
    if (!prompts().question(otazkaSmazat(index), u8("Dotaz"), this)) return;
    Dphkh1& p = m_wizard->dphkh1();
    const wxString veta = kh1::vetaName(m_sekce);
    p.removeVeta(veta, index);
    p.precislovat(veta);
    zmeneno(std::min(index, p.pocetVet(veta) - 1));
}

void Kh1SekcePage::znovuNacist() {
    const DphObdobi& o = m_wizard->zadani().obdobi;
    {
        wxBusyCursor busy;
        kh1::fillSekce(*m_wizard->model(), m_wizard->dphkh1(), m_sekce, o.od, o.doDne);
    }
    zmeneno(-1);
}

// ---------------------------------------------------------------- the summary sections

Kh1SouhrnPage::Kh1SouhrnPage(Dphkh1Wizard* parent, kh1::Sekce sekce)
    : wxWizardPageSimple(parent), m_wizard(parent), m_sekce(sekce) {
    m_nadpis = nadpis(this);
    const char* const popisy[] = {"Základ daně\npro základní sazbu",    "Daň\npro základní sazbu",
                                  "Základ daně\npro 1. sníženou sazbu", "Daň\npro 1. sníženou sazbu",
                                  "Základ daně\npro 2. sníženou sazbu", "Daň\npro 2. sníženou sazbu"};
    // A rate line a row: its base beside its tax.
    auto* grid = new wxFlexGridSizer(4, wxSize(8, 10));
    for (int i = 0; i < 6; ++i) {
        m_castky[i] = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, SOUHRN[i]);
        grid->Add(new wxStaticText(this, wxID_ANY, u8(popisy[i])),
                  wxSizerFlags().CentreVertical().Border(wxLEFT, i % 2 ? 16 : 0));
        grid->Add(m_castky[i], wxSizerFlags().CentreVertical());
    }
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_nadpis, wxSizerFlags().Border(wxALL, 5));
    sizer->Add(grid, wxSizerFlags().Border(wxALL, 10));
    SetSizer(sizer);
}

void Kh1SouhrnPage::nacist() {
    const Dphkh1& p = m_wizard->dphkh1();
    const wxString veta = kh1::vetaName(m_sekce);
    ukazNadpis(m_nadpis, m_sekce, m_wizard->zadani().obdobi.od);
    for (int i = 0; i < 6; ++i) m_castky[i]->SetValue(p.castka(veta, SOUHRN[i]));
    Layout();
}

bool Kh1SouhrnPage::ulozit() {
    const char* const popisy[] = {"Základ daně pro základní sazbu",    "Daň pro základní sazbu",
                                  "Základ daně pro 1. sníženou sazbu", "Daň pro 1. sníženou sazbu",
                                  "Základ daně pro 2. sníženou sazbu", "Daň pro 2. sníženou sazbu"};
    // Every field is read before anything is written, so a refusal changes nothing.
    double hodnoty[6] = {};
    for (int i = 0; i < 6; ++i) {
        if (m_castky[i]->GetValue().Strip(wxString::both).empty()) continue;  // an empty field is nothing
        if (m_castky[i]->GetValue(&hodnoty[i]) != lxformat::Chyba::ZADNA) {
            prompts().info(m_castky[i]->zprava(u8(popisy[i])), u8(INFORMACE), this);
            m_castky[i]->SetFocus();
            m_castky[i]->SelectAll();
            return false;
        }
    }
    Dphkh1& p = m_wizard->dphkh1();
    const wxString veta = kh1::vetaName(m_sekce);
    // Only what differs is written, so an amount nobody touched keeps its stored form.
    for (int i = 0; i < 6; ++i) {
        if (hodnoty[i] != p.castka(veta, SOUHRN[i])) p.setCastka(veta, SOUHRN[i], hodnoty[i]);
    }
    p.fillVetaC();
    return true;
}

// ---------------------------------------------------------------- the wizard

Dphkh1Wizard::Dphkh1Wizard(wxWindow* parent, DbModel* model)
    : wxWizard(parent, wxID_ANY, u8("Průvodce kontrolním hlášením DPH")), m_model(model) {
    m_page1 = new PodaniUvodPage(this, model, u8("Průvodce Vás provede vytvořením\nKontrolního hlášení DPH"));
    m_page2 = new Kh1Page2(this, model);
    m_page3 = new Kh1Page3(this);
    for (kh1::Sekce s : kh1::sekce()) {
        if (kh1::isRadkova(s))
            m_sekce.push_back(new Kh1SekcePage(this, s));
        else
            m_sekce.push_back(new Kh1SouhrnPage(this, s));
    }
    PodaniKonecPage::Texty texty;
    texty.text =
        u8("Kontrolní hlášení DPH můžete vytisknout nebo\nvyexportovat jako xml soubor.\n\n"
           "Podat lze jen jako xml soubor, můžete ho odeslat pomocí datové schránky\nnebo podat pomocí");
    texty.tisk = u8("Tisk přiznání");
    texty.exportu = u8("Export přiznání");
    texty.exportDo = u8("Exportovat hlášení do");
    texty.soubor = "dphkh1.xml";
    m_konec = new PodaniKonecPage(
        this, texty, [this]() -> const Podani& { return m_p; }, [this](const Podani&) { nahledDphkh1(this, m_p); });
    m_konec->setPovoleni([this] { return lzePodat(); });
    m_page3->setKonec(m_konec);

    std::vector<wxWizardPageSimple*> pages = {m_page1, m_page2, m_page3};
    pages.insert(pages.end(), m_sekce.begin(), m_sekce.end());
    pages.push_back(m_konec);
    for (size_t i = 1; i < pages.size(); ++i) wxWizardPageSimple::Chain(pages[i - 1], pages[i]);
    // The wizard is as large as its largest page.
    for (wxWizardPageSimple* page : pages) GetPageAreaSizer()->Add(page);
    Bind(wxEVT_WIZARD_PAGE_CHANGING, &Dphkh1Wizard::onPageChanging, this);
    Bind(wxEVT_WIZARD_PAGE_CHANGED, &Dphkh1Wizard::onPageChanged, this);
    Bind(wxEVT_WIZARD_FINISHED, [this](wxWizardEvent&) { OnFinished(); });
}

wxWizardPageSimple* Dphkh1Wizard::firstPage() const { return m_page1; }

wxWizardPageSimple* Dphkh1Wizard::sekcePage(kh1::Sekce sekce) const {
    const auto& poradi = kh1::sekce();
    for (size_t i = 0; i < poradi.size() && i < m_sekce.size(); ++i) {
        if (poradi[i] == sekce) return m_sekce[i];
    }
    return nullptr;
}

bool Dphkh1Wizard::run() { return RunWizard(m_page1); }

void Dphkh1Wizard::onPageChanging(wxWizardEvent& event) {
    wxWizardPage* page = event.GetPage();
    if (auto* souhrn = dynamic_cast<Kh1SouhrnPage*>(page)) {
        // The amounts are kept whichever way the user leaves.
        if (!souhrn->ulozit()) event.Veto();
        return;
    }
    if (!event.GetDirection()) return;
    if (page == m_page2) {
        if (!m_page2->read(&m_zadani)) event.Veto();
    } else if (page == m_page3) {
        if (!m_page3->read(&m_zadani)) {
            event.Veto();
            return;
        }
        fillData();
        m_konec->SetPrev(m_zadani.vyzvaOdp.empty() ? m_sekce.back() : static_cast<wxWizardPageSimple*>(m_page3));
    }
}

void Dphkh1Wizard::onPageChanged(wxWizardEvent& event) {
    if (auto* sekce = dynamic_cast<Kh1SekcePage*>(event.GetPage())) sekce->nacist();
    if (auto* souhrn = dynamic_cast<Kh1SouhrnPage*>(event.GetPage())) souhrn->nacist();
}

void Dphkh1Wizard::fillData() {
    wxBusyCursor busy;
    const Kh1Zadani& a = m_spocitanoPro;
    const Kh1Zadani& b = m_zadani;
    const bool stejne = m_spocitano && a.obdobi.druh == b.obdobi.druh && a.obdobi.od.IsSameDate(b.obdobi.od) &&
                        a.obdobi.doDne.IsSameDate(b.obdobi.doDne) && a.forma == b.forma && a.vyzvaOdp == b.vyzvaOdp;
    if (stejne)
        kh1::fillHlavicka(*m_model, m_p, m_zadani);
    else
        kh1::fillData(*m_model, m_p, m_zadani);
    m_spocitano = true;
    m_spocitanoPro = m_zadani;
}

bool Dphkh1Wizard::lzePodat() {
    if (!m_p.isNulove() || !m_zadani.vyzvaOdp.empty()) return true;
    prompts().info(u8("Nulové kontrolní hlášení se nepodává."), u8(INFORMACE), this);
    return false;
}

void Dphkh1Wizard::OnFinished() {
    if (!prompts().question(u8("Uložit kontrolní hlášení?"), u8("Dotaz"), this)) return;
    if (m_model->ulozitPodani(kh1::ulozene(m_p, m_zadani)) == 0)
        prompts().error(u8("Kontrolní hlášení se nepodařilo uložit"), u8("Chyba"), this);
}
