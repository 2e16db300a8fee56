// The parts every VAT filing shares: the taxpayer record VetaP filled from the taxpayer's
// settings, and the row a finished filing is saved as.
#pragma once

#include "dphobdobi.h"
#include "podani.h"
#include "records.h"

class DbModel;

namespace podani {

// The taxpayer record. Each filing's schema has its own set of VetaP attributes; the ones a
// schema does not know are left out.
void fillVetaP(DbModel& model, Podani& p);
// The taxpayer's DIČ without the country prefix, digits only.
wxString kmenovaCastDic(const wxString& dic);

// The saved-filings row of a finished filing: its kind (0 return, 1 EC sales list, 2 control
// statement), description, form code, period and XML.
Ulozene ulozene(int typ, const wxString& popis, const wxString& forma, const DphObdobi& obdobi, const Podani& p);

}  // namespace podani
