#include "DphshWizard.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <algorithm>
#include <iterator>

#include "DphshVetarDialog.h"
#include "ObdobiPanel.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "dphshprint.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const char* const INFORMACE = "Informace";

// The period of a saved list as its row keeps it.
DphObdobi obdobiUlozeneho(const Ulozene& u) {
    return u.obdobi() == static_cast<int>(DruhObdobi::Ctvrtleti) ? DphObdobi::zCtvrtleti(u.rok(), u.ctvrtleti())
                                                                 : DphObdobi::zMesice(u.rok(), u.mesic());
}

}  // namespace

// ---------------------------------------------------------------- page 1: the period

ShPage1::ShPage1(wxWizard* parent, DbModel* model)
    : PodaniUvodPage(parent, model, u8("Průvodce Vás provede vytvořením\nSouhrnného hlášení VIES")) {
    const int rok = model->currentRok();
    const wxDateTime dnes = pracovniDen();
    // The month before the working date is what a monthly filer files now.
    const wxDateTime minuly = wxDateTime(1, dnes.GetMonth(), dnes.GetYear()).Subtract(wxDateSpan::Month());
    const DphObdobi vychozi = minuly.GetYear() == rok ? DphObdobi::zMesice(rok, minuly.GetMonth() + 1) : DphObdobi();
    m_obdobi = new ObdobiPanel(this, rok, vychozi, false);
    m_datum = new lxDateCtrl(this, "datumVyplneni", dnes);
    auto* datum = new wxBoxSizer(wxHORIZONTAL);
    datum->Add(new wxStaticText(this, wxID_ANY, u8("Datum vyplnění:")),
               wxSizerFlags().CenterVertical().Border(wxRIGHT, 8));
    datum->Add(m_datum, wxSizerFlags().CenterVertical());
    // Between the introduction and the taxpayer button.
    GetSizer()->Insert(1, m_obdobi, wxSizerFlags().Border(wxALL, 10));
    GetSizer()->Insert(2, datum, wxSizerFlags().Border(wxALL, 10));
}

bool ShPage1::read(ShZadani* z) {
    z->obdobi = m_obdobi->obdobi();
    m_datum->commitText();
    z->datumPodani = m_datum->GetValue();
    if (z->datumPodani.IsValid()) return true;
    prompts().info(lxformat::datumZprava(u8("Datum vyplnění"), m_datum->text()), u8(INFORMACE), this);
    m_datum->focusText();
    return false;
}

// ---------------------------------------------------------------- page 2: the kind

ShPage2::ShPage2(wxWizard* parent, DbModel* model) : wxWizardPageSimple(parent), m_model(model) {
    m_radne = new wxRadioButton(this, wxID_ANY, u8("Souhrnné hlášení"), wxDefaultPosition, wxDefaultSize, wxRB_GROUP,
                                wxDefaultValidator, "formaR");
    m_nasledne = new wxRadioButton(this, wxID_ANY, u8("Následné souhrnné hlášení"), wxDefaultPosition, wxDefaultSize, 0,
                                   wxDefaultValidator, "formaN");
    m_ulozene = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxSize(360, -1), wxArrayString(), 0, wxDefaultValidator,
                             "nasledneK");
    for (wxRadioButton* r : {m_radne, m_nasledne})
        r->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { enableNasledne(); });
    auto* k = new wxBoxSizer(wxHORIZONTAL);
    k->Add(new wxStaticText(this, wxID_ANY, u8("Následné k:")), wxSizerFlags().CenterVertical().Border(wxRIGHT, 8));
    k->Add(m_ulozene, wxSizerFlags().CenterVertical());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_radne, wxSizerFlags().Border(wxLEFT | wxTOP, 10));
    sizer->Add(m_nasledne, wxSizerFlags().Border(wxLEFT | wxTOP, 10));
    sizer->Add(k, wxSizerFlags().Border(wxALL, 10).Border(wxLEFT, 30));
    SetSizer(sizer);
    enableNasledne();
}

wxString ShPage2::forma() const { return m_nasledne->GetValue() ? Dphshv::NASLEDNE : Dphshv::RADNE; }

void ShPage2::enableNasledne() { m_ulozene->Enable(m_nasledne->GetValue() && !m_ulozeneIds.empty()); }

void ShPage2::nactiUlozena(const DphObdobi& obdobi) {
    m_ulozene->Clear();
    m_ulozeneIds.clear();
    int vybrane = 0;
    for (const auto& u : m_model->ulozeneDphShv()) {
        if (obdobiUlozeneho(*u).od == obdobi.od && obdobiUlozeneho(*u).doDne == obdobi.doDne)
            vybrane = static_cast<int>(m_ulozeneIds.size());
        m_ulozene->Append(u->popis());
        m_ulozeneIds.push_back(u->id());
    }
    if (!m_ulozeneIds.empty()) m_ulozene->SetSelection(vybrane);
    enableNasledne();
}

bool ShPage2::read(ShZadani* z) {
    z->forma = forma();
    z->ulozeneId = 0;
    if (z->forma != Dphshv::NASLEDNE) return true;
    if (m_ulozene->GetSelection() < 0) {
        prompts().info(u8("Vyberte souhrnné hlášení, ke kterému se podává následné hlášení.\n"
                          "Následné hlášení lze podat jen k uloženému souhrnnému hlášení."),
                       u8(INFORMACE), this);
        return false;
    }
    z->ulozeneId = m_ulozeneIds[static_cast<size_t>(m_ulozene->GetSelection())];
    // A follow-up list corrects the list of its period, whatever month page 1 shows.
    if (m_model->hasUlozene(z->ulozeneId)) z->obdobi = obdobiUlozeneho(m_model->getUlozene(z->ulozeneId));
    return true;
}

// ---------------------------------------------------------------- page 3: the rows

ShPage3::ShPage3(DphshWizard* parent, DbModel* model) : wxWizardPageSimple(parent), m_wizard(parent), m_model(model) {
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(680, 260), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "radky");
    const struct {
        const char* nazev;
        int sirka;
        wxListColumnFormat format;
    } sloupce[] = {
        {"Storno řádek", 90, wxLIST_FORMAT_CENTRE},          {"Kód země", 70, wxLIST_FORMAT_CENTRE},
        {"DIČ pořizovatele zboží", 150, wxLIST_FORMAT_LEFT}, {"Kód plnění", 80, wxLIST_FORMAT_CENTRE},
        {"Počet plnění", 90, wxLIST_FORMAT_RIGHT},           {"Celková hodnota plnění v Kč", 170, wxLIST_FORMAT_RIGHT}};
    for (const auto& c : sloupce) m_list->AppendColumn(u8(c.nazev), c.format, c.sirka);

    // Each command stands as a button and as an item of the list's context menu.
    struct Prikaz {
        const char* nazev;
        const char* jmeno;
        bool naRadek;
        void (ShPage3::*run)();
    };
    static const Prikaz prikazy[] = {
        {"Přidat řádek", "pridat", false, &ShPage3::pridat},
        {"Upravit řádek", "upravit", true, &ShPage3::upravit},
        {"Smazat řádek", "smazat", true, &ShPage3::smazat},
        {"Znovu načíst data z evidence", "znovuNacist", false, &ShPage3::addVetyForDoklady}};
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    for (const Prikaz& p : prikazy) {
        auto* button =
            new wxButton(this, wxID_ANY, u8(p.nazev), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, p.jmeno);
        const auto run = p.run;
        button->Bind(wxEVT_BUTTON, [this, run](wxCommandEvent&) { (this->*run)(); });
        if (p.naRadek) button->Bind(wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& e) { e.Enable(selected() >= 0); });
        buttons->Add(button, wxSizerFlags().Border(wxRIGHT, 6));
    }
    m_list->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        wxMenu menu;
        for (size_t i = 0; i < std::size(prikazy); ++i) {
            const int id = wxID_HIGHEST + 1 + static_cast<int>(i);
            menu.Append(id, u8(prikazy[i].nazev));
            if (prikazy[i].naRadek) menu.Enable(id, selected() >= 0);
        }
        const int chosen = GetPopupMenuSelectionFromUser(menu);
        if (chosen != wxID_NONE) (this->*prikazy[chosen - wxID_HIGHEST - 1].run)();
    });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { upravit(); });

    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    sizer->Add(buttons, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizer(sizer);
}

int ShPage3::selected() const {
    return static_cast<int>(m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED));
}

void ShPage3::select(int index) {
    if (index < 0 || index >= m_list->GetItemCount()) return;
    m_list->SetItemState(index, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                         wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
    m_list->EnsureVisible(index);
}

void ShPage3::refresh() {
    const int vybrany = selected();
    const Dphshv& p = m_wizard->dphshv();
    m_list->DeleteAllItems();
    for (int i = 0; i < p.pocetVet("VetaR"); ++i) {
        const Dphshv::Radek r = p.radek(i);
        const long item = m_list->InsertItem(i, r.storno ? u8("Ano") : wxString());
        m_list->SetItem(item, 1, r.stat);
        m_list->SetItem(item, 2, r.cislo);
        m_list->SetItem(item, 3, wxString::Format("%d", r.kod));
        m_list->SetItem(item, 4, p.atributValue("VetaR", "pln_pocet", i));
        // The whole crowns the list reports, not the unrounded sum behind them.
        const wxString hodnota = p.atributValue("VetaR", "pln_hodnota", i);
        m_list->SetItem(item, 5,
                        hodnota.empty() ? wxString() : lxformat::formatCastka(vetaformat::parseCislo(hodnota)));
    }
    select(std::min(vybrany, m_list->GetItemCount() - 1));
}

void ShPage3::pridat() {
    DphshVetarDialog dialog(this, m_wizard->dphshv(), -1);
    if (dialog.ShowModal() != wxID_OK) return;
    refresh();
    select(m_list->GetItemCount() - 1);
}

void ShPage3::upravit() {
    const int index = selected();
    if (index < 0) return;
    DphshVetarDialog dialog(this, m_wizard->dphshv(), index);
    if (dialog.ShowModal() == wxID_OK) refresh();
}

void ShPage3::smazat() {
    const int index = selected();
    if (index < 0) return;
    Dphshv& p = m_wizard->dphshv();
    const Dphshv::Radek r = p.radek(index);
    if (!prompts().question(wxString::Format(u8("Smazat řádek pro %s%s?"), r.stat, r.cislo), u8("Dotaz"), this)) return;
    p.removeVeta("VetaR", index);
    p.fillVety();  // numbers the rows that are left again
    refresh();
}

void ShPage3::addVetyForDoklady() {
    const ShZadani& z = m_wizard->zadani();
    Dphshv& p = m_wizard->dphshv();
    {
        wxBusyCursor busy;
        shv::addVetyForDoklady(*m_model, p, z.obdobi.od, z.obdobi.doDne);
        p.fillVety();
    }
    refresh();
}

// ---------------------------------------------------------------- the wizard

DphshWizard::DphshWizard(wxWindow* parent, DbModel* model)
    : wxWizard(parent, wxID_ANY, u8("Průvodce souhrnným hlášením VIES")), m_model(model) {
    m_page1 = new ShPage1(this, model);
    m_page2 = new ShPage2(this, model);
    m_page3 = new ShPage3(this, model);
    PodaniKonecPage::Texty texty;
    texty.text =
        u8("Souhrnné hlášení VIES můžete vytisknout nebo\nvyexportovat jako xml soubor.\n\n"
           "Xml soubor můžete odeslat pomocí datové schránky\n");
    texty.tisk = u8("Tisk hlášení");
    texty.exportu = u8("Export hlášení");
    texty.exportDo = u8("Exportovat hlášení do");
    texty.soubor = "dphshv.xml";
    m_page4 = new PodaniKonecPage(
        this, texty, [this]() -> const Podani& { return m_shv; }, [this](const Podani&) { nahledDphsh(this, m_shv); });
    m_page4->setPovoleni([this]() { return lzePodat(); });
    wxWizardPageSimple::Chain(m_page1, m_page2);
    wxWizardPageSimple::Chain(m_page2, m_page3);
    wxWizardPageSimple::Chain(m_page3, m_page4);
    // The wizard is as large as its largest page.
    for (wxWizardPage* page : std::initializer_list<wxWizardPage*>{m_page1, m_page2, m_page3, m_page4})
        GetPageAreaSizer()->Add(page);
    Bind(wxEVT_WIZARD_PAGE_CHANGING, &DphshWizard::onPageChanging, this);
    Bind(wxEVT_WIZARD_FINISHED, [this](wxWizardEvent&) { OnFinished(); });
}

bool DphshWizard::run() { return RunWizard(m_page1); }

void DphshWizard::onPageChanging(wxWizardEvent& event) {
    if (!event.GetDirection()) return;
    if (event.GetPage() == m_page1) {
        if (!m_page1->read(&m_zadani)) {
            event.Veto();
            return;
        }
        m_page2->nactiUlozena(m_zadani.obdobi);
    } else if (event.GetPage() == m_page2) {
        // Page 1 again first: a follow-up list chosen before may have replaced its period.
        if (!m_page1->read(&m_zadani) || !m_page2->read(&m_zadani) || !fillData()) {
            event.Veto();
            return;
        }
        m_page3->refresh();
    }
}

bool DphshWizard::fillData() {
    wxString error;
    wxBusyCursor busy;
    if (shv::fillData(*m_model, m_shv, m_zadani, &error)) return true;
    prompts().error(error, u8("Chyba"), this);
    return false;
}

bool DphshWizard::lzePodat() {
    if (m_shv.pocetVet("VetaR") > 0) return true;
    prompts().info(u8("Nejsou žádné doklady pro vybrané období"), u8(INFORMACE), this);
    return false;
}

void DphshWizard::OnFinished() {
    if (!prompts().question(u8("Uložit souhrnné hlášení?"), u8("Dotaz"), this)) return;
    if (m_model->ulozitPodani(shv::ulozene(m_shv, m_zadani)) == 0)
        prompts().error(u8("Hlášení se nepodařilo uložit"), u8("Chyba"), this);
}
