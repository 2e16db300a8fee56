// Average fuel prices (cenaphm) used to price business trips in the vehicle log: one price
// per fuel kind (phm) for each validity interval, in CZK per litre, for electricity in CZK
// per kWh; the kind "Ostatní" has no average price and carries 0.
// The prices are the yearly averages set by the Ministry of Finance in its decree on the
// basic per-km allowance, meal allowance and average fuel prices, valid from 1 January to
// 31 December of each year; electricity is listed from 2020. Values not checked against
// the published decree are marked in the comment above their block.
#include "schema.h"

const char* const sqlite_tb_cenaphm[] = {
    "CREATE TABLE cenaphm (id INTEGER PRIMARY KEY AUTOINCREMENT, phmid INTEGER REFERENCES phm(id) ON UPDATE CASCADE ON DELETE CASCADE, cena REAL, validfrom TEXT, validto TEXT)",
    // 2018: the decree's prices.
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(1,1,30.50,'2018-01-01','2018-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(2,2,32.80,'2018-01-01','2018-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(3,3,29.80,'2018-01-01','2018-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(4,4,0,'2018-01-01','2018-12-31')",
    // 2019: not verified against the published decree (prices as remembered).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(5,1,32.00,'2019-01-01','2019-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(6,2,35.00,'2019-01-01','2019-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(7,3,31.40,'2019-01-01','2019-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(8,4,0,'2019-01-01','2019-12-31')",
    // 2020: electricity is listed from this year on. Not verified against the published decree
    // (prices as remembered).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(9,1,32.00,'2020-01-01','2020-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(10,2,35.30,'2020-01-01','2020-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(11,3,31.00,'2020-01-01','2020-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(12,4,0,'2020-01-01','2020-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(13,5,4.10,'2020-01-01','2020-12-31')",
    // 2021: not verified against the published decree (prices as remembered; the electricity
    // price in particular is uncertain).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(14,1,27.80,'2021-01-01','2021-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(15,2,31.00,'2021-01-01','2021-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(16,3,26.60,'2021-01-01','2021-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(17,4,0,'2021-01-01','2021-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(18,5,4.10,'2021-01-01','2021-12-31')",
    // 2022, first part of the year. In 2022 fuel prices rose so sharply that the yearly
    // averages were replaced during the year by an amending decree; the year is therefore split
    // into two validity intervals. Not verified: the prices are as remembered, and the date of
    // the change (taken here as 1 June 2022) and whether the electricity price changed with it
    // have not been checked against the decree.
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(19,1,37.10,'2022-01-01','2022-05-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(20,2,40.50,'2022-01-01','2022-05-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(21,3,33.80,'2022-01-01','2022-05-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(22,4,0,'2022-01-01','2022-05-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(23,5,4.10,'2022-01-01','2022-05-31')",
    // 2022, second part of the year (after the amending decree). Not verified, see above.
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(24,1,44.50,'2022-06-01','2022-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(25,2,47.10,'2022-06-01','2022-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(26,3,44.10,'2022-06-01','2022-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(27,4,0,'2022-06-01','2022-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(28,5,4.10,'2022-06-01','2022-12-31')",
    // 2023: not verified against the published decree (prices as remembered).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(29,1,41.20,'2023-01-01','2023-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(30,2,44.90,'2023-01-01','2023-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(31,3,44.10,'2023-01-01','2023-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(32,4,0,'2023-01-01','2023-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(33,5,6.00,'2023-01-01','2023-12-31')",
    // 2024: not verified against the published decree (prices as remembered).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(34,1,38.20,'2024-01-01','2024-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(35,2,42.10,'2024-01-01','2024-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(36,3,38.70,'2024-01-01','2024-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(37,4,0,'2024-01-01','2024-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(38,5,7.20,'2024-01-01','2024-12-31')",
    // 2025: not verified against the published decree (prices as remembered).
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(39,1,35.80,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(40,2,40.50,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(41,3,34.70,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(42,4,0,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(43,5,6.80,'2025-01-01','2025-12-31')",
    // The 2025 prices a second time, under the ids 34-38 of 2024. These five statements fail on
    // the primary key when the table is created (ids 34-38 already hold 2024), so they store
    // nothing; 2024 keeps its own prices and 2025 is stored by the block above. The failure is
    // expected and the statements are kept exactly as they stand, because databases already
    // in use were created from this very list.
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(34,1,35.80,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(35,2,40.50,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(36,3,34.70,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(37,4,0,'2025-01-01','2025-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(38,5,6.80,'2025-01-01','2025-12-31')",
    // 2026: the decree's prices as known to us; not re-checked against the decree text.
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(44,1,34.70,'2026-01-01','2026-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(45,2,39.00,'2026-01-01','2026-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(46,3,34.10,'2026-01-01','2026-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(47,4,0,'2026-01-01','2026-12-31')",
    "INSERT INTO cenaphm(id,phmid,cena,validfrom,validto) VALUES(48,5,7.20,'2026-01-01','2026-12-31')",
    nullptr};
