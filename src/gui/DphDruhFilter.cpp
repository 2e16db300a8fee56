#include "DphDruhFilter.h"

#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "dbmodel.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The model gives "0" for classifications without a subject code and "Nepoužito" for those
// outside the control statement; the record holds both as empty.
const char* const KPP_NONE = "0";
const char* const KH_NONE = "Nepoužito";

wxString fromChoice(const wxString& value, const char* none) { return value == u8(none) ? wxString() : value; }

// Flags are offered as "Vše", then the caption of false, then of true.
std::optional<bool> readFlag(wxChoice* choice) {
    const int sel = choice->GetSelection();
    if (sel <= 0) return std::nullopt;
    return sel == 2;
}

int flagIndex(const std::optional<bool>& flag) { return flag ? (*flag ? 2 : 1) : 0; }

}  // namespace

DphDruhFilter::DphDruhFilter(wxWindow* parent, const DphDruhPodminky& podminky)
    : FormDialog(parent, u8("Filtr pro členění DPH")), m_podminky(podminky) {
    DbModel* model = DbModel::instance();
    if (model && model->isOpen()) {
        m_radkyValues = model->getDphDruhRadky();
        m_kppValues = model->getDphDruhKpp();
        m_khValues = model->getDphDruhKh();
    }
    m_zkratka = addTextCondition("Zkratka:", "zkratka", podminky.zkratka);
    m_popis = addTextCondition("Popis:", "popis", podminky.popis);
    m_plneni = addChoice("Plnění:", "plneni", {}, std::nullopt);
    m_plneni->Append(u8("Uskutečněné"));
    m_plneni->Append(u8("Přijaté"));
    m_plneni->SetSelection(flagIndex(podminky.plneni));
    m_radky = addChoice("Řádky v přiznání:", "radky", m_radkyValues, podminky.radky);

    wxArrayString kppShown;
    for (const wxString& kpp : m_kppValues) kppShown.Add(kpp == KPP_NONE ? u8("Prázdné") : kpp);
    for (wxString& kpp : m_kppValues) kpp = fromChoice(kpp, KPP_NONE);
    m_kpp = addChoice("Předmět plnění:", "kpp", m_kppValues, podminky.kpp, kppShown);
    const wxArrayString khShown = m_khValues;
    for (wxString& kh : m_khValues) kh = fromChoice(kh, KH_NONE);
    m_kh = addChoice("Oddíl v KH:", "kh", m_khValues, podminky.kh, khShown);

    m_nabizet = addChoice("Nabízet:", "nabizet", {}, std::nullopt);
    m_nabizet->Append("Ne");
    m_nabizet->Append("Ano");
    m_nabizet->SetSelection(flagIndex(podminky.nabizet));
    finish();
}

DphDruhFilter::TextField DphDruhFilter::addTextCondition(const char* label, const char* name,
                                                         const std::optional<TextPodminka>& podminka) {
    const wxString shodaName = wxString(name) + "shoda";
    TextField field;
    field.shoda = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0,
                               wxDefaultValidator, shodaName);
    field.shoda->Append("Rovno");
    field.shoda->Append("Obsahuje");
    field.shoda->SetSelection(podminka && podminka->shoda == TextPodminka::OBSAHUJE ? 1 : 0);
    field.text = new wxTextCtrl(this, wxID_ANY, podminka ? podminka->text : wxString(), wxDefaultPosition,
                                wxSize(240, -1), 0, wxDefaultValidator, name);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(field.shoda, wxSizerFlags().CentreVertical().Border(wxRIGHT, 4));
    row->Add(field.text, wxSizerFlags(1).CentreVertical());
    addField(label, row);
    return field;
}

wxChoice* DphDruhFilter::addChoice(const char* label, const char* name, const wxArrayString& values,
                                   const std::optional<wxString>& selected, const wxArrayString& shown) {
    auto* choice =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, name);
    choice->Append(u8("Vše"));
    choice->SetSelection(0);
    for (size_t i = 0; i < values.size(); ++i) {
        choice->Append(i < shown.size() ? shown[i] : values[i]);
        if (selected && *selected == values[i]) choice->SetSelection(static_cast<int>(i) + 1);
    }
    addField(label, choice);
    return choice;
}

std::optional<TextPodminka> DphDruhFilter::readText(const TextField& field) {
    const wxString text = field.text->GetValue().Strip(wxString::both);
    if (text.empty()) return std::nullopt;
    return TextPodminka{field.shoda->GetSelection() == 1 ? TextPodminka::OBSAHUJE : TextPodminka::ROVNO, text};
}

std::optional<wxString> DphDruhFilter::readChoice(wxChoice* choice, const wxArrayString& values) {
    const int sel = choice->GetSelection();
    if (sel <= 0 || sel > static_cast<int>(values.size())) return std::nullopt;
    return values[sel - 1];
}

bool DphDruhFilter::save() {
    m_podminky.zkratka = readText(m_zkratka);
    m_podminky.popis = readText(m_popis);
    m_podminky.plneni = readFlag(m_plneni);
    m_podminky.radky = readChoice(m_radky, m_radkyValues);
    m_podminky.kpp = readChoice(m_kpp, m_kppValues);
    m_podminky.kh = readChoice(m_kh, m_khValues);
    m_podminky.nabizet = readFlag(m_nabizet);
    return true;
}
