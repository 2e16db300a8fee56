#include "FirmaPanel.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/filename.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "prompts.h"

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }

void setIf(wxTextCtrl* ctrl, const wxString& value) {
    if (ctrl) ctrl->ChangeValue(value);
}

wxString read(wxTextCtrl* ctrl) {
    wxString value = ctrl->GetValue();
    return value.Trim(true).Trim(false);
}
}  // namespace

FirmaPanel::FirmaPanel(wxWindow* parent, int parts) : wxPanel(parent, wxID_ANY) {
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1, 1);
    if (parts & IDENTITY) {
        m_nazev = addText(grid, "Název firmy:", "nazev");
        m_ic = addText(grid, "IČ:", "ic");
        m_dic = addText(grid, "DIČ:", "dic");
        m_registrace = addText(grid, "Registrace:", "registrace");
        m_registrace->SetToolTip(u8("Zápis v obchodním nebo živnostenském rejstříku, uváděný na dokladech"));
        grid->AddSpacer(0);
        m_platce = new wxCheckBox(this, wxID_ANY, u8("Plátce DPH"), wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "platce");
        grid->Add(m_platce);
        grid->AddSpacer(0);
        m_pausal = new wxCheckBox(this, wxID_ANY, u8("Paušální výdaje"), wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "pausal");
        grid->Add(m_pausal);
    }
    if (parts & ADDRESS) {
        m_ulice = addText(grid, "Ulice:", "ulice");
        m_cp = addText(grid, "Číslo popisné:", "cp");
        m_misto = addText(grid, "Místo:", "misto");
        m_psc = addText(grid, "PSČ:", "psc");
        m_zeme = addText(grid, "Země:", "zeme");
        m_telefon = addText(grid, "Telefon:", "telefon");
        m_email = addText(grid, "E-mail:", "email");
        m_www = addText(grid, "WWW:", "www");
    }
    if (parts & IMAGES) {
        m_logo = addImage(grid, "Logo:", "logo");
        m_razitko = addImage(grid, "Razítko:", "razitko");
    }
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 4));
    SetSizerAndFit(top);
}

wxTextCtrl* FirmaPanel::addText(wxSizer* grid, const char* label, const char* name) {
    grid->Add(new wxStaticText(this, wxID_ANY, u8(label)), wxSizerFlags().CenterVertical());
    auto* ctrl =
        new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(280, -1), 0, wxDefaultValidator, name);
    grid->Add(ctrl, wxSizerFlags(1).Expand());
    return ctrl;
}

wxTextCtrl* FirmaPanel::addImage(wxSizer* grid, const char* label, const char* name) {
    grid->Add(new wxStaticText(this, wxID_ANY, u8(label)), wxSizerFlags().CenterVertical());
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    auto* ctrl =
        new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(220, -1), 0, wxDefaultValidator, name);
    auto* choose = new wxButton(this, wxID_ANY, u8("Vybrat..."));
    row->Add(ctrl, wxSizerFlags(1).CenterVertical());
    row->Add(choose, wxSizerFlags().Border(wxLEFT, 4));
    grid->Add(row, wxSizerFlags(1).Expand());
    choose->Bind(wxEVT_BUTTON, [this, ctrl](wxCommandEvent&) {
        const wxString current = ctrl->GetValue();
        const wxString start = current.empty() ? wxString() : wxFileName(current).GetPath();
        const wxString path = prompts().chooseFile(u8("Vyberte obrázek"), start, wxString(),
                                                   u8("Obrázky (*.png;*.jpg;*.jpeg;*.bmp;*.gif)|"
                                                      "*.png;*.jpg;*.jpeg;*.bmp;*.gif"),
                                                   false, this);
        if (!path.empty()) ctrl->ChangeValue(path);
    });
    return ctrl;
}

void FirmaPanel::show(const Firma& firma, const Adresa& adresa) {
    setIf(m_nazev, firma.nazev());
    setIf(m_ic, firma.ic());
    setIf(m_dic, firma.dic());
    setIf(m_registrace, firma.registrace());
    if (m_platce) m_platce->SetValue(firma.platce());
    if (m_pausal) m_pausal->SetValue(firma.pausal());
    setIf(m_ulice, adresa.ulice());
    setIf(m_cp, adresa.cp());
    setIf(m_misto, adresa.misto());
    setIf(m_psc, adresa.psc());
    setIf(m_zeme, adresa.zeme());
    setIf(m_telefon, firma.telefon());
    setIf(m_email, firma.email());
    setIf(m_www, firma.www());
    setIf(m_logo, firma.logo());
    setIf(m_razitko, firma.razitko());
}

void FirmaPanel::fill(Firma* firma, Adresa* adresa) const {
    if (m_nazev) {
        firma->setNazev(read(m_nazev));
        firma->setIc(read(m_ic));
        firma->setDic(read(m_dic));
        firma->setRegistrace(read(m_registrace));
        firma->setPlatce(m_platce->GetValue());
        firma->setPausal(m_pausal->GetValue());
    }
    if (m_ulice) {
        adresa->setUlice(read(m_ulice));
        adresa->setCp(read(m_cp));
        adresa->setMisto(read(m_misto));
        adresa->setPsc(read(m_psc));
        adresa->setZeme(read(m_zeme));
        firma->setTelefon(read(m_telefon));
        firma->setEmail(read(m_email));
        firma->setWww(read(m_www));
    }
    if (m_logo) {
        firma->setLogo(read(m_logo));
        firma->setRazitko(read(m_razitko));
    }
}

void FirmaPanel::focusFirst() {
    if (m_nazev)
        m_nazev->SetFocus();
    else if (m_ulice)
        m_ulice->SetFocus();
}
