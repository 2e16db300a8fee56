#include "Dphkh1VetaDialog.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <string>

#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dph/dic.h"
#include "lxformat.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

using kh1pole::Druh;
using kh1pole::Pole;

// An entry with `sekce` applies only to that section; the first entry that applies wins.
struct PoleSekce {
    const char* sekce;
    Pole pole;
};

const std::vector<PoleSekce>& tabulka() {
    static const char* const PRAZDNE_CISLO = "Ev. číslo daňového dokladu nemůže být prázdné";
    static const std::vector<kh1pole::Volba> ZDPH44 = {{"N", "N – nejde o opravu"},
                                                       {"P", "P – oprava u nedobytné pohledávky"},
                                                       {"A", "A – oprava podle § 44 ve znění do 31.3.2019"}};
    static const std::vector<PoleSekce> t = {
        {nullptr, {"dic_odb", "DIČ odběratele", Druh::DIC, "DIČ odběratele nemůže být prázdné", {}, 140}},
        {nullptr, {"dic_dod", "DIČ dodavatele", Druh::DIC, "DIČ dodavatele nemůže být prázdné", {}, 140}},
        {"A2", {"k_stat", "Kód státu", Druh::TEXT, "Kód státu nemůže být prázdný", {}, 50}},
        {nullptr, {"k_stat", "Kód státu", Druh::TEXT, nullptr, {}, 50}},
        {nullptr,
         {"vatid_dod",
          "Identifikace dodavatele (VAT ID)",
          Druh::TEXT,
          "Identifikace dodavatele (VAT ID) nemůže být prázdná",
          {},
          160}},
        {nullptr, {"vatid_odb", "Identifikace odběratele (VAT ID)", Druh::TEXT, nullptr, {}, 160}},
        {nullptr, {"jm_prijm_obch", "Jméno a příjmení / obchodní firma", Druh::TEXT, nullptr, {}, 260}},
        {nullptr, {"d_narozeni", "Datum narození", Druh::DATUM0, nullptr, {}, 0}},
        {nullptr, {"m_pobytu_sidlo", "Místo pobytu / sídlo", Druh::TEXT, nullptr, {}, 260}},
        {nullptr, {"c_evid_dd", "Ev. číslo daňového dokladu", Druh::TEXT, PRAZDNE_CISLO, {}, 200}},
        {nullptr, {"duzp", "DUZP", Druh::DATUM, nullptr, {}, 0}},
        {nullptr, {"dppd", "DPPD", Druh::DATUM, nullptr, {}, 0}},
        {nullptr, {"dup", "Datum plnění", Druh::DATUM, nullptr, {}, 0}},
        {nullptr, {"zakl_dane1", "Základ daně 1", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"dan1", "Daň 1", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"zakl_dane2", "Základ daně 2", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"dan2", "Daň 2", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"zakl_dane3", "Základ daně 3", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"dan3", "Daň 3", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"osv_plneni", "Hodnota osvobozeného plnění", Druh::CASTKA, nullptr, {}, 0}},
        {nullptr, {"kod_pred_pl", "Kód předmětu plnění", Druh::TEXT, nullptr, {}, 60}},
        {nullptr,
         {"kod_rezim_pl",
          "Kód režimu plnění",
          Druh::VOLBA,
          nullptr,
          {{"0", "0 – běžné plnění"}, {"1", "1 – plnění podle § 89"}, {"2", "2 – plnění podle § 90"}},
          0}},
        {nullptr, {"zdph_44", "§ 44 ZDPH", Druh::VOLBA, nullptr, ZDPH44, 0}},
        {nullptr, {"pomer", "Použit poměr", Druh::VOLBA, nullptr, {{"N", "N – ne"}, {"A", "A – ano"}}, 0}},
    };
    return t;
}

const Pole* najdi(const wxString& atribut, kh1::Sekce s) {
    const wxString kod = kh1::kod(s);
    for (const PoleSekce& p : tabulka()) {
        if (atribut == p.pole.atribut && (!p.sekce || kod == p.sekce)) return &p.pole;
    }
    return nullptr;
}

}  // namespace

namespace kh1pole {

std::vector<const Pole*> polozky(const Dphkh1& p, kh1::Sekce s) {
    std::vector<const Pole*> result;
    for (const wxString& atribut : p.atributy(kh1::vetaName(s))) {
        if (const Pole* pole = najdi(atribut, s)) result.push_back(pole);
    }
    return result;
}

wxString text(const Dphkh1& p, kh1::Sekce s, const Pole& pole, int index) {
    const wxString veta = kh1::vetaName(s);
    const wxString value = p.atributValue(veta, pole.atribut, index);
    if (value.empty()) return value;
    switch (pole.druh) {
        case Druh::CASTKA:
            return lxformat::formatCastka(p.castka(veta, pole.atribut, index));
        case Druh::DATUM:
        case Druh::DATUM0:
            return lxformat::formatDatum(p.atributValueDatum(veta, pole.atribut, index));
        case Druh::DIC:
            return "CZ" + value;
        default:
            return value;
    }
}

}  // namespace kh1pole

Dphkh1VetaDialog::Dphkh1VetaDialog(wxWindow* parent, Dphkh1& p, kh1::Sekce s, int index)
    : FormDialog(parent, wxString::Format(u8(index < 0 ? "Přidat řádek %s" : "Upravit řádek %s"), kh1::kod(s))),
      m_p(p),
      m_sekce(s),
      m_index(index) {
    const wxString veta = kh1::vetaName(s);
    const wxDateTime od = p.atributValueDatum("VetaD", "zdobd_od");
    for (const Pole* pole : kh1pole::polozky(p, s)) {
        const std::string label = std::string(pole->popis) + ":";
        const wxString hodnota = index >= 0 ? p.atributValue(veta, pole->atribut, index) : wxString();
        wxWindow* ctrl = nullptr;
        switch (pole->druh) {
            case Druh::TEXT:
            case Druh::DIC: {
                auto* text = new wxTextCtrl(this, wxID_ANY, hodnota, wxDefaultPosition, wxSize(pole->sirka, -1), 0,
                                            wxDefaultValidator, pole->atribut);
                if (pole->druh == Druh::TEXT) {
                    addField(label.c_str(), text);
                } else {
                    // The counterparty's DIČ is Czech: its prefix stands fixed before the number.
                    auto* row = new wxBoxSizer(wxHORIZONTAL);
                    row->Add(new wxStaticText(this, wxID_ANY, "CZ"),
                             wxSizerFlags().CentreVertical().Border(wxRIGHT, 4));
                    row->Add(text, wxSizerFlags().CentreVertical());
                    addField(label.c_str(), row);
                }
                ctrl = text;
                break;
            }
            case Druh::DATUM:
            case Druh::DATUM0: {
                auto* datum = new lxDateCtrl(
                    this, pole->atribut, index >= 0 ? p.atributValueDatum(veta, pole->atribut, index) : wxDateTime());
                if (od.IsValid()) datum->setRok(od.GetYear());
                auto* row = new wxBoxSizer(wxHORIZONTAL);
                row->Add(datum);
                addField(label.c_str(), row);
                ctrl = datum;
                break;
            }
            case Druh::CASTKA: {
                auto* castka = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, pole->atribut);
                if (!hodnota.empty()) castka->SetValue(p.castka(veta, pole->atribut, index));
                auto* row = new wxBoxSizer(wxHORIZONTAL);
                row->Add(castka);
                addField(label.c_str(), row);
                ctrl = castka;
                break;
            }
            case Druh::VOLBA: {
                auto* volba = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, 0,
                                           wxDefaultValidator, pole->atribut);
                volba->SetSelection(-1);
                for (size_t i = 0; i < pole->volby.size(); ++i) {
                    volba->Append(u8(pole->volby[i].text));
                    if (hodnota == pole->volby[i].kod) volba->SetSelection(static_cast<int>(i));
                }
                if (volba->GetSelection() < 0) volba->SetSelection(0);
                auto* row = new wxBoxSizer(wxHORIZONTAL);
                row->Add(volba);
                addField(label.c_str(), row);
                ctrl = volba;
                break;
            }
        }
        m_vstupy.push_back({pole, ctrl});
    }
    finish();
}

bool Dphkh1VetaDialog::odmitnout(const wxString& zprava, wxWindow* ctrl) {
    prompts().info(zprava, u8("Informace"), this);
    if (auto* datum = dynamic_cast<lxDateCtrl*>(ctrl)) {
        datum->focusText();
    } else {
        ctrl->SetFocus();
        if (auto* text = dynamic_cast<wxTextCtrl*>(ctrl)) text->SelectAll();
    }
    return false;
}

bool Dphkh1VetaDialog::precist(const Vstup& v, wxString* text, double* castka, bool* jeCastka) {
    const Pole& pole = *v.pole;
    *jeCastka = false;
    switch (pole.druh) {
        case Druh::TEXT:
        case Druh::DIC: {
            *text = static_cast<wxTextCtrl*>(v.ctrl)->GetValue().Strip(wxString::both);
            if (pole.druh == Druh::DIC && !text->empty()) {
                // "CZ 123 456 78" pasted whole is the same number.
                const RozdelenaDic d = dic::rozdel(*text);
                if (d.stat == "CZ") *text = d.cislo;
            } else if (wxString(pole.atribut) == "k_stat") {
                *text = text->Upper();
            }
            if (text->empty() && pole.prazdne) return odmitnout(u8(pole.prazdne), v.ctrl);
            return true;
        }
        case Druh::DATUM:
        case Druh::DATUM0: {
            auto* datum = static_cast<lxDateCtrl*>(v.ctrl);
            datum->commitText();
            const wxDateTime d = datum->GetValue();
            if (d.IsValid()) {
                *text = vetaformat::datum(d);
                return true;
            }
            text->clear();
            if (pole.druh == Druh::DATUM0 && datum->text().Strip(wxString::both).empty()) return true;
            return odmitnout(lxformat::datumZprava(u8(pole.popis), datum->text()), datum);
        }
        case Druh::CASTKA: {
            auto* pole_ = static_cast<lxAmountCtrl*>(v.ctrl);
            text->clear();
            if (pole_->GetValue().Strip(wxString::both).empty()) return true;  // left empty
            if (pole_->GetValue(castka) != lxformat::Chyba::ZADNA)
                return odmitnout(pole_->zprava(u8(pole.popis)), pole_);
            *jeCastka = true;
            return true;
        }
        case Druh::VOLBA: {
            const int i = static_cast<wxChoice*>(v.ctrl)->GetSelection();
            *text = i >= 0 && i < static_cast<int>(pole.volby.size()) ? pole.volby[static_cast<size_t>(i)].kod : "";
            return true;
        }
    }
    return true;
}

bool Dphkh1VetaDialog::save() {
    struct Hodnota {
        wxString text;
        double castka = 0;
        bool jeCastka = false;
    };
    // Every field is read before anything is written, so a refusal leaves the row as it was.
    std::vector<Hodnota> hodnoty(m_vstupy.size());
    for (size_t i = 0; i < m_vstupy.size(); ++i) {
        if (!precist(m_vstupy[i], &hodnoty[i].text, &hodnoty[i].castka, &hodnoty[i].jeCastka)) return false;
    }
    const wxString veta = kh1::vetaName(m_sekce);
    int index = m_index;
    if (index < 0) {
        index = m_p.addVeta(veta);
        m_p.setAtributValue(veta, "c_radku", m_p.pocetVet(veta), index);
    }
    for (size_t i = 0; i < m_vstupy.size(); ++i) {
        const char* atribut = m_vstupy[i].pole->atribut;
        if (hodnoty[i].jeCastka)
            m_p.setCastka(veta, atribut, hodnoty[i].castka, index);
        else
            m_p.setAtributValue(veta, atribut, hodnoty[i].text, index);
    }
    if (m_sekce == kh1::Sekce::A4 || m_sekce == kh1::Sekce::B2)
        m_p.fixVetaA4B2(veta, index, m_p.atributValueDatum("VetaD", "zdobd_od"));
    m_index = index;
    return true;
}
