#include "SeznamDialog.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/menu.h>
#include <wx/sizer.h>

#include "dbmodel.h"

SeznamDialog::SeznamDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns,
                           std::vector<Command> commands, bool chooser)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_commands(std::move(commands)) {
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(560, 300), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "seznam");
    for (size_t c = 0; c < columns.size(); ++c)
        m_list->AppendColumn(columns[c], wxLIST_FORMAT_LEFT, c == 1 ? 220 : 100);

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    auto addButton = [&](const wxString& caption, bool needsRow, std::function<void()> action) {
        auto* button = new wxButton(this, wxID_ANY, caption);
        button->Bind(wxEVT_BUTTON, [action](wxCommandEvent&) { action(); });
        buttons->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, 4));
        if (needsRow) m_needSelection.push_back(button);
    };
    for (size_t c = 0; c < m_commands.size(); ++c) {
        if (!m_commands[c].button.empty()) addButton(m_commands[c].button, m_commands[c].needsRow, [this, c] { run(c); });
    }
    if (chooser) addButton(wxString::FromUTF8("&Vybrat"), true, [this] { choose(); });
    buttons->AddStretchSpacer();
    buttons->Add(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Zavřít")), wxSizerFlags().Expand());

    auto* top = new wxBoxSizer(wxHORIZONTAL);
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxTOP | wxBOTTOM | wxRIGHT, 10));
    SetSizerAndFit(top);

    m_list->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this, chooser](wxListEvent&) {
        if (chooser) return choose();
        for (size_t c = 0; c < m_commands.size(); ++c)
            if (m_commands[c].onDoubleClick) return run(c);
    });
    m_list->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        const int id = selectedId();
        wxMenu menu;
        for (size_t c = 0; c < m_commands.size(); ++c) {
            if (!m_commands[c].menu) continue;
            const int item = wxID_HIGHEST + 1 + static_cast<int>(c);
            menu.Append(item, m_commands[c].menu(id));
            if (m_commands[c].needsRow) menu.Enable(item, id >= 0);
        }
        if (menu.GetMenuItemCount() == 0) return;
        const int chosen = GetPopupMenuSelectionFromUser(menu);
        if (chosen != wxID_NONE) run(static_cast<size_t>(chosen - wxID_HIGHEST - 1));
    });
}

DbModel* SeznamDialog::openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxArrayString SeznamDialog::strings(std::initializer_list<const char*> texts) {
    wxArrayString all;
    for (const char* t : texts) all.Add(wxString::FromUTF8(t));
    return all;
}

int SeznamDialog::selectedId() const {
    const long item = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item >= 0 && item < static_cast<long>(m_ids.size()) ? m_ids[item] : -1;
}

void SeznamDialog::selectId(int id) {
    for (size_t i = 0; i < m_ids.size(); ++i)
        if (m_ids[i] == id) m_list->SetItemState(static_cast<long>(i), wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    updateButtons();
}

void SeznamDialog::refresh() {
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

void SeznamDialog::updateButtons() {
    const bool selected = selectedId() >= 0;
    for (wxButton* button : m_needSelection) button->Enable(selected);
}

void SeznamDialog::run(size_t command) {
    if (command >= m_commands.size()) return;
    const int id = selectedId();
    if (m_commands[command].needsRow && id < 0) return;
    m_commands[command].run(id);
    refresh();
}

void SeznamDialog::choose() {
    const int id = selectedId();
    if (id < 0) return;
    m_chosen = id;
    EndModal(wxID_OK);
}
