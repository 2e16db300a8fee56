#include "skladchoices.h"

#include "dbmodel.h"

wxChoice* ocenovaniChoice(wxWindow* parent) {
    wxArrayString metody;
    metody.Add("FIFO");
    metody.Add(wxString::FromUTF8("Vážený aritmetický průměr"));
    return new wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, metody, 0, wxDefaultValidator,
                        "ocenovani");
}

SkladChoice::SkladChoice(wxWindow* parent)
    : wxChoice(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "sklad") {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return;
    for (const auto& s : model->sklady()) {
        Append(s->nazev());
        m_ids.push_back(s->id());
    }
    if (!m_ids.empty()) SetSelection(0);
}

void SkladChoice::select(int skladid) {
    for (size_t i = 0; i < m_ids.size(); ++i)
        if (m_ids[i] == skladid) SetSelection(static_cast<int>(i));
}

int SkladChoice::skladId() const {
    const int sel = GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_ids.size()) ? m_ids[sel] : -1;
}
