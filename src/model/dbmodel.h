// DbModel: the one object through which the program reads and writes the open company's
// database. It owns the connection, keeps the company, the current period and the one-row
// settings records cached, and tells its parent after every change which page to refresh.
// It never needs a window: with no parent its events go nowhere, which is how the tests and
// evida-cli run it.
#pragma once

#include <wx/arrstr.h>
#include <wx/event.h>
#include <wx/wxsqlite3.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "dph/dphdoklad.h"
#include "navigation.h"
#include "records.h"
#include "views.h"

namespace schema {
struct TableDef;
}

// Sent synchronously to the parent; GetInt() is the NavigationCode of the page to refresh.
wxDECLARE_EVENT(MODEL_UPDATED, wxCommandEvent);
// Sent synchronously to the parent; GetString() is a message to show under "Informace".
wxDECLARE_EVENT(MODEL_MSG, wxCommandEvent);

class DbModel {
   public:
    // The main window passes itself; the model becomes the process-wide instance.
    explicit DbModel(wxEvtHandler* parent = nullptr);
    ~DbModel();
    DbModel(const DbModel&) = delete;
    DbModel& operator=(const DbModel&) = delete;

    static DbModel* instance();

    void initModel();
    void shutdownModel();

    // --- lifecycle ---
    // Open the current company's file (data directory + settings dbname), check and upgrade it.
    bool openDatabase();
    // Create a new file for the current company with every table and its seed rows.
    bool newDatabase();
    // How thoroughly opening examines the file before anything else reads it: QUICK is
    // "PRAGMA quick_check" (every open), FULL "PRAGMA integrity_check" (evida-cli check).
    enum class IntegrityCheck { QUICK, FULL };
    // The same for an explicit path (evida-cli, tests). Opening never creates a file; a
    // missing, empty, damaged file or one with an unreadable or newer version is refused and
    // left as it was, and openError() says why.
    bool openDatabase(const wxString& path, IntegrityCheck check = IntegrityCheck::QUICK);
    // Creates a new file; refuses an existing file or a symbolic link. A failed creation
    // leaves no file behind.
    bool newDatabase(const wxString& path);
    // The Czech message of the last failed open or creation ("Nepodařilo se otevřít
    // databázi" when there is no better one).
    wxString openError() const;
    // The copy made before this open upgraded or repaired the file; empty when none was needed.
    wxString safetyCopy() const { return m_safetyCopy; }
    void createDatabase();
    void closeDatabase();
    bool isOpen() const;
    wxString databasePath() const { return m_path; }
    // Upgrade cascade and table checks; a file that cannot safely be upgraded or repaired is
    // closed, with the reason in openError().
    void checkDb();
    // Convert settings entries written before company keys existed to "name_IČ" keys.
    void updateDbFirma();

    // --- helpers over tables ---
    // Executes when the connection is open; errors are logged, not propagated. Returns success.
    bool tryExecuteUpdate(const wxString& sql);
    void createDatabaseTable(const char* const* list, bool onlyRows);
    static int rowsForInsertToTable(const char* const* list);
    wxArrayString tableColumns(const wxString& table);
    bool hasTableColumn(const wxString& table, const wxString& column);
    bool hasSameColumns(const wxString& a, const wxString& b);
    int tableRows(const wxString& table);
    wxArrayString tableKeys(const wxString& table);
    bool hasTableId(const wxString& table, const wxString& column, const wxString& value);
    bool hasTableId(const wxString& table, const wxString& column, int value);
    void clearTable(const wxString& table);
    static wxString getVersion();
    // The id a new row of the table takes: the largest id + 1, or 1 for an empty table.
    int getLastId(const wxString& table);
    bool hasTable(const wxString& table);
    // Replaces a code list by the program's rows, keeping the rows that user data refer to
    // and the program's list lacks (a currency in use is never dropped).
    void reseedCodeList(const char* table);
    // Copies the open file beside itself through SQLite's backup, once per open, before the
    // first change to a user's rows. Throws SafetyCopyFailed when the copy cannot be made.
    struct SafetyCopyFailed {};
    void ensureSafetyCopy();
    // A line for the report of this open: a row that a repair recreated or moved, an upgrade.
    void addRepairNote(const wxString& note) { m_repairNotes.Add(note); }

    // --- cached records (dbmodel.cpp) ---
    void fillData();
    void fillFirma();
    void fillSmtp();
    // The stored taxpayer record, or a new one filled from the company while none is stored
    // (dph/dbmodel_priznani.cpp).
    void fillPriznani();
    const Firma& firma() const { return m_firma; }
    const Smtp& smtp() const { return m_smtp; }
    const Priznani& priznani() const { return m_priznani; }
    // Stores the taxpayer record as the one row of its table, with the state always
    // "ČESKÁ REPUBLIKA" (dph/dbmodel_priznani.cpp).
    bool setPriznani(const Priznani& priznani);

    // --- the company (dbmodel_firma.cpp) ---
    // Inserts the one company row when there is none, else updates it (never its address).
    bool setFirma(const Firma& firma);
    bool isFirmaPlatce() const { return m_firma.platce(); }
    bool isFirmaPausal() const { return m_firma.pausal(); }
    // Image files of the company's logo and stamp for prints; empty when not set or missing.
    wxString firmaLogo() const;
    wxString firmaRazitko() const;
    bool setSmtp(const Smtp& smtp);

    // --- records: add/edit/get/has/delete per family (dbmodel_records.cpp) ---
    // A getter of a missing row returns an invalid record. Every write notifies.
#define EVIDA_DECLARE_FAMILY(R, Key)  \
    bool add##R(const R& record);     \
    bool edit##R(const R& record);    \
    R get##R(Key key);                \
    bool has##R(Key key);             \
    bool delete##R(Key key);
    EVIDA_DECLARE_FAMILY(Adresa, int)
    EVIDA_DECLARE_FAMILY(Kontakt, int)
    EVIDA_DECLARE_FAMILY(Obdobi, int)
    EVIDA_DECLARE_FAMILY(Pokladna, int)
    EVIDA_DECLARE_FAMILY(Banka, int)
    EVIDA_DECLARE_FAMILY(Predkontace, int)
    EVIDA_DECLARE_FAMILY(Denik, int)
    EVIDA_DECLARE_FAMILY(Faktura, int)
    EVIDA_DECLARE_FAMILY(ZavPoh, int)
    EVIDA_DECLARE_FAMILY(FaPolozka, int)
    EVIDA_DECLARE_FAMILY(FaUhrada, int)
    EVIDA_DECLARE_FAMILY(Uhrada, int)
    EVIDA_DECLARE_FAMILY(Majetek, int)
    EVIDA_DECLARE_FAMILY(Odpis, int)
    EVIDA_DECLARE_FAMILY(Settings, int)
    EVIDA_DECLARE_FAMILY(Sklad, int)
    EVIDA_DECLARE_FAMILY(Zasoba, int)
    EVIDA_DECLARE_FAMILY(Pohybzasob, int)
    EVIDA_DECLARE_FAMILY(Inventura, int)
    EVIDA_DECLARE_FAMILY(IvPolozka, int)
    EVIDA_DECLARE_FAMILY(Ridic, int)
    EVIDA_DECLARE_FAMILY(Vozidlo, int)
    EVIDA_DECLARE_FAMILY(Jizda, int)
    EVIDA_DECLARE_FAMILY(Odeslany, int)
    EVIDA_DECLARE_FAMILY(Ulozene, int)
    EVIDA_DECLARE_FAMILY(Kurz, int)
    // Code lists the user edits: depreciation groups, fuels, fuel prices, vehicle kinds and
    // the per-km allowances of a year.
    EVIDA_DECLARE_FAMILY(Odpiskupina, int)
    EVIDA_DECLARE_FAMILY(Phm, int)
    EVIDA_DECLARE_FAMILY(DruhVozidla, int)
    EVIDA_DECLARE_FAMILY(CenaPhm, int)
    EVIDA_DECLARE_FAMILY(NahradaKm, int)
#undef EVIDA_DECLARE_FAMILY
    // Read-only families: the fixed code lists of the program.
#define EVIDA_DECLARE_LOOKUP(R, Key) \
    R get##R(Key key);               \
    bool has##R(Key key);
    EVIDA_DECLARE_LOOKUP(DphSazba, int)
    EVIDA_DECLARE_LOOKUP(DphDruh, int)
    EVIDA_DECLARE_LOOKUP(DenikSloupec, int)
    EVIDA_DECLARE_LOOKUP(Mena, int)
    EVIDA_DECLARE_LOOKUP(FaTyp, int)
    EVIDA_DECLARE_LOOKUP(BankovniUstav, int)
    EVIDA_DECLARE_LOOKUP(Rada, const wxString&)
#undef EVIDA_DECLARE_LOOKUP

    // --- copies (dbmodel_copy.cpp); each returns the new row's id, or -1 ---
    // A contact's copy (with a copy of its address) is named "<name> (<n>)", n making it unique.
    int copyKontakt(int id);
    // A pre-posting's copy gets the code "<code><n>".
    int copyPredkontace(int id);
    // A journal entry's copy: the working date and the next number of its series (not advanced).
    int copyDenik(int id);
    // An invoice's or receivable's copy with its items: fresh number, variable symbol and dates.
    int copyFaktura(int id);
    int copyZavPoh(int id);
    int copyMajetek(int id);
    int copyZasoba(int id);
    int copyVozidlo(int id);
    int copyJizda(int id);

    // --- plural getters and lookups by unique text (dbmodel_lists.cpp) ---
    lxKontaktArray kontakty();
    lxPokladnaArray pokladny();
    lxBankaArray banky();
    lxPredkontaceArray predkontace();
    lxDenikSloupecArray deniksloupce();
    lxFaUhradaArray fauhrady();
    lxFaTypArray fatypy();
    lxSkladArray sklady();
    lxZasobaArray zasoby();
    lxMajetekArray majetky();
    lxOdpiskupinaArray odpiskupiny();
    lxRidicArray ridici();
    lxVozidloArray vozidla();
    lxPhmArray phm();
    lxDruhVozidlaArray druhyVozidel();
    lxOdeslanyArray odeslane();
    lxUlozeneArray ulozene();
    lxDphDruhArray dphdruhy();
    lxDphSazbaArray dphsazby(int rok);
    int getKontaktIdByNazev(const wxString& nazev);
    int getPokladnaIdByZkratka(const wxString& zkratka);
    int getBankaIdByZkratka(const wxString& zkratka);
    int getPredkontaceIdByZkratka(const wxString& zkratka);
    int getVozidloIdByRz(const wxString& rz);
    int getDphDruhIdByZkratka(const wxString& zkratka);
    // Whether a code-list row is still referenced by documents and so may not be deleted.
    bool isPokladnaUsed(int id);
    bool isBankaUsed(int id);
    bool isPredkontaceUsed(int id);
    bool isFauhradaUsed(int id);
    bool isSkladUsed(int id);

    // --- VAT rates and classifications (dph/dbmodel_dph.cpp) ---
    // Rates: the percent of a rate row, the row of a percent in a year, the basic rate of a
    // year and its highest and lowest reduced rates (0 when the year has none; with a single
    // reduced rate both give that rate). A year of -1 is the current accounting year.
    int getDphSazbaValue(int id);
    int getDphSazbaId(int sazba, int rok);
    int zakladniSazba(int rok);
    int prvniSnizenaSazba(int rok);
    int druhaSnizenaSazba(int rok);
    // Classifications offered on income documents (issued invoices, receivables) and on
    // expense documents (received invoices, liabilities).
    lxDphDruhArray dphdruhyNabizenePrijem();
    lxDphDruhArray dphdruhyNabizeneVydaj();
    bool hasDphDruh(const wxString& zkratka);
    // The distinct values the classification filter offers: codes of the subject of supply
    // ("0" for none), rows of the return, control-statement sections ("Nepoužito" for none).
    wxArrayString getDphDruhKpp();
    wxArrayString getDphDruhRadky();
    wxArrayString getDphDruhKh();
    std::vector<int> getDphDruhIdByRadek(const wxString& radky);
    std::vector<int> getDphDruhIdByRadek(const wxArrayString& radky);
    std::vector<int> getDphDruhIdByKh(const wxString& kh);
    // Toggles whether the document dialogs offer the classification.
    bool nabizetDphDruh(int id);
    // Whether some classification with that code is valid on the day (both ends inclusive).
    bool isDphDruhValidForDatum(const wxString& zkratka, const wxDateTime& datum);
    // The customer pays the tax: the classification feeds row 25 (reverse charge, supplier).
    bool dphPlatiZakaznik(int id);
    bool kracenyDphDruh(int id);

    // --- documents of a VAT period (dph/dphvyber.cpp) ---
    // A document falls into [od, do] (both inclusive) by its DPPD when it is an expense
    // (received invoice, liability) and by its DUZP when it is income.
    // Whether a VAT payer's document (platce = 1) falls into the period: any at all, or one of
    // the classifications (with `onlyWithDic`: one whose counterparty has a VAT id).
    bool someDokladForDph(const wxDateTime& od, const wxDateTime& doDne);
    bool someDokladForDph(int dphdruhid, const wxDateTime& od, const wxDateTime& doDne, bool onlyWithDic);
    bool someDokladForDph(const std::vector<int>& dphdruhids, const wxDateTime& od, const wxDateTime& doDne,
                          bool onlyWithDic);
    // Basis of the EC sales list: a document with a counterparty's VAT id whose classification
    // feeds exactly row 20, 21 or 31.
    bool someDokladForDphSh(const wxDateTime& od, const wxDateTime& doDne);
    // A document of the period whose classification has a control-statement section (any, or
    // "A1"); neither asks whether it was a payer's.
    bool someDokladForDphKh(const wxDateTime& od, const wxDateTime& doDne);
    bool someDokladForDphKhA1(const wxDateTime& od, const wxDateTime& doDne);
    // The documents of one classification (or of several, in the order of the ids) in the
    // period: invoices first, then receivables/liabilities, each in table order.
    lxDphDokladArray dokladyForDph(int dphdruhid, const wxDateTime& od, const wxDateTime& doDne, bool onlyWithDic);
    lxDphDokladArray dokladyForDph(const std::vector<int>& dphdruhids, const wxDateTime& od, const wxDateTime& doDne,
                                   bool onlyWithDic);
    // By DPPD, ascending; documents of one day keep their order.
    static void sortDphDoklad(lxDphDokladArray& doklady);
    // Every classification with a document in the period, and whether one of its documents
    // there is a VAT payer's: what the VAT return reads once instead of asking per row.
    std::map<int, bool> dphDruhyForObdobi(const wxDateTime& od, const wxDateTime& doDne);
    static bool isDphSazbySameForDoklad(const lxDphForDokladArray& a, const lxDphForDokladArray& b);
    wxString kontaktDic(int id);
    bool hasKontaktDic(int id);

    // --- saved filings (dph/dbmodel_ulozene.cpp) ---
    // ulozene() lists them sorted by sortUlozene: by kind, period start, order of saving.
    static void sortUlozene(lxUlozeneArray& rows);
    int getUlozeneCount();
    // The saved filing of that kind (0 return, 1 EC sales list, 2 control statement), form
    // code, period kind and dates; 0 / false when there is none (the newest when several).
    int getUlozeneId(int typ, const wxString& forma, int obdobi, const wxDateTime& od, const wxDateTime& doDne);
    bool hasUlozene(int typ, const wxString& forma, int obdobi, const wxDateTime& od, const wxDateTime& doDne);
    bool someUlozeneDphShv();
    lxUlozeneArray ulozeneDphShv();
    // VAT returns of a year; with `onlyRegular` only the regular and corrective ones.
    bool someUlozeneDphDp3(int rok, bool onlyRegular);
    lxUlozeneArray ulozeneDphDp3(int rok, bool onlyRegular);
    wxString ulozeneXml(int id);
    // Saves a finished filing and returns its id (0 on failure): a filing of the same kind,
    // form and period replaces the stored one, a follow-up filing is added beside it.
    int ulozitPodani(Ulozene u);

    // --- invoices, receivables/liabilities and their items (fakturace/dbmodel_faktura.cpp) ---
    // Adding with `notify` false stores the row without a change notice (the document dialog
    // creates its row on open and announces the document only when it is saved). Deleting
    // removes, in one transaction, the journal entries that pay the document (with their
    // payment rows), the stock movements of its items, its items and the row itself; with
    // `notify` false no notice is sent.
    bool addFaktura(const Faktura& faktura, bool notify);
    bool deleteFaktura(int id, bool notify);
    bool addZavPoh(const ZavPoh& zavpoh, bool notify);
    bool deleteZavPoh(int id, bool notify);
    // Documents of the current year ordered by number.
    lxFakturaArray vystavene();
    lxFakturaArray prijate();
    lxZavPohArray zavazky();
    lxZavPohArray pohledavky();
    bool isFakturaVydana(int id);
    wxDateTime getFakturaVystaveni(int id);
    wxString getFakturaCisloById(int id);
    wxString getZavPohCisloById(int id);
    // Items of a document in the order they were entered.
    lxFaPolozkaArray fapolozkyByFakturaId(int id);
    lxFaPolozkaArray fapolozkyByZavpohId(int id);
    bool deleteFaPolozkyByFakturaId(int id);
    bool deleteFaPolozkyByZavpohId(int id);
    // The document's VAT: the sum of its items' VAT, in the document's currency.
    double dphFaktury(int id);
    double dphZavPoh(int id);
    // The VAT summary per rate, highest rate first; in home currency when asked (multiplied by
    // the document's rate; a receivable/liability reads that rate from the invoice row with
    // the same id, as the program always has).
    std::vector<FaDphSazba> dphFakturaSouhrn(int id, bool inCurrency);
    std::vector<FaDphSazba> dphZavPohSouhrn(int id, bool inCurrency);
    // Payment forms.
    bool deleteFauhrada(int id);
    bool faUhradaPokladnou(int id);
    int firstFaUhrada();  // -1 for none
    // Stock movements that an invoice's items made.
    bool deletePohybyzasobByFakturaId(int id);
    bool editPohybzasobDatum(int fakturaid, const wxDateTime& datum);

    // --- payments (fakturace/dbmodel_uhrada.cpp) ---
    // A payment row links a journal entry to the invoice or receivable/liability it settles.
    // addUhrada (a family operation) inserts one.
    double uhrazenoByFakturaId(int id);
    double uhrazenoByZavpohId(int id);
    // Paid: the paid total reaches the document's total (an exact comparison).
    bool isFakturaUhrazena(int id);
    bool isZavpohUhrazena(int id);
    // Overdue: unpaid and due before the working date.
    bool isFakturaPosplatnosti(int id);
    bool isZavpohPosplatnosti(int id);
    bool someUhradaForFaktura(int id);
    bool someUhradaForZavpoh(int id);
    lxDenikArray denikUhradForFaktura(int id);
    lxDenikArray denikUhradForZavpoh(int id);
    // Deletes the journal entries that pay the document; their payment rows go with them.
    bool deleteUhradaByFakturaId(int id);
    bool deleteUhradaByZavpohId(int id);
    bool someNeuhrazenaFakturaOrZavpoh();
    // Unpaid documents of the current and all earlier years, oldest year first, by number.
    lxFakturaViewArray neuhrazeneFakturyView();
    lxZavPohViewArray neuhrazeneZavpohyView();
    // Open receivables (issued invoices, receivables) and liabilities (received invoices,
    // liabilities) of the years up to `rok`, in home currency; a foreign document counts at
    // the single yearly rate of `rok`, or of the year before while `rok` is this calendar year.
    double getPohledavkyStav(int rok);
    double getZavazkyStav(int rok);
    bool hasPohledavkyDluhyCizi(int rok);
    bool hasJednotneKurzyForPohledavkyDluhy(int rok);

    // --- periods and per-year settings (dbmodel_obdobi.cpp) ---
    // addObdobi (a family operation) also caches the year when it is the current one;
    // deleteObdobi takes the period's rows with it (cascading keys).
    bool setCurrentRok(int year);
    int currentRok();
    int maxRok();
    bool hasObdobiGreaterThan(int year);
    int getObdobiCount();
    wxArrayString getObdobiAsStrings(int after);
    int getSplatnost(int year);

    // --- number series (dbmodel_rada.cpp) ---
    lxRadaArray rady();
    bool editRada(const Rada& rada);
    int getRadaCislo(const wxString& id);
    wxString getCisloDokladu(const wxString& id);
    bool increaseRadaCislo(const wxString& id);
    void setDefaultRadaCislo();
    static int getCisloZDokladu(const wxString& cislo, int prefixLength, int minimum);

    // --- currencies and exchange rates (dbmodel_mena.cpp) ---
    lxMenaArray meny();
    Mena getMena(const wxString& text);  // looks the text up in the id column
    bool hasMena(const wxString& kod);
    wxString kodMena(int id);
    wxString nazevMena(int id);
    bool hasKurz(const wxString& kod);
    bool hasKurz(const wxString& kod, const wxDateTime& datum);
    // The latest daily rate on or before the date. The home currency needs no lookup: CZK
    // gives the rate 1 (a record with id -1 that is not stored).
    Kurz getKurz(const wxString& kod, const wxDateTime& datum);
    bool hasJednotnyKurz(int rok, const wxString& kod);
    Kurz getJednotnyKurz(const wxString& kod, int rok);
    // Stores the rates of one downloaded list under new ids, all of them or none.
    bool addKurzy(const std::vector<Kurz>& kurzy);

    // --- fixed assets and depreciation (majetek/dbmodel_majetek.cpp) ---
    // Fills the missing yearly depreciation of every depreciated asset up to the clock's year,
    // all rows in one transaction. Returns false (and writes nothing) when a write fails.
    bool calculateOdpisy();
    double calculateRovnomernyOdpis(double cena, double sazba);
    double calculateZrychlenyOdpis(double cena, double koeficient, int rok, int majetekid, int rokPorizeni);
    // The asset's depreciation in the years up to and including rok.
    double getOdpisy(int majetekid, int rok);
    lxOdpisArray odpisyMajetku(int majetekid, int rok);
    double getZustatkovaCenaMajetku(int majetekid);
    double getMajetekStav(const wxDateTime& datum, bool hmotny);
    static wxString majetekTypAsString(int typ);
    static wxString majetekOdpisAsString(int odpis);

    // --- stock (sklad/dbmodel_sklad.cpp) ---
    Sklad getSklad(const wxString& nazev);
    bool hasSklad(const wxString& nazev);
    int firstSklad();  // -1 for none
    wxString getSkladNazevById(int id);
    lxZasobaArray zasobyBySkladId(int skladid);
    int getZasobyCountBySkladId(int skladid);
    lxPohybzasobArray pohybyzasobByZasobaId(int zasobaid);
    Pohybzasob getPohybzasobByFaktura(int zasobaid, int fakturaid);
    Pohybzasob getPohybzasobByInventura(int zasobaid, int inventuraid);
    bool editPohybzasobDatum(int zasobaid, int fakturaid, const wxDateTime& datum);
    // State of an item from its movements dated strictly before datum (all movements with
    // an invalid date), by the item's valuation method.
    bool getZasobaStav(int id, const wxDateTime& datum, double* pocet, double* celkem);
    struct StavZasoby {
        int zasobaid = -1;
        double pocet = 0;
        double celkem = 0;
    };
    StavZasoby stavZasobyToDate(int id, const wxDateTime& datum);
    std::vector<StavZasoby> getZasobyStav(const wxDateTime& datum);
    bool setZasobaStav(int id, double pocet, double celkem);
    bool updateStavZasob(int id);
    bool changeZasobaOcenovani(int id, int ocenovani);
    double zasobaNakupniCena(int id);
    lxInventuraArray inventury();
    lxIvPolozkaArray ivpolozkyByInventuraId(int inventuraid);
    bool inventuraIncludedZasoba(int inventuraid, int zasobaid);
    wxDateTime getInventuraLastDateForZasoba(int zasobaid);
    wxDateTime getInventuraLastDateForSklad(int skladid);

    // --- vehicle log (jizdy/dbmodel_jizdy.cpp) ---
    lxCenaPhmArray cenyPhm(int phmid);
    lxNahradaKmArray nahradyKm(int rok);
    lxJizdaArray jizdyVozidla(int vozidloid);

    // --- list rows for the book pages (dbmodel_views.cpp) ---
    lxDenikViewArray denikview();
    lxDenikViewArray denikviewPokladna();
    lxDenikViewArray denikviewBanka();
    lxFakturaViewArray vystaveneview();
    lxFakturaViewArray prijateview();
    lxZavPohViewArray pohledavkyview();
    lxZavPohViewArray zavazkyview();
    lxKontaktViewArray kontaktyview();
    lxMajetekViewArray majetekview();
    lxZasobaViewArray zasobyview();
    lxJizdaViewArray jizdyview();

    // --- home page summaries (dbmodel_homepage.cpp) ---
    wxString homepagePrijmy();
    wxString homepageVydaje();
    wxString homepageVydane();
    wxString homepagePrijate();
    wxString homepagePohledavky();
    wxString homepageZavazky();

    // --- sorting (sorting.cpp) ---
    // Stable sorts of a page's rows by the index of a clicked list column; an unknown index
    // leaves the rows as they are. Columns: journal entries datum, cislo, popis, castka,
    // castkacizi, kurz, reference, vypis, id; journal rows datum, cislo, popis, castka,
    // prijem, zkratka, vypis; items popis, mj, pocet, cenamj, sazbaid, dph, celkem; VAT
    // classifications zkratka, popis, plneni, radky, kpp, kh, nabizet, id.
    static void sortDenik(lxDenikArray& rows, int column, bool ascending);
    static void sortDenikView(lxDenikViewArray& rows, int column, bool ascending);
    static void sortFaPolozky(lxFaPolozkaArray& rows, int column, bool ascending);
    static void sortDphDruh(lxDphDruhArray& rows, int column, bool ascending);

    // --- a contact together with its address (dbmodel_kontakt.cpp) ---
    // Each writes both rows in one transaction and notifies once. Adding gives both rows new
    // ids and returns the contact's id (-1 on failure). Editing updates the contact and its
    // address; a contact without an address of its own (none, or one shared with the company
    // or another contact) gets a new one. Deleting refuses contact 0 (no
    // counterparty); documents of a deleted contact fall back to contact 0, and its address
    // goes with it unless the company or another contact still uses that address.
    int addKontaktSAdresou(Kontakt kontakt, Adresa adresa);
    bool editKontaktSAdresou(Kontakt kontakt, Adresa adresa);
    bool deleteKontaktSAdresou(int id);

    // --- journal, cash and bank (dbmodel_denik.cpp, dbmodel_pokladna.cpp) ---
    // A write transaction that joins the caller's when one is already open, so that an
    // operation can run alone or as one step of a larger all-or-nothing write. Without
    // commit() its own transaction rolls back; a joined one is the caller's to finish.
    class WriteTransaction {
       public:
        explicit WriteTransaction(wxSQLite3Database& db);
        ~WriteTransaction();
        WriteTransaction(const WriteTransaction&) = delete;
        WriteTransaction& operator=(const WriteTransaction&) = delete;
        void commit();

       private:
        std::optional<wxSQLite3Transaction> m_tx;
    };

    // Journal entries of the current year by date: all of them, those of a cash register,
    // those of a bank account, those of one register or one account.
    lxDenikArray denik();
    lxDenikArray denikPokladna();
    lxDenikArray denikBanka();
    lxDenikArray denikPokladnaById(int id);
    lxDenikArray denikBankaById(int id);
    // Entries of a year whose pre-posting books into a tax-relevant column, in table order.
    lxDenikArray danovePrijmyVydajeForRok(int rok);
    // addDenik and editDenik (declared with the families) store a register or account that
    // does not exist as none; editDenik also sets the amount of the entry's payment rows.
    // These two do the same without notifying, for writers that store many entries in one
    // transaction and notify once; updateDenik joins an open transaction.
    bool insertDenik(const Denik& denik);
    bool updateDenik(const Denik& denik);
    // What an entry takes from its pre-posting and its journal column; whether it pays an
    // invoice or a receivable/liability.
    bool isDenikUhrada(int id);
    bool isDenikPrijem(int id);
    bool isDenikDanovy(int id);
    int denikSloupecByDenikId(int id);  // -1 for an unknown entry
    // The latest statement number of a bank account in the current year; 0 when none.
    int getLastVypis(int bankaid);
    // Whether an entry of year `rok` other than `exceptId` already has the document number.
    bool hasDenikCislo(const wxString& cislo, int rok, int exceptId);
    // The movements of a cash register summed per day, oldest first, all years, in the
    // register's own currency as its balance counts them (income adds), leaving out the entry
    // `exceptId` (the one being edited; -1 for none).
    struct DenniPohyb {
        wxDateTime datum;
        double zmena;
    };
    std::vector<DenniPohyb> pokladnaPohybyPoDnech(int id, int exceptId);
    lxDenikSloupecArray deniksloupcePrijem();
    lxDenikSloupecArray deniksloupceVydaj();

    // Pre-postings: by direction (ordered by code), lookups by code, what they book into.
    lxPredkontaceArray predkontacePrijem();
    lxPredkontaceArray predkontaceVydaj();
    Predkontace getPredkontace(const wxString& zkratka);
    bool hasPredkontace(const wxString& zkratka);
    bool isPredkontacePrijem(int id);
    bool isPredkontaceDanova(int id);
    int firstPredkontace();  // the id of the first row, -1 for none

    // Deleting a pre-posting, cash register or bank account is refused while documents use
    // it, and for registers and accounts also when it is the last one; `duvod` then receives
    // the message for the user (it stays empty when the row is missing or SQLite fails).
    bool deletePredkontace(int id, wxString* duvod);
    bool deletePokladna(int id, wxString* duvod);
    bool deleteBanka(int id, wxString* duvod);

    // Cash registers and bank accounts by code.
    Pokladna getPokladna(const wxString& zkratka);
    bool hasPokladna(const wxString& zkratka);
    wxString getPokladnaZkratka(int id);
    Banka getBanka(const wxString& zkratka);
    bool hasBanka(const wxString& zkratka);
    wxString getBankaZkratka(int id);

    // Balances. Stav: all years, in the register's own currency (foreign amounts for a
    // foreign register). Zustatek: the same over the years before the current one, i.e. the
    // opening balance of the current year. Stav(datum): home amounts of all existing
    // registers (or accounts) of entries dated before the day, any year.
    double getPokladnaStav(int id);
    double getPokladnaZustatek(int id);
    double getPokladnyStav(const wxDateTime& datum);
    double getBankaStav(int id);
    double getBankaZustatek(int id);
    double getBankyStav(const wxDateTime& datum);
    // Every register (banka false) and account (banka true) with its all-years balance and
    // currency code, registers first, each part by code; one pass over the journal.
    struct StavUctu {
        bool banka;
        int id;
        wxString zkratka;
        wxString popis;
        wxString mena;
        double stav;
    };
    std::vector<StavUctu> stavyUctu();
    // The text of "Stav pokladen a bankovních účtů": "Pokladny:" and "Banky:", each followed
    // by one line per register or account ("POK1 (Výchozí pokladna): 0.00 CZK").
    wxString stavUctuAPokladen();

    // Czech bank codes, optionally only the active ones: the codes, the codes each followed
    // by a space and the bank's name, and the BIC of a code.
    wxArrayString kodyBank(bool onlyActive);
    wxArrayString kodyBankSNazvem(bool onlyActive);
    wxString bicByKod(const wxString& kod);

    // --- notifications ---
    void fireUpdated(int page);
    void fireMsg(const wxString& text);

    // True when the settings choose a storage other than one SQLite file per company; every
    // operation then does nothing and returns its empty result.
    static bool isForeignStorage();

    // The connection, for the model's own domain files and the tests.
    wxSQLite3Database& db() { return m_db; }

    // One check operation per table, named after it (checkTableVersion, checkTableDenik, ...);
    // each returns false when it had to repair user data.
#define EVIDA_CHECK_TABLES(X)                                                                                      \
    X(Adresa, adresa) X(Kontakt, kontakt) X(Firma, firma) X(Obdobi, obdobi) X(Dphsazba, dphsazba)                  \
    X(Dphdruh, dphdruh) X(Mena, mena) X(Kurz, kurz) X(Pokladna, pokladna) X(Bankovniustav, bankovniustav)         \
    X(Banka, banka) X(Deniksloupec, deniksloupec) X(Predkontace, predkontace) X(Denik, denik) X(Rada, rada)      \
    X(Fatyp, fatyp) X(Fauhrada, fauhrada) X(Faktura, faktura) X(Zavpoh, zavpoh) X(Sklad, sklad)                  \
    X(Zasoba, zasoba) X(Fapolozka, fapolozka) X(Uhrada, uhrada) X(Odpiskupina, odpiskupina) X(Majetek, majetek)  \
    X(Odpis, odpis) X(Settings, settings) X(Smtp, smtp) X(Odeslany, odeslany) X(Priznani, priznani)              \
    X(Ulozene, ulozene) X(Inventura, inventura) X(Ivpolozka, ivpolozka) X(Pohybzasob, pohybzasob)                \
    X(Ridic, ridic) X(Phm, phm) X(Cenaphm, cenaphm) X(Druhvozidla, druhvozidla) X(Nahradakm, nahradakm)          \
    X(Vozidlo, vozidlo) X(Jizda, jizda)
#define EVIDA_CHECK_OP(Name, table) bool checkTable##Name() { return checkTableNamed(#table); }
    EVIDA_CHECK_TABLES(EVIDA_CHECK_OP)
#undef EVIDA_CHECK_OP
    bool checkTableVersion();

   private:
    bool checkTableNamed(const char* table);
    bool openFile(const wxString& path, bool create);
    bool quickCheck(IntegrityCheck check);
    bool runChecks();
    void createTables();
    void fail(const wxString& message);
    bool execScalarInt(const wxString& sql, int* value);

    // Upgrade cascade and table checks (dbmodel_upgrade.cpp, dbmodel_check.cpp).
    bool upgradeDb();
    bool checkTable(const schema::TableDef& table);
    bool checkCodeListTable(const schema::TableDef& table);
    bool checkUserTable(const schema::TableDef& table);
    bool rebuildTable(const schema::TableDef& table);
    bool repairDanglingReferences(const schema::TableDef& table);
    int recreateMissingRows(const wxString& table, const wxString& column, const wxString& target,
                            const wxString& targetColumn, const wxString& orphan);
    int keptCodeListRows(const wxString& table);
    void fixKurzSeedsPerUnit();
    void fillIban();

    wxEvtHandler* m_parent;
    wxSQLite3Database m_db;
    wxString m_path;
    wxString m_openError;
    wxString m_safetyCopy;
    wxArrayString m_repairNotes;
    Firma m_firma;
    int m_currentRok = -1;
    Smtp m_smtp;
    Priznani m_priznani;

    static DbModel* s_instance;
};
