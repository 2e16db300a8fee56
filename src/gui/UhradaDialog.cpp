#include "UhradaDialog.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dateevt.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "BankyDialog.h"
#include "PokladnyDialog.h"
#include "controls/lxamountctrl.h"
#include "controls/lxdatectrl.h"
#include "dbmodel.h"
#include "denikform.h"
#include "lxformat.h"
#include "okbuttons.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

UhradaDialog::UhradaDialog(wxWindow* parent, const PlacenyDoklad& doklad)
    : wxDialog(parent, wxID_ANY, titulekUhrady(doklad), wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_doklad(doklad) {
    DbModel* model = openModel();
    if (model) m_form = novaUhrada(*model, doklad);
    build();
    m_datum->setRok(model ? model->currentRok() : -1);
    if (m_form.datum.IsValid()) m_datum->SetValue(m_form.datum);
    m_registr->ChangeValue(m_form.registr);
    m_vypis->SetValue(m_form.vypis);
    // The open amount itself, not its display: OK without a change pays exactly what is open.
    m_castka->SetValue(m_form.castka);
    m_castkaCizi->SetValue(m_form.castkacizi);
    m_kurz->SetValue(m_form.kurz);
    m_typ->SetSelection(m_form.banka ? 1 : 0);
    setBanka(m_form.banka);
    GetSizer()->SetSizeHints(this);
    (doklad.menaid == 1 ? m_castka : m_castkaCizi)->SetFocus();
}

void UhradaDialog::build() {
    DbModel* model = openModel();
    const bool cizi = m_doklad.menaid != 1;
    const wxString kod = model && cizi ? model->kodMena(m_doklad.menaid) : u8("Kč");
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    auto label = [&](const wxString& text) {
        auto* l = new wxStaticText(this, wxID_ANY, text);
        grid->Add(l, wxSizerFlags().CentreVertical());
        return l;
    };
    auto row = [&](std::initializer_list<wxWindow*> windows) {
        auto* box = new wxBoxSizer(wxHORIZONTAL);
        bool first = true;
        for (wxWindow* w : windows) {
            box->Add(w, wxSizerFlags().CentreVertical().Border(wxLEFT, first ? 0 : 6));
            first = false;
        }
        grid->Add(box, wxSizerFlags().Expand());
    };

    label(u8("Doklad:"));
    const wxString popis = wxString::Format(u8("%s, celkem %s, uhrazeno %s, zbývá %s"), m_doklad.cislo,
                                            lxformat::formatCastka(m_doklad.celkem, kod),
                                            lxformat::formatCastka(m_doklad.uhrazeno, kod),
                                            lxformat::formatCastka(m_doklad.zbyva(), kod));
    row({new wxStaticText(this, wxID_ANY, popis, wxDefaultPosition, wxDefaultSize, 0, "doklad")});

    label(u8("Typ:"));
    wxArrayString typy;
    typy.Add(u8("Pokladna"));
    typy.Add(u8("Bankovní účet"));
    m_typ = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, typy, 0, wxDefaultValidator, "typ");
    row({m_typ});

    m_registrLabel = label(u8("Pokladna:"));
    m_registr = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(120, -1), 0, wxDefaultValidator,
                               "registr");
    auto* vybrat = new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT,
                                wxDefaultValidator, "registrVybrat");
    m_vypisLabel = new wxStaticText(this, wxID_ANY, u8("Číslo výpisu:"));
    m_vypis = new wxSpinCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 0,
                             100000, 0, "vypis");
    row({m_registr, vybrat, m_vypisLabel, m_vypis});

    label(u8("Datum:"));
    m_datum = new lxDateCtrl(this, "datum");
    row({m_datum});

    label(u8("Částka v Kč:"));
    m_castka = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "castka");
    row({m_castka});
    m_castkaCizi = new lxAmountCtrl(this, lxAmountCtrl::CASTKA, "castkacizi");
    m_kurz = new lxAmountCtrl(this, lxAmountCtrl::KURZ, "kurz", 120);
    auto* stahnout = new wxButton(this, wxID_ANY, u8("Stáhnout kurz z webu ČNB"), wxDefaultPosition, wxDefaultSize, 0,
                                  wxDefaultValidator, "stahnoutKurz");
    if (cizi) {
        label(wxString::Format(u8("Částka v %s:"), kod));
        row({m_castkaCizi});
        label(u8("Kurz:"));
        row({m_kurz, stahnout});
    } else {
        m_castkaCizi->Hide();
        m_kurz->Hide();
        stahnout->Hide();
    }
    if (m_doklad.prijem() && model && model->isFirmaPausal()) {
        label(u8("Paušální výdaj %:"));
        m_pausal = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, pausalHodnoty(), 0,
                                wxDefaultValidator, "pausal");
        const wxString value = wxString::Format("%d", m_form.pausal);
        if (m_form.pausal > 0 && m_pausal->FindString(value) == wxNOT_FOUND) m_pausal->Append(value);
        if (!m_pausal->SetStringSelection(value)) m_pausal->SetSelection(0);
        row({m_pausal});
    }

    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    addOkZrusit(this, top, [this] { return save(); });
    SetSizerAndFit(top);
    m_typ->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { setBanka(m_typ->GetSelection() == 1); });
    vybrat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { chooseRegistr(); });
    stahnout->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { onKurzDownload(); });
    m_castka->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(false); });
    m_castkaCizi->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(true); });
    m_kurz->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { recalculate(true); });
    m_datum->Bind(wxEVT_DATE_CHANGED, [this](wxDateEvent&) {
        DbModel* model = openModel();
        double kurz = 0;
        if (model && ulozenyKurz(*model, m_doklad.menaid, m_datum->GetValue(), &kurz)) {
            m_kurz->SetValue(kurz);
            recalculate(true);
        }
    });
}

void UhradaDialog::setBanka(bool banka) {
    DbModel* model = openModel();
    if (banka != m_form.banka && model) {
        m_form.banka = banka;
        if (banka) {
            const lxBankaArray banky = model->banky();
            m_registr->ChangeValue(banky.empty() ? wxString() : banky.front()->zkratka());
            m_vypis->SetValue(model->getLastVypis(model->getBankaIdByZkratka(m_registr->GetValue())));
        } else {
            const lxPokladnaArray pokladny = model->pokladny();
            m_registr->ChangeValue(pokladny.empty() ? wxString() : pokladny.front()->zkratka());
        }
    }
    m_form.banka = banka;
    m_registrLabel->SetLabel(u8(banka ? "Bankovní účet:" : "Pokladna:"));
    m_vypisLabel->Show(banka);
    m_vypis->Show(banka);
    Layout();
}

void UhradaDialog::recalculate(bool zCizi) {
    if (m_doklad.menaid == 1) return;
    Castky castky;
    if (m_kurz->GetValue(&castky.kurz) != lxformat::Chyba::ZADNA) return;
    if (zCizi) {
        if (m_castkaCizi->GetValue(&castky.castkacizi) != lxformat::Chyba::ZADNA) return;
        m_castka->SetValue(calculateValues(castky, ZmenaCastky::CASTKACIZI).castka);
    } else {
        if (m_castka->GetValue(&castky.castka) != lxformat::Chyba::ZADNA) return;
        m_castkaCizi->SetValue(calculateValues(castky, ZmenaCastky::CASTKA).castkacizi);
    }
}

void UhradaDialog::onKurzDownload() {
    DbModel* model = openModel();
    if (!model) return;
    double kurz = 0;
    wxBusyCursor busy;
    if (stahnoutKurz(*model, m_doklad.menaid, m_datum->GetValue(), &kurz)) {
        m_kurz->SetValue(kurz);
        recalculate(true);
    } else {
        prompts().info(u8("Kurz se nepodařilo získat"), u8("Informace"), this);
    }
}

void UhradaDialog::chooseRegistr() {
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

UhradaForm UhradaDialog::readForm(UhradaPole* chyba, wxString* zprava) const {
    UhradaForm form = m_form;
    bool failed = false;
    auto fail = [&](UhradaPole pole, const wxString& text) {
        if (failed) return;
        failed = true;
        if (chyba) *chyba = pole;
        if (zprava) *zprava = text;
    };
    if (chyba) *chyba = UhradaPole::ZADNE;
    form.registr = m_registr->GetValue().Strip(wxString::both);
    form.vypis = form.banka ? m_vypis->GetValue() : 0;
    form.datum = m_datum->GetValue();
    if (!form.datum.IsValid()) fail(UhradaPole::DATUM, lxformat::datumZprava(u8("Datum"), m_datum->text()));
    const auto amount = [&](const lxAmountCtrl* field, const wxString& name, double* value) {
        *value = 0;
        if (field->GetValue(value) != lxformat::Chyba::ZADNA) fail(UhradaPole::CASTKA, field->zprava(name));
    };
    amount(m_castka, u8("Částka v Kč"), &form.castka);
    if (m_doklad.menaid != 1) {
        amount(m_castkaCizi, u8("Částka v cizí měně"), &form.castkacizi);
        amount(m_kurz, u8("Kurz"), &form.kurz);
    } else {
        form.castkacizi = 0;
        form.kurz = 1;
    }
    if (m_pausal) parsePausal(m_pausal->GetStringSelection(), &form.pausal);
    return form;
}

bool UhradaDialog::save() {
    DbModel* model = openModel();
    if (!model) return false;
    m_datum->commitText();
    UhradaPole pole = UhradaPole::ZADNE;
    wxString message;
    const UhradaForm form = readForm(&pole, &message);
    if (message.empty()) message = ulozitUhradu(*model, m_doklad, form, &m_denikIds, &pole);
    if (!message.empty()) {
        prompts().info(message, u8("Informace"), this);
        focusField(pole);
        return false;
    }
    return true;
}

void UhradaDialog::focusField(UhradaPole pole) {
    switch (pole) {
        case UhradaPole::REGISTR:
            m_registr->SetFocus();
            m_registr->SelectAll();
            break;
        case UhradaPole::DATUM:
            m_datum->focusText();
            break;
        case UhradaPole::CASTKA: {
            lxAmountCtrl* field = m_doklad.menaid == 1 ? m_castka : m_castkaCizi;
            field->SetFocus();
            field->SelectAll();
            break;
        }
        default:
            break;
    }
}
