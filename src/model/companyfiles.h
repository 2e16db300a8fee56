// Company files without a window: the rules behind the company, period, backup, restore
// and update commands of the main window, kept here so that they can be tested on their own.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include "records.h"

class DbModel;

namespace lxutils {

// The application date for a period: today when the period is the current calendar year,
// otherwise 31 December of the period's year.
wxDateTime todayForObdobi(int rok);
// The same for the current period of the open company.
wxDateTime todayForObdobi();

// The dated directory a backup made today goes to: directory + "/evida-%Y-%m-%d".
wxString zalohaDir(const wxString& directory);
// Copies every company's database into zalohaDir(directory) as companyfiles::zalohaName(key),
// overwriting older copies of the same day. False when the directory cannot be made or a
// copy fails.
bool zalohaDat(const wxString& directory);
// Whether the backup reminder is due: at least 21600 whole minutes (15 days) since the last backup.
bool isZalohaDue(const wxDateTime& lastBackup);

// The newest version offered by the program's web server ("/evida-version"), or "0.00.0"
// when it cannot be fetched.
wxString availableVersion();
// The message of the update check for the version the server offered.
wxString updateMessage(const wxString& available);

// Whether the tax administration's code lists the filings need are in the data directory.
bool haveCiselniky();

}  // namespace lxutils

namespace companyfiles {

// The company key "name_IČ".
wxString firmaKey(const wxString& nazev, const wxString& ic);
// The file name of a company's backup copy: its key with ".db", the characters FAT, exFAT and
// NTFS refuse (" * : < > ? \ / | and control characters) and trailing dots and spaces
// replaced by "_". The company's name inside the copy stays as it is.
wxString zalohaName(const wxString& key);
// Splits a line of lxSettings::firmy() ("name, IČ: 123"): the name is the text before the
// last ",", the IČ the text after the last blank.
void parseFirmaLine(const wxString& line, wxString* nazev, wxString* ic);

// Checks the name and IČ typed for a company: empty when they are acceptable, else the
// message to show. `ownDbname` is the file of the company being edited (empty for a new one);
// another company with the same key is refused.
wxString firmaError(const wxString& nazev, const wxString& ic, const wxString& ownDbname = wxString());

// What the new-company wizard collects.
struct NovaFirma {
    Firma firma;
    Adresa adresa;
    int rok = 0;  // the first accounting period
};
// Creates the database of a new company under a fresh "evida%d.db" name with its address,
// company row and first period, lists it in the settings and makes it the open company.
// The model's previous database is closed first. On failure the new file is removed and
// the settings are left as they were.
bool createFirma(DbModel& model, const NovaFirma& nova);

// Removes a company: its database file (one file per company only) and its settings entry.
// The company must not be open.
void deleteFirma(const wxString& key);

// The outcome of checking a file chosen for a restore.
enum class Obnova { OK, NENI_FIRMA, JINA_FIRMA };
// Whether the file is a company database of the company with this name and IČ.
Obnova checkZaloha(const wxString& path, const wxString& nazev, const wxString& ic);
// The message shown when a restore is refused (empty for OK).
wxString obnovaError(Obnova result);
// Copies the backup over the company's file (which must not be open).
bool replaceDatabase(const wxString& backup, const wxString& target);

// The years "Přidat období" offers: 2005 to next year.
int obdobiMin();
int obdobiMax();

}  // namespace companyfiles
