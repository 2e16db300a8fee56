#include "CiselnikDialog.h"

#include "dbmodel.h"
#include "lxformat.h"
#include "prompts.h"

CiselnikDialog::CiselnikDialog(wxWindow* parent, const wxString& title, const wxArrayString& columns,
                               const wxArrayString& menu, bool chooser, std::vector<Command> extra)
    : SeznamDialog(parent, title, columns, editingCommands(this, menu, std::move(extra)), chooser) {}

std::vector<SeznamDialog::Command> CiselnikDialog::editingCommands(CiselnikDialog* self, const wxArrayString& menu,
                                                                  std::vector<Command> extra) {
    // The commands run only once the dialog is built, so they may call the list's own versions.
    auto caption = [menu](size_t i) { return [text = menu[i]](int) { return text; }; };
    const wxArrayString buttons = strings({"Přidat", "Upravit", "Kopírovat", "Smazat"});
    std::vector<Command> commands = {
        {buttons[0], caption(0), false, [self](int) { self->addRow(); }},
        {buttons[1], caption(1), true, [self](int id) { self->editRow(id); }, /*onDoubleClick=*/true},
        {buttons[2], caption(2), true, [self](int id) { self->copyRow(id); }},
        {buttons[3], caption(3), true, [self](int id) { self->deleteRow(id); }},
    };
    for (Command& c : extra) commands.push_back(std::move(c));
    return commands;
}

void CiselnikDialog::deleteAfterQuestion(const wxString& question, const std::function<bool(wxString*)>& remove) {
    if (!prompts().question(question, wxString::FromUTF8("Dotaz"), this)) return;
    wxString duvod;
    if (!remove(&duvod) && !duvod.empty()) prompts().info(duvod, wxString(), this);
}

std::vector<SeznamDialog::Row> CiselnikDialog::uctyRows(bool banka) {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    // One pass over the journal for every balance.
    for (const DbModel::StavUctu& s : model->stavyUctu()) {
        if (s.banka != banka) continue;
        wxArrayString cells;
        cells.Add(s.zkratka);
        cells.Add(s.popis);
        cells.Add(lxformat::formatCastka(s.stav));
        cells.Add(s.mena);
        all.push_back({s.id, cells});
    }
    return all;
}
