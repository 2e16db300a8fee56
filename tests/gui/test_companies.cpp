// Companies, periods, backup and restore through the main window's commands.
#include <wx/datectrl.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/treectrl.h>

#include "book/lxbook.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "shelltest.h"

namespace {

void writeIni(const char* content) {
    wxFFile f(lxutils::dataDir() + "/evida.ini", "w");
    f.Write(wxString::FromUTF8(content));
}

bool enabled(evidaFrame* frame, int id) { return frame->GetMenuBar()->IsEnabled(id); }

using ShellCompanies = ShellTest;

TEST_F(ShellCompanies, FirstRunWizardCreatesTheCompanyAndOpensIt) {
    m_dialogs.then(createCompany(u8("Účetní Nováková"), "27074358", /*platce=*/true));
    ASSERT_TRUE(start()->isLoaded());
    lxSettings* s = lxSettings::instance();
    EXPECT_EQ(s->dbname(), "evida1.db");
    EXPECT_EQ(s->dbcount(), 1);
    EXPECT_EQ(s->dbnameByFirma(u8("Účetní Nováková_27074358")), "evida1.db");
    EXPECT_EQ(DbModel::instance()->getAdresa(1).misto(), "Praha");
    EXPECT_EQ(statusText(0), u8("Účetní Nováková, IČ: 27074358"));
    EXPECT_EQ(statusText(1), "2025");
    EXPECT_EQ(statusText(2), "Datum: 20.06.2025");
    EXPECT_EQ(m_frame->book()->currentNavigation(), NAV_HOME);
    EXPECT_EQ(m_prompts.shown().size(), 0u) << m_prompts.transcript();
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_FIRMA_ZMENIT));
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_OBDOBI_ZMENIT));
}

TEST_F(ShellCompanies, FirstRunWizardRefusesAMissingIcAndItsCancelEndsTheProgram) {
    m_dialogs.then([](wxDialog* wizard) {
        setText(wizard, "nazev", "Alfa");
        click(wizard, wxID_FORWARD);  // vetoed: no IČ
        wizard->EndModal(wxID_CANCEL);
    });
    EXPECT_FALSE(start()->isLoaded());
    EXPECT_EQ(m_prompts.transcript(), u8("Vyplňte IČ firmy.\n"));
    EXPECT_TRUE(lxSettings::instance()->dbname().empty());
    EXPECT_FALSE(wxFileName::FileExists(dataFile("evida1.db")));
}

TEST_F(ShellCompanies, MissingFileGivesThePlaceholderCompanyWithTheNextFreeKey) {
    addCompany("evida1.db", "ABC", "0");
    writeIni(
        "[DB]\ndbcount=2\ndbname=evida2.db\ndbname0=evida1.db\ndbfirma0=ABC_0\ndbname1=evida2.db\ndbfirma1=Gone_5\n");
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_EQ(m_prompts.transcript(), u8("Nepodařilo se otevřít databázi\nByla vytvořena nová\n"));
    const Firma& f = DbModel::instance()->firma();
    EXPECT_EQ(f.nazev(), "ABC");
    EXPECT_EQ(f.ic(), "1");
    EXPECT_EQ(lxSettings::instance()->dbnameByFirma("ABC_1"), "evida2.db");
    EXPECT_EQ(DbModel::instance()->currentRok(), 2025);
}

TEST_F(ShellCompanies, DeletionNeedsExactlyAno) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    const char* const answers[] = {"ano", "ANO ", " ANO", "Ano", nullptr};  // nullptr: Cancel
    for (const char* answer : answers) {
        m_prompts.answerChoice(0);
        if (answer)
            m_prompts.answerText(answer);
        else
            m_prompts.cancelText();
        command(evidaFrame::ID_FIRMA_SMAZAT);
        EXPECT_TRUE(wxFileName::FileExists(dataFile("evida1.db"))) << (answer ? answer : "cancel");
        EXPECT_TRUE(DbModel::instance()->isOpen());
        EXPECT_FALSE(ended());
    }
    ASSERT_EQ(m_prompts.shown().size(), 10u);
    EXPECT_EQ(m_prompts.shown()[1].text, u8("Pro smazání firmy\nAlfa, IČ: 1\nZadejte ANO"));
    EXPECT_EQ(m_prompts.shown()[1].caption, "Smazat firmu");
}

TEST_F(ShellCompanies, DeletingTheOpenCompanyAsksWhichOneToOpen) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2");
    ASSERT_TRUE(start()->isLoaded());
    m_prompts.answerChoice(0);
    m_prompts.answerText("ANO");
    m_prompts.answerChoice(0);  // the only one left
    command(evidaFrame::ID_FIRMA_SMAZAT);
    EXPECT_FALSE(wxFileName::FileExists(dataFile("evida1.db")));
    EXPECT_EQ(m_prompts.shown().back().text, u8("Vyberte firmu:"));
    EXPECT_EQ(statusText(0), u8("Beta, IČ: 2"));
    EXPECT_TRUE(DbModel::instance()->isOpen());
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_FIRMA_ZMENIT));
}

TEST_F(ShellCompanies, DeletingTheLastCompanyRunsTheWizardWhoseCancelEndsTheProgram) {
    addCompany("evida1.db", "Alfa", "1");
    ASSERT_TRUE(start()->isLoaded());
    m_prompts.answerChoice(0);
    m_prompts.answerText("ANO");
    m_dialogs.then(cancelDialog());
    command(evidaFrame::ID_FIRMA_SMAZAT);
    ASSERT_EQ(m_dialogs.titles.size(), 1u);
    EXPECT_EQ(m_dialogs.titles[0], u8("Přidat firmu"));
    EXPECT_EQ(m_prompts.shown().back().text, u8("Program bude ukončen"));
    EXPECT_TRUE(ended());
    EXPECT_FALSE(wxFileName::FileExists(dataFile("evida1.db")));
    closeFrame();
    // The next start begins with the first-run wizard.
    lxSettings::reset();
    lxSettings::instance()->load();
    EXPECT_TRUE(lxSettings::instance()->dbname().empty());
    EXPECT_EQ(lxSettings::instance()->dbcount(), 0);
}

TEST_F(ShellCompanies, NewCompanyRefillsTheGapInFileNames) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida3.db", "Gama", "3");
    ASSERT_TRUE(start()->isLoaded());
    m_dialogs.then(cancelDialog());
    command(evidaFrame::ID_FIRMA_PRIDAT);  // cancelled from the menu: nothing happens
    EXPECT_FALSE(ended());
    EXPECT_EQ(statusText(0), u8("Alfa, IČ: 1"));

    m_dialogs.then(createCompany("Beta", "2", false, 2024));
    command(evidaFrame::ID_FIRMA_PRIDAT);
    EXPECT_EQ(lxSettings::instance()->dbname(), "evida2.db");
    EXPECT_EQ(lxSettings::instance()->dbcount(), 3);
    EXPECT_EQ(statusText(0), u8("Beta, IČ: 2"));
    EXPECT_EQ(statusText(1), "2024");
    EXPECT_EQ(lxSettings::instance()->datum().FormatISODate(), "2024-12-31");
}

TEST_F(ShellCompanies, ChangeCompanyCancelFromTheMenuKeepsItAfterADeletionEndsTheProgram) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2");
    ASSERT_TRUE(start()->isLoaded());
    m_prompts.answerChoice(0);  // the open one: nothing happens
    command(evidaFrame::ID_FIRMA_ZMENIT);
    command(evidaFrame::ID_FIRMA_ZMENIT);  // cancelled
    EXPECT_FALSE(ended());
    EXPECT_EQ(statusText(0), u8("Alfa, IČ: 1"));
    command(evidaFrame::ID_FIRMA_ZMENIT, /*fromMenu=*/false);
    EXPECT_TRUE(ended());
    EXPECT_EQ(m_prompts.shown().back().text, u8("Program bude ukončen"));
    EXPECT_TRUE(lxSettings::instance()->dbname().empty());
}

TEST_F(ShellCompanies, EditingTheCompanyUpdatesSettingsVatCommandsAndVehicleLog) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2");
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_ULOZENA_PRIZNANI));
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_CLENENI_DPH));
    EXPECT_TRUE(m_frame->jizdyShown());
    m_dialogs.then([this](wxDialog* dialog) {
        setText(dialog, "nazev", "Beta");
        setText(dialog, "ic", "2");
        click(dialog, wxID_OK);  // refused: Beta_2 is another company
        EXPECT_TRUE(dialog->IsModal());
        EXPECT_EQ(m_prompts.transcript(), u8("Firma Beta, IČ: 2 už v programu je.\n"));
        setText(dialog, "nazev", "Alfa Nova");
        setText(dialog, "ic", "11");
        setCheck(dialog, "platce", true);
        setCheck(dialog, "pausal", true);
        setText(dialog, "ulice", u8("Dlouhá"));
        click(dialog, wxID_OK);
    });
    command(evidaFrame::ID_FIRMA_UPRAVIT);
    EXPECT_EQ(lxSettings::instance()->dbnameByFirma("Alfa Nova_11"), "evida1.db");
    EXPECT_FALSE(lxSettings::instance()->firmaExists("Alfa_1"));
    EXPECT_EQ(statusText(0), u8("Alfa Nova, IČ: 11"));
    EXPECT_EQ(DbModel::instance()->getAdresa(1).ulice(), u8("Dlouhá"));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_ULOZENA_PRIZNANI));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_CLENENI_DPH));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_DPH_SEZNAM));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_DPH_PRIZNANI));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_DPH_KONTROLNI));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_KONTROLA_PODANI));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_DPH_SOUHRNNE));
    // Without the tax administration's code lists the return asks to download them first;
    // declined, no wizard opens.
    const size_t dialogy = m_dialogs.titles.size();
    m_prompts.clear();
    command(evidaFrame::ID_DPH_PRIZNANI);
    EXPECT_EQ(m_prompts.transcript(), u8("Je třeba stáhnout číselníky potřebné pro přiznání.\nStáhnout teď?\n"));
    EXPECT_EQ(m_dialogs.titles.size(), dialogy);
    m_prompts.clear();
    command(evidaFrame::ID_DPH_KONTROLNI);
    command(evidaFrame::ID_DPH_SOUHRNNE);
    EXPECT_EQ(m_prompts.transcript(), u8("Je třeba stáhnout číselníky potřebné pro hlášení.\nStáhnout teď?\n"
                                         "Je třeba stáhnout číselníky potřebné pro hlášení.\nStáhnout teď?\n"));
    EXPECT_EQ(m_dialogs.titles.size(), dialogy);
    m_dialogs.then([](wxDialog* dialog) { dialog->EndModal(wxID_CANCEL); });
    command(evidaFrame::ID_CLENENI_DPH);
    ASSERT_FALSE(m_dialogs.titles.empty());
    EXPECT_EQ(m_dialogs.titles.back(), u8("Členění DPH"));
    m_dialogs.then([](wxDialog* dialog) { dialog->EndModal(wxID_CANCEL); });
    command(evidaFrame::ID_DPH_SEZNAM);
    EXPECT_EQ(m_dialogs.titles.back(), u8("Seznam dokladů DPH"));
    m_dialogs.then([](wxDialog* dialog) { dialog->EndModal(wxID_CANCEL); });
    command(evidaFrame::ID_KONTROLA_PODANI);
    EXPECT_EQ(m_dialogs.titles.back(), u8("Kontrola podání"));
    EXPECT_FALSE(m_frame->jizdyShown());
    m_prompts.clear();
    command(evidaFrame::ID_ULOZENA_PRIZNANI);
    ASSERT_EQ(m_prompts.shown().size(), 1u);
    EXPECT_EQ(m_prompts.shown()[0].text, u8("Žádná uložená přiznání"));
    EXPECT_EQ(m_prompts.shown()[0].caption, "Informace");
}

TEST_F(ShellCompanies, BackupTwiceOnOneDayOverwritesTheSameDirectory) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2");
    lxSettings::instance()->setLastBackup(isoDay("2025-01-01"));
    lxSettings::instance()->save();
    ASSERT_TRUE(start()->isLoaded());
    const wxString target = m_home + "/zalohy";
    m_prompts.answerPath(target);
    m_prompts.answerPath(target);
    command(evidaFrame::ID_ZALOHOVAT);
    Firma f = DbModel::instance()->firma();
    f.setDic("CZ1");
    DbModel::instance()->setFirma(f);
    command(evidaFrame::ID_ZALOHOVAT);
    EXPECT_EQ(m_prompts.transcript(), u8("Adresář pro zálohy\nVytvoření zálohy proběhlo úspěšně\n"
                                         "Adresář pro zálohy\nVytvoření zálohy proběhlo úspěšně\n"));
    const wxString dated = target + "/evida-2025-06-20";
    EXPECT_TRUE(wxFileName::FileExists(dated + "/Beta_2.db"));
    DbModel copy;
    ASSERT_TRUE(copy.openDatabase(dated + "/Alfa_1.db"));
    copy.fillData();
    EXPECT_EQ(copy.firma().dic(), "CZ1");
    EXPECT_EQ(lxSettings::instance()->lastBackup().FormatISODate(), "2025-06-20");
    EXPECT_EQ(lxSettings::instance()->backupPath(), target);
}

TEST_F(ShellCompanies, FailedBackupKeepsTheLastBackupDate) {
    addCompany("evida1.db", "Alfa", "1");
    lxSettings::instance()->setLastBackup(isoDay("2025-01-01"));
    lxSettings::instance()->save();
    ASSERT_TRUE(start()->isLoaded());
    wxFFile(m_home + "/file", "w").Write("x");
    m_prompts.answerPath(m_home + "/file");  // a file, not a directory
    command(evidaFrame::ID_ZALOHOVAT);
    EXPECT_EQ(m_prompts.shown().back().text, u8("Vytvoření zálohy se nezdařilo"));
    EXPECT_EQ(lxSettings::instance()->lastBackup().FormatISODate(), "2025-01-01");
}

TEST_F(ShellCompanies, RestoreAcceptsOnlyTheSameCompanysBackup) {
    addCompany("evida1.db", "Alfa", "1");
    addCompany("evida2.db", "Beta", "2");
    ASSERT_TRUE(wxCopyFile(dataFile("evida1.db"), m_home + "/alfa-backup.db"));
    ASSERT_TRUE(start()->isLoaded());
    Firma f = DbModel::instance()->firma();
    f.setDic("CZ-LATER");
    DbModel::instance()->setFirma(f);

    m_prompts.answerText("ano");  // stops at once
    m_prompts.answerText("ANO");
    m_prompts.answerPath(dataFile("evida2.db"));
    m_prompts.answerText("ANO");
    m_prompts.answerPath("");
    for (int i = 0; i < 3; ++i) command(evidaFrame::ID_OBNOVIT);
    const auto& shown = m_prompts.shown();
    ASSERT_EQ(shown.size(), 7u);
    EXPECT_EQ(shown[0].text,
              u8("Pro obnovení dat firmy\nAlfa, IČ: 1\nze zálohy.\nZadejte ANO\n(Přepíše aktuální data)"));
    EXPECT_EQ(shown[3].text, u8("Data se nepodařilo obnovit.\nNesouhlasí název firmy a IČ"));  // another company
    EXPECT_EQ(shown[6].text, u8("Data se nepodařilo obnovit"));                                // no file chosen
    EXPECT_EQ(DbModel::instance()->firma().dic(), "CZ-LATER");                                 // untouched

    m_prompts.clear();
    m_prompts.answerText("ANO");
    m_prompts.answerPath(m_home + "/alfa-backup.db");
    command(evidaFrame::ID_OBNOVIT);
    EXPECT_EQ(m_prompts.shown().back().text, u8("Data byla obnovena"));
    EXPECT_TRUE(DbModel::instance()->isOpen());
    EXPECT_EQ(DbModel::instance()->firma().dic(), "");
    EXPECT_EQ(lxSettings::instance()->dbname(), "evida1.db");
}

TEST_F(ShellCompanies, AddingAPeriodOffersYearsFrom2005ToNextYear) {
    addCompany("evida1.db", "Alfa", "1", {2025});
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_FALSE(enabled(m_frame, evidaFrame::ID_OBDOBI_SMAZAT));
    m_prompts.answerNumber(2027);  // out of range: the dialog refuses it
    command(evidaFrame::ID_OBDOBI_PRIDAT);
    EXPECT_EQ(m_prompts.lastMin, 2005);
    EXPECT_EQ(m_prompts.lastMax, 2026);
    EXPECT_EQ(DbModel::instance()->getObdobiCount(), 1);
    m_prompts.answerNumber(2023);
    command(evidaFrame::ID_OBDOBI_PRIDAT);
    EXPECT_EQ(m_prompts.shown().back().text, u8("Nové období:"));
    EXPECT_EQ(m_prompts.shown().back().caption, u8("Zadejte období"));
    EXPECT_EQ(DbModel::instance()->currentRok(), 2023);
    EXPECT_EQ(statusText(1), "2023");
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_OBDOBI_ZMENIT));
    EXPECT_TRUE(enabled(m_frame, evidaFrame::ID_OBDOBI_SMAZAT));
}

TEST_F(ShellCompanies, DeletingTheCurrentPeriodLetsTheUserPickAnother) {
    addCompany("evida1.db", "Alfa", "1", {2022, 2023, 2024});
    ASSERT_TRUE(start()->isLoaded());
    m_prompts.answerChoice(0);  // 2022
    command(evidaFrame::ID_OBDOBI_ZMENIT);
    EXPECT_EQ(wxJoin(m_prompts.lastChoices, ','), "2022,2023,2024");
    EXPECT_EQ(statusText(1), "2022");

    m_prompts.answerChoice(0);  // delete 2022, the current one, and cancel the choice that follows
    command(evidaFrame::ID_OBDOBI_SMAZAT);
    EXPECT_EQ(m_prompts.shown().back().caption, u8("Vyberte období"));
    EXPECT_EQ(DbModel::instance()->getObdobiCount(), 2);
    EXPECT_EQ(DbModel::instance()->currentRok(), 2024);  // the latest one is taken
    EXPECT_EQ(statusText(1), "2024");
}

TEST_F(ShellCompanies, PeriodViewedInALaterYearStartsOnItsLastDay) {
    addCompany("evida1.db", "Alfa", "1", {2022, 2023});
    ASSERT_TRUE(start()->isLoaded());
    EXPECT_EQ(lxSettings::instance()->datum().FormatISODate(), "2023-12-31");
    EXPECT_EQ(statusText(2), "Datum: 31.12.2023");
}

}  // namespace
