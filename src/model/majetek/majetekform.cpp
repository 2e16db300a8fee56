#include "majetekform.h"

#include "lxformat.h"
#include "sqllog.h"
#include "sqlvalue.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

bool odepisuje(int odpis) { return odpis == 1 || odpis == 2; }

}  // namespace

Majetek MajetekForm::majetek(int id) const {
    return Majetek(id, cislo, nazev, popis, porizen, vyrazen, vyrazen ? datumvyrazeni : wxDateTime(), cena, typ, odpis,
                   skupinaid);
}

wxString majetekValidation(DbModel& model, const MajetekForm& form, int id, MajetekPole* pole) {
    const auto fail = [pole](MajetekPole p, const wxString& zprava) {
        if (pole) *pole = p;
        return zprava;
    };
    if (pole) *pole = MajetekPole::ZADNE;
    if (form.cislo.Strip(wxString::both).empty()) return fail(MajetekPole::CISLO, u8("Číslo nemůže být prázdné"));
    if (form.nazev.Strip(wxString::both).empty()) return fail(MajetekPole::NAZEV, u8("Název nemůže být prázdný"));
    if (!form.porizen.IsValid()) return fail(MajetekPole::PORIZEN, lxformat::datumZprava(u8("Pořízeno"), form.porizenText));
    if (form.cena < 0) return fail(MajetekPole::CENA, u8("Vstupní cena nemůže být záporná"));
    if (odepisuje(form.odpis)) {
        if (form.cena <= 0) return fail(MajetekPole::CENA, u8("Vstupní cena odpisovaného majetku musí být kladná"));
        if (form.skupinaid <= 0 || !model.hasOdpiskupina(form.skupinaid))
            return fail(MajetekPole::SKUPINA, u8("Odpisová skupina nemůže být prázdná"));
    }
    if (form.vyrazen) {
        if (!form.datumvyrazeni.IsValid())
            return fail(MajetekPole::VYRAZENI, lxformat::datumZprava(u8("Datum vyřazení"), form.datumvyrazeniText));
        if (form.datumvyrazeni < form.porizen)
            return fail(MajetekPole::VYRAZENI, u8("Datum vyřazení nemůže být dříve než datum pořízení"));
    }
    (void)id;
    return wxString();
}

bool zmeniOdpisy(const Majetek& puvodni, const MajetekForm& form) {
    if (!puvodni.isValid()) return false;
    const bool jinyRok = !puvodni.porizen().IsValid() || puvodni.porizen().GetYear() != form.porizen.GetYear();
    return puvodni.cena() != form.cena || puvodni.odpis() != form.odpis || puvodni.skupinaid() != form.skupinaid ||
           jinyRok;
}

int ulozitMajetek(DbModel& model, const MajetekForm& form, int id) {
    if (!majetekValidation(model, form, id).empty()) return -1;
    wxSQLite3Database& db = model.db();
    try {
        DbModel::WriteTransaction tx(db);
        const bool novy = id <= 0;
        const Majetek puvodni = novy ? Majetek() : model.getMajetek(id);
        const int majetekid = novy ? model.getLastId("majetek") : id;
        const Majetek majetek = form.majetek(majetekid);
        if (!(novy ? model.addMajetek(majetek) : model.editMajetek(majetek))) return -1;
        if (novy && !model.increaseRadaCislo("MA")) return -1;
        if (zmeniOdpisy(puvodni, form)) {
            if (!sqlvalue::execute(db, "DELETE FROM odpis WHERE majetekid=?", majetekid)) return -1;
        }
        if (!model.calculateOdpisy()) return -1;
        tx.commit();
        return majetekid;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("ulozitMajetek", e);
        return -1;
    }
}
