#include "importvypisu.h"

#include <wx/ffile.h>
#include <wx/log.h>
#include <wx/regex.h>

#include <map>

#include "camt053.h"
#include "denikform.h"
#include "gpc.h"
#include "lxformat.h"
#include "sqllog.h"

namespace vypis {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// A reference or symbol inside the mark may not break it apart.
wxString bezMezer(const wxString& text) {
    wxString t = text;
    for (const char* c : {" ", "[", "]"}) t.Replace(c, "_");
    return t;
}

// What earlier imports left in the journal: the keys of the account's movements, and for every
// account, the contacts of the entries written for it.
void dosavadniImporty(DbModel& model, int bankaid, std::unordered_set<wxString>* klice, ZnameUcty* ucty) {
    static const wxRegEx re(u8("\\[(výpis [^]]*?)( účet:([^]]*))?\\]"), wxRE_ADVANCED);
    try {
        wxSQLite3Statement st = model.db().PrepareStatement(
            "SELECT reference, IFNULL(protistranaid,0), IFNULL(bankaid,-1) FROM denik WHERE instr(reference, ?)>0");
        st.Bind(1, u8("[výpis "));
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        while (rs.NextRow()) {
            const wxString ref = rs.GetAsString(0);
            if (!re.Matches(ref)) continue;
            if (rs.GetInt(2) == bankaid) klice->insert(re.GetMatch(ref, 1));
            const wxString ucet = re.GetMatch(ref, 3);
            const int kontakt = rs.GetInt(1);
            if (!ucet.empty() && kontakt > 0) {
                std::vector<int>& k = (*ucty)[ucet];
                if (std::find(k.begin(), k.end(), kontakt) == k.end()) k.push_back(kontakt);
            }
        }
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("importovane pohyby", e);
    }
}

wxString cisloUctuBanky(const Banka& b) { return normalizovatUcet(b.cislouctu(), b.kodbanky()); }

// The journal entry of a movement booked without a document.
DenikForm formPrijmuVydeje(const Banka& banka, const Import& import, const PolozkaImportu& p, int menaid,
                           double kurz) {
    DenikForm f;
    f.mode = DenikForm::ADD;
    f.prijem = p.pohyb.prijem;
    f.banka = true;
    f.datum = p.pohyb.datum;
    f.popis = !p.pohyb.zprava.empty() ? p.pohyb.zprava : !p.pohyb.nazev.empty() ? p.pohyb.nazev : u8("Bankovní pohyb");
    f.reference = znackaPohybu(p.pohyb, p.klic);
    if (!p.pohyb.vs.empty()) f.reference = "VS " + p.pohyb.vs + " " + f.reference;
    f.registr = banka.zkratka();
    f.predkontace = p.predkontace;
    f.menaid = menaid;
    if (menaid == 1) {
        f.castka = p.pohyb.castka;
    } else {
        f.castkacizi = p.pohyb.castka;
        f.kurz = kurz;
        f.castka = p.pohyb.castka * kurz;
    }
    f.vypis = import.cisloVypisu;
    return f;
}

// The rate of a foreign-currency movement: the stored rate of its day, else the document's.
double kurzPohybu(DbModel& model, int menaid, const wxDateTime& datum, double nahradni) {
    if (menaid == 1) return 1.0;
    const wxString kod = model.kodMena(menaid);
    if (!kod.empty() && model.hasKurz(kod, datum)) {
        const double k = model.getKurz(kod, datum).hodnota();
        if (k > 0) return k;
    }
    return nahradni > 0 ? nahradni : 1.0;
}

}  // namespace

bool nacistSoubor(const wxString& path, std::string* bytes, wxString* zprava) {
    wxFFile f;
    {
        wxLogNull ticho;  // the message below says it in Czech
        f.Open(path, "rb");
    }
    if (!f.IsOpened()) {
        *zprava = u8("Soubor výpisu nelze otevřít: ") + path;
        return false;
    }
    const wxFileOffset delka = f.Length();
    if (delka < 0 || static_cast<size_t>(delka) > MAX_VELIKOST) {
        *zprava = u8("Soubor výpisu je příliš velký");
        return false;
    }
    bytes->resize(static_cast<size_t>(delka));
    if (delka > 0 && f.Read(&(*bytes)[0], bytes->size()) != bytes->size()) {
        *zprava = u8("Soubor výpisu nelze přečíst: ") + path;
        return false;
    }
    return true;
}

bool jeCsv(const std::string& bytes) { return !jeGpc(bytes) && !jeCamt053(bytes); }

CteniVypisu cistVypis(const std::string& bytes, const CsvMapovani& mapovani) {
    if (bytes.empty()) {
        CteniVypisu c;
        c.zprava = u8("Soubor výpisu je prázdný");
        return c;
    }
    if (jeGpc(bytes)) return cistGpc(bytes);
    if (jeCamt053(bytes)) return cistCamt053(bytes);
    if (!mapovani.isValid()) {
        CteniVypisu c;
        c.zprava = u8("Soubor není výpis ABO/GPC ani camt.053; pro výpis CSV nastavte mapování sloupců");
        return c;
    }
    return cistCsv(bytes, mapovani);
}

wxString klicPohybu(const Pohyb& p, int poradi) {
    wxString k = u8("výpis ") + p.datum.FormatISODate() + (p.prijem ? " +" : " -") +
                 wxString::FromCDouble(p.castka, 2) + " VS:" + bezMezer(p.vs) + " ref:" + bezMezer(p.reference);
    if (poradi > 1) k += wxString::Format("#%d", poradi);
    return k;
}

wxString znackaPohybu(const Pohyb& p, const wxString& klic) {
    return "[" + klic + (p.protiucet.empty() ? wxString() : u8(" účet:") + bezMezer(p.protiucet)) + "]";
}

wxString kontrolaUctu(const Banka& banka, const Vypis& v, const wxString& menaUctu) {
    if (!v.mena.empty() && !menaUctu.empty() && v.mena.Upper() != menaUctu.Upper())
        return wxString::Format(u8("Výpis je v měně %s, účet %s je veden v %s"), v.mena, banka.zkratka(), menaUctu);
    if (v.ucet.empty()) return wxString();
    const wxString vlastni = cisloUctuBanky(banka);
    const wxString iban = normalizovatUcet(banka.iban());
    // The file may give the number without the bank code; compare what both sides know.
    const wxString ucet = v.ucet;
    auto bezKodu = [](const wxString& u) { return u.BeforeFirst('/'); };
    const bool shoda = (!vlastni.empty() && (vlastni == ucet || bezKodu(vlastni) == bezKodu(ucet))) ||
                       (!iban.empty() && (iban == ucet || bezKodu(iban) == bezKodu(ucet)));
    if (shoda || (vlastni.empty() && iban.empty())) return wxString();
    return wxString::Format(u8("Výpis je pro účet %s, ne pro účet %s (%s)"), ucet, banka.zkratka(),
                            vlastni.empty() ? iban : vlastni);
}

Import pripravitImport(DbModel& model, int bankaid, const CteniVypisu& cteni) {
    Import imp;
    imp.bankaid = bankaid;
    const Banka banka = model.getBanka(bankaid);
    std::unordered_set<wxString> hotove;
    ZnameUcty ucty;
    dosavadniImporty(model, bankaid, &hotove, &ucty);
    imp.parovani = Parovani(otevreneDoklady(model), std::move(ucty), banka.menaid() > 0 ? banka.menaid() : 1);
    for (const Vypis& v : cteni.vypisy)
        if (v.cislo > 0 && imp.cisloVypisu == 0) imp.cisloVypisu = v.cislo;
    if (imp.cisloVypisu == 0) imp.cisloVypisu = model.getLastVypis(bankaid) + 1;

    std::unordered_map<wxString, int> poradi;  // identical movements in one file stay apart
    for (const Vypis& v : cteni.vypisy) {
        for (const Pohyb& p : v.pohyby) {
            PolozkaImportu pol;
            pol.pohyb = p;
            const wxString zaklad = klicPohybu(p, 1);
            pol.klic = klicPohybu(p, ++poradi[zaklad]);
            pol.importovano = hotove.count(pol.klic) > 0;
            if (!pol.importovano) {
                pol.navrh = imp.parovani.navrh(p);
                if (pol.navrh.jisty()) {
                    pol.akce = Akce::UHRADA;
                    pol.doklad = pol.navrh.doklad;
                    imp.parovani.zapocitat(pol.doklad, p.castka);
                }
            } else {
                pol.navrh.duvod = u8("Už importováno");
            }
            imp.polozky.push_back(pol);
        }
    }
    return imp;
}

wxString zapsatImport(DbModel& model, const Import& imp, int* zapsano) {
    if (zapsano) *zapsano = 0;
    const Banka banka = model.getBanka(imp.bankaid);
    if (!banka.isValid()) return u8("Bankovní účet neexistuje");
    const int menaid = banka.menaid() > 0 ? banka.menaid() : 1;
    int pocet = 0;
    try {
        DbModel::WriteTransaction tx(model.db());
        for (const PolozkaImportu& p : imp.polozky) {
            if (p.importovano || p.akce == Akce::PRESKOCIT) continue;
            const wxString kdo = wxString::Format(u8("Pohyb %s %s: "), lxformat::formatDatum(p.pohyb.datum),
                                                  lxformat::formatCastka(p.pohyb.castka));
            if (p.akce == Akce::UHRADA) {
                const auto& doklady = imp.parovani.doklady();
                if (p.doklad < 0 || p.doklad >= static_cast<int>(doklady.size()))
                    return kdo + u8("není vybrán doklad");
                const OtevrenyDoklad& o = doklady[p.doklad];
                if (o.prijem() != p.pohyb.prijem)
                    return kdo + u8("směr platby neodpovídá dokladu ") + o.cislo;
                const PlacenyDoklad d = o.faktura() ? placenyFaktura(model, o.id) : placenyZavPoh(model, o.id);
                if (!d.isValid()) return kdo + u8("doklad ") + o.cislo + u8(" neexistuje");
                UhradaForm f;
                f.banka = true;
                f.registr = banka.zkratka();
                f.vypis = imp.cisloVypisu;
                f.datum = p.pohyb.datum;
                f.kurz = kurzPohybu(model, d.menaid, p.pohyb.datum, d.kurz);
                if (d.menaid == 1) {
                    f.castka = p.pohyb.castka;
                } else {
                    f.castkacizi = p.pohyb.castka;
                    f.castka = p.pohyb.castka * f.kurz;
                }
                f.pausal = d.pausal;
                f.reference = d.cislo + " " + znackaPohybu(p.pohyb, p.klic);
                const wxString chyba = uhradaValidation(model, f);
                if (!chyba.empty()) return kdo + chyba;
                if (zapisUhradu(model, d, f).empty()) return kdo + u8("úhradu se nepodařilo uložit");
            } else {
                const DenikForm f = formPrijmuVydeje(banka, imp, p, menaid,
                                                     kurzPohybu(model, menaid, p.pohyb.datum, 0));
                const wxString chyba = denikValidation(model, f);
                if (!chyba.empty()) return kdo + chyba;
                if (zapisDenik(model, f) < 0) return kdo + u8("záznam se nepodařilo uložit");
            }
            ++pocet;
        }
        tx.commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("import vypisu", e);
        return u8("Výpis se nepodařilo uložit");
    }
    if (pocet > 0) model.fireUpdated(NAV_ALL);
    if (zapsano) *zapsano = pocet;
    return wxString();
}

}  // namespace vypis
