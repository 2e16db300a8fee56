// The taxpayer record of the filings: one row of `priznani` per company, cached in the model.
#include "dbmodel.h"
#include "navigation.h"
#include "priznaniform.h"
#include "recordio.h"
#include "sqllog.h"

void DbModel::fillPriznani() {
    const Priznani stored = recordio::queryOne<Priznani>(m_db, "SELECT * FROM priznani");
    if (stored.isValid()) {
        m_priznani = stored;
        return;
    }
    // Nothing stored yet: the dialog starts from what the company record says.
    m_priznani = m_firma.isValid() ? priznaniform::zFirmy(m_firma, getAdresa(m_firma.adresaid())) : Priznani();
}

bool DbModel::setPriznani(const Priznani& priznani) {
    if (isForeignStorage() || !isOpen()) return false;
    Priznani row = priznani;
    row.setStat(wxString::FromUTF8(priznaniform::STAT));
    // One row: replaced as a whole in one transaction.
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        m_db.ExecuteUpdate("DELETE FROM priznani");
        if (!recordio::insert(m_db, row)) return false;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("setPriznani", e);
        return false;
    }
    fillPriznani();
    fireUpdated(NAV_NONE);
    return true;
}
