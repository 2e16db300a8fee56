// "Předkontace": the pre-postings with their direction and tax effect. Opened as a chooser it
// lists only income or only expense pre-postings and returns the chosen one.
#pragma once

#include "CiselnikDialog.h"

class PredkontacesDialog : public CiselnikDialog {
 public:
    enum Vyber { VSE = -1, VYDAJE = 0, PRIJMY = 1 };
    explicit PredkontacesDialog(wxWindow* parent, bool chooser = false, Vyber vyber = VSE);

    void addRow() override;
    void editRow(int id) override;
    // Makes the copy (code with a number added) and opens it; Cancel deletes the copy again.
    void copyRow(int id) override;
    void deleteRow(int id) override;

 protected:
    std::vector<Row> rows() override;

 private:
    Vyber m_vyber;
};
