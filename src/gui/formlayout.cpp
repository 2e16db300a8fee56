#include "formlayout.h"

#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

void pridatSloupce(wxListCtrl* list, std::initializer_list<SloupecSeznamu> sloupce) {
    for (const SloupecSeznamu& s : sloupce)
        list->AppendColumn(wxString::FromUTF8(s.nazev), s.vpravo ? wxLIST_FORMAT_RIGHT : wxLIST_FORMAT_LEFT, s.sirka);
}

MrizkaPoli::MrizkaPoli(wxWindow* parent) : m_parent(parent), m_grid(new wxFlexGridSizer(4, wxSize(8, 6))) {
    m_grid->AddGrowableCol(1);
    m_grid->AddGrowableCol(3);
}

void MrizkaPoli::pole(const char* popisek, wxWindow* pole) {
    m_grid->Add(new wxStaticText(m_parent, wxID_ANY, wxString::FromUTF8(popisek)), wxSizerFlags().CentreVertical());
    m_grid->Add(pole, wxSizerFlags().Expand());
}

wxTextCtrl* MrizkaPoli::text(const char* name, int sirka) {
    return new wxTextCtrl(m_parent, wxID_ANY, wxString(), wxDefaultPosition, wxSize(sirka, -1), 0, wxDefaultValidator,
                          name);
}
