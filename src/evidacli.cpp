// evida-cli: the company database from the command line, for users who script and for
// checking files. It opens files exactly as the program does, without a display.
//
//   evida-cli create FILE   a new company database with the placeholder company
//   evida-cli check FILE    open, check and repair; print the repair report if any
//   evida-cli info FILE     version and the row count of every table
//   evida-cli rates FILE DATE
//                           download the national bank's rates of DATE (YYYY-MM-DD) and
//                           store them in the company, as the rate button of the dialogs does
//   evida-cli import FILE CSV
//                           import journal entries of the current year from a CSV file (date,
//                           number, description, amount, register or account code, pre-posting
//                           code, counterparty): all rows or, when one is bad, none
//   evida-cli stav FILE     the balance of every cash register and bank account
#include <wx/app.h>
#include <wx/event.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdio>

#include "companysetup.h"
#include "dbmodel.h"
#include "denikimport.h"
#include "download.h"
#include "schema.h"

namespace {

const char* const OPEN_FAILED = "Nepodařilo se otevřít databázi";

void print(const wxString& text) { std::printf("%s\n", static_cast<const char*>(text.utf8_str())); }
void printErr(const wxString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text.utf8_str())); }

// Receives the model's messages (the repair report) and prints them.
class MessagePrinter : public wxEvtHandler {
   public:
    MessagePrinter() { Bind(MODEL_MSG, [](wxCommandEvent& e) { print(e.GetString()); }); }
};

int usage() {
    printErr(wxString::FromUTF8("Použití: evida-cli create|check|info|stav SOUBOR\n"
                                "         evida-cli rates SOUBOR DATUM   (DATUM jako RRRR-MM-DD)\n"
                                "         evida-cli import SOUBOR CSV    (peněžní deník z CSV)"));
    return 2;
}

int create(DbModel& model, const wxString& path) {
    if (wxFileName::FileExists(path)) {
        printErr(wxString::FromUTF8("Soubor už existuje: ") + path);
        return 1;
    }
    if (!companysetup::createPlaceholderCompany(model, path)) {
        printErr(wxString::FromUTF8(OPEN_FAILED));
        return 1;
    }
    const Firma& f = model.firma();
    print(wxString::Format(wxString::FromUTF8("Vytvořena databáze %s: %s, IČ: %s, období %d"), path, f.nazev(), f.ic(),
                           model.currentRok()));
    return 0;
}

bool open(DbModel& model, const wxString& path) {
    if (!wxFileName::FileExists(path) || !model.openDatabase(path)) {
        printErr(wxString::FromUTF8(OPEN_FAILED));
        return false;
    }
    model.fillData();
    return true;
}

int info(DbModel& model) {
    wxString verze;
    try {
        verze = model.db().ExecuteQuery("SELECT verze FROM version").GetAsString(0);
    } catch (const wxSQLite3Exception&) {
    }
    print("verze: " + verze);
    print(DbModel::getVersion());
    int count = 0;
    const schema::TableDef* tables = schema::checkOrder(&count);
    for (int i = 0; i < count; ++i) print(wxString::Format("%-14s %d", tables[i].name, model.tableRows(tables[i].name)));
    return 0;
}

// A calendar date written exactly as YYYY-MM-DD; invalid otherwise.
wxDateTime parseIsoDate(const wxString& text) {
    wxDateTime date;
    wxString::const_iterator end;
    if (text.length() != 10 || !date.ParseFormat(text, "%Y-%m-%d", &end) || end != text.end()) return wxDateTime();
    // The parser accepts some days a month does not have; a date must format back to itself.
    return date.FormatISODate() == text ? date : wxDateTime();
}

int rates(DbModel& model, const wxString& path, const wxString& dateText) {
    const wxDateTime date = parseIsoDate(dateText);
    if (!date.IsValid()) {
        printErr(wxString::FromUTF8("Neplatné datum: ") + dateText + wxString::FromUTF8(" (zadejte RRRR-MM-DD)"));
        return 2;
    }
    if (!open(model, path)) return 1;
    // Tell why a download failed (the program's dialogs keep these details quiet).
    wxLog::SetVerbose(true);
    int stored = 0;
    if (!lxutils::kurzyDownload(date, &stored)) {
        printErr(wxString::FromUTF8("Kurzy ke dni ") + dateText + wxString::FromUTF8(" se nepodařilo stáhnout"));
        return 1;
    }
    print(wxString::Format(wxString::FromUTF8("Uloženo kurzů ke dni %s: %d"), dateText, stored));
    return 0;
}

int importCsv(DbModel& model, const wxString& path, const wxString& csv) {
    if (!open(model, path)) return 1;
    const DenikImport result = importDenik(model, csv);
    if (!result.ok) {
        printErr(result.zprava);
        return 1;
    }
    print(result.zprava);
    return 0;
}

// The balances as the menu command "Stav pokladen a bankovních účtů" shows them.
int stav(DbModel& model) {
    wxString text = model.stavUctuAPokladen();
    if (text.EndsWith("\n")) text.RemoveLast();
    print(text);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    wxInitializer init(argc, argv);
    if (!init.IsOk()) return 1;
    wxTheApp->SetAppName("evida");
    wxLog::SetActiveTarget(new wxLogStderr());
    wxLog::DisableTimestamp();
    if (argc < 3) return usage();
    const wxString command = wxString::FromUTF8(argv[1]);
    if (argc != (command == "rates" || command == "import" ? 4 : 3)) return usage();
    const wxString path = wxFileName(wxString::FromUTF8(argv[2])).GetAbsolutePath();

    MessagePrinter printer;
    DbModel model(&printer);
    model.initModel();
    if (command == "create") return create(model, path);
    if (command == "check") return open(model, path) ? 0 : 1;
    if (command == "info") return open(model, path) ? info(model) : 1;
    if (command == "rates") return rates(model, path, wxString::FromUTF8(argv[3]));
    if (command == "import") return importCsv(model, path, wxFileName(wxString::FromUTF8(argv[3])).GetAbsolutePath());
    if (command == "stav") return open(model, path) ? stav(model) : 1;
    return usage();
}
