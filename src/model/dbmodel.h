// DbModel: the one object through which the program reads and writes the open company's
// database. It owns the connection, keeps the company, the current period and the one-row
// settings records cached, and tells its parent after every change which page to refresh.
// It never needs a window: with no parent its events go nowhere, which is how the tests and
// evida-cli run it.
#pragma once

#include <wx/arrstr.h>
#include <wx/event.h>
#include <wx/wxsqlite3.h>

#include "navigation.h"
#include "records.h"

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
    // The same for an explicit path (evida-cli, tests).
    bool openDatabase(const wxString& path);
    bool newDatabase(const wxString& path);
    void createDatabase();
    void closeDatabase();
    bool isOpen() const;
    wxString databasePath() const { return m_path; }
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
    int getLastId(const wxString& table);
    bool hasTable(const wxString& table);

    // --- cached records ---
    void fillData();
    void fillFirma();
    void fillSmtp();
    void fillPriznani();
    const Firma& firma() const { return m_firma; }
    const Smtp& smtp() const { return m_smtp; }
    const Priznani& priznani() const { return m_priznani; }
    bool setFirma(const Firma& firma);
    bool isFirmaPlatce() const { return m_firma.platce(); }
    bool isFirmaPausal() const { return m_firma.pausal(); }

    // --- records needed to set up a company ---
    bool addAdresa(const Adresa& adresa);
    bool addObdobi(const Obdobi& obdobi);
    int currentRok();
    wxArrayString getObdobiAsStrings(int after);

    // --- notifications ---
    void fireUpdated(int page);
    void fireMsg(const wxString& text);

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
    bool openFile(const wxString& path);
    bool execScalarInt(const wxString& sql, int* value);

    // Upgrade cascade and table checks (dbmodel_upgrade.cpp, dbmodel_check.cpp).
    void upgradeDb();
    bool checkTable(const schema::TableDef& table);
    bool checkCodeListTable(const schema::TableDef& table);
    bool checkUserTable(const schema::TableDef& table);
    bool rebuildTable(const schema::TableDef& table);
    bool repairDanglingReferences(const schema::TableDef& table);
    void fillIban();

    wxEvtHandler* m_parent;
    wxSQLite3Database m_db;
    wxString m_path;
    Firma m_firma;
    int m_currentRok = -1;
    Smtp m_smtp;
    Priznani m_priznani;

    static DbModel* s_instance;
};
