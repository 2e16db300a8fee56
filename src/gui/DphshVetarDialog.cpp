#include "DphshVetarDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include <iterator>

#include "controls/lxamountctrl.h"
#include "dph/dphshv.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The codes of supply in the order of the choice.
const int KODY[] = {0, 1, 2, 3};
const char* const KODY_NAZVY[] = {"0 - dodání zboží", "1 - přemístění majetku", "2 - třístranný obchod", "3 - služby"};

// A VAT id as the list wants it: without spaces, dots and dashes.
wxString bezOddelovacu(wxString text) {
    for (const char* c : {" ", ".", "-"}) text.Replace(c, "");
    text.Replace(wxString(wxUniChar(0x00A0)), "");
    return text.Upper();
}

}  // namespace

DphshVetarDialog::DphshVetarDialog(wxWindow* parent, Dphshv& hlaseni, int index)
    : FormDialog(parent, u8(index < 0 ? "Přidat řádek" : "Upravit řádek")), m_hlaseni(hlaseni), m_index(index) {
    const Dphshv::Radek r = index >= 0 ? hlaseni.radek(index) : Dphshv::Radek();
    m_storno = new wxCheckBox(this, wxID_ANY, u8("Storno řádek"), wxDefaultPosition, wxDefaultSize, 0,
                              wxDefaultValidator, "storno");
    m_storno->SetValue(r.storno);
    // The schema allows a cancelling row only in a follow-up list.
    m_storno->Enable(hlaseni.atributValue("VetaD", "shvies_forma") == Dphshv::NASLEDNE);
    addField("", m_storno);
    m_stat = addText("Kód země:", "stat", 50);
    m_stat->SetMaxLength(2);
    m_stat->ChangeValue(r.stat);
    m_cislo = addText("DIČ pořizovatele zboží:", "cislo", 180);
    m_cislo->ChangeValue(r.cislo);
    m_kod = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0, wxDefaultValidator, "kod");
    for (const char* nazev : KODY_NAZVY) m_kod->Append(u8(nazev));
    m_kod->SetSelection(0);
    for (size_t i = 0; i < std::size(KODY); ++i)
        if (KODY[i] == r.kod) m_kod->SetSelection(static_cast<int>(i));
    addField("Kód plnění:", m_kod);
    m_pocet = addText("Počet plnění:", "pocet", 80);
    if (index >= 0) m_pocet->ChangeValue(wxString::Format("%d", r.pocet));
    m_hodnota = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "hodnota");
    // The unrounded sum: the list rounds it up to whole crowns when it is stored.
    if (index >= 0) m_hodnota->SetValue(r.hodnota);
    addField("Celková hodnota plnění v Kč:", m_hodnota);
    finish();
}

bool DphshVetarDialog::save() {
    Dphshv::Radek r;
    r.storno = m_storno->IsEnabled() && m_storno->GetValue();
    r.stat = m_stat->GetValue().Strip(wxString::both).Upper();
    r.cislo = bezOddelovacu(m_cislo->GetValue());
    r.kod = KODY[m_kod->GetSelection() >= 0 ? m_kod->GetSelection() : 0];
    if (refused(r.stat.empty() ? u8("Kód země nemůže být prázdný") : wxString(), m_stat)) return false;
    if (refused(r.cislo.empty() ? u8("DIČ pořizovatele zboží nemůže být prázdné") : wxString(), m_cislo)) return false;

    const wxString pocet = m_pocet->GetValue().Strip(wxString::both);
    long n = 0;
    if (!pocet.empty() && (!pocet.ToLong(&n) || n < 0 || n > 999999)) {
        refused(u8("Počet plnění musí být celé kladné číslo"), m_pocet);
        return false;
    }
    r.pocet = static_cast<int>(n);
    r.hodnota = 0;
    if (!m_hodnota->GetValue().Strip(wxString::both).empty() &&
        m_hodnota->GetValue(&r.hodnota) != lxformat::Chyba::ZADNA) {
        refused(m_hodnota->zprava(u8("Celková hodnota plnění v Kč")), m_hodnota);
        return false;
    }
    // A cancelling row names the row it cancels by its country, VAT id and code; its count
    // and value are not required there (the schema asks for them only in a row that is not
    // a cancelling one), so zero is accepted and whatever was typed is kept.
    if (!r.storno) {
        if (refused(r.pocet == 0 ? u8("Počet plnění nemůže být nulový") : wxString(), m_pocet)) return false;
        if (refused(r.hodnota == 0 ? u8("Celková hodnota plnění nemůže být nulová") : wxString(), m_hodnota))
            return false;
    }
    const int stejny = m_hlaseni.findVetaR(r.stat, r.cislo, r.kod, r.storno);
    if (stejny >= 0 && stejny != m_index) {
        refused(wxString::Format(u8("Řádek pro %s%s s kódem plnění %d už v hlášení je"), r.stat, r.cislo, r.kod),
                m_cislo);
        return false;
    }
    if (m_index < 0) m_index = m_hlaseni.addVetaR(r.stat, r.cislo, r.kod, r.storno, r.hodnota);
    m_hlaseni.setRadek(m_index, r);
    m_hlaseni.fillVety();
    return true;
}
