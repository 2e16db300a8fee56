// The choice of a VAT period: a month or a quarter of the accounting year, or free dates
// typed as "15.10.2026". The VAT document list and the VAT filings' wizards ask for their
// period with it; it hands back a DphObdobi.
#pragma once

#include <wx/panel.h>

#include "dph/dphobdobi.h"

class lxDateCtrl;
class wxChoice;
class wxRadioButton;

class ObdobiPanel : public wxPanel {
 public:
    // Months and quarters of the year `rok`; `vychozi` is shown first (an invalid one shows
    // January of `rok`). The free dates start as the whole year unless `vychozi` gives them.
    // Without `volneDatumy` only a month or a quarter is offered (the EC sales list has no
    // other period).
    ObdobiPanel(wxWindow* parent, int rok, const DphObdobi& vychozi = DphObdobi(), bool volneDatumy = true);

    // The chosen period; invalid when free dates are chosen and one of them does not read.
    DphObdobi obdobi() const;
    // Why obdobi() is invalid, as a message naming the field; empty when it is valid.
    wxString chyba() const;
    // Puts the focus on the date that does not read.
    void focusChyba();

    DruhObdobi druh() const;
    void setDruh(DruhObdobi druh);

 private:
    void enableFields();
    // Keeps od <= do: the date just changed pulls the other one along.
    void srovnej(bool zmenenoOd);

    int m_rok;
    wxRadioButton* m_mesicVolba = nullptr;
    wxRadioButton* m_ctvrtletiVolba = nullptr;
    wxRadioButton* m_datumVolba = nullptr;
    wxChoice* m_mesic = nullptr;
    wxChoice* m_ctvrtleti = nullptr;
    lxDateCtrl* m_od = nullptr;
    lxDateCtrl* m_do = nullptr;
};
