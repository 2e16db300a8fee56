#include "evidacli_export.h"

#include <cstdio>
#include <map>

#include "dbmodel.h"
#include "dph/dphdp3fill.h"
#include "dph/dphkh1fill.h"
#include "dph/dphshvfill.h"
#include "dph/kontrola.h"
#include "lxformat.h"
#include "lxsettings.h"

namespace evidacli {

namespace {

void printErr(const wxString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text.utf8_str())); }

// "--rok 2026" and the like, each option with one value; false on an unknown option or a
// missing value.
bool readOptions(const std::vector<wxString>& args, size_t from, std::map<wxString, wxString>* options) {
    static const wxString known[] = {"--rok", "--mesic", "--ctvrtleti", "--od", "--do", "--forma", "--datum", "--k"};
    for (size_t i = from; i < args.size(); i += 2) {
        if (std::find(std::begin(known), std::end(known), args[i]) == std::end(known) || i + 1 >= args.size())
            return false;
        (*options)[args[i]] = args[i + 1];
    }
    return true;
}

bool cislo(const std::map<wxString, wxString>& o, const char* name, long min, long max, int* value) {
    auto it = o.find(name);
    long v = 0;
    if (it == o.end() || !it->second.ToLong(&v) || v < min || v > max) return false;
    *value = static_cast<int>(v);
    return true;
}

// The period of the options, or an invalid one with the reason in *error.
DphObdobi obdobi(const std::map<wxString, wxString>& o, wxString* error) {
    int rok = 0, n = 0;
    const bool maRok = cislo(o, "--rok", 1993, 2100, &rok);
    if (o.count("--mesic")) {
        if (!maRok || !cislo(o, "--mesic", 1, 12, &n)) *error = wxString::FromUTF8("Neplatný rok nebo měsíc");
        return maRok && n ? DphObdobi::zMesice(rok, n) : DphObdobi();
    }
    if (o.count("--ctvrtleti")) {
        if (!maRok || !cislo(o, "--ctvrtleti", 1, 4, &n)) *error = wxString::FromUTF8("Neplatný rok nebo čtvrtletí");
        return maRok && n ? DphObdobi::zCtvrtleti(rok, n) : DphObdobi();
    }
    if (o.count("--od") && o.count("--do")) {
        const wxDateTime od = lxformat::parseDatum(o.at("--od"), rok), doDne = lxformat::parseDatum(o.at("--do"), rok);
        if (!od.IsValid() || !doDne.IsValid()) {
            *error = lxformat::datumZprava(wxString::FromUTF8("Období"), od.IsValid() ? o.at("--do") : o.at("--od"));
            return DphObdobi();
        }
        return DphObdobi::zDatumu(od, doDne);
    }
    *error = wxString::FromUTF8("Zadejte období: --mesic, --ctvrtleti, nebo --od a --do");
    return DphObdobi();
}

// Checks the filing against the official schema and writes it to the standard output.
int vypsat(const Podani& p) {
    const wxString chyby = p.validate();
    if (!chyby.empty()) {
        printErr(wxString::FromUTF8("Podání neodpovídá schématu finanční správy:\n") + chyby);
        return 1;
    }
    const std::string xml = p.createXml();
    std::fwrite(xml.data(), 1, xml.size(), stdout);
    return 0;
}

int exportDphdp3(DbModel& model, const std::map<wxString, wxString>& o) {
    wxString error;
    Dp3Zadani z;
    z.obdobi = obdobi(o, &error);
    if (!z.obdobi.isValid()) {
        printErr(error);
        return 1;
    }
    z.forma = o.count("--forma") ? o.at("--forma") : wxString(Dphdp3::RADNE);
    if (z.forma != "B" && z.forma != "O" && z.forma != "D" && z.forma != "E") {
        printErr(wxString::FromUTF8("Forma přiznání musí být B, O, D nebo E"));
        return 1;
    }
    z.datumPodani = o.count("--datum") ? lxformat::parseDatum(o.at("--datum"), z.obdobi.rok) : pracovniDen();
    if (!z.datumPodani.IsValid()) {
        printErr(lxformat::datumZprava(wxString::FromUTF8("Datum vyhotovení"), o.at("--datum")));
        return 1;
    }
    if (Dphdp3::isDodatecne(z.forma)) {
        // The earlier return: the one named by --k, else the newest regular or corrective
        // return saved for the same period.
        int k = 0;
        if (o.count("--k") && !cislo(o, "--k", 1, 1000000000, &k)) k = -1;
        if (k == 0) {
            const int druh = static_cast<int>(z.obdobi.druh);
            k = model.getUlozeneId(0, Dphdp3::RADNE_OPRAVNE, druh, z.obdobi.od, z.obdobi.doDne);
            if (k == 0) k = model.getUlozeneId(0, Dphdp3::RADNE, druh, z.obdobi.od, z.obdobi.doDne);
        }
        if (k <= 0) {
            printErr(wxString::FromUTF8("Dodatečné přiznání potřebuje uložené přiznání za stejné období (--k ID)"));
            return 1;
        }
        z.ulozeneId = k;
        z.dzjist = z.datumPodani;
    }
    Dphdp3 p;
    if (!dp3::fillData(model, p, z, &error)) {
        printErr(error);
        return 1;
    }
    return vypsat(p);
}

// The filing's options shared by the three: the period and the filing date.
bool obdobiADatum(const std::map<wxString, wxString>& o, DphObdobi* obd, wxDateTime* datum) {
    wxString error;
    *obd = obdobi(o, &error);
    if (!obd->isValid()) {
        printErr(error);
        return false;
    }
    *datum = o.count("--datum") ? lxformat::parseDatum(o.at("--datum"), obd->rok) : pracovniDen();
    if (!datum->IsValid()) {
        printErr(lxformat::datumZprava(wxString::FromUTF8("Datum vyhotovení"), o.at("--datum")));
        return false;
    }
    return true;
}

int exportDphkh1(DbModel& model, const std::map<wxString, wxString>& o) {
    Kh1Zadani z;
    if (!obdobiADatum(o, &z.obdobi, &z.datumPodani)) return 1;
    if (z.obdobi.rok < 2016) {
        printErr(wxString::FromUTF8("Kontrolní hlášení se podává až od roku 2016."));
        return 1;
    }
    z.forma = o.count("--forma") ? o.at("--forma") : wxString(Dphkh1::RADNE);
    if (z.forma != "B" && z.forma != "O" && z.forma != "N" && z.forma != "E") {
        printErr(wxString::FromUTF8("Forma kontrolního hlášení musí být B, O, N nebo E"));
        return 1;
    }
    if (Dphkh1::isNasledne(z.forma)) z.dzjist = z.datumPodani;
    Dphkh1 p;
    kh1::fillData(model, p, z);
    if (p.isNulove()) {
        printErr(wxString::FromUTF8("Nulové kontrolní hlášení se nepodává."));
        return 1;
    }
    return vypsat(p);
}

int exportDphshv(DbModel& model, const std::map<wxString, wxString>& o) {
    ShZadani z;
    if (!obdobiADatum(o, &z.obdobi, &z.datumPodani)) return 1;
    if (z.obdobi.druh == DruhObdobi::Obdobi) {
        printErr(wxString::FromUTF8("Souhrnné hlášení se podává za měsíc nebo čtvrtletí"));
        return 1;
    }
    z.forma = o.count("--forma") ? o.at("--forma") : wxString(Dphshv::RADNE);
    if (z.forma != "R" && z.forma != "N") {
        printErr(wxString::FromUTF8("Forma souhrnného hlášení musí být R nebo N"));
        return 1;
    }
    if (z.forma == Dphshv::NASLEDNE) {
        // The list it follows: the one named by --k, else the list saved for the period.
        int k = 0;
        if (o.count("--k") && !cislo(o, "--k", 1, 1000000000, &k)) k = -1;
        if (k == 0) k = model.getUlozeneId(1, Dphshv::RADNE, static_cast<int>(z.obdobi.druh), z.obdobi.od, z.obdobi.doDne);
        if (k <= 0) {
            printErr(wxString::FromUTF8("Následné hlášení potřebuje uložené souhrnné hlášení za stejné období (--k ID)"));
            return 1;
        }
        z.ulozeneId = k;
    }
    Dphshv p;
    wxString error;
    if (!shv::fillData(model, p, z, &error)) {
        printErr(error);
        return 1;
    }
    if (p.pocetVet("VetaR") == 0) {
        printErr(wxString::FromUTF8("Nejsou žádné doklady pro vybrané období"));
        return 1;
    }
    return vypsat(p);
}

}  // namespace

wxString exportUsage() {
    return wxString::FromUTF8(
        "  export dphdp3 SOUBOR --rok R (--mesic M | --ctvrtleti Q | --od D --do D) [--forma B|O|D|E]\n"
        "         [--datum D] [--k ID]  přiznání k DPH jako XML na standardní výstup\n"
        "  export dphkh1 SOUBOR --rok R (--mesic M | --ctvrtleti Q | --od D --do D) [--forma B|O|N|E]\n"
        "         [--datum D]  kontrolní hlášení DPH jako XML na standardní výstup\n"
        "  export dphshv SOUBOR --rok R (--mesic M | --ctvrtleti Q) [--forma R|N] [--datum D] [--k ID]\n"
        "         souhrnné hlášení VIES jako XML na standardní výstup");
}

int exportPodani(DbModel& model, const std::vector<wxString>& args) {
    std::map<wxString, wxString> options;
    if (args.empty() || !readOptions(args, 1, &options)) return 2;
    if (args[0] == "dphdp3") return exportDphdp3(model, options);
    if (args[0] == "dphkh1") return exportDphkh1(model, options);
    if (args[0] == "dphshv") return exportDphshv(model, options);
    return 2;
}

wxString kontrolaUsage() {
    return wxString::FromUTF8(
        "  kontrola SOUBOR --rok R (--mesic M | --ctvrtleti Q)\n"
        "         porovná přiznání k DPH s kontrolním hlášením za období");
}

int kontrolaPodani(DbModel& model, const std::vector<wxString>& args) {
    std::map<wxString, wxString> options;
    if (!readOptions(args, 0, &options) || options.count("--od") || options.count("--forma")) return 2;
    wxString error;
    const DphObdobi o = obdobi(options, &error);
    if (!o.isValid()) {
        printErr(error);
        return 1;
    }
    const kontrola::Vysledek v = kontrola::zkontrolovat(model, o);
    wxString text = v.text();
    if (!text.EndsWith("\n")) text += "\n";
    std::fputs(text.utf8_str(), stdout);
    return v.vPoradku() ? 0 : 3;
}

}  // namespace evidacli
