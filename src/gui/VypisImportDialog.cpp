#include "VypisImportDialog.h"

#include <wx/artprov.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toolbar.h>

#include <algorithm>

#include "CsvMapovaniDialog.h"
#include "formlayout.h"
#include "book/lxbookpage.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

enum Sloupec { DATUM, CASTKA, VS, PROTIUCET, PROTISTRANA, DOKLAD, NAVRH };

wxButton* tlacitko(wxWindow* parent, const char* label, const char* name) {
    return new wxButton(parent, wxID_ANY, u8(label), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, name);
}

}  // namespace

VypisImportDialog::VypisImportDialog(wxWindow* parent, int bankaid)
    : wxDialog(parent, wxID_ANY, u8("Import bankovního výpisu"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    m_banka = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxSize(320, -1), wxArrayString(), 0, wxDefaultValidator,
                           "banka");
    if (DbModel* model = openModel()) {
        for (const auto& b : model->banky()) {
            m_banka->Append(b->zkratka() + " - " + b->popis());
            m_bankaIds.push_back(b->id());
            if (b->id() == bankaid) m_banka->SetSelection(m_banka->GetCount() - 1);
        }
    }
    if (m_banka->GetSelection() == wxNOT_FOUND && !m_bankaIds.empty()) m_banka->SetSelection(0);
    m_soubor = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(360, -1), 0, wxDefaultValidator,
                              "soubor");
    auto* vybrat = new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT,
                                wxDefaultValidator, "vybratSoubor");
    vybrat->SetToolTip(u8("Vybrat soubor výpisu"));
    auto* nacistButton = tlacitko(this, "Načíst", "nacist");
    auto* mapovaniButton = tlacitko(this, "Mapování CSV…", "mapovani");

    auto* grid = new wxFlexGridSizer(3, wxSize(8, 6));
    grid->AddGrowableCol(1);
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Bankovní účet:")), wxSizerFlags().CentreVertical());
    grid->Add(m_banka, wxSizerFlags().CentreVertical());
    grid->Add(mapovaniButton, wxSizerFlags().Expand());
    grid->Add(new wxStaticText(this, wxID_ANY, u8("Soubor výpisu:")), wxSizerFlags().CentreVertical());
    auto* souborRow = new wxBoxSizer(wxHORIZONTAL);
    souborRow->Add(m_soubor, wxSizerFlags(1).CentreVertical());
    souborRow->Add(vybrat, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    grid->Add(souborRow, wxSizerFlags().Expand());
    grid->Add(nacistButton, wxSizerFlags().Expand());

    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(1160, 320), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "pohyby");
    m_list->EnableCheckBoxes();
    pridatSloupce(m_list, {{"Datum", 115, false},
                           {"Částka", 95, true},
                           {"VS", 90, false},
                           {"Protiúčet", 135, false},
                           {"Protistrana / zpráva", 150, false},
                           {"Doklad", 100, false},
                           {"Návrh", 450, false}});
    m_stav = new wxStaticText(this, wxID_ANY, u8("Vyberte bankovní účet a soubor výpisu (ABO/GPC, camt.053 nebo CSV)."),
                              wxDefaultPosition, wxDefaultSize, 0, "stav");

    auto* dokladButton = tlacitko(this, "Vybrat doklad…", "vybratDoklad");
    auto* prijemVydejButton = tlacitko(this, "Příjem/výdaj…", "prijemVydej");
    auto* nezapisovatButton = tlacitko(this, "Nezapisovat", "nezapisovat");
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(dokladButton);
    buttons->Add(prijemVydejButton, wxSizerFlags().Border(wxLEFT, 6));
    buttons->Add(nezapisovatButton, wxSizerFlags().Border(wxLEFT, 6));
    buttons->AddStretchSpacer();
    auto* ok = new wxButton(this, wxID_OK, u8("Zapsat"));
    ok->SetDefault();
    buttons->Add(ok);
    buttons->Add(new wxButton(this, wxID_CANCEL, u8("Zrušit")), wxSizerFlags().Border(wxLEFT, 6));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags().Expand().Border(wxALL, 10));
    top->Add(m_stav, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT, 10));
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    vybrat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        const wxString path = prompts().chooseFile(u8("Vyberte soubor výpisu"), wxString(), wxString(),
                                                   u8("Bankovní výpisy (*.gpc;*.abo;*.xml;*.csv;*.txt)|"
                                                      "*.gpc;*.GPC;*.abo;*.ABO;*.xml;*.XML;*.csv;*.CSV;*.txt;*.TXT|"
                                                      "Všechny soubory (*)|*"),
                                                   false, this);
        if (path.empty()) return;
        m_soubor->ChangeValue(path);
        nacist();
    });
    nacistButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { nacist(); });
    mapovaniButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        if (upravitMapovani() && m_nacteno) nacist();
    });
    m_banka->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) {
        if (!m_soubor->GetValue().empty()) nacist();
    });
    dokladButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { vybratDoklad(); });
    prijemVydejButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { prijemVydej(); });
    nezapisovatButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { nezapisovat(); });
    m_list->Bind(wxEVT_LIST_ITEM_CHECKED, [this](wxListEvent& e) { onCheck(e, true); });
    m_list->Bind(wxEVT_LIST_ITEM_UNCHECKED, [this](wxListEvent& e) { onCheck(e, false); });
    m_list->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { vybratDoklad(); });
    ok->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        if (zapsat()) EndModal(wxID_OK);
    });
}

int VypisImportDialog::bankaId() const {
    const int sel = m_banka->GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_bankaIds.size()) ? m_bankaIds[sel] : -1;
}

wxString VypisImportDialog::klicMapovani() const {
    DbModel* model = openModel();
    return model ? vypis::klicMapovani(model->firma().ic(), model->getBankaZkratka(bankaId())) : wxString();
}

bool VypisImportDialog::upravitMapovani() {
    if (bankaId() < 0) {
        prompts().info(u8("Bankovní účet nemůže být prázdný"), wxString(), this);
        return false;
    }
    CsvMapovaniDialog dialog(this, klicMapovani(), vypis::nacistMapovani(klicMapovani()));
    return dialog.ShowModal() == wxID_OK;
}

bool VypisImportDialog::nacist() {
    DbModel* model = openModel();
    if (!model) return false;
    m_nacteno = false;
    m_plneni = true;
    m_list->DeleteAllItems();
    m_plneni = false;
    m_import = vypis::Import();
    const int bankaid = bankaId();
    if (bankaid < 0) {
        prompts().info(u8("Bankovní účet nemůže být prázdný"), wxString(), this);
        return false;
    }
    const wxString path = m_soubor->GetValue().Strip(wxString::both);
    if (path.empty()) {
        prompts().info(u8("Vyberte soubor výpisu"), wxString(), this);
        return false;
    }
    std::string bytes;
    wxString zprava;
    if (!vypis::nacistSoubor(path, &bytes, &zprava)) {
        prompts().info(zprava, wxString(), this);
        return false;
    }
    vypis::CsvMapovani mapovani;
    if (vypis::jeCsv(bytes)) {
        // A CSV needs the account's column mapping; the first time the user gives it.
        mapovani = vypis::nacistMapovani(klicMapovani());
        if (!mapovani.isValid()) {
            if (!upravitMapovani()) return false;
            mapovani = vypis::nacistMapovani(klicMapovani());
        }
    }
    const CteniVypisu cteni = vypis::cistVypis(bytes, mapovani);
    if (!cteni.ok) {
        prompts().info(cteni.zprava, wxString(), this);
        return false;
    }
    for (const Vypis& v : cteni.vypisy) {
        const wxString chyba = vypis::kontrolaUctu(model->getBanka(bankaid), v, model->kodMena(model->getBanka(bankaid).menaid()));
        if (!chyba.empty()) {
            prompts().info(chyba, wxString(), this);
            return false;
        }
    }
    m_import = vypis::pripravitImport(*model, bankaid, cteni);
    m_plneni = true;
    int importovano = 0, jiste = 0;
    for (size_t i = 0; i < m_import.polozky.size(); ++i) {
        const vypis::PolozkaImportu& p = m_import.polozky[i];
        const long row = m_list->InsertItem(static_cast<long>(i), lxformat::formatDatum(p.pohyb.datum));
        zobrazitRadek(row);
        importovano += p.importovano;
        jiste += p.akce != vypis::Akce::PRESKOCIT;
    }
    m_plneni = false;
    m_stav->SetLabel(wxString::Format(u8("Výpis č. %d: pohybů %zu, navrženo k zápisu %d, už importováno %d."),
                                      m_import.cisloVypisu, m_import.polozky.size(), jiste, importovano));
    m_nacteno = true;
    return true;
}

void VypisImportDialog::zobrazitRadek(long row) {
    const vypis::PolozkaImportu& p = m_import.polozky[row];
    const bool plneni = m_plneni;
    m_plneni = true;
    m_list->SetItem(row, CASTKA, lxformat::formatCastka(p.pohyb.prijem ? p.pohyb.castka : -p.pohyb.castka));
    m_list->SetItem(row, VS, p.pohyb.vs);
    m_list->SetItem(row, PROTIUCET, p.pohyb.protiucet);
    m_list->SetItem(row, PROTISTRANA, p.pohyb.nazev.empty() ? p.pohyb.zprava : p.pohyb.nazev);
    wxString doklad, navrh = p.navrh.duvod;
    if (p.akce == vypis::Akce::UHRADA && p.doklad >= 0) {
        doklad = m_import.parovani.doklady()[p.doklad].cislo;
        if (p.doklad != p.navrh.doklad) navrh = u8("Doklad vybrán ručně");
    } else if (p.akce == vypis::Akce::PRIJEM_VYDEJ) {
        doklad = p.predkontace;
        navrh = p.pohyb.prijem ? u8("Příjem bez dokladu") : u8("Výdaj bez dokladu");
    } else if (p.navrh.doklad >= 0) {
        doklad = m_import.parovani.doklady()[p.navrh.doklad].cislo;
    }
    m_list->SetItem(row, DOKLAD, doklad);
    m_list->SetItem(row, NAVRH, navrh);
    m_list->CheckItem(row, !p.importovano && p.akce != vypis::Akce::PRESKOCIT);
    m_list->SetItemTextColour(row, p.importovano ? wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT)
                                                 : wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOXTEXT));
    m_plneni = plneni;
}

void VypisImportDialog::onCheck(wxListEvent& event, bool checked) {
    const long row = event.GetIndex();
    if (m_plneni || row < 0 || row >= static_cast<long>(m_import.polozky.size())) return;
    vypis::PolozkaImportu& p = m_import.polozky[row];
    if (!checked) {
        p.akce = vypis::Akce::PRESKOCIT;
    } else if (p.importovano) {
        prompts().info(u8("Pohyb už byl importován, znovu se nezapíše"), wxString(), this);
    } else if (p.akce == vypis::Akce::PRESKOCIT && p.navrh.doklad >= 0) {
        // Ticking a partial payment or an overpayment accepts the proposed document.
        p.akce = vypis::Akce::UHRADA;
        p.doklad = p.navrh.doklad;
    } else if (p.akce == vypis::Akce::PRESKOCIT) {
        prompts().info(u8("Pohyb nemá vybraný doklad ani předkontaci.\n"
                          "Použijte „Vybrat doklad…“ nebo „Příjem/výdaj…“."),
                       wxString(), this);
    }
    zobrazitRadek(row);
}

long VypisImportDialog::selectedRow() const {
    const long row = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    if (row < 0 || row >= static_cast<long>(m_import.polozky.size())) {
        prompts().info(u8("Vyberte pohyb v seznamu"), wxString(), const_cast<VypisImportDialog*>(this));
        return -1;
    }
    return row;
}

void VypisImportDialog::vybratDoklad() {
    const long row = selectedRow();
    if (row < 0) return;
    vypis::PolozkaImportu& p = m_import.polozky[row];
    if (p.importovano) {
        prompts().info(u8("Pohyb už byl importován, znovu se nezapíše"), wxString(), this);
        return;
    }
    // The candidates of the proposal first, then every open document of the direction.
    std::vector<int> nabidka = p.navrh.kandidati;
    for (int i : m_import.parovani.dokladySmeru(p.pohyb.prijem))
        if (std::find(nabidka.begin(), nabidka.end(), i) == nabidka.end()) nabidka.push_back(i);
    if (nabidka.empty()) {
        prompts().info(p.pohyb.prijem ? u8("Žádná neuhrazená faktura vydaná ani pohledávka")
                                      : u8("Žádná neuhrazená faktura přijatá ani závazek"),
                       wxString(), this);
        return;
    }
    wxArrayString texty;
    for (int i : nabidka) {
        const vypis::OtevrenyDoklad& d = m_import.parovani.doklady()[i];
        texty.Add(wxString::Format(u8("%s  VS %s  %s  zbývá %s"), d.cislo, d.vs.empty() ? wxString("-") : d.vs,
                                   d.protistrana, lxformat::formatCastka(d.zbyva)));
    }
    const int volba = prompts().singleChoice(wxString::Format(u8("Doklad, který hradí pohyb %s %s"),
                                                              lxformat::formatDatum(p.pohyb.datum),
                                                              lxformat::formatCastka(p.pohyb.castka)),
                                             u8("Vybrat doklad"), texty, 0, this);
    if (volba < 0) return;
    p.akce = vypis::Akce::UHRADA;
    p.doklad = nabidka[volba];
    zobrazitRadek(row);
}

void VypisImportDialog::prijemVydej() {
    DbModel* model = openModel();
    const long row = selectedRow();
    if (!model || row < 0) return;
    vypis::PolozkaImportu& p = m_import.polozky[row];
    if (p.importovano) {
        prompts().info(u8("Pohyb už byl importován, znovu se nezapíše"), wxString(), this);
        return;
    }
    const lxPredkontaceArray predkontace = p.pohyb.prijem ? model->predkontacePrijem() : model->predkontaceVydaj();
    wxArrayString texty;
    for (const auto& k : predkontace) texty.Add(k->zkratka() + "  " + k->popis());
    const int volba = prompts().singleChoice(u8("Předkontace, se kterou se pohyb zaúčtuje"),
                                             p.pohyb.prijem ? u8("Příjem bez dokladu") : u8("Výdaj bez dokladu"),
                                             texty, 0, this);
    if (volba < 0) return;
    p.akce = vypis::Akce::PRIJEM_VYDEJ;
    p.predkontace = predkontace[volba]->zkratka();
    p.doklad = -1;
    zobrazitRadek(row);
}

void VypisImportDialog::nezapisovat() {
    const long row = selectedRow();
    if (row < 0) return;
    m_import.polozky[row].akce = vypis::Akce::PRESKOCIT;
    zobrazitRadek(row);
}

bool VypisImportDialog::zapsat() {
    DbModel* model = openModel();
    if (!model) return false;
    if (!m_nacteno) {
        prompts().info(u8("Nejdříve načtěte soubor výpisu"), wxString(), this);
        return false;
    }
    int zapsano = 0;
    const wxString chyba = vypis::zapsatImport(*model, m_import, &zapsano);
    if (!chyba.empty()) {
        prompts().info(chyba, wxString(), this);
        return false;
    }
    return true;
}

void addVypisImportCommand(lxBookPage* page) {
    // The page's toolbar gets one more tool; its clicks are handled on the toolbar itself,
    // so they never reach the page's own commands.
    wxToolBar* toolbar = nullptr;
    for (wxWindow* child : page->GetChildren())
        if ((toolbar = wxDynamicCast(child, wxToolBar))) break;
    if (!toolbar) return;
    const int id = wxWindow::NewControlId();
    toolbar->AddSeparator();
    toolbar->AddTool(id, u8("Import výpisu"), wxArtProvider::GetBitmapBundle(wxART_FILE_OPEN, wxART_TOOLBAR, wxSize(16, 16)),
                     u8("Načíst bankovní výpis a spárovat platby s doklady"));
    toolbar->Realize();
    toolbar->Bind(
        wxEVT_TOOL,
        [page](wxCommandEvent&) {
            VypisImportDialog dialog(page);
            dialog.ShowModal();
        },
        id);
}
