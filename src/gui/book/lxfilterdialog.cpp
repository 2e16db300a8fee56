#include "lxfilterdialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "prompts.h"

lxFilterDialog::lxFilterDialog(wxWindow* parent, const wxString& title, const lxFilter& filter, bool hasDate,
                               const wxArrayString& choices)
    : wxDialog(parent, wxID_ANY, title) {
    auto* fields = new wxFlexGridSizer(2, wxSize(8, 6));
    fields->AddGrowableCol(1);
    m_fields = fields;
    const auto label = [this, fields](const char* text) {
        fields->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(text)), wxSizerFlags().CentreVertical());
    };
    if (hasDate) {
        m_useOd = new wxCheckBox(this, wxID_ANY, wxString::FromUTF8("Od:"), wxDefaultPosition, wxDefaultSize, 0,
                                 wxDefaultValidator, "useOd");
        m_od = new lxDateCtrl(this, "od");
        m_useDo = new wxCheckBox(this, wxID_ANY, wxString::FromUTF8("Do:"), wxDefaultPosition, wxDefaultSize, 0,
                                 wxDefaultValidator, "useDo");
        m_do = new lxDateCtrl(this, "do");
        // A date typed without its year is a day of the accounting year; an unused field
        // offers the year's first and last day.
        DbModel* model = DbModel::instance();
        if (model && model->isOpen() && model->currentRok() > 0) {
            const int rok = model->currentRok();
            m_od->setRok(rok);
            m_do->setRok(rok);
            m_od->SetValue(wxDateTime(1, wxDateTime::Jan, rok));
            m_do->SetValue(wxDateTime(31, wxDateTime::Dec, rok));
        }
        fields->Add(m_useOd, wxSizerFlags().CentreVertical());
        fields->Add(m_od, wxSizerFlags().Expand());
        fields->Add(m_useDo, wxSizerFlags().CentreVertical());
        fields->Add(m_do, wxSizerFlags().Expand());
        m_useOd->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { updateDates(); });
        m_useDo->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { updateDates(); });
    }
    label("Obsahuje text:");
    m_text =
        new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(240, -1), 0, wxDefaultValidator, "text");
    fields->Add(m_text, wxSizerFlags().Expand());
    if (!choices.empty()) {
        label("Zobrazit:");
        wxArrayString items;
        items.Add(wxString::FromUTF8("Vše"));
        for (const wxString& choice : choices) items.Add(choice);
        m_choice =
            new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, items, 0, wxDefaultValidator, "choice");
        fields->Add(m_choice, wxSizerFlags().Expand());
    }

    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(new wxButton(this, wxID_RESET, wxString::FromUTF8("&Zrušit filtr")));
    buttons->AddStretchSpacer();
    buttons->Add(new wxButton(this, wxID_OK, "OK"), wxSizerFlags().Border(wxRIGHT, 6));
    buttons->Add(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Zrušit")));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(fields, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);

    Bind(wxEVT_BUTTON, &lxFilterDialog::onOk, this, wxID_OK);
    Bind(wxEVT_BUTTON, &lxFilterDialog::onClear, this, wxID_RESET);
    setFilter(filter);
    m_text->SetFocus();
}

lxFilter lxFilterDialog::filter() const {
    lxFilter f;
    if (m_od && m_useOd->GetValue()) f.od = m_od->GetValue();
    if (m_do && m_useDo->GetValue()) f.doDne = m_do->GetValue();
    f.text = m_text->GetValue().Strip(wxString::both);
    f.choice = m_choice ? std::max(0, m_choice->GetSelection()) : 0;
    return f;
}

void lxFilterDialog::setFilter(const lxFilter& filter) {
    if (m_od) {
        m_useOd->SetValue(filter.od.IsValid());
        m_useDo->SetValue(filter.doDne.IsValid());
        if (filter.od.IsValid()) m_od->SetValue(filter.od);
        if (filter.doDne.IsValid()) m_do->SetValue(filter.doDne);
        updateDates();
    }
    m_text->SetValue(filter.text);
    if (m_choice)
        m_choice->SetSelection(
            filter.choice >= 0 && filter.choice < static_cast<int>(m_choice->GetCount()) ? filter.choice : 0);
}

lxDateCtrl* lxFilterDialog::invalidDate() const {
    if (m_od && m_useOd->GetValue() && !m_od->GetValue().IsValid()) return m_od;
    if (m_do && m_useDo->GetValue() && !m_do->GetValue().IsValid()) return m_do;
    return nullptr;
}

wxString lxFilterDialog::validate() const {
    if (lxDateCtrl* datum = invalidDate())
        return lxformat::datumZprava(wxString::FromUTF8(datum == m_od ? "Od" : "Do"), datum->text());
    const lxFilter f = filter();
    if (f.od.IsValid() && f.doDne.IsValid() && f.od.IsLaterThan(f.doDne))
        return wxString::FromUTF8("Datum od nemůže být pozdější než datum do");
    return wxString();
}

void lxFilterDialog::updateDates() {
    m_od->Enable(m_useOd->GetValue());
    m_do->Enable(m_useDo->GetValue());
}

void lxFilterDialog::onOk(wxCommandEvent&) {
    const wxString error = validate();
    if (!error.empty()) {
        prompts().info(error, wxString::FromUTF8("Informace"), this);
        if (lxDateCtrl* datum = invalidDate()) datum->focusText();
        return;
    }
    EndModal(wxID_OK);
}

void lxFilterDialog::onClear(wxCommandEvent&) {
    setFilter(lxFilter());
    EndModal(wxID_OK);
}
