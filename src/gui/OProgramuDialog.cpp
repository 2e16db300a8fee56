#include "OProgramuDialog.h"

#include <wx/button.h>

#include <algorithm>
#include <wx/font.h>
#include <wx/icon.h>
#include <wx/image.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "lxutils.h"
#include "zdroje.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The open company's file, or the sentence saying there is none.
wxString firmaText() {
    DbModel* model = DbModel::instance();
    if (model && model->isOpen() && !model->databasePath().empty()) return model->databasePath();
    return u8("žádná firma není otevřena");
}

}  // namespace

OProgramuDialog::OProgramuDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("O programu"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    auto* hlava = new wxBoxSizer(wxHORIZONTAL);
    const wxString ikona = zdroje::icon();
    if (!ikona.empty()) {
        wxImage obrazek(ikona, wxBITMAP_TYPE_PNG);
        if (obrazek.IsOk()) {
            obrazek.Rescale(64, 64, wxIMAGE_QUALITY_HIGH);
            hlava->Add(new wxStaticBitmap(this, wxID_ANY, wxBitmap(obrazek)), wxSizerFlags().Border(wxRIGHT, 12));
        }
    }
    auto* nazvy = new wxBoxSizer(wxVERTICAL);
    auto* nazev = new wxStaticText(this, wxID_ANY, "Evida");
    nazev->SetFont(nazev->GetFont().Scaled(1.8f).Bold());
    nazvy->Add(nazev);
    nazvy->Add(new wxStaticText(this, wxID_ANY, u8("Daňová evidence pro živnostníky a malé firmy")),
               wxSizerFlags().Border(wxTOP, 4));
    hlava->Add(nazvy, wxSizerFlags().CenterVertical());

    auto* mrizka = new wxFlexGridSizer(2, wxSize(8, 6));
    mrizka->AddGrowableCol(1);
    auto radek = [&](const char* popis, wxTextCtrl* pole) {
        mrizka->Add(new wxStaticText(this, wxID_ANY, u8(popis)), wxSizerFlags().CenterVertical());
        mrizka->Add(pole, wxSizerFlags().Expand());
    };
    m_verze = pole("verze", lxutils::EVIDA_VERSION);
    radek("Verze:", m_verze);
    radek("Databáze:", pole("sqlite", DbModel::getVersion()));
    m_slozka = pole("slozka", lxutils::dataDir());
    radek("Datová složka:", m_slozka);
    m_firma = pole("firma", firmaText());
    radek("Otevřená firma:", m_firma);
    const wxString zdroj = zdroje::resourcesDir();
    radek("Nápověda a schémata:", pole("zdroje", zdroj.empty() ? u8("nenalezeny") : zdroj));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(hlava, wxSizerFlags().Border(wxALL, 12));
    top->Add(mrizka, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 12));
    top->Add(CreateSeparatedButtonSizer(wxOK), wxSizerFlags().Expand().Border(wxALL, 8));
    SetSizerAndFit(top);
    // Long paths stay readable: the fields are wide enough for a usual home directory.
    SetSize(wxSize(std::max(GetSize().x, FromDIP(620)), GetSize().y));
    SetMinSize(wxSize(FromDIP(480), GetSize().y));
    CentreOnParent();
    if (wxWindow* ok = FindWindow(wxID_OK)) ok->SetFocus();
}

wxTextCtrl* OProgramuDialog::pole(const char* name, const wxString& text) {
    // Read-only but selectable: the text can be copied, not changed.
    auto* field = new wxTextCtrl(this, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, wxTE_READONLY, wxDefaultValidator,
                                 name);
    return field;
}

wxString OProgramuDialog::verze() const { return m_verze->GetValue(); }
wxString OProgramuDialog::datovaSlozka() const { return m_slozka->GetValue(); }
wxString OProgramuDialog::otevrenaFirma() const { return m_firma->GetValue(); }
