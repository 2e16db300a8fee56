// evida-cli: the company database from the command line, for users who script and for
// checking files. It opens files exactly as the program does, without a display.
//
//   evida-cli create FILE   a new company database with the placeholder company
//   evida-cli demo FILE     a new file with the demo company: a VAT payer with this year's and
//                           last year's records in every book
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
//   evida-cli neuhrazene FILE
//                           unpaid invoices, receivables and liabilities of all years up to
//                           the current one, with the open totals in home currency
//   evida-cli export dphdp3 FILE --rok Y (--mesic M | --ctvrtleti Q | --od D --do D)
//                           [--forma B|O|D|E] [--datum D] [--k ID]
//                           the VAT return of the period as the filing's XML on the standard
//                           output, computed as the wizard does and checked against the
//                           official schema (a supplementary return is based on the saved
//                           return ID, or the newest regular one of the period)
//   evida-cli export dphkh1 FILE --rok Y (--mesic M | --ctvrtleti Q | --od D --do D)
//                           [--forma B|O|N|E] [--datum D]
//                           the VAT control statement of the period, likewise
//   evida-cli export dphshv FILE --rok Y (--mesic M | --ctvrtleti Q) [--forma R|N]
//                           [--datum D] [--k ID]
//                           the EC sales list of the period (a follow-up list starts from the
//                           saved list ID, or the one saved for the period)
//   evida-cli import-vypis FILE STATEMENT [--ucet CODE] [--jen-navrh]
//                           a bank statement paired with the open documents; the sure payments
//                           are written unless only the proposals are asked for
//   evida-cli kontrola FILE --rok Y (--mesic M | --ctvrtleti Q)
//                           the VAT return against the control statement of the period: the
//                           differences with their documents and the documents the statement
//                           cannot place; exit status 0 when all agrees, 3 otherwise
//   evida-cli zdroje        where the help book, the filing schemas and the Czech catalogue
//                           were found; exit status 1 when one is missing
//   evida-cli --version     the program's version
//
// Messages are Czech; the technical details of a failure (SQLite's and wxWidgets' own English
// lines) go to the standard error only with --verbose, which may stand anywhere.
#include <wx/app.h>
#include <wx/event.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cstdio>
#include <vector>

#include "companysetup.h"
#include "demo/ukazka.h"
#include "dbmodel.h"
#include "denikimport.h"
#include "download.h"
#include "evidacli_export.h"
#include "evidacli_vypis.h"
#include "fakturace/souhrndokladu.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "schema.h"
#include "zdroje.h"

namespace {

void print(const wxString& text) { std::printf("%s\n", static_cast<const char*>(text.utf8_str())); }
void printErr(const wxString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text.utf8_str())); }

// Receives the model's messages (the repair report) and prints them.
class MessagePrinter : public wxEvtHandler {
   public:
    MessagePrinter() {
        Bind(MODEL_MSG, [this](wxCommandEvent& e) {
            print(e.GetString());
            ++printed;
        });
    }
    int printed = 0;
};

// The technical log lines reach the user only when asked for.
class QuietLog : public wxLog {
   protected:
    void DoLogTextAtLevel(wxLogLevel, const wxString&) override {}
};

int usage() {
    printErr(wxString::FromUTF8("Použití: evida-cli [--verbose] PŘÍKAZ SOUBOR ...\n"
                                "  create SOUBOR          nová databáze firmy\n"
                                "  demo SOUBOR            nová databáze s ukázkovou firmou\n"
                                "  check SOUBOR           kontrola celistvosti, oprava a zpráva o opravě\n"
                                "  info SOUBOR            verze a počty řádků tabulek\n"
                                "  rates SOUBOR DATUM     kurzy ČNB ke dni (DATUM jako RRRR-MM-DD)\n"
                                "  import SOUBOR CSV      peněžní deník z CSV (všechny řádky, nebo žádný)\n"
                                "  stav SOUBOR            stav pokladen a bankovních účtů\n"
                                "  neuhrazene SOUBOR      neuhrazené faktury, pohledávky a závazky\n"
                                "  zdroje                 kde jsou nápověda, schémata podání a katalog překladů\n"
                                "  --version              verze programu\n") +
             evidacli::exportUsage() + "\n" + evidacli::kontrolaUsage() + "\n" + evidacli::importVypisuUsage() + "\n" +
                                wxString::FromUTF8(
                                "  --verbose              technické podrobnosti chyb na standardní chybový výstup"));
    return 2;
}

// The installed files the programs need, each with the path where it was found.
int zdrojeProgramu() {
    const wxString chybi = wxString::FromUTF8("nenalezeno");
    const wxString napoveda = zdroje::helpBook(), schemata = zdroje::xsdDir(), katalog = zdroje::catalogue();
    print(wxString::FromUTF8("Nápověda: ") + (napoveda.empty() ? chybi : napoveda));
    print(wxString::FromUTF8("Schémata: ") + (schemata.empty() ? chybi : schemata));
    print(wxString::FromUTF8("Katalog: ") + (katalog.empty() ? chybi : katalog));
    return napoveda.empty() || schemata.empty() || katalog.empty() ? 1 : 0;
}

int create(DbModel& model, const wxString& path) {
    if (wxFileName::Exists(path, wxFILE_EXISTS_ANY | wxFILE_EXISTS_NO_FOLLOW) &&
        !wxFileName::Exists(path, wxFILE_EXISTS_SYMLINK | wxFILE_EXISTS_NO_FOLLOW)) {
        printErr(wxString::FromUTF8("Soubor už existuje: ") + path);
        return 1;
    }
    if (!companysetup::createPlaceholderCompany(model, path)) {
        printErr(model.openError());
        return 1;
    }
    const Firma& f = model.firma();
    print(wxString::Format(wxString::FromUTF8("Vytvořena databáze %s: %s, IČ: %s, období %d"), path, f.nazev(), f.ic(),
                           model.currentRok()));
    return 0;
}

// The demo company of this year; an existing file is refused and left as it was.
int demo(DbModel& model, const wxString& path) {
    const int rok = lxutils::today().GetYear();
    wxString chyba;
    if (!ukazka::vytvor(model, path, rok, &chyba)) {
        printErr(chyba);
        return 1;
    }
    print(wxString::Format(wxString::FromUTF8("Vytvořena ukázková firma %s: %s, období %d a %d"), path,
                           model.firma().nazev(), rok - 1, rok));
    return 0;
}

bool open(DbModel& model, const wxString& path, DbModel::IntegrityCheck check = DbModel::IntegrityCheck::QUICK) {
    if (!model.openDatabase(path, check)) {
        printErr(model.openError());
        return false;
    }
    model.fillData();
    return true;
}

// The whole file examined (not only the quick test of every open), repaired where the
// checks repair, and the company row present.
int check(DbModel& model, const MessagePrinter& printer, const wxString& path) {
    if (!open(model, path, DbModel::IntegrityCheck::FULL)) return 1;
    if (model.tableRows("firma") != 1) {
        printErr(wxString::Format(wxString::FromUTF8("V souboru chybí údaje o firmě (tabulka firma má %d řádků):\n%s"),
                                  model.tableRows("firma"), path));
        return 1;
    }
    // After a repair its report has said what happened.
    if (printer.printed == 0) print(wxString::FromUTF8("Databáze je v pořádku."));
    return 0;
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

// One unpaid document: kind, number, counterparty, due date, total, open amount, currency,
// and the mark of an overdue one.
template <class Row>
void printNeuhrazeny(const char* druh, const Row& r, const wxDateTime& dnes) {
    const wxString mena = r.mena().empty() ? wxString("CZK") : r.mena();
    wxString line = wxString::Format("%s  %s  %s  %s  %s  %s  %s", druh, r.cislo(), r.protistrana(),
                                     r.splatnost().IsValid() ? lxformat::formatDatum(r.splatnost()) : wxString("-"),
                                     lxformat::formatCastka(r.celkem()), lxformat::formatCastka(zbyvaUhradit(r)), mena);
    if (isDokladPoSplatnosti(r.celkem(), r.uhrazeno(), r.splatnost(), dnes)) line += "  PO SPLATNOSTI";
    print(line);
}

// Unpaid documents of every year up to the current one, issued invoices first; then what is
// open on each side in home currency.
int neuhrazene(DbModel& model) {
    const wxDateTime dnes = pracovniDen();
    const lxFakturaViewArray faktury = model.neuhrazeneFakturyView();
    const lxZavPohViewArray zavpohy = model.neuhrazeneZavpohyView();
    std::vector<const FakturaView*> vydane, prijate;
    for (const auto& f : faktury) (f->vydana() ? vydane : prijate).push_back(f.get());
    std::vector<const ZavPohView*> pohledavky, zavazky;
    for (const auto& z : zavpohy) (z->zavazek() ? zavazky : pohledavky).push_back(z.get());
    for (const FakturaView* f : vydane) printNeuhrazeny("FV", *f, dnes);
    for (const FakturaView* f : prijate) printNeuhrazeny("FP", *f, dnes);
    for (const ZavPohView* z : pohledavky) printNeuhrazeny("PO", *z, dnes);
    for (const ZavPohView* z : zavazky) printNeuhrazeny("ZA", *z, dnes);
    if (faktury.empty() && zavpohy.empty()) print(wxString::FromUTF8("Žádné neuhrazené doklady."));

    const SouhrnDokladu fv = souhrnDokladu(vydane, dnes), po = souhrnDokladu(pohledavky, dnes);
    const SouhrnDokladu fp = souhrnDokladu(prijate, dnes), za = souhrnDokladu(zavazky, dnes);
    const wxString kc = wxString::FromUTF8("Kč");
    print(wxString::Format(wxString::FromUTF8("Neuhrazeno: pohledávky %s (po splatnosti %s), závazky %s (po splatnosti %s)"),
                           lxformat::formatCastka(fv.neuhrazeno + po.neuhrazeno, kc),
                           lxformat::formatCastka(fv.poSplatnosti + po.poSplatnosti, kc),
                           lxformat::formatCastka(fp.neuhrazeno + za.neuhrazeno, kc),
                           lxformat::formatCastka(fp.poSplatnosti + za.poSplatnosti, kc)));
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    wxInitializer init(argc, argv);
    if (!init.IsOk()) return 1;
    // The name gives the data directory "~/.evida". The application object of a console
    // program is no wxApp (wxTheApp would be a wrong cast), so it is reached as what it is.
    wxAppConsole::GetInstance()->SetAppName("evida");
    wxLog::DisableTimestamp();

    std::vector<wxString> args;
    bool verbose = false;
    for (int i = 1; i < argc; ++i) {
        const wxString arg = wxString::FromUTF8(argv[i]);
        if (arg == "--verbose")
            verbose = true;
        else
            args.push_back(arg);
    }
    if (verbose) {
        wxLog::SetActiveTarget(new wxLogStderr());
        wxLog::SetVerbose(true);
    } else {
        delete wxLog::SetActiveTarget(new QuietLog());
    }
    // Where the backups are, for the message about a damaged file.
    lxSettings::instance()->load();

    if (args.size() == 1 && args[0] == "--version") {
        print(wxString("evida-cli ") + lxutils::EVIDA_VERSION);
        return 0;
    }
    if (args.size() == 1 && args[0] == "zdroje") return zdrojeProgramu();
    if (args.size() < 2) return usage();
    const wxString& command = args[0];
    if (command == "export" && args.size() >= 3) {
        MessagePrinter printer;
        DbModel model(&printer);
        model.initModel();
        if (!open(model, wxFileName(args[2]).GetAbsolutePath())) return 1;
        std::vector<wxString> rest(args.begin() + 1, args.end());
        rest.erase(rest.begin() + 1);  // the company file, opened above
        const int status = evidacli::exportPodani(model, rest);
        return status == 2 ? usage() : status;
    }
    if (command == "kontrola" && args.size() >= 2) {
        MessagePrinter printer;
        DbModel model(&printer);
        model.initModel();
        if (!open(model, wxFileName(args[1]).GetAbsolutePath())) return 1;
        const int status = evidacli::kontrolaPodani(model, std::vector<wxString>(args.begin() + 2, args.end()));
        return status == 2 ? usage() : status;
    }
    if (command == "import-vypis" && args.size() >= 3) {
        MessagePrinter printer;
        DbModel model(&printer);
        model.initModel();
        if (!open(model, wxFileName(args[1]).GetAbsolutePath())) return 1;
        const int status = evidacli::importVypisu(model, std::vector<wxString>(args.begin() + 2, args.end()));
        return status == 2 ? usage() : status;
    }
    if (args.size() != (command == "rates" || command == "import" ? 3u : 2u)) return usage();
    const wxString path = wxFileName(args[1]).GetAbsolutePath();

    MessagePrinter printer;
    DbModel model(&printer);
    model.initModel();
    if (command == "create") return create(model, path);
    if (command == "demo") return demo(model, path);
    if (command == "check") return check(model, printer, path);
    if (command == "info") return open(model, path) ? info(model) : 1;
    if (command == "rates") return rates(model, path, args[2]);
    if (command == "import") return importCsv(model, path, wxFileName(args[2]).GetAbsolutePath());
    if (command == "stav") return open(model, path) ? stav(model) : 1;
    if (command == "neuhrazene") return open(model, path) ? neuhrazene(model) : 1;
    return usage();
}
