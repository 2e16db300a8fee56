// "Přehled daňových příjmů a výdajů za rok …": the company, the taxable income per column
// with its total, the expenses per column (or the flat-rate expenses per percentage) with
// their total, and the profit or loss. Amounts as "%.2f".
#pragma once

#include "document.h"
#include "documentprint.h"
#include "prijmyvydajeradky.h"

class PrijmyVydajePrint : public DocumentPrint {
 public:
    PrijmyVydajePrint(wxWindow* parent, const PrijmyVydajeTisk& tisk);

 private:
    Document m_prehled;
};
