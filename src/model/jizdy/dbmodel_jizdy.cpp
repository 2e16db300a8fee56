// The model's queries of the vehicle log: fuel prices, per-km allowances and a vehicle's trips.
#include "dbmodel.h"
#include "recordio.h"

lxCenaPhmArray DbModel::cenyPhm(int phmid) {
    if (isForeignStorage()) return {};
    return recordio::query<CenaPhm>(m_db, "SELECT * FROM cenaphm WHERE phmid=? ORDER BY date(validfrom), id", phmid);
}

lxNahradaKmArray DbModel::nahradyKm(int rok) {
    if (isForeignStorage()) return {};
    return recordio::query<NahradaKm>(m_db, "SELECT * FROM nahradakm WHERE rok=? ORDER BY druhvozidlaid, id", rok);
}

// In the order they were driven, so that each trip follows the one whose odometer it continues.
lxJizdaArray DbModel::jizdyVozidla(int vozidloid) {
    if (isForeignStorage()) return {};
    return recordio::query<Jizda>(m_db, "SELECT * FROM jizda WHERE vozidloid=? ORDER BY datetime(startcas), id",
                                  vozidloid);
}
