// The code lists of the vehicle log: vehicles, drivers, fuels with their prices, kinds of vehicle
// with their per-km allowances. They share one list dialog; each list is a description of its
// columns, rows, form and deletion, made by the functions of `jizdyciselniky`.
#pragma once

#include <functional>
#include <utility>

#include "CiselnikDialog.h"

struct JizdyCiselnik {
    // A command beyond add/edit/copy/delete, on the selected row ("Ceny", "Náhrady").
    struct Prikaz {
        wxString button;
        wxString menu;
        std::function<void(wxWindow* parent, int id)> run;
    };

    wxString title;
    wxArrayString columns;
    std::vector<int> widths;  // of the columns in pixels; the list's defaults when empty
    wxArrayString menu;  // the context menu's add, edit, copy and delete
    std::function<std::vector<std::pair<int, wxArrayString>>()> rows;
    // Shows the form of row `id` (-1 for a new one, started from `vzor` when that is > 0).
    std::function<void(wxWindow* parent, int id, int vzor)> form;
    // The question before deleting row `id`; empty when the row is gone.
    std::function<wxString(int id)> deleteQuestion;
    // Deletes the row, or gives the reason why it may not.
    std::function<bool(int id, wxString* duvod)> remove;
    std::vector<Prikaz> extra;
};

class JizdyCiselnikDialog : public CiselnikDialog {
 public:
    JizdyCiselnikDialog(wxWindow* parent, JizdyCiselnik popis, bool chooser = false);

    void addRow() override;
    void editRow(int id) override;
    void copyRow(int id) override;
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;

 private:
    static std::vector<Command> extraCommands(JizdyCiselnikDialog* self, const JizdyCiselnik& popis);
    JizdyCiselnik m_popis;
};

namespace jizdyciselniky {

JizdyCiselnik vozidla();
JizdyCiselnik ridici();
JizdyCiselnik phm();
JizdyCiselnik cenyPhm(int phmid);
JizdyCiselnik druhyVozidel();
JizdyCiselnik nahradyKm(int druhvozidlaid);

}  // namespace jizdyciselniky
