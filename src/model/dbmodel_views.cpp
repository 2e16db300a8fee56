// List rows of the book pages. Each list is one joined query; the result columns carry the
// names of the view record's fields, which is how recordio fills them.
#include "dbmodel.h"
#include "recordio.h"

namespace {

// Invoices or receivables/liabilities with their counterparty, currency and the amount paid
// so far; `extraColumns` adds the columns of the kind, `where` picks the rows (its "?" are
// bound by the caller) and may test the paid amount as `uhrazeno`. The payments are summed
// per document through the index on the paying column, so a year's list does not read the
// payments of every other year.
wxString dokladyView(const char* table, const char* paidBy, const char* extraColumns, const wxString& where) {
    return wxString::Format(
        "SELECT f.id AS id, f.cislo AS cislo, f.popis AS popis, k.nazev AS protistrana, f.celkem AS celkem, "
        "f.vystaveni AS vystaveni, f.splatnost AS splatnost, "
        "(SELECT total(castka) FROM uhrada WHERE %s=f.id) AS uhrazeno, m.kod AS mena, "
        "f.kurz AS kurz, f.obdobirok AS obdobirok%s "
        "FROM %s f LEFT JOIN kontakt k ON f.protistranaid=k.id LEFT JOIN mena m ON f.menaid=m.id "
        "WHERE %s ORDER BY f.obdobirok, f.cislo, f.id",
        paidBy, extraColumns, table, where);
}

const char* const FAKTURA_COLUMNS = ", f.platce AS platce, f.typid AS typid, f.vydana AS vydana";
const char* const ZAVPOH_COLUMNS = ", f.zavazek AS zavazek";

}  // namespace

// The journal's list rows are written with the journal (dbmodel_denik.cpp).

// Unpaid documents of the current and earlier years: the same exact rule as isDokladUhrazen,
// evaluated by SQLite on the summed payments.
lxFakturaViewArray DbModel::neuhrazeneFakturyView() {
    if (isForeignStorage()) return {};
    return recordio::query<FakturaView>(
        m_db, dokladyView("faktura", "fakturaid", FAKTURA_COLUMNS, "f.obdobirok<=? AND NOT IFNULL(f.celkem,0)<=uhrazeno"),
        currentRok());
}

lxZavPohViewArray DbModel::neuhrazeneZavpohyView() {
    if (isForeignStorage()) return {};
    return recordio::query<ZavPohView>(
        m_db, dokladyView("zavpoh", "zavpohid", ZAVPOH_COLUMNS, "f.obdobirok<=? AND NOT IFNULL(f.celkem,0)<=uhrazeno"),
        currentRok());
}

lxFakturaViewArray DbModel::vystaveneview() {
    if (isForeignStorage()) return {};
    return recordio::query<FakturaView>(
        m_db, dokladyView("faktura", "fakturaid", FAKTURA_COLUMNS, "f.obdobirok=? AND f.vydana=1"),
        currentRok());
}

lxFakturaViewArray DbModel::prijateview() {
    if (isForeignStorage()) return {};
    return recordio::query<FakturaView>(
        m_db, dokladyView("faktura", "fakturaid", FAKTURA_COLUMNS, "f.obdobirok=? AND IFNULL(f.vydana,0)<>1"),
        currentRok());
}

lxZavPohViewArray DbModel::pohledavkyview() {
    if (isForeignStorage()) return {};
    return recordio::query<ZavPohView>(m_db, dokladyView("zavpoh", "zavpohid", ZAVPOH_COLUMNS, "f.obdobirok=? AND IFNULL(f.zavazek,0)<>1"),
                                       currentRok());
}

lxZavPohViewArray DbModel::zavazkyview() {
    if (isForeignStorage()) return {};
    return recordio::query<ZavPohView>(m_db, dokladyView("zavpoh", "zavpohid", ZAVPOH_COLUMNS, "f.obdobirok=? AND f.zavazek=1"), currentRok());
}

// Contact 0 (no counterparty) is not an entry of the address book.
lxKontaktViewArray DbModel::kontaktyview() {
    if (isForeignStorage()) return {};
    return recordio::query<KontaktView>(
        m_db,
        "SELECT k.id AS id, k.nazev AS nazev, k.jmeno AS jmeno, k.ic AS ic, k.dic AS dic, k.email AS email, "
        "a.ulice AS ulice, a.cp AS cp, a.misto AS misto, a.psc AS psc, a.zeme AS zeme "
        "FROM kontakt k LEFT JOIN adresa a ON k.adresaid=a.id WHERE k.id<>0 ORDER BY k.nazev COLLATE NOCASE, k.id");
}

// Assets acquired up to the end of the current year, with the depreciation booked up to it.
lxMajetekViewArray DbModel::majetekview() {
    if (isForeignStorage()) return {};
    return recordio::query<MajetekView>(
        m_db,
        "SELECT m.id AS id, m.cislo AS cislo, m.nazev AS nazev, m.porizen AS porizen, m.cena AS cena, "
        "s.popis AS skupina, m.vyrazen AS vyrazen, IFNULL(o.odepsano,0) AS odepsano "
        "FROM majetek m LEFT JOIN odpiskupina s ON m.skupinaid=s.id "
        "LEFT JOIN (SELECT majetekid, total(odpis) AS odepsano FROM odpis WHERE rok<=:rok GROUP BY majetekid) o "
        "ON o.majetekid=m.id "
        "WHERE m.porizen IS NULL OR CAST(strftime('%Y', m.porizen) AS INTEGER)<=:rok ORDER BY m.cislo, m.id",
        currentRok());
}

lxZasobaViewArray DbModel::zasobyview() {
    if (isForeignStorage()) return {};
    return recordio::query<ZasobaView>(
        m_db,
        "SELECT z.id AS id, z.cislo AS cislo, z.nazev AS nazev, z.pocet AS pocet, z.celkem AS celkem, z.mj AS mj, "
        "s.nazev AS sklad FROM zasoba z LEFT JOIN sklad s ON z.skladid=s.id ORDER BY z.cislo, z.id");
}

// Trips carry no period of their own; the page shows those that started in the current year.
lxJizdaViewArray DbModel::jizdyview() {
    if (isForeignStorage()) return {};
    return recordio::query<JizdaView>(
        m_db,
        "SELECT j.id AS id, j.startcas AS startcas, j.endcas AS endcas, "
        "IFNULL(j.endkm,0)-IFNULL(j.startkm,0) AS km, v.rz AS vozidlo, r.jmeno AS ridic, j.cesta AS cesta, "
        "j.ucel AS ucel, v.soukrome AS soukrome "
        "FROM jizda j LEFT JOIN vozidlo v ON j.vozidloid=v.id LEFT JOIN ridic r ON j.ridicid=r.id "
        "WHERE CAST(strftime('%Y', j.startcas) AS INTEGER)=? ORDER BY j.startcas, j.id",
        currentRok());
}
