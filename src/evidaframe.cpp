#include "evidaframe.h"

#include <wx/filename.h>
#include <wx/msgdlg.h>
#include <wx/statusbr.h>

#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "companysetup.h"

evidaFrame::evidaFrame(const wxString& title) : wxFrame(nullptr, wxID_ANY, title) {
    lxSettings* s = lxSettings::instance();
    SetSize(s->x(), s->y(), s->w(), s->h());
    if (s->maximized()) Maximize();
    CreateStatusBar(3);
    Bind(MODEL_UPDATED, &evidaFrame::onModelUpdated, this);
    Bind(MODEL_MSG, &evidaFrame::onModelMsg, this);
}

evidaFrame::~evidaFrame() {
    lxSettings* s = lxSettings::instance();
    if (!IsMaximized()) {
        const wxRect r = GetRect();
        s->setX(r.x);
        s->setY(r.y);
        s->setW(r.width);
        s->setH(r.height);
    }
    s->setMaximized(IsMaximized());
    s->save();
    if (m_model) {
        m_model->closeDatabase();
        m_model->shutdownModel();
    }
}

bool evidaFrame::loadDatabase() {
    m_model = std::make_unique<DbModel>(this);
    m_model->initModel();
    lxSettings* s = lxSettings::instance();
    if (lxutils::versionToInt(lxutils::EVIDA_VERSION) > 1299) m_model->updateDbFirma();
    if (s->dbname().empty()) s->setDbname(lxutils::getUniqueDbName());
    const wxString path = lxutils::dataDir() + "/" + s->dbname();
    if (wxFileName::FileExists(path)) {
        if (!m_model->openDatabase()) {
            wxMessageBox(wxString::FromUTF8("Nepodařilo se otevřít databázi"), "Informace", wxOK | wxICON_ERROR);
            return false;
        }
        m_model->fillData();
    } else {
        if (!companysetup::createPlaceholderCompany(*m_model, path)) {
            wxMessageBox(wxString::FromUTF8("Nepodařilo se otevřít databázi"), "Informace", wxOK | wxICON_ERROR);
            return false;
        }
        wxMessageBox(wxString::FromUTF8("Nepodařilo se otevřít databázi\nByla vytvořena nová"), "Informace",
                     wxOK | wxCENTRE);
    }
    const Firma& f = m_model->firma();
    s->addDbnamePair(s->dbname(), f.nazev() + "_" + f.ic());
    s->editDbnamePair(s->dbname(), f.nazev() + "_" + f.ic());
    updateStatusBar();
    return true;
}

void evidaFrame::updateStatusBar() {
    if (!m_model) return;
    const Firma& f = m_model->firma();
    SetStatusText(wxString::Format(wxString::FromUTF8("%s, IČ: %s"), f.nazev(), f.ic()), 0);
    SetStatusText(wxString::Format("%d", m_model->currentRok()), 1);
    SetStatusText(wxString::Format("Datum: %s", lxSettings::instance()->datum().Format("%x")), 2);
}

void evidaFrame::onModelUpdated(wxCommandEvent&) { updateStatusBar(); }

void evidaFrame::onModelMsg(wxCommandEvent& event) {
    wxMessageBox(event.GetString(), "Informace", wxOK | wxICON_INFORMATION, this);
}
