// Contacts of the address book are written together with their address: a contact never
// points at an address that was not stored, and a failed write leaves neither row behind.
#include "dbmodel.h"
#include "recordio.h"
#include "sqllog.h"

namespace {

// Whether the company or a contact other than `exceptKontakt` uses the address.
bool isAdresaUsed(wxSQLite3Database& db, int adresaId, int exceptKontakt) {
    const wxString sql =
        "SELECT (SELECT count(*) FROM firma WHERE adresaid=?) + (SELECT count(*) FROM kontakt WHERE adresaid=? AND "
        "id<>?)";
    wxSQLite3Statement st = db.PrepareStatement(sql);
    recordio::bindValues(st, adresaId, adresaId, exceptKontakt);
    wxSQLite3ResultSet rs = st.ExecuteQuery();
    return !rs.NextRow() || rs.GetInt(0) > 0;
}

}  // namespace

int DbModel::addKontaktSAdresou(Kontakt kontakt, Adresa adresa) {
    if (isForeignStorage() || !isOpen()) return -1;
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        adresa.setId(getLastId("adresa"));
        if (!recordio::insert(m_db, adresa)) return -1;
        kontakt.setId(getLastId("kontakt"));
        kontakt.setAdresaid(adresa.id());
        if (!recordio::insert(m_db, kontakt)) return -1;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("addKontaktSAdresou", e);
        return -1;
    }
    fireUpdated(NAV_ALL);
    return kontakt.id();
}

bool DbModel::editKontaktSAdresou(Kontakt kontakt, Adresa adresa) {
    if (isForeignStorage() || !isOpen() || kontakt.id() <= 0) return false;
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        const Kontakt stored = recordio::get<Kontakt>(m_db, kontakt.id());
        if (!stored.isValid()) return false;
        // The address is the stored contact's own one; an address shared with the company or
        // with another contact (older files) is not changed for them: the contact gets a copy.
        const int current = stored.adresaid();
        const bool own =
            current > 0 && recordio::get<Adresa>(m_db, current).isValid() && !isAdresaUsed(m_db, current, kontakt.id());
        if (own) {
            adresa.setId(current);
            if (!recordio::update(m_db, adresa)) return false;
        } else {
            adresa.setId(getLastId("adresa"));
            if (!recordio::insert(m_db, adresa)) return false;
        }
        kontakt.setAdresaid(adresa.id());
        if (!recordio::update(m_db, kontakt)) return false;
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("editKontaktSAdresou", e);
        return false;
    }
    fireUpdated(NAV_ALL);
    return true;
}

bool DbModel::deleteKontaktSAdresou(int id) {
    if (isForeignStorage() || !isOpen() || id <= 0) return false;
    try {
        wxSQLite3Transaction tx(&m_db, WXSQLITE_TRANSACTION_IMMEDIATE);
        const Kontakt kontakt = recordio::get<Kontakt>(m_db, id);
        if (!kontakt.isValid()) return false;
        // The documents' references are set back to contact 0 by their foreign keys.
        wxSQLite3Statement del = m_db.PrepareStatement("DELETE FROM kontakt WHERE id=?");
        del.Bind(1, id);
        if (del.ExecuteUpdate() != 1) return false;
        const int adresaId = kontakt.adresaid();
        if (adresaId > 0 && !isAdresaUsed(m_db, adresaId, id)) {
            wxSQLite3Statement delAdresa = m_db.PrepareStatement("DELETE FROM adresa WHERE id=?");
            delAdresa.Bind(1, adresaId);
            delAdresa.ExecuteUpdate();
        }
        tx.Commit();
    } catch (const wxSQLite3Exception& e) {
        sqllog::error("deleteKontaktSAdresou", e);
        return false;
    }
    fireUpdated(NAV_ALL);
    return true;
}
