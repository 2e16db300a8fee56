#include "dph/dphdruhfilter.h"

#include "collation.h"

bool TextPodminka::matches(const wxString& value) const {
    if (shoda == OBSAHUJE) return collation::containsFolded(value, text);
    return value.CmpNoCase(text) == 0;
}

bool DphDruhPodminky::empty() const {
    return !zkratka && !popis && !plneni && !radky && !kpp && !kh && !nabizet;
}

bool DphDruhPodminky::matches(const DphDruh& druh) const {
    if (zkratka && !zkratka->matches(druh.zkratka())) return false;
    if (popis && !popis->matches(druh.popis())) return false;
    if (plneni && *plneni != druh.plneni()) return false;
    if (radky && *radky != druh.radky()) return false;
    if (kpp && *kpp != druh.kpp()) return false;
    if (kh && *kh != druh.kh()) return false;
    if (nabizet && *nabizet != druh.nabizet()) return false;
    return true;
}
