// Downloads over HTTP(S) and the exchange-rate lists they bring: the national bank's daily
// list and the program's own file of single yearly rates. Both lists are saved into the data
// directory and their rates stored in the open company through DbModel::instance().
//
// These functions show nothing; the dialogs that call them put up the busy cursor, since a
// download blocks the user-interface thread.
#pragma once

#include <wx/datetime.h>
#include <wx/string.h>

#include <cstddef>

namespace lxutils {

// Base URL of the national bank's web, without a trailing slash. The environment variable
// EVIDA_CNB_URL replaces it (tests point it at a server on loopback).
wxString cnbUrl();
// Base URL of the program's own web server (update check, yearly rates), without a trailing
// slash. The environment variable EVIDA_UPDATE_URL replaces it.
wxString updateUrl();

// Fetches `url` into directory/fileName and returns success. HTTP and HTTPS only, with the
// server's certificate verified, redirects followed and an HTTP status of 400 or more taken as
// failure. The data goes to a temporary file that replaces the target only when the transfer
// is complete, so a failed download leaves no partial file (and an older file untouched).
// At most `maxBytes` are taken, counted after any compression is undone, whatever length the
// server announces or leaves out; a longer answer fails. Callers pass the size of the largest
// file of the kind they fetch that they can believe.
constexpr size_t MAX_DOWNLOAD_BYTES = 64 * 1024 * 1024;
bool downloadFileFromNet(const wxString& url, const wxString& directory, const wxString& fileName,
                         size_t maxBytes = MAX_DOWNLOAD_BYTES);

// Downloads the daily list of `date` (saved as "dd.mm.yyyy.txt") and stores each of its rates
// as a daily rate of that date, per one unit of the currency, all in one transaction. False
// when the download fails or is longer than a list can be, the file has no line feed (it is
// deleted), has more lines than a list has or no line holds a rate; nothing is stored then.
// The list is read by readKurzovniListek (kurzlistek.h).
// `stored`, when given, receives the number of rates stored.
bool kurzyDownload(const wxDateTime& date, int* stored = nullptr);

// The same for the single yearly rates of `rok` (saved as "<rok>.txt"), stored with the
// date 31 December of that year and the yearly flag.
bool jednotnekurzyDownload(int rok, int* stored = nullptr);

}  // namespace lxutils
