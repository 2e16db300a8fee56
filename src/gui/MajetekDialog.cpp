#include "MajetekDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/dateevt.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <map>

#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "majetek/odpisy.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

MajetekDialog::MajetekDialog(wxWindow* parent, int id, int vzor) : FormDialog(parent, u8("Majetek")), m_id(id) {
    SetName("MajetekDialog");
    DbModel* model = DbModel::instance();
    const bool open = model && model->isOpen();
    Majetek m;
    if (open && (id > 0 || vzor > 0)) m = model->getMajetek(id > 0 ? id : vzor);

    m_cislo = addText("Číslo:", "cislo", 140);
    m_nazev = addText("Název:", "nazev", 320);
    m_popis = addText("Popis:", "popis", 320);
    m_typ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0, wxDefaultValidator, "typ");
    for (int typ : MAJETEK_TYPY) m_typ->Append(DbModel::majetekTypAsString(typ));
    addField("Typ:", m_typ);
    m_porizen = new lxDateCtrl(this, "porizen");
    addField("Pořízeno:", m_porizen);
    m_cena = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "cena");
    addField("Vstupní cena:", m_cena);
    m_skupina =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0, wxDefaultValidator, "skupina");
    if (open) {
        for (const auto& s : model->odpiskupiny()) {
            m_skupina->Append(s->popis());
            m_skupinaIds.push_back(s->id());
        }
    }
    addField("Odpisová skupina:", m_skupina);
    m_odpis = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0, wxDefaultValidator, "odpis");
    for (int odpis = 0; odpis <= 3; ++odpis) m_odpis->Append(DbModel::majetekOdpisAsString(odpis));
    addField("Způsob odpisu:", m_odpis);
    m_vyrazen = new wxCheckBox(this, wxID_ANY, u8("Vyřazen"), wxDefaultPosition, wxDefaultSize, 0,
                               wxDefaultValidator, "vyrazen");
    m_datumvyrazeni = new lxDateCtrl(this, "datumvyrazeni");
    auto* vyrazeni = new wxBoxSizer(wxHORIZONTAL);
    vyrazeni->Add(m_vyrazen, wxSizerFlags().CentreVertical());
    vyrazeni->Add(m_datumvyrazeni, wxSizerFlags(1).CentreVertical().Border(wxLEFT, 8));
    addField("Vyřazení:", vyrazeni);

    m_plan = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(-1, 190), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "plan");
    m_plan->AppendColumn(u8("Rok"), wxLIST_FORMAT_LEFT, 70);
    m_plan->AppendColumn(u8("Odpis"), wxLIST_FORMAT_RIGHT, 120);
    m_plan->AppendColumn(u8("Zůstatková cena"), wxLIST_FORMAT_RIGHT, 140);
    m_plan->AppendColumn(u8("Stav"), wxLIST_FORMAT_LEFT, 110);

    if (m.isValid()) {
        if (id > 0) m_cislo->ChangeValue(m.cislo());
        m_nazev->ChangeValue(m.nazev());
        m_popis->ChangeValue(m.popis());
        m_porizen->SetValue(m.porizen());
        m_cena->SetValue(m.cena());
        m_vyrazen->SetValue(id > 0 && m.vyrazen());
        if (id > 0) m_datumvyrazeni->SetValue(m.datumvyrazeni());
    } else {
        m_porizen->SetValue(lxSettings::instance()->datum());
    }
    if (!(m.isValid() && id > 0) && open) m_cislo->ChangeValue(model->getCisloDokladu("MA"));
    int typ = 0;
    for (size_t i = 0; i < std::size(MAJETEK_TYPY); ++i) {
        if (m.isValid() && MAJETEK_TYPY[i] == m.typ()) typ = static_cast<int>(i);
    }
    if (m.isValid() && m.typ() != 1 && m.typ() != 2) typ = 2;
    m_typ->SetSelection(typ);
    m_odpis->SetSelection(m.isValid() ? std::min(std::max(m.odpis(), 0), 3) : odpisy::ROVNOMERNY);
    m_skupina->SetSelection(m_skupinaIds.empty() ? wxNOT_FOUND : 0);
    for (size_t i = 0; i < m_skupinaIds.size(); ++i) {
        if (m.isValid() && m_skupinaIds[i] == m.skupinaid()) m_skupina->SetSelection(static_cast<int>(i));
    }

    const auto replan = [this](wxEvent& event) {
        event.Skip();
        updatePlan();
    };
    m_porizen->Bind(wxEVT_DATE_CHANGED, replan);
    m_cena->Bind(wxEVT_TEXT, replan);
    m_skupina->Bind(wxEVT_CHOICE, replan);
    m_odpis->Bind(wxEVT_CHOICE, replan);
    m_vyrazen->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { updateVyrazeni(); });
    updateVyrazeni();
    updatePlan();
    finish(m_plan);
}

bool MajetekDialog::readForm(MajetekForm* form, wxString* zprava, wxWindow** pole) const {
    form->cislo = m_cislo->GetValue().Strip(wxString::both);
    form->nazev = m_nazev->GetValue().Strip(wxString::both);
    form->popis = m_popis->GetValue().Strip(wxString::both);
    const int typ = m_typ->GetSelection();
    form->typ = MAJETEK_TYPY[typ >= 0 && typ < static_cast<int>(std::size(MAJETEK_TYPY)) ? typ : 0];
    form->porizen = m_porizen->GetValue();
    form->porizenText = m_porizen->text();
    const int skupina = m_skupina->GetSelection();
    form->skupinaid = skupina >= 0 && skupina < static_cast<int>(m_skupinaIds.size()) ? m_skupinaIds[skupina] : -1;
    form->odpis = std::max(m_odpis->GetSelection(), 0);
    form->vyrazen = m_vyrazen->GetValue();
    form->datumvyrazeni = m_datumvyrazeni->GetValue();
    form->datumvyrazeniText = m_datumvyrazeni->text();
    const lxformat::Chyba chyba = m_cena->GetValue(&form->cena);
    if (chyba != lxformat::Chyba::ZADNA) {
        if (zprava) *zprava = m_cena->zprava(u8("Vstupní cena"));
        if (pole) *pole = m_cena;
        return false;
    }
    return true;
}

void MajetekDialog::updateVyrazeni() { m_datumvyrazeni->Enable(m_vyrazen->GetValue()); }

void MajetekDialog::updatePlan() {
    m_plan->DeleteAllItems();
    DbModel* model = DbModel::instance();
    MajetekForm form;
    if (!model || !model->isOpen() || !readForm(&form, nullptr, nullptr) || !form.porizen.IsValid()) return;
    const Odpiskupina skupina = form.skupinaid > 0 ? model->getOdpiskupina(form.skupinaid) : Odpiskupina();
    if (!skupina.isValid()) return;
    // The stored years count only while the asset keeps what they were computed from.
    std::map<int, double> ulozene;
    if (m_id > 0 && !zmeniOdpisy(model->getMajetek(m_id), form)) {
        for (const auto& o : model->odpisyMajetku(m_id, 9999)) ulozene[o->rok()] += o->odpis();
    }
    for (const odpisy::Rok& r : odpisy::plan(form.cena, form.odpis, skupina, form.porizen.GetYear(), ulozene)) {
        const long row = m_plan->InsertItem(m_plan->GetItemCount(), wxString::Format("%d", r.rok));
        m_plan->SetItem(row, 1, lxformat::formatCastka(r.odpis));
        m_plan->SetItem(row, 2, lxformat::formatCastka(r.zustatek));
        m_plan->SetItem(row, 3, r.ulozeny ? u8("uplatněno") : u8("plán"));
    }
}

bool MajetekDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    m_porizen->commitText();
    m_datumvyrazeni->commitText();
    MajetekForm form;
    wxString zprava;
    wxWindow* pole = nullptr;
    if (!readForm(&form, &zprava, &pole)) return !refused(zprava, pole);
    MajetekPole chybne = MajetekPole::ZADNE;
    zprava = majetekValidation(*model, form, m_id, &chybne);
    wxWindow* const fields[] = {nullptr, m_cislo, m_nazev, m_porizen, m_cena, m_skupina, m_datumvyrazeni};
    if (refused(zprava, fields[static_cast<int>(chybne)])) return false;
    if (m_id > 0 && zmeniOdpisy(model->getMajetek(m_id), form) && !model->odpisyMajetku(m_id, 9999).empty() &&
        !prompts().question(u8("Majetek byl změněn\nOdpisy budou spočítány znovu.\nPokračovat?"), u8("Dotaz"), this))
        return false;
    const int id = ulozitMajetek(*model, form, m_id);
    if (id <= 0) {
        prompts().info(u8("Majetek se nepodařilo uložit"), u8("Informace"), this);
        return false;
    }
    m_id = id;
    return true;
}
