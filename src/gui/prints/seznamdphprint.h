// The list of VAT documents of a period as a print: one table per section of the VAT return
// that has documents, its heading, rows and side above it, a "Celkem" row under each block of
// documents with the same rates, and a new column header where the rates change.
#pragma once

#include <wx/datetime.h>

#include <vector>

#include "dph/dphobdobi.h"
#include "dph/seznamdph.h"
#include "multitableprint.h"
#include "table.h"

class SeznamDphPrint : public MultiTablePrint {
 public:
    // A month (`cislo` 1-12) or a quarter (1-4) of `rok`; free dates take the other constructor.
    SeznamDphPrint(wxWindow* parent, const wxString& firma, DruhObdobi druh, int cislo, int rok,
                   const std::vector<seznamdph::Sekce>& sekce);
    SeznamDphPrint(wxWindow* parent, const wxString& firma, const wxDateTime& od, const wxDateTime& doDne,
                   const std::vector<seznamdph::Sekce>& sekce);

    // "1. čtvrtletí/2024", "Březen/2024", or "1.10.2024 – 15.10.2024".
    static wxString obdobiText(DruhObdobi druh, int cislo, int rok);
    static wxString obdobiText(const wxDateTime& od, const wxDateTime& doDne);

 private:
    void build(const wxString& firma, const wxString& obdobi, const std::vector<seznamdph::Sekce>& sekce);

    lxTableArray m_tabulky;
};
