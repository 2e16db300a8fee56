// lxSettings: the program's settings over "evida.ini" in the data directory: window
// geometry and layout, the list of company databases, templates and backups, plus two
// values that live for one run only: the application date and the default due period.
#pragma once

#include <wx/arrstr.h>
#include <wx/datetime.h>
#include <wx/string.h>

#include <map>

class wxFileConfig;

enum DBMODEL { DBMODEL_SQLITE = 0 };

class lxSettings {
 public:
    static lxSettings* instance();
    // Forgets the singleton (tests that point HOME elsewhere start again from defaults).
    static void reset();

    void load();
    void save();

    int x() const { return m_x; }
    void setX(int v) { m_x = v; }
    int y() const { return m_y; }
    void setY(int v) { m_y = v; }
    int w() const { return m_w; }
    void setW(int v) { m_w = v; }
    int h() const { return m_h; }
    void setH(int v) { m_h = v; }
    bool maximized() const { return m_maximized; }
    void setMaximized(bool v) { m_maximized = v; }
    const wxString& auiperspective() const { return m_auiperspective; }
    void setAuiperspective(const wxString& v) { m_auiperspective = v; }
    int dbcount() const { return m_dbcount; }
    void setDbcount(int v) { m_dbcount = v; }
    int dbmodel() const { return m_dbmodel; }
    void setDbmodel(int v) { m_dbmodel = v; }
    const wxString& dbname() const { return m_dbname; }
    void setDbname(const wxString& name) { m_dbname = name; }
    void setDbname() { m_dbname.clear(); }
    const std::map<wxString, wxString>& dbmap() const { return m_dbmap; }
    void setDbmap(const std::map<wxString, wxString>& map) { m_dbmap = map; }
    int splatnost() const { return m_splatnost; }
    void setSplatnost(int v) { m_splatnost = v; }
    const wxDateTime& datum() const { return m_datum; }
    void setDatum(const wxDateTime& v) { m_datum = v; }
    const wxString& fakturaSablona() const { return m_fakturaSablona; }
    void setFakturaSablona(const wxString& v) { m_fakturaSablona = v; }
    const wxString& zalohaSablona() const { return m_zalohaSablona; }
    void setZalohaSablona(const wxString& v) { m_zalohaSablona = v; }
    const wxDateTime& lastBackup() const { return m_lastBackup; }
    void setLastBackup(const wxDateTime& v) { m_lastBackup = v; }
    const wxString& backupPath() const { return m_backupPath; }
    void setBackupPath(const wxString& v) { m_backupPath = v; }

    // Company keys are "name_IČ".
    bool firmaExists(const wxString& key) const;
    wxArrayString firmy() const;
    void addDbnamePair(const wxString& dbname, const wxString& key);
    void editDbnamePair(const wxString& dbname, const wxString& key);
    wxString dbnameByFirma(const wxString& key) const;
    void deleteFirma(const wxString& key);

    static const char* const DEFAULT_PERSPECTIVE;

 private:
    lxSettings();
    wxString iniPath() const;
    wxFileConfig& config();

    wxFileConfig* m_config = nullptr;  // owned by wxConfigBase once installed
    wxString m_configPath;

    int m_x = 50, m_y = 50, m_w = 888, m_h = 666;
    bool m_maximized = false;
    wxString m_auiperspective;
    int m_dbcount = 0;
    int m_dbmodel = DBMODEL_SQLITE;
    wxString m_dbname;
    std::map<wxString, wxString> m_dbmap;
    int m_splatnost = 14;
    wxDateTime m_datum;
    wxString m_fakturaSablona = "iternal";
    wxString m_zalohaSablona = "internal";
    wxDateTime m_lastBackup;
    wxString m_backupPath;
};

// The working date of the program (the application date of the settings), the "today" of
// overdue documents and of new documents; the clock's today when none is set.
wxDateTime pracovniDen();
