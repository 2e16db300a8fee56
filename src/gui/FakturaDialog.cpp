#include "FakturaDialog.h"

FakturaDialog::FakturaDialog(wxWindow* parent, bool vydana, int id, bool kopie)
    : DokladDialog(parent, vydana ? DruhDokladu::FAKTURA_VYDANA : DruhDokladu::FAKTURA_PRIJATA, id, kopie) {}
