#include "vetap.h"

#include "dbmodel.h"

namespace {

wxString kodTypuZastupce(const wxString& typ) {
    if (typ == wxString::FromUTF8("Fyzická osoba") || typ == "F") return "F";
    if (typ == wxString::FromUTF8("Právnická osoba") || typ == "P") return "P";
    return wxString();
}

void setText(Podani& p, const char* atribut, const wxString& value) { p.setAtributValue("VetaP", atribut, value); }

void setKod(Podani& p, const char* veta, const char* atribut, int value) {
    if (value > 0) p.setAtributValue(veta, atribut, value);
}

}  // namespace

namespace podani {

wxString kmenovaCastDic(const wxString& dic) {
    wxString cislo;
    for (wxUniChar c : dic) {
        if (c >= '0' && c <= '9') cislo += c;
    }
    return cislo;
}

void fillVetaP(DbModel& model, Podani& p) {
    const Priznani& pr = model.priznani();
    setText(p, "c_orient", pr.c_orient());
    setKod(p, "VetaP", "c_pop", pr.c_pop());
    setKod(p, "VetaP", "c_pracufo", pr.c_pracufo());
    setText(p, "c_telef", pr.c_telef());
    setKod(p, "VetaP", "c_ufo", pr.c_ufo());
    setText(p, "dic", kmenovaCastDic(pr.dic()));
    setText(p, "email", pr.email());
    setText(p, "jmeno", pr.jmeno());
    setText(p, "naz_obce", pr.naz_obce());
    setText(p, "opr_jmeno", pr.opr_jmeno());
    setText(p, "opr_postaveni", pr.opr_postaveni());
    setText(p, "opr_prijmeni", pr.opr_prijmeni());
    setText(p, "prijmeni", pr.prijmeni());
    wxString psc = pr.psc();
    psc.Replace(" ", "");
    setText(p, "psc", psc);
    setText(p, "stat", pr.stat());
    setText(p, "titul", pr.titul());
    // A taxpayer with a surname is a natural person; otherwise a legal person by its
    // business name.
    const bool fyzicka = !pr.prijmeni().empty();
    setText(p, "typ_ds", fyzicka ? "F" : "P");
    if (!fyzicka) setText(p, "zkrobchjm", model.firma().nazev());
    setText(p, "ulice", pr.ulice());
    const wxString typZastupce = kodTypuZastupce(pr.zast_typ());
    if (!typZastupce.empty()) {
        p.setAtributValue("VetaP", "zast_dat_nar", vetaformat::parseDatum(pr.zast_dat_nar()).IsValid()
                                                       ? pr.zast_dat_nar()
                                                       : wxString());
        setText(p, "zast_ev_cislo", pr.zast_ev_cislo());
        setText(p, "zast_ic", pr.zast_ic());
        setText(p, "zast_jmeno", pr.zast_jmeno());
        setText(p, "zast_kod", pr.zast_kod().BeforeFirst(' '));
        setText(p, "zast_nazev", pr.zast_nazev());
        setText(p, "zast_prijmeni", pr.zast_prijmeni());
        setText(p, "zast_typ", typZastupce);
    }
}

Ulozene ulozene(int typ, const wxString& popis, const wxString& forma, const DphObdobi& obdobi, const Podani& p) {
    Ulozene u;
    u.setTyp(typ);
    u.setPopis(popis);
    u.setForma(forma);
    u.setObdobi(static_cast<int>(obdobi.druh));
    u.setMesic(obdobi.mesic);
    u.setCtvrtleti(obdobi.ctvrtleti);
    u.setRok(obdobi.rok);
    u.setDatumOd(obdobi.od);
    u.setDatumDo(obdobi.doDne);
    u.setXml(p.saveToString());
    return u;
}

}  // namespace podani
