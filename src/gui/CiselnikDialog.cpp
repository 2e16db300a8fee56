#include "CiselnikDialog.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/sizer.h>

namespace {

enum Command { ADD = 0, EDIT, COPY, DELETE, CHOOSE };

}  // namespace

CiselnikDialog::CiselnikDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns,
                               const wxArrayString& menu, bool chooser)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_chooser(chooser),
      m_menu(menu) {
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(560, 300), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "seznam");
    for (size_t c = 0; c < columns.size(); ++c)
        m_list->AppendColumn(columns[c], wxLIST_FORMAT_LEFT, c == 1 ? 220 : 100);

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    const char* captions[] = {"Přidat", "Upravit", "Kopírovat", "Smazat", "&Vybrat"};
    for (int command = ADD; command <= CHOOSE; ++command) {
        if (command == CHOOSE && !chooser) break;
        auto* button = new wxButton(this, wxID_ANY, wxString::FromUTF8(captions[command]));
        button->Bind(wxEVT_BUTTON, [this, command](wxCommandEvent&) { run(command); });
        buttons->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, 4));
        if (command != ADD) m_needSelection.push_back(button);
    }
    buttons->AddStretchSpacer();
    buttons->Add(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Zavřít")), wxSizerFlags().Expand());

    auto* top = new wxBoxSizer(wxHORIZONTAL);
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM | wxRIGHT, 10));
    SetSizerAndFit(top);

    m_list->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { run(m_chooser ? CHOOSE : EDIT); });
    m_list->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        wxMenu menu;
        for (int command = ADD; command <= DELETE; ++command) {
            menu.Append(wxID_HIGHEST + 1 + command, m_menu[command]);
            if (command != ADD) menu.Enable(wxID_HIGHEST + 1 + command, selectedId() >= 0);
        }
        const int chosen = GetPopupMenuSelectionFromUser(menu);
        if (chosen != wxID_NONE) run(chosen - wxID_HIGHEST - 1);
    });
}

int CiselnikDialog::selectedId() const {
    const long item = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item >= 0 && item < static_cast<long>(m_ids.size()) ? m_ids[item] : -1;
}

void CiselnikDialog::selectId(int id) {
    for (size_t i = 0; i < m_ids.size(); ++i)
        if (m_ids[i] == id) m_list->SetItemState(static_cast<long>(i), wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    updateButtons();
}

void CiselnikDialog::refresh() {
    const int selected = selectedId();
    m_list->DeleteAllItems();
    m_ids.clear();
    for (const Row& row : rows()) {
        const long item = m_list->InsertItem(m_list->GetItemCount(), row.cells.empty() ? wxString() : row.cells[0]);
        for (size_t c = 1; c < row.cells.size(); ++c) m_list->SetItem(item, static_cast<int>(c), row.cells[c]);
        m_ids.push_back(row.id);
    }
    selectId(selected);
}

void CiselnikDialog::updateButtons() {
    const bool selected = selectedId() >= 0;
    for (wxButton* button : m_needSelection) button->Enable(selected);
}

void CiselnikDialog::run(int command) {
    const int id = selectedId();
    if (command != ADD && id < 0) return;
    switch (command) {
        case ADD:
            addRow();
            break;
        case EDIT:
            editRow(id);
            break;
        case COPY:
            copyRow(id);
            break;
        case DELETE:
            deleteRow(id);
            break;
        case CHOOSE:
            m_chosen = id;
            EndModal(wxID_OK);
            return;
        default:
            return;
    }
    refresh();
}
