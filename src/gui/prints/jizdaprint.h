// One trip of the vehicle log on a sheet of its own: the vehicle, the driver, when, where, why
// and the odometer states, with room for the driver's signature.
#pragma once

#include "knihajizdprint.h"

class JizdaPrint : public TablePrint {
 public:
    JizdaPrint(wxWindow* parent, const wxString& firma, const wxString& vozidlo, const JizdaRadek& jizda);

 private:
    Table m_jizda;
};
