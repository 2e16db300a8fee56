// The company record, its cached copy and the one-row settings tables.
#include <wx/filename.h>

#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"

bool DbModel::setFirma(const Firma& f) {
    int count = 0;
    if (!execScalarInt("SELECT count(*) FROM firma", &count)) return false;
    const bool insert = count == 0;
    const wxString sql = insert ? "INSERT INTO firma(nazev,ic,dic,registrace,platce,telefon,email,www,logo,razitko,"
                                  "adresaid,pausal) VALUES(?,?,?,?,?,?,?,?,?,?,?,?)"
                                : "UPDATE firma SET nazev=?,ic=?,dic=?,registrace=?,platce=?,telefon=?,email=?,www=?,"
                                  "logo=?,razitko=?,pausal=?";
    try {
        wxSQLite3Statement st = m_db.PrepareStatement(sql);
        int i = 1;
        for (const wxString* text : {&f.nazev(), &f.ic(), &f.dic(), &f.registrace()}) st.Bind(i++, *text);
        st.Bind(i++, f.platce() ? 1 : 0);
        for (const wxString* text : {&f.telefon(), &f.email(), &f.www(), &f.logo(), &f.razitko()}) st.Bind(i++, *text);
        if (insert) st.Bind(i++, f.adresaid());  // an update never moves the company to another address
        st.Bind(i++, f.pausal() ? 1 : 0);
        st.ExecuteUpdate();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
        return false;
    }
    fillFirma();
    fireUpdated(NAV_ALL);
    return true;
}

wxString DbModel::firmaLogo() const {
    return wxFileName::FileExists(m_firma.logo()) ? m_firma.logo() : wxString();
}

wxString DbModel::firmaRazitko() const {
    return wxFileName::FileExists(m_firma.razitko()) ? m_firma.razitko() : wxString();
}

bool DbModel::setSmtp(const Smtp& smtp) {
    if (isForeignStorage()) return false;
    // One row: replaced as a whole in one transaction.
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        m_db.ExecuteUpdate("DELETE FROM smtp");
        if (!recordio::insert(m_db, smtp)) return false;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("setSmtp", e);
        return false;
    }
    fillSmtp();
    fireUpdated(NAV_NONE);
    return true;
}
