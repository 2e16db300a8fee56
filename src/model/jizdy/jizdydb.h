// The vehicle log's reads that combine several rows: a vehicle's trips of a period, the trips a
// new trip must be checked against, the odometer state a new trip starts from, and the monthly
// reimbursement and odometer check of a vehicle as computed from the stored rows. Each is one
// query (or a fixed few), never one per trip.
#pragma once

#include "jizdy.h"

class DbModel;

namespace jizdy {

// The trips of a vehicle that started in [od, doKdy), in the order they were driven.
lxJizdaArray jizdyVozidlaOdDo(DbModel& model, int vozidloid, const wxDateTime& od, const wxDateTime& doKdy);
// The trips `varovaniJizdy` needs for `jizda`: those of its vehicle or driver overlapping it in
// time, and its vehicle's last trip before it and first trip after it.
lxJizdaArray souvisejiciJizdy(DbModel& model, const Jizda& jizda);
// The end odometer state of the vehicle's last trip, 0 when it has none.
int posledniKm(DbModel& model, int vozidloid);
// The reimbursement of a vehicle's trips that started in the month (1–12) of the year.
Nahrada nahradaVozidla(DbModel& model, int vozidloid, int rok, int mesic);
// The odometer check of a vehicle's trips that started in the year.
std::vector<Navaznost> navaznostVozidla(DbModel& model, int vozidloid, int rok);

// The per-km allowances of a vehicle kind, all years, newest first.
lxNahradaKmArray nahradyDruhu(DbModel& model, int druhvozidlaid);
// How many rows of `tabulka` name the row `id` in their column `sloupec`: a vehicle, driver,
// fuel or kind still named may not be deleted. The names are the program's own constants.
int pocetOdkazu(DbModel& model, const char* tabulka, const char* sloupec, int id);

}  // namespace jizdy
