#include "denikimport.h"

#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/log.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "csvtext.h"
#include "dbmodel.h"
#include "denikform.h"
#include "lxformat.h"
#include "rada.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

using csvtext::ukazka;

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxString trimmed(const wxString& text) {
    wxString t = text;
    t.Trim(true).Trim(false);
    return t;
}

// The columns, in the order of a file without a heading; a heading names them in any order.
enum Sloupec {
    DATUM,
    CISLO,
    POPIS,
    CASTKA,
    REGISTR,
    PREDKONTACE,
    PROTISTRANA,
    PAUSAL,
    REFERENCE,
    VYPIS,
    MENA,
    CASTKACIZI,
    KURZ,
    POCET_SLOUPCU
};
const char* const NAZVY_SLOUPCU[POCET_SLOUPCU] = {
    "Datum",  "Číslo",     "Popis", "Částka", "Pokladna/účet", "Předkontace", "Protistrana",
    "Paušál", "Reference", "Výpis", "Měna",   "Částka v měně", "Kurz"};
const int POVINNE_SLOUPCE = 7;  // DATUM to PROTISTRANA; a file without a heading may add PAUSAL

// Far more entries than a small business books in a year; with the file size this bounds the
// memory an import takes.
const int MAX_ZAZNAMU = 100000;
const size_t MAX_BAJTU_SOUBORU = 50 * 1024 * 1024;

const int HOME_MENA = 1;

DenikImport fault(int line, const wxString& message) {
    DenikImport r;
    r.radek = line;
    r.zprava = line > 0 ? wxString::Format(u8("Řádek %d: "), line) + message : message;
    return r;
}

// A heading name compared without case and Czech accents. The letters are mapped here, not
// by the C library, whose case tables depend on the locale.
wxString folded(const wxString& text) {
    static const wxString accented = u8("áčďéěíňóřšťúůýžÁČĎÉĚÍŇÓŘŠŤÚŮÝŽ");
    static const wxString plain = "acdeeinorstuuyzacdeeinorstuuyz";
    wxString out = trimmed(text).Lower();
    for (size_t i = 0; i < out.length(); ++i) {
        const int k = accented.Find(out[i]);
        if (k != wxNOT_FOUND) out[i] = plain[k];
    }
    return out;
}

bool isBlank(const csvtext::Zaznam& r) {
    return std::all_of(r.pole.begin(), r.pole.end(), [](const wxString& f) { return trimmed(f).empty(); });
}

// Where each column is in a record: by position, or by the names of the heading.
struct Rozlozeni {
    int index[POCET_SLOUPCU];
    size_t sirka = 0;    // fields a record may have
    size_t nejmene = 0;  // fields it must have
    bool zahlavi = false;
};

Rozlozeni bezZahlavi() {
    Rozlozeni r;
    for (int i = 0; i < POCET_SLOUPCU; ++i) r.index[i] = i <= PAUSAL ? i : -1;
    r.sirka = POVINNE_SLOUPCE + 1;
    r.nejmene = POVINNE_SLOUPCE;
    return r;
}

// The columns of a heading; an empty text, or the fault. Empty cells at the end are
// spreadsheet padding; every other name must be one of ours, once.
wxString zahlavi(const csvtext::Zaznam& heading, Rozlozeni* r) {
    std::fill(std::begin(r->index), std::end(r->index), -1);
    r->zahlavi = true;
    size_t used = heading.pole.size();
    while (used > 0 && trimmed(heading.pole[used - 1]).empty()) --used;
    for (size_t k = 0; k < used; ++k) {
        const wxString name = folded(heading.pole[k]);
        int found = -1;
        for (int i = 0; i < POCET_SLOUPCU && found < 0; ++i)
            if (name == folded(u8(NAZVY_SLOUPCU[i]))) found = i;
        if (found < 0) return wxString::Format(u8("neznámý sloupec záhlaví „%s“"), ukazka(trimmed(heading.pole[k])));
        if (r->index[found] >= 0)
            return wxString::Format(u8("sloupec „%s“ je v záhlaví dvakrát"), u8(NAZVY_SLOUPCU[found]));
        r->index[found] = static_cast<int>(k);
    }
    r->sirka = used;
    for (int i = 0; i < POVINNE_SLOUPCE; ++i) {
        if (r->index[i] < 0) return wxString::Format(u8("v záhlaví chybí sloupec „%s“"), u8(NAZVY_SLOUPCU[i]));
        r->nejmene = std::max(r->nejmene, static_cast<size_t>(r->index[i]) + 1);
    }
    return wxString();
}

// A field of a record; empty for a column the file does not have.
wxString pole(const csvtext::Zaznam& z, const Rozlozeni& r, Sloupec s) {
    const int k = r.index[s];
    return k >= 0 && static_cast<size_t>(k) < z.pole.size() ? z.pole[k] : wxString();
}

// What the rows share while they are read: the current year, the latest statement number of
// each account (read once) and the numbers the file uses.
struct Kontext {
    int rok = 0;
    std::map<int, int> vypisy;
    std::map<std::pair<wxString, wxString>, int> cisla;  // (series, number) -> line
};

// An amount field read by the one amount parser; the message names the column.
bool castka(const wxString& text, const char* sloupec, double* value, wxString* chyba) {
    const lxformat::Chyba c = lxformat::parseCastka(text, value);
    if (c == lxformat::Chyba::ZADNA) return true;
    *chyba = lxformat::castkaZprava(u8(sloupec), ukazka(trimmed(text)), c);
    return false;
}

// The currency, the amounts and the rate of a row. A row takes its register's currency unless
// a "Měna" column names one. In the home currency the amount is the amount in crowns. In a
// foreign one the amount in that currency is "Částka v měně" when the file gives it (then a
// given "Částka" is the home amount and must agree with it × the rate), otherwise "Částka";
// the rate is the row's "Kurz" or the stored rate of the day (the latest on or before it),
// and the home amount is the foreign one × the rate, unrounded.
wxString meny(DbModel& model, const csvtext::Zaznam& z, const Rozlozeni& r, int registrMena, DenikForm* form) {
    wxString chyba;
    form->menaid = registrMena > 0 ? registrMena : HOME_MENA;
    const wxString mena = trimmed(pole(z, r, MENA));
    if (!mena.empty()) {
        if (mena.Upper() == "CZK" || folded(mena) == "kc") {
            form->menaid = HOME_MENA;
        } else {
            form->menaid = sqlvalue::integer(model.db(), -1, "SELECT id FROM mena WHERE kod=?", mena.Upper());
            if (form->menaid < 0) return wxString::Format(u8("neznámá měna %s"), ukazka(mena));
        }
    }
    const wxString cizi = trimmed(pole(z, r, CASTKACIZI));
    if (form->menaid == HOME_MENA) {
        form->castkacizi = 0;
        form->kurz = 1;
        double value = 0;
        if (!cizi.empty() && (!castka(cizi, "Částka v měně", &value, &chyba) || value != 0)) {
            return chyba.empty() ? wxString::Format(u8("částka v měně %s u záznamu v korunách"), ukazka(cizi)) : chyba;
        }
        return castka(pole(z, r, CASTKA), "Částka", &form->castka, &chyba) ? wxString() : chyba;
    }

    const wxString kod = model.kodMena(form->menaid);
    const wxString kurz = trimmed(pole(z, r, KURZ));
    if (!kurz.empty()) {
        const lxformat::Chyba c = lxformat::parseKurz(kurz, &form->kurz);
        if (c != lxformat::Chyba::ZADNA) return lxformat::kurzZprava("Kurz", ukazka(kurz), c);
    } else {
        const Kurz stored = model.getKurz(kod, form->datum);
        if (!stored.isValid() || !(stored.hodnota() > 0) || !(stored.hodnota() < lxformat::MAX_KURZ))
            return wxString::Format(u8("kurz měny %s ke dni %s není uložen"), kod, lxformat::formatDatum(form->datum));
        form->kurz = stored.hodnota();
    }
    const wxString domaci = trimmed(pole(z, r, CASTKA));
    const bool obe = !cizi.empty();
    if (!castka(obe ? cizi : domaci, obe ? "Částka v měně" : "Částka", &form->castkacizi, &chyba)) return chyba;
    const double soucin = form->castkacizi * form->kurz;
    if (obe && !domaci.empty()) {
        if (!castka(domaci, "Částka", &form->castka, &chyba)) return chyba;
        // Both amounts were written with two decimals and the rate with eight.
        const double tolerance = 0.01 * std::max(1.0, form->kurz) + 1e-8 * std::fabs(form->castkacizi);
        if (std::fabs(form->castka - soucin) > tolerance) {
            return wxString::Format(u8("částka %s Kč neodpovídá částce %s %s při kurzu %s"),
                                    lxformat::formatCastka(form->castka), lxformat::formatCastka(form->castkacizi), kod,
                                    lxformat::formatKurz(form->kurz));
        }
    } else {
        form->castka = soucin;
        if (!(std::fabs(soucin) < lxformat::MAX_CASTKA)) {
            return lxformat::castkaZprava(u8("Částka v Kč"), lxformat::formatCastka(soucin, false),
                                          lxformat::Chyba::ROZSAH);
        }
    }
    return wxString();
}

// The statement number of a bank row: the file's, or the account's latest as the dialog
// proposes it. A cash row has none.
wxString vypis(DbModel& model, const csvtext::Zaznam& z, const Rozlozeni& r, Kontext& k, DenikForm* form) {
    const wxString text = trimmed(pole(z, r, VYPIS));
    if (!form->banka) {
        if (!text.empty() && text != "0")
            return wxString::Format(u8("číslo výpisu %s patří jen k bankovnímu účtu"), ukazka(text));
        return wxString();
    }
    if (!text.empty()) {
        long n = -1;
        const bool digits = std::all_of(text.begin(), text.end(), [](wxUniChar c) { return c >= '0' && c <= '9'; });
        if (!digits || text.length() > 9 || !text.ToLong(&n, 10))
            return wxString::Format(u8("neplatné číslo výpisu '%s'"), ukazka(text));
        form->vypis = static_cast<int>(n);
        return wxString();
    }
    const int bankaid = model.getBankaIdByZkratka(form->registr);
    auto found = k.vypisy.find(bankaid);
    if (found == k.vypisy.end()) found = k.vypisy.emplace(bankaid, model.getLastVypis(bankaid)).first;
    form->vypis = found->second;
    return wxString();
}

// The series an explicit document number belongs to: the row's own when the number is its
// prefix followed by digits, else another journal series whose prefix it carries that way;
// `n` receives the digits' value (held at LONG_MAX for absurd lengths). An empty series when
// it belongs to none.
wxString radaCisla(const std::map<wxString, Rada>& rady, const wxString& vlastni, const wxString& cislo, long* n) {
    auto matches = [&](const Rada& rada) {
        const wxString& prefix = rada.prefix();
        if (!cislo.StartsWith(prefix) || cislo.length() == prefix.length()) return false;
        const wxString rest = cislo.Mid(prefix.length());
        if (!std::all_of(rest.begin(), rest.end(), [](wxUniChar c) { return c >= '0' && c <= '9'; })) return false;
        if (rest.length() > 18 || !rest.ToLong(n, 10)) *n = LONG_MAX;
        return true;
    };
    const auto own = rady.find(vlastni);
    if (own != rady.end() && matches(own->second)) return vlastni;
    for (const auto& [id, rada] : rady) {
        if (id != vlastni && !rada.prefix().empty() && matches(rada)) return id;
    }
    return wxString();
}

// One data row as the dialog's form; an empty text, or the fault.
wxString radek(DbModel& model, const csvtext::Zaznam& z, const Rozlozeni& r, Kontext& k, DenikForm* form) {
    form->mode = DenikForm::ADD;
    const wxString datum = trimmed(pole(z, r, DATUM));
    form->datum = lxformat::parseDatum(datum, k.rok);
    if (!form->datum.IsValid()) return lxformat::datumZprava("Datum", ukazka(datum));
    if (form->datum.GetYear() != k.rok)
        return wxString::Format(u8("datum %s nepatří do účetního období %d"), ukazka(datum), k.rok);
    form->cislo = trimmed(pole(z, r, CISLO));
    form->popis = pole(z, r, POPIS);
    form->reference = trimmed(pole(z, r, REFERENCE));
    form->registr = trimmed(pole(z, r, REGISTR));
    const int pokladnaid = model.getPokladnaIdByZkratka(form->registr);
    const int bankaid = pokladnaid < 0 ? model.getBankaIdByZkratka(form->registr) : -1;
    form->banka = bankaid >= 0;
    if (!form->registr.empty() && pokladnaid < 0 && bankaid < 0)
        return wxString::Format(u8("pokladna ani bankovní účet %s neexistuje"), ukazka(form->registr));
    form->predkontace = trimmed(pole(z, r, PREDKONTACE));
    if (!form->predkontace.empty() && model.getPredkontaceIdByZkratka(form->predkontace) < 0)
        return wxString::Format(u8("Předkontace %s neexistuje"), ukazka(form->predkontace));
    form->protistrana = trimmed(pole(z, r, PROTISTRANA));
    // A row takes its direction from its pre-posting.
    form->prijem = model.isPredkontacePrijem(model.getPredkontaceIdByZkratka(form->predkontace));
    const wxString chyba = denikValidation(model, *form);
    if (!chyba.empty()) return chyba;

    const int registrMena = form->banka ? model.getBanka(bankaid).menaid() : model.getPokladna(pokladnaid).menaid();
    wxString fault = meny(model, z, r, registrMena, form);
    if (!fault.empty()) return fault;
    // Without a percentage an income takes the first one the dialog offers; a written 0 is none.
    form->pausal = 80;
    const wxString pausal = trimmed(pole(z, r, PAUSAL));
    if (!pausal.empty() && pausal != "0" && !parsePausal(pausal, &form->pausal))
        return wxString::Format(u8("neplatný paušální výdaj '%s'"), ukazka(pausal));
    return vypis(model, z, r, k, form);
}

// The numbers of the current year's entries already stored.
std::set<wxString> ulozenaCisla(DbModel& model, int rok) {
    std::set<wxString> cisla;
    try {
        wxSQLite3Statement st = model.db().PrepareStatement("SELECT cislo FROM denik WHERE obdobirok=?");
        st.Bind(1, rok);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) cisla.insert(rs.GetAsString(0));
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("denik cislo", e);
    }
    return cisla;
}

// Gives every row without a number the next free number of its series and returns where
// each series must continue: past the numbers the file brings and past those handed out
// here, skipping any number the year or the file already has, so that no number repeats.
// False when a series runs out of numbers.
bool ocislovat(DbModel& model, int rok, std::vector<DenikForm>& forms, std::map<wxString, Rada>& rady,
               wxString* chyba) {
    std::set<wxString> used = ulozenaCisla(model, rok);
    std::map<wxString, long> next;
    for (const auto& [id, rada] : rady) next[id] = rada.cislo();
    for (const DenikForm& f : forms) {
        if (f.cislo.empty()) continue;
        used.insert(f.cislo);
        long n = 0;
        const wxString rada = radaCisla(rady, denikRada(f.prijem, f.banka), f.cislo, &n);
        if (!rada.empty()) next[rada] = std::max(next[rada], n + 1);
    }
    for (DenikForm& f : forms) {
        if (!f.cislo.empty()) continue;
        const wxString id = denikRada(f.prijem, f.banka);
        const Rada& rada = rady[id];
        long& n = next[id];
        wxString cislo;
        do {
            if (n >= INT_MAX) {
                *chyba = wxString::Format(u8("Číselná řada %s nemá další volné číslo"), id);
                return false;
            }
            cislo = lxutils::cisloDokladu(rada.prefix(), rada.znaku(), n++);
        } while (used.count(cislo));
        used.insert(cislo);
        f.cislo = cislo;
    }
    for (auto& [id, rada] : rady) rada.setCislo(static_cast<int>(std::min<long>(next[id], INT_MAX)));
    return true;
}

}  // namespace

DenikImport importDenikText(DbModel& model, const wxString& text) {
    Kontext k;
    k.rok = model.currentRok();
    if (!model.isOpen() || k.rok <= 0) return fault(0, u8("Není otevřena žádná firma s účetním obdobím"));
    if (text.length() > MAX_BAJTU_SOUBORU)
        return fault(0, wxString::Format(u8("Soubor je větší než %d MB"), static_cast<int>(MAX_BAJTU_SOUBORU >> 20)));

    // Checking every row before anything is stored.
    csvtext::Ctecka ctecka(text);
    csvtext::Zaznam z;
    Rozlozeni rozlozeni = bezZahlavi();
    std::vector<DenikForm> forms;
    std::map<wxString, Rada> rady;
    for (const char* id : {"PP", "PV", "BP", "BV"}) {
        const Rada rada = model.getRada(id);
        if (rada.isValid()) rady[id] = rada;
    }
    bool first = true;
    for (csvtext::Ctecka::Stav s; (s = ctecka.dalsi(&z)) != csvtext::Ctecka::Stav::KONEC;) {
        if (s == csvtext::Ctecka::Stav::CHYBA) return fault(z.radek, ctecka.chyba());
        if (isBlank(z)) continue;
        if (first && folded(z.pole[0]) == "datum") {
            first = false;
            const wxString chyba = zahlavi(z, &rozlozeni);
            if (!chyba.empty()) return fault(z.radek, chyba);
            continue;
        }
        first = false;
        // Spreadsheets often end rows with empty cells; those are not columns.
        size_t used = z.pole.size();
        while (used > rozlozeni.sirka && trimmed(z.pole[used - 1]).empty()) --used;
        if (used < rozlozeni.nejmene || used > rozlozeni.sirka) {
            if (rozlozeni.zahlavi) {
                return fault(z.radek, wxString::Format(u8("očekává se %d sloupců podle záhlaví, nalezeno %d"),
                                                       static_cast<int>(rozlozeni.sirka), static_cast<int>(used)));
            }
            return fault(z.radek,
                         wxString::Format(u8("očekává se 7 sloupců (datum, číslo, popis, částka, pokladna nebo účet, "
                                             "předkontace, protistrana), nalezeno %d"),
                                          static_cast<int>(used)));
        }
        if (forms.size() >= static_cast<size_t>(MAX_ZAZNAMU))
            return fault(0, wxString::Format(u8("Soubor má víc než %d záznamů"), MAX_ZAZNAMU));
        DenikForm form;
        const wxString chyba = radek(model, z, rozlozeni, k, &form);
        if (!chyba.empty()) return fault(z.radek, chyba);
        if (!form.cislo.empty()) {
            // A number twice in one series of the file is refused at its second line.
            long n = 0;
            const wxString vlastni = denikRada(form.prijem, form.banka);
            wxString rada = radaCisla(rady, vlastni, form.cislo, &n);
            // The series must be able to continue after it.
            if (!rada.empty() && n >= INT_MAX) {
                return fault(z.radek, wxString::Format(u8("číslo dokladu %s je mimo rozsah číselné řady %s"),
                                                       ukazka(form.cislo), rada));
            }
            const auto [at, novy] = k.cisla.emplace(std::make_pair(rada.empty() ? vlastni : rada, form.cislo), z.radek);
            if (!novy) {
                return fault(z.radek,
                             wxString::Format(u8("číslo dokladu %s už má řádek %d"), ukazka(form.cislo), at->second));
            }
        }
        forms.push_back(form);
    }
    if (forms.empty()) return fault(0, u8("Soubor neobsahuje žádné záznamy"));

    wxString chyba;
    if (!ocislovat(model, k.rok, forms, rady, &chyba)) return fault(0, chyba);

    try {
        DbModel::WriteTransaction tx(model.db());
        std::map<wxString, int> kontakty;
        for (const DenikForm& form : forms) {
            if (zapisDenik(model, form, &kontakty) < 0)
                return fault(0, u8("Záznamy se nepodařilo uložit, nic nebylo změněno"));
        }
        // Each series continues past the numbers stored, however the file numbered them.
        for (const auto& [id, rada] : rady) {
            if (!model.editRada(rada)) return fault(0, u8("Záznamy se nepodařilo uložit, nic nebylo změněno"));
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

DenikImport importDenikBytes(DbModel& model, const std::string& bytes) {
    const csvtext::Dekodovani d = csvtext::dekodovat(bytes);
    if (!d.ok) return fault(d.radek, d.zprava);
    return importDenikText(model, d.text);
}

DenikImport importDenik(DbModel& model, const wxString& path) {
    std::string bytes;
    bool read = false;
    {
        wxLogNull quiet;  // the messages below say it in Czech
        wxFFile file(path, "rb");
        if (file.IsOpened()) {
            // The size is checked before reading and the reading stops past it, for files
            // whose length the system does not know in advance.
            const wxFileOffset length = file.Length();
            if (length > static_cast<wxFileOffset>(MAX_BAJTU_SOUBORU)) {
                return fault(0, wxString::Format(u8("Soubor %s je větší než %d MB, nelze jej importovat"), path,
                                                 static_cast<int>(MAX_BAJTU_SOUBORU >> 20)));
            }
            char buffer[65536];
            size_t n = 0;
            while (bytes.size() <= MAX_BAJTU_SOUBORU && (n = file.Read(buffer, sizeof buffer)) > 0)
                bytes.append(buffer, n);
            read = !file.Error();
        }
    }
    if (!read) return fault(0, wxString::Format(u8("Soubor %s nelze přečíst"), path));
    if (bytes.size() > MAX_BAJTU_SOUBORU) {
        return fault(0, wxString::Format(u8("Soubor %s je větší než %d MB, nelze jej importovat"), path,
                                         static_cast<int>(MAX_BAJTU_SOUBORU >> 20)));
    }
    return importDenikBytes(model, bytes);
}
