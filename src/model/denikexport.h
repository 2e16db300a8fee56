// The journal as a CSV table that the journal import reads back: one row per entry with all
// of its fields, amounts without thousands groups and with a decimal comma, registers,
// pre-postings, counterparties and currencies by their codes and names.
#pragma once

#include <wx/arrstr.h>

#include <map>
#include <vector>

#include "records.h"

class DbModel;

namespace denikexport {

// "Datum;Číslo;Popis;Částka;Pokladna/účet;Předkontace;Protistrana;Paušál;Reference;Výpis;
// Měna;Částka v měně;Kurz" as separate captions.
wxArrayString header();

// The codes and names an entry's ids stand for, read once for a whole export.
struct Nazvy {
    std::map<int, wxString> pokladny;     // register id → zkratka
    std::map<int, wxString> banky;        // account id → zkratka
    std::map<int, wxString> predkontace;  // pre-posting id → zkratka
    std::map<int, wxString> kontakty;     // contact id → nazev
    std::map<int, wxString> meny;         // currency id → kod
    static Nazvy load(DbModel& model);
};

// One entry's fields in the order of header(). A home-currency entry leaves the currency,
// foreign amount and rate empty; a cash entry leaves the statement number empty; a flat-rate
// percentage of 0 is empty.
wxArrayString row(const Denik& denik, const Nazvy& nazvy);

// The rows of the entries with these ids, in this order; ids of no entry of the open
// period are left out. One query for the entries and one per code list.
std::vector<wxArrayString> rows(DbModel& model, const std::vector<int>& ids);

}  // namespace denikexport
