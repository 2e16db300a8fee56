#include "PriznaniDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/valtext.h>

#include <algorithm>

#include "HledaciDialog.h"
#include "OkecDialog.h"
#include "controls/lxdatectrl.h"
#include "dph/priznaniform.h"
#include "lxformat.h"
#include "okbuttons.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The representative fields whose use depends on the representative's kind.
const char* const POLE_ZASTUPCE[] = {"zast_kod",   "zast_jmeno", "zast_prijmeni", "zast_dat_nar", "zast_ev_cislo",
                                     "zast_nazev", "zast_ic",    "opr_jmeno",     "opr_prijmeni", "opr_postaveni"};

// The text fields of the form and the record's field each of them edits.
struct TextField {
    const char* column;
    const wxString& (Priznani::*get)() const;
    void (Priznani::*set)(const wxString&);
};
const TextField TEXT_FIELDS[] = {
    {"jmeno", &Priznani::jmeno, &Priznani::setJmeno},
    {"prijmeni", &Priznani::prijmeni, &Priznani::setPrijmeni},
    {"titul", &Priznani::titul, &Priznani::setTitul},
    {"ulice", &Priznani::ulice, &Priznani::setUlice},
    {"c_orient", &Priznani::c_orient, &Priznani::setC_orient},
    {"psc", &Priznani::psc, &Priznani::setPsc},
    {"naz_obce", &Priznani::naz_obce, &Priznani::setNaz_obce},
    {"dic", &Priznani::dic, &Priznani::setDic},
    {"email", &Priznani::email, &Priznani::setEmail},
    {"id_dats", &Priznani::id_dats, &Priznani::setId_dats},
    {"c_telef", &Priznani::c_telef, &Priznani::setC_telef},
    {"zast_jmeno", &Priznani::zast_jmeno, &Priznani::setZast_jmeno},
    {"zast_prijmeni", &Priznani::zast_prijmeni, &Priznani::setZast_prijmeni},
    {"zast_ev_cislo", &Priznani::zast_ev_cislo, &Priznani::setZast_ev_cislo},
    {"zast_nazev", &Priznani::zast_nazev, &Priznani::setZast_nazev},
    {"zast_ic", &Priznani::zast_ic, &Priznani::setZast_ic},
    {"opr_jmeno", &Priznani::opr_jmeno, &Priznani::setOpr_jmeno},
    {"opr_prijmeni", &Priznani::opr_prijmeni, &Priznani::setOpr_prijmeni},
    {"opr_postaveni", &Priznani::opr_postaveni, &Priznani::setOpr_postaveni},
};

int number(const wxTextCtrl* text) {
    long n = 0;
    return text->GetValue().Strip(wxString::both).ToLong(&n) && n > 0 && n <= 999999 ? static_cast<int>(n) : 0;
}

wxString numberText(int n) { return n > 0 ? wxString::Format("%d", n) : wxString(); }

// The offices a taxpayer files with: the list without the directorate-general (code 0), whose
// code is also what a record holds before any office was chosen.
std::vector<lxutils::Ufo> filingOffices(std::vector<lxutils::Ufo> list) {
    list.erase(std::remove_if(list.begin(), list.end(), [](const lxutils::Ufo& u) { return u.c_ufo <= 0; }),
               list.end());
    return list;
}

}  // namespace

PriznaniDialog::PriznaniDialog(wxWindow* parent, DbModel* model)
    : wxDialog(parent, wxID_ANY, u8("Nastavení přiznání")),
      m_model(model),
      m_ufo(filingOffices(lxutils::readUfo())),
      m_pracufoAll(lxutils::readPracufo()),
      m_okec(lxutils::readOkec()) {
    if (m_model && m_model->isOpen()) {
        m_model->fillPriznani();  // the company may have changed since the record was read
        m_start = m_model->priznani();
    }

    auto* subjekt = new wxStaticBoxSizer(wxVERTICAL, this, u8("Daňový subjekt"));
    wxWindow* sb = subjekt->GetStaticBox();
    auto* g1 = new wxFlexGridSizer(2, wxSize(8, 5));
    g1->AddGrowableCol(1);
    addText(sb, g1, "Jméno", "jmeno", 220);
    addText(sb, g1, "Přijmení", "prijmeni", 220);
    addText(sb, g1, "Titul", "titul", 100);
    addText(sb, g1, "Ulice", "ulice", 220);
    wxTextCtrl* cp = addText(sb, g1, "čp", "c_pop", 80, "Číslo popisné");
    cp->SetValidator(wxTextValidator(wxFILTER_DIGITS));
    cp->SetMaxLength(6);
    addText(sb, g1, "čo", "c_orient", 80, "Číslo orientační")->SetMaxLength(4);
    addText(sb, g1, "PSČ", "psc", 80);
    auto* obecButton = new wxButton(sb, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT,
                                    wxDefaultValidator, "vybratObec");
    obecButton->SetToolTip(u8("Vybrat obec z číselníku obcí"));
    auto* obec =
        new wxTextCtrl(sb, wxID_ANY, "", wxDefaultPosition, wxSize(220, -1), 0, wxDefaultValidator, "naz_obce");
    m_controls["naz_obce"] = obec;
    addRow(sb, g1, "Obec", obec, obecButton);
    addText(sb, g1, "DIČ", "dic", 120, "Kmenová část daňového identifikačního čísla");
    addText(sb, g1, "E-mail", "email", 220);
    addText(sb, g1, "Identifikátor datové\nschránky", "id_dats", 100);
    addText(sb, g1, "Telefon", "c_telef", 140);

    m_ufoChoice =
        new wxChoice(sb, wxID_ANY, wxDefaultPosition, wxSize(300, -1), wxArrayString(), 0, wxDefaultValidator, "c_ufo");
    for (const lxutils::Ufo& ufo : m_ufo) m_ufoChoice->Append(ufo.nazu_ufo);
    m_controls["c_ufo"] = m_ufoChoice;
    addRow(sb, g1, "Finančním úřad", m_ufoChoice);
    m_pracufoChoice = new wxChoice(sb, wxID_ANY, wxDefaultPosition, wxSize(300, -1), wxArrayString(), 0,
                                   wxDefaultValidator, "c_pracufo");
    m_controls["c_pracufo"] = m_pracufoChoice;
    addRow(sb, g1, "Územní pracoviště", m_pracufoChoice);

    auto* okecButton = new wxButton(sb, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT,
                                    wxDefaultValidator, "vybratOkec");
    okecButton->SetToolTip(u8("Vybrat činnost z číselníku ekonomických činností"));
    auto* okec = new wxTextCtrl(sb, wxID_ANY, "", wxDefaultPosition, wxSize(90, -1), 0,
                                wxTextValidator(wxFILTER_DIGITS), "c_okec");
    m_controls["c_okec"] = okec;
    m_okecNazev = new wxStaticText(sb, wxID_ANY, "", wxDefaultPosition, wxSize(300, -1),
                                   wxST_ELLIPSIZE_END | wxST_NO_AUTORESIZE, "okecNazev");
    auto* okecBox = new wxBoxSizer(wxVERTICAL);
    auto* okecRow = new wxBoxSizer(wxHORIZONTAL);
    okecRow->Add(okec, wxSizerFlags().CentreVertical());
    okecRow->Add(okecButton, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    okecBox->Add(okecRow);
    okecBox->Add(m_okecNazev, wxSizerFlags().Expand().Border(wxTOP, 2));
    g1->Add(new wxStaticText(sb, wxID_ANY, u8("Hlavní ekonomická\nčinnost")), wxSizerFlags().CentreVertical());
    g1->Add(okecBox, wxSizerFlags().Expand());
    subjekt->Add(g1, wxSizerFlags(1).Expand().Border(wxALL, 6));

    auto* zastupce = new wxStaticBoxSizer(wxVERTICAL, this, u8("Podepisující osoba"));
    wxWindow* zb = zastupce->GetStaticBox();
    auto* g2 = new wxFlexGridSizer(2, wxSize(8, 5));
    g2->AddGrowableCol(1);
    m_zastTyp = new wxChoice(zb, wxID_ANY, wxDefaultPosition, wxDefaultSize, priznaniform::zastTypTexty(), 0,
                             wxDefaultValidator, "zast_typ");
    m_controls["zast_typ"] = m_zastTyp;
    addRow(zb, g2, "Typ podepisující osoby", m_zastTyp);
    m_zastKod = new wxChoice(zb, wxID_ANY, wxDefaultPosition, wxSize(300, -1), priznaniform::zastKodTexty(), 0,
                             wxDefaultValidator, "zast_kod");
    m_controls["zast_kod"] = m_zastKod;
    addRow(zb, g2, "Kód podepisující osoby", m_zastKod);
    addText(zb, g2, "Jméno", "zast_jmeno", 200);
    addText(zb, g2, "Přijmení", "zast_prijmeni", 200);
    m_datumNarozeni = new lxDateCtrl(zb, "zast_dat_nar");
    m_controls["zast_dat_nar"] = m_datumNarozeni;
    addRow(zb, g2, "Datum narození", m_datumNarozeni);
    addText(zb, g2, "Evidenční číslo osvědčení\ndaňového poradce", "zast_ev_cislo", 100);
    addText(zb, g2, "Název právnické osoby", "zast_nazev", 250);
    addText(zb, g2, "IČ", "zast_ic", 100);
    addText(zb, g2, "Oprávněná osoba\nJméno", "opr_jmeno", 200);
    addText(zb, g2, "Oprávněná osoba\nPříjmení", "opr_prijmeni", 200);
    addText(zb, g2, "Oprávněná osoba\nVztah k právnické osobě", "opr_postaveni", 200);
    zastupce->Add(g2, wxSizerFlags(1).Expand().Border(wxALL, 6));

    auto* grids = new wxBoxSizer(wxHORIZONTAL);
    grids->Add(subjekt, wxSizerFlags(1).Expand().Border(wxRIGHT, 8));
    grids->Add(zastupce, wxSizerFlags(1).Expand());
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grids, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
    CentreOnParent();

    fillForm(m_start);
    m_ufoChoice->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { fillPracufo(0); });
    m_zastTyp->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { enableZastupce(); });
    okec->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { showOkecName(); });
    obecButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseObec(); });
    okecButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseOkec(); });
}

void PriznaniDialog::addRow(wxWindow* box, wxFlexGridSizer* grid, const char* label, wxWindow* control,
                            wxWindow* button) {
    grid->Add(new wxStaticText(box, wxID_ANY, u8(label)), wxSizerFlags().CentreVertical());
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    // Choices take the width of the column; a date field keeps its own.
    row->Add(control, wxSizerFlags(control == m_datumNarozeni ? 0 : 1).CentreVertical());
    if (button) row->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    grid->Add(row, wxSizerFlags().Expand());
}

wxTextCtrl* PriznaniDialog::addText(wxWindow* box, wxFlexGridSizer* grid, const char* label, const char* column,
                                    int width, const char* tooltip) {
    auto* text = new wxTextCtrl(box, wxID_ANY, "", wxDefaultPosition, wxSize(width, -1), 0, wxDefaultValidator, column);
    if (tooltip) text->SetToolTip(u8(tooltip));
    m_controls[column] = text;
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(text, wxSizerFlags().CentreVertical());
    grid->Add(new wxStaticText(box, wxID_ANY, u8(label)), wxSizerFlags().CentreVertical());
    grid->Add(row, wxSizerFlags().Expand());
    return text;
}

wxWindow* PriznaniDialog::control(const wxString& column) const {
    const auto it = m_controls.find(column);
    return it == m_controls.end() ? nullptr : it->second;
}

void PriznaniDialog::fillForm(const Priznani& p) {
    for (const TextField& f : TEXT_FIELDS) static_cast<wxTextCtrl*>(control(f.column))->ChangeValue((p.*f.get)());
    static_cast<wxTextCtrl*>(control("c_pop"))->ChangeValue(numberText(p.c_pop()));
    static_cast<wxTextCtrl*>(control("c_okec"))->ChangeValue(numberText(p.c_okec()));
    for (size_t i = 0; i < m_ufo.size(); ++i) {
        if (m_ufo[i].c_ufo == p.c_ufo()) m_ufoChoice->SetSelection(static_cast<int>(i));
    }
    fillPracufo(p.c_pracufo());
    m_zastTyp->SetSelection(priznaniform::zastTypIndex(p.zast_typ()));
    m_zastKod->SetSelection(priznaniform::zastKodIndex(p.zast_kod()));
    wxDateTime narozeni;
    m_datumNarozeni->SetValue(narozeni.ParseISODate(p.zast_dat_nar()) ? narozeni : wxDateTime());
    showOkecName();
    enableZastupce();
}

void PriznaniDialog::fillPracufo(int c_pracufo) {
    const int ufo = ufoKod();
    m_pracufo.clear();
    m_pracufoChoice->Clear();
    for (const lxutils::Pracufo& p : m_pracufoAll) {
        if (p.c_ufo != ufo) continue;
        m_pracufo.push_back(p);
        m_pracufoChoice->Append(p.nazu_pracufo);
        if (p.c_pracufo == c_pracufo) m_pracufoChoice->SetSelection(static_cast<int>(m_pracufo.size()) - 1);
    }
}

void PriznaniDialog::showOkecName() {
    const int code = number(static_cast<wxTextCtrl*>(control("c_okec")));
    wxString nazev;
    for (const lxutils::Okec& o : m_okec) {
        if (o.c_nace == code) nazev = o.naz_nace;
    }
    m_okecNazev->SetLabel(nazev);
    m_okecNazev->SetToolTip(nazev);
}

void PriznaniDialog::enableZastupce() {
    const wxString typ = priznaniform::zastTypKod(m_zastTyp->GetSelection());
    for (const char* column : POLE_ZASTUPCE) control(column)->Enable(priznaniform::isPoleZastupce(typ, column));
}

int PriznaniDialog::ufoKod() const {
    const int sel = m_ufoChoice->GetSelection();
    // Without the list (or with an office it no longer holds) the stored code stays.
    return sel >= 0 && sel < static_cast<int>(m_ufo.size()) ? m_ufo[sel].c_ufo : m_start.c_ufo();
}

int PriznaniDialog::pracufoKod() const {
    const int sel = m_pracufoChoice->GetSelection();
    if (sel >= 0 && sel < static_cast<int>(m_pracufo.size())) return m_pracufo[sel].c_pracufo;
    return ufoKod() == m_start.c_ufo() ? m_start.c_pracufo() : 0;
}

Priznani PriznaniDialog::readForm() const {
    Priznani p = m_start;
    for (const TextField& f : TEXT_FIELDS) {
        (p.*f.set)(static_cast<wxTextCtrl*>(control(f.column))->GetValue().Strip(wxString::both));
    }
    p.setC_pop(number(static_cast<wxTextCtrl*>(control("c_pop"))));
    p.setC_okec(number(static_cast<wxTextCtrl*>(control("c_okec"))));
    p.setC_ufo(ufoKod());
    p.setC_pracufo(pracufoKod());
    p.setStat(wxString::FromUTF8(priznaniform::STAT));
    p.setZast_typ(priznaniform::zastTypKod(m_zastTyp->GetSelection()));
    const int kod = m_zastKod->GetSelection();
    p.setZast_kod(kod >= 0 ? priznaniform::zastKodZTextu(m_zastKod->GetString(kod)) : wxString());
    const wxDateTime narozeni = m_datumNarozeni->GetValue();
    p.setZast_dat_nar(narozeni.IsValid() ? narozeni.FormatISODate() : wxString());
    p.setValid(true);
    return p;
}

bool PriznaniDialog::save() {
    const wxString info = u8("Informace");
    if (m_datumNarozeni->IsEnabled()) {
        m_datumNarozeni->commitText();
        if (!m_datumNarozeni->text().Strip(wxString::both).empty() && !m_datumNarozeni->GetValue().IsValid()) {
            prompts().info(lxformat::datumZprava(u8("Datum narození"), m_datumNarozeni->text()), info, this);
            m_datumNarozeni->focusText();
            return false;
        }
    }
    const Priznani p = readForm();
    const priznaniform::Chyba chyba = priznaniform::check(p);
    if (!chyba.empty()) {
        prompts().info(chyba.zprava, info, this);
        if (wxWindow* field = control(chyba.pole)) field->SetFocus();
        return false;
    }
    if (!m_model || !m_model->setPriznani(priznaniform::bezNepouzitych(p))) {
        prompts().error(u8("Nastavení přiznání se nepodařilo uložit."), u8("Chyba"), this);
        return false;
    }
    return true;
}

void PriznaniDialog::chooseObec() {
    const std::vector<lxutils::Obec> obce = lxutils::readObce();
    if (obce.empty()) {
        prompts().info(u8("Číselník obcí není stažený, obec napište."), u8("Informace"), this);
        control("naz_obce")->SetFocus();
        return;
    }
    std::vector<wxArrayString> rows;
    rows.reserve(obce.size());
    const wxString current = static_cast<wxTextCtrl*>(control("naz_obce"))->GetValue();
    const wxString psc = static_cast<wxTextCtrl*>(control("psc"))->GetValue();
    int selected = -1;
    for (const lxutils::Obec& o : obce) {
        if (o.naz_obce == current && (selected < 0 || o.psc == psc)) selected = static_cast<int>(rows.size());
        wxArrayString row;
        row.Add(o.naz_obce);
        row.Add(o.psc);
        rows.push_back(row);
    }
    wxArrayString columns;
    columns.Add(u8("Obec"));
    columns.Add(u8("PSČ"));
    HledaciDialog dialog(this, u8("Obec"), columns, std::move(rows), selected);
    if (dialog.ShowModal() != wxID_OK || dialog.chosen() < 0) return;
    const lxutils::Obec& o = obce[dialog.chosen()];
    static_cast<wxTextCtrl*>(control("naz_obce"))->ChangeValue(o.naz_obce);
    static_cast<wxTextCtrl*>(control("psc"))->ChangeValue(o.psc);
}

void PriznaniDialog::chooseOkec() {
    if (m_okec.empty()) {
        prompts().info(u8("Číselník ekonomických činností není stažený, kód činnosti (NACE) napište."), u8("Informace"),
                       this);
        control("c_okec")->SetFocus();
        return;
    }
    OkecDialog dialog(this, number(static_cast<wxTextCtrl*>(control("c_okec"))), m_okec);
    if (dialog.ShowModal() != wxID_OK || dialog.chosenOkec() <= 0) return;
    static_cast<wxTextCtrl*>(control("c_okec"))->SetValue(numberText(dialog.chosenOkec()));
}
