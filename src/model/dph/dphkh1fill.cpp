#include "dphkh1fill.h"

#include <cmath>
#include <map>

#include "dbmodel.h"
#include "dic.h"
#include "vetap.h"

namespace {

using kh1::Sekce;

struct SekceInfo {
    Sekce sekce;
    const char* kod;
    const char* kh;      // the classifications' control-statement code
    bool radkova;
};

const SekceInfo SEKCE[] = {
    {Sekce::A1, "A1", "A1", true},    {Sekce::A2, "A2", "A2", true},    {Sekce::A3, "A3", "A3", true},
    {Sekce::A4, "A4", "A4,A5", true}, {Sekce::A5, "A5", "A4,A5", false}, {Sekce::B1, "B1", "B1", true},
    {Sekce::B2, "B2", "B2,B3", true}, {Sekce::B3, "B3", "B2,B3", false},
};

const SekceInfo& info(Sekce s) {
    for (const SekceInfo& i : SEKCE) {
        if (i.sekce == s) return i;
    }
    return SEKCE[0];
}

// A document's own total against the limit. A credit note carries a negative total; the law
// puts a correction in the section of the document it corrects, and the size of the
// correction is the best sign of that which the books hold, so the limit is judged on the
// absolute value: a credit note of −15 000 goes on its own row like the invoice it reduces.
bool nadLimitem(const DphDoklad& d) { return std::fabs(d.celkem) >= kh1::LIMIT; }
bool doLimitu(const DphDoklad& d) { return std::fabs(d.celkem) <= kh1::LIMIT; }

// Only taxed lines belong to the rate positions 1–3: a line at the zero rate is an exempt
// supply, which the control statement does not report.
template <typename F>
void proSazby(const DphDoklad& d, F&& f) {
    int pozice = 0;
    for (const DphForDoklad& line : d.dph) {
        if (line.sazba == 0) continue;
        if (++pozice > 3) break;
        if (line.zaklad != 0 || line.dph != 0) f(pozice, line);
    }
}

double zakladCelkem(const DphDoklad& d) {
    double s = 0;
    for (const DphForDoklad& line : d.dph) s += line.zaklad;
    return s;
}

void setCastky(Dphkh1& p, const wxString& veta, int index, const DphDoklad& d) {
    std::map<int, std::pair<double, double>> sumy;
    proSazby(d, [&](int pozice, const DphForDoklad& line) {
        sumy[pozice].first += line.zaklad;
        sumy[pozice].second += line.dph;
    });
    for (const auto& [pozice, suma] : sumy) {
        p.setCastka(veta, wxString::Format("zakl_dane%d", pozice), suma.first, index);
        p.setCastka(veta, wxString::Format("dan%d", pozice), suma.second, index);
    }
}

wxString adresaText(DbModel& model, const Kontakt& k) {
    const Adresa a = model.getAdresa(k.adresaid());
    wxString text = a.ulice();
    if (!a.cp().empty()) text += (text.empty() ? "" : " ") + a.cp();
    const wxString misto = (a.psc() + " " + a.misto()).Trim().Trim(false);
    if (!misto.empty()) text += (text.empty() ? "" : ", ") + misto;
    return text;
}

// A classification whose return rows are the bad-debt corrections (row 33 of a creditor,
// row 34 of a debtor) marks its documents' rows as such a correction.
bool isOpravaNedobytne(DbModel& model, int dphdruhid, std::map<int, bool>& cache) {
    const auto found = cache.find(dphdruhid);
    if (found != cache.end()) return found->second;
    wxArrayString radky = wxSplit(model.getDphDruh(dphdruhid).radky(), ',');
    const bool oprava = radky.Index("33") != wxNOT_FOUND || radky.Index("34") != wxNOT_FOUND;
    return cache[dphdruhid] = oprava;
}

void fillRadkovou(DbModel& model, Dphkh1& p, Sekce s, const lxDphDokladArray& doklady, const wxDateTime& od) {
    const wxString veta = kh1::vetaName(s);
    std::map<int, bool> opravy;
    std::map<int, Kontakt> kontakty;
    for (const DphDoklad& d : doklady) {
        const int i = p.addVeta(veta);
        p.setAtributValue(veta, "c_radku", i + 1, i);
        p.setAtributValue(veta, "c_evid_dd", d.cislo, i);
        const RozdelenaDic dic = dic::rozdel(d.dic, d.dic.empty() ? wxString() : wxString("CZ"));
        switch (s) {
            case Sekce::A1:
            case Sekce::B1:
                p.setAtributValue(veta, s == Sekce::A1 ? "dic_odb" : "dic_dod", dic.cislo, i);
                p.setAtributValue(veta, "duzp", d.duzp, i);
                p.setAtributValue(veta, "kod_pred_pl", d.kpp, i);
                if (s == Sekce::A1)
                    p.setCastka(veta, "zakl_dane1", zakladCelkem(d), i);
                else
                    setCastky(p, veta, i, d);
                break;
            case Sekce::A2:
                p.setAtributValue(veta, "k_stat", dic.stat, i);
                p.setAtributValue(veta, "vatid_dod", dic.cislo, i);
                p.setAtributValue(veta, "dppd", d.dppd, i);
                setCastky(p, veta, i, d);
                break;
            case Sekce::A3: {
                auto found = kontakty.find(d.kontaktid);
                if (found == kontakty.end()) found = kontakty.emplace(d.kontaktid, model.getKontakt(d.kontaktid)).first;
                const Kontakt& k = found->second;
                const RozdelenaDic a3 = dic::rozdel(d.dic, "CZ");
                p.setAtributValue(veta, "k_stat", a3.stat, i);
                p.setAtributValue(veta, "vatid_odb", a3.cislo, i);
                p.setAtributValue(veta, "jm_prijm_obch", k.nazev(), i);
                p.setAtributValue(veta, "m_pobytu_sidlo", adresaText(model, k), i);
                p.setAtributValue(veta, "dup", d.duzp, i);
                p.setCastka(veta, "osv_plneni", zakladCelkem(d), i);
                break;
            }
            case Sekce::A4:
            case Sekce::B2:
                p.setAtributValue(veta, s == Sekce::A4 ? "dic_odb" : "dic_dod", dic.cislo, i);
                p.setAtributValue(veta, "dppd", d.dppd, i);
                setCastky(p, veta, i, d);
                if (s == Sekce::A4) p.setAtributValue(veta, "kod_rezim_pl", d.krp, i);
                p.setAtributValue(veta, "zdph_44", wxString(isOpravaNedobytne(model, d.dphdruhid, opravy) ? "P" : "N"), i);
                p.fixVetaA4B2(veta, i, od);
                break;
            case Sekce::A5:
            case Sekce::B3: break;
        }
    }
}

void fillSouhrn(Dphkh1& p, Sekce s, const lxDphDokladArray& doklady) {
    const wxString veta = kh1::vetaName(s);
    std::map<int, std::pair<double, double>> sumy;
    for (const DphDoklad& d : doklady) {
        proSazby(d, [&](int pozice, const DphForDoklad& line) {
            sumy[pozice].first += line.zaklad;
            sumy[pozice].second += line.dph;
        });
    }
    for (const auto& [pozice, suma] : sumy) {
        p.setCastka(veta, wxString::Format("zakl_dane%d", pozice), suma.first);
        p.setCastka(veta, wxString::Format("dan%d", pozice), suma.second);
    }
}

}  // namespace

namespace kh1 {

const std::vector<Sekce>& sekce() {
    static const std::vector<Sekce> all = {Sekce::A1, Sekce::A2, Sekce::A3, Sekce::A4,
                                           Sekce::A5, Sekce::B1, Sekce::B2, Sekce::B3};
    return all;
}

wxString vetaName(Sekce s) { return wxString("Veta") + info(s).kod; }
wxString kod(Sekce s) { return info(s).kod; }
bool isRadkova(Sekce s) { return info(s).radkova; }

lxDphDokladArray doklady(DbModel& model, Sekce s, const wxDateTime& od, const wxDateTime& doDne) {
    return doklady(model, s, od, doDne, model.dphDruhyForObdobi(od, doDne));
}

lxDphDokladArray doklady(DbModel& model, Sekce s, const wxDateTime& od, const wxDateTime& doDne,
                         const std::map<int, bool>& vObdobi) {
    std::vector<int> ids;
    for (int id : model.getDphDruhIdByKh(info(s).kh)) {
        if (vObdobi.count(id)) ids.push_back(id);
    }
    lxDphDokladArray all = model.dokladyForDph(ids, od, doDne, false);
    DbModel::sortDphDoklad(all);
    lxDphDokladArray vybrane;
    for (DphDoklad& d : all) {
        bool bere = true;
        // A.4 and B.2 list a payer's documents from the limit up; A.5 and B.3 take the rest
        // and, by the law's wording, also the documents of exactly the limit: such a document
        // of a counterparty with a DIČ is in both.
        if (s == Sekce::A4 || s == Sekce::B2) bere = !d.dic.empty() && nadLimitem(d);
        if (s == Sekce::A5 || s == Sekce::B3) bere = d.dic.empty() || doLimitu(d);
        if (bere) vybrane.push_back(std::move(d));
    }
    return vybrane;
}

void fillHlavicka(DbModel& model, Dphkh1& p, const Kh1Zadani& z) {
    p.setAtributValue("VetaD", "dokument", wxString("KH1"));
    p.setAtributValue("VetaD", "k_uladis", wxString("DPH"));
    p.setAtributValue("VetaD", "khdph_forma", z.forma);
    p.setAtributValue("VetaD", "rok", z.obdobi.rok);
    const DphObdobi& o = z.obdobi;
    switch (o.druh) {
        case DruhObdobi::Mesic: p.setAtributValue("VetaD", "mesic", o.mesic); break;
        case DruhObdobi::Ctvrtleti: p.setAtributValue("VetaD", "ctvrt", o.ctvrtleti); break;
        case DruhObdobi::Obdobi: {
            // A part of a month or quarter (an insolvency, the end of registration): the
            // statement names the month (or the quarter when the dates span its months) and
            // the dates within it.
            const int mOd = o.od.GetMonth() + 1, mDo = o.doDne.GetMonth() + 1;
            if (mOd == mDo && o.od.GetYear() == o.doDne.GetYear())
                p.setAtributValue("VetaD", "mesic", mOd);
            else if ((mOd - 1) / 3 == (mDo - 1) / 3 && o.od.GetYear() == o.doDne.GetYear())
                p.setAtributValue("VetaD", "ctvrt", (mOd - 1) / 3 + 1);
            else
                p.setAtributValue("VetaD", "mesic", mOd);
            p.setAtributValue("VetaD", "zdobd_od", o.od);
            p.setAtributValue("VetaD", "zdobd_do", o.doDne);
            break;
        }
    }
    p.setAtributValue("VetaD", "d_poddp", z.datumPodani);
    if (Dphkh1::isNasledne(z.forma) && z.dzjist.IsValid()) p.setAtributValue("VetaD", "d_zjist", z.dzjist);
    p.setAtributValue("VetaD", "c_jed_vyzvy", z.cjVyzvy.Strip(wxString::both));
    p.setAtributValue("VetaD", "vyzva_odp", z.vyzvaOdp);
    podani::fillVetaP(model, p);
}

void fillSekce(DbModel& model, Dphkh1& p, Sekce s, const wxDateTime& od, const wxDateTime& doDne) {
    fillSekce(model, p, s, od, doDne, model.dphDruhyForObdobi(od, doDne));
}

void fillSekce(DbModel& model, Dphkh1& p, Sekce s, const wxDateTime& od, const wxDateTime& doDne,
               const std::map<int, bool>& vObdobi) {
    const wxString veta = vetaName(s);
    if (isRadkova(s)) {
        while (p.pocetVet(veta) > 0) p.removeVeta(veta, p.pocetVet(veta) - 1);
    } else {
        for (const wxString& a : p.atributy(veta)) p.setAtributValue(veta, a, wxString());
    }
    const lxDphDokladArray vybrane = doklady(model, s, od, doDne, vObdobi);
    if (isRadkova(s))
        fillRadkovou(model, p, s, vybrane, od);
    else
        fillSouhrn(p, s, vybrane);
}

void fillData(DbModel& model, Dphkh1& p, const Kh1Zadani& z) {
    p.clearData();
    fillHlavicka(model, p, z);
    // A quick answer to a summons carries no sections at all.
    if (!z.vyzvaOdp.empty()) return;
    const std::map<int, bool> vObdobi = model.dphDruhyForObdobi(z.obdobi.od, z.obdobi.doDne);
    for (Sekce s : sekce()) fillSekce(model, p, s, z.obdobi.od, z.obdobi.doDne, vObdobi);
    p.fillVetaC();
}

wxString nadpis(Sekce s, const wxDateTime& od) {
    // On 1.4.2019 the correction of a bad debt moved from § 44 to § 46 (supplier) and § 74a
    // (customer), and the form's headings of A.2, A.4 and B.2 changed with it.
    const bool od2019 = !od.IsValid() || od >= wxDateTime(1, wxDateTime::Apr, 2019);
    const char* text = "";
    switch (s) {
        case Sekce::A1:
            text = "A. 1. - Uskutečněná zdanitelná plnění v režimu přenesení daňové povinnosti,u kterých je povinen "
                   "přiznat daň příjemce plnění podle § 92a";
            break;
        case Sekce::A2:
            text = od2019 ? "A. 2. - Přijatá zdanitelná plnění, u kterých je povinen přiznat daň příjemce podle "
                            "§ 108 odst. 1 písm. b) a c), s výjimkou plnění podle § 92a, a opravy těchto plnění"
                          : "A. 2. - Přijatá zdanitelná plnění, u kterých je povinen přiznat daň příjemce podle "
                            "§ 108 odst. 1 písm. b) a c)";
            break;
        case Sekce::A3:
            text = "A. 3. - Uskutečněná dodání investičního zlata podle § 101c odst. 1 písm. c) bod 2";
            break;
        case Sekce::A4:
            text = od2019 ? "A. 4. - Uskutečněná zdanitelná plnění a přijaté úplaty s povinností přiznat daň dle "
                            "§ 108 odst. 1 písm. a) s hodnotou nad 10.000 Kč včetně daně a všechny provedené opravy "
                            "podle § 46 bez ohledu na limit"
                          : "A. 4. - Uskutečněná zdanitelná plnění a přijaté úplaty s povinností přiznat daň dle "
                            "§ 108 odst. 1 písm. a) s hodnotou nad 10.000 Kč včetně daně a všechna plnění, u kterých "
                            "byl vystaven opravný daňový doklad dle § 44 bez ohledu na limit";
            break;
        case Sekce::A5:
            text = "A. 5. - Ostatní uskutečněná zdanitelná plnění a přijaté úplaty s povinností přiznat daň dle § 108 "
                   "odst. 1 písm. a) s hodnotou do 10.000 Kč včetně daně";
            break;
        case Sekce::B1:
            text = "B. 1. - Přijatá zdanitelná plnění v režimu přenesení daňové povinnosti, u kterých je povinen "
                   "přiznat daň příjemce podle § 92a";
            break;
        case Sekce::B2:
            text = od2019 ? "B. 2. - Přijatá zdanitelná plnění a poskytnuté úplaty, u kterých příjemce uplatňuje "
                            "nárok na odpočet daně dle § 73 odst. 1 písm. a) s hodnotou nad 10.000 Kč včetně daně a "
                            "všechny provedené opravy podle § 74a bez ohledu na limit"
                          : "B. 2. - Přijatá zdanitelná plnění a poskytnuté úplaty, u kterých příjemce uplatňuje "
                            "nárok na odpočet daně dle § 73 odst. 1 písm. a) s hodnotou nad 10.000 Kč včetně daně a "
                            "všechna plnění, u kterých byl přijat opravný daňový doklad dle § 44 bez ohledu na limit";
            break;
        case Sekce::B3:
            text = "B. 3. - Přijatá zdanitelná plnění a poskytnuté úplaty, u kterých příjemce uplatňuje nárok na "
                   "odpočet daně dle § 73 odst. 1 písm. a) s hodnotou do 10.000 Kč včetně daně";
            break;
    }
    return wxString::FromUTF8(text);
}

wxString druhText(const wxString& forma) {
    if (forma == Dphkh1::RADNE_OPRAVNE) return wxString::FromUTF8("řádné/opravné");
    if (forma == Dphkh1::NASLEDNE) return wxString::FromUTF8("následné");
    if (forma == Dphkh1::NASLEDNE_OPRAVNE) return wxString::FromUTF8("následné/opravné");
    return wxString::FromUTF8("řádné");
}

wxString popis(const wxString& forma, const DphObdobi& obdobi) {
    const char* druh = "Řádné kontrolní hlášení ";
    if (forma == Dphkh1::RADNE_OPRAVNE) druh = "Řádné opravné kontrolní hlášení ";
    if (forma == Dphkh1::NASLEDNE) druh = "Následné kontrolní hlášení ";
    if (forma == Dphkh1::NASLEDNE_OPRAVNE) druh = "Následné opravné kontrolní hlášení ";
    return wxString::FromUTF8(druh) + obdobi.text();
}

Ulozene ulozene(const Dphkh1& p, const Kh1Zadani& z) {
    return podani::ulozene(2, popis(z.forma, z.obdobi), z.forma, z.obdobi, p);
}

}  // namespace kh1
