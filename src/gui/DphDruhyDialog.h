// "Členění DPH": the VAT classifications, sortable by every column and filtered by
// "Filtrovat"; the context menu switches whether the document dialogs offer a row. The
// rows themselves are the program's own and cannot be added, edited or deleted. As a
// chooser it has "Vybrat" and may list only the classifications of one side.
#pragma once

#include "SeznamDialog.h"
#include "dph/dphdruhfilter.h"

class DphDruhyDialog : public SeznamDialog {
 public:
    // The classifications of both sides, or only those of income documents (`VYDAJ` false:
    // issued invoices, receivables) or of expense documents.
    enum Strana { OBE = -1, PRIJEM = 0, VYDAJ = 1 };
    explicit DphDruhyDialog(wxWindow* parent, bool chooser = false, Strana strana = OBE);

    // "Filtrovat": asks for the conditions in DphDruhFilter; "Zrušit filtr" drops them.
    void filtrovat();
    void zrusitFiltr();
    const DphDruhPodminky& podminky() const { return m_podminky; }
    // Switches offering of the row.
    void nabizet(int id);
    // Sorts by the list column as a click on its header does: a second click on the same
    // column reverses the order.
    void sortBy(int column);

 protected:
    std::vector<Row> rows() override;

 private:
    static std::vector<Command> commands(DphDruhyDialog* self);

    Strana m_strana;
    DphDruhPodminky m_podminky;
    int m_sortColumn = -1;
    bool m_ascending = true;
};
