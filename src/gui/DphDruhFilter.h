// "Filtr pro členění DPH": the conditions the classification list shows its rows by. Each
// choice starts with "Vše", which sets no condition; an empty text sets none either.
#pragma once

#include "FormDialog.h"
#include "dph/dphdruhfilter.h"

class wxChoice;

class DphDruhFilter : public FormDialog {
 public:
    // Opens with the conditions in force.
    DphDruhFilter(wxWindow* parent, const DphDruhPodminky& podminky);
    // OK: takes the conditions from the fields.
    bool save() override;
    const DphDruhPodminky& podminky() const { return m_podminky; }

 private:
    struct TextField {
        wxChoice* shoda;
        wxTextCtrl* text;
    };
    TextField addTextCondition(const char* label, const char* name, const std::optional<TextPodminka>& podminka);
    // A choice of "Vše" and the values; `shown` gives each value's caption when it differs.
    wxChoice* addChoice(const char* label, const char* name, const wxArrayString& values,
                        const std::optional<wxString>& selected, const wxArrayString& shown = {});
    static std::optional<TextPodminka> readText(const TextField& field);
    // The chosen value, none for "Vše".
    static std::optional<wxString> readChoice(wxChoice* choice, const wxArrayString& values);

    DphDruhPodminky m_podminky;
    TextField m_zkratka{}, m_popis{};
    wxChoice* m_plneni = nullptr;
    wxChoice* m_radky = nullptr;
    wxChoice* m_kpp = nullptr;
    wxChoice* m_kh = nullptr;
    wxChoice* m_nabizet = nullptr;
    wxArrayString m_radkyValues, m_kppValues, m_khValues;
};
