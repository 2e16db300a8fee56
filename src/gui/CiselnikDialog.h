// The list dialogs of the code lists a user keeps (cash registers, bank accounts,
// pre-postings, payment forms): add, edit, copy and delete as buttons and as a context menu,
// and as a chooser a "Vybrat" button that closes the dialog with the selected row.
#pragma once

#include <functional>

#include "SeznamDialog.h"

class CiselnikDialog : public SeznamDialog {
 public:
    // The commands, on the selected row where they need one.
    virtual void addRow() = 0;
    virtual void editRow(int id) = 0;
    virtual void copyRow(int id) = 0;
    virtual void deleteRow(int id) = 0;

 protected:
    // `menu` holds the context menu's four captions: add, edit, copy, delete; `extra` are
    // further commands of the list after them.
    CiselnikDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns, const wxArrayString& menu,
                   bool chooser, std::vector<Command> extra = {});
    // Asks `question` ("Dotaz") and on yes runs `remove`, which gives the reason of a refusal
    // in its argument; the reason is shown.
    void deleteAfterQuestion(const wxString& question, const std::function<bool(wxString*)>& remove);
    // The rows of the cash registers (or bank accounts): code, description, all-years balance
    // and currency.
    static std::vector<Row> uctyRows(bool banka);

 private:
    static std::vector<Command> editingCommands(CiselnikDialog* self, const wxArrayString& menu,
                                                std::vector<Command> extra);
};

// A code list whose rows are added, edited and copied in one form class `Form`, constructed
// as Form(parent, id = -1, vzor = -1): a copy is a new row started from `vzor`.
template <class Form>
class FormCiselnikDialog : public CiselnikDialog {
 public:
    void addRow() override { Form(this).ShowModal(); }
    void editRow(int id) override { Form(this, id).ShowModal(); }
    void copyRow(int id) override { Form(this, -1, id).ShowModal(); }

 protected:
    using CiselnikDialog::CiselnikDialog;
};
