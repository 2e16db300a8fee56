#include "csvvypis.h"

#include <wx/config.h>
#include <wx/fileconf.h>
#include <wx/strconv.h>
#include <wx/tokenzr.h>

#include "csvtext.h"
#include "lxformat.h"
#include "lxutils.h"

#include <memory>

namespace vypis {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

struct Sloupec {
    const char* klic;
    int CsvMapovani::*pole;
};

const Sloupec SLOUPCE[] = {{"hlavicka", &CsvMapovani::hlavicka}, {"datum", &CsvMapovani::datum},
                           {"castka", &CsvMapovani::castka},     {"vs", &CsvMapovani::vs},
                           {"protiucet", &CsvMapovani::protiucet}, {"kodbanky", &CsvMapovani::kodBanky},
                           {"zprava", &CsvMapovani::zprava},     {"nazev", &CsvMapovani::nazev},
                           {"reference", &CsvMapovani::reference}};

CteniVypisu odmitnout(int radek, const wxString& text) {
    CteniVypisu c;
    c.zprava = radek > 0 ? wxString::Format(u8("Řádek %d: %s"), radek, text) : text;
    return c;
}

bool dekodovat(const std::string& bytes, const wxString& kodovani, wxString* text, int* radek, wxString* zprava) {
    if (kodovani == "windows-1250") {
        *text = wxString(bytes.data(), wxCSConv(wxFONTENCODING_CP1250), bytes.size());
        return true;
    }
    if (kodovani == "UTF-8") {
        *text = wxString::FromUTF8(bytes.data(), bytes.size());
        if (text->empty() && !bytes.empty()) {
            *radek = 0;
            *zprava = u8("Soubor není v kódování UTF-8");
            return false;
        }
        return true;
    }
    const csvtext::Dekodovani d = csvtext::dekodovat(bytes);
    *text = d.text;
    *radek = d.radek;
    *zprava = d.zprava;
    return d.ok;
}

}  // namespace

wxString CsvMapovani::toString() const {
    wxString s = "oddelovac=" + wxString(oddelovac == "\t" ? "tab" : oddelovac) + "|kodovani=" + kodovani;
    for (const Sloupec& c : SLOUPCE) s += wxString::Format("|%s=%d", c.klic, this->*c.pole);
    return s;
}

CsvMapovani CsvMapovani::fromString(const wxString& text) {
    CsvMapovani m;
    m.hlavicka = 0;
    wxStringTokenizer tok(text, "|");
    while (tok.HasMoreTokens()) {
        const wxString par = tok.GetNextToken();
        const wxString klic = par.BeforeFirst('='), hodnota = par.AfterFirst('=');
        if (klic == "oddelovac") {
            m.oddelovac = hodnota == "tab" ? wxString("\t") : hodnota;
        } else if (klic == "kodovani") {
            m.kodovani = hodnota;
        } else {
            for (const Sloupec& c : SLOUPCE) {
                long n = 0;
                if (klic == c.klic && hodnota.ToLong(&n) && n >= 0 && n <= static_cast<long>(csvtext::MAX_SLOUPCU))
                    m.*c.pole = static_cast<int>(n);
            }
        }
    }
    if (m.oddelovac != ";" && m.oddelovac != "," && m.oddelovac != "\t") m.oddelovac = ";";
    if (m.kodovani != "UTF-8" && m.kodovani != "windows-1250") m.kodovani = "auto";
    return m;
}

wxString klicMapovani(const wxString& ic, const wxString& zkratkaUctu) {
    // Config keys may not hold a slash; the rest of a code is kept as it is.
    wxString k = ic + "_" + zkratkaUctu;
    k.Replace("/", "_");
    return k;
}

namespace {

// The program's settings file: the configuration the settings installed, or, before they have
// (a tool that never loaded them), the same file opened here for this one access.
wxConfigBase* nastaveni(std::unique_ptr<wxFileConfig>& vlastni) {
    if (wxConfigBase* cfg = wxConfigBase::Get(false)) return cfg;
    const wxString path = lxutils::dataDir() + "/evida.ini";
    vlastni = std::make_unique<wxFileConfig>("evida", wxEmptyString, path, wxEmptyString, wxCONFIG_USE_LOCAL_FILE,
                                             wxConvAuto());
    return vlastni.get();
}

}  // namespace

CsvMapovani nacistMapovani(const wxString& klic) {
    if (klic.empty()) return CsvMapovani{};
    std::unique_ptr<wxFileConfig> vlastni;
    const wxString text = nastaveni(vlastni)->Read("VypisCsv/" + klic, wxString());
    return text.empty() ? CsvMapovani{} : CsvMapovani::fromString(text);
}

void ulozitMapovani(const wxString& klic, const CsvMapovani& mapovani) {
    if (klic.empty()) return;
    std::unique_ptr<wxFileConfig> vlastni;
    wxConfigBase* cfg = nastaveni(vlastni);
    cfg->Write("VypisCsv/" + klic, mapovani.toString());
    cfg->Flush();
}

CteniVypisu cistCsv(const std::string& bytes, const CsvMapovani& m) {
    if (!m.isValid()) return odmitnout(0, u8("Mapování sloupců CSV musí určit sloupec data a částky"));
    if (bytes.size() > MAX_VELIKOST) return odmitnout(0, u8("Soubor výpisu je příliš velký"));
    wxString text, zprava;
    int radekChyby = 0;
    if (!dekodovat(bytes, m.kodovani, &text, &radekChyby, &zprava)) return odmitnout(radekChyby, zprava);

    csvtext::Ctecka ctecka(text, m.oddelovac.empty() ? wxUniChar(';') : m.oddelovac[0]);
    csvtext::Zaznam z;
    Vypis v;
    int zaznamu = 0;
    for (;;) {
        const csvtext::Ctecka::Stav stav = ctecka.dalsi(&z);
        if (stav == csvtext::Ctecka::Stav::KONEC) break;
        if (stav == csvtext::Ctecka::Stav::CHYBA) return odmitnout(z.radek, ctecka.chyba());
        if (++zaznamu <= m.hlavicka) continue;
        bool prazdny = true;
        for (const wxString& f : z.pole) prazdny = prazdny && f.empty();
        if (prazdny) continue;
        auto sloupec = [&](int n) { return n > 0 && n <= static_cast<int>(z.pole.size()) ? z.pole[n - 1] : wxString(); };
        const int potreba = std::max(m.datum, m.castka);
        if (static_cast<int>(z.pole.size()) < potreba)
            return odmitnout(z.radek, wxString::Format(u8("řádek má %zu sloupců, mapování potřebuje %d"),
                                                       z.pole.size(), potreba));
        Pohyb p;
        const wxString datum = sloupec(m.datum);
        p.datum = lxformat::parseDatum(datum, 0);
        if (!p.datum.IsValid() || datum.length() < 8)
            return odmitnout(z.radek, lxformat::datumZprava(u8("Datum"), datum));
        const wxString castka = sloupec(m.castka);
        double c = 0;
        const lxformat::Chyba chyba = lxformat::parseCastka(castka, &c);
        if (chyba != lxformat::Chyba::ZADNA) return odmitnout(z.radek, lxformat::castkaZprava(u8("Částka"), castka, chyba));
        if (c == 0) return odmitnout(z.radek, u8("Částka nemůže být nulová"));
        p.prijem = c > 0;
        p.castka = c > 0 ? c : -c;
        wxString ks, ss;
        const wxString vsText = sloupec(m.vs);
        p.vs = symbolZTextu(vsText, &ks, &ss);
        if (p.vs.empty()) p.vs = normalizovatSymbol(vsText);
        p.ks = ks;
        p.ss = ss;
        p.protiucet = normalizovatUcet(sloupec(m.protiucet), sloupec(m.kodBanky));
        p.zprava = sloupec(m.zprava);
        p.nazev = sloupec(m.nazev);
        p.reference = sloupec(m.reference);
        // Without a symbol column the message may still carry one.
        if (p.vs.empty() && !p.zprava.empty()) p.vs = symbolZTextu(p.zprava);
        v.pohyby.push_back(p);
    }
    if (v.pohyby.empty()) return odmitnout(0, u8("Soubor neobsahuje žádný pohyb"));
    v.datum = v.pohyby.back().datum;
    CteniVypisu result;
    result.ok = true;
    result.vypisy.push_back(v);
    return result;
}

}  // namespace vypis
