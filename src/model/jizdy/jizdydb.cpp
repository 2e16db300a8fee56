#include "jizdydb.h"

#include "dbmodel.h"
#include "recordio.h"

namespace jizdy {

namespace {

wxString jmenoDruhu(DbModel& model, int id) {
    const DruhVozidla d = model.getDruhVozidla(id);
    return d.isValid() ? d.jmeno() : wxString();
}

wxString jmenoPhm(DbModel& model, int id) {
    const Phm p = model.getPhm(id);
    return p.isValid() ? p.jmeno() : wxString();
}

}  // namespace

lxJizdaArray jizdyVozidlaOdDo(DbModel& model, int vozidloid, const wxDateTime& od, const wxDateTime& doKdy) {
    if (DbModel::isForeignStorage() || !model.isOpen()) return {};
    return recordio::query<Jizda>(model.db(),
                                  "SELECT * FROM jizda WHERE vozidloid=? AND datetime(startcas)>=datetime(?) "
                                  "AND datetime(startcas)<datetime(?) ORDER BY datetime(startcas), id",
                                  vozidloid, od, doKdy);
}

lxJizdaArray souvisejiciJizdy(DbModel& model, const Jizda& jizda) {
    if (DbModel::isForeignStorage() || !model.isOpen() || !jizda.startcas().IsValid() || !jizda.endcas().IsValid())
        return {};
    // One statement: the overlapping trips, and the neighbours on the vehicle's odometer.
    return recordio::query<Jizda>(
        model.db(),
        "SELECT * FROM jizda WHERE id<>?1 AND (vozidloid=?2 OR ridicid=?3) "
        "AND datetime(startcas)<datetime(?5) AND datetime(endcas)>datetime(?4) "
        "UNION SELECT * FROM (SELECT * FROM jizda WHERE id<>?1 AND vozidloid=?2 "
        "AND datetime(startcas)<datetime(?4) ORDER BY datetime(startcas) DESC, id DESC LIMIT 1) "
        "UNION SELECT * FROM (SELECT * FROM jizda WHERE id<>?1 AND vozidloid=?2 "
        "AND datetime(startcas)>datetime(?4) ORDER BY datetime(startcas), id LIMIT 1)",
        jizda.id(), jizda.vozidloid(), jizda.ridicid(), jizda.startcas(), jizda.endcas());
}

int posledniKm(DbModel& model, int vozidloid) {
    if (DbModel::isForeignStorage() || !model.isOpen()) return 0;
    const Jizda j = recordio::queryOne<Jizda>(
        model.db(), "SELECT * FROM jizda WHERE vozidloid=? ORDER BY datetime(startcas) DESC, id DESC LIMIT 1",
        vozidloid);
    return j.isValid() ? j.endkm() : 0;
}

Nahrada nahradaVozidla(DbModel& model, int vozidloid, int rok, int mesic) {
    const Vozidlo vozidlo = model.getVozidlo(vozidloid);
    if (!vozidlo.isValid()) return Nahrada();
    const wxDateTime od(1, static_cast<wxDateTime::Month>(mesic - 1), rok);
    wxDateTime doKdy = od;
    doKdy.Add(wxDateSpan::Month());
    return vypocetNahrady(vozidlo, jizdyVozidlaOdDo(model, vozidloid, od, doKdy), model.nahradyKm(rok),
                          model.cenyPhm(vozidlo.phmid()), jmenoDruhu(model, vozidlo.druhvozidlaid()),
                          jmenoPhm(model, vozidlo.phmid()));
}

std::vector<Navaznost> navaznostVozidla(DbModel& model, int vozidloid, int rok) {
    return kontrolaNavaznosti(
        jizdyVozidlaOdDo(model, vozidloid, wxDateTime(1, wxDateTime::Jan, rok), wxDateTime(1, wxDateTime::Jan, rok + 1)));
}

lxNahradaKmArray nahradyDruhu(DbModel& model, int druhvozidlaid) {
    if (DbModel::isForeignStorage() || !model.isOpen()) return {};
    return recordio::query<NahradaKm>(model.db(), "SELECT * FROM nahradakm WHERE druhvozidlaid=? ORDER BY rok DESC, id",
                                      druhvozidlaid);
}

int pocetOdkazu(DbModel& model, const char* tabulka, const char* sloupec, int id) {
    if (DbModel::isForeignStorage() || !model.isOpen()) return 0;
    const wxString sql = wxString::Format("SELECT COUNT(*) FROM %s WHERE %s=?", tabulka, sloupec);
    try {
        wxSQLite3Statement st = model.db().PrepareStatement(sql);
        st.Bind(1, id);
        wxSQLite3ResultSet rs = st.ExecuteQuery();
        return rs.NextRow() ? rs.GetInt(0) : 0;
    } catch (const wxSQLite3Exception& e) {
        sqllog::error(sql, e);
    }
    return 0;
}

}  // namespace jizdy
