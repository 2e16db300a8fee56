#include "CsvMapovaniDialog.h"

#include <wx/choice.h>
#include <wx/spinctrl.h>

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const char* const ODDELOVACE[] = {";", ",", "\t"};
const char* const KODOVANI[] = {"auto", "UTF-8", "windows-1250"};

// The spinners of the form in order, with the mapping's field each one sets.
struct Pole {
    const char* label;
    const char* name;
    int vypis::CsvMapovani::*pole;
};
const Pole POLE[] = {
    {"Řádků záhlaví:", "hlavicka", &vypis::CsvMapovani::hlavicka},
    {"Sloupec data:", "datum", &vypis::CsvMapovani::datum},
    {"Sloupec částky:", "castka", &vypis::CsvMapovani::castka},
    {"Sloupec VS:", "vs", &vypis::CsvMapovani::vs},
    {"Sloupec protiúčtu:", "protiucet", &vypis::CsvMapovani::protiucet},
    {"Sloupec kódu banky:", "kodbanky", &vypis::CsvMapovani::kodBanky},
    {"Sloupec zprávy:", "zprava", &vypis::CsvMapovani::zprava},
    {"Sloupec protistrany:", "nazev", &vypis::CsvMapovani::nazev},
    {"Sloupec reference banky:", "reference", &vypis::CsvMapovani::reference},
};

int indexOf(const char* const* items, size_t count, const wxString& value) {
    for (size_t i = 0; i < count; ++i)
        if (value == items[i]) return static_cast<int>(i);
    return 0;
}

}  // namespace

CsvMapovaniDialog::CsvMapovaniDialog(wxWindow* parent, const wxString& klic, const vypis::CsvMapovani& mapovani)
    : FormDialog(parent, u8("Mapování sloupců CSV")), m_klic(klic), m_mapovani(mapovani) {
    const wxString oddelovace[] = {u8("Středník (;)"), u8("Čárka (,)"), u8("Tabulátor")};
    m_oddelovac = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 3, oddelovace, 0, wxDefaultValidator,
                               "oddelovac");
    m_oddelovac->SetSelection(indexOf(ODDELOVACE, 3, mapovani.oddelovac));
    addField("Oddělovač:", m_oddelovac);
    const wxString kodovani[] = {u8("Rozpoznat automaticky"), "UTF-8", "Windows-1250"};
    m_kodovani = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 3, kodovani, 0, wxDefaultValidator,
                              "kodovani");
    m_kodovani->SetSelection(indexOf(KODOVANI, 3, mapovani.kodovani));
    addField("Kódování:", m_kodovani);
    for (const Pole& p : POLE) {
        // 0 means the file has no such column.
        auto* spin = new wxSpinCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(90, -1), wxSP_ARROW_KEYS, 0,
                                    64, mapovani.*p.pole, p.name);
        spin->SetToolTip(u8("Číslo sloupce od 1; 0 znamená, že soubor takový sloupec nemá"));
        addField(p.label, spin);
        m_sloupce.push_back(spin);
    }
    finish();
}

bool CsvMapovaniDialog::save() {
    vypis::CsvMapovani m;
    m.oddelovac = ODDELOVACE[std::max(0, m_oddelovac->GetSelection())];
    m.kodovani = KODOVANI[std::max(0, m_kodovani->GetSelection())];
    for (size_t i = 0; i < m_sloupce.size(); ++i) m.*POLE[i].pole = m_sloupce[i]->GetValue();
    if (!m.isValid()) {
        refused(u8("Sloupec data a sloupec částky musí být vyplněné a různé"), m_sloupce[m.datum > 0 ? 2 : 1]);
        return false;
    }
    m_mapovani = m;
    vypis::ulozitMapovani(m_klic, m);
    return true;
}
