#include "PrijemVydejDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dateevt.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include <algorithm>

#include "BankyDialog.h"
#include "KontaktyDialog.h"
#include "PokladnyDialog.h"
#include "PredkontacesDialog.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "okbuttons.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

wxButton* chooserButton(wxWindow* parent, const char* name) {
    return new wxButton(parent, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT, wxDefaultValidator,
                        name);
}

// A label as the messages name its field: without the colon.
wxString fieldName(const wxStaticText* label) {
    wxString name = label->GetLabel();
    name.Trim(true);
    if (name.EndsWith(":")) name.RemoveLast();
    return name;
}

}  // namespace

PrijemVydejDialog::PrijemVydejDialog(wxWindow* parent, bool prijem, bool banka, DenikForm::Mode mode, int id)
    : wxDialog(parent, wxID_ANY, u8(prijem ? "Zadejte příjem" : "Zadejte výdaj"), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER) {
    m_form.mode = mode;
    m_form.prijem = prijem;
    m_form.banka = banka;
    m_form.id = mode == DenikForm::ADD ? -1 : id;
    build();

    DbModel* model = openModel();
    if (model) {
        // "15.10." is a day of the accounting year.
        m_datum->setRok(model->currentRok());
        if (mode != DenikForm::ADD) {
            const Denik denik = model->getDenik(id);
            if (denik.isValid()) load(denik);
        } else {
            const wxDateTime datum = lxSettings::instance()->datum();
            if (datum.IsValid()) m_datum->SetValue(datum);
            m_registr->ChangeValue(banka ? model->getBankaZkratka(1) : model->getPokladnaZkratka(1));
            if (banka) m_vypis->SetValue(model->getLastVypis(1));
        }
    }
    m_typ->SetSelection(m_form.banka ? 1 : 0);
    setBanka(m_form.banka);
    if (model && mode == DenikForm::ADD) m_cislo->ChangeValue(navrhCislaDenik(*model, prijem, m_form.banka));
    showhideKurz();
    // Opens at the size of the fields it shows; fields that appear later grow it.
    GetSizer()->SetSizeHints(this);
    m_popis->SetFocus();
}

void PrijemVydejDialog::build() {
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto label = [&](const char* text) {
        auto* l = new wxStaticText(this, wxID_ANY, u8(text));
        grid->Add(l, wxSizerFlags().CentreVertical());
        return l;
    };
    auto text = [&](const char* name, int width = 300) {
        return new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(width, -1), 0, wxDefaultValidator,
                              name);
    };
    auto row = [&](wxWindow* a, wxWindow* b = nullptr) {
        auto* box = new wxBoxSizer(wxHORIZONTAL);
        box->Add(a, wxSizerFlags(a == m_popis || a == m_protistrana ? 1 : 0).CentreVertical());
        if (b) box->Add(b, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
        grid->Add(box, wxSizerFlags().Expand());
    };

    label("Typ:");
    wxArrayString typy;
    typy.Add(u8("Pokladna"));
    typy.Add(u8("Bankovní účet"));
    m_typ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, typy, 0, wxDefaultValidator, "typ");
    row(m_typ);

    label("Datum:");
    m_datum = new lxDateCtrl(this, "datum");
    row(m_datum);
    label("Číslo dokladu:");
    m_cislo = text("cislo", 150);
    row(m_cislo);
    label("Popis dokladu:");
    m_popis = text("popis");
    row(m_popis);
    label("Číslo faktury, variabilní symbol atd.:");
    m_reference = text("reference", 200);
    row(m_reference);

    m_registrLabel = label("Pokladna:");
    m_registr = text("registr", 120);
    m_registrButton = chooserButton(this, "registrVybrat");
    m_vypisLabel = new wxStaticText(this, wxID_ANY, u8("Číslo výpisu:"));
    m_vypis = new wxSpinCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0,
                             100000, 0, "vypis");
    auto* registrRow = new wxBoxSizer(wxHORIZONTAL);
    registrRow->Add(m_registr, wxSizerFlags().CentreVertical());
    registrRow->Add(m_registrButton, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    registrRow->Add(m_vypisLabel, wxSizerFlags().CentreVertical().Border(wxLEFT, 16));
    registrRow->Add(m_vypis, wxSizerFlags().CentreVertical().Border(wxLEFT, 8));
    grid->Add(registrRow);

    label("Předkontace:");
    m_predkontace = text("predkontace", 120);
    auto* predkontaceButton = chooserButton(this, "predkontaceVybrat");
    row(m_predkontace, predkontaceButton);

    label("Měna:");
    m_mena =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxArrayString(), 0, wxDefaultValidator, "mena");
    row(m_mena);
    label("Částka v Kč:");
    m_castka = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "castka");
    row(m_castka);
    m_castkaCiziLabel = label("Částka v cizí měně:");
    m_castkaCizi = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "castkacizi");
    row(m_castkaCizi);
    m_kurzLabel = label("Kurz:");
    m_kurz = new lxAmountCtrl(this, lxAmountCtrl::KURZ, "kurz", 120);
    m_kurzButton = new wxButton(this, wxID_ANY, u8("Stáhnout kurz z webu ČNB"), wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, "stahnoutKurz");
    row(m_kurz, m_kurzButton);

    DbModel* model = openModel();
    const bool pausal = m_form.prijem && model && model->isFirmaPausal();
    if (pausal) {
        label("Paušální výdaj %:");
        m_pausal = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, pausalHodnoty(), 0,
                                wxDefaultValidator, "pausal");
        m_pausal->SetSelection(0);
        auto* pridat = new wxButton(this, wxID_ANY, u8("Přidat hodnotu paušálních výdajů"), wxDefaultPosition,
                                    wxDefaultSize, 0, wxDefaultValidator, "pridatPausal");
        row(m_pausal, pridat);
        pridat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onPridatPausal(); });
    }

    label("Protistrana:");
    m_protistrana = text("protistrana");
    auto* protistranaButton = chooserButton(this, "protistranaVybrat");
    row(m_protistrana, protistranaButton);

    if (model) {
        for (const auto& mena : model->meny()) {
            m_mena->Append(mena->id() == 1 ? mena->kod() : mena->kod() + " - " + mena->nazev());
            m_menaIds.push_back(mena->id());
        }
    }
    if (m_mena->GetCount() > 0) m_mena->SetSelection(0);
    m_kurz->SetValue(1.0);

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
    m_typ->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { setBanka(m_typ->GetSelection() == 1); });
    m_mena->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) {
        showhideKurz();
        onDatumChanged();
    });
    m_datum->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) { onDatumChanged(); });
    m_kurzButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onKurzDownload(); });
    m_castka->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(ZmenaCastky::CASTKA); });
    m_castkaCizi->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(ZmenaCastky::CASTKACIZI); });
    m_kurz->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(ZmenaCastky::KURZ); });
    m_registrButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseRegistr(); });
    predkontaceButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { choosePredkontace(); });
    protistranaButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseProtistrana(); });
}

void PrijemVydejDialog::load(const Denik& denik) {
    DbModel* model = openModel();
    m_form.banka = denik.pokladnaid() <= 0 && denik.bankaid() > 0;
    if (denik.datum().IsValid()) m_datum->SetValue(denik.datum());
    m_cislo->ChangeValue(denik.cislo());
    m_popis->ChangeValue(denik.popis());
    m_reference->ChangeValue(denik.reference());
    m_registr->ChangeValue(m_form.banka ? model->getBankaZkratka(denik.bankaid())
                                        : model->getPokladnaZkratka(denik.pokladnaid()));
    m_vypis->SetValue(denik.vypis());
    m_predkontace->ChangeValue(model->getPredkontace(denik.predkontaceid()).zkratka());
    for (size_t i = 0; i < m_menaIds.size(); ++i)
        if (m_menaIds[i] == denik.menaid()) m_mena->SetSelection(static_cast<int>(i));
    // The stored values themselves, not their display: OK without a change stores them unchanged.
    m_castka->SetValue(denik.castka());
    m_castkaCizi->SetValue(denik.castkacizi());
    m_kurz->SetValue(denik.kurz());
    if (m_pausal && denik.pausal() > 0) {
        const wxString value = wxString::Format("%d", denik.pausal());
        if (m_pausal->FindString(value) == wxNOT_FOUND) m_pausal->Append(value);
        m_pausal->SetStringSelection(value);
    }
    if (denik.protistranaid() > 0) m_protistrana->ChangeValue(model->getKontakt(denik.protistranaid()).nazev());
}

int PrijemVydejDialog::menaId() const {
    const int sel = m_mena->GetSelection();
    return sel >= 0 && sel < static_cast<int>(m_menaIds.size()) ? m_menaIds[sel] : 1;
}

DenikForm PrijemVydejDialog::readForm(DenikPole* chyba, wxString* zprava) const {
    DenikForm form = m_form;
    bool failed = false;
    auto fail = [&](DenikPole pole, const wxString& text) {
        if (failed) return;
        failed = true;
        if (chyba) *chyba = pole;
        if (zprava) *zprava = text;
    };
    if (chyba) *chyba = DenikPole::ZADNE;
    form.datum = m_datum->GetValue();
    if (!form.datum.IsValid()) fail(DenikPole::DATUM, lxformat::datumZprava(u8("Datum"), m_datum->text()));
    form.cislo = m_cislo->GetValue().Strip(wxString::both);
    form.popis = m_popis->GetValue().Strip(wxString::both);
    form.reference = m_reference->GetValue().Strip(wxString::both);
    form.registr = m_registr->GetValue().Strip(wxString::both);
    form.predkontace = m_predkontace->GetValue().Strip(wxString::both);
    form.menaid = menaId();
    const auto amount = [&](const lxAmountCtrl* field, const wxString& name, DenikPole pole, double* value) {
        *value = 0;
        if (field->GetValue(value) != lxformat::Chyba::ZADNA) fail(pole, field->zprava(name));
    };
    amount(m_castka, u8("Částka v Kč"), DenikPole::CASTKA, &form.castka);
    if (form.menaid == 1) {
        form.castkacizi = 0;
        form.kurz = 1;
    } else {
        amount(m_castkaCizi, fieldName(m_castkaCiziLabel), DenikPole::CASTKACIZI, &form.castkacizi);
        amount(m_kurz, u8("Kurz"), DenikPole::KURZ, &form.kurz);
    }
    form.vypis = form.banka ? m_vypis->GetValue() : 0;
    form.pausal = 0;
    if (m_pausal) parsePausal(m_pausal->GetStringSelection(), &form.pausal);
    form.protistrana = m_protistrana->GetValue().Strip(wxString::both);
    return form;
}

bool PrijemVydejDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    // Enter presses OK with the focus still in the date: its rate is the one of the typed day.
    m_datum->commitText();
    DenikPole pole = DenikPole::ZADNE;
    wxString message;
    const DenikForm form = readForm(&pole, &message);
    if (message.empty()) message = denikValidation(*model, form, &pole);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        focusField(pole);
        return false;
    }
    const wxString dotaz = zapornaPokladnaDotaz(*model, form);
    if (!dotaz.empty() && !prompts().question(dotaz, u8("Dotaz"), this)) {
        focusField(DenikPole::CASTKA);
        return false;
    }
    int id = -1;
    message = ulozitDenik(*model, form, &id, &pole);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        focusField(pole);
        return false;
    }
    m_savedId = id;
    return true;
}

void PrijemVydejDialog::focusField(DenikPole pole) {
    if (pole == DenikPole::DATUM) {
        m_datum->focusText();
        return;
    }
    wxTextCtrl* field = nullptr;
    switch (pole) {
        case DenikPole::CISLO:
            field = m_cislo;
            break;
        case DenikPole::REGISTR:
            field = m_registr;
            break;
        case DenikPole::PREDKONTACE:
            field = m_predkontace;
            break;
        case DenikPole::CASTKA:
            field = m_castka;
            break;
        case DenikPole::CASTKACIZI:
            field = m_castkaCizi;
            break;
        case DenikPole::KURZ:
            field = m_kurz;
            break;
        default:
            return;
    }
    field->SetFocus();
    field->SelectAll();
}

void PrijemVydejDialog::setBanka(bool banka) {
    const bool changed = banka != m_form.banka;
    m_form.banka = banka;
    m_registrLabel->SetLabel(u8(banka ? "Bankovní účet:" : "Pokladna:"));
    m_registrButton->SetToolTip(u8(banka ? "Vyberte bankovní účet" : "Vyberte pokladnu"));
    m_vypisLabel->Show(banka);
    m_vypis->Show(banka);
    DbModel* model = openModel();
    if (changed && model) {
        m_cislo->ChangeValue(navrhCislaDenik(*model, m_form.prijem, banka));
        m_registr->ChangeValue(banka ? model->getBankaZkratka(1) : model->getPokladnaZkratka(1));
        if (banka) m_vypis->SetValue(model->getLastVypis(model->getBanka(m_registr->GetValue()).id()));
    }
    if (m_typ->GetSelection() != (banka ? 1 : 0)) m_typ->SetSelection(banka ? 1 : 0);
    fitFields();
}

void PrijemVydejDialog::showhideKurz() {
    const bool cizi = menaId() != 1;
    DbModel* model = openModel();
    if (model) m_castkaCiziLabel->SetLabel(castkaCiziLabel(*model, menaId()) + ":");
    for (wxWindow* w :
         std::initializer_list<wxWindow*>{m_castkaCiziLabel, m_castkaCizi, m_kurzLabel, m_kurz, m_kurzButton})
        w->Show(cizi);
    fitFields();
}

void PrijemVydejDialog::fitFields() {
    wxSizer* sizer = GetSizer();
    if (!sizer) return;
    const wxSize needed = sizer->ComputeFittingClientSize(this);
    SetMinClientSize(needed);
    const wxSize now = GetClientSize();
    // Grows to show a new field at its size; keeps a size the person chose when it is larger.
    SetClientSize(wxSize(std::max(now.x, needed.x), std::max(now.y, needed.y)));
    Layout();
}

void PrijemVydejDialog::recalculate(ZmenaCastky zmena) {
    if (menaId() == 1) return;
    Castky castky;
    // Only what the person typed is read; a field that does not read yet changes nothing.
    const lxAmountCtrl* zdroj = zmena == ZmenaCastky::CASTKA ? m_castka : m_castkaCizi;
    double zadano = 0;
    if (zdroj->GetValue(&zadano) != lxformat::Chyba::ZADNA) return;
    if (m_kurz->GetValue(&castky.kurz) != lxformat::Chyba::ZADNA) return;
    (zmena == ZmenaCastky::CASTKA ? castky.castka : castky.castkacizi) = zadano;
    const Castky vysledek = calculateValues(castky, zmena);
    // The computed value goes into its field as the double itself.
    if (zmena == ZmenaCastky::CASTKA)
        m_castkaCizi->SetValue(vysledek.castkacizi);
    else
        m_castka->SetValue(vysledek.castka);
}

void PrijemVydejDialog::onDatumChanged() {
    DbModel* model = openModel();
    double kurz = 0;
    if (model && ulozenyKurz(*model, menaId(), m_datum->GetValue(), &kurz)) {
        m_kurz->SetValue(kurz);
        recalculate(ZmenaCastky::KURZ);
    }
}

void PrijemVydejDialog::onKurzDownload() {
    DbModel* model = openModel();
    double kurz = 0;
    if (!model) return;
    wxBusyCursor busy;
    if (stahnoutKurz(*model, menaId(), m_datum->GetValue(), &kurz)) {
        m_kurz->SetValue(kurz);
        recalculate(ZmenaCastky::KURZ);
    } else {
        prompts().info(u8("Kurz se nepodařilo získat"), u8("Informace"), this);
    }
}

void PrijemVydejDialog::onPridatPausal() {
    if (!m_pausal) return;
    wxString value;
    if (!prompts().textEntry(u8("Nová hodnota paušálních výdajů"), u8("Paušální výdaj"), &value, this)) return;
    int pausal = 0;
    if (!parsePausal(value, &pausal)) return;
    const wxString text = wxString::Format("%d", pausal);
    if (m_pausal->FindString(text) == wxNOT_FOUND) m_pausal->Append(text);
    m_pausal->SetStringSelection(text);
}

void PrijemVydejDialog::chooseRegistr() {
    DbModel* model = openModel();
    if (!model) return;
    if (m_form.banka) {
        BankyDialog dialog(this, true);
        dialog.SetTitle(u8("Vyberte bankovní účet"));
        if (dialog.ShowModal() != wxID_OK || dialog.chosenId() <= 0) return;
        m_registr->ChangeValue(model->getBankaZkratka(dialog.chosenId()));
        m_vypis->SetValue(model->getLastVypis(dialog.chosenId()));
    } else {
        PokladnyDialog dialog(this, true);
        dialog.SetTitle(u8("Vyberte pokladnu"));
        if (dialog.ShowModal() != wxID_OK || dialog.chosenId() <= 0) return;
        m_registr->ChangeValue(model->getPokladnaZkratka(dialog.chosenId()));
    }
}

void PrijemVydejDialog::choosePredkontace() {
    DbModel* model = openModel();
    if (!model) return;
    PredkontacesDialog dialog(this, true, m_form.prijem ? PredkontacesDialog::PRIJMY : PredkontacesDialog::VYDAJE);
    if (dialog.ShowModal() != wxID_OK || dialog.chosenId() <= 0) return;
    m_predkontace->ChangeValue(model->getPredkontace(dialog.chosenId()).zkratka());
}

void PrijemVydejDialog::chooseProtistrana() {
    DbModel* model = openModel();
    if (!model) return;
    KontaktyDialog dialog(this, true);
    if (dialog.ShowModal() != wxID_OK || dialog.selectedKontaktId() <= 0) return;
    m_protistrana->ChangeValue(model->getKontakt(dialog.selectedKontaktId()).nazev());
}
