#include "FormDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "okbuttons.h"
#include "prompts.h"

FormDialog::FormDialog(wxWindow* parent, const wxString& title) : wxDialog(parent, wxID_ANY, title) {
    m_grid = new wxFlexGridSizer(2, wxSize(8, 6));
    m_grid->AddGrowableCol(1);
}

void FormDialog::addField(const char* label, wxWindow* control, wxWindow* button) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(control, wxSizerFlags(1).CentreVertical());
    if (button) row->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    addField(label, row);
}

void FormDialog::addField(const char* label, wxSizer* row) {
    m_grid->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(label)), wxSizerFlags().CentreVertical());
    m_grid->Add(row, wxSizerFlags().Expand());
}

wxTextCtrl* FormDialog::addText(const char* label, const char* name, int width, wxWindow* button) {
    auto* text = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(width, -1), 0, wxDefaultValidator, name);
    addField(label, text, button);
    return text;
}

void FormDialog::addMena(int menaid) {
    m_mena =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "mena");
    DbModel* model = DbModel::instance();
    if (model && model->isOpen()) {
        for (const auto& mena : model->meny()) {
            m_mena->Append(mena->kod());
            m_menaIds.push_back(mena->id());
            if (mena->id() == menaid) m_mena->SetSelection(m_mena->GetCount() - 1);
        }
    }
    addField("Měna:", m_mena);
}

int FormDialog::menaId() const {
    const int sel = m_mena ? m_mena->GetSelection() : -1;
    return sel >= 0 && sel < static_cast<int>(m_menaIds.size()) ? m_menaIds[sel] : 1;
}

void FormDialog::finish(wxWindow* below) {
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(m_grid, wxSizerFlags(below ? 0 : 1).Expand().Border(wxALL, 10));
    if (below) top->Add(below, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
}

bool FormDialog::refused(const wxString& chyba, wxWindow* field) {
    if (chyba.empty()) return false;
    prompts().info(chyba, wxString(), this);
    if (field) field->SetFocus();
    return true;
}
