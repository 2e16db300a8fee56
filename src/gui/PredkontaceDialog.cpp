#include "PredkontaceDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

PredkontaceDialog::PredkontaceDialog(wxWindow* parent, int id)
    : wxDialog(parent, wxID_ANY, u8("Předkontace")), m_id(id) {
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto add = [&](const char* label, wxWindow* control) {
        grid->Add(new wxStaticText(this, wxID_ANY, u8(label)), wxSizerFlags().CentreVertical());
        grid->Add(control, wxSizerFlags().Expand());
    };
    m_zkratka =
        new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(120, -1), 0, wxDefaultValidator, "zkratka");
    m_popis = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxSize(320, -1), 0, wxDefaultValidator, "popis");
    m_prijem =
        new wxCheckBox(this, wxID_ANY, u8("Příjem"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "prijem");
    m_sloupec = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator,
                             "sloupec");
    add("Zkratka:", m_zkratka);
    add("Popis:", m_popis);
    add("", m_prijem);
    add("Sloupec deníku:", m_sloupec);

    DbModel* model = DbModel::instance();
    Predkontace predkontace;
    if (model && model->isOpen() && id > 0) predkontace = model->getPredkontace(id);
    if (predkontace.isValid()) {
        m_zkratka->ChangeValue(predkontace.zkratka());
        m_popis->ChangeValue(predkontace.popis());
        m_prijem->SetValue(predkontace.prijem());
    } else {
        m_prijem->SetValue(true);
    }
    fillSloupce(predkontace.isValid() ? predkontace.deniksloupecid() : -1);

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
    m_prijem->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) { fillSloupce(-1); });
}

void PredkontaceDialog::fillSloupce(int selected) {
    m_sloupec->Clear();
    m_sloupce.clear();
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return;
    for (const auto& s : m_prijem->GetValue() ? model->deniksloupcePrijem() : model->deniksloupceVydaj()) {
        m_sloupec->Append(s->popis());
        m_sloupce.push_back(s->sloupec());
        if (s->sloupec() == selected) m_sloupec->SetSelection(m_sloupec->GetCount() - 1);
    }
    if (m_sloupec->GetSelection() < 0 && m_sloupec->GetCount() > 0) m_sloupec->SetSelection(0);
}

bool PredkontaceDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    const wxString zkratka = m_zkratka->GetValue().Strip(wxString::both);
    const wxString chyba = zkratkaValidation(*model, Ciselnik::PREDKONTACE, zkratka, m_id);
    if (!chyba.empty()) {
        prompts().info(chyba, wxString(), this);
        m_zkratka->SetFocus();
        return false;
    }
    const int sel = m_sloupec->GetSelection();
    const int sloupec = sel >= 0 && sel < static_cast<int>(m_sloupce.size()) ? m_sloupce[sel] : -1;
    const bool novy = m_id <= 0;
    const int id = novy ? model->getLastId("predkontace") : m_id;
    const Predkontace predkontace(id, zkratka, m_popis->GetValue().Strip(wxString::both), m_prijem->GetValue(),
                                  sloupec);
    if (!(novy ? model->addPredkontace(predkontace) : model->editPredkontace(predkontace))) return false;
    m_id = id;
    return true;
}
