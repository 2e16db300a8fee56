#include "InventuryDialog.h"

#include <map>

#include "InventuraDialog.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "SkladTisk.h"
#include "prompts.h"
#include "sklad/skladform.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

InventuryDialog::InventuryDialog(wxWindow* parent)
    : SeznamDialog(parent, u8("Inventury"), strings({"Číslo", "Popis", "Datum", "Sklad", "Provedl"}),
                   {{u8("Přidat"), [](int) { return u8("Přidat inventuru"); }, false, [this](int) { addRow(); }},
                    {u8("Upravit"), [](int) { return u8("Upravit inventuru"); }, true, [this](int id) { editRow(id); },
                     true},
                    {u8("Smazat"), [](int) { return u8("Smazat inventuru"); }, true, [this](int id) { deleteRow(id); }},
                    {u8("Tisk"), [](int) { return u8("Tisk inventury"); }, true, [this](int id) { printRow(id); }},
                    {u8("Kniha inventur"), nullptr, false, [this](int) { printAll(); }}},
                   false) {
    refresh();
}

std::vector<SeznamDialog::Row> InventuryDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    std::map<int, wxString> sklady;
    for (const auto& s : model->sklady()) sklady[s->id()] = s->nazev();
    for (const auto& iv : model->inventury()) {
        wxArrayString cells;
        cells.Add(iv->cislo());
        cells.Add(iv->popis());
        cells.Add(lxformat::formatDatum(iv->datum()));
        cells.Add(sklady[iv->skladid()]);
        cells.Add(iv->provedl());
        all.push_back({iv->id(), cells});
    }
    return all;
}

void InventuryDialog::addRow() { InventuraDialog(this).ShowModal(); }

void InventuryDialog::editRow(int id) { InventuraDialog(this, id).ShowModal(); }

void InventuryDialog::deleteRow(int id) {
    DbModel* model = openModel();
    const Inventura iv = model ? model->getInventura(id) : Inventura();
    if (!iv.isValid()) return;
    if (!prompts().question(skladform::smazatInventuruDotaz(iv), u8("Dotaz"), this)) return;
    skladform::smazatInventuru(*model, id);
}

void InventuryDialog::printRow(int id) { tiskInventury(this, id); }

void InventuryDialog::printAll() { tiskKnihyInventur(this); }
