// Computing the EC sales list from the books: supplies of goods to (row 20), services in
// (row 21) and triangular trade with (row 31) other member states, summed per customer's VAT
// id and code of supply.
#pragma once

#include "dphobdobi.h"
#include "dphshv.h"
#include "records.h"

class DbModel;

struct ShZadani {
    DphObdobi obdobi;  // a month or a quarter
    wxString forma = Dphshv::RADNE;
    wxDateTime datumPodani;
    int ulozeneId = 0;  // a follow-up list: the saved list it follows
};

namespace shv {

// VetaD and VetaP.
void fillHlavicka(DbModel& model, Dphshv& p, const ShZadani& zadani);
// Empties the rows and builds them from the documents of [od, do] with a customer's VAT id.
void addVetyForDoklady(DbModel& model, Dphshv& p, const wxDateTime& od, const wxDateTime& doDne);
// Loads the rows of a saved list (the start of a follow-up list). False with a Czech message
// when it cannot be read.
bool nacistUlozene(DbModel& model, Dphshv& p, int ulozeneId, wxString* error = nullptr);
// The whole list: header and rows (from the documents, or from the saved list for a
// follow-up), stored with fillVety.
bool fillData(DbModel& model, Dphshv& p, const ShZadani& zadani, wxString* error = nullptr);

// "Souhrnné hlášení Březen/2026", "Následné souhrnné hlášení 1. čtvrtletí/2026".
wxString popis(const wxString& forma, const DphObdobi& obdobi);
Ulozene ulozene(const Dphshv& p, const ShZadani& zadani);

}  // namespace shv
