// Navigation codes of the book pages. The model names the page whose data changed with one
// of these codes in MODEL_UPDATED; the main window and its book select and refresh pages by them.
#pragma once

enum NavigationCode {
    NAV_ALL = 0,          // every page refreshes (company loaded or changed, period changed)
    NAV_HOME = 1,         // the home page with its summaries
    NAV_DENIK = 10,       // "Pěněžní deník"
    NAV_POKLADNA = 11,    // "Pokladna"
    NAV_BANKA = 12,       // "Banka"
    NAV_FAKTURY_VYDANE = 20,
    NAV_FAKTURY_PRIJATE = 21,
    NAV_POHLEDAVKY = 30,
    NAV_ZAVAZKY = 31,
    NAV_MAJETEK = 40,     // "Kniha majetku"
    NAV_ZASOBY = 50,      // "Kniha zásob"
    NAV_JIZDY = 60,       // "Kniha jízd"
    NAV_NONE = -1         // data shown by no page (settings, code lists)
};
