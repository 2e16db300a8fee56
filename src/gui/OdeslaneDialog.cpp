#include "OdeslaneDialog.h"

#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/utils.h>

#include "book/lxcsv.h"
#include "dbmodel.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

OdeslaneDialog::OdeslaneDialog(wxWindow* parent)
    : SeznamDialog(parent, u8("Seznam odeslaných faktur"), strings({"Datum a čas", "Faktura", "Příjemce"}),
                   {{u8("Exportovat"), nullptr, false, [this](int) { exportovat(); }}}, false) {
    list()->SetColumnWidth(0, FromDIP(170));
    list()->SetColumnWidth(1, FromDIP(130));
    list()->SetColumnWidth(2, FromDIP(240));
    list()->SetMinSize(FromDIP(wxSize(560, 300)));
    Fit();
    refresh();
}

std::vector<SeznamDialog::Row> OdeslaneDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    for (const auto& o : model->odeslane()) {
        wxArrayString cells;
        cells.Add(o->cas().IsValid() ? o->cas().Format("%x %X") : wxString());
        cells.Add(o->faktura());
        cells.Add(o->prijemce());
        all.push_back({o->id(), cells});
    }
    return all;
}

wxString OdeslaneDialog::exportovat() {
    wxString path = prompts().chooseFile(u8("Exportovat seznam do"), wxGetHomeDir(), "odeslane-faktury.csv",
                                         u8("CSV soubory (*.csv)|*.csv"), true, this);
    if (path.empty()) return wxString();
    wxFileName name(path);
    if (!name.HasExt()) name.SetExt("csv");
    path = name.GetFullPath();
    // The list as shown, column by column.
    wxArrayString nadpisy;
    wxListItem column;
    column.SetMask(wxLIST_MASK_TEXT);
    for (int c = 0; c < list()->GetColumnCount(); ++c) {
        list()->GetColumn(c, column);
        nadpisy.Add(column.GetText());
    }
    wxString chyba;
    if (!lxcsv::write(
            path, nadpisy, static_cast<size_t>(list()->GetItemCount()),
            [this, &nadpisy](size_t r) {
                wxArrayString cells;
                for (size_t c = 0; c < nadpisy.size(); ++c)
                    cells.Add(list()->GetItemText(static_cast<long>(r), static_cast<int>(c)));
                return cells;
            },
            lxcsv::Kodovani::UTF8, &chyba)) {
        prompts().error(chyba, u8("Informace"), this);
        return wxString();
    }
    return path;
}
