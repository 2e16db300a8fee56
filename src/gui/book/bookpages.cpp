#include "bookpages.h"

#include <wx/artprov.h>

#include "DenikTisk.h"
#include "DokladTisk.h"
#include "FakturaDialog.h"
#include "PrijemVydejDialog.h"
#include "ZavpohDialog.h"
#include "UhradaDialog.h"
#include "VypisImportDialog.h"
#include "UhradyDialog.h"
#include "bookshapes.h"
#include "SendEmailDialog.h"
#include "fakturatisk.h"
#include "denikexport.h"
#include "lxcsv.h"
#include "lxbookpage.h"
#include "jizdypage.h"
#include "lxlistctrl.h"
#include "majetekpage.h"
#include "zasobypage.h"
#include "prompts.h"

namespace bookpages {

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

template <class Row>
lxBookPage* page(wxWindow* parent, int nav, lxPageShape<Row> shape) {
    return new lxBookPage(parent, nav, title(nav), std::make_unique<lxTableModel<Row>>(std::move(shape)));
}

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// Deleting a journal entry needs no dialog. A payment's entry takes its payment rows with it
// (the database cascades), and the paid document becomes unpaid again: the model then names
// every page in its change notice, not the journal alone.
void deleteDenik(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const Denik denik = model->getDenik(id);
    if (!denik.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat záznam\n%s\n%s?"), denik.cislo(), denik.popis()),
                            wxString(), page))
        return;
    model->deleteDenik(id);
}

// A new entry: income or expense, of the page's kind (the journal starts with a cash register;
// the dialog switches to a bank account).
void addDenik(lxBookPage* page) {
    if (!openModel()) return;
    wxArrayString druhy;
    druhy.Add(u8("Příjem"));
    druhy.Add(u8("Výdaj"));
    const int druh = prompts().singleChoice(u8("Vyberte, co chcete zadat"), u8("Přidat záznam"), druhy, 0, page);
    if (druh < 0) return;
    PrijemVydejDialog dialog(page, druh == 0, page->navigation() == NAV_BANKA, DenikForm::ADD);
    dialog.ShowModal();
}

void editDenik(lxBookPage* page, int id, bool copy) {
    DbModel* model = openModel();
    if (!model) return;
    const Denik denik = model->getDenik(id);
    if (!denik.isValid()) return;
    const bool prijem = model->isDenikPrijem(id);
    const bool banka = denik.pokladnaid() <= 0 && denik.bankaid() > 0;
    if (!copy) {
        PrijemVydejDialog dialog(page, prijem, banka, DenikForm::EDIT, id);
        dialog.ShowModal();
        return;
    }
    // The copy exists from here on; leaving the dialog with Cancel takes it away again.
    const int kopie = model->copyDenik(id);
    if (kopie <= 0) return;
    PrijemVydejDialog dialog(page, prijem, banka, DenikForm::COPY, kopie);
    if (dialog.ShowModal() != wxID_OK) model->deleteDenik(kopie);
}

void printDenik(lxBookPage* page) {
    std::vector<int> ids;
    for (size_t r = 0; r < page->rows().rowCount(); ++r) ids.push_back(page->rows().id(r));
    DenikTisk(page, page->navigation(), ids, page->list()->selectedId()).run();
}

// The book of the invoices or receivables/liabilities the page shows, in the shown order.
void printDoklady(lxBookPage* page) {
    std::vector<int> ids;
    for (size_t r = 0; r < page->rows().rowCount(); ++r) ids.push_back(page->rows().id(r));
    tiskKnihyDokladu(page, page->navigation(), ids);
}

// "Tisk" on the issued invoices: with an invoice selected, that invoice or the book.
void printFaktury(lxBookPage* page) {
    const int id = page->list()->selectedId();
    if (page->navigation() == NAV_FAKTURY_VYDANE && id >= 0) {
        wxArrayString volby;
        volby.push_back(u8("Vybranou fakturu"));
        volby.push_back(u8("Knihu vydaných faktur"));
        const int volba = prompts().singleChoice(u8("Co chcete vytisknout?"), u8("Tisk"), volby, 0, page);
        if (volba < 0) return;
        if (volba == 0) {
            tiskFaktury(page, id);
            return;
        }
    }
    printDoklady(page);
}

// The journal's pages export whole entries in the shown order, in the form the journal
// import reads back.
bool exportDenik(lxBookPage* page, const wxString& path, lxcsv::Kodovani kodovani, wxString* error) {
    std::vector<int> ids;
    for (size_t r = 0; r < page->rows().rowCount(); ++r) ids.push_back(page->rows().id(r));
    DbModel* model = openModel();
    const std::vector<wxArrayString> rows = model ? denikexport::rows(*model, ids) : std::vector<wxArrayString>();
    return lxcsv::write(
        path, denikexport::header(), rows.size(), [&rows](size_t r) { return rows[r]; }, kodovani, error);
}

// --- invoices, receivables and liabilities ----------------------------------------------

DruhDokladu druhStranky(int nav) {
    switch (nav) {
        case NAV_FAKTURY_PRIJATE:
            return DruhDokladu::FAKTURA_PRIJATA;
        case NAV_POHLEDAVKY:
            return DruhDokladu::POHLEDAVKA;
        case NAV_ZAVAZKY:
            return DruhDokladu::ZAVAZEK;
        default:
            return DruhDokladu::FAKTURA_VYDANA;
    }
}

bool isFakturaStranka(int nav) { return nav == NAV_FAKTURY_VYDANE || nav == NAV_FAKTURY_PRIJATE; }

PlacenyDoklad placenyNaStrance(DbModel& model, int nav, int id) {
    return isFakturaStranka(nav) ? placenyFaktura(model, id) : placenyZavPoh(model, id);
}

// Deleting a document takes its items and stock movements; a document with payments also
// takes the journal entries that paid it, so the user is told so and asked again.
void deleteDoklad(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const int nav = page->navigation();
    const PlacenyDoklad doklad = placenyNaStrance(*model, nav, id);
    if (!doklad.isValid()) return;
    static const char* const otazky[] = {"Opravdu smazat fakturu\n%s?", "Opravdu smazat fakturu\n%s?",
                                         "Opravdu smazat pohledávku\n%s?", "Opravdu smazat závazek\n%s?"};
    if (!prompts().question(wxString::Format(u8(otazky[static_cast<int>(doklad.druh)]), doklad.cislo), u8("Dotaz"),
                            page))
        return;
    const bool uhrady = isFakturaStranka(nav) ? model->someUhradaForFaktura(id) : model->someUhradaForZavpoh(id);
    if (uhrady &&
        !prompts().question(
            wxString::Format(u8("Doklad %s má úhrady.\nSmazat ho i s úhradami a jejich záznamy v deníku?"), doklad.cislo),
            u8("Dotaz"), page))
        return;
    if (isFakturaStranka(nav))
        model->deleteFaktura(id);
    else
        model->deleteZavPoh(id);
}

void zaplatitDoklad(lxBookPage* page, int id) {
    DbModel* model = openModel();
    if (!model) return;
    const PlacenyDoklad doklad = placenyNaStrance(*model, page->navigation(), id);
    if (!doklad.isValid()) return;
    if (doklad.zbyva() <= 0 &&
        !prompts().question(wxString::Format(u8("Doklad %s je už uhrazen.\nPřesto zadat další úhradu?"), doklad.cislo),
                            u8("Dotaz"), page))
        return;
    UhradaDialog dialog(page, doklad);
    dialog.ShowModal();
}

void uhradyDokladu(lxBookPage* page, int id) {
    UhradyDialog dialog(page, druhStranky(page->navigation()), id);
    dialog.ShowModal();
}

// Adding, editing and copying open the document dialog of the page's kind. A copy exists from
// copyFaktura / copyZavPoh on; the dialog finishes it as a new document, and Cancel takes it
// away again.
void otevritDoklad(lxBookPage* page, int id, bool kopie) {
    DbModel* model = openModel();
    if (!model) return;
    const int nav = page->navigation();
    if (kopie) {
        id = isFakturaStranka(nav) ? model->copyFaktura(id) : model->copyZavPoh(id);
        if (id <= 0) return;
    }
    if (isFakturaStranka(nav)) {
        FakturaDialog dialog(page, nav == NAV_FAKTURY_VYDANE, id, kopie);
        dialog.ShowModal();
    } else {
        ZavpohDialog dialog(page, nav == NAV_ZAVAZKY, id, kopie);
        dialog.ShowModal();
    }
}

void addDokladCommands(lxBookPage* page) {
    page->setAction(BOOK_ADD, [page](int) { otevritDoklad(page, -1, false); });
    page->setAction(BOOK_EDIT, [page](int id) { otevritDoklad(page, id, false); });
    page->setAction(BOOK_COPY, [page](int id) { otevritDoklad(page, id, true); });
    page->setAction(BOOK_DELETE, [page](int id) { deleteDoklad(page, id); });
    page->addRowCommand(u8("Zaplatit"), u8("Zadat úhradu vybraného dokladu"), wxART_TICK_MARK,
                        [page](int id) { zaplatitDoklad(page, id); });
    // On the issued invoices the toolbar's room goes to sending the invoice; the payments
    // stay in the context menu there.
    page->addRowCommand(u8("Úhrady"), u8("Zobrazit úhrady vybraného dokladu"), wxART_LIST_VIEW,
                        [page](int id) { uhradyDokladu(page, id); }, page->navigation() != NAV_FAKTURY_VYDANE);
    // A receivable or liability prints as a document of its own (invoices get their print with
    // the invoice layouts); offered in the context menu, the toolbar being full.
    if (!isFakturaStranka(page->navigation()))
        page->addRowCommand(u8("Tisk dokladu"), u8("Vytisknout vybraný doklad"), wxART_PRINT,
                            [page](int id) { tiskZavpoh(page, id); }, false);
    // An issued invoice prints in the program's layout or through a template, to the preview
    // (and from there to a printer) or a PDF.
    if (page->navigation() == NAV_FAKTURY_VYDANE)
        page->addRowCommand(u8("Tisk faktury"), u8("Vytisknout, zobrazit nebo uložit vybranou fakturu"), wxART_PRINT,
                            [page](int id) { tiskFaktury(page, id); }, false);
    if (page->navigation() == NAV_FAKTURY_VYDANE)
        page->addRowCommand(u8("Odeslat"), u8("Odeslat vybranou fakturu e-mailem jako PDF"), wxART_GO_FORWARD,
                            [page](int id) { odeslatFakturu(page, id); });
}

}  // namespace

const std::vector<int>& navigations() {
    static const std::vector<int> codes = {NAV_DENIK,           NAV_POKLADNA,   NAV_BANKA,   NAV_FAKTURY_VYDANE,
                                           NAV_FAKTURY_PRIJATE, NAV_POHLEDAVKY, NAV_ZAVAZKY, NAV_MAJETEK,
                                           NAV_ZASOBY,          NAV_JIZDY};
    return codes;
}

wxString title(int nav) {
    switch (nav) {
        case NAV_HOME:
            return u8("Úvod");
        case NAV_DENIK:
            return u8("Pěněžní deník");
        case NAV_POKLADNA:
            return u8("Pokladna");
        case NAV_BANKA:
            return u8("Banka");
        case NAV_FAKTURY_VYDANE:
            return u8("Faktury vydané");
        case NAV_FAKTURY_PRIJATE:
            return u8("Faktury přijaté");
        case NAV_POHLEDAVKY:
            return u8("Pohledávky");
        case NAV_ZAVAZKY:
            return u8("Závazky");
        case NAV_MAJETEK:
            return u8("Kniha majetku");
        case NAV_ZASOBY:
            return u8("Kniha zásob");
        case NAV_JIZDY:
            return u8("Kniha jízd");
        default:
            return wxString();
    }
}

lxBookPage* create(wxWindow* parent, int nav) {
    lxBookPage* created = nullptr;
    switch (nav) {
        case NAV_DENIK:
        case NAV_POKLADNA:
        case NAV_BANKA:
            created = page(parent, nav, bookshapes::denik(nav));
            created->setAction(BOOK_ADD, [created](int) { addDenik(created); });
            created->setAction(BOOK_EDIT, [created](int id) { editDenik(created, id, false); });
            created->setAction(BOOK_COPY, [created](int id) { editDenik(created, id, true); });
            created->setAction(BOOK_DELETE, [created](int id) { deleteDenik(created, id); });
            created->setPrintAction([created] { printDenik(created); });
            created->setCsvExport([created](const wxString& path, lxcsv::Kodovani kodovani, wxString* error) {
                return exportDenik(created, path, kodovani, error);
            });
            if (nav == NAV_BANKA) addVypisImportCommand(created);
            break;
        case NAV_FAKTURY_VYDANE:
        case NAV_FAKTURY_PRIJATE:
            created = page(parent, nav, bookshapes::faktury(nav == NAV_FAKTURY_VYDANE));
            addDokladCommands(created);
            created->setPrintAction([created] { printFaktury(created); });
            break;
        case NAV_POHLEDAVKY:
        case NAV_ZAVAZKY:
            created = page(parent, nav, bookshapes::zavpoh(nav == NAV_ZAVAZKY));
            addDokladCommands(created);
            created->setPrintAction([created] { printDoklady(created); });
            break;
        case NAV_MAJETEK:
            created = page(parent, nav, bookshapes::majetek());
            majetekpage::setup(created);
            break;
        case NAV_ZASOBY:
            created = page(parent, nav, bookshapes::zasoby());
            zasobypage::setup(created);
            break;
        case NAV_JIZDY:
            created = page(parent, nav, bookshapes::jizdy());
            jizdypage::setup(created);
            break;
        default:
            break;
    }
    return created;
}

}  // namespace bookpages
