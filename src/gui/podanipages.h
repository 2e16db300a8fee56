// Wizard pages that every VAT filing's wizard shares: the first page with its text and the
// taxpayer settings button, and the last page that prints or exports the finished filing.
#pragma once

#include <wx/wizard.h>

#include <functional>

class DbModel;
class Podani;

// The introduction and the "Nastavení plátce" button, which opens the taxpayer dialog.
class PodaniUvodPage : public wxWizardPageSimple {
 public:
    PodaniUvodPage(wxWizard* parent, DbModel* model, const wxString& text);
};

// The last page: the text, a link to the tax administration's filing portal, and the two
// buttons. `podani` gives the computed filing when a button is pressed; `tisk` previews it.
class PodaniKonecPage : public wxWizardPageSimple {
 public:
    struct Texty {
        wxString text;        // above the link
        wxString tisk;        // "Tisk přiznání"
        wxString exportu;     // "Export přiznání"
        wxString exportDo;    // the file dialog's title, "Exportovat přiznání do"
        wxString soubor;      // the offered file name
    };
    PodaniKonecPage(wxWizard* parent, const Texty& texty, std::function<const Podani&()> podani,
                    std::function<void(const Podani&)> tisk);

    // The export of the button: asks for the file, checks the filing against the official
    // schema and writes it; the schema's complaints are shown and no file is written.
    // Returns whether a file was written.
    bool exportovat();
    void tisknout();
    // A check run before printing and exporting; when it returns false (having said why),
    // neither happens. None by default.
    void setPovoleni(std::function<bool()> povoleni) { m_povoleni = std::move(povoleni); }

 private:
    Texty m_texty;
    std::function<bool()> m_povoleni;
    std::function<const Podani&()> m_podani;
    std::function<void(const Podani&)> m_tisk;
};

// The address of the tax administration's electronic filing portal.
extern const char* const EPO_URL;
