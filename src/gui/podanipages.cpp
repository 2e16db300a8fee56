#include "podanipages.h"

#include <wx/button.h>
#include <wx/hyperlink.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/stdpaths.h>

#include "PriznaniDialog.h"
#include "dph/podani.h"
#include "prompts.h"

const char* const EPO_URL = "https://adisspr.mfcr.cz/pmd/epo/formulare";

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }
}  // namespace

PodaniUvodPage::PodaniUvodPage(wxWizard* parent, DbModel* model, const wxString& text) : wxWizardPageSimple(parent) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(new wxStaticText(this, wxID_ANY, text), 0, wxALL, 10);
    auto* nastaveni = new wxButton(this, wxID_ANY, u8("Nastavení plátce"));
    nastaveni->SetName("nastaveniPlatce");
    nastaveni->Bind(wxEVT_BUTTON, [this, model](wxCommandEvent&) {
        PriznaniDialog dialog(this, model);
        dialog.ShowModal();
    });
    sizer->Add(nastaveni, 0, wxALL, 10);
    SetSizer(sizer);
}

PodaniKonecPage::PodaniKonecPage(wxWizard* parent, const Texty& texty, std::function<const Podani&()> podani,
                                 std::function<void(const Podani&)> tisk)
    : wxWizardPageSimple(parent), m_texty(texty), m_podani(std::move(podani)), m_tisk(std::move(tisk)) {
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(new wxStaticText(this, wxID_ANY, texty.text), 0, wxLEFT | wxRIGHT | wxTOP, 10);
    sizer->Add(new wxHyperlinkCtrl(this, wxID_ANY, u8("Elektronická podání pro finanční správu"), EPO_URL), 0,
               wxLEFT | wxRIGHT | wxBOTTOM, 10);
    auto* tiskButton = new wxButton(this, wxID_ANY, texty.tisk);
    tiskButton->SetName("tisk");
    auto* exportButton = new wxButton(this, wxID_ANY, texty.exportu);
    exportButton->SetName("export");
    tiskButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { tisknout(); });
    exportButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { exportovat(); });
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(tiskButton, 0, wxRIGHT, 10);
    buttons->Add(exportButton);
    sizer->Add(buttons, 0, wxALL, 10);
    SetSizer(sizer);
}

void PodaniKonecPage::tisknout() {
    if (m_povoleni && !m_povoleni()) return;
    m_tisk(m_podani());
}

bool PodaniKonecPage::exportovat() {
    if (m_povoleni && !m_povoleni()) return false;
    const Podani& podani = m_podani();
    // Checked before asking for the file, so nobody chooses a file that is then not written.
    const wxString chyby = podani.validate();
    if (!chyby.empty()) {
        prompts().error(u8("Podání neodpovídá schématu finanční správy a nebylo uloženo:\n") + chyby, u8("Chyba"), this);
        return false;
    }
    wxString path = prompts().chooseFile(m_texty.exportDo, wxStandardPaths::Get().GetDocumentsDir(), m_texty.soubor,
                                         u8("XML soubory (*.xml)|*.xml"), true, this);
    if (path.empty()) return false;
    if (!path.Lower().EndsWith(".xml")) path += ".xml";
    wxString error;
    if (!podani.saveToXml(path, &error)) {
        prompts().error(error, u8("Chyba"), this);
        return false;
    }
    return true;
}
