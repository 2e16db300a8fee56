#include "JizdyCiselnikDialog.h"

#include <wx/listctrl.h>

#include <map>

#include "CenaPhmDialog.h"
#include "JmenoDialog.h"
#include "NahradaKmDialog.h"
#include "VozidloDialog.h"
#include "dbmodel.h"
#include "jizdy/jizdydb.h"
#include "lxformat.h"

JizdyCiselnikDialog::JizdyCiselnikDialog(wxWindow* parent, JizdyCiselnik popis, bool chooser)
    : CiselnikDialog(parent, popis.title, popis.columns, popis.menu, chooser, extraCommands(this, popis)),
      m_popis(std::move(popis)) {
    int sirka = 0;
    for (size_t c = 0; c < m_popis.widths.size(); ++c) {
        list()->SetColumnWidth(static_cast<int>(c), m_popis.widths[c]);
        sirka += m_popis.widths[c];
    }
    // Room for every column without a horizontal scroll bar.
    if (sirka + 20 > list()->GetMinSize().x) {
        list()->SetMinSize(wxSize(sirka + 20, list()->GetMinSize().y));
        Fit();
    }
    refresh();
}

std::vector<SeznamDialog::Command> JizdyCiselnikDialog::extraCommands(JizdyCiselnikDialog* self,
                                                                     const JizdyCiselnik& popis) {
    std::vector<Command> commands;
    for (const JizdyCiselnik::Prikaz& p : popis.extra) {
        commands.push_back({p.button, [menu = p.menu](int) { return menu; }, true,
                            [self, run = p.run](int id) { run(self, id); }});
    }
    return commands;
}

void JizdyCiselnikDialog::addRow() { m_popis.form(this, -1, -1); }
void JizdyCiselnikDialog::editRow(int id) { m_popis.form(this, id, -1); }
void JizdyCiselnikDialog::copyRow(int id) { m_popis.form(this, -1, id); }

void JizdyCiselnikDialog::deleteRow(int id) {
    if (!openModel()) return;
    const wxString question = m_popis.deleteQuestion(id);
    if (question.empty()) return;
    deleteAfterQuestion(question, [this, id](wxString* duvod) { return m_popis.remove(id, duvod); });
}

std::vector<SeznamDialog::Row> JizdyCiselnikDialog::rows() {
    std::vector<Row> all;
    if (!openModel()) return all;
    for (auto& r : m_popis.rows()) all.push_back({r.first, r.second});
    return all;
}

namespace jizdyciselniky {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

using Radky = std::vector<std::pair<int, wxArrayString>>;

wxArrayString strings(std::initializer_list<const char*> texts) {
    wxArrayString all;
    for (const char* t : texts) all.Add(u8(t));
    return all;
}

DbModel* model() {
    DbModel* m = DbModel::instance();
    return m && m->isOpen() ? m : nullptr;
}

template <class Array>
std::vector<std::pair<int, wxArrayString>> jmena(const Array& rows) {
    std::vector<std::pair<int, wxArrayString>> all;
    for (const auto& r : rows) {
        wxArrayString cells;
        cells.Add(r->jmeno());
        all.push_back({r->id(), cells});
    }
    return all;
}

// Refuses to delete a row that vehicles or trips still name.
bool odkazovany(DbModel& m, const char* tabulka, const char* sloupec, int id, const char* zprava, wxString* duvod) {
    if (jizdy::pocetOdkazu(m, tabulka, sloupec, id) == 0) return false;
    if (duvod) *duvod = u8(zprava);
    return true;
}

// A list of rows that are only a name (drivers, fuels, kinds of vehicle). `get`, `add`, `edit`
// and `del` are the model's operations of the record; `odkazy` the tables and columns that name
// it, with the refusal shown while one does.
template <class R>
JizdyCiselnik jmennySeznam(const char* title, const char* formTitle, const char* table,
                           std::initializer_list<const char*> menu, const char* otazka,
                           std::function<std::vector<std::pair<int, wxArrayString>>()> rows,
                           R (DbModel::*get)(int), bool (DbModel::*add)(const R&), bool (DbModel::*edit)(const R&),
                           bool (DbModel::*del)(int), std::vector<std::pair<const char*, const char*>> odkazy,
                           const char* odmitnuti) {
    JizdyCiselnik c;
    c.title = u8(title);
    c.columns = strings({"Název"});
    c.widths = {400};
    c.menu = strings(menu);
    c.rows = std::move(rows);
    c.form = [=](wxWindow* parent, int id, int vzor) {
        DbModel* m = model();
        if (!m) return;
        // Kinds of vehicle count from 0, so only -1 means no row.
        const R r = (m->*get)(id >= 0 ? id : vzor);
        JmenoDialog dialog(parent, u8(formTitle), id, m->getLastId(table), r.isValid() ? r.jmeno() : wxString(),
                           [m, add, edit](int rowId, const wxString& jmeno, bool novy) {
                               const R zaznam(rowId, jmeno);
                               return novy ? (m->*add)(zaznam) : (m->*edit)(zaznam);
                           });
        dialog.ShowModal();
    };
    c.deleteQuestion = [=](int id) {
        DbModel* m = model();
        const R r = m ? (m->*get)(id) : R();
        return r.isValid() ? wxString::Format(u8(otazka), r.jmeno()) : wxString();
    };
    c.remove = [=](int id, wxString* duvod) {
        DbModel* m = model();
        if (!m) return false;
        for (const auto& o : odkazy)
            if (odkazovany(*m, o.first, o.second, id, odmitnuti, duvod)) return false;
        return (m->*del)(id);
    };
    return c;
}

}  // namespace

JizdyCiselnik vozidla() {
    JizdyCiselnik c;
    c.title = u8("Vozidla");
    c.columns = strings({"RZ", "Název", "Druh", "Pohonná hmota", "Spotřeba", "Soukromé"});
    c.widths = {80, 130, 120, 120, 70, 80};
    c.menu = strings({"Přidat vozidlo", "Upravit vozidlo", "Kopírovat vozidlo", "Smazat vozidlo"});
    c.rows = [] {
        std::vector<std::pair<int, wxArrayString>> all;
        DbModel* m = model();
        if (!m) return all;
        std::map<int, wxString> druhy, paliva;
        for (const auto& d : m->druhyVozidel()) druhy[d->id()] = d->jmeno();
        for (const auto& p : m->phm()) paliva[p->id()] = p->jmeno();
        for (const auto& v : m->vozidla()) {
            wxArrayString cells;
            cells.Add(v->rz());
            cells.Add(v->jmeno());
            cells.Add(druhy[v->druhvozidlaid()]);
            cells.Add(paliva[v->phmid()]);
            cells.Add(lxformat::formatKurz(v->spotreba()));
            cells.Add(u8(v->soukrome() ? "Ano" : "Ne"));
            all.push_back({v->id(), cells});
        }
        return all;
    };
    c.form = [](wxWindow* parent, int id, int vzor) {
        VozidloDialog dialog(parent, id, vzor);
        dialog.ShowModal();
    };
    c.deleteQuestion = [](int id) {
        DbModel* m = model();
        const Vozidlo v = m ? m->getVozidlo(id) : Vozidlo();
        return v.isValid() ? wxString::Format(u8("Opravdu smazat vozidlo %s?"), v.rz()) : wxString();
    };
    c.remove = [](int id, wxString* duvod) {
        DbModel* m = model();
        if (!m || odkazovany(*m, "jizda", "vozidloid", id, "Vozidlo má zapsané jízdy, nelze ho smazat.", duvod))
            return false;
        return m->deleteVozidlo(id);
    };
    return c;
}

JizdyCiselnik ridici() {
    return jmennySeznam<Ridic>(
        "Řidiči", "Řidič", "ridic", {"Přidat řidiče", "Upravit řidiče", "Kopírovat řidiče", "Smazat řidiče"},
        "Opravdu smazat řidiče %s?", [] { return model() ? jmena(model()->ridici()) : Radky(); },
        &DbModel::getRidic, &DbModel::addRidic, &DbModel::editRidic, &DbModel::deleteRidic, {{"jizda", "ridicid"}},
        "Řidič má zapsané jízdy, nelze ho smazat.");
}

JizdyCiselnik phm() {
    JizdyCiselnik c = jmennySeznam<Phm>(
        "Pohonné hmoty", "Pohonná hmota", "phm",
        {"Přidat pohonnou hmotu", "Upravit pohonnou hmotu", "Kopírovat pohonnou hmotu", "Smazat pohonnou hmotu"},
        "Opravdu smazat pohonnou hmotu %s?", [] { return model() ? jmena(model()->phm()) : Radky(); },
        &DbModel::getPhm, &DbModel::addPhm, &DbModel::editPhm, &DbModel::deletePhm, {{"vozidlo", "phmid"}},
        "Pohonnou hmotu používá některé vozidlo, nelze ji smazat.");
    c.extra.push_back({u8("&Ceny..."), u8("Průměrné ceny"), [](wxWindow* parent, int id) {
                           JizdyCiselnikDialog ceny(parent, cenyPhm(id));
                           ceny.ShowModal();
                       }});
    return c;
}

JizdyCiselnik cenyPhm(int phmid) {
    JizdyCiselnik c;
    DbModel* m = model();
    const Phm phm = m ? m->getPhm(phmid) : Phm();
    c.title = u8("Průměrné ceny: ") + phm.jmeno();
    c.columns = strings({"Platí od", "Platí do", "Cena"});
    c.widths = {120, 120, 120};
    c.menu = strings({"Přidat cenu", "Upravit cenu", "Kopírovat cenu", "Smazat cenu"});
    c.rows = [phmid] {
        std::vector<std::pair<int, wxArrayString>> all;
        DbModel* m = model();
        if (!m) return all;
        const lxCenaPhmArray ceny = m->cenyPhm(phmid);
        // The newest price first: the one a user looks for.
        for (auto it = ceny.rbegin(); it != ceny.rend(); ++it) {
            wxArrayString cells;
            cells.Add(lxformat::formatDatum((*it)->validFrom()));
            cells.Add(lxformat::formatDatum((*it)->validTo()));
            cells.Add(lxformat::formatCastka((*it)->cena()));
            all.push_back({(*it)->id(), cells});
        }
        return all;
    };
    c.form = [phmid](wxWindow* parent, int id, int vzor) {
        CenaPhmDialog dialog(parent, phmid, id, vzor);
        dialog.ShowModal();
    };
    c.deleteQuestion = [](int id) {
        DbModel* m = model();
        const CenaPhm cena = m ? m->getCenaPhm(id) : CenaPhm();
        return cena.isValid() ? wxString::Format(u8("Opravdu smazat cenu platnou od %s?"),
                                                 lxformat::formatDatum(cena.validFrom()))
                              : wxString();
    };
    c.remove = [](int id, wxString*) {
        DbModel* m = model();
        return m && m->deleteCenaPhm(id);
    };
    return c;
}

JizdyCiselnik druhyVozidel() {
    JizdyCiselnik c = jmennySeznam<DruhVozidla>(
        "Druhy vozidel a sazby náhrad", "Druh vozidla", "druhvozidla",
        {"Přidat druh vozidla", "Upravit druh vozidla", "Kopírovat druh vozidla", "Smazat druh vozidla"},
        "Opravdu smazat druh vozidla %s?",
        [] { return model() ? jmena(model()->druhyVozidel()) : Radky(); },
        &DbModel::getDruhVozidla, &DbModel::addDruhVozidla, &DbModel::editDruhVozidla, &DbModel::deleteDruhVozidla,
        {{"vozidlo", "druhvozidlaid"}}, "Tento druh má některé vozidlo, nelze ho smazat.");
    c.extra.push_back({u8("&Náhrady..."), u8("Sazby náhrad za km"), [](wxWindow* parent, int id) {
                           JizdyCiselnikDialog nahrady(parent, nahradyKm(id));
                           nahrady.ShowModal();
                       }});
    return c;
}

JizdyCiselnik nahradyKm(int druhvozidlaid) {
    JizdyCiselnik c;
    DbModel* m = model();
    const DruhVozidla druh = m ? m->getDruhVozidla(druhvozidlaid) : DruhVozidla();
    c.title = u8("Základní náhrady za km: ") + druh.jmeno();
    c.columns = strings({"Rok", "Náhrada Kč/km"});
    c.widths = {100, 140};
    c.menu = strings({"Přidat náhradu", "Upravit náhradu", "Kopírovat náhradu", "Smazat náhradu"});
    c.rows = [druhvozidlaid] {
        std::vector<std::pair<int, wxArrayString>> all;
        DbModel* m = model();
        if (!m) return all;
        for (const auto& n : jizdy::nahradyDruhu(*m, druhvozidlaid)) {
            wxArrayString cells;
            cells.Add(wxString::Format("%d", n->rok()));
            cells.Add(lxformat::formatKurz(n->nahrada()));
            all.push_back({n->id(), cells});
        }
        return all;
    };
    c.form = [druhvozidlaid](wxWindow* parent, int id, int vzor) {
        NahradaKmDialog dialog(parent, druhvozidlaid, id, vzor);
        dialog.ShowModal();
    };
    c.deleteQuestion = [](int id) {
        DbModel* m = model();
        const NahradaKm n = m ? m->getNahradaKm(id) : NahradaKm();
        return n.isValid() ? wxString::Format(u8("Opravdu smazat náhradu pro rok %d?"), n.rok()) : wxString();
    };
    c.remove = [](int id, wxString*) {
        DbModel* m = model();
        return m && m->deleteNahradaKm(id);
    };
    return c;
}

}  // namespace jizdyciselniky
