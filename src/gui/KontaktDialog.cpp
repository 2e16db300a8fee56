#include "KontaktDialog.h"

#include <wx/button.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "dbmodel.h"
#include "kontaktcheck.h"
#include "prompts.h"

namespace {

struct FieldInfo {
    const char* label;
    const char* name;  // the control's window name
    int width;
};

// In the order of KontaktDialog::Field.
const FieldInfo FIELD_INFO[] = {{"Název:", "nazev", 300}, {"Jméno:", "jmeno", 300},  {"IČ:", "ic", 120},
                                {"DIČ:", "dic", 140},     {"E-mail:", "email", 300}, {"Ulice:", "ulice", 300},
                                {"Č.p.:", "cp", 80},      {"Místo:", "misto", 300},  {"PSČ:", "psc", 80},
                                {"Země:", "zeme", 200}};

}  // namespace

KontaktDialog::KontaktDialog(wxWindow* parent, int kontaktId) : wxDialog(parent, wxID_ANY, "Kontakt") {
    auto* grid = new wxFlexGridSizer(2, wxSize(8, 6));
    grid->AddGrowableCol(1);
    for (const FieldInfo& info : FIELD_INFO) {
        grid->Add(new wxStaticText(this, wxID_ANY, wxString::FromUTF8(info.label)), wxSizerFlags().CentreVertical());
        auto* text = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(info.width, -1), 0,
                                    wxDefaultValidator, info.name);
        m_fields.push_back(text);
        grid->Add(text);
    }
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(grid, wxSizerFlags(1).Expand().Border(wxALL, 10));
    auto* buttons = new wxStdDialogButtonSizer();
    buttons->AddButton(new wxButton(this, wxID_OK, "OK"));
    buttons->AddButton(new wxButton(this, wxID_CANCEL, wxString::FromUTF8("Zrušit")));
    buttons->Realize();
    top->Add(buttons, wxSizerFlags().Expand().Border(wxALL, 10));
    SetSizerAndFit(top);

    Bind(
        wxEVT_BUTTON,
        [this](wxCommandEvent&) {
            if (save()) EndModal(wxID_OK);
        },
        wxID_OK);

    DbModel* model = DbModel::instance();
    if (kontaktId > 0 && model && model->isOpen()) {
        const Kontakt kontakt = model->getKontakt(kontaktId);
        if (kontakt.isValid()) setKontakt(kontakt, model->getAdresa(kontakt.adresaid()));
    }
    m_fields[NAZEV]->SetFocus();
}

void KontaktDialog::setKontakt(const Kontakt& kontakt, const Adresa& adresa) {
    m_kontakt = kontakt;
    const wxString values[] = {kontakt.nazev(), kontakt.jmeno(), kontakt.ic(),   kontakt.dic(), kontakt.email(),
                               adresa.ulice(),  adresa.cp(),     adresa.misto(), adresa.psc(),  adresa.zeme()};
    for (int f = 0; f < FIELDS; ++f) m_fields[f]->ChangeValue(values[f]);
}

wxString KontaktDialog::value(Field field) const { return m_fields[field]->GetValue().Strip(wxString::both); }

Kontakt KontaktDialog::kontakt() const {
    // A new contact is listed in the address book; an edited one keeps its flag.
    const bool isPublic = m_kontakt.isValid() ? m_kontakt.isPublic() : true;
    return Kontakt(m_kontakt.isValid() ? m_kontakt.id() : -1, value(NAZEV), value(JMENO), value(IC), value(DIC),
                   value(EMAIL), isPublic, m_kontakt.isValid() ? m_kontakt.adresaid() : -1);
}

Adresa KontaktDialog::adresa() const {
    return Adresa(m_kontakt.isValid() ? m_kontakt.adresaid() : -1, value(ULICE), value(CP), value(MISTO), value(PSC),
                  value(ZEME));
}

bool KontaktDialog::save() {
    if (value(NAZEV).empty()) {
        prompts().info(wxString::FromUTF8("Název nemůže být prázdný"), wxString(), this);
        m_fields[NAZEV]->SetFocus();
        return false;
    }
    // A number that fails its check is most often a typo, but a foreign partner's may not fit
    // our rules: the user decides.
    const wxString varovani = kontaktcheck::warnings(kontakt());
    if (!varovani.empty() &&
        !prompts().question(varovani + wxString::FromUTF8("Přesto uložit?"), wxString::FromUTF8("Dotaz"), this)) {
        const Kontakt k = kontakt();
        const Field first = !k.ic().empty() && !kontaktcheck::isIcValid(k.ic())      ? IC
                            : !k.dic().empty() && !kontaktcheck::isDicValid(k.dic()) ? DIC
                                                                                     : EMAIL;
        m_fields[first]->SetFocus();
        return false;
    }
    DbModel* model = DbModel::instance();
    bool ok = false;
    if (model && model->isOpen()) {
        if (m_kontakt.isValid() && m_kontakt.id() > 0) {
            ok = model->editKontaktSAdresou(kontakt(), adresa());
            if (ok) m_kontakt = model->getKontakt(m_kontakt.id());
        } else {
            const int id = model->addKontaktSAdresou(kontakt(), adresa());
            ok = id > 0;
            if (ok) m_kontakt = model->getKontakt(id);
        }
    }
    if (!ok) prompts().info(wxString::FromUTF8("Kontakt se nepodařilo uložit"), wxString(), this);
    return ok;
}
