#include "zasobypage.h"

#include <wx/artprov.h>

#include <vector>

#include "SkladTisk.h"
#include "ZasobaDialog.h"
#include "dbmodel.h"
#include "lxbookpage.h"
#include "lxsettings.h"
#include "prompts.h"
#include "sklad/skladform.h"

namespace zasobypage {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// A copy of an item starts without movements; it is stored at once and then edited, so that
// Cancel of its dialog takes it away again.
void copyZasoba(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const int kopie = model->copyZasoba(id);
    if (kopie <= 0) return;
    ZasobaDialog dialog(page, kopie);
    // The copy took the next ZB number; it is used once the copy stays.
    if (dialog.ShowModal() == wxID_OK)
        model->increaseRadaCislo("ZB");
    else
        skladform::smazatZasobu(*model, kopie);
}

void deleteZasoba(lxBookPage* page, int id) {
    DbModel* model = openModel();
    const Zasoba z = model ? model->getZasoba(id) : Zasoba();
    if (!z.isValid()) return;
    if (!prompts().question(skladform::smazatZasobuDotaz(z), u8("Dotaz"), page)) return;
    skladform::smazatZasobu(*model, id);
}

void printKniha(lxBookPage* page) {
    std::vector<int> ids;
    for (size_t r = 0; r < page->rows().rowCount(); ++r) ids.push_back(page->rows().id(r));
    tiskKnihyZasob(page, ids, pracovniDen());
}

}  // namespace

void setup(lxBookPage* page) {
    page->setAction(BOOK_ADD, [page](int) { ZasobaDialog(page).ShowModal(); });
    page->setAction(BOOK_EDIT, [page](int id) { ZasobaDialog(page, id).ShowModal(); });
    page->setAction(BOOK_COPY, [page](int id) { copyZasoba(page, id); });
    page->setAction(BOOK_DELETE, [page](int id) { deleteZasoba(page, id); });
    page->setPrintAction([page] { printKniha(page); });
    page->addRowCommand(u8("Karta zásoby"), u8("Vytisknout kartu vybrané zásoby s jejími pohyby"), wxART_REPORT_VIEW,
                        [page](int id) { tiskKartyZasoby(page, id); }, false);
}

}  // namespace zasobypage
