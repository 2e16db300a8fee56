// RadyPanel ("Číselné řady"): the number series with their description, prefix, width and
// current number. Activating a row or "Upravit řadu" in its context menu opens RadaDialog.
#pragma once

#include <wx/panel.h>

#include <memory>

#include "records.h"

class lxListCtrl;
template <class Row>
class lxTableModel;

class RadyPanel : public wxPanel {
 public:
    explicit RadyPanel(wxWindow* parent);
    ~RadyPanel() override;

    lxListCtrl* list() const { return m_list; }
    // The series of the selected row (invalid when none is selected).
    Rada selectedRada() const;
    // Opens the dialog over the selected series and shows the result.
    void editSelected();
    void refresh();

 private:
    std::unique_ptr<lxTableModel<Rada>> m_rows;
    lxListCtrl* m_list = nullptr;
};
