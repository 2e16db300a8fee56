#include "KontrolaPodaniDialog.h"

#include <wx/button.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/utils.h>

#include <algorithm>

#include "FakturaDialog.h"
#include "ObdobiPanel.h"
#include "ZavpohDialog.h"
#include "book/lxcsv.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// The month before the working date, the one a monthly payer files now; January when that
// month lies in another year.
DphObdobi vychoziObdobi(int rok) {
    const wxDateTime dnes = lxSettings::instance()->datum();
    if (!dnes.IsValid()) return DphObdobi::zMesice(rok, 1);
    const wxDateTime minuly = wxDateTime(1, dnes.GetMonth(), dnes.GetYear()).Subtract(wxDateSpan::Month());
    return DphObdobi::zMesice(rok, minuly.GetYear() == rok ? minuly.GetMonth() + 1 : 1);
}

enum Sloupec { DOKLAD, DATUM, ZAKLAD, DAN, PRIZNANI, HLASENI, POZNAMKA, SLOUPCU };

struct SloupecPopis {
    const char* nadpis;
    int sirka;
    bool vpravo;
};
const SloupecPopis SLOUPCE[SLOUPCU] = {
    {"Doklad", 240, false},   {"Datum", 90, false},    {"Základ", 110, true},
    {"Daň", 100, true},       {"Přiznání", 110, true}, {"Kontrolní hlášení", 130, true},
    {"Poznámka", 230, false},
};

wxArrayString nadpisy() {
    wxArrayString texts;
    for (const SloupecPopis& s : SLOUPCE) texts.Add(u8(s.nadpis));
    return texts;
}

using Radek = KontrolaPodaniDialog::Radek;

// A line whose columns are texts, amounts shown both ways; `castky` marks the columns
// holding an amount.
struct Bunky {
    wxString text[SLOUPCU];
    double castka[SLOUPCU] = {};
    bool jeCastka[SLOUPCU] = {};
    void set(Sloupec s, double value) {
        castka[s] = value;
        jeCastka[s] = true;
    }
};

Radek radek(Radek::Druh druh, const Bunky& b, const wxString& popis) {
    Radek r;
    r.druh = druh;
    for (int s = 0; s < SLOUPCU; ++s) {
        r.sloupce.Add(b.jeCastka[s] ? lxformat::formatCastka(b.castka[s]) : b.text[s]);
        r.csv.Add(b.jeCastka[s] ? lxformat::formatCastka(b.castka[s], false) : b.text[s]);
    }
    r.popis = popis;
    return r;
}

wxString kc(double castka) { return lxformat::formatCastka(castka, u8("Kč")); }

wxString anoNe(bool ano) { return ano ? u8("ano") : u8("ne"); }

// Received documents count by the day the right to deduct arose, issued ones by the taxable
// supply.
wxDateTime datumDokladu(const DphDoklad& d) {
    const bool prijaty = d.zdroj == "FP" || d.zdroj == "ZA";
    return prijaty && d.dppd.IsValid() ? d.dppd : d.duzp;
}

wxString kdeZapocten(const kontrola::Doklad& d) {
    wxString text;
    if (d.vPriznani && d.vHlaseni)
        text = u8("započten v přiznání i v kontrolním hlášení");
    else if (d.vPriznani)
        text = u8("započten jen v přiznání");
    else if (d.vHlaseni)
        text = u8("započten jen v kontrolním hlášení");
    if (d.vHlaseniKrat > 1) text += wxString::Format(u8(", v kontrolním hlášení %d×"), d.vHlaseniKrat);
    return text;
}

// A document under a difference says on which side it is counted; one the statement cannot
// place gives its section and the reason instead.
Radek dokladRadek(const kontrola::Doklad& d, const kontrola::Nezarazeny* nezarazeny) {
    Bunky b;
    b.text[DOKLAD] = d.doklad.cislo;
    b.text[DATUM] = lxformat::formatDatum(datumDokladu(d.doklad));
    b.set(ZAKLAD, d.zaklad);
    b.set(DAN, d.dan);
    wxString popis = wxString::Format(u8("Doklad %s ze dne %s: základ %s, daň %s"), d.doklad.cislo, b.text[DATUM],
                                      kc(d.zaklad), kc(d.dan));
    if (nezarazeny) {
        b.text[POZNAMKA] = nezarazeny->sekce + ": " + nezarazeny->duvod;
        popis += u8(". Oddíl ") + b.text[POZNAMKA];
    } else {
        b.text[PRIZNANI] = anoNe(d.vPriznani);
        b.text[HLASENI] = d.vHlaseniKrat > 1 ? wxString::Format(u8("%d×"), d.vHlaseniKrat) : anoNe(d.vHlaseni);
        popis += ", " + kdeZapocten(d);
    }
    Radek r = radek(Radek::Druh::DOKLAD, b, popis);
    r.zdroj = d.doklad.zdroj;
    r.id = d.id;
    return r;
}

Radek rozdilRadek(const kontrola::Rozdil& rozdil) {
    const double rozdilCastka = rozdil.priznani - rozdil.hlaseni;
    Bunky b;
    b.text[DOKLAD] = rozdil.nazev;
    b.set(PRIZNANI, rozdil.priznani);
    b.set(HLASENI, rozdil.hlaseni);
    b.text[POZNAMKA] = u8("rozdíl ") + kc(rozdilCastka);
    Radek r = radek(Radek::Druh::SKUPINA, b,
                    wxString::Format(u8("%s: přiznání %s, kontrolní hlášení %s, rozdíl %s"), rozdil.nazev,
                                     kc(rozdil.priznani), kc(rozdil.hlaseni), kc(rozdilCastka)));
    // The CSV keeps the difference as a number a spreadsheet can sum.
    r.csv[POZNAMKA] = lxformat::formatCastka(rozdilCastka, false);
    return r;
}

Radek nadpisRadek(const wxString& nadpis) {
    Bunky b;
    b.text[DOKLAD] = nadpis;
    return radek(Radek::Druh::SKUPINA, b, nadpis);
}

// The document dialog of the table a document comes from; wxID_OK when it was saved.
int upravitDoklad(wxWindow* parent, const wxString& zdroj, int id) {
    if (zdroj == "FV" || zdroj == "FP") {
        FakturaDialog dialog(parent, zdroj == "FV", id);
        return dialog.ShowModal();
    }
    if (zdroj == "PO" || zdroj == "ZA") {
        ZavpohDialog dialog(parent, zdroj == "ZA", id);
        return dialog.ShowModal();
    }
    return wxID_CANCEL;
}

}  // namespace

KontrolaPodaniDialog::KontrolaPodaniDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, u8("Kontrola podání"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "kontrolaPodani") {
    DbModel* model = openModel();
    const int rok = model ? model->currentRok() : wxDateTime::Today().GetYear();
    m_obdobi = new ObdobiPanel(this, rok, vychoziObdobi(rok));
    auto* zkontrolovatButton = new wxButton(this, wxID_ANY, u8("Zkontrolovat"), wxDefaultPosition, wxDefaultSize, 0,
                                            wxDefaultValidator, "zkontrolovat");
    zkontrolovatButton->SetDefault();

    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(-1, 320), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "vysledek");
    for (int s = 0; s < SLOUPCU; ++s)
        m_list->AppendColumn(u8(SLOUPCE[s].nadpis), SLOUPCE[s].vpravo ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT,
                             SLOUPCE[s].sirka);
    m_popis =
        new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxST_NO_AUTORESIZE, "popis");

    m_otevrit = new wxButton(this, wxID_ANY, u8("Otevřít doklad"), wxDefaultPosition, wxDefaultSize, 0,
                             wxDefaultValidator, "otevritDoklad");
    m_export = new wxButton(this, wxID_ANY, u8("Export CSV"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                            "exportCsv");
    m_otevrit->Disable();
    m_export->Disable();

    auto* top = new wxBoxSizer(wxVERTICAL);
    auto* obdobiRow = new wxBoxSizer(wxHORIZONTAL);
    obdobiRow->Add(m_obdobi);
    obdobiRow->Add(zkontrolovatButton, wxSizerFlags().Bottom().Border(wxLEFT, 18));
    top->Add(new wxStaticText(this, wxID_ANY, u8("Vyberte období:")),
             wxSizerFlags().Border(wxLEFT | wxRIGHT | wxTOP, 12));
    top->Add(obdobiRow, wxSizerFlags().Border(wxALL, 12));
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 12));
    top->Add(m_popis, wxSizerFlags().Expand().Border(wxALL, 12));
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(m_otevrit, wxSizerFlags().Border(wxRIGHT, 6));
    buttons->Add(m_export, wxSizerFlags().Border(wxRIGHT, 18));
    buttons->Add(new wxButton(this, wxID_CANCEL, u8("Zavřít")));
    top->Add(buttons, wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, 12));
    SetSizerAndFit(top);
    SetMinSize(GetSize());
    CentreOnParent();

    zkontrolovatButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { zkontrolovat(); });
    m_otevrit->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { otevritDoklad(); });
    m_export->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { exportCsv(); });
    m_list->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { onSelection(); });
    m_list->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { onSelection(); });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { otevritDoklad(); });
}

bool KontrolaPodaniDialog::zkontrolovat() {
    DbModel* model = openModel();
    if (!model) return false;
    const wxString chyba = m_obdobi->chyba();
    if (!chyba.empty()) {
        prompts().info(chyba, u8("Informace"), this);
        m_obdobi->focusChyba();
        return false;
    }
    const DphObdobi obdobi = m_obdobi->obdobi();
    if (!obdobi.isValid()) return false;
    wxBusyCursor busy;
    zobrazit(kontrola::zkontrolovat(*model, obdobi));
    return true;
}

void KontrolaPodaniDialog::zobrazit(const kontrola::Vysledek& vysledek) {
    m_list->DeleteAllItems();
    m_radky.clear();
    if (vysledek.vPoradku()) {
        Bunky b;
        b.text[DOKLAD] = wxString::Format(u8("Přiznání a kontrolní hlášení za %s se shodují."), vysledek.obdobi.text());
        addRadek(radek(Radek::Druh::SHODA, b, b.text[DOKLAD]));
    }
    for (const kontrola::Rozdil& rozdil : vysledek.rozdily) {
        addRadek(rozdilRadek(rozdil));
        for (const kontrola::Doklad& d : rozdil.doklady) addRadek(dokladRadek(d, nullptr));
    }
    if (!vysledek.nezarazene.empty()) {
        addRadek(nadpisRadek(u8("Doklady, které kontrolní hlášení nezařadí")));
        for (const kontrola::Nezarazeny& n : vysledek.nezarazene) addRadek(dokladRadek(n.doklad, &n));
    }
    // The headings and the reasons are read whole where they fit within reason; the line under
    // the list gives the rest of the selected one.
    for (Sloupec s : {DOKLAD, POZNAMKA}) {
        int sirka = SLOUPCE[s].sirka;
        for (const Radek& r : m_radky) sirka = std::max(sirka, sirkaTextu(r.sloupce[s], r.druh != Radek::Druh::DOKLAD));
        m_list->SetColumnWidth(s, std::min(sirka, 520));
    }
    m_export->Enable(!m_radky.empty());
    onSelection();
}

void KontrolaPodaniDialog::addRadek(Radek r) {
    const long i = m_list->InsertItem(m_list->GetItemCount(), r.sloupce[0]);
    for (int s = 1; s < SLOUPCU; ++s) m_list->SetItem(i, s, r.sloupce[s]);
    if (r.druh != Radek::Druh::DOKLAD) {
        wxFont font = m_list->GetFont();
        font.SetWeight(wxFONTWEIGHT_BOLD);
        m_list->SetItemFont(i, font);
    }
    m_radky.push_back(std::move(r));
}

int KontrolaPodaniDialog::sirkaTextu(const wxString& text, bool tucne) const {
    wxFont font = m_list->GetFont();
    if (tucne) font.SetWeight(wxFONTWEIGHT_BOLD);
    int sirka = 0, vyska = 0;
    m_list->GetTextExtent(text, &sirka, &vyska, nullptr, nullptr, &font);
    return sirka + 16;  // the cell's margins
}

int KontrolaPodaniDialog::selectedRow() const {
    const long i = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return i >= 0 && i < static_cast<long>(m_radky.size()) ? static_cast<int>(i) : -1;
}

void KontrolaPodaniDialog::onSelection() {
    const int i = selectedRow();
    m_popis->SetLabel(i >= 0 ? m_radky[i].popis : wxString());
    m_otevrit->Enable(i >= 0 && m_radky[i].druh == Radek::Druh::DOKLAD);
}

bool KontrolaPodaniDialog::otevritDoklad() {
    const int i = selectedRow();
    if (i < 0 || m_radky[i].druh != Radek::Druh::DOKLAD || !openModel()) return false;
    const Radek r = m_radky[i];
    if (upravitDoklad(this, r.zdroj, r.id) != wxID_OK) return false;
    zkontrolovat();
    return true;
}

wxString KontrolaPodaniDialog::exportCsv() {
    if (m_radky.empty()) return wxString();
    wxString path = prompts().chooseFile(u8("Exportovat kontrolu podání do"), wxGetHomeDir(), "kontrola-podani.csv",
                                         u8("CSV soubory (*.csv)|*.csv"), true, this);
    if (path.empty()) return wxString();
    wxFileName name(path);
    if (!name.HasExt()) name.SetExt("csv");
    path = name.GetFullPath();
    wxString chyba;
    if (!lxcsv::write(
            path, nadpisy(), m_radky.size(), [this](size_t r) { return m_radky[r].csv; }, lxcsv::Kodovani::UTF8,
            &chyba)) {
        prompts().error(chyba, u8("Informace"), this);
        return wxString();
    }
    return path;
}
