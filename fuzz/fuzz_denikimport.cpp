// Fuzz driver of the journal import: the bytes of a CSV file imported into a throw-away
// company of 2024 with crown and euro registers. Each input runs inside a transaction that
// is rolled back, so every input meets the same company.
#include <wx/app.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/utils.h>
#include <wx/wxsqlite3.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>

#include "companysetup.h"
#include "dbmodel.h"
#include "denikimport.h"
#include "fuzzloop.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "lxutils.h"

namespace {

std::unique_ptr<wxInitializer> g_wx;
std::unique_ptr<DbModel> g_model;
wxString g_home;

void cleanUp() {
    g_model.reset();
    if (!g_home.empty()) wxFileName::Rmdir(g_home, wxPATH_RMDIR_RECURSIVE);
    g_wx.reset();
}

int count(const char* sql) { return g_model->db().ExecuteScalar(sql); }

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    g_wx = std::make_unique<wxInitializer>();
    if (!g_wx->IsOk()) std::abort();
    // The console application object, not wxApp: nothing here has a display.
    wxAppConsole::GetInstance()->SetAppName("evida");
    wxLog::SetActiveTarget(new wxLogStderr());
    wxLog::SetLogLevel(wxLOG_Error);
    char tmpl[] = "/tmp/evida-fuzz-XXXXXX";
    if (!mkdtemp(tmpl)) std::abort();
    g_home = wxString::FromUTF8(tmpl);
    wxSetEnv("HOME", g_home);
    lxSettings::reset();
    g_model = std::make_unique<DbModel>(nullptr);
    g_model->initModel();
    if (!companysetup::createPlaceholderCompany(*g_model, lxutils::dataDir() + "/firma.db") ||
        !g_model->setCurrentRok(2024) || !g_model->addPokladna(Pokladna(2, "POKE", "EUR", 2)) ||
        !g_model->addBanka(Banka(2, "BUE", "EUR", "", "", "", "", 2)) ||
        !g_model->addKurz(Kurz(g_model->getLastId("kurz"), wxDateTime(1, wxDateTime::Mar, 2024), 25.3, "EUR", false)))
        std::abort();
    std::atexit(cleanUp);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    wxSQLite3Transaction throwAway(&g_model->db(), WXSQLITE_TRANSACTION_IMMEDIATE);
    const int before = count("SELECT count(*) FROM denik");
    const DenikImport r = importDenikBytes(*g_model, bytes);
    const int after = count("SELECT count(*) FROM denik");

    if (r.ok) {
        if (r.pocet <= 0 || after - before != r.pocet) fuzzFail("stored rows differ from the count reported");
        // Every amount stored is finite and within the bounds of a typed one.
        if (count("SELECT count(*) FROM denik WHERE NOT (abs(castka) < 1e12 AND abs(castkacizi) < 1e12 "
                  "AND kurz > 0 AND kurz < 1e6)") > 0)
            fuzzFail("an amount or rate outside its bounds was stored");
        // No document number twice in one series of the year (cash or bank, income or expense).
        if (count("SELECT count(*) FROM (SELECT d.cislo FROM denik d JOIN predkontace p ON d.predkontaceid=p.id "
                  "WHERE d.obdobirok=2024 GROUP BY d.cislo, d.bankaid IS NULL, p.prijem HAVING count(*) > 1)") > 0)
            fuzzFail("a document number was stored twice");
        // Each series would hand out a number not yet used.
        for (const char* rada : {"PP", "PV", "BP", "BV"}) {
            const wxString next = g_model->getCisloDokladu(rada);
            wxSQLite3Statement st = g_model->db().PrepareStatement("SELECT count(*) FROM denik WHERE cislo=?");
            st.Bind(1, next);
            if (st.ExecuteScalar() > 0) fuzzFail(std::string("series ") + rada + " would repeat a number");
        }
    } else {
        if (after != before) fuzzFail("a refused file stored rows");
        if (r.zprava.empty()) fuzzFail("a refusal without a message");
        if (r.zprava.length() > 400) fuzzFail("a message longer than 400 characters");
    }
    if (evidaFuzzOutcome) {
        // The kind of fault: the message without its line, digits and quoted text, cut short.
        wxString kind = r.ok ? wxString("ok") : r.zprava.AfterFirst(':').BeforeFirst(wxUniChar(0x201E));
        if (kind.empty()) kind = r.zprava;
        for (wxUniChar c : {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9'}) kind.Replace(wxString(c), "");
        const std::string outcome(kind.Left(24).utf8_str());
        evidaFuzzOutcome(outcome.data(), outcome.size());
    }
    return 0;  // the transaction rolls back
}
