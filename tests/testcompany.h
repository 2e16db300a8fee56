// Test fixture: a fresh temporary HOME (so the data directory and evida.ini are private to
// the test), a DbModel whose events are recorded, and helpers to build databases from SQL.
#pragma once

#include <gtest/gtest.h>
#include <wx/event.h>
#include <wx/string.h>

#include <memory>
#include <string>
#include <vector>

#include "dbmodel.h"

// Czech text in the tests is UTF-8, whatever the process locale. Shared with the other test
// headers, which a test may include together.
#ifndef EVIDA_TEST_U8
#define EVIDA_TEST_U8
inline wxString u8(const char* text) { return wxString::FromUTF8(text); }
#endif

// A day written "2024-03-31"; invalid for a text that is not one.
wxDateTime isoDatum(const char* text);

// The working date of the application as the model sees it.
wxDateTime lxSettingsToday();

// The outcome of running evida-cli as a separate process, as a second program would.
struct CliResult {
    int status;
    std::string output;  // standard output and error together
};
CliResult runCli(const wxString& args);
// The same for a shell command line (limits, traps); EVIDA_CLI in it names the program.
CliResult runShell(const wxString& commandLine);

// The whole content of a file ("" when it cannot be read): a file refused by the program
// must stay byte for byte as it was.
std::string fileBytes(const wxString& path);

// Records what the model sends.
class EventRecorder : public wxEvtHandler {
   public:
    EventRecorder();
    std::vector<int> updates;
    std::vector<wxString> messages;
};

class TestCompany : public ::testing::Test {
   protected:
    void SetUp() override;
    void TearDown() override;

    // A new company database as a first start makes it; returns its path.
    wxString createCompany(const wxString& name = "firma.db");
    // A VAT payer's new company in the year 2024 with the given working date.
    void createPlatce2024(const char* pracovniDatum);
    // Writes a database file from SQL text (statements separated by ";").
    wxString writeDb(const wxString& name, const wxString& sql);
    // Runs SQL on a file without the model (the file must not be open in the model).
    void execOnFile(const wxString& path, const wxString& sql);

    int scalar(const wxString& sql);
    wxString text(const wxString& sql);

    wxString m_home;
    EventRecorder m_events;
    std::unique_ptr<DbModel> m_model;
};

// The SQL that made a company file of an older program version, built from today's schema
// by leaving out the tables and columns that version did not have yet.
wxString oldSchemaSql(const wxString& version);
