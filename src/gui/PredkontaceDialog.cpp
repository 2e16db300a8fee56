#include "PredkontaceDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "denikform.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

PredkontaceDialog::PredkontaceDialog(wxWindow* parent, int id) : FormDialog(parent, u8("Předkontace")), m_id(id) {
    m_zkratka = addText("Zkratka:", "zkratka", 120);
    m_popis = addText("Popis:", "popis", 320);
    m_prijem =
        new wxCheckBox(this, wxID_ANY, u8("Příjem"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "prijem");
    m_sloupec = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator,
                             "sloupec");
    addField("", m_prijem);
    addField("Sloupec deníku:", m_sloupec);

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

    finish();
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
    if (refused(zkratkaValidation(*model, Ciselnik::PREDKONTACE, zkratka, m_id), m_zkratka)) return false;
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
