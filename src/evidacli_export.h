// The filings that evida-cli writes: the same computation as the wizards, the XML on the
// standard output, checked against the official schema first.
#pragma once

#include <wx/string.h>

#include <vector>

class DbModel;

namespace evidacli {

// `args` are the words after "export" without the company file: the filing's name, then the options. Returns the
// exit status: 0 written, 1 refused (the reason on the standard error), 2 wrong usage.
int exportPodani(DbModel& model, const std::vector<wxString>& args);
// The usage lines of the command.
wxString exportUsage();

// `args` are the options after "kontrola FILE". Prints the comparison of the VAT return and
// the control statement of the period; returns 0 when they agree, 3 when there are
// differences or documents the statement cannot place, 1 on a bad period, 2 wrong usage.
int kontrolaPodani(DbModel& model, const std::vector<wxString>& args);
wxString kontrolaUsage();

}  // namespace evidacli
