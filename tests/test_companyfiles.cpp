// The rules behind the company, period, backup, restore and update commands, without a window.
#include <gtest/gtest.h>
#include <wx/config.h>
#include <wx/dir.h>
#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include "clock.h"
#include "companyfiles.h"
#include "httpserver.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "testcompany.h"

namespace {

wxDateTime day(const char* iso) {
    wxDateTime d;
    d.ParseISODate(iso);
    return d;
}

wxString readAll(const wxString& path) {
    wxFFile f(path, "rb");
    wxString text;
    f.ReadAll(&text);
    return text;
}

void writeText(const wxString& path, const char* text) {
    wxFFile f(path, "wb");
    f.Write(wxString::FromUTF8(text));
}

class CompanyFiles : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        lxutils::setToday(day("2025-06-20"));
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        TestCompany::TearDown();
    }
    // A company file under `dbname` named `nazev` with IČ `ic`, listed in the settings.
    wxString addCompany(const wxString& dbname, const wxString& nazev, const wxString& ic) {
        const wxString path = createCompany(dbname);
        Firma f = m_model->firma();
        f.setNazev(nazev);
        f.setIc(ic);
        m_model->setFirma(f);
        m_model->closeDatabase();
        lxSettings::instance()->addDbnamePair(dbname, companyfiles::firmaKey(nazev, ic));
        return path;
    }
    lxSettings* s() { return lxSettings::instance(); }
};

struct DateCase {
    const char* name;
    int rok;
    const char* expected;
};
class ApplicationDate : public CompanyFiles, public ::testing::WithParamInterface<DateCase> {};

TEST_P(ApplicationDate, IsTodayInTheCurrentYearElseTheLastDayOfThePeriod) {
    lxutils::setToday(day("2025-03-10"));
    EXPECT_EQ(lxutils::todayForObdobi(GetParam().rok).FormatISODate(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Periods, ApplicationDate,
                         ::testing::Values(DateCase{"current_year", 2025, "2025-03-10"},
                                           DateCase{"period_2023_viewed_in_2025", 2023, "2023-12-31"},
                                           DateCase{"next_year", 2026, "2026-12-31"},
                                           DateCase{"no_period", -1, "2025-03-10"}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST_F(CompanyFiles, BackupReminderIsDueAfterFifteenDays) {
    EXPECT_FALSE(lxutils::isZalohaDue(day("2025-06-20")));
    EXPECT_FALSE(lxutils::isZalohaDue(day("2025-06-06")));  // 14 days
    EXPECT_TRUE(lxutils::isZalohaDue(day("2025-06-05")));   // 15 days = 21600 minutes
    EXPECT_TRUE(lxutils::isZalohaDue(day("2024-01-01")));
}

TEST_F(CompanyFiles, BackupCopiesEveryCompanyIntoTheDatedDirectoryAndOverwritesOnTheSameDay) {
    const wxString alfa = addCompany("evida1.db", "Alfa", "111");
    addCompany("evida2.db", "Beta/Gama", "222");  // a slash in the name makes no subdirectory
    const wxString target = m_home + "/zalohy";
    ASSERT_TRUE(lxutils::zalohaDat(target));
    const wxString dated = target + "/evida-2025-06-20";
    EXPECT_EQ(lxutils::zalohaDir(target), dated);
    EXPECT_TRUE(wxFileName::FileExists(dated + "/Alfa_111.db"));
    EXPECT_TRUE(wxFileName::FileExists(dated + "/Beta_Gama_222.db"));

    // The second backup of the day replaces the copies with the files as they are now.
    ASSERT_TRUE(m_model->openDatabase(alfa));
    m_model->fillData();
    Firma f = m_model->firma();
    f.setDic("CZ111");
    m_model->setFirma(f);  // stays open: a copy of an open company is taken as well
    ASSERT_TRUE(lxutils::zalohaDat(target));
    wxDir dir(target);
    wxString name;
    int directories = 0;
    for (bool more = dir.GetFirst(&name, wxString(), wxDIR_DIRS); more; more = dir.GetNext(&name)) ++directories;
    EXPECT_EQ(directories, 1);
    m_model->closeDatabase();
    ASSERT_TRUE(m_model->openDatabase(dated + "/Alfa_111.db"));
    m_model->fillData();
    EXPECT_EQ(m_model->firma().dic(), "CZ111");

    s()->addDbnamePair("evida9.db", "Ztracena_9");  // a listed company without its file
    EXPECT_FALSE(lxutils::zalohaDat(target));
}

// Backups go to USB sticks formatted FAT, exFAT or NTFS: the file name carries none of the
// characters those refuse, and no trailing dot or space that Windows would drop.
TEST(BackupName, ReplacesWhatRemovableDrivesRefuse) {
    const std::pair<const char*, const char*> cases[] = {
        {"Alfa_111", "Alfa_111.db"},
        {"Firma \"A/B\": s.r.o._12345678", "Firma _A_B__ s.r.o._12345678.db"},
        {"a*b?c<d>e|f\\g_1", "a_b_c_d_e_f_g_1.db"},
        {"Tab\tNový\nřádek_2", "Tab_Nový_řádek_2.db"},
        {"Čistá firma s.r.o._", "Čistá firma s.r.o._.db"},
        {"Konec tečkou._", "Konec tečkou._.db"},
        {"Bez IČ. ", "Bez IČ__.db"},
        {"...", "___.db"},
        {"", "_.db"},
    };
    for (const auto& [key, name] : cases)
        EXPECT_EQ(companyfiles::zalohaName(wxString::FromUTF8(key)), wxString::FromUTF8(name)) << key;
}

TEST_F(CompanyFiles, OddlyNamedCompanyIsBackedUpAndRestoredByTheNameInsideTheFile) {
    const wxString nazev = wxString::FromUTF8("Firma \"A/B\": s.r.o.");
    const wxString own = addCompany("evida1.db", nazev, "12345678");
    addCompany("evida2.db", "Beta", "222");
    const wxString target = m_home + "/usb";
    ASSERT_TRUE(lxutils::zalohaDat(target));
    const wxString copy = target + "/evida-2025-06-20/" + wxString::FromUTF8("Firma _A_B__ s.r.o._12345678.db");
    ASSERT_TRUE(wxFileName::FileExists(copy));

    using companyfiles::Obnova;
    EXPECT_EQ(companyfiles::checkZaloha(copy, nazev, "12345678"), Obnova::OK);
    EXPECT_EQ(companyfiles::checkZaloha(copy, wxString::FromUTF8("Firma _A_B__ s.r.o."), "12345678"),
              Obnova::JINA_FIRMA)
        << "the name inside the copy is the company's, not the file's";

    // The data of the company changes after the backup; the restore brings the copy back.
    ASSERT_TRUE(m_model->openDatabase(own));
    m_model->fillData();
    Firma f = m_model->firma();
    f.setDic("CZ12345678");
    m_model->setFirma(f);
    m_model->closeDatabase();
    ASSERT_TRUE(companyfiles::replaceDatabase(copy, own));
    ASSERT_TRUE(m_model->openDatabase(own));
    m_model->fillData();
    EXPECT_EQ(m_model->firma().nazev(), nazev);
    EXPECT_NE(m_model->firma().dic(), "CZ12345678") << "the restored copy predates the change";
}

TEST_F(CompanyFiles, RestoreAcceptsOnlyABackupOfTheSameCompany) {
    const wxString alfa = addCompany("evida1.db", "Alfa", "111");
    const wxString beta = addCompany("evida2.db", "Beta", "222");
    const wxString text = m_home + "/text.db";
    writeText(text, "not a database at all");
    const wxString noFirma = writeDb("jina.db", "CREATE TABLE t(a)");
    using companyfiles::Obnova;
    EXPECT_EQ(companyfiles::checkZaloha(alfa, "Alfa", "111"), Obnova::OK);
    EXPECT_EQ(companyfiles::checkZaloha(beta, "Alfa", "111"), Obnova::JINA_FIRMA);
    EXPECT_EQ(companyfiles::checkZaloha(alfa, "Alfa", "112"), Obnova::JINA_FIRMA);
    EXPECT_EQ(companyfiles::checkZaloha(text, "Alfa", "111"), Obnova::NENI_FIRMA);
    EXPECT_EQ(companyfiles::checkZaloha(noFirma, "Alfa", "111"), Obnova::NENI_FIRMA);
    EXPECT_EQ(companyfiles::checkZaloha(m_home + "/missing.db", "Alfa", "111"), Obnova::NENI_FIRMA);
    EXPECT_EQ(companyfiles::obnovaError(Obnova::JINA_FIRMA),
              u8("Data se nepodařilo obnovit.\nNesouhlasí název firmy a IČ"));
    EXPECT_EQ(companyfiles::obnovaError(Obnova::NENI_FIRMA), u8("Data se nepodařilo obnovit"));

    // A file that another program holds open (the running company) is refused as well.
    ASSERT_TRUE(m_model->openDatabase(alfa));
    EXPECT_EQ(companyfiles::checkZaloha(alfa, "Alfa", "111"), Obnova::NENI_FIRMA);
}

TEST_F(CompanyFiles, CompanyNameAndIcAreChecked) {
    s()->addDbnamePair("evida1.db", "Alfa_111");
    struct Case {
        const char* nazev;
        const char* ic;
        const char* own;
        const char* error;
    };
    const Case cases[] = {
        {"", "1", "", "Vyplňte název firmy."},
        {"   ", "1", "", "Vyplňte název firmy."},
        {"Beta", "", "", "Vyplňte IČ firmy."},
        {"Beta", "12_3", "", "IČ může obsahovat jen písmena a číslice."},
        {"Beta", "12 3", "", "IČ může obsahovat jen písmena a číslice."},
        {"Alfa", "111", "", "Firma Alfa, IČ: 111 už v programu je."},
        {"Alfa", "111", "evida2.db", "Firma Alfa, IČ: 111 už v programu je."},
        {"Alfa", "111", "evida1.db", ""},  // the company being edited keeps its key
        {"Alfa_s.r.o., Praha", "CZ12345678", "", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(companyfiles::firmaError(u8(c.nazev), u8(c.ic), u8(c.own)), u8(c.error)) << c.nazev << "/" << c.ic;
}

TEST_F(CompanyFiles, CompanyListLinesGiveBackNameAndIc) {
    s()->addDbnamePair("evida1.db", "Alfa, s.r.o._111");
    s()->addDbnamePair("evida2.db", "Beta_Gama_222");
    const wxArrayString firmy = s()->firmy();
    ASSERT_EQ(firmy.size(), 2u);
    wxString nazev, ic;
    companyfiles::parseFirmaLine(firmy[0], &nazev, &ic);
    EXPECT_EQ(nazev, "Alfa, s.r.o.");
    EXPECT_EQ(ic, "111");
    companyfiles::parseFirmaLine(firmy[1], &nazev, &ic);
    EXPECT_EQ(companyfiles::firmaKey(nazev, ic), "Beta_Gama_222");
    EXPECT_EQ(s()->dbnameByFirma(companyfiles::firmaKey(nazev, ic)), "evida2.db");
}

TEST_F(CompanyFiles, NewCompanyTakesTheFirstFreeFileName) {
    writeDb("evida1.db", "CREATE TABLE t(a)");
    writeDb("evida3.db", "CREATE TABLE t(a)");
    companyfiles::NovaFirma nova;
    nova.firma.setNazev(u8("Účetní Nováková"));
    nova.firma.setIc("27074358");
    nova.firma.setPlatce(true);
    nova.adresa.setMisto("Brno");
    nova.rok = 2024;
    ASSERT_TRUE(companyfiles::createFirma(*m_model, nova));
    EXPECT_EQ(s()->dbname(), "evida2.db");
    EXPECT_EQ(s()->dbcount(), 1);
    EXPECT_EQ(s()->dbnameByFirma(u8("Účetní Nováková_27074358")), "evida2.db");
    EXPECT_EQ(m_model->databasePath(), lxutils::dataDir() + "/evida2.db");
    EXPECT_TRUE(m_model->isFirmaPlatce());
    EXPECT_EQ(m_model->firma().adresaid(), 1);
    EXPECT_EQ(m_model->getAdresa(1).misto(), "Brno");
    EXPECT_EQ(m_model->currentRok(), 2024);
    EXPECT_EQ(m_model->getObdobiCount(), 1);

    // The next one fills no gap any more.
    nova.firma.setIc("1");
    ASSERT_TRUE(companyfiles::createFirma(*m_model, nova));
    EXPECT_EQ(s()->dbname(), "evida4.db");
}

TEST(UpdateCheck, MessageComparesTheOfferedVersionWithOurs) {
    const struct {
        const char* available;
        const char* message;
    } cases[] = {
        {"0.00.0", "Aktualizace nebylo možné ověřit.\nZkuste později."},
        {"<html>", "Aktualizace nebylo možné ověřit.\nZkuste později."},
        {"1.40", "Aktualizace nebylo možné ověřit.\nZkuste později."},
        {"1.40.14", "Máte aktuální verzi 1.40.14."},
        {"1.40.9", "Máte aktuální verzi 1.40.9."},
        {"1.40.15", "Je dostupná novější verze 1.40.15."},
        // The parts weigh 1000, 10 and 1, so 1.41.0 (1410) counts as older than 1.40.14 (1414).
        {"1.41.0", "Máte aktuální verzi 1.41.0."},
        {"2.0.0", "Je dostupná novější verze 2.0.0."},
    };
    for (const auto& c : cases) EXPECT_EQ(lxutils::updateMessage(c.available), u8(c.message)) << c.available;
}

TEST_F(CompanyFiles, AvailableVersionComesFromTheServer) {
    const wxString served = m_home + "/www";
    wxFileName::Mkdir(served, 0777, wxPATH_MKDIR_FULL);
    writeText(served + "/evida-version", "1.41.2\n");
    LoopbackHttpServer server(served);
    ASSERT_TRUE(server.running());
    wxSetEnv("EVIDA_UPDATE_URL", server.url());
    EXPECT_EQ(lxutils::availableVersion(), "1.41.2");
    EXPECT_FALSE(wxFileName::FileExists(lxutils::dataDir() + "/evida-version"));  // nothing left behind

    wxRemoveFile(served + "/evida-version");  // 404
    EXPECT_EQ(lxutils::availableVersion(), "0.00.0");
    wxSetEnv("EVIDA_UPDATE_URL", "http://127.0.0.1:1");  // nobody listens
    EXPECT_EQ(lxutils::availableVersion(), "0.00.0");
    wxUnsetEnv("EVIDA_UPDATE_URL");
}

TEST_F(CompanyFiles, CodeListsArePresentOnlyWhenAllFiveAre) {
    const char* files[] = {"okec.xml", "ufo.xml", "pracufo.xml", "zeme.xml", "obce.xml"};
    for (const char* file : files) {
        EXPECT_FALSE(lxutils::haveCiselniky());
        writeText(lxutils::dataDir() + "/" + file, "<x/>");
    }
    EXPECT_TRUE(lxutils::haveCiselniky());
}

TEST_F(CompanyFiles, SettingsFileIsTheProcessConfiguration) {
    s()->load();
    wxConfigBase* config = wxConfigBase::Get(false);
    ASSERT_NE(config, nullptr);
    config->Write("Columns/denik", "80,120");  // what other windows remember goes to evida.ini
    s()->setLastBackup(day("2025-01-31"));
    s()->save();
    const wxString ini = readAll(lxutils::dataDir() + "/evida.ini");
    EXPECT_NE(ini.Find("denik=80,120"), wxNOT_FOUND);
    EXPECT_NE(ini.Find("lastBackup=2025-01-31"), wxNOT_FOUND);
    lxSettings::reset();
    s()->load();
    EXPECT_EQ(s()->lastBackup().FormatISODate(), "2025-01-31");
}

}  // namespace
