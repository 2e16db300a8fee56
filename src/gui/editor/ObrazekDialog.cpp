#include "ObrazekDialog.h"

#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/filepicker.h>

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The special paths in the order of the source choice after "Soubor".
const char* const SPECIAL[] = {ImageElement::PATH_LOGO, ImageElement::PATH_STAMP, ImageElement::PATH_QR};

}  // namespace

ObrazekDialog::ObrazekDialog(wxWindow* parent, ImageElement& element)
    : PrvekDialog(parent, u8("Obrázek")), m_element(element) {
    wxArrayString zdroje;
    zdroje.push_back(u8("Soubor obrázku"));
    zdroje.push_back(wxString::Format(u8("Logo firmy %s"), ImageElement::PATH_LOGO));
    zdroje.push_back(wxString::Format(u8("Razítko firmy %s"), ImageElement::PATH_STAMP));
    zdroje.push_back(wxString::Format(u8("QR platba %s"), ImageElement::PATH_QR));
    m_zdroj = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, zdroje, 0, wxDefaultValidator, "zdroj");
    int zdroj = ZDROJ_SOUBOR;
    for (int i = 0; i < 3; ++i)
        if (element.path == SPECIAL[i]) zdroj = ZDROJ_LOGO + i;
    m_zdroj->SetSelection(zdroj);
    m_zdroj->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { onZdroj(); });
    addField("Obrázek:", m_zdroj);
    m_soubor = new wxFilePickerCtrl(
        this, wxID_ANY, zdroj == ZDROJ_SOUBOR ? element.path : wxString(), u8("Vyberte obrázek"),
        u8("Obrázky (*.png;*.jpg;*.jpeg;*.gif;*.bmp)|*.png;*.jpg;*.jpeg;*.gif;*.bmp"), wxDefaultPosition,
        wxSize(320, -1), wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL, wxDefaultValidator, "soubor");
    addField("Soubor:", m_soubor);
    addPair("Pozice (mm):", "x", "y", element.pos, 0, MAX_MM);
    addNumber("Šířka (mm):", "sirka", element.width, 1, MAX_MM);
    addAlignment(element.alignment);
    addSectionAndPage(element);
    finish();
    onZdroj();
}

void ObrazekDialog::onZdroj() { m_soubor->Enable(m_zdroj->GetSelection() == ZDROJ_SOUBOR); }

bool ObrazekDialog::save() {
    ImageElement e = m_element;
    const int zdroj = m_zdroj->GetSelection();
    if (zdroj > ZDROJ_SOUBOR && zdroj <= ZDROJ_QR) {
        e.path = SPECIAL[zdroj - ZDROJ_LOGO];
    } else {
        const wxString path = m_soubor->GetPath().Strip(wxString::both);
        if (path.empty()) {
            refused(u8("Vyberte soubor obrázku."), m_soubor);
            return false;
        }
        if (!wxFileName::FileExists(path)) {
            refused(wxString::Format(u8("Soubor obrázku %s neexistuje."), path), m_soubor);
            return false;
        }
        e.path = path;
    }
    if (!readPair("x", "y", &e.pos) || !readNumber("sirka", &e.width) || !readSectionAndPage(e)) return false;
    e.alignment = alignment();
    m_element = e;
    return true;
}
