#include "jizdypage.h"

#include <wx/artprov.h>

#include "JizdaDialog.h"
#include "JizdyTisk.h"
#include "bookshapes.h"
#include "dbmodel.h"
#include "jizdy/jizdydb.h"
#include "lxbookpage.h"
#include "lxlistctrl.h"
#include "prompts.h"

namespace jizdypage {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The column of the vehicle's plate in the page's rows (bookshapes::jizdy).
constexpr int SLOUPEC_VOZIDLO = 2;

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

void deleteJizda(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Jizda jizda = model->getJizda(id);
    if (!jizda.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat jízdu\n%s\n%s?"),
                                             bookshapes::formatDatum(jizda.startcas(), true), jizda.cesta()),
                            wxString(), page))
        return;
    model->deleteJizda(id);
}

// The vehicle whose book is printed: the selected trip's, the only one shown, or the one the
// user picks among those shown.
int vozidloKTisku(lxBookPage* page) {
    DbModel* model = openModel();
    if (!model) return -1;
    const lxRowModel& rows = page->rows();
    const long selected = rows.indexOfId(page->list()->selectedId());
    if (selected >= 0) return model->getVozidloIdByRz(rows.text(static_cast<size_t>(selected), SLOUPEC_VOZIDLO));
    wxArrayString rz;
    for (size_t r = 0; r < rows.rowCount(); ++r) {
        const wxString text = rows.text(r, SLOUPEC_VOZIDLO);
        if (rz.Index(text) == wxNOT_FOUND) rz.Add(text);
    }
    if (rz.empty()) {
        prompts().info(u8("Kniha jízd neobsahuje žádnou jízdu."), u8("Informace"), page);
        return -1;
    }
    rz.Sort();
    const int volba = rz.size() == 1 ? 0 : prompts().singleChoice(u8("Vyberte vozidlo"), u8("Kniha jízd"), rz, 0, page);
    return volba < 0 ? -1 : model->getVozidloIdByRz(rz[volba]);
}

void tiskKnihy(lxBookPage* page) {
    const int vozidlo = vozidloKTisku(page);
    if (vozidlo <= 0) return;
    std::vector<int> ids;
    for (size_t r = 0; r < page->rows().rowCount(); ++r) ids.push_back(page->rows().id(r));
    tiskKnihyJizd(page, vozidlo, ids);
}

// The odometer check over the year of the selected trip's vehicle.
void kontrolaTachometru(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Jizda jizda = model->getJizda(id);
    if (!jizda.isValid()) return;
    const Vozidlo vozidlo = model->getVozidlo(jizda.vozidloid());
    const int rok = jizda.startcas().GetYear();
    const std::vector<jizdy::Navaznost> nalezy = jizdy::navaznostVozidla(*model, jizda.vozidloid(), rok);
    wxString text;
    if (nalezy.empty()) {
        text = wxString::Format(u8("Jízdy vozidla %s v roce %d na sebe navazují."), vozidlo.rz(), rok);
    } else {
        text = wxString::Format(u8("Jízdy vozidla %s v roce %d:\n"), vozidlo.rz(), rok);
        // A long list is cut; the user fixes the first places and checks again.
        const size_t limit = 20;
        for (size_t i = 0; i < nalezy.size() && i < limit; ++i) text += "\n" + nalezy[i].text;
        if (nalezy.size() > limit) text += wxString::Format(u8("\n\n… a dalších %d."), int(nalezy.size() - limit));
    }
    prompts().info(text, u8("Kontrola tachometru"), page);
}

}  // namespace

void setup(lxBookPage* page) {
    page->setAction(BOOK_ADD, [page](int) { JizdaDialog(page).ShowModal(); });
    page->setAction(BOOK_EDIT, [page](int id) { JizdaDialog(page, id).ShowModal(); });
    page->setAction(BOOK_COPY, [page](int id) { JizdaDialog(page, -1, id).ShowModal(); });
    page->setAction(BOOK_DELETE, [page](int id) { deleteJizda(page, id); });
    page->setPrintAction([page] { tiskKnihy(page); });
    page->addRowCommand(u8("Tisk jízdy"), u8("Vytisknout vybranou jízdu"), wxART_PRINT,
                        [page](int id) { tiskJizdy(page, id); }, false);
    page->addRowCommand(u8("Kontrola tachometru"), u8("Zkontrolovat návaznost stavu tachometru vozidla"), wxART_TIP,
                        [page](int id) { kontrolaTachometru(page, id); });
}

}  // namespace jizdypage
