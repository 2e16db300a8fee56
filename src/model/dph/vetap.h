// The parts every VAT filing shares: the taxpayer record VetaP filled from the taxpayer's
// settings, and the period attributes of VetaD.
#pragma once

#include "dphobdobi.h"
#include "podani.h"

class DbModel;

namespace podani {

// The taxpayer record. Each filing's schema has its own set of VetaP attributes; the ones a
// schema does not know are left out.
void fillVetaP(DbModel& model, Podani& p);
// The taxpayer's DIČ without the country prefix, digits only.
wxString kmenovaCastDic(const wxString& dic);

}  // namespace podani
