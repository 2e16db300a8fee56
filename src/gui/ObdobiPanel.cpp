#include "ObdobiPanel.h"

#include <wx/choice.h>
#include <wx/dateevt.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "controls/lxdatectrl.h"
#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

wxDateTime den(int rok, int mesic, int den) {
    return wxDateTime(static_cast<wxDateTime::wxDateTime_t>(den), static_cast<wxDateTime::Month>(mesic - 1), rok);
}

}  // namespace

ObdobiPanel::ObdobiPanel(wxWindow* parent, int rok, const DphObdobi& vychozi, bool volneDatumy)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL, "obdobiPanel"), m_rok(rok) {
    m_mesicVolba = new wxRadioButton(this, wxID_ANY, u8("Měsíc"), wxDefaultPosition, wxDefaultSize, wxRB_GROUP,
                                     wxDefaultValidator, "volbaMesic");
    m_ctvrtletiVolba = new wxRadioButton(this, wxID_ANY, u8("Čtvrtletí"), wxDefaultPosition, wxDefaultSize, 0,
                                         wxDefaultValidator, "volbaCtvrtleti");
    m_datumVolba = new wxRadioButton(this, wxID_ANY, u8("Období"), wxDefaultPosition, wxDefaultSize, 0,
                                     wxDefaultValidator, "volbaObdobi");

    wxArrayString mesice, ctvrtleti;
    for (int m = 1; m <= 12; ++m) mesice.Add(wxString::Format("%s/%d", lxutils::mesicString(m), rok));
    for (int q = 1; q <= 4; ++q) ctvrtleti.Add(wxString::Format("%s/%d", lxutils::ctvrtletiString(q), rok));
    m_mesic = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, mesice, 0, wxDefaultValidator, "mesic");
    m_ctvrtleti =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, ctvrtleti, 0, wxDefaultValidator, "ctvrtleti");
    m_od = new lxDateCtrl(this, "od");
    m_do = new lxDateCtrl(this, "do");
    // "15.10." typed without a year is a day of the accounting year.
    m_od->setRok(rok);
    m_do->setRok(rok);

    const bool platne = vychozi.isValid();
    m_mesic->SetSelection(platne && vychozi.druh == DruhObdobi::Mesic ? vychozi.mesic - 1 : 0);
    m_ctvrtleti->SetSelection(platne && vychozi.druh == DruhObdobi::Ctvrtleti ? vychozi.ctvrtleti - 1 : 0);
    const bool datumy = platne && vychozi.druh == DruhObdobi::Obdobi;
    m_od->SetValue(datumy ? vychozi.od : den(rok, 1, 1));
    m_do->SetValue(datumy ? vychozi.doDne : den(rok, 12, 31));

    auto* grid = new wxFlexGridSizer(2, wxSize(12, 6));
    grid->Add(m_mesicVolba, wxSizerFlags().CenterVertical());
    grid->Add(m_mesic);
    grid->Add(m_ctvrtletiVolba, wxSizerFlags().CenterVertical());
    grid->Add(m_ctvrtleti);
    if (volneDatumy) {
        grid->Add(m_datumVolba, wxSizerFlags().CenterVertical());
        auto* datumRow = new wxBoxSizer(wxHORIZONTAL);
        datumRow->Add(new wxStaticText(this, wxID_ANY, "od"), wxSizerFlags().CenterVertical().Border(wxRIGHT, 4));
        datumRow->Add(m_od, wxSizerFlags().CenterVertical());
        datumRow->Add(new wxStaticText(this, wxID_ANY, "do"),
                      wxSizerFlags().CenterVertical().Border(wxLEFT | wxRIGHT, 4));
        datumRow->Add(m_do, wxSizerFlags().CenterVertical());
        grid->Add(datumRow);
    } else {
        // The controls stay, hidden, so the rest of the panel need not ask whether they exist.
        for (wxWindow* w : std::initializer_list<wxWindow*>{m_datumVolba, m_od, m_do}) w->Hide();
    }
    SetSizerAndFit(grid);

    const bool datumyNabidnuty = volneDatumy || !platne || vychozi.druh != DruhObdobi::Obdobi;
    setDruh(platne && datumyNabidnuty ? vychozi.druh : DruhObdobi::Mesic);
    for (wxRadioButton* volba : {m_mesicVolba, m_ctvrtletiVolba, m_datumVolba})
        volba->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { enableFields(); });
    m_od->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { srovnej(true); });
    m_do->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { srovnej(false); });
}

DruhObdobi ObdobiPanel::druh() const {
    if (m_ctvrtletiVolba->GetValue()) return DruhObdobi::Ctvrtleti;
    if (m_datumVolba->GetValue()) return DruhObdobi::Obdobi;
    return DruhObdobi::Mesic;
}

void ObdobiPanel::setDruh(DruhObdobi druh) {
    m_mesicVolba->SetValue(druh == DruhObdobi::Mesic);
    m_ctvrtletiVolba->SetValue(druh == DruhObdobi::Ctvrtleti);
    m_datumVolba->SetValue(druh == DruhObdobi::Obdobi);
    enableFields();
}

void ObdobiPanel::enableFields() {
    const DruhObdobi d = druh();
    m_mesic->Enable(d == DruhObdobi::Mesic);
    m_ctvrtleti->Enable(d == DruhObdobi::Ctvrtleti);
    m_od->Enable(d == DruhObdobi::Obdobi);
    m_do->Enable(d == DruhObdobi::Obdobi);
}

void ObdobiPanel::srovnej(bool zmenenoOd) {
    const wxDateTime od = m_od->GetValue(), doDne = m_do->GetValue();
    if (!od.IsValid() || !doDne.IsValid() || od <= doDne) return;
    if (zmenenoOd)
        m_do->SetValue(od);
    else
        m_od->SetValue(doDne);
}

DphObdobi ObdobiPanel::obdobi() const {
    switch (druh()) {
        case DruhObdobi::Mesic: return DphObdobi::zMesice(m_rok, m_mesic->GetSelection() + 1);
        case DruhObdobi::Ctvrtleti: return DphObdobi::zCtvrtleti(m_rok, m_ctvrtleti->GetSelection() + 1);
        case DruhObdobi::Obdobi: break;
    }
    return DphObdobi::zDatumu(m_od->GetValue(), m_do->GetValue());
}

wxString ObdobiPanel::chyba() const {
    if (druh() != DruhObdobi::Obdobi) return wxString();
    if (!m_od->GetValue().IsValid()) return lxformat::datumZprava(u8("Období od"), m_od->text());
    if (!m_do->GetValue().IsValid()) return lxformat::datumZprava(u8("Období do"), m_do->text());
    return wxString();
}

void ObdobiPanel::focusChyba() {
    if (!m_od->GetValue().IsValid())
        m_od->focusText();
    else if (!m_do->GetValue().IsValid())
        m_do->focusText();
}
