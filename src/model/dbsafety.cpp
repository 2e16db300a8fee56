#include "dbsafety.h"

#include <wx/dir.h>
#include <wx/filename.h>

#include <sqlite3.h>

#include "lxsettings.h"

namespace dbsafety {

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }
}  // namespace

wxString copyPath(const wxString& path, const wxDateTime& when) {
    const wxFileName file(path);
    const wxString base = file.GetPathWithSep() + file.GetName() + ".pred-upravou-" + when.Format("%Y%m%d-%H%M%S");
    wxString candidate = base + ".db";
    for (int i = 2; wxFileName::Exists(candidate, wxFILE_EXISTS_ANY | wxFILE_EXISTS_NO_FOLLOW); ++i)
        candidate = wxString::Format("%s-%d.db", base, i);
    return candidate;
}

wxString lastBackupDir() {
    const wxString root = lxSettings::instance()->backupPath();
    if (root.empty() || !wxFileName::DirExists(root)) return wxString();
    wxDir dir(root);
    if (!dir.IsOpened()) return wxString();
    wxString newest, name;
    // The dated names sort as their dates do.
    for (bool more = dir.GetFirst(&name, "evida-*", wxDIR_DIRS); more; more = dir.GetNext(&name)) {
        const wxString day = name.Mid(6);
        wxDateTime date;
        wxString::const_iterator end;
        if (day.length() == 10 && date.ParseFormat(day, "%Y-%m-%d", &end) && end == day.end() && name > newest)
            newest = name;
    }
    return newest.empty() ? wxString() : root + wxFileName::GetPathSeparator() + newest;
}

wxString backupAdvice() {
    const wxString dir = lastBackupDir();
    if (!dir.empty()) return u8("Poslední zálohy najdete v ") + dir;
    return u8("Obnovte data ze zálohy (Obnovit data ze zálohy), případně soubor nahraďte jeho zálohou.");
}

wxString damagedMessage(const wxString& path) {
    return wxString::Format(u8("Soubor firmy je poškozený:\n%s\nProgram ho nepoužije, aby nepracoval s chybnými "
                               "údaji.\n"),
                            path) +
           backupAdvice();
}

wxString emptyFileMessage(const wxString& path) {
    return wxString::Format(u8("Soubor firmy je prázdný, neobsahuje žádná data:\n%s\n"), path) + backupAdvice();
}

wxString missingFileMessage(const wxString& path) {
    return wxString::Format(u8("Soubor firmy neexistuje:\n%s"), path);
}

wxString unreadableVersionMessage(const wxString& path, const wxString& verze) {
    return wxString::Format(u8("Soubor firmy má nečitelnou verzi databáze („%s“):\n%s\nProgram ho nepoužije, aby "
                               "nepřepsal data.\n"),
                            verze, path) +
           backupAdvice();
}

wxString newerVersionMessage(const wxString& path, const wxString& verze) {
    return wxString::Format(u8("Soubor firmy uložila novější verze programu (%s):\n%s\nNainstalujte novější verzi "
                               "programu, tato verze ho nepoužije."),
                            verze, path);
}

wxString copyFailedMessage(const wxString& path) {
    return wxString::Format(u8("Soubor firmy je třeba upravit, ale nepodařilo se vytvořit jeho kopii před "
                               "úpravou:\n%s\nUvolněte místo na disku a zkuste to znovu, soubor zůstal beze změny."),
                            path);
}

wxString createFailedMessage(const wxString& path, int sqliteCode) {
    wxString reason;
    switch (sqliteCode) {
        case SQLITE_FULL:
            reason = u8("na disku není dost místa");
            break;
        case SQLITE_IOERR:
            reason = u8("zápis na disk selhal (plný disk nebo překročená velikost souboru)");
            break;
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_READONLY:
            reason = u8("soubor nelze vytvořit ani zapisovat");
            break;
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            reason = u8("soubor používá jiný program");
            break;
        default:
            reason = u8("chyba databáze");
            break;
    }
    return wxString::Format(u8("Databázi se nepodařilo vytvořit: %s\n%s"), reason, path);
}

}  // namespace dbsafety
