#include "NahradaDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>

#include "JizdyTisk.h"
#include "dbmodel.h"
#include "dph/dphobdobi.h"
#include "jizdy/jizdydb.h"
#include "knihajizdprint.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "nahradaprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

NahradaDialog::NahradaDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Náhrada za použití vozidla"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    DbModel* model = openModel();
    m_vozidlo = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxSize(240, -1), wxArrayString(), 0,
                             wxDefaultValidator, "vozidlo");
    if (model) {
        for (const auto& v : model->vozidla()) {
            m_vozidlo->Append(v->jmeno().empty() ? v->rz() : v->rz() + u8(" – ") + v->jmeno());
            m_vozidlaIds.push_back(v->id());
        }
    }
    if (!m_vozidlaIds.empty()) m_vozidlo->SetSelection(0);
    wxArrayString mesice;
    for (int m = 1; m <= 12; ++m) mesice.Add(lxutils::mesicString(m));
    m_mesic = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, mesice, 0, wxDefaultValidator, "mesic");
    const wxDateTime dnes =
        lxSettings::instance()->datum().IsValid() ? lxSettings::instance()->datum() : wxDateTime::Today();
    m_mesic->SetSelection(dnes.GetMonth());
    m_rok = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 2000, 2100,
                           dnes.GetYear(), "rok");

    auto* volba = new wxBoxSizer(wxHORIZONTAL);
    volba->Add(new wxStaticText(this, wxID_ANY, u8("Vozidlo:")), wxSizerFlags().CentreVertical());
    volba->Add(m_vozidlo, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));
    volba->Add(new wxStaticText(this, wxID_ANY, u8("Měsíc:")), wxSizerFlags().CentreVertical().Border(wxLEFT, 16));
    volba->Add(m_mesic, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));
    volba->Add(new wxStaticText(this, wxID_ANY, u8("Rok:")), wxSizerFlags().CentreVertical().Border(wxLEFT, 16));
    volba->Add(m_rok, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));

    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(790, 280), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "jizdy");
    const struct {
        const char* nazev;
        int sirka;
        bool vpravo;
    } sloupce[] = {{"Datum", 90, false}, {"Trasa", 180, false},        {"Účel", 130, false},     {"km", 60, true},
                   {"Náhrada Kč/km", 120, true}, {"Cena PHM", 80, true}, {"Částka Kč", 100, true}};
    for (const auto& s : sloupce)
        m_list->AppendColumn(u8(s.nazev), s.vpravo ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT, s.sirka);
    m_souhrn = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "souhrn");

    auto* tlacitka = new wxBoxSizer(wxHORIZONTAL);
    auto* tisk = new wxButton(this, wxID_PRINT, u8("&Tisk..."));
    tlacitka->Add(tisk);
    tlacitka->AddStretchSpacer();
    tlacitka->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(volba, wxSizerFlags().Border(wxALL, 10));
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 10));
    top->Add(m_souhrn, wxSizerFlags().Expand().Border(wxALL, 10));
    top->Add(tlacitka, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    m_vozidlo->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { prepocitat(); });
    m_mesic->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { prepocitat(); });
    m_rok->Bind(wxEVT_SPINCTRL, [this](wxSpinEvent&) { prepocitat(); });
    tisk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { this->tisk(); });
    prepocitat();
}

int NahradaDialog::vozidloId() const {
    const int sel = m_vozidlo->GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_vozidlaIds.size()) ? m_vozidlaIds[sel] : -1;
}

wxString NahradaDialog::souhrn() const { return m_souhrn->GetLabel(); }

void NahradaDialog::prepocitat() {
    m_list->DeleteAllItems();
    DbModel* model = openModel();
    const int vozidlo = vozidloId();
    if (!model || vozidlo <= 0) {
        m_souhrn->SetLabel(u8("Nejdříve zadejte vozidlo (Jízdy – Vozidla)."));
        return;
    }
    wxString chyba;
    const NahradaTisk n = nahradaTisk(*model, vozidlo, m_rok->GetValue(), m_mesic->GetSelection() + 1, &chyba);
    for (const NahradaTiskRadek& r : n.radky) {
        const long item = m_list->InsertItem(m_list->GetItemCount(), lxformat::formatDatum(r.datum));
        m_list->SetItem(item, 1, r.cesta);
        m_list->SetItem(item, 2, r.ucel);
        m_list->SetItem(item, 3, jizdaKm(r.km));
        m_list->SetItem(item, 4, n.soukrome ? lxformat::formatKurz(r.sazba) : wxString());
        m_list->SetItem(item, 5, lxformat::formatKurz(r.cenaPhm));
        m_list->SetItem(item, 6, lxformat::formatCastka(r.castka));
    }
    if (!chyba.empty()) {
        m_souhrn->SetLabel(chyba);
    } else if (n.soukrome) {
        m_souhrn->SetLabel(wxString::Format(u8("Jízd: %d, celkem %s km, náhrada celkem %s Kč"),
                                            static_cast<int>(n.radky.size()), jizdaKm(n.km),
                                            lxformat::formatCastka(n.celkem)));
    } else {
        m_souhrn->SetLabel(wxString::Format(u8("Jízd: %d, celkem %s km. Služební vozidlo: spotřeba PHM %s Kč je "
                                               "jen informativní, náklady dokládají účtenky."),
                                            static_cast<int>(n.radky.size()), jizdaKm(n.km),
                                            lxformat::formatCastka(n.celkem)));
    }
    Layout();
}

void NahradaDialog::tisk() {
    const int vozidlo = vozidloId();
    if (vozidlo > 0) tiskNahrady(this, vozidlo, m_rok->GetValue(), m_mesic->GetSelection() + 1);
}
