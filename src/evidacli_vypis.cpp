#include "evidacli_vypis.h"

#include <wx/filename.h>

#include <cstdio>

#include "dbmodel.h"
#include "lxformat.h"
#include "vypis/importvypisu.h"

namespace evidacli {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
void print(const wxString& text) { std::printf("%s\n", static_cast<const char*>(text.utf8_str())); }
void printErr(const wxString& text) { std::fprintf(stderr, "%s\n", static_cast<const char*>(text.utf8_str())); }

// The account the statement is for: the one named, else the one whose number the statement
// carries, else the first.
int zvolitUcet(DbModel& model, const wxString& kod, const CteniVypisu& cteni) {
    if (!kod.empty()) return model.getBankaIdByZkratka(kod);
    const lxBankaArray banky = model.banky();
    for (const auto& b : banky)
        for (const Vypis& v : cteni.vypisy)
            if (!v.ucet.empty() && vypis::kontrolaUctu(*b, v).empty() &&
                (!b->cislouctu().empty() && b->cislouctu() != "0"))
                return b->id();
    return banky.empty() ? -1 : banky.front()->id();
}

wxString radek(const vypis::Import& imp, const vypis::PolozkaImportu& p) {
    const wxString castka = lxformat::formatCastka(p.pohyb.prijem ? p.pohyb.castka : -p.pohyb.castka);
    wxString doklad = "-";
    const int index = p.doklad >= 0 ? p.doklad : p.navrh.doklad;
    if (index >= 0) doklad = imp.parovani.doklady()[index].cislo;
    const wxString stav = p.importovano ? u8("importováno") : p.akce == vypis::Akce::UHRADA ? u8("zapsat") : u8("ručně");
    return wxString::Format("%s  %s  VS %s  %s  %s  %s  [%s]", lxformat::formatDatum(p.pohyb.datum), castka,
                            p.pohyb.vs.empty() ? wxString("-") : p.pohyb.vs,
                            p.pohyb.protiucet.empty() ? wxString("-") : p.pohyb.protiucet, doklad, p.navrh.duvod, stav);
}

}  // namespace

wxString importVypisuUsage() {
    return u8("  import-vypis SOUBOR VÝPIS [--ucet KÓD] [--jen-navrh]\n"
              "                         bankovní výpis (ABO/GPC, camt.053, CSV podle uloženého mapování):\n"
              "                         spárování s doklady a zápis jistých úhrad; --jen-navrh nic nezapíše");
}

int importVypisu(DbModel& model, const std::vector<wxString>& args) {
    wxString soubor, kod;
    bool jenNavrh = false;
    for (size_t i = 0; i < args.size(); ++i) {
        if (args[i] == "--jen-navrh") {
            jenNavrh = true;
        } else if (args[i] == "--ucet" && i + 1 < args.size()) {
            kod = args[++i];
        } else if (soubor.empty() && !args[i].StartsWith("--")) {
            soubor = args[i];
        } else {
            return 2;
        }
    }
    if (soubor.empty()) return 2;
    std::string bytes;
    wxString zprava;
    if (!vypis::nacistSoubor(wxFileName(soubor).GetAbsolutePath(), &bytes, &zprava)) {
        printErr(zprava);
        return 1;
    }
    if (!kod.empty() && !model.hasBanka(kod)) {
        printErr(wxString::Format(u8("Bankovní účet %s neexistuje"), kod));
        return 1;
    }
    // A CSV is read by the mapping saved for the account, so the account comes first.
    vypis::CsvMapovani mapovani;
    if (vypis::jeCsv(bytes)) {
        const int id = kod.empty() ? (model.banky().empty() ? -1 : model.banky().front()->id())
                                   : model.getBankaIdByZkratka(kod);
        mapovani = vypis::nacistMapovani(vypis::klicMapovani(model.firma().ic(), model.getBankaZkratka(id)));
    }
    const CteniVypisu cteni = vypis::cistVypis(bytes, mapovani);
    if (!cteni.ok) {
        printErr(cteni.zprava);
        return 1;
    }
    const int bankaid = zvolitUcet(model, kod, cteni);
    if (bankaid < 0) {
        printErr(u8("Firma nemá žádný bankovní účet"));
        return 1;
    }
    for (const Vypis& v : cteni.vypisy) {
        const wxString chyba = vypis::kontrolaUctu(model.getBanka(bankaid), v, model.kodMena(model.getBanka(bankaid).menaid()));
        if (!chyba.empty()) {
            printErr(chyba);
            return 1;
        }
    }
    const vypis::Import imp = vypis::pripravitImport(model, bankaid, cteni);
    for (const vypis::PolozkaImportu& p : imp.polozky) print(radek(imp, p));
    if (jenNavrh) {
        print(u8("Jen návrh, nic nebylo zapsáno."));
        return 0;
    }
    int zapsano = 0;
    const wxString chyba = vypis::zapsatImport(model, imp, &zapsano);
    if (!chyba.empty()) {
        printErr(chyba);
        return 1;
    }
    print(wxString::Format(u8("Zapsáno pohybů: %d, výpis č. %d na účet %s"), zapsano, imp.cisloVypisu,
                           model.getBankaZkratka(bankaid)));
    return 0;
}

}  // namespace evidacli
