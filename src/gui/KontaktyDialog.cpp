#include "KontaktyDialog.h"

#include <wx/button.h>
#include <wx/menu.h>
#include <wx/sizer.h>
#include <wx/srchctrl.h>

#include <algorithm>

#include "KontaktDialog.h"
#include "book/bookshapes.h"
#include "book/lxlistctrl.h"
#include "collation.h"
#include "printchoice.h"
#include "prompts.h"
#include "seznamkontaktuprint.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

enum { ID_CHOOSE = wxID_HIGHEST + 300, ID_PRINT };

}  // namespace

KontaktyDialog::KontaktyDialog(wxWindow* parent, bool chooser)
    : wxDialog(parent, wxID_ANY, u8("Adresář"), wxDefaultPosition, wxSize(900, 500),
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_chooser(chooser),
      m_rows(std::make_unique<lxTableModel<KontaktView>>(bookshapes::kontakty())) {
    m_rows->reload();
    m_search =
        new wxSearchCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, "hledat");
    m_search->ShowCancelButton(true);
    m_search->SetDescriptiveText(u8("Hledat podle názvu, IČ nebo místa"));
    m_list = new lxListCtrl(this, m_rows.get());

    auto* buttons = new wxBoxSizer(wxVERTICAL);
    const auto button = [this, buttons](int id, const char* label) {
        auto* b = new wxButton(this, id, u8(label));
        buttons->Add(b, wxSizerFlags().Expand().Border(wxBOTTOM, 4));
        return b;
    };
    if (m_chooser) {
        m_choose = button(ID_CHOOSE, "&Vybrat");
        m_choose->SetDefault();
        buttons->AddSpacer(12);
    }
    button(wxID_ADD, "&Přidat");
    m_edit = button(wxID_EDIT, "&Upravit");
    m_copy = button(wxID_COPY, "&Kopírovat");
    m_delete = button(wxID_DELETE, "&Smazat");
    buttons->AddSpacer(12);
    button(ID_PRINT, "&Tisk");
    buttons->AddStretchSpacer();
    button(wxID_CANCEL, "&Zavřít");

    auto* left = new wxBoxSizer(wxVERTICAL);
    left->Add(m_search, wxSizerFlags().Expand().Border(wxBOTTOM, 6));
    left->Add(m_list, wxSizerFlags(1).Expand());
    auto* top = new wxBoxSizer(wxHORIZONTAL);
    top->Add(left, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxTOP | wxRIGHT | wxBOTTOM, 10));
    SetSizer(top);

    // Buttons and the context menu send the same ids.
    const auto bind = [this](int id, void (KontaktyDialog::*command)()) {
        Bind(
            wxEVT_BUTTON, [this, command](wxCommandEvent&) { (this->*command)(); }, id);
        Bind(
            wxEVT_MENU, [this, command](wxCommandEvent&) { (this->*command)(); }, id);
    };
    bind(wxID_ADD, &KontaktyDialog::addKontakt);
    bind(wxID_EDIT, &KontaktyDialog::editKontakt);
    bind(wxID_COPY, &KontaktyDialog::copyKontakt);
    bind(wxID_DELETE, &KontaktyDialog::deleteKontakt);
    bind(ID_CHOOSE, &KontaktyDialog::chooseKontakt);
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent&) { printKontakty(); }, ID_PRINT);
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { m_chooser ? chooseKontakt() : editKontakt(); });
    m_list->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { updateButtons(); });
    m_list->Bind(wxEVT_LIST_ITEM_RIGHT_CLICK, [this](wxListEvent& e) {
        m_list->selectId(m_rows->id(static_cast<size_t>(e.GetIndex())));
        e.Skip();
    });
    m_list->Bind(wxEVT_CONTEXT_MENU, &KontaktyDialog::onContextMenu, this);
    // The list narrows with every typed letter.
    m_search->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { search(m_search->GetValue()); });
    m_search->Bind(wxEVT_SEARCHCTRL_CANCEL_BTN, [this](wxCommandEvent&) {
        m_search->ChangeValue(wxString());
        search(wxString());
    });
    updateButtons();
    m_search->SetFocus();
}

void KontaktyDialog::search(const wxString& text) {
    lxFilter filter;
    filter.text = text.Strip(wxString::both);
    m_list->apply([&filter](lxRowModel& rows) { rows.setFilter(filter); });
    // One match is selected, ready for Enter in a chooser.
    if (m_rows->rowCount() == 1) m_list->selectId(m_rows->id(0));
    updateButtons();
}

KontaktyDialog::~KontaktyDialog() = default;

int KontaktyDialog::selectedKontaktId() const { return m_chosen; }

void KontaktyDialog::refresh() {
    m_list->reload();
    updateButtons();
}

void KontaktyDialog::addKontakt() {
    KontaktDialog dialog(this);
    if (dialog.ShowModal() != wxID_OK) return;
    refresh();
    m_list->selectId(dialog.kontaktId());
    updateButtons();
}

void KontaktyDialog::editKontakt() {
    const int id = m_list->selectedId();
    if (id <= 0) return;
    KontaktDialog dialog(this, id);
    if (dialog.ShowModal() == wxID_OK) refresh();
}

// The copy is selected, ready to be edited.
void KontaktyDialog::copyKontakt() {
    DbModel* model = openModel();
    const int id = m_list->selectedId();
    if (!model || id <= 0) return;
    const int copy = model->copyKontakt(id);
    if (copy < 0) {
        prompts().info(u8("Kontakt se nepodařilo zkopírovat"), wxString(), this);
        return;
    }
    refresh();
    m_list->selectId(copy);
    updateButtons();
}

// Documents of a deleted contact stay, without a counterparty.
void KontaktyDialog::deleteKontakt() {
    DbModel* model = openModel();
    const int id = m_list->selectedId();
    if (!model || id <= 0) return;
    const Kontakt kontakt = model->getKontakt(id);
    if (!kontakt.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat kontakt %s?"), kontakt.nazev()), wxString(), this))
        return;
    if (!model->deleteKontaktSAdresou(id)) prompts().info(u8("Kontakt se nepodařilo smazat"), wxString(), this);
    refresh();
}

void KontaktyDialog::chooseKontakt() {
    const int id = m_list->selectedId();
    if (!m_chooser || id <= 0) return;
    m_chosen = id;
    if (IsModal()) EndModal(wxID_OK);
}

// The whole address book, whatever is selected.
wxString KontaktyDialog::printKontakty() {
    DbModel* model = openModel();
    if (!model) return wxString();
    std::vector<KontaktRadek> radky;
    lxKontaktViewArray kontakty = model->kontaktyview();
    std::stable_sort(kontakty.begin(), kontakty.end(),
                     [](const auto& a, const auto& b) { return collation::czechCompare(a->nazev(), b->nazev()) < 0; });
    for (const auto& kontakt : kontakty) {
        const KontaktView& k = *kontakt;
        KontaktRadek r;
        r.nazev = k.nazev();
        r.ic = k.ic();
        r.dic = k.dic();
        r.ulice = (k.ulice() + " " + k.cp()).Strip(wxString::both);
        r.misto = k.misto();
        r.psc = k.psc();
        r.email = k.email();
        radky.push_back(r);
    }
    SeznamKontaktuPrint print(this, model->firma().nazev(), radky);
    return nahledNeboPdf(print, u8("Seznam kontaktů"), this);
}

void KontaktyDialog::updateButtons() {
    const bool selected = m_list->selectedId() > 0;
    for (wxButton* b : {m_edit, m_copy, m_delete, m_choose}) {
        if (b) b->Enable(selected);
    }
}

void KontaktyDialog::onContextMenu(wxContextMenuEvent&) {
    wxMenu menu;
    if (m_chooser) {
        menu.Append(ID_CHOOSE, u8("Vybrat"));
        menu.AppendSeparator();
    }
    menu.Append(wxID_ADD, u8("Přidat kontakt"));
    menu.Append(wxID_EDIT, u8("Upravit kontakt"));
    menu.Append(wxID_COPY, u8("Kopírovat kontakt"));
    menu.Append(wxID_DELETE, u8("Smazat kontakt"));
    const bool selected = m_list->selectedId() > 0;
    for (int id : {static_cast<int>(ID_CHOOSE), static_cast<int>(wxID_EDIT), static_cast<int>(wxID_COPY),
                   static_cast<int>(wxID_DELETE)}) {
        if (menu.FindItem(id)) menu.Enable(id, selected);
    }
    PopupMenu(&menu);
}
