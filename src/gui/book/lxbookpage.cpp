#include "lxbookpage.h"

#include <wx/artprov.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include "dbmodel.h"
#include "lxcsv.h"
#include "lxfilterdialog.h"
#include "lxlistctrl.h"
#include "prompts.h"
#include "table.h"
#include "tableprint.h"

namespace {

enum { ID_EXPORT = wxID_HIGHEST + 200, ID_FILTER, ID_FILTER_OFF, ID_ROW_COMMAND };
// Room for the page's own row commands after ID_ROW_COMMAND.
const int ROW_COMMANDS_MAX = 16;

wxString u8(const char* text) { return wxString::FromUTF8(text); }

struct Command {
    int id;
    const char* label;
    const char* help;
    wxArtID art;
};

// The commands of the toolbar and the context menu, in their order; 0 is a separator.
const Command COMMANDS[] = {
    {wxID_ADD, "Přidat", "Přidat nový záznam", wxART_NEW},
    {wxID_EDIT, "Upravit", "Upravit vybraný záznam", wxART_EDIT},
    {wxID_COPY, "Kopie", "Vytvořit kopii vybraného záznamu", wxART_COPY},
    {wxID_DELETE, "Smazat", "Smazat vybraný záznam", wxART_DELETE},
    {0, nullptr, nullptr, wxART_OTHER},
    {wxID_PRINT, "Tisk", "Vytisknout zobrazené záznamy", wxART_PRINT},
    {ID_EXPORT, "CSV", "Uložit zobrazené záznamy do souboru CSV", wxART_FILE_SAVE_AS},
    {ID_FILTER, "Filtr", "Zobrazit jen záznamy, které odpovídají filtru", wxART_FIND},
    {ID_FILTER_OFF, "Zrušit filtr", "Zobrazit všechny záznamy", wxART_CROSS_MARK},
};

int actionOf(int id) {
    switch (id) {
        case wxID_ADD:
            return BOOK_ADD;
        case wxID_EDIT:
            return BOOK_EDIT;
        case wxID_COPY:
            return BOOK_COPY;
        case wxID_DELETE:
            return BOOK_DELETE;
        default:
            return -1;
    }
}

}  // namespace

lxBookPage::lxBookPage(wxWindow* parent, int navigation, const wxString& title, std::unique_ptr<lxRowModel> rows)
    : wxPanel(parent, wxID_ANY), m_navigation(navigation), m_title(title), m_rows(std::move(rows)) {
    m_toolbar = new wxToolBar(this, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                              wxTB_HORIZONTAL | wxTB_FLAT | wxTB_TEXT | wxTB_HORZ_LAYOUT | wxTB_NODIVIDER);
    for (const Command& c : COMMANDS) {
        if (c.id == 0) {
            m_toolbar->AddSeparator();
            continue;
        }
        m_toolbar->AddTool(c.id, u8(c.label), wxArtProvider::GetBitmapBundle(c.art, wxART_TOOLBAR, wxSize(16, 16)),
                           u8(c.help));
    }
    m_toolbar->Realize();

    m_list = new lxListCtrl(this, m_rows.get());
    m_footer = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize,
                                wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);

    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_toolbar, wxSizerFlags().Expand());
    sizer->Add(m_list, wxSizerFlags(1).Expand());
    sizer->Add(m_footer, wxSizerFlags().Expand().Border(wxALL, 4));
    SetSizer(sizer);

    // Tool and menu clicks both arrive as menu events.
    Bind(wxEVT_MENU, &lxBookPage::onCommand, this);
    m_list->Bind(wxEVT_CONTEXT_MENU, &lxBookPage::onContextMenu, this);
    const auto selectionChanged = [this](wxListEvent& e) {
        updateTools();
        e.Skip();
    };
    m_list->Bind(wxEVT_LIST_ITEM_SELECTED, selectionChanged);
    m_list->Bind(wxEVT_LIST_ITEM_DESELECTED, selectionChanged);
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { run(BOOK_EDIT); });
    m_list->Bind(wxEVT_LIST_ITEM_RIGHT_CLICK, [this](wxListEvent& e) {
        m_list->selectId(m_rows->id(static_cast<size_t>(e.GetIndex())));
        e.Skip();
    });
    m_list->Bind(wxEVT_LIST_KEY_DOWN, &lxBookPage::onKey, this);
    updateTools();
}

lxBookPage::~lxBookPage() = default;

void lxBookPage::refresh() {
    m_stale = false;
    m_list->reload();
    updateTools();
}

void lxBookPage::setAction(lxBookAction action, Action handler) {
    if (action < 0 || action >= BOOK_ACTIONS) return;
    m_actions[action] = std::move(handler);
    updateTools();
}

bool lxBookPage::canRun(lxBookAction action) const {
    if (action < 0 || action >= BOOK_ACTIONS || !m_actions[action]) return false;
    return action == BOOK_ADD || m_list->selectedId() >= 0;
}

bool lxBookPage::run(lxBookAction action) {
    if (!canRun(action)) return false;
    // A copy: the handler may replace the page's handlers while it runs.
    const Action handler = m_actions[action];
    handler(action == BOOK_ADD ? -1 : m_list->selectedId());
    updateTools();
    return true;
}

void lxBookPage::addRowCommand(const wxString& label, const wxString& help, const wxString& art, Action handler,
                               bool naListe) {
    if (m_rowCommands.size() >= ROW_COMMANDS_MAX) return;
    const int id = ID_ROW_COMMAND + static_cast<int>(m_rowCommands.size());
    m_rowCommands.push_back({label, help, std::move(handler)});
    if (naListe) {
        m_toolbar->AddTool(id, label, wxArtProvider::GetBitmapBundle(art, wxART_TOOLBAR, wxSize(16, 16)), help);
        m_toolbar->Realize();
    }
    updateTools();
}

bool lxBookPage::runRowCommand(const wxString& label) {
    for (size_t i = 0; i < m_rowCommands.size(); ++i)
        if (m_rowCommands[i].label == label) return runRowCommand(i);
    return false;
}

bool lxBookPage::runRowCommand(size_t index) {
    const int id = m_list->selectedId();
    if (index >= m_rowCommands.size() || id < 0) return false;
    const Action handler = m_rowCommands[index].handler;
    handler(id);
    updateTools();
    return true;
}

void lxBookPage::editFilter() {
    lxFilterDialog dialog(this, wxString::Format(u8("Filtr: %s"), m_title), m_rows->filter(), m_rows->hasDateFilter(),
                          m_rows->filterChoices());
    if (dialog.ShowModal() == wxID_OK) setFilter(dialog.filter());
}

void lxBookPage::setFilter(const lxFilter& filter) {
    m_list->apply([&filter](lxRowModel& rows) { rows.setFilter(filter); });
    updateTools();
}

wxString lxBookPage::footerText() const {
    wxString text = m_rows->footer();
    if (m_rows->filter().isActive())
        text = wxString::Format(u8("Filtr: %d z %d    "), static_cast<int>(m_rows->rowCount()),
                                static_cast<int>(m_rows->totalCount())) +
               text;
    return text;
}

void lxBookPage::exportCsv() {
    int typ = 0;
    wxString path = prompts().chooseSaveFile(u8("Exportovat do CSV"), wxGetHomeDir(), m_rows->key() + ".csv",
                                             u8("CSV v UTF-8 (*.csv)|*.csv|CSV ve Windows-1250 (*.csv)|*.csv"), &typ,
                                             this);
    if (path.empty()) return;
    if (!path.Lower().EndsWith(".csv")) path += ".csv";
    wxString error;
    if (!exportCsv(path, &error, typ == 1 ? lxcsv::Kodovani::WINDOWS1250 : lxcsv::Kodovani::UTF8)) {
        prompts().info(error, wxString(), this);
        return;
    }
    prompts().info(wxString::Format(u8("Uloženo do %s"), path), u8("Informace"), this);
}

bool lxBookPage::exportCsv(const wxString& path, wxString* error, lxcsv::Kodovani kodovani) {
    if (m_csvExport) return m_csvExport(path, kodovani, error);
    return lxcsv::write(path, *m_rows, kodovani, error);
}

Table lxBookPage::printTable() const {
    Table table;
    const DbModel* model = DbModel::instance();
    table.tableTitle.title = m_title;
    if (model && model->isOpen())
        table.tableTitle.title +=
            wxString::Format("\n%s, %d", model->firma().nazev(), DbModel::instance()->currentRok());
    table.setColumns(m_rows->columnCount());
    for (int c = 0; c < m_rows->columnCount(); ++c) table.addCellToHeader(m_rows->column(c).caption);
    for (size_t r = 0; r < m_rows->rowCount(); ++r) {
        table.addRow();
        for (int c = 0; c < m_rows->columnCount(); ++c)
            table.addCell(m_rows->text(r, c), m_rows->column(c).right ? wxTEXT_ALIGNMENT_RIGHT : wxTEXT_ALIGNMENT_LEFT);
    }
    return table;
}

void lxBookPage::print() {
    if (m_printAction) {
        m_printAction();
        return;
    }
    Table table = printTable();
    TablePrint printing(this, m_title);
    printing.setTable(&table);
    printing.Preview();
}

void lxBookPage::onCommand(wxCommandEvent& event) {
    const int action = actionOf(event.GetId());
    if (action >= 0) {
        run(static_cast<lxBookAction>(action));
        return;
    }
    switch (event.GetId()) {
        case wxID_PRINT:
            print();
            break;
        case ID_EXPORT:
            exportCsv();
            break;
        case ID_FILTER:
            editFilter();
            break;
        case ID_FILTER_OFF:
            setFilter(lxFilter());
            break;
        default:
            if (event.GetId() >= ID_ROW_COMMAND && event.GetId() < ID_ROW_COMMAND + ROW_COMMANDS_MAX)
                runRowCommand(static_cast<size_t>(event.GetId() - ID_ROW_COMMAND));
            else
                event.Skip();
    }
}

void lxBookPage::onKey(wxListEvent& event) {
    switch (event.GetKeyCode()) {
        case WXK_DELETE:
            run(BOOK_DELETE);
            break;
        case WXK_INSERT:
            run(BOOK_ADD);
            break;
        default:
            event.Skip();
    }
}

void lxBookPage::onContextMenu(wxContextMenuEvent&) {
    std::unique_ptr<wxMenu> menu(createMenu());
    PopupMenu(menu.get());
}

wxMenu* lxBookPage::createMenu() const {
    auto* menu = new wxMenu();
    for (const Command& c : COMMANDS) {
        if (c.id == 0) {
            menu->AppendSeparator();
        } else {
            menu->Append(c.id, u8(c.label), u8(c.help));
        }
    }
    if (!m_rowCommands.empty()) menu->AppendSeparator();
    for (size_t i = 0; i < m_rowCommands.size(); ++i)
        menu->Append(ID_ROW_COMMAND + static_cast<int>(i), m_rowCommands[i].label, m_rowCommands[i].help);
    enableCommands([menu](int id, bool enable) { menu->Enable(id, enable); });
    return menu;
}

void lxBookPage::enableCommands(const std::function<void(int id, bool enable)>& enable) const {
    for (const Command& c : COMMANDS) {
        if (c.id == 0) continue;
        const int action = actionOf(c.id);
        if (action >= 0) {
            enable(c.id, canRun(static_cast<lxBookAction>(action)));
        } else if (c.id == ID_FILTER_OFF) {
            enable(c.id, m_rows->filter().isActive());
        } else if (c.id == ID_FILTER) {
            enable(c.id, true);
        } else {
            enable(c.id, m_rows->rowCount() > 0);
        }
    }
    for (size_t i = 0; i < m_rowCommands.size(); ++i)
        enable(ID_ROW_COMMAND + static_cast<int>(i), m_list->selectedId() >= 0);
}

void lxBookPage::updateTools() {
    enableCommands([this](int id, bool enable) { m_toolbar->EnableTool(id, enable); });
    // A command this page does not offer yet says so instead of doing nothing.
    for (const Command& c : COMMANDS) {
        const int action = actionOf(c.id);
        if (action < 0) continue;
        m_toolbar->SetToolShortHelp(c.id,
                                    m_actions[action] ? u8(c.help) : u8("Na této stránce zatím není k dispozici"));
    }
    m_footer->SetLabelText(footerText());
}
