#include "DokladDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/combobox.h>
#include <wx/dateevt.h>
#include <wx/listctrl.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <map>

#include "BankyDialog.h"
#include "formlayout.h"
#include "DphDruhyDialog.h"
#include "KontaktCompleter.h"
#include "KontaktyDialog.h"
#include "PokladnyDialog.h"
#include "PolozkaDialog.h"
#include "PredkontacesDialog.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "denikform.h"
#include "fakturace/polozkaform.h"
#include "lxformat.h"
#include "lxsettings.h"
#include "okbuttons.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxString titulek(DruhDokladu druh) {
    switch (druh) {
        case DruhDokladu::FAKTURA_VYDANA:
            return u8("Faktura vydaná");
        case DruhDokladu::FAKTURA_PRIJATA:
            return u8("Faktura přijatá");
        case DruhDokladu::POHLEDAVKA:
            return u8("Pohledávka");
        case DruhDokladu::ZAVAZEK:
            break;
    }
    return u8("Závazek");
}

wxButton* button(wxWindow* parent, const char* label, const char* name) {
    return new wxButton(parent, wxID_ANY, u8(label), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, name);
}

wxButton* chooserButton(wxWindow* parent, const char* name) {
    return new wxButton(parent, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT, wxDefaultValidator,
                        name);
}

wxTextCtrl* text(wxWindow* parent, const char* name, int width) {
    return new wxTextCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxSize(width, -1), 0, wxDefaultValidator,
                          name);
}

wxStaticText* label(wxWindow* parent, wxFlexGridSizer* grid, const char* text) {
    auto* l = new wxStaticText(parent, wxID_ANY, u8(text));
    grid->Add(l, wxSizerFlags().CentreVertical());
    return l;
}

// A field with an optional button after it as one cell of the grid.
void cell(wxFlexGridSizer* grid, wxWindow* a, wxWindow* b = nullptr, bool expand = false) {
    auto* box = new wxBoxSizer(wxHORIZONTAL);
    box->Add(a, wxSizerFlags(expand ? 1 : 0).CentreVertical());
    if (b) box->Add(b, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    grid->Add(box, wxSizerFlags().Expand());
}

int choiceIndex(const std::vector<int>& ids, int id) {
    for (size_t i = 0; i < ids.size(); ++i)
        if (ids[i] == id) return static_cast<int>(i);
    return ids.empty() ? wxNOT_FOUND : 0;
}

}  // namespace

DokladDialog::DokladDialog(wxWindow* parent, DruhDokladu druh, int id, bool kopie)
    : wxDialog(parent, wxID_ANY, titulek(druh), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    m_form.druh = druh;
    DbModel* model = openModel();
    if (model) {
        if (id > 0) {
            m_form = nactiDoklad(*model, druh, id);
            // A copy made by the page is finished as a new document: Cancel removes it and OK
            // advances the series.
            m_form.novy = kopie;
        } else {
            m_form = novyDoklad(*model, druh);
        }
        if (!m_form.novy) {
            m_puvodniPolozky = polozkyDokladu(*model, m_form);
            m_puvodniPohyby = pohybyDokladu(*model, m_form);
        }
    }
    m_form.druh = druh;
    build();
    load();
    GetSizer()->SetSizeHints(this);
    m_popis->SetFocus();
}

DokladDialog::~DokladDialog() {
    // A dialog closed some other way than ShowModal still leaves no half-made document.
    if (!m_saved && !m_undone) undo();
}

int DokladDialog::ShowModal() {
    const int result = wxDialog::ShowModal();
    if (result == wxID_OK) return result;
    undo();
    // "Přidat úhradu" may have stored the document already; the page then shows it.
    return m_saved ? wxID_OK : result;
}

void DokladDialog::undo() {
    DbModel* model = openModel();
    if (!model || m_form.id <= 0 || m_undone) return;
    m_undone = true;
    if (m_form.novy)
        zrusitNovyDoklad(*model, m_form);
    else if (m_polozkyZmeneny)
        obnovitPolozky(*model, m_form, m_puvodniPolozky, m_puvodniPohyby);
}

void DokladDialog::build() {
    auto* hlavicka = new wxFlexGridSizer(2, wxSize(8, 6));
    hlavicka->AddGrowableCol(1);
    buildHlavicka(hlavicka);
    auto* datumy = new wxFlexGridSizer(2, wxSize(8, 6));
    buildDatumy(datumy);

    m_polozky = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(-1, 160), wxLC_REPORT | wxLC_SINGLE_SEL,
                               wxDefaultValidator, "polozky");
    pridatSloupce(m_polozky, {{"Popis", 220, false},
                              {"MJ", 50, false},
                              {"Počet", 70, true},
                              {"Cena za MJ", 100, true},
                              {"DPH %", 60, true},
                              {"DPH", 90, true},
                              {"Celkem", 100, true}});

    auto* pridat = button(this, "Přidat položku", "pridatPolozku");
    auto* upravit = button(this, "Upravit položku", "upravitPolozku");
    auto* smazat = button(this, "Smazat položku", "smazatPolozku");
    auto* zaokrouhlitButton = button(this, "Zaokrouhlit", "zaokrouhlit");
    auto* uhrada = button(this, "Přidat úhradu", "pridatUhradu");
    uhrada->SetToolTip(u8("Uloží doklad a zaplatí zbývající částku hotově"));
    auto* tlacitka = new wxBoxSizer(wxHORIZONTAL);
    for (wxButton* b : {pridat, upravit, smazat, zaokrouhlitButton})
        tlacitka->Add(b, wxSizerFlags().Border(wxRIGHT, 4));
    tlacitka->AddStretchSpacer();
    tlacitka->Add(uhrada);

    auto* celkemRow = new wxBoxSizer(wxHORIZONTAL);
    celkemRow->AddStretchSpacer();
    celkemRow->Add(new wxStaticText(this, wxID_ANY, u8("Celkem:")), wxSizerFlags().CentreVertical());
    m_celkem = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(160, -1),
                                wxALIGN_RIGHT | wxST_NO_AUTORESIZE, "celkem");
    wxFont bold = m_celkem->GetFont();
    bold.SetWeight(wxFONTWEIGHT_BOLD);
    m_celkem->SetFont(bold);
    celkemRow->Add(m_celkem, wxSizerFlags().CentreVertical().Border(wxLEFT, 8));

    auto* pole = new wxBoxSizer(wxHORIZONTAL);
    pole->Add(hlavicka, wxSizerFlags(1).Expand());
    pole->Add(datumy, wxSizerFlags().Border(wxLEFT, 20));

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(pole, wxSizerFlags().Expand().Border(wxALL, 10));
    top->Add(m_polozky, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, 10));
    top->Add(tlacitka, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, 10));
    top->Add(celkemRow, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
    pridat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { pridatPolozku(); });
    upravit->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { upravitPolozku(); });
    smazat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { smazatPolozku(); });
    zaokrouhlitButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { zaokrouhlit(); });
    uhrada->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { pridatUhradu(); });
    m_polozky->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { upravitPolozku(); });
    m_polozky->Bind(wxEVT_LIST_KEY_DOWN, [this](wxListEvent& event) {
        if (event.GetKeyCode() == WXK_DELETE)
            smazatPolozku();
        else
            event.Skip();
    });
}

void DokladDialog::buildHlavicka(wxFlexGridSizer* grid) {
    DbModel* model = openModel();
    if (m_form.faktura()) {
        label(this, grid, "Typ:");
        wxArrayString typy;
        typy.Add(u8("Faktura"));
        typy.Add(u8("Zálohová faktura"));
        m_typ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, typy, 0, wxDefaultValidator, "typ");
        cell(grid, m_typ);
        m_typ->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { onTypChanged(); });
    }
    label(this, grid, "Číslo:");
    m_cislo = text(this, "cislo", 150);
    cell(grid, m_cislo);
    label(this, grid, "Variabilní symbol:");
    m_vs = text(this, "vs", 150);
    cell(grid, m_vs);
    if (m_form.faktura()) {
        label(this, grid, "Specifický symbol:");
        m_ss = text(this, "ss", 150);
        cell(grid, m_ss);
        label(this, grid, "Konstantní symbol:");
        m_ks = text(this, "ks", 150);
        cell(grid, m_ks);
    }
    label(this, grid, "Popis:");
    m_popis = text(this, "popis", 320);
    cell(grid, m_popis, nullptr, true);

    label(this, grid, "Protistrana:");
    m_protistrana = text(this, "protistrana", 280);
    auto* protistranaButton = chooserButton(this, "protistranaVybrat");
    protistranaButton->SetToolTip(u8("Vyberte kontakt"));
    cell(grid, m_protistrana, protistranaButton, true);
    grid->AddSpacer(0);
    m_kontaktInfo = new wxStaticText(this, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, 0, "kontaktInfo");
    m_kontaktInfo->SetForegroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    grid->Add(m_kontaktInfo);

    label(this, grid, "Úhrada:");
    m_uhrada = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator,
                            "uhrada");
    cell(grid, m_uhrada);
    m_registrLabel = label(this, grid, "Pokladna:");
    m_registr = text(this, "registr", 120);
    auto* registrButton = chooserButton(this, "registrVybrat");
    cell(grid, m_registr, registrButton);
    label(this, grid, "Předkontace:");
    m_predkontace = text(this, "predkontace", 120);
    auto* predkontaceButton = chooserButton(this, "predkontaceVybrat");
    predkontaceButton->SetToolTip(u8("Vyberte předkontaci"));
    cell(grid, m_predkontace, predkontaceButton);
    label(this, grid, "Členění DPH:");
    wxArrayString druhy;
    if (model)
        for (const auto& d : m_form.prijem() ? model->dphdruhyNabizenePrijem() : model->dphdruhyNabizeneVydaj())
            druhy.Add(d->zkratka());
    m_dphdruh = new wxComboBox(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(120, -1), druhy, 0,
                               wxDefaultValidator, "dphdruh");
    // The offered classifications are in the combo box; the whole list of the document's side
    // is one click away.
    m_dphdruhButton = chooserButton(this, "dphdruhVybrat");
    m_dphdruhButton->SetToolTip(u8("Vyberte členění DPH"));
    cell(grid, m_dphdruh, m_dphdruhButton);
    m_dphdruhButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        DbModel* model = openModel();
        if (!model) return;
        DphDruhyDialog dialog(this, true, m_form.prijem() ? DphDruhyDialog::PRIJEM : DphDruhyDialog::VYDAJ);
        if (dialog.ShowModal() != wxID_OK || dialog.chosenId() < 0) return;
        m_dphdruh->SetValue(model->getDphDruh(dialog.chosenId()).zkratka());
    });

    if (model)
        for (const auto& u : model->fauhrady()) {
            m_uhrada->Append(u->uhrada());
            m_uhradaIds.push_back(u->id());
        }
    m_uhrada->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { onUhradaChanged(true); });
    registrButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseRegistr(); });
    predkontaceButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { choosePredkontace(); });
    protistranaButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseProtistrana(); });
    m_protistrana->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { onProtistranaText(); });
    if (model) {
        m_completer = new KontaktCompleter(*model);
        m_protistrana->AutoComplete(m_completer);
    }
}

void DokladDialog::buildDatumy(wxFlexGridSizer* grid) {
    DbModel* model = openModel();
    const int rok = model ? model->currentRok() : wxDateTime::Today().GetYear();
    auto datum = [&](const char* text, const char* name) {
        label(this, grid, text);
        auto* field = new lxDateCtrl(this, name);
        field->setRok(rok);
        cell(grid, field);
        return field;
    };
    m_vystaveni = datum("Vystavení:", "vystaveni");
    m_duzp = datum("DUZP:", "duzp");
    m_dppd = datum("DPPD:", "dppd");
    m_splatnost = datum("Splatnost:", "splatnost");

    label(this, grid, "Měna:");
    m_mena =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "mena");
    cell(grid, m_mena);
    m_kurzLabel = label(this, grid, "Kurz:");
    m_kurz = new lxAmountCtrl(this, lxAmountCtrl::KURZ, "kurz", 100);
    m_kurzButton = button(this, "Stáhnout kurz z webu ČNB", "stahnoutKurz");
    cell(grid, m_kurz, m_kurzButton);
    if (m_form.prijem() && model && model->isFirmaPausal()) {
        label(this, grid, "Paušální výdaj %:");
        m_pausal = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, pausalHodnoty(), 0,
                                wxDefaultValidator, "pausal");
        m_pausal->SetSelection(0);
        cell(grid, m_pausal);
    }
    grid->AddSpacer(0);
    m_platce = new wxCheckBox(this, wxID_ANY, u8("Plátce DPH"), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator,
                              "platce");
    grid->Add(m_platce);

    if (model)
        for (const auto& mena : model->meny()) {
            m_mena->Append(mena->id() == 1 ? mena->kod() : mena->kod() + " - " + mena->nazev());
            m_menaIds.push_back(mena->id());
        }
    m_mena->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) {
        showhideKurz();
        onDuzpChanged();
        refreshPolozky();
    });
    m_kurzButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onKurzDownload(); });
    m_vystaveni->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { onVystaveniChanged(); });
    m_duzp->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { onDuzpChanged(); });
    m_splatnost->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { m_splatnostZmenena = true; });
    m_platce->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) {
        m_dphdruh->Enable(m_platce->GetValue());
        m_dphdruhButton->Enable(m_platce->GetValue());
    });
}

void DokladDialog::load() {
    DbModel* model = openModel();
    if (m_typ) m_typ->SetSelection(m_form.typid == 2 ? 1 : 0);
    m_cislo->ChangeValue(m_form.cislo);
    m_vs->ChangeValue(m_form.vs);
    if (m_ss) m_ss->ChangeValue(m_form.ss);
    if (m_ks) m_ks->ChangeValue(m_form.ks);
    m_popis->ChangeValue(m_form.popis);
    m_protistrana->ChangeValue(m_form.protistrana);
    if (model) showKontakt(model->getKontaktIdByNazev(m_form.protistrana));
    m_uhrada->SetSelection(choiceIndex(m_uhradaIds, m_form.uhradaid));
    onUhradaChanged(false);
    m_registr->ChangeValue(m_form.registr);
    m_predkontace->ChangeValue(m_form.predkontace);
    m_dphdruh->ChangeValue(m_form.dphdruh);
    m_vystaveni->SetValue(m_form.vystaveni);
    m_duzp->SetValue(m_form.duzp);
    m_dppd->SetValue(m_form.dppd);
    m_splatnost->SetValue(m_form.splatnost);
    // A due date that is not the default distance from the issue date was chosen by someone.
    const int dny = lxSettings::instance()->splatnost();
    m_splatnostZmenena = !m_form.novy && m_form.vystaveni.IsValid() && m_form.splatnost.IsValid() &&
                         m_form.vystaveni + wxDateSpan::Days(dny) != m_form.splatnost;
    m_mena->SetSelection(choiceIndex(m_menaIds, m_form.menaid));
    // The stored rate itself, not its display: OK without a change stores it unchanged.
    m_kurz->SetValue(m_form.kurz);
    if (m_pausal && m_form.pausal > 0) {
        const wxString value = wxString::Format("%d", m_form.pausal);
        if (m_pausal->FindString(value) == wxNOT_FOUND) m_pausal->Append(value);
        m_pausal->SetStringSelection(value);
    }
    m_platce->SetValue(m_form.platce);
    m_dphdruh->Enable(m_form.platce);
    m_dphdruhButton->Enable(m_form.platce);
    showhideKurz();
    refreshPolozky();
}

int DokladDialog::menaId() const {
    const int sel = m_mena->GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_menaIds.size()) ? m_menaIds[sel] : 1;
}

int DokladDialog::uhradaId() const {
    const int sel = m_uhrada->GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_uhradaIds.size()) ? m_uhradaIds[sel] : -1;
}

bool DokladDialog::pokladnou() const {
    DbModel* model = openModel();
    return model && uhradaId() > 0 && model->faUhradaPokladnou(uhradaId());
}

DokladForm DokladDialog::readForm(DokladPole* chyba, wxString* zprava) const {
    DokladForm form = m_form;
    bool failed = false;
    auto fail = [&](DokladPole pole, const wxString& text) {
        if (failed) return;
        failed = true;
        if (chyba) *chyba = pole;
        if (zprava) *zprava = text;
    };
    if (chyba) *chyba = DokladPole::ZADNE;
    form.typid = m_typ && m_typ->GetSelection() == 1 ? 2 : 1;
    const auto value = [](const wxTextCtrl* field) {
        return field ? field->GetValue().Strip(wxString::both) : wxString();
    };
    form.cislo = value(m_cislo);
    form.vs = value(m_vs);
    form.ss = value(m_ss);
    form.ks = value(m_ks);
    form.popis = value(m_popis);
    form.protistrana = value(m_protistrana);
    form.uhradaid = uhradaId();
    form.registr = value(m_registr);
    form.predkontace = value(m_predkontace);
    form.platce = m_platce->GetValue();
    form.dphdruh = form.platce ? m_dphdruh->GetValue().Strip(wxString::both) : wxString();
    // A date left empty is for the checks to name; one that does not read is refused here.
    const auto datum = [&](const lxDateCtrl* field, const char* name, DokladPole pole) {
        const wxDateTime d = field->GetValue();
        if (!d.IsValid() && !field->text().Strip(wxString::both).empty())
            fail(pole, lxformat::datumZprava(u8(name), field->text()));
        return d;
    };
    form.vystaveni = datum(m_vystaveni, "Vystavení", DokladPole::VYSTAVENI);
    form.duzp = datum(m_duzp, "DUZP", DokladPole::DUZP);
    form.dppd = datum(m_dppd, "DPPD", DokladPole::DPPD);
    form.splatnost = datum(m_splatnost, "Splatnost", DokladPole::SPLATNOST);
    form.menaid = menaId();
    form.kurz = 1;
    if (form.menaid != 1 && m_kurz->GetValue(&form.kurz) != lxformat::Chyba::ZADNA)
        fail(DokladPole::KURZ, m_kurz->zprava(u8("Kurz")));
    form.pausal = 0;
    if (m_pausal) parsePausal(m_pausal->GetStringSelection(), &form.pausal);
    return form;
}

bool DokladDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    // Enter may press OK with the focus still in a date: the typed day is the one stored.
    for (lxDateCtrl* d : {m_vystaveni, m_duzp, m_dppd, m_splatnost}) d->commitText();
    DokladPole pole = DokladPole::ZADNE;
    wxString message;
    const DokladForm form = readForm(&pole, &message);
    if (message.empty()) message = dokladValidation(*model, form, &pole);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        focusField(pole);
        return false;
    }
    bool smazatUhrady = false;
    const bool placeny = form.faktura() ? model->someUhradaForFaktura(form.id) : model->someUhradaForZavpoh(form.id);
    if (!form.novy && placeny && dokladZmenen(*model, form)) {
        if (!prompts().question(dotazZmenenyDoklad(form), u8("Dotaz"), this)) return false;
        smazatUhrady = true;
    }
    message = ulozitDoklad(*model, form, smazatUhrady);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        return false;
    }
    m_form = form;
    m_form.novy = false;
    m_saved = true;
    m_polozkyZmeneny = false;
    m_puvodniPolozky = polozkyDokladu(*model, m_form);
    m_puvodniPohyby = pohybyDokladu(*model, m_form);
    refreshPolozky();
    return true;
}

void DokladDialog::focusField(DokladPole pole) {
    switch (pole) {
        case DokladPole::UHRADA:
            m_uhrada->SetFocus();
            return;
        case DokladPole::DPHDRUH:
            m_dphdruh->SetFocus();
            m_dphdruh->SelectAll();
            return;
        case DokladPole::VYSTAVENI:
            m_vystaveni->focusText();
            return;
        case DokladPole::DUZP:
            m_duzp->focusText();
            return;
        case DokladPole::DPPD:
            m_dppd->focusText();
            return;
        case DokladPole::SPLATNOST:
            m_splatnost->focusText();
            return;
        default:
            break;
    }
    wxTextCtrl* field = pole == DokladPole::REGISTR       ? m_registr
                        : pole == DokladPole::PREDKONTACE ? m_predkontace
                        : pole == DokladPole::KURZ        ? static_cast<wxTextCtrl*>(m_kurz)
                                                          : nullptr;
    if (!field) return;
    field->SetFocus();
    field->SelectAll();
}

void DokladDialog::onUhradaChanged(bool navrhnoutRegistr) {
    const bool hotove = pokladnou();
    const wxString before = m_registrLabel->GetLabel();
    m_registrLabel->SetLabel(u8(hotove ? "Pokladna:" : "Bankovní účet:"));
    FindWindow("registrVybrat")->SetToolTip(u8(hotove ? "Vyberte pokladnu" : "Vyberte bankovní účet"));
    DbModel* model = openModel();
    // Another kind of register: the first one of that kind is proposed.
    if (navrhnoutRegistr && model && before != m_registrLabel->GetLabel()) {
        wxString zkratka;
        if (hotove) {
            const auto pokladny = model->pokladny();
            if (!pokladny.empty()) zkratka = pokladny.front()->zkratka();
        } else {
            const auto banky = model->banky();
            if (!banky.empty()) zkratka = banky.front()->zkratka();
        }
        m_registr->ChangeValue(zkratka);
    }
    Layout();
}

void DokladDialog::onTypChanged() {
    DbModel* model = openModel();
    // A stored invoice keeps its number; a new one takes the next of its type's series.
    if (!model || !m_form.novy || !m_typ) return;
    const wxString rada = dokladRada(m_form.druh, m_typ->GetSelection() == 1 ? 2 : 1);
    m_cislo->ChangeValue(model->getCisloDokladu(rada));
    m_vs->ChangeValue(wxString::Format("%d", model->getRadaCislo(rada)));
}

void DokladDialog::onVystaveniChanged() {
    const wxDateTime vystaveni = m_vystaveni->GetValue();
    if (m_splatnostZmenena || !vystaveni.IsValid()) return;
    m_splatnost->SetValue(vystaveni + wxDateSpan::Days(lxSettings::instance()->splatnost()));
}

void DokladDialog::onDuzpChanged() {
    DbModel* model = openModel();
    double kurz = 0;
    if (model && ulozenyKurz(*model, menaId(), m_duzp->GetValue(), &kurz)) m_kurz->SetValue(kurz);
}

void DokladDialog::onKurzDownload() {
    DbModel* model = openModel();
    if (!model) return;
    const wxDateTime datum = m_duzp->GetValue().IsValid() ? m_duzp->GetValue() : m_vystaveni->GetValue();
    double kurz = 0;
    wxBusyCursor busy;
    if (stahnoutKurz(*model, menaId(), datum, &kurz))
        m_kurz->SetValue(kurz);
    else
        prompts().info(u8("Kurz se nepodařilo získat"), u8("Informace"), this);
}

void DokladDialog::showhideKurz() {
    const bool cizi = menaId() != 1;
    for (wxWindow* w : std::initializer_list<wxWindow*>{m_kurzLabel, m_kurz, m_kurzButton}) w->Show(cizi);
    Layout();
}

void DokladDialog::onProtistranaText() {
    DbModel* model = openModel();
    if (!model) return;
    const wxString typed = m_protistrana->GetValue();
    const int vybrany = m_completer ? m_completer->kontaktId(typed) : -1;
    if (vybrany > 0) {
        // An offered "name, IČ" was chosen: the field keeps the name only. Changed after the
        // completion has finished writing into the field.
        CallAfter([this, vybrany] {
            m_protistrana->ChangeValue(m_completer->nazev(vybrany));
            m_protistrana->SetInsertionPointEnd();
            showKontakt(vybrany);
        });
        return;
    }
    showKontakt(model->getKontaktIdByNazev(typed.Strip(wxString::both)));
}

void DokladDialog::showKontakt(int kontaktId) {
    DbModel* model = openModel();
    wxString info;
    if (model && kontaktId > 0) {
        const Kontakt k = model->getKontakt(kontaktId);
        const Adresa a = model->getAdresa(k.adresaid());
        const wxString ulice = (a.ulice() + " " + a.cp()).Strip(wxString::both);
        const wxString misto = (a.psc() + " " + a.misto()).Strip(wxString::both);
        for (const wxString& cast : {ulice, misto, a.zeme().Strip(wxString::both)})
            if (!cast.empty()) info += (info.empty() ? "" : ", ") + cast;
        wxString ids;
        if (!k.ic().empty()) ids += u8("IČ: ") + k.ic();
        if (!k.dic().empty()) ids += (ids.empty() ? "" : "   ") + u8("DIČ: ") + k.dic();
        if (!ids.empty()) info += (info.empty() ? "" : "\n") + ids;
    }
    if (m_kontaktInfo->GetLabel() == info) return;
    m_kontaktInfo->SetLabel(info);
    const wxSize needed = GetSizer()->ComputeFittingClientSize(this);
    if (needed.y > GetClientSize().y || needed.x > GetClientSize().x)
        SetClientSize(wxSize(std::max(needed.x, GetClientSize().x), std::max(needed.y, GetClientSize().y)));
    Layout();
}

void DokladDialog::chooseRegistr() {
    DbModel* model = openModel();
    if (!model) return;
    if (pokladnou()) {
        PokladnyDialog dialog(this, true);
        dialog.SetTitle(u8("Vyberte pokladnu"));
        if (dialog.ShowModal() == wxID_OK && dialog.chosenId() > 0)
            m_registr->ChangeValue(model->getPokladnaZkratka(dialog.chosenId()));
    } else {
        BankyDialog dialog(this, true);
        dialog.SetTitle(u8("Vyberte bankovní účet"));
        if (dialog.ShowModal() == wxID_OK && dialog.chosenId() > 0)
            m_registr->ChangeValue(model->getBankaZkratka(dialog.chosenId()));
    }
}

void DokladDialog::choosePredkontace() {
    DbModel* model = openModel();
    if (!model) return;
    PredkontacesDialog dialog(this, true, m_form.prijem() ? PredkontacesDialog::PRIJMY : PredkontacesDialog::VYDAJE);
    if (dialog.ShowModal() != wxID_OK || dialog.chosenId() <= 0) return;
    m_predkontace->ChangeValue(model->getPredkontace(dialog.chosenId()).zkratka());
}

void DokladDialog::chooseProtistrana() {
    DbModel* model = openModel();
    if (!model) return;
    KontaktyDialog dialog(this, true);
    if (dialog.ShowModal() != wxID_OK || dialog.selectedKontaktId() <= 0) return;
    m_protistrana->ChangeValue(model->getKontakt(dialog.selectedKontaktId()).nazev());
    showKontakt(dialog.selectedKontaktId());
}

void DokladDialog::refreshPolozky() {
    DbModel* model = openModel();
    if (!model) return;
    const long selected = m_polozky->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    m_polozky->DeleteAllItems();
    m_polozkaIds.clear();
    std::map<int, int> sazby;  // rate row → percent, one lookup per rate
    long row = 0;
    for (const auto& p : polozkyDokladu(*model, m_form)) {
        auto sazba = sazby.find(p->sazbaid());
        if (sazba == sazby.end()) sazba = sazby.emplace(p->sazbaid(), model->getDphSazbaValue(p->sazbaid())).first;
        m_polozky->InsertItem(row, p->popis());
        m_polozky->SetItem(row, 1, p->mj());
        m_polozky->SetItem(row, 2, lxformat::formatMnozstvi(p->pocet()));
        m_polozky->SetItem(row, 3, lxformat::formatCastka(p->cenamj()));
        m_polozky->SetItem(row, 4, wxString::Format("%d", sazba->second));
        m_polozky->SetItem(row, 5, lxformat::formatCastka(p->dph()));
        m_polozky->SetItem(row, 6, lxformat::formatCastka(p->celkem()));
        m_polozkaIds.push_back(p->id());
        ++row;
    }
    if (row > 0) {
        const long select = selected >= 0 && selected < row ? selected : 0;
        m_polozky->SetItemState(select, wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED,
                                wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED);
    }
    m_celkem->SetLabel(lxformat::formatCastka(celkemDokladu(*model, m_form), model->kodMena(menaId())));
}

wxString DokladDialog::celkemText() const { return m_celkem->GetLabel(); }

int DokladDialog::selectedPolozka() const {
    const long sel = m_polozky->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
    return sel >= 0 && sel < static_cast<long>(m_polozkaIds.size()) ? m_polozkaIds[sel] : -1;
}

void DokladDialog::pridatPolozku() {
    PolozkaDialog dialog(this, readForm());
    if (dialog.ShowModal() != wxID_OK) return;
    m_polozkyZmeneny = true;
    refreshPolozky();
    // The new item is the last one.
    const long last = m_polozky->GetItemCount() - 1;
    if (last >= 0) m_polozky->SetItemState(last, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
}

void DokladDialog::upravitPolozku() {
    const int id = selectedPolozka();
    if (id <= 0) return;
    PolozkaDialog dialog(this, readForm(), id);
    if (dialog.ShowModal() != wxID_OK) return;
    m_polozkyZmeneny = true;
    refreshPolozky();
}

void DokladDialog::smazatPolozku() {
    DbModel* model = openModel();
    const int id = selectedPolozka();
    if (!model || id <= 0) return;
    const wxString dotaz = wxString::Format(u8("Opravdu smazat položku:\n%s?"), model->getFaPolozka(id).popis());
    if (!prompts().question(dotaz, u8("Dotaz"), this)) return;
    const wxString zprava = ::smazatPolozku(*model, readForm(), id);
    if (zprava.empty())
        m_polozkyZmeneny = true;
    else
        prompts().info(zprava, u8("Informace"), this);
    refreshPolozky();
}

void DokladDialog::zaokrouhlit() {
    DbModel* model = openModel();
    if (!model) return;
    wxString zprava;
    DokladForm form = readForm();
    if (!zaokrouhlitDoklad(*model, form, &zprava)) zprava = u8("Zaokrouhlení se nepodařilo uložit");
    m_polozkyZmeneny = true;
    if (!zprava.empty()) prompts().info(zprava, u8("Informace"), this);
    refreshPolozky();
}

// A payment needs the document as it will be stored: its total, currency and pre-posting are
// what the journal entries are computed from. So "Přidat úhradu" first does what OK does (the
// checks, the question about a paid document, a new document's series) and only a stored
// document is paid; the dialog stays open and the document is from then on an edited one.
void DokladDialog::pridatUhradu() {
    DbModel* model = openModel();
    if (!model || !save()) return;
    const PlacenyDoklad doklad =
        m_form.faktura() ? placenyFaktura(*model, m_form.id) : placenyZavPoh(*model, m_form.id);
    const wxString zprava = writeUhrada(*model, doklad);
    if (!zprava.empty()) prompts().info(zprava, u8("Informace"), this);
}
