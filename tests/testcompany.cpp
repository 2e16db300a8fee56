#include "testcompany.h"

#include <wx/dir.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/utils.h>
#include <wx/wxsqlite3.h>

#include <cstdlib>

#include "companysetup.h"
#include "lxsettings.h"
#include "lxutils.h"

EventRecorder::EventRecorder() {
    Bind(MODEL_UPDATED, [this](wxCommandEvent& e) { updates.push_back(e.GetInt()); });
    Bind(MODEL_MSG, [this](wxCommandEvent& e) { messages.push_back(e.GetString()); });
}

void TestCompany::SetUp() {
    char tmpl[] = "/tmp/evida-test-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    m_home = wxString::FromUTF8(tmpl);
    wxSetEnv("HOME", m_home);
    lxSettings::reset();
    m_model = std::make_unique<DbModel>(&m_events);
    m_model->initModel();
}

void TestCompany::TearDown() {
    m_model.reset();
    lxSettings::reset();
    wxFileName::Rmdir(m_home, wxPATH_RMDIR_RECURSIVE);
}

wxString TestCompany::createCompany(const wxString& name) {
    const wxString path = lxutils::dataDir() + "/" + name;
    EXPECT_TRUE(companysetup::createPlaceholderCompany(*m_model, path));
    return path;
}

wxString TestCompany::writeDb(const wxString& name, const wxString& sql) {
    const wxString path = lxutils::dataDir() + "/" + name;
    execOnFile(path, sql);
    return path;
}

void TestCompany::execOnFile(const wxString& path, const wxString& sql) {
    wxSQLite3Database db;
    db.Open(path);
    db.ExecuteUpdate("BEGIN");
    for (const wxString& statement : wxSplit(sql, ';', '\0')) {
        wxString s = statement;
        if (!s.Trim().Trim(false).empty()) db.ExecuteUpdate(s);
    }
    db.ExecuteUpdate("COMMIT");
    db.Close();
}

int TestCompany::scalar(const wxString& sql) { return m_model->db().ExecuteScalar(sql); }

wxString TestCompany::text(const wxString& sql) {
    wxSQLite3ResultSet rs = m_model->db().ExecuteQuery(sql);
    return rs.NextRow() && !rs.IsNull(0) ? rs.GetAsString(0) : wxString();
}
