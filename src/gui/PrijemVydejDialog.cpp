#include "PrijemVydejDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/datectrl.h>
#include <wx/dateevt.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "BankyDialog.h"
#include "KontaktyDialog.h"
#include "PokladnyDialog.h"
#include "PredkontacesDialog.h"
#include "dbmodel.h"
#include "lxsettings.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

// Amounts are typed with a decimal comma or point.
double parseAmount(const wxString& text) {
    wxString t = text;
    t.Replace(",", ".");
    t.Replace(" ", "");
    double value = 0;
    return t.ToCDouble(&value) ? value : 0;
}

wxString formatAmount(double value) {
    wxString text = wxString::FromCDouble(value, 4);
    // Trailing zeros of the fraction say nothing.
    while (text.Contains(".") && (text.EndsWith("0") || text.EndsWith("."))) text.RemoveLast();
    return text.empty() ? wxString("0") : text;
}

wxButton* chooserButton(wxWindow* parent, const char* name) {
    return new wxButton(parent, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT, wxDefaultValidator,
                        name);
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
    if (!model) return;
    if (mode != DenikForm::ADD) {
        const Denik denik = model->getDenik(id);
        if (denik.isValid()) load(denik);
    } else {
        const wxDateTime datum = lxSettings::instance()->datum();
        if (datum.IsValid()) m_datum->SetValue(datum);
        m_cislo->ChangeValue(navrhCislaDenik(*model, prijem, banka));
        m_registr->ChangeValue(banka ? model->getBankaZkratka(1) : model->getPokladnaZkratka(1));
        if (banka) m_vypis->SetValue(model->getLastVypis(1));
    }
    m_typ->SetSelection(m_form.banka ? 1 : 0);
    setBanka(m_form.banka);
    if (mode == DenikForm::ADD) m_cislo->ChangeValue(navrhCislaDenik(*model, prijem, m_form.banka));
    showhideKurz();
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
    auto row = [&](wxWindow* a, wxWindow* b = nullptr, wxWindow* c = nullptr) {
        auto* box = new wxBoxSizer(wxHORIZONTAL);
        for (wxWindow* w : {a, b, c})
            if (w) box->Add(w, wxSizerFlags().CentreVertical().Border(wxRIGHT, 4));
        grid->Add(box);
    };

    label("Typ:");
    wxArrayString typy;
    typy.Add(u8("Pokladna"));
    typy.Add(u8("Bankovní účet"));
    m_typ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, typy, 0, wxDefaultValidator, "typ");
    row(m_typ);

    label("Datum:");
    m_datum = new wxDatePickerCtrl(this, wxID_ANY, wxDefaultDateTime, wxDefaultPosition, wxDefaultSize,
                                   wxDP_DROPDOWN | wxDP_SHOWCENTURY, wxDefaultValidator, "datum");
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
    m_vypis = new wxSpinCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxSize(100, -1), wxSP_ARROW_KEYS, 0,
                             100000, 0, "vypis");
    auto* registrRow = new wxBoxSizer(wxHORIZONTAL);
    registrRow->Add(m_registr, wxSizerFlags().CentreVertical());
    registrRow->Add(m_registrButton, wxSizerFlags().CentreVertical().Border(wxRIGHT, 12));
    registrRow->Add(m_vypisLabel, wxSizerFlags().CentreVertical().Border(wxRIGHT, 4));
    registrRow->Add(m_vypis, wxSizerFlags().CentreVertical());
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
    m_castka = text("castka", 150);
    row(m_castka);
    m_castkaCiziLabel = label("Částka v cizí měně:");
    m_castkaCizi = text("castkacizi", 150);
    row(m_castkaCizi);
    m_kurzLabel = label("Kurz:");
    m_kurz = text("kurz", 100);
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
    m_kurz->ChangeValue("1");

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    auto* buttons = new wxStdDialogButtonSizer();
    buttons->AddButton(new wxButton(this, wxID_OK, "OK"));
    buttons->AddButton(new wxButton(this, wxID_CANCEL, u8("Zrušit")));
    buttons->Realize();
    top->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);

    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);
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
    m_calculating = true;
    setAmount(m_castka, denik.castka());
    setAmount(m_castkaCizi, denik.castkacizi());
    setAmount(m_kurz, denik.kurz());
    m_calculating = false;
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

void PrijemVydejDialog::setAmount(wxTextCtrl* field, double value) { field->ChangeValue(formatAmount(value)); }

DenikForm PrijemVydejDialog::readForm() const {
    DenikForm form = m_form;
    form.datum = m_datum->GetValue();
    form.cislo = m_cislo->GetValue().Strip(wxString::both);
    form.popis = m_popis->GetValue().Strip(wxString::both);
    form.reference = m_reference->GetValue().Strip(wxString::both);
    form.registr = m_registr->GetValue().Strip(wxString::both);
    form.predkontace = m_predkontace->GetValue().Strip(wxString::both);
    form.menaid = menaId();
    form.castka = parseAmount(m_castka->GetValue());
    form.castkacizi = form.menaid == 1 ? 0 : parseAmount(m_castkaCizi->GetValue());
    form.kurz = form.menaid == 1 ? 1 : parseAmount(m_kurz->GetValue());
    form.vypis = form.banka ? m_vypis->GetValue() : 0;
    form.pausal = 0;
    if (m_pausal) parsePausal(m_pausal->GetStringSelection(), &form.pausal);
    form.protistrana = m_protistrana->GetValue().Strip(wxString::both);
    return form;
}

bool PrijemVydejDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    DenikPole pole = DenikPole::ZADNE;
    int id = -1;
    const wxString message = ulozitDenik(*model, readForm(), &id, &pole);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        if (pole == DenikPole::REGISTR) m_registr->SetFocus();
        if (pole == DenikPole::PREDKONTACE) m_predkontace->SetFocus();
        return false;
    }
    m_savedId = id;
    return true;
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
    Layout();
}

void PrijemVydejDialog::showhideKurz() {
    const bool cizi = menaId() != 1;
    DbModel* model = openModel();
    if (model) m_castkaCiziLabel->SetLabel(castkaCiziLabel(*model, menaId()) + ":");
    for (wxWindow* w :
         std::initializer_list<wxWindow*>{m_castkaCiziLabel, m_castkaCizi, m_kurzLabel, m_kurz, m_kurzButton})
        w->Show(cizi);
    Layout();
    Fit();
}

void PrijemVydejDialog::recalculate(ZmenaCastky zmena) {
    if (m_calculating || menaId() == 1) return;
    m_calculating = true;
    Castky castky;
    castky.castka = parseAmount(m_castka->GetValue());
    castky.castkacizi = parseAmount(m_castkaCizi->GetValue());
    castky.kurz = parseAmount(m_kurz->GetValue());
    const Castky vysledek = calculateValues(castky, zmena);
    if (zmena == ZmenaCastky::CASTKA)
        setAmount(m_castkaCizi, vysledek.castkacizi);
    else
        setAmount(m_castka, vysledek.castka);
    m_calculating = false;
}

void PrijemVydejDialog::onDatumChanged() {
    DbModel* model = openModel();
    double kurz = 0;
    if (model && ulozenyKurz(*model, menaId(), m_datum->GetValue(), &kurz)) {
        setAmount(m_kurz, kurz);
        recalculate(ZmenaCastky::KURZ);
    }
}

void PrijemVydejDialog::onKurzDownload() {
    DbModel* model = openModel();
    double kurz = 0;
    if (!model) return;
    wxBusyCursor busy;
    if (stahnoutKurz(*model, menaId(), m_datum->GetValue(), &kurz)) {
        setAmount(m_kurz, kurz);
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
