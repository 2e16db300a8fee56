#include "majetekpage.h"

#include <wx/artprov.h>

#include <map>

#include "MajetekDialog.h"
#include "dbmodel.h"
#include "lxbookpage.h"
#include "lxrowmodel.h"
#include "majetek/odpisy.h"
#include "majetekprint.h"
#include "printchoice.h"
#include "prompts.h"

namespace majetekpage {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

void deleteMajetek(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Majetek m = model->getMajetek(id);
    if (!m.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat majetek\n%s %s?"), m.cislo(), m.nazev()), u8("Dotaz"),
                            page))
        return;
    // Its depreciation rows go with it (the database cascades).
    model->deleteMajetek(id);
}

// The asset book of the rows the page shows, in the shown order.
void printKniha(lxBookPage* page) {
    DbModel* model = openModel();
    if (!model) return;
    std::map<int, const MajetekView*> pohled;
    const lxMajetekViewArray view = model->majetekview();
    for (const auto& r : view) pohled.emplace(r->id(), r.get());
    std::map<int, int> typy;
    for (const auto& m : model->majetky()) typy.emplace(m->id(), m->typ());
    std::vector<KnihaMajetkuRadek> radky;
    for (size_t i = 0; i < page->rows().rowCount(); ++i) {
        const auto it = pohled.find(page->rows().id(i));
        if (it == pohled.end()) continue;
        const MajetekView& r = *it->second;
        radky.push_back({r.cislo(), r.nazev(), DbModel::majetekTypAsString(typy[r.id()]), r.porizen(), r.cena(),
                         r.skupina(), r.odepsano(), r.cena() - r.odepsano(),
                         r.vyrazen() ? u8("Vyřazen") : u8("V užívání")});
    }
    KnihaMajetkuPrint print(page, model->firma().nazev(), model->currentRok(), radky);
    nahledNeboPdf(print, u8("Kniha majetku"), page);
}

}  // namespace

KartaMajetku kartaMajetku(DbModel& model, int id) {
    KartaMajetku k;
    const Majetek m = model.getMajetek(id);
    if (!m.isValid()) return k;
    const Odpiskupina skupina = model.getOdpiskupina(m.skupinaid());
    k.firma = model.firma().nazev();
    k.cislo = m.cislo();
    k.nazev = m.nazev();
    k.popis = m.popis();
    k.typ = DbModel::majetekTypAsString(m.typ());
    k.skupina = skupina.isValid() ? skupina.popis() : wxString();
    k.odpis = DbModel::majetekOdpisAsString(m.odpis());
    k.porizen = m.porizen();
    k.cena = m.cena();
    k.vyrazen = m.vyrazen();
    k.datumvyrazeni = m.datumvyrazeni();
    if (!skupina.isValid() || !m.porizen().IsValid()) return k;
    std::map<int, double> ulozene;
    for (const auto& o : model.odpisyMajetku(id, 9999)) ulozene[o->rok()] += o->odpis();
    for (const odpisy::Rok& r : odpisy::plan(m.cena(), m.odpis(), skupina, m.porizen().GetYear(), ulozene))
        k.roky.push_back({r.rok, r.odpis, r.zustatek, r.ulozeny});
    return k;
}

void tiskKarty(wxWindow* parent, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const KartaMajetku karta = kartaMajetku(*model, id);
    if (karta.cislo.empty() && karta.nazev.empty()) return;
    KartaMajetkuPrint print(parent, karta);
    nahledNeboPdf(print, u8("Karta majetku ") + karta.cislo, parent);
}

void setup(lxBookPage* page) {
    // The years that have come since the file was last open get their depreciation.
    if (DbModel* model = openModel()) model->calculateOdpisy();
    page->setAction(BOOK_ADD, [page](int) { MajetekDialog(page).ShowModal(); });
    page->setAction(BOOK_EDIT, [page](int id) { MajetekDialog(page, id).ShowModal(); });
    page->setAction(BOOK_COPY, [page](int id) { MajetekDialog(page, -1, id).ShowModal(); });
    page->setAction(BOOK_DELETE, [page](int id) { deleteMajetek(page, id); });
    page->setPrintAction([page] { printKniha(page); });
    page->addRowCommand(u8("Karta majetku"), u8("Vytisknout kartu vybraného majetku s plánem odpisů"), wxART_PRINT,
                        [page](int id) { tiskKarty(page, id); });
}

}  // namespace majetekpage
