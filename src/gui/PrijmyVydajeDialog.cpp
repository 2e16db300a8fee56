#include "PrijmyVydajeDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include "book/lxcsv.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "printchoice.h"
#include "prijmyvydajeprint.h"
#include "prompts.h"
#include "rokchoice.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

PrijmyVydajeTisk tiskPrehledu(DbModel& model, const PrijmyVydaje& p) {
    PrijmyVydajeTisk t;
    t.rok = p.rok;
    const Firma& firma = model.firma();
    t.firma = firma.nazev();
    t.ic = firma.ic();
    const Adresa a = firma.adresaid() > 0 ? model.getAdresa(firma.adresaid()) : Adresa();
    if (a.isValid()) {
        const wxString ulice = (a.ulice() + " " + a.cp()).Strip(wxString::both);
        const wxString misto = (a.psc() + " " + a.misto()).Strip(wxString::both);
        t.adresa = ulice.empty() || misto.empty() ? ulice + misto : ulice + ", " + misto;
    }
    for (const auto& r : p.prijmy) t.prijmy.push_back({r.popis, r.castka});
    t.pausal = p.pausal;
    if (p.pausal) {
        for (const auto& r : p.pausalni) {
            t.vydaje.push_back({wxString(), r.castka});
            t.procenta.push_back(r.procento);
        }
    } else {
        for (const auto& r : p.vydaje) t.vydaje.push_back({r.popis, r.castka});
    }
    return t;
}

}  // namespace

PrijmyVydajeDialog::PrijmyVydajeDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Přehled příjmů a výdajů"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    DbModel* model = openModel();
    m_rok = rokChoice(this);
    m_pausal = new wxCheckBox(this, wxID_ANY, u8("Použít paušální výdaje"), wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, "pausal");
    m_pausal->SetValue(model && model->isFirmaPausal());
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(640, 300), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "prehled");
    m_list->AppendColumn(u8("Oddíl"), wxLIST_FORMAT_LEFT, 150);
    m_list->AppendColumn(u8("Položka"), wxLIST_FORMAT_LEFT, 340);
    m_list->AppendColumn(u8("Částka"), wxLIST_FORMAT_RIGHT, 130);

    auto* top = new wxBoxSizer(wxVERTICAL);
    auto* volby = new wxBoxSizer(wxHORIZONTAL);
    volby->Add(new wxStaticText(this, wxID_ANY, u8("Rok:")), wxSizerFlags().CentreVertical());
    volby->Add(m_rok, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));
    volby->Add(m_pausal, wxSizerFlags().CentreVertical().Border(wxLEFT, 16));
    top->Add(volby, wxSizerFlags().Border(wxALL, 10));
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 10));
    auto* tlacitka = new wxBoxSizer(wxHORIZONTAL);
    auto* tisk = new wxButton(this, wxID_ANY, u8("Vytisknout přehled"), wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, "tisk");
    auto* csv = new wxButton(this, wxID_ANY, u8("Export do CSV"), wxDefaultPosition, wxDefaultSize, 0,
                             wxDefaultValidator, "exportCsv");
    tlacitka->Add(tisk);
    tlacitka->Add(csv, wxSizerFlags().Border(wxLEFT, 6));
    tlacitka->AddStretchSpacer();
    tlacitka->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));
    top->Add(tlacitka, wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    m_rok->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { nacist(); });
    m_pausal->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { nacist(); });
    tisk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { this->tisk(); });
    csv->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { exportCsv(); });
    nacist();
}

int PrijmyVydajeDialog::rok() const { return vybranyRok(m_rok); }

void PrijmyVydajeDialog::nacist() {
    m_list->DeleteAllItems();
    DbModel* model = openModel();
    if (!model || rok() == 0) return;
    m_prehled = prijmyVydaje(*model, rok(), m_pausal->GetValue());
    if (m_prehled.prazdny()) {
        m_list->InsertItem(0, u8("Žádné daňové příjmy a výdaje"));
        return;
    }
    for (const PrehledRadek& r : prijmyVydajeRadky(m_prehled)) {
        const long i = m_list->InsertItem(m_list->GetItemCount(), r.oddil);
        m_list->SetItem(i, 1, r.popis);
        m_list->SetItem(i, 2, lxformat::formatCastka(r.castka));
    }
}

void PrijmyVydajeDialog::tisk() {
    DbModel* model = openModel();
    if (!model) return;
    PrijmyVydajePrint print(this, tiskPrehledu(*model, m_prehled));
    nahledNeboPdf(print, wxString::Format(u8("Přehled příjmů a výdajů %d"), m_prehled.rok), this);
}

wxString PrijmyVydajeDialog::exportCsv() {
    wxString path = prompts().chooseFile(u8("Exportovat přehled do"), wxGetHomeDir(),
                                         wxString::Format("prijmy-vydaje-%d.csv", m_prehled.rok),
                                         u8("CSV soubory (*.csv)|*.csv"), true, this);
    if (path.empty()) return wxString();
    wxFileName name(path);
    if (!name.HasExt()) name.SetExt("csv");
    path = name.GetFullPath();
    const std::vector<PrehledRadek> rows = prijmyVydajeRadky(m_prehled);
    wxArrayString nadpisy;
    for (const char* n : {"Oddíl", "Položka", "Částka"}) nadpisy.Add(u8(n));
    wxString chyba;
    if (!lxcsv::write(
            path, nadpisy, rows.size(),
            [&rows](size_t r) {
                wxArrayString a;
                a.Add(rows[r].oddil);
                a.Add(rows[r].popis);
                a.Add(lxformat::formatCastka(rows[r].castka, false));
                return a;
            },
            lxcsv::Kodovani::UTF8, &chyba)) {
        prompts().error(chyba, u8("Informace"), this);
        return wxString();
    }
    return path;
}
