// Layout pieces the dialogs share: the columns of a report list, and a grid of labelled
// fields two to a row.
#pragma once

#include <initializer_list>

class wxFlexGridSizer;
class wxListCtrl;
class wxTextCtrl;
class wxWindow;

// A column of a report list: its Czech caption, width in pixels, and whether its values
// (amounts, quantities) are right aligned.
struct SloupecSeznamu {
    const char* nazev;
    int sirka;
    bool vpravo;
};
// Appends the columns to the list.
void pridatSloupce(wxListCtrl* list, std::initializer_list<SloupecSeznamu> sloupce);

// A grid of label and field pairs, two pairs a row, the fields growing with the dialog.
class MrizkaPoli {
 public:
    explicit MrizkaPoli(wxWindow* parent);
    // Adds the label ("Název:") and the field.
    void pole(const char* popisek, wxWindow* pole);
    // A one-line text field named `name` (the tests find it so) of the given width.
    wxTextCtrl* text(const char* name, int sirka);
    wxFlexGridSizer* sizer() const { return m_grid; }

 private:
    wxWindow* m_parent;
    wxFlexGridSizer* m_grid;
};
