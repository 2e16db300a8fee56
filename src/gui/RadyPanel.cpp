#include "RadyPanel.h"

#include <wx/menu.h>
#include <wx/sizer.h>

#include "RadaDialog.h"
#include "book/bookshapes.h"
#include "book/lxlistctrl.h"

RadyPanel::RadyPanel(wxWindow* parent)
    : wxPanel(parent, wxID_ANY), m_rows(std::make_unique<lxTableModel<Rada>>(bookshapes::rady())) {
    m_rows->reload();
    m_list = new lxListCtrl(this, m_rows.get());
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 6));
    SetSizer(sizer);

    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { editSelected(); });
    m_list->Bind(wxEVT_LIST_ITEM_RIGHT_CLICK, [this](wxListEvent& e) {
        m_list->selectId(m_rows->id(static_cast<size_t>(e.GetIndex())));
        e.Skip();
    });
    m_list->Bind(wxEVT_CONTEXT_MENU, [this](wxContextMenuEvent&) {
        wxMenu menu;
        menu.Append(wxID_EDIT, wxString::FromUTF8("Upravit řadu"));
        menu.Enable(wxID_EDIT, selectedRada().isValid());
        PopupMenu(&menu);
    });
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { editSelected(); }, wxID_EDIT);
}

RadyPanel::~RadyPanel() = default;

Rada RadyPanel::selectedRada() const {
    const long row = m_list->selectedRow();
    const Rada* rada = row >= 0 ? m_rows->row(static_cast<size_t>(row)) : nullptr;
    return rada ? *rada : Rada();
}

void RadyPanel::editSelected() {
    const Rada rada = selectedRada();
    if (!rada.isValid()) return;
    RadaDialog dialog(this, rada);
    if (dialog.ShowModal() == wxID_OK) refresh();
}

// Series rows are known by their place in the list: the selection stays at that place.
void RadyPanel::refresh() { m_list->reload(); }
