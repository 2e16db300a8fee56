#include "jizdypage.h"

#include "bookshapes.h"
#include "dbmodel.h"
#include "lxbookpage.h"
#include "prompts.h"

namespace jizdypage {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

void deleteJizda(lxBookPage* page, int id) {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return;
    const Jizda jizda = model->getJizda(id);
    if (!jizda.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat jízdu\n%s\n%s?"),
                                             bookshapes::formatDatum(jizda.startcas(), true), jizda.cesta()),
                            wxString(), page))
        return;
    model->deleteJizda(id);
}

}  // namespace

void setup(lxBookPage* page) {
    page->setAction(BOOK_DELETE, [page](int id) { deleteJizda(page, id); });
}

}  // namespace jizdypage
