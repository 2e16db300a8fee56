#include "lxsettings.h"

#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <memory>

#include "clock.h"
#include "lxutils.h"

const char* const lxSettings::DEFAULT_PERSPECTIVE =
    "layout2|name=Navigation;caption=Navigation;state=17404;dir=4;layer=0;row=0;pos=0;prop=100000;bestw=200;"
    "besth=100;minw=100;minh=100;maxw=-1;maxh=-1;floatx=-1;floaty=-1;floatw=-1;floath=-1|name=Book;caption=Book;"
    "state=256;dir=5;layer=0;row=0;pos=0;prop=100000;bestw=20;besth=20;minw=-1;minh=-1;maxw=-1;maxh=-1;floatx=-1;"
    "floaty=-1;floatw=-1;floath=-1|dock_size(4,0,0)=202|dock_size(5,0,0)=20|";

namespace {
std::unique_ptr<lxSettings>& holder() {
    static std::unique_ptr<lxSettings> s;
    return s;
}

// The name part of a company key is everything before the last "_", the IČ what follows it.
wxString keyName(const wxString& key) { return key.BeforeLast('_'); }
wxString keyIc(const wxString& key) { return key.AfterLast('_'); }
}  // namespace

lxSettings* lxSettings::instance() {
    if (!holder()) holder().reset(new lxSettings());
    return holder().get();
}

void lxSettings::reset() {
    // The installed configuration belongs to the file of the settings being forgotten.
    if (holder() && holder()->m_config && wxConfigBase::Get(false) == holder()->m_config)
        delete wxConfigBase::Set(nullptr);
    holder().reset();
}

lxSettings::lxSettings()
    : m_auiperspective(DEFAULT_PERSPECTIVE),
      m_datum(lxutils::today()),
      m_lastBackup(lxutils::today()),
      m_backupPath(wxGetHomeDir()) {
    lxutils::dataDir();  // creates the directory when missing
}

wxString lxSettings::iniPath() const { return lxutils::dataDir() + "/evida.ini"; }

// evida.ini, installed as the process's configuration, so that everything else the program
// remembers (list column widths, dialog sizes) lands in the same file. The text encoding of
// the file is detected when it is read.
wxFileConfig& lxSettings::config() {
    const wxString path = iniPath();
    if (!m_config || wxConfigBase::Get(false) != m_config || m_configPath != path) {
        m_config = new wxFileConfig("APPNAME", "COMPANYNAME", path, path,
                                    wxCONFIG_USE_LOCAL_FILE | wxCONFIG_USE_GLOBAL_FILE, wxConvAuto());
        m_configPath = path;
        delete wxConfigBase::Set(m_config);
    }
    return *m_config;
}

void lxSettings::load() {
    // Read afresh: a configuration installed earlier holds what was in the file back then.
    m_config = nullptr;
    wxFileConfig& cfg = config();
    m_x = cfg.ReadLong("GUI/x", m_x);
    m_y = cfg.ReadLong("GUI/y", m_y);
    m_w = cfg.ReadLong("GUI/w", m_w);
    m_h = cfg.ReadLong("GUI/h", m_h);
    m_maximized = cfg.ReadBool("GUI/maximized", m_maximized);
    m_auiperspective = cfg.Read("GUI/auiperspective", m_auiperspective);

    m_dbcount = cfg.ReadLong("DB/dbcount", 0);
    m_dbmodel = cfg.ReadLong("DB/dbmodel", 0);
    if (m_dbmodel != DBMODEL_SQLITE) m_dbmodel = DBMODEL_SQLITE;
    m_dbname = cfg.Read("DB/dbname", wxString());

    m_dbmap.clear();
    for (int i = 0; i < m_dbcount; ++i) {
        const wxString name = cfg.Read(wxString::Format("DB/dbname%d", i), wxString());
        const wxString key = cfg.Read(wxString::Format("DB/dbfirma%d", i), wxString());
        // A company listed twice keeps its first entry.
        if (!name.empty() && !firmaExists(key)) m_dbmap.emplace(name, key);
    }
    if (m_dbname.empty() && !m_dbmap.empty()) m_dbname = m_dbmap.begin()->first;

    m_fakturaSablona = cfg.Read("Template/faktura", m_fakturaSablona);
    m_zalohaSablona = cfg.Read("Template/zaloha", m_zalohaSablona);
    // The built-in default is spelt "iternal"; anything that is not an existing file heals to "internal".
    if (m_fakturaSablona != "internal" && !wxFileName::FileExists(m_fakturaSablona)) m_fakturaSablona = "internal";
    if (m_zalohaSablona != "internal" && !wxFileName::FileExists(m_zalohaSablona)) m_zalohaSablona = "internal";

    const wxString backup = cfg.Read("Backup/lastBackup", lxutils::today().FormatISODate());
    wxDateTime parsed;
    m_lastBackup = parsed.ParseISODate(backup) ? parsed.GetDateOnly() : lxutils::today();
    m_backupPath = cfg.Read("Backup/backupPath", m_backupPath);
}

void lxSettings::save() {
    wxFileConfig& cfg = config();
    cfg.Write("GUI/x", m_x);
    cfg.Write("GUI/y", m_y);
    cfg.Write("GUI/w", m_w);
    cfg.Write("GUI/h", m_h);
    cfg.Write("GUI/maximized", m_maximized);
    cfg.Write("GUI/auiperspective", m_auiperspective);
    cfg.Write("DB/dbcount", m_dbcount);
    cfg.Write("DB/dbmodel", m_dbmodel);
    cfg.Write("DB/dbname", m_dbname);
    int i = 0;
    for (const auto& [name, key] : m_dbmap) {
        cfg.Write(wxString::Format("DB/dbname%d", i), name);
        cfg.Write(wxString::Format("DB/dbfirma%d", i), key);
        ++i;
    }
    for (;; ++i) {  // entries beyond the surviving ones would resurrect dropped companies
        const wxString n = wxString::Format("DB/dbname%d", i), f = wxString::Format("DB/dbfirma%d", i);
        if (!cfg.HasEntry(n) && !cfg.HasEntry(f)) break;
        cfg.DeleteEntry(n);
        cfg.DeleteEntry(f);
    }
    cfg.Write("Template/faktura", m_fakturaSablona);
    cfg.Write("Template/zaloha", m_zalohaSablona);
    cfg.Write("Backup/lastBackup",
              m_lastBackup.IsValid() ? m_lastBackup.FormatISODate() : lxutils::today().FormatISODate());
    cfg.Write("Backup/backupPath", m_backupPath);
    cfg.Flush();
}

bool lxSettings::firmaExists(const wxString& key) const {
    for (const auto& entry : m_dbmap) {
        if (entry.second == key) return true;
    }
    return false;
}

wxArrayString lxSettings::firmy() const {
    wxArrayString list;
    for (const auto& entry : m_dbmap)
        list.Add(wxString::Format(wxString::FromUTF8("%s, IČ: %s"), keyName(entry.second), keyIc(entry.second)));
    return list;
}

void lxSettings::addDbnamePair(const wxString& dbname, const wxString& key) {
    if (m_dbmap.count(dbname)) return;
    m_dbmap.emplace(dbname, key);
    ++m_dbcount;
}

void lxSettings::editDbnamePair(const wxString& dbname, const wxString& key) { m_dbmap[dbname] = key; }

wxString lxSettings::dbnameByFirma(const wxString& key) const {
    for (const auto& entry : m_dbmap) {
        if (entry.second == key) return entry.first;
    }
    return wxString();
}

void lxSettings::deleteFirma(const wxString& key) {
    for (auto it = m_dbmap.begin(); it != m_dbmap.end(); ++it) {
        if (it->second == key) {
            m_dbmap.erase(it);
            --m_dbcount;
            break;
        }
    }
    if (m_dbcount <= 0) {
        m_dbcount = 0;
        m_dbname.clear();
    }
}

wxDateTime pracovniDen() {
    const wxDateTime datum = lxSettings::instance()->datum();
    return datum.IsValid() ? datum.GetDateOnly() : lxutils::today();
}
