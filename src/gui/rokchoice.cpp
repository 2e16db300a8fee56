#include "rokchoice.h"

#include <wx/choice.h>

#include "dbmodel.h"

wxChoice* rokChoice(wxWindow* parent) {
    DbModel* model = DbModel::instance();
    const bool open = model && model->isOpen();
    const wxArrayString roky = open ? model->getObdobiAsStrings(0) : wxArrayString();
    auto* choice = new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, roky, 0, wxDefaultValidator, "rok");
    const int current = open ? roky.Index(wxString::Format("%d", model->currentRok())) : wxNOT_FOUND;
    choice->SetSelection(current != wxNOT_FOUND ? current : (roky.empty() ? wxNOT_FOUND : 0));
    return choice;
}

int vybranyRok(const wxChoice* choice) {
    long rok = 0;
    const int sel = choice->GetSelection();
    if (sel == wxNOT_FOUND || !choice->GetString(sel).ToLong(&rok)) return 0;
    return static_cast<int>(rok);
}
