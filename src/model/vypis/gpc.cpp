#include "gpc.h"

#include "csvtext.h"

namespace vypis {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A field by its position counted from 1 as the bank's layout gives it.
wxString pole(const wxString& line, size_t pos, size_t len) { return line.Mid(pos - 1, len); }

bool cislice(const wxString& text) {
    if (text.empty()) return false;
    for (wxUniChar c : text)
        if (c < '0' || c > '9') return false;
    return true;
}

// DDMMYY; years 00–79 are 20xx, the rest 19xx. Invalid for a day the month does not have.
wxDateTime datumDdMmRr(const wxString& text) {
    if (text.length() != 6 || !cislice(text)) return wxDateTime();
    long d = 0, m = 0, r = 0;
    text.Left(2).ToLong(&d);
    text.Mid(2, 2).ToLong(&m);
    text.Mid(4, 2).ToLong(&r);
    const int rok = r < 80 ? 2000 + static_cast<int>(r) : 1900 + static_cast<int>(r);
    if (m < 1 || m > 12 || d < 1) return wxDateTime();
    const auto mesic = static_cast<wxDateTime::Month>(m - 1);
    if (d > wxDateTime::GetNumberOfDays(mesic, rok)) return wxDateTime();
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(d), mesic, rok);
}

// Amounts in hellers: digits only, at most 12 or 14 of them.
bool halere(const wxString& text, double* castka) {
    const wxString t = text.Strip(wxString::both);
    if (!cislice(t)) return false;
    unsigned long long h = 0;
    if (!t.ToULongLong(&h)) return false;
    *castka = static_cast<double>(h) / 100.0;
    return true;
}

wxString menaZKodu(const wxString& kategorie) {
    struct Mena { const char* kod; const char* iso; };
    static const Mena meny[] = {{"203", "CZK"}, {"978", "EUR"}, {"840", "USD"}, {"826", "GBP"},
                                {"756", "CHF"}, {"985", "PLN"}, {"348", "HUF"}};
    const wxString kod = kategorie.Right(3);
    for (const Mena& m : meny)
        if (kod == m.kod) return m.iso;
    return wxString();
}

CteniVypisu odmitnout(int radek, const wxString& text) {
    CteniVypisu c;
    c.zprava = radek > 0 ? wxString::Format(u8("Řádek %d: %s"), radek, text) : text;
    return c;
}

constexpr size_t DELKA_HLAVICKY = 114;  // through the statement date
constexpr size_t DELKA_POHYBU = 97;     // through the value date; the rest may be trimmed

}  // namespace

bool jeGpc(const std::string& bytes) {
    size_t i = 0;
    if (bytes.compare(0, 3, "\xEF\xBB\xBF") == 0) i = 3;
    return bytes.compare(i, 3, "074") == 0;
}

CteniVypisu cistGpc(const std::string& bytes) {
    if (bytes.size() > MAX_VELIKOST) return odmitnout(0, u8("Soubor výpisu je příliš velký"));
    const csvtext::Dekodovani dek = csvtext::dekodovat(bytes);
    if (!dek.ok) return odmitnout(dek.radek, dek.zprava);

    CteniVypisu result;
    int cisloRadku = 0;
    size_t start = 0;
    const wxString& text = dek.text;
    while (start < text.length()) {
        size_t konec = text.find('\n', start);
        if (konec == wxString::npos) konec = text.length();
        wxString line = text.Mid(start, konec - start);
        start = konec + 1;
        ++cisloRadku;
        if (line.EndsWith("\r")) line.RemoveLast();
        if (cisloRadku == 1 && !line.empty() && line[0] == wxUniChar(0xFEFF)) line.Remove(0, 1);
        if (line.Strip(wxString::trailing).empty()) continue;
        const wxString typ = line.Left(3);
        if (typ == "074") {
            if (line.length() < DELKA_HLAVICKY)
                return odmitnout(cisloRadku, wxString::Format(u8("hlavička výpisu 074 je příliš krátká (%zu znaků)"),
                                                              line.length()));
            Vypis v;
            v.ucet = normalizovatUcet(pole(line, 4, 16));
            const wxString cislo = pole(line, 106, 3);
            long n = 0;
            if (!cislice(cislo.Strip(wxString::both)) || !cislo.Strip(wxString::both).ToLong(&n))
                return odmitnout(cisloRadku, wxString::Format(u8("číslo výpisu „%s“ není číslo"), cislo));
            v.cislo = static_cast<int>(n);
            v.datum = datumDdMmRr(pole(line, 109, 6));
            if (!v.datum.IsValid())
                return odmitnout(cisloRadku, wxString::Format(u8("neplatné datum „%s“"), pole(line, 109, 6)));
            result.vypisy.push_back(v);
        } else if (typ == "075") {
            if (result.vypisy.empty()) return odmitnout(cisloRadku, u8("pohyb 075 před hlavičkou výpisu 074"));
            if (line.length() < DELKA_POHYBU)
                return odmitnout(cisloRadku,
                                 wxString::Format(u8("pohyb 075 je příliš krátký (%zu znaků)"), line.length()));
            Pohyb p;
            if (!halere(pole(line, 49, 12), &p.castka))
                return odmitnout(cisloRadku, wxString::Format(u8("částka „%s“ není číslo"), pole(line, 49, 12)));
            const wxString kod = pole(line, 61, 1);
            if (kod == "1" || kod == "5") {
                p.prijem = false;
            } else if (kod == "2" || kod == "4") {
                p.prijem = true;
            } else {
                return odmitnout(cisloRadku, wxString::Format(u8("neznámý kód účtování „%s“"), kod));
            }
            p.storno = kod == "4" || kod == "5";
            // The constant-symbol field carries the counter-account's bank code first.
            const wxString ksPole = pole(line, 72, 10);
            const wxString kodBanky = ksPole.Left(4);
            p.protiucet = normalizovatUcet(pole(line, 20, 16), cislice(kodBanky) ? kodBanky : wxString());
            p.reference = pole(line, 36, 13).Strip(wxString::both);
            p.vs = normalizovatSymbol(pole(line, 62, 10));
            p.ks = normalizovatSymbol(ksPole.Mid(4));
            p.ss = normalizovatSymbol(pole(line, 82, 10));
            const wxDateTime valuta = datumDdMmRr(pole(line, 92, 6));
            if (!valuta.IsValid())
                return odmitnout(cisloRadku, wxString::Format(u8("neplatné datum „%s“"), pole(line, 92, 6)));
            p.nazev = pole(line, 98, 20).Strip(wxString::both);
            p.mena = menaZKodu(pole(line, 119, 4).Strip(wxString::both));
            // The posting date when the line has it, else the value date.
            const wxString splatnost = pole(line, 123, 6).Strip(wxString::both);
            p.datum = valuta;
            if (!splatnost.empty() && splatnost != "000000") {
                p.datum = datumDdMmRr(splatnost);
                if (!p.datum.IsValid())
                    return odmitnout(cisloRadku, wxString::Format(u8("neplatné datum „%s“"), splatnost));
            }
            Vypis& v = result.vypisy.back();
            if (v.mena.empty()) v.mena = p.mena;
            v.pohyby.push_back(p);
        } else if (typ == "076" || typ == "078" || typ == "079") {
            // Extra lines of the preceding movement: a message or the counterparty's name.
            if (!result.vypisy.empty() && !result.vypisy.back().pohyby.empty()) {
                Pohyb& p = result.vypisy.back().pohyby.back();
                const wxString t = line.Mid(3).Strip(wxString::both);
                if (!t.empty()) p.zprava = p.zprava.empty() ? t : p.zprava + " " + t;
            }
        } else if (cisloRadku == 1) {
            return odmitnout(cisloRadku, u8("soubor nezačíná hlavičkou výpisu ABO/GPC (074)"));
        }
    }
    if (result.vypisy.empty()) return odmitnout(0, u8("Soubor neobsahuje žádný výpis ABO/GPC"));
    result.ok = true;
    return result;
}

}  // namespace vypis
