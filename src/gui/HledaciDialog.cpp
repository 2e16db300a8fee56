#include "HledaciDialog.h"

#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "collation.h"
#include "okbuttons.h"

// The list reads its cells from the dialog's shown rows, so that thousands of rows cost
// nothing until they are on the screen.
class HledaciList : public wxListCtrl {
 public:
    explicit HledaciList(HledaciDialog* owner)
        : wxListCtrl(owner, wxID_ANY, wxDefaultPosition, wxSize(620, 360),
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL | wxLC_HRULES, wxDefaultValidator, "seznam"),
          m_owner(owner) {}

    wxString OnGetItemText(long item, long column) const override {
        if (item < 0 || item >= static_cast<long>(m_owner->m_shown.size())) return wxString();
        const wxArrayString& cells = m_owner->m_rows[m_owner->m_shown[item]];
        return column >= 0 && column < static_cast<long>(cells.size()) ? cells[column] : wxString();
    }

 private:
    HledaciDialog* m_owner;
};

HledaciDialog::HledaciDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns,
                             std::vector<wxArrayString> rows, int selected)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_rows(std::move(rows)) {
    m_folded.reserve(m_rows.size());
    for (const wxArrayString& cells : m_rows) {
        wxString all;
        for (const wxString& cell : cells) all += collation::searchFold(cell) + "\t";
        m_folded.push_back(all);
    }

    auto* search = new wxBoxSizer(wxHORIZONTAL);
    search->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8("Hledat")),
                wxSizerFlags().CentreVertical().Border(wxRIGHT, 8));
    m_hledat = new wxTextCtrl(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "hledat");
    search->Add(m_hledat, wxSizerFlags(1).CentreVertical());

    m_list = new HledaciList(this);
    for (size_t c = 0; c < columns.size(); ++c) {
        // The last column takes the width the first ones leave.
        m_list->AppendColumn(columns[c], wxLIST_FORMAT_LEFT, c + 1 < columns.size() ? 90 : 500);
    }

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(search, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, 10));
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return takeSelected(); });
    SetSizerAndFit(top);
    CentreOnParent();

    m_hledat->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { filter(m_hledat->GetValue()); });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) {
        if (takeSelected()) EndModal(wxID_OK);
    });
    filter(wxString());
    if (selected >= 0 && selected < static_cast<int>(m_rows.size())) {
        m_list->SetItemState(selected, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                             wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
        m_list->EnsureVisible(selected);
    }
    m_hledat->SetFocus();
}

HledaciDialog::~HledaciDialog() = default;

void HledaciDialog::filter(const wxString& text) {
    const wxString needle = collation::searchFold(text.Strip(wxString::both));
    m_shown.clear();
    for (size_t i = 0; i < m_rows.size(); ++i) {
        if (needle.empty() || m_folded[i].find(needle) != wxString::npos) m_shown.push_back(static_cast<int>(i));
    }
    m_list->SetItemCount(static_cast<long>(m_shown.size()));
    if (!m_shown.empty() && !needle.empty()) {
        m_list->SetItemState(0, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                             wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
        m_list->EnsureVisible(0);
    }
    m_list->Refresh();
}

int HledaciDialog::selectedRow() const {
    const long item = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return item >= 0 && item < static_cast<long>(m_shown.size()) ? m_shown[item] : -1;
}

bool HledaciDialog::takeSelected() {
    m_chosen = selectedRow();
    return m_chosen >= 0;
}
