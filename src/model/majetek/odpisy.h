// The yearly tax depreciation of an asset: the whole plan from the year of acquisition to the
// end of the group's years, straight-line or accelerated, every amount rounded down to whole
// crowns and the last year taking the rest, so that the plan sums to the input price.
#pragma once

#include <map>
#include <vector>

#include "records.h"

namespace odpisy {

// The depreciation methods of an asset (majetek.odpis).
enum Metoda { BEZ_ODPISU = 0, ROVNOMERNY = 1, ZRYCHLENY = 2, VYLOUCENY = 3 };

struct Rok {
    int rok = 0;
    double odpis = 0;
    double zustatek = 0;  // the residual value after the year
    bool ulozeny = false; // taken from the stored rows rather than computed
};

// Straight-line: floor(price × rate / 100).
double rovnomerny(double cena, double sazba);
// Accelerated, a year after the first: floor(2 × (price − depreciated so far) / (coefficient −
// years since acquisition)).
double zrychleny(double cena, double koeficient, double dosud, int letOdPorizeni);

// The plan of an asset acquired in `rokPorizeni`: one row a year for the group's number of
// years. Years with a stored amount (`ulozene`, year → amount) keep it, and the later years
// are computed from what was really depreciated. Empty for the methods without depreciation.
std::vector<Rok> plan(double cena, int metoda, const Odpiskupina& skupina, int rokPorizeni,
                      const std::map<int, double>& ulozene = {});

}  // namespace odpisy
