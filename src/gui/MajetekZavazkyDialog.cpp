#include "MajetekZavazkyDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "clock.h"
#include "controls/lxamountctrl.h"
#include "dbmodel.h"
#include "download.h"
#include "majetekzavazkyprint.h"
#include "printchoice.h"
#include "prompts.h"
#include "rokchoice.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

MajetekZavazkyDialog::MajetekZavazkyDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Přehled majetku a závázků")) {
    m_rok = rokChoice(this);

    auto* top = new wxBoxSizer(wxVERTICAL);
    auto* volby = new wxBoxSizer(wxHORIZONTAL);
    volby->Add(new wxStaticText(this, wxID_ANY, u8("Rok:")), wxSizerFlags().CentreVertical());
    volby->Add(m_rok, wxSizerFlags().CentreVertical().Border(wxLEFT, 6));
    top->Add(volby, wxSizerFlags().Border(wxALL, 10));

    auto* grid = new wxFlexGridSizer(3, wxSize(10, 6));
    grid->AddGrowableCol(0);
    grid->Add(new wxStaticText(this, wxID_ANY, wxString()));
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Na začátku období")), wxSizerFlags().Right());
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Na konci období")), wxSizerFlags().Right());
    for (const MajetekZavazkyRadek& r : majetekZavazkyRadky()) {
        Pole p{&r, new lxAmountCtrl(this, lxAmountCtrl::CASTKA, r.zacatek, 140),
               r.konec ? new lxAmountCtrl(this, lxAmountCtrl::CASTKA, r.konec, 140) : nullptr};
        grid->Add(new wxStaticText(this, wxID_ANY, u8(r.popis)), wxSizerFlags().CentreVertical());
        grid->Add(p.zacatek);
        if (p.konec)
            grid->Add(p.konec);
        else
            grid->AddSpacer(0);
        m_pole.push_back(p);
    }
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 10));

    auto* tlacitka = new wxBoxSizer(wxHORIZONTAL);
    auto* znovu = new wxButton(this, wxID_ANY, u8("Znovu načíst data z evidence"), wxDefaultPosition, wxDefaultSize,
                               0, wxDefaultValidator, "znovu");
    auto* tisk = new wxButton(this, wxID_ANY, u8("Vytisknout přehled"), wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, "tisk");
    tlacitka->Add(znovu);
    tlacitka->Add(tisk, wxSizerFlags().Border(wxLEFT, 6));
    tlacitka->AddStretchSpacer();
    tlacitka->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));
    top->Add(tlacitka, wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    m_rok->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { nacist(); });
    znovu->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { nacist(); });
    tisk->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { this->tisk(); });
    nacist();
}

int MajetekZavazkyDialog::rok() const { return vybranyRok(m_rok); }

void MajetekZavazkyDialog::nacist() {
    DbModel* model = openModel();
    const int r = rok();
    if (!model || r == 0) return;
    if (model->hasPohledavkyDluhyCizi(r) && !model->hasJednotneKurzyForPohledavkyDluhy(r)) {
        prompts().info(u8("Jsou nějaké pohledávky a dluhy v cizí měně,\nje třeba stáhnout jednotné kurzy"),
                       u8("Informace"), this);
        const int rokKurzu = rokJednotnychKurzu(r, lxutils::today().GetYear());
        if (!lxutils::jednotnekurzyDownload(rokKurzu))
            prompts().error(wxString::Format(u8("Nepodařilo se stáhnout jednotné kurzy\npro rok %d"), rokKurzu),
                              u8("Varování"), this);
    }
    const MajetekZavazky m = nacistMajetekZavazky(*model, r);
    for (const Pole& p : m_pole) {
        p.zacatek->SetValue(m.hodnota(p.radek->zacatek));
        if (p.konec) p.konec->SetValue(m.hodnota(p.radek->konec));
    }
}

bool MajetekZavazkyDialog::hodnoty(MajetekZavazky* m) {
    m->rok = rok();
    for (const Pole& p : m_pole) {
        for (lxAmountCtrl* pole : {p.zacatek, p.konec}) {
            if (!pole) continue;
            double v = 0;
            if (pole->GetValue(&v) != lxformat::Chyba::ZADNA) {
                prompts().info(pole->zprava(u8(p.radek->popis)), u8("Informace"), this);
                pole->SetFocus();
                return false;
            }
            m->hodnoty[std::string(pole->GetName().utf8_str())] = v;
        }
    }
    return true;
}

void MajetekZavazkyDialog::tisk() {
    DbModel* model = openModel();
    MajetekZavazky m;
    if (!model || !hodnoty(&m)) return;
    std::vector<MajetekZavazkyTiskRadek> radky;
    for (const MajetekZavazkyRadek& r : majetekZavazkyRadky())
        radky.push_back({u8(r.popis), m.hodnota(r.zacatek), r.konec ? m.hodnota(r.konec) : 0, r.konec == nullptr});
    MajetekZavazkyPrint print(this, model->firma().nazev(), m.rok, radky);
    nahledNeboPdf(print, wxString::Format(u8("Přehled majetku a závázků %d"), m.rok), this);
}
