#include "SeznamDphDialog.h"

#include <wx/button.h>
#include <wx/file.h>
#include <wx/filename.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "ObdobiPanel.h"
#include "dbmodel.h"
#include "dph/seznamdph.h"
#include "lxsettings.h"
#include "printchoice.h"
#include "prompts.h"
#include "seznamdphprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// The month of the working date when it lies in the accounting year, else January.
DphObdobi vychoziObdobi(int rok) {
    const wxDateTime datum = lxSettings::instance()->datum();
    const int mesic = datum.IsValid() && datum.GetYear() == rok ? datum.GetMonth() + 1 : 1;
    return DphObdobi::zMesice(rok, mesic);
}

}  // namespace

SeznamDphDialog::SeznamDphDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Seznam dokladů DPH"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE, "seznamDph") {
    DbModel* model = openModel();
    const int rok = model ? model->currentRok() : wxDateTime::Today().GetYear();
    m_obdobi = new ObdobiPanel(this, rok, vychoziObdobi(rok));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(new wxStaticText(this, wxID_ANY, u8("Vyberte období:")), wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, 12));
    top->Add(m_obdobi, wxSizerFlags().Border(wxALL, 12));
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    auto* tisk = new wxButton(this, wxID_ANY, u8("Tisk seznamu"), wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, "tiskSeznamu");
    auto* csv = new wxButton(this, wxID_ANY, u8("Export seznamu"), wxDefaultPosition, wxDefaultSize, 0,
                             wxDefaultValidator, "exportSeznamu");
    buttons->Add(tisk, wxSizerFlags().Border(wxRIGHT, 6));
    buttons->Add(csv, wxSizerFlags().Border(wxRIGHT, 18));
    buttons->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));
    top->Add(buttons, wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, 12));
    SetSizerAndFit(top);
    CentreOnParent();

    tisk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { tiskSeznamu(); });
    csv->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { exportSeznamu(); });
}

bool SeznamDphDialog::vybraneObdobi(DbModel** model, DphObdobi* obdobi) {
    *model = openModel();
    if (!*model) return false;
    const wxString chyba = m_obdobi->chyba();
    if (!chyba.empty()) {
        prompts().info(chyba, u8("Informace"), this);
        m_obdobi->focusChyba();
        return false;
    }
    *obdobi = m_obdobi->obdobi();
    if (!obdobi->isValid() || !(*model)->someDokladForDph(obdobi->od, obdobi->doDne)) {
        prompts().info(u8("Nejsou žádné doklady pro vybrané období"), u8("Informace"), this);
        return false;
    }
    return true;
}

wxString SeznamDphDialog::tiskSeznamu() {
    DbModel* model = nullptr;
    DphObdobi o;
    if (!vybraneObdobi(&model, &o)) return wxString();
    const std::vector<seznamdph::Sekce> sekce = seznamdph::seznam(*model, o.od, o.doDne);
    const wxString firma = model->firma().nazev();
    const wxString soubor = u8("Seznam dokladů DPH ") + o.text();
    switch (o.druh) {
        case DruhObdobi::Mesic: {
            SeznamDphPrint print(this, firma, DruhObdobi::Mesic, o.mesic, o.rok, sekce);
            return nahledNeboPdf(print, soubor, this);
        }
        case DruhObdobi::Ctvrtleti: {
            SeznamDphPrint print(this, firma, DruhObdobi::Ctvrtleti, o.ctvrtleti, o.rok, sekce);
            return nahledNeboPdf(print, soubor, this);
        }
        case DruhObdobi::Obdobi: break;
    }
    SeznamDphPrint print(this, firma, o.od, o.doDne, sekce);
    return nahledNeboPdf(print, soubor, this);
}

wxString SeznamDphDialog::exportSeznamu() {
    DbModel* model = nullptr;
    DphObdobi o;
    if (!vybraneObdobi(&model, &o)) return wxString();
    wxString path = prompts().chooseFile(u8("Exportovat seznam dokladů DPH do"), wxGetHomeDir(), "seznam-dph.csv",
                                         u8("CSV soubory (*.csv)|*.csv"), true, this);
    if (path.empty()) return wxString();
    wxFileName name(path);
    if (!name.HasExt()) name.SetExt("csv");
    path = name.GetFullPath();

    // The text must outlive its UTF-8 buffer, which may point into it.
    const wxString csv = seznamdph::csv(seznamdph::seznam(*model, o.od, o.doDne));
    const wxScopedCharBuffer bytes = csv.utf8_str();
    // Written beside the target and renamed over it at the end, so that a failed write leaves
    // an existing file as it was.
    wxTempFile file;
    if (!file.Open(path) || !file.Write(bytes.data(), bytes.length()) || !file.Commit()) {
        prompts().error(wxString::Format(u8("Soubor %s se nepodařilo uložit."), path), u8("Informace"), this);
        return wxString();
    }
    return path;
}

wxString SeznamDphDialog::createHeader(const lxDphForDokladArray& lines) { return seznamdph::createHeader(lines); }

wxString SeznamDphDialog::createRowsForRadky(const wxArrayString& radky, const wxDateTime& od, const wxDateTime& doDne,
                                             const wxString& nadpis, const wxString& podnadpis) {
    DbModel* model = openModel();
    if (!model) return wxString();
    const seznamdph::Sekce sekce = seznamdph::createRowsForRadky(*model, radky, od, doDne, nadpis, podnadpis);
    return sekce.bloky.empty() ? wxString() : seznamdph::csvSekce(sekce);
}
