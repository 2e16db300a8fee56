#include "OkecDialog.h"

namespace {

std::vector<wxArrayString> cells(const std::vector<lxutils::Okec>& list) {
    std::vector<wxArrayString> rows;
    rows.reserve(list.size());
    for (const lxutils::Okec& okec : list) {
        wxArrayString row;
        row.Add(wxString::Format("%d", okec.c_nace));
        row.Add(okec.naz_nace);
        rows.push_back(row);
    }
    return rows;
}

int indexOf(const std::vector<lxutils::Okec>& list, int c_okec) {
    for (size_t i = 0; i < list.size(); ++i) {
        if (list[i].c_nace == c_okec) return static_cast<int>(i);
    }
    return -1;
}

wxArrayString columns() {
    wxArrayString c;
    c.Add("NACE");
    c.Add(wxString::FromUTF8("Činnost"));
    return c;
}

}  // namespace

OkecDialog::OkecDialog(wxWindow* parent, int c_okec) : OkecDialog(parent, c_okec, lxutils::readOkec()) {}

OkecDialog::OkecDialog(wxWindow* parent, int c_okec, const std::vector<lxutils::Okec>& list)
    : HledaciDialog(parent, wxString::FromUTF8("Hlavní ekonomická činnost"), columns(), cells(list),
                    indexOf(list, c_okec)),
      m_okec(list) {}

int OkecDialog::chosenOkec() const {
    const int i = chosen();
    return i >= 0 && i < static_cast<int>(m_okec.size()) ? m_okec[i].c_nace : 0;
}

wxString OkecDialog::chosenNazev() const {
    const int i = chosen();
    return i >= 0 && i < static_cast<int>(m_okec.size()) ? m_okec[i].naz_nace : wxString();
}
