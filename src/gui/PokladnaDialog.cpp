#include "PokladnaDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"
#include "prompts.h"

PokladnaDialog::PokladnaDialog(wxWindow* parent, int id, int vzor) : wxDialog(parent, wxID_ANY, "Pokladna"), m_id(id) {
    DbModel* model = DbModel::instance();
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto add = [&](const char* label, wxWindow* control) {
        grid->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(label)), wxSizerFlags().CentreVertical());
        grid->Add(control, wxSizerFlags().Expand());
    };
    m_zkratka =
        new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(120, -1), 0, wxDefaultValidator, "zkratka");
    m_popis = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(280, -1), 0, wxDefaultValidator, "popis");
    m_mena =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "mena");
    add("Zkratka:", m_zkratka);
    add("Popis:", m_popis);
    add("Měna:", m_mena);

    Pokladna pokladna;
    if (model && model->isOpen()) {
        if (id > 0 || vzor > 0) pokladna = model->getPokladna(id > 0 ? id : vzor);
        for (const auto& mena : model->meny()) {
            m_mena->Append(mena->kod());
            m_menaIds.push_back(mena->id());
            if (mena->id() == (pokladna.isValid() ? pokladna.menaid() : 1))
                m_mena->SetSelection(m_mena->GetCount() - 1);
        }
    }
    if (pokladna.isValid()) {
        if (id > 0) m_zkratka->ChangeValue(pokladna.zkratka());
        m_popis->ChangeValue(pokladna.popis());
    }

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(CreateStdDialogButtonSizer(wxOK | wxCANCEL), wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);
    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);
}

bool PokladnaDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString zkratka = m_zkratka->GetValue().Strip(wxString::both);
    const wxString chyba = zkratkaValidation(*model, Ciselnik::POKLADNA, zkratka, m_id);
    if (!chyba.empty()) {
        prompts().info(chyba, wxString(), this);
        m_zkratka->SetFocus();
        return false;
    }
    const int sel = m_mena->GetSelection();
    const int menaid = sel >= 0 && sel < static_cast<int>(m_menaIds.size()) ? m_menaIds[sel] : 1;
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("pokladna") : m_id;
    const Pokladna pokladna(id, zkratka, m_popis->GetValue().Strip(wxString::both), menaid);
    if (!(novy ? model->addPokladna(pokladna) : model->editPokladna(pokladna))) return false;
    m_id = id;
    return true;
}
