#include "dphkh1print.h"

#include "prompts.h"

// Stands in until the statement's print is built: says so instead of showing nothing.
void nahledDphkh1(wxWindow* parent, const Dphkh1&) {
    prompts().info(wxString::FromUTF8("Náhled kontrolního hlášení zatím není k dispozici."),
                   wxString::FromUTF8("Informace"), parent);
}
