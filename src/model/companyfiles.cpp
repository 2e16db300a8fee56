#include "companyfiles.h"

#include <wx/ffile.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/wxsqlite3.h>

#include "clock.h"
#include "dbmodel.h"
#include "download.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace lxutils {

wxDateTime todayForObdobi(int rok) {
    const wxDateTime day = today();
    if (rok <= 0 || rok == day.GetYear()) return day;
    return wxDateTime(31, wxDateTime::Dec, rok);
}

wxDateTime todayForObdobi() {
    DbModel* model = DbModel::instance();
    return todayForObdobi(model ? model->currentRok() : -1);
}

wxString zalohaDir(const wxString& directory) { return directory + "/" + today().Format("evida-%Y-%m-%d"); }

bool zalohaDat(const wxString& directory) {
    if (directory.empty()) return false;
    const wxString target = zalohaDir(directory);
    // The command reports a failure in its own words; wx's own messages would come on top.
    wxLogNull quiet;
    if (!wxFileName::DirExists(target) && !wxFileName::Mkdir(target, 0777, wxPATH_MKDIR_FULL)) return false;
    lxSettings* settings = lxSettings::instance();
    if (settings->dbmodel() != DBMODEL_SQLITE) return true;
    bool ok = true;
    for (const auto& [dbname, key] : settings->dbmap()) {
        const wxString source = dataDir() + "/" + dbname;
        if (!wxFileName::FileExists(source) ||
            !wxCopyFile(source, target + "/" + companyfiles::zalohaName(key), true)) {
            wxLogVerbose(wxString::FromUTF8("Zálohu souboru %s nelze vytvořit"), source);
            ok = false;
        }
    }
    return ok;
}

bool isZalohaDue(const wxDateTime& lastBackup) {
    if (!lastBackup.IsValid()) return true;
    const wxLongLong minutes = (today() - lastBackup.GetDateOnly()).GetMilliseconds() / 60000;
    return minutes >= 21600;
}

wxString availableVersion() {
    const wxString unknown = "0.00.0";
    const wxString directory = dataDir();
    const wxString file = "evida-version";
    if (!downloadFileFromNet(updateUrl() + "/evida-version", directory, file)) return unknown;
    const wxString path = directory + "/" + file;
    wxString text;
    {
        wxFFile f(path, "rb");
        char buffer[64] = {};
        // The file holds one short line; anything longer is not a version.
        const size_t n = f.IsOpened() ? f.Read(buffer, sizeof buffer - 1) : 0;
        text = wxString::FromUTF8(buffer, n);
    }
    wxRemoveFile(path);
    text = text.BeforeFirst('\n');
    text.Trim(true).Trim(false);
    return text.empty() ? unknown : text;
}

wxString updateMessage(const wxString& available) {
    const int offered = versionToInt(available);
    if (offered == 0) return wxString::FromUTF8("Aktualizace nebylo možné ověřit.\nZkuste později.");
    if (offered <= versionToInt(EVIDA_VERSION))
        return wxString::Format(wxString::FromUTF8("Máte aktuální verzi %s."), available);
    return wxString::Format(wxString::FromUTF8("Je dostupná novější verze %s."), available);
}

bool haveCiselniky() {
    static const char* const files[] = {"/okec.xml", "/ufo.xml", "/pracufo.xml", "/zeme.xml", "/obce.xml"};
    const wxString directory = dataDir();
    for (const char* file : files) {
        if (!wxFileName::FileExists(directory + file)) return false;
    }
    return true;
}

}  // namespace lxutils

namespace companyfiles {

wxString zalohaName(const wxString& key) {
    // What FAT, exFAT and NTFS refuse in a file name; a backup on a USB stick must be writable.
    static const wxString REFUSED = "\"*:<>?\\/|";
    wxString name;
    name.reserve(key.length() + 3);
    for (const wxUniChar c : key) {
        const bool control = c.GetValue() < 0x20 || c.GetValue() == 0x7F;
        name += control || REFUSED.Find(c) != wxNOT_FOUND ? wxUniChar('_') : c;
    }
    // Windows drops trailing dots and spaces, so two companies could meet in one file.
    size_t end = name.length();
    while (end > 0 && (name[end - 1] == '.' || name[end - 1] == ' ')) --end;
    for (size_t i = end; i < name.length(); ++i) name[i] = '_';
    if (name.empty()) name = "_";
    return name + ".db";
}

wxString firmaKey(const wxString& nazev, const wxString& ic) { return nazev + "_" + ic; }

void parseFirmaLine(const wxString& line, wxString* nazev, wxString* ic) {
    *nazev = line.BeforeLast(',');
    *ic = line.AfterLast(' ');
}

wxString firmaError(const wxString& nazev, const wxString& ic, const wxString& ownDbname) {
    if (wxString(nazev).Trim(true).Trim(false).empty()) return wxString::FromUTF8("Vyplňte název firmy.");
    if (ic.empty()) return wxString::FromUTF8("Vyplňte IČ firmy.");
    // The IČ ends the company key after the last "_" and the company list after the last
    // blank, so it may hold neither.
    for (wxUniChar c : ic) {
        if (!wxIsalnum(c)) return wxString::FromUTF8("IČ může obsahovat jen písmena a číslice.");
    }
    const wxString dbname = lxSettings::instance()->dbnameByFirma(firmaKey(nazev, ic));
    if (!dbname.empty() && dbname != ownDbname)
        return wxString::Format(wxString::FromUTF8("Firma %s, IČ: %s už v programu je."), nazev, ic);
    return wxString();
}

bool createFirma(DbModel& model, const NovaFirma& nova) {
    lxSettings* settings = lxSettings::instance();
    const wxString dbname = lxutils::getUniqueDbName();
    if (dbname.empty() || nova.rok <= 0) return false;
    const wxString path = lxutils::dataDir() + "/" + dbname;
    model.closeDatabase();
    Adresa adresa = nova.adresa;
    adresa.setId(1);
    Firma firma = nova.firma;
    firma.setAdresaid(1);
    const bool ok = model.newDatabase(path) && model.addAdresa(adresa) && model.setFirma(firma) &&
                    model.addObdobi(Obdobi(nova.rok, true));
    if (!ok) {
        model.closeDatabase();
        wxRemoveFile(path);
        return false;
    }
    model.fillData();
    settings->addDbnamePair(dbname, firmaKey(firma.nazev(), firma.ic()));
    settings->setDbname(dbname);
    settings->setSplatnost(model.getSplatnost(nova.rok));
    return true;
}

void deleteFirma(const wxString& key) {
    lxSettings* settings = lxSettings::instance();
    if (settings->dbmodel() == DBMODEL_SQLITE) {
        const wxString dbname = settings->dbnameByFirma(key);
        const wxString path = lxutils::dataDir() + "/" + dbname;
        if (!dbname.empty() && wxFileName::FileExists(path)) wxRemoveFile(path);
    }
    settings->deleteFirma(key);
}

Obnova checkZaloha(const wxString& path, const wxString& nazev, const wxString& ic) {
    if (path.empty() || !wxFileName::FileExists(path)) return Obnova::NENI_FIRMA;
    try {
        wxSQLite3Database db;
        db.Open(path, wxEmptyString, WXSQLITE_OPEN_READONLY);
        // A file held open by a company (perhaps the open one itself) stays locked; do not wait.
        db.SetBusyTimeout(200);
        if (!db.TableExists("firma")) return Obnova::NENI_FIRMA;
        wxSQLite3ResultSet rs = db.ExecuteQuery("SELECT nazev,ic FROM firma");
        if (!rs.NextRow()) return Obnova::JINA_FIRMA;
        const bool same = rs.GetAsString(0) == nazev && rs.GetAsString(1) == ic;
        return same ? Obnova::OK : Obnova::JINA_FIRMA;
    } catch (const wxSQLite3Exception& e) {
        // Not a database, or one that another program holds locked.
        wxLogVerbose("%s: %s", path, e.GetMessage());
        return Obnova::NENI_FIRMA;
    }
}

wxString obnovaError(Obnova result) {
    switch (result) {
        case Obnova::OK:
            return wxString();
        case Obnova::NENI_FIRMA:
            return wxString::FromUTF8("Data se nepodařilo obnovit");
        case Obnova::JINA_FIRMA:
            return wxString::FromUTF8("Data se nepodařilo obnovit.\nNesouhlasí název firmy a IČ");
    }
    return wxString();
}

bool replaceDatabase(const wxString& backup, const wxString& target) {
    // The copy goes beside the company file first, so that a failed copy leaves the old data.
    const wxString partial = target + ".obnova";
    wxLogNull quiet;  // the command reports a failure in its own words
    if (!wxCopyFile(backup, partial, true)) {
        wxRemoveFile(partial);
        return false;
    }
    // A journal left beside the old file would be rolled back into the restored one.
    const wxString journal = target + "-journal";
    if (wxFileName::FileExists(journal)) wxRemoveFile(journal);
    if (!wxRenameFile(partial, target, true)) {
        wxRemoveFile(partial);
        return false;
    }
    return true;
}

int obdobiMin() { return 2005; }

int obdobiMax() { return lxutils::today().GetYear() + 1; }

}  // namespace companyfiles
