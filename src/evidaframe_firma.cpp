// The main window's commands over companies, accounting periods, backups and restores.
#include <wx/filename.h>
#include <wx/menu.h>

#include <algorithm>

#include "FirmaDialog.h"
#include "FirmaWizard.h"
#include "clock.h"
#include "companyfiles.h"
#include "dbmodel.h"
#include "evidaframe.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
const char* const INFORMACE = "Informace";

// A command run from the menu carries -1; one run by another command (after a deletion) 0.
bool fromMenu(const wxCommandEvent& event) { return event.GetInt() != 0; }

}  // namespace

bool evidaFrame::openCurrent() {
    const wxString dbname = lxSettings::instance()->dbname();
    if (dbname.empty() || !wxFileName::FileExists(lxutils::dataDir() + "/" + dbname)) return false;
    if (!m_model->openDatabase()) return false;
    m_model->fillData();
    return true;
}

// ------------------------------------------------------------------------- companies

void evidaFrame::onUpravitFirmu(wxCommandEvent&) {
    FirmaDialog dialog(this);
    if (dialog.ShowModal() != wxID_OK) return;
    enableCommands();
    createRemoveJizdy();
    updateStatusBar();
}

void evidaFrame::onPridatFirmu(wxCommandEvent& event) { pridatFirmu(fromMenu(event)); }

void evidaFrame::pridatFirmu(bool zMenu) {
    FirmaWizard wizard(this, false);
    if (wizard.run()) {
        finishLoad();
        return;
    }
    if (zMenu) return;
    // The last company was deleted and no other was made: nothing is left to open.
    lxSettings::instance()->setDbname();
    quit(u8("Program bude ukončen"));
}

void evidaFrame::onZmenitFirmu(wxCommandEvent& event) { zmenitFirmu(fromMenu(event)); }

void evidaFrame::zmenitFirmu(bool zMenu) {
    lxSettings* settings = lxSettings::instance();
    const wxArrayString firmy = settings->firmy();
    const Firma& open = m_model->firma();
    const int current = firmy.Index(wxString::Format(u8("%s, IČ: %s"), open.nazev(), open.ic()));
    const int choice =
        prompts().singleChoice(u8("Vyberte firmu:"), u8("Firma"), firmy, current == wxNOT_FOUND ? 0 : current, this);
    if (choice < 0) {
        if (zMenu) return;
        settings->setDbname();
        quit(u8("Program bude ukončen"));
        return;
    }
    wxString nazev, ic;
    companyfiles::parseFirmaLine(firmy[choice], &nazev, &ic);
    if (m_model->isOpen() && nazev == open.nazev() && ic == open.ic()) return;

    const wxString previous = settings->dbname();
    settings->setDbname(settings->dbnameByFirma(companyfiles::firmaKey(nazev, ic)));
    m_model->closeDatabase();
    showSplash();
    if (openCurrent()) {
        finishLoad();
        return;
    }
    closeSplash();
    prompts().error(m_model->openError(), u8(INFORMACE), this);
    // Back to the company open before, if it is still there.
    settings->setDbname(previous);
    if (openCurrent()) {
        finishLoad();
        return;
    }
    settings->setDbname();
    quit(u8("Program bude ukončen"));
}

void evidaFrame::onSmazatFirmu(wxCommandEvent&) {
    lxSettings* settings = lxSettings::instance();
    const wxArrayString firmy = settings->firmy();
    const int choice = prompts().singleChoice(u8("Vyberte firmu pro smazání:"), u8("Firma"), firmy, 0, this);
    if (choice < 0) return;
    wxString nazev, ic;
    companyfiles::parseFirmaLine(firmy[choice], &nazev, &ic);
    wxString answer;
    const wxString question = wxString::Format(u8("Pro smazání firmy\n%s, IČ: %s\nZadejte ANO"), nazev, ic);
    if (!prompts().textEntry(question, u8("Smazat firmu"), &answer, this) || answer != "ANO") return;

    m_model->closeDatabase();
    companyfiles::deleteFirma(companyfiles::firmaKey(nazev, ic));
    // The user picks the company to work with next, or makes one when none is left.
    if (settings->dbmap().empty())
        pridatFirmu(false);
    else
        zmenitFirmu(false);
    if (m_firmaZmenit) m_firmaZmenit->Enable(settings->dbcount() > 1);
}

// ------------------------------------------------------------------------- periods

void evidaFrame::onPridatObdobi(wxCommandEvent&) {
    const long min = companyfiles::obdobiMin(), max = companyfiles::obdobiMax();
    long rok = std::clamp<long>(m_model->currentRok() - 1, min, max);
    if (!prompts().numberEntry(u8("Nové období:"), wxString(), u8("Zadejte období"), &rok, min, max, this)) return;
    m_model->setCurrentRok(static_cast<int>(rok));
    m_model->setDefaultRadaCislo();
    lxSettings::instance()->setSplatnost(m_model->getSplatnost(static_cast<int>(rok)));
    enableCommands();
    createRemoveJizdy();
    updateStatusBar();
}

void evidaFrame::onZmenitObdobi(wxCommandEvent& event) { zmenitObdobi(fromMenu(event)); }

void evidaFrame::zmenitObdobi(bool zMenu) {
    const wxArrayString roky = m_model->getObdobiAsStrings(-1);
    const int current = roky.Index(wxString::Format("%d", m_model->currentRok()));
    const int choice =
        prompts().singleChoice(u8("Období:"), u8("Vyberte období"), roky, current == wxNOT_FOUND ? 0 : current, this);
    long rok = 0;
    if (choice >= 0) {
        roky[choice].ToLong(&rok);
    } else if (!zMenu && m_model->currentRok() < 0) {
        // The current period was deleted and none was chosen: work in the latest one.
        rok = m_model->maxRok();
    }
    if (rok <= 0) return;
    showSplash();
    m_model->setCurrentRok(static_cast<int>(rok));
    lxSettings::instance()->setSplatnost(m_model->getSplatnost(static_cast<int>(rok)));
    m_model->setDefaultRadaCislo();
    createRemoveJizdy();
    closeSplash();
    enableCommands();
    updateStatusBar();
}

void evidaFrame::onSmazatObdobi(wxCommandEvent&) {
    const wxArrayString roky = m_model->getObdobiAsStrings(-1);
    const int choice = prompts().singleChoice(u8("Období:"), u8("Smazat období"), roky, 0, this);
    if (choice < 0) return;
    long rok = 0;
    if (!roky[choice].ToLong(&rok)) return;
    m_model->deleteObdobi(static_cast<int>(rok));
    zmenitObdobi(false);
    enableCommands();
}

// ------------------------------------------------------------------------- backup and restore

void evidaFrame::onZalohovat(wxCommandEvent&) { zalohovat(); }

bool evidaFrame::zalohovat() {
    lxSettings* settings = lxSettings::instance();
    const wxString directory = prompts().chooseDirectory(u8("Adresář pro zálohy"), settings->backupPath(), this);
    if (directory.empty()) return false;
    if (!lxutils::zalohaDat(directory)) {
        prompts().error(u8("Vytvoření zálohy se nezdařilo"), u8(INFORMACE), this);
        return false;
    }
    settings->setLastBackup(lxutils::today());
    settings->setBackupPath(directory);
    prompts().info(u8("Vytvoření zálohy proběhlo úspěšně"), u8(INFORMACE), this);
    return true;
}

void evidaFrame::onObnovit(wxCommandEvent&) {
    lxSettings* settings = lxSettings::instance();
    const Firma firma = m_model->firma();
    wxString answer;
    const wxString question =
        wxString::Format(u8("Pro obnovení dat firmy\n%s, IČ: %s\nze zálohy.\nZadejte ANO\n(Přepíše aktuální data)"),
                         firma.nazev(), firma.ic());
    if (!prompts().textEntry(question, u8("Obnovení dat"), &answer, this) || answer != "ANO") return;

    const wxString path = prompts().chooseFile(u8("Otevřít soubor databáze"), settings->backupPath(), wxString(),
                                               u8("Soubor databáze (*.db)|*.db"), false, this);
    const companyfiles::Obnova check =
        path.empty() ? companyfiles::Obnova::NENI_FIRMA : companyfiles::checkZaloha(path, firma.nazev(), firma.ic());
    if (check != companyfiles::Obnova::OK) {
        prompts().error(companyfiles::obnovaError(check), u8(INFORMACE), this);
        return;
    }

    m_model->closeDatabase();
    const bool copied = companyfiles::replaceDatabase(path, lxutils::dataDir() + "/" + settings->dbname());
    if (!m_model->openDatabase()) {
        prompts().error(m_model->openError(), u8(INFORMACE), this);
        return;
    }
    m_model->fillData();
    finishLoad();
    if (copied)
        prompts().info(u8("Data byla obnovena"), u8(INFORMACE), this);
    else
        prompts().error(u8("Data se nepodařilo obnovit"), u8(INFORMACE), this);
}
