// The print preview of the VAT control statement.
#pragma once

#include "dph/dphkh1.h"

class wxWindow;

void nahledDphkh1(wxWindow* parent, const Dphkh1& p);
