// The tax administration's code lists: economic activities (okec), tax offices (ufo), their
// workplaces (pracufo), countries (zeme), municipalities (obce) and a few more that the filings
// need. They are downloaded from the administration's code-list service into the data
// directory and read from there by the taxpayer dialog, the prints and the filings.
//
// The service has answered in two formats over the years, and a file of either is read:
//  - XML with the root `Ciselnik` and one element a row (`Veta`), all data in its attributes;
//    an error answer has the root `Chyby` instead;
//  - pipe-separated text, the first line naming the columns, every line ending with "|".
// A row may carry its validity (d_pocpl/d_ukopl or d_vzniku/d_zaniku, ISO dates, empty for
// open); the lists keep only the rows valid on the asked day, so a code that appears with
// several intervals is there once. A missing, damaged or error file reads as an empty list.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "companyfiles.h"

namespace lxutils {

// Base URL of the code-list service, without a trailing slash. The environment variable
// EVIDA_CISELNIKY_URL replaces it (tests point it at a server on loopback).
wxString ciselnikyUrl();

// haveCiselniky() (companyfiles.h) tells whether the lists the filings need are there.

// Called before each download with its position (0-based), the number of downloads and the
// file being fetched, so that a window can show the progress.
using CiselnikyProgress = std::function<void(size_t index, size_t count, const wxString& file)>;

// Downloads every code list into the data directory, one after another in a fixed order, and
// returns false at the first that fails; the lists fetched before it stay. The lists that
// depend on a day are asked for as valid today (the program's clock).
bool downloadCiselniky(const CiselnikyProgress& progress = CiselnikyProgress());

// One row of a code list: its values by column (attribute) name.
using CiselnikRadek = std::map<std::string, wxString>;

// The rows of a code list given as the bytes of a file, in either format, in file order and
// without any filter. Empty for an error answer or anything that is not a code list.
std::vector<CiselnikRadek> parseCiselnik(const std::string& bytes);
// The same for a file; empty when it cannot be read.
std::vector<CiselnikRadek> readCiselnik(const wxString& path);
// Whether a row is valid on `datum` by whichever pair of validity columns it has.
bool isPlatny(const CiselnikRadek& radek, const wxDateTime& datum);

// The path of a code-list file ("ufo.xml") in the data directory.
wxString ciselnikPath(const wxString& file);

// The rows the taxpayer dialog and the filings use. Each reader takes the rows valid on
// `datum` (today when invalid) from `path` (the file in the data directory when empty).
struct Okec {
    int c_nace = 0;  // NACE code without its dots and without a leading zero ("10000" is 01.00.0)
    wxString naz_nace;
};
struct Ufo {
    int c_ufo = 0;
    wxString nazu_ufo;
};
struct Pracufo {
    int c_pracufo = 0;
    wxString nazu_pracufo;
    int c_ufo = 0;  // the office it belongs to
};
struct Obec {
    wxString naz_obce;
    wxString psc;
    int c_fu = 0;
};
struct Zeme {
    wxString kod2;
    wxString kod2_eu;  // the code in EU filings ("EL" for Greece)
    wxString naz_zeme_c25;
    wxString naz_zeme_c60;
};

// Economic activities in code order.
std::vector<Okec> readOkec(const wxDateTime& datum = wxDefaultDateTime, const wxString& path = wxString());
// Offices and workplaces in Czech order of their names.
std::vector<Ufo> readUfo(const wxDateTime& datum = wxDefaultDateTime, const wxString& path = wxString());
std::vector<Pracufo> readPracufo(const wxDateTime& datum = wxDefaultDateTime, const wxString& path = wxString());
// Municipalities in Czech order of their names, then by postcode.
std::vector<Obec> readObce(const wxDateTime& datum = wxDefaultDateTime, const wxString& path = wxString());
// Countries in the order of their two-letter codes.
std::vector<Zeme> readZeme(const wxDateTime& datum = wxDefaultDateTime, const wxString& path = wxString());

// Names for prints, from the files in the data directory: the row valid today, else the
// latest row of the code (a print of an old filing names an office since renamed); empty
// when the code is not in the list.
wxString nazevUfo(int c_ufo);
wxString nazevPracufo(int c_pracufo);
wxString nazevOkec(int c_nace);

}  // namespace lxutils
