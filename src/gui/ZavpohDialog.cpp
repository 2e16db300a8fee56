#include "ZavpohDialog.h"

ZavpohDialog::ZavpohDialog(wxWindow* parent, bool zavazek, int id, bool kopie)
    : DokladDialog(parent, zavazek ? DruhDokladu::ZAVAZEK : DruhDokladu::POHLEDAVKA, id, kopie) {}
