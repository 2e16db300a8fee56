#include "dp3radky.h"

#include "ciselniky.h"
#include "dphobdobi.h"
#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const char* const D = "VetaD";
const char* const P = "VetaP";

wxString hlavicka(const Dphdp3& p, const char* atribut) { return p.atributValue(D, atribut); }
wxString platce(const Dphdp3& p, const char* atribut) { return p.atributValue(P, atribut); }

// Words joined by single spaces, the empty ones left out.
wxString spojit(std::initializer_list<wxString> slova, const wxString& oddelovac = " ") {
    wxString out;
    for (const wxString& s : slova) {
        if (s.empty()) continue;
        if (!out.empty()) out += oddelovac;
        out += s;
    }
    return out;
}

void pridat(std::vector<dp3::FormUdaj>& udaje, const char* popisek, const wxString& hodnota) {
    if (!hodnota.empty()) udaje.push_back({u8(popisek), hodnota});
}

// "110 00" for a five-digit postcode, else as stored.
wxString psc(const wxString& kod) { return kod.length() == 5 ? kod.Left(3) + " " + kod.Mid(3) : kod; }

wxString datum(const Dphdp3& p, const char* atribut) {
    return lxformat::formatDatum(p.atributValueDatum(D, atribut));
}

wxString adresa(const Dphdp3& p) {
    wxString cislo = platce(p, "c_pop");
    if (!platce(p, "c_orient").empty()) cislo = spojit({cislo, platce(p, "c_orient")}, "/");
    const wxString ulice = spojit({platce(p, "ulice"), cislo});
    const wxString obec = spojit({psc(platce(p, "psc")), platce(p, "naz_obce")});
    return spojit({ulice, obec, platce(p, "stat")}, ", ");
}

wxString kodZo(const wxString& kod) {
    if (kod == "M") return u8("M – měsíční");
    if (kod == "Q") return u8("Q – čtvrtletní");
    return kod;
}

}  // namespace

namespace dp3 {

const std::vector<FormOddil>& formOddily() {
    static const std::vector<FormOddil> oddily = {
        {"I. Zdanitelná plnění",
         {"Základ daně", "Daň"},
         {
             {"1", "Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku – základní sazba",
              {"obrat23", "dan23"}},
             {"2", "Dodání zboží nebo poskytnutí služby s místem plnění v tuzemsku – snížená sazba",
              {"obrat5", "dan5"}},
             {"3", "Pořízení zboží z jiného členského státu – základní sazba", {"p_zb23", "dan_pzb23"}},
             {"4", "Pořízení zboží z jiného členského státu – snížená sazba", {"p_zb5", "dan_pzb5"}},
             {"5", "Přijetí služby od osoby registrované k dani v jiném členském státě (§ 9 odst. 1) – základní sazba",
              {"p_sl23_e", "dan_psl23_e"}},
             {"6", "Přijetí služby od osoby registrované k dani v jiném členském státě (§ 9 odst. 1) – snížená sazba",
              {"p_sl5_e", "dan_psl5_e"}},
             {"7", "Dovoz zboží (§ 23) – základní sazba", {"dov_zb23", "dan_dzb23"}},
             {"8", "Dovoz zboží (§ 23) – snížená sazba", {"dov_zb5", "dan_dzb5"}},
             {"9", "Pořízení nového dopravního prostředku", {"p_dop_nrg", "dan_pdop_nrg"}},
             {"10", "Přenesení daňové povinnosti (§ 92a) – odběratel zboží, příjemce služeb – základní sazba",
              {"rez_pren23", "dan_rpren23"}},
             {"11", "Přenesení daňové povinnosti (§ 92a) – odběratel zboží, příjemce služeb – snížená sazba",
              {"rez_pren5", "dan_rpren5"}},
             {"12", "Ostatní plnění s povinností přiznat daň při jejich přijetí (§ 108) – základní sazba",
              {"p_sl23_z", "dan_psl23_z"}},
             {"13", "Ostatní plnění s povinností přiznat daň při jejich přijetí (§ 108) – snížená sazba",
              {"p_sl5_z", "dan_psl5_z"}},
         }},
        {"II. Ostatní plnění a plnění s místem plnění mimo tuzemsko s nárokem na odpočet daně",
         {"Hodnota"},
         {
             {"20", "Dodání zboží do jiného členského státu (§ 64)", {"dod_zb"}},
             {"21", "Poskytnutí služeb s místem plnění v jiném členském státě vymezených v § 102 odst. 1 písm. d) "
                    "a odst. 2",
              {"pln_sluzby"}},
             {"22", "Vývoz zboží (§ 66)", {"pln_vyvoz"}},
             {"23", "Dodání nového dopravního prostředku osobě neregistrované k dani v jiném členském státě "
                    "(§ 19 odst. 4)",
              {"dod_dop_nrg"}},
             {"24", "Zasílání zboží do jiného členského státu", {"pln_zaslani"}},
             {"25", "Režim přenesení daňové povinnosti (§ 92a) – dodavatel zboží nebo poskytovatel služeb",
              {"pln_rez_pren"}},
             {"26", "Ostatní uskutečněná plnění s nárokem na odpočet daně", {"pln_ost"}},
         }},
        {"III. Doplňující údaje",
         {"Hodnota", "Daň"},
         {
             {"30", "Třístranný obchod (§ 17), prostřední osoba – pořízení zboží", {"tri_pozb", ""}},
             {"31", "Třístranný obchod (§ 17), prostřední osoba – dodání zboží", {"tri_dozb", ""}},
             {"32", "Dovoz zboží osvobozený podle § 71g", {"dov_osv", ""}},
             {"33", "Opravy výše daně u pohledávek za dlužníky v insolvenčním řízení (§ 46, § 74a) – věřitel",
              {"", "opr_verit"}},
             {"34", "Opravy výše daně u pohledávek za dlužníky v insolvenčním řízení (§ 46, § 74a) – dlužník",
              {"", "opr_dluz"}},
         }},
        {"IV. Nárok na odpočet daně",
         {"Základ daně", "Odpočet v plné výši", "Krácený odpočet"},
         {
             {"40", "Z přijatých zdanitelných plnění od plátců – základní sazba",
              {"pln23", "odp_tuz23_nar", "odp_tuz23"}},
             {"41", "Z přijatých zdanitelných plnění od plátců – snížená sazba", {"pln5", "odp_tuz5_nar", "odp_tuz5"}},
             {"42", "Při dovozu zboží, kdy je správcem daně celní úřad", {"dov_cu", "odp_cu_nar", "odp_cu"}},
             {"43", "Ze zdanitelných plnění vykázaných na řádcích 3 až 13 – základní sazba",
              {"nar_zdp23", "od_zdp23", "odkr_zdp23"}},
             {"44", "Ze zdanitelných plnění vykázaných na řádcích 3 až 13 – snížená sazba",
              {"nar_zdp5", "od_zdp5", "odkr_zdp5"}},
             {"45", "Korekce odpočtů daně podle § 75, § 77, § 79 až § 79c", {"", "odp_rez_nar", "odp_rezim"}},
             {"46", "Odpočet daně celkem (součet ř. 40 až 45)", {"", "odp_sum_nar", "odp_sum_kr"}},
             {"47", "Hodnota pořízeného majetku vymezeného v § 4 odst. 4 písm. d) a e)",
              {"nar_maj", "od_maj", "odkr_maj"}},
         }},
        {"V. Krácení nároku na odpočet daně",
         {"Hodnota", "Koeficient (%)", "Odpočet"},
         {
             {"50", "Plnění osvobozená od daně bez nároku na odpočet daně", {"plnosv_kf", "", ""}},
             {"51", "Plnění mimo výpočet koeficientu (§ 76 odst. 4) – s nárokem na odpočet",
              {"pln_nkf", "", ""}},
             {"51", "Plnění mimo výpočet koeficientu (§ 76 odst. 4) – bez nároku na odpočet",
              {"plnosv_nkf", "", ""}},
             {"52", "Koeficient (§ 76) a odpočet v krácené výši", {"", "koef_p20_nov", "odp_uprav_kf"}},
             {"53", "Vypořádací koeficient (§ 76 odst. 7 až 10) a změna odpočtu",
              {"", "koef_p20_vypor", "vypor_odp"}},
         }},
        {"VI. Výpočet daně",
         {"Daň"},
         {
             {"60", "Úprava odpočtu daně (§ 78 an.)", {"uprav_odp"}},
             {"61", "Vrácení daně (§ 84)", {"dan_vrac"}},
             {"62", "Daň na výstupu (součet ř. 1 až 13 – ř. 61)", {"dan_zocelk"}},
             {"63", "Odpočet daně (ř. 46 + ř. 52 + ř. 53 + ř. 60)", {"odp_zocelk"}},
             {"64", "Vlastní daňová povinnost (ř. 62 – ř. 63)", {"dano_da"}},
             {"65", "Nadměrný odpočet (ř. 63 – ř. 62)", {"dano_no"}},
             {"66", "Rozdíl oproti poslední známé dani při podání dodatečného přiznání (zvýšení +, snížení –)",
              {"dano"}},
         }},
    };
    return oddily;
}

bool isKoeficient(const wxString& atribut) { return atribut == "koef_p20_nov" || atribut == "koef_p20_vypor"; }

wxString formHodnota(const Dphdp3& p, const wxString& atribut) {
    if (atribut.empty() || p.atributValue(Dphdp3::vetaOf(atribut), atribut).empty()) return wxString();
    wxString text = lxformat::formatCastka(p.castka(atribut));
    // Amounts are stored in whole crowns and the form shows them so; a coefficient keeps its
    // decimals, and so does an amount that somehow is not whole.
    if (!isKoeficient(atribut) && text.EndsWith(",00")) text.RemoveLast(3);
    return text;
}

wxString formaNazev(const wxString& forma) {
    if (forma == Dphdp3::RADNE) return u8("Řádné přiznání");
    if (forma == Dphdp3::RADNE_OPRAVNE) return u8("Řádné opravné přiznání");
    if (forma == Dphdp3::DODATECNE) return u8("Dodatečné přiznání");
    if (forma == Dphdp3::DODATECNE_OPRAVNE) return u8("Dodatečné opravné přiznání");
    return wxString();
}

wxString obdobiText(const Dphdp3& p) {
    const wxString rok = hlavicka(p, "rok");
    const int mesic = p.atributValueInt(D, "mesic");
    if (mesic > 0) return spojit({lxutils::mesicString(mesic), rok});
    const int ctvrt = p.atributValueInt(D, "ctvrt");
    if (ctvrt > 0) return spojit({lxutils::ctvrtletiString(ctvrt), rok});
    const wxString od = datum(p, "zdobd_od"), doDne = datum(p, "zdobd_do");
    if (!od.empty() || !doDne.empty()) return od + u8(" – ") + doDne;
    return rok;
}

wxString uradText(const Dphdp3& p) {
    const wxString ufo = platce(p, "c_ufo"), pracoviste = platce(p, "c_pracufo");
    // Named from the downloaded code lists; without them (or for an unknown code) by the code.
    const wxString nazevUfo = ufo.empty() ? wxString() : lxutils::nazevUfo(p.atributValueInt("VetaP", "c_ufo"));
    const wxString nazevPrac =
        pracoviste.empty() ? wxString() : lxutils::nazevPracufo(p.atributValueInt("VetaP", "c_pracufo"));
    return spojit({ufo.empty() ? wxString()
                               : (nazevUfo.empty() ? u8("Finanční úřad ") + ufo : nazevUfo + " (" + ufo + ")"),
                   pracoviste.empty() ? wxString()
                                      : (nazevPrac.empty() ? u8("územní pracoviště ") + pracoviste
                                                           : nazevPrac + " (" + pracoviste + ")")},
                  ", ");
}

std::vector<FormUdaj> udajePriznani(const Dphdp3& p) {
    std::vector<FormUdaj> udaje;
    pridat(udaje, "Zdaňovací období", obdobiText(p));
    pridat(udaje, "Datum podání", datum(p, "d_poddp"));
    pridat(udaje, "Datum zjištění důvodů", datum(p, "d_zjist"));
    pridat(udaje, "Kód CZ-NACE", hlavicka(p, "c_okec"));
    pridat(udaje, "Kód období příštího roku", kodZo(hlavicka(p, "kod_zo")));
    return udaje;
}

std::vector<FormUdaj> udajePlatce(const Dphdp3& p) {
    const bool pravnicka = platce(p, "typ_ds") == "P";
    const wxString jmeno = pravnicka ? platce(p, "zkrobchjm")
                                     : spojit({platce(p, "titul"), platce(p, "jmeno"), platce(p, "prijmeni")});
    const wxString dic = platce(p, "dic");
    std::vector<FormUdaj> udaje{{u8(pravnicka ? "Obchodní firma" : "Jméno a příjmení"), jmeno},
                                {u8("DIČ"), dic.empty() ? wxString() : "CZ" + dic}};
    pridat(udaje, "Adresa", adresa(p));
    pridat(udaje, "Správce daně", uradText(p));
    pridat(udaje, "Telefon", platce(p, "c_telef"));
    pridat(udaje, "E-mail", platce(p, "email"));
    pridat(udaje, "Oprávněná osoba",
           spojit({spojit({platce(p, "opr_jmeno"), platce(p, "opr_prijmeni")}), platce(p, "opr_postaveni")}, ", "));
    pridat(udaje, "Zástupce",
           spojit({platce(p, "zast_nazev"), spojit({platce(p, "zast_jmeno"), platce(p, "zast_prijmeni")})}, ", "));
    return udaje;
}

std::vector<wxString> prilohy(const Dphdp3& p) {
    std::vector<wxString> texty;
    for (int i = 0; i < p.pocetVet("VetaR"); ++i) {
        const wxString text = p.atributValue("VetaR", "t_prilohy", i);
        if (!text.empty()) texty.push_back(text);
    }
    return texty;
}

}  // namespace dp3
