#include "denikimport.h"

#include <wx/ffile.h>
#include <wx/log.h>
#include <wx/strconv.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "dbmodel.h"
#include "denikform.h"
#include "sqllog.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxString trimmed(const wxString& text) {
    wxString t = text;
    t.Trim(true).Trim(false);
    return t;
}

// One record of the file with the line it starts on.
struct Record {
    int line;
    std::vector<wxString> fields;
};

// The separator of the file: ";" or a tab when the first line has one outside quotes, else ",".
wxUniChar detectSeparator(const wxString& text) {
    bool quoted = false, tab = false;
    for (wxUniChar c : text) {
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == '\n' || c == '\r') break;
        if (c == ';') return ';';
        if (c == '\t') tab = true;
    }
    return tab ? wxUniChar('\t') : wxUniChar(',');
}

// Splits the text into records. A quoted field may hold separators, line breaks and doubled
// quotes. False with `badLine` set when a quote is never closed.
bool parseCsv(const wxString& text, std::vector<Record>* records, int* badLine) {
    const wxUniChar sep = detectSeparator(text);
    int line = 1;
    Record current{1, {}};
    wxString field;
    bool quoted = false, wasQuoted = false;
    auto endField = [&] {
        current.fields.push_back(wasQuoted ? field : trimmed(field));
        field.clear();
        wasQuoted = false;
    };
    auto endRecord = [&] {
        endField();
        records->push_back(current);
        current = Record{line, {}};
    };
    for (auto it = text.begin(); it != text.end(); ++it) {
        const wxUniChar c = *it;
        if (quoted) {
            if (c == '"') {
                auto next = it + 1;
                if (next != text.end() && *next == '"') {
                    field += '"';
                    it = next;
                } else {
                    quoted = false;
                }
            } else {
                if (c == '\n') ++line;
                field += c;
            }
        } else if (c == '"' && trimmed(field).empty()) {
            field.clear();
            quoted = wasQuoted = true;
        } else if (c == sep) {
            endField();
        } else if (c == '\r' || c == '\n') {
            // "\r\n" is one line break.
            if (c == '\r' && it + 1 != text.end() && *(it + 1) == '\n') ++it;
            ++line;
            endRecord();
        } else {
            field += c;
        }
    }
    if (quoted) {
        *badLine = current.line;
        return false;
    }
    if (!field.empty() || wasQuoted || !current.fields.empty()) endRecord();
    return true;
}

bool isBlank(const Record& r) {
    for (const wxString& f : r.fields) {
        if (!trimmed(f).empty()) return false;
    }
    return true;
}

// "2024-03-31" or "31.3.2024" (spaces after the dots allowed); invalid for anything else,
// including days the month does not have.
wxDateTime parseDatum(const wxString& text) {
    long y = 0, m = 0, d = 0;
    const wxArrayString iso = wxSplit(text, '-', '\0');
    const wxArrayString czech = wxSplit(text, '.', '\0');
    const wxArrayString& parts = iso.size() == 3 ? iso : czech;
    if (parts.size() != 3) return wxDateTime();
    const bool isIso = &parts == &iso;
    if (!trimmed(parts[isIso ? 0 : 2]).ToLong(&y, 10) || !trimmed(parts[1]).ToLong(&m, 10) ||
        !trimmed(parts[isIso ? 2 : 0]).ToLong(&d, 10))
        return wxDateTime();
    if (isIso && (parts[0].length() != 4 || parts[1].length() != 2 || parts[2].length() != 2)) return wxDateTime();
    if (y < 1900 || y > 9999 || m < 1 || m > 12 || d < 1) return wxDateTime();
    const auto month = static_cast<wxDateTime::Month>(m - 1);
    if (d > wxDateTime::GetNumberOfDays(month, static_cast<int>(y))) return wxDateTime();
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(d), month, static_cast<int>(y));
}

// An amount with a decimal point or comma and optional spaces between thousands. When both
// a comma and a point occur, the last one is the decimal mark and the other groups thousands.
bool parseCastka(const wxString& text, double* castka) {
    wxString s;
    for (wxUniChar c : text) {
        if (c != ' ' && c != 0xA0 && c != 0x202F) s += c;
    }
    const int comma = s.Find(',', true), point = s.Find('.', true);
    if (comma != wxNOT_FOUND && point != wxNOT_FOUND) {
        s.Replace(comma > point ? "." : ",", "");
    }
    s.Replace(",", ".");
    double value = 0;
    if (s.empty() || !s.ToCDouble(&value) || !std::isfinite(value)) return false;
    *castka = value;
    return true;
}

DenikImport fault(int line, const wxString& message) {
    DenikImport r;
    r.radek = line;
    r.zprava = line > 0 ? wxString::Format(u8("Řádek %d: "), line) + message : message;
    return r;
}

const int COLUMNS = 7;

}  // namespace

DenikImport importDenikText(DbModel& model, const wxString& text) {
    const int rok = model.currentRok();
    if (!model.isOpen() || rok <= 0) return fault(0, u8("Není otevřena žádná firma s účetním obdobím"));
    std::vector<Record> records;
    int badLine = 0;
    if (!parseCsv(text, &records, &badLine)) return fault(badLine, u8("neukončené uvozovky"));

    // Checking every row before anything is stored.
    std::vector<DenikForm> forms;
    std::map<int, int> vypisy;  // the latest statement number of each account, read once
    bool first = true;
    for (const Record& r : records) {
        if (isBlank(r)) continue;
        const bool heading = first && trimmed(r.fields[0]).Lower() == "datum";
        first = false;
        if (heading) continue;
        // Spreadsheets often end rows with empty cells; those are not columns.
        size_t used = r.fields.size();
        while (used > COLUMNS + 1 && trimmed(r.fields[used - 1]).empty()) --used;
        if (used < COLUMNS || used > COLUMNS + 1) {
            return fault(r.line,
                         wxString::Format(u8("očekává se 7 sloupců (datum, číslo, popis, částka, pokladna nebo účet, "
                                             "předkontace, protistrana), nalezeno %d"),
                                          static_cast<int>(used)));
        }
        DenikForm form;
        form.mode = DenikForm::ADD;
        form.datum = parseDatum(trimmed(r.fields[0]));
        if (!form.datum.IsValid()) {
            return fault(r.line,
                         wxString::Format(u8("neplatné datum '%s' (zadejte RRRR-MM-DD nebo D.M.RRRR)"), r.fields[0]));
        }
        if (form.datum.GetYear() != rok) {
            return fault(r.line, wxString::Format(u8("datum %s nepatří do účetního období %d"), r.fields[0], rok));
        }
        form.cislo = trimmed(r.fields[1]);
        form.popis = r.fields[2];
        if (!parseCastka(r.fields[3], &form.castka)) {
            return fault(r.line, wxString::Format(u8("neplatná částka '%s'"), r.fields[3]));
        }
        form.registr = trimmed(r.fields[4]);
        form.banka = model.getPokladnaIdByZkratka(form.registr) < 0 && model.getBankaIdByZkratka(form.registr) >= 0;
        if (!form.registr.empty() && !form.banka && model.getPokladnaIdByZkratka(form.registr) < 0) {
            return fault(r.line, wxString::Format(u8("pokladna ani bankovní účet %s neexistuje"), form.registr));
        }
        form.predkontace = trimmed(r.fields[5]);
        form.protistrana = trimmed(r.fields[6]);
        // A row takes its direction from its pre-posting.
        form.prijem = model.isPredkontacePrijem(model.getPredkontaceIdByZkratka(form.predkontace));
        const wxString error = denikValidation(model, form);
        if (!error.empty()) return fault(r.line, error);

        // Without a percentage an income takes the first one the dialog offers.
        form.pausal = 80;
        if (used > COLUMNS && !trimmed(r.fields[COLUMNS]).empty() && !parsePausal(r.fields[COLUMNS], &form.pausal)) {
            return fault(r.line, wxString::Format(u8("neplatný paušální výdaj '%s'"), r.fields[COLUMNS]));
        }
        if (form.banka) {
            const int bankaid = model.getBankaIdByZkratka(form.registr);
            auto found = vypisy.find(bankaid);
            if (found == vypisy.end()) found = vypisy.emplace(bankaid, model.getLastVypis(bankaid)).first;
            form.vypis = found->second;
        }
        forms.push_back(form);
    }
    if (forms.empty()) return fault(0, u8("Soubor neobsahuje žádné záznamy"));

    try {
        DbModel::WriteTransaction tx(model.db());
        std::map<wxString, int> kontakty;
        for (const DenikForm& form : forms) {
            if (zapisDenik(model, form, &kontakty) < 0)
                return fault(0, u8("Záznamy se nepodařilo uložit, nic nebylo změněno"));
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("import denik", e);
        return fault(0, u8("Záznamy se nepodařilo uložit, nic nebylo změněno"));
    }
    model.fireUpdated(NAV_ALL);
    DenikImport result;
    result.ok = true;
    result.pocet = static_cast<int>(forms.size());
    result.zprava = wxString::Format(u8("Importováno záznamů: %d"), result.pocet);
    return result;
}

DenikImport importDenik(DbModel& model, const wxString& path) {
    std::string bytes;
    bool read = false;
    {
        wxLogNull quiet;  // the message below says it in Czech
        wxFFile file(path, "rb");
        if (file.IsOpened()) {
            char buffer[65536];
            size_t n = 0;
            while ((n = file.Read(buffer, sizeof buffer)) > 0) bytes.append(buffer, n);
            read = !file.Error();
        }
    }
    if (!read) return fault(0, wxString::Format(u8("Soubor %s nelze přečíst"), path));
    if (bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) bytes.erase(0, 3);
    wxString text = wxString::FromUTF8(bytes.data(), bytes.size());
    // Not UTF-8: the Windows code page Czech spreadsheets save in.
    if (text.empty() && !bytes.empty()) text = wxString(bytes.data(), wxCSConv(wxFONTENCODING_CP1250), bytes.size());
    return importDenikText(model, text);
}
