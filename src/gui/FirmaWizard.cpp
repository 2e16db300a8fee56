#include "FirmaWizard.h"

#include <wx/filename.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <functional>

#include "FirmaPanel.h"
#include "clock.h"
#include "companyfiles.h"
#include "dbmodel.h"
#include "demo/ukazka.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "prompts.h"

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The first page: with the demo company chosen it is also the last one, so the wizard's
// forward button finishes.
class PrvniStranka : public wxWizardPageSimple {
 public:
    PrvniStranka(wxWizard* wizard, std::function<bool()> posledni)
        : wxWizardPageSimple(wizard), m_posledni(std::move(posledni)) {}
    wxWizardPage* GetNext() const override { return m_posledni() ? nullptr : wxWizardPageSimple::GetNext(); }

 private:
    std::function<bool()> m_posledni;
};

// A page with an explaining line above its fields.
wxWizardPageSimple* makePage(wxWizard* wizard, const wxString& intro, wxWindow** content,
                             wxWizardPageSimple* page = nullptr) {
    if (!page) page = new wxWizardPageSimple(wizard);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    auto* text = new wxStaticText(page, wxID_ANY, intro);
    text->Wrap(420);
    sizer->Add(text, wxSizerFlags().Border(wxBOTTOM, 10));
    page->SetSizer(sizer);
    *content = page;
    return page;
}
}  // namespace

FirmaWizard::FirmaWizard(wxWindow* parent, bool prvniSpusteni)
    : wxWizard(parent, wxID_ANY, prvniSpusteni ? u8("Evida – nová firma") : u8("Přidat firmu")),
      m_prvniSpusteni(prvniSpusteni) {
    wxWindow* page = nullptr;
    m_firmaPage = makePage(this,
                           prvniSpusteni ? u8("Vítejte v programu Evida. Založte firmu, jejíž evidenci budete "
                                              "vést, nebo si program nejdřív vyzkoušejte na ukázkové firmě "
                                              "s vyplněnými knihami. Další firmy můžete přidat později "
                                              "v menu Systém – Firma.")
                                         : u8("Zadejte údaje nové firmy. Název a IČ jsou povinné."),
                           &page, prvniSpusteni ? new PrvniStranka(this, [this] { return ukazka(); }) : nullptr);
    if (prvniSpusteni) {
        // Someone who first wants to look around gets a company with filled books instead.
        m_nova = new wxRadioButton(page, wxID_ANY, u8("Založit novou firmu"), wxDefaultPosition, wxDefaultSize,
                                   wxRB_GROUP, wxDefaultValidator, "nova");
        m_ukazka = new wxRadioButton(page, wxID_ANY, u8("Vytvořit ukázkovou firmu"), wxDefaultPosition,
                                     wxDefaultSize, 0, wxDefaultValidator, "ukazka");
        m_ukazka->SetToolTip(u8("Plátce DPH s doklady za minulý a letošní rok, na kterém si program vyzkoušíte"));
        m_nova->SetValue(true);
        page->GetSizer()->Add(m_nova, wxSizerFlags().Border(wxBOTTOM, 4));
        page->GetSizer()->Add(m_ukazka, wxSizerFlags().Border(wxBOTTOM, 10));
        m_nova->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { onVolba(); });
        m_ukazka->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { onVolba(); });
    }
    m_identity = new FirmaPanel(page, FirmaPanel::IDENTITY);
    page->GetSizer()->Add(m_identity, wxSizerFlags(1).Expand());

    m_adresaPage = makePage(this, u8("Adresa a kontakty firmy (můžete je doplnit i později)."), &page);
    m_adresa = new FirmaPanel(page, FirmaPanel::ADDRESS);
    page->GetSizer()->Add(m_adresa, wxSizerFlags(1).Expand());

    m_obdobiPage = makePage(this, u8("Účetní období, ve kterém začnete evidenci vést."), &page);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(new wxStaticText(page, wxID_ANY, u8("Období:")), wxSizerFlags().CenterVertical().Border(wxRIGHT, 8));
    const int rok = lxutils::today().GetYear();
    m_rok = new wxSpinCtrl(page, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS,
                           companyfiles::obdobiMin(), companyfiles::obdobiMax(), rok, "rok");
    row->Add(m_rok);
    page->GetSizer()->Add(row);

    wxWizardPageSimple::Chain(m_firmaPage, m_adresaPage);
    wxWizardPageSimple::Chain(m_adresaPage, m_obdobiPage);
    GetPageAreaSizer()->Add(m_firmaPage);
    GetPageAreaSizer()->Add(m_adresaPage);
    GetPageAreaSizer()->Add(m_obdobiPage);
    Bind(wxEVT_WIZARD_PAGE_CHANGING, &FirmaWizard::onPageChanging, this);
    // The stock label follows the system language; the program speaks Czech.
    if (wxWindow* cancel = FindWindow(wxID_CANCEL)) cancel->SetLabel(u8("Zrušit"));
}

wxString FirmaWizard::check() const {
    Firma firma;
    Adresa adresa;
    m_identity->fill(&firma, &adresa);
    return companyfiles::firmaError(firma.nazev(), firma.ic());
}

bool FirmaWizard::ukazka() const { return m_ukazka && m_ukazka->GetValue(); }

void FirmaWizard::onVolba() {
    // The demo needs no data of the user's company: its fields rest and the next step is the end.
    m_identity->Enable(!ukazka());
    if (wxWindow* dalsi = FindWindow(wxID_FORWARD))
        dalsi->SetLabel(ukazka() ? wxGetTranslation("&Finish") : wxGetTranslation("&Next >"));
}

bool FirmaWizard::vytvorUkazku() {
    DbModel* model = DbModel::instance();
    wxString chyba;
    {
        wxBusyCursor busy;
        if (model && ukazka::vytvorFirmu(*model, lxutils::today().GetYear(), &chyba)) return true;
    }
    prompts().error(chyba.empty() ? u8("Nepodařilo se vytvořit databázi nové firmy") : chyba, u8("Informace"),
                    GetParent());
    return false;
}

void FirmaWizard::onPageChanging(wxWizardEvent& event) {
    // Going back is always allowed; going on needs a name and an IČ no other company has.
    if (!event.GetDirection() || event.GetPage() != m_firmaPage || ukazka()) return;
    const wxString error = check();
    if (error.empty()) return;
    prompts().info(error, u8("Informace"), this);
    event.Veto();
}

bool FirmaWizard::run() {
    m_identity->focusFirst();
    if (!RunWizard(m_firmaPage)) return false;
    if (ukazka()) return vytvorUkazku();
    const wxString error = check();
    if (!error.empty()) {
        prompts().info(error, u8("Informace"), GetParent());
        return false;
    }
    companyfiles::NovaFirma nova;
    nova.firma.setValid(true);
    nova.adresa.setValid(true);
    m_identity->fill(&nova.firma, &nova.adresa);
    m_adresa->fill(&nova.firma, &nova.adresa);
    nova.rok = m_rok->GetValue();

    DbModel* model = DbModel::instance();
    if (model && companyfiles::createFirma(*model, nova)) return true;

    prompts().error(u8("Nepodařilo se vytvořit databázi nové firmy"), u8("Informace"), GetParent());
    // createFirma closed the company open before; open it again.
    lxSettings* settings = lxSettings::instance();
    if (model && !m_prvniSpusteni && !settings->dbname().empty() &&
        wxFileName::FileExists(lxutils::dataDir() + "/" + settings->dbname()) && model->openDatabase())
        model->fillData();
    return false;
}
