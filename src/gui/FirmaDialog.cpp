#include "FirmaDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>

#include "FirmaPanel.h"
#include "companyfiles.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "prompts.h"

FirmaDialog::FirmaDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, wxString::FromUTF8("Firma"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    m_panel = new FirmaPanel(this, FirmaPanel::IDENTITY | FirmaPanel::ADDRESS | FirmaPanel::IMAGES);
    if (DbModel* model = DbModel::instance()) {
        const Firma& firma = model->firma();
        m_panel->show(firma, model->getAdresa(firma.adresaid()));
    }
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(m_panel, wxSizerFlags(1).Expand().Border(wxALL, 8));
    top->Add(CreateSeparatedButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, 8));
    // The stock label follows the system language; the program speaks Czech.
    if (wxWindow* cancel = FindWindow(wxID_CANCEL)) cancel->SetLabel(wxString::FromUTF8("Zrušit"));
    SetSizerAndFit(top);
    CentreOnParent();
    m_panel->focusFirst();
    Bind(wxEVT_BUTTON, &FirmaDialog::onOK, this, wxID_OK);
}

void FirmaDialog::onOK(wxCommandEvent&) {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) {
        EndModal(wxID_CANCEL);
        return;
    }
    lxSettings* settings = lxSettings::instance();
    Firma firma = model->firma();
    Adresa adresa = model->getAdresa(firma.adresaid());
    const bool hadAdresa = adresa.isValid();
    m_panel->fill(&firma, &adresa);
    const wxString error = companyfiles::firmaError(firma.nazev(), firma.ic(), settings->dbname());
    if (!error.empty()) {
        prompts().info(error, wxString::FromUTF8("Informace"), this);
        return;
    }
    model->setFirma(firma);
    if (hadAdresa) {
        model->editAdresa(adresa);
    } else {
        adresa.setId(firma.adresaid() > 0 ? firma.adresaid() : model->getLastId("adresa"));
        adresa.setValid(true);
        model->addAdresa(adresa);
    }
    // The settings always name the company as its database does.
    settings->editDbnamePair(settings->dbname(), companyfiles::firmaKey(firma.nazev(), firma.ic()));
    EndModal(wxID_OK);
}
