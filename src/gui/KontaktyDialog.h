// "Adresář": the list of contacts in Czech order of their names, with a search field and add,
// edit, copy and delete of a contact and its address. Opened from the menu, or as a chooser
// that returns the chosen contact.
#pragma once

#include <wx/dialog.h>

#include <memory>

class lxListCtrl;
class lxRowModel;
class wxButton;
class wxSearchCtrl;

class KontaktyDialog : public wxDialog {
 public:
    explicit KontaktyDialog(wxWindow* parent, bool chooser = false);
    ~KontaktyDialog() override;

    // The contact chosen with "Vybrat" in chooser mode, or -1.
    int selectedKontaktId() const;

    // The commands of the buttons and the context menu; all but add act on the selected contact.
    void addKontakt();
    void editKontakt();
    void copyKontakt();
    void deleteKontakt();
    void chooseKontakt();
    // "Tisk": the list of every contact to a preview or a PDF; returns the PDF written, if any.
    wxString printKontakty();

    lxListCtrl* list() const { return m_list; }
    wxSearchCtrl* searchField() const { return m_search; }
    // Shows only the contacts whose name, IČ or town contains the text, regardless of case
    // and accents; an empty text shows them all.
    void search(const wxString& text);
    // Reads the contacts again.
    void refresh();

 private:
    void updateButtons();
    void onContextMenu(wxContextMenuEvent& event);

    bool m_chooser;
    int m_chosen = -1;
    std::unique_ptr<lxRowModel> m_rows;
    wxSearchCtrl* m_search = nullptr;
    lxListCtrl* m_list = nullptr;
    wxButton* m_edit = nullptr;
    wxButton* m_copy = nullptr;
    wxButton* m_delete = nullptr;
    wxButton* m_choose = nullptr;
};
