#include "UlozeneDialog.h"

#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/listctrl.h>
#include <wx/utils.h>
#include <wx/window.h>

#include "dbmodel.h"
#include "dph/dphdp3.h"
#include "dph/dphkh1.h"
#include "dph/dphshv.h"
#include "dphdp3print.h"
#include "dphkh1print.h"
#include "dphshprint.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
const char* const INFORMACE = "Informace";

// Reads the stored XML into a filing of its kind and previews it; a text that cannot be read
// is reported and nothing opens.
template <class P>
void nahled(wxWindow* parent, const wxString& xml, void (*ukazat)(wxWindow*, const P&)) {
    P podani;
    wxString chyba;
    if (!podani.readFromString(xml, &chyba)) {
        prompts().info(chyba, u8(INFORMACE), parent);
        return;
    }
    ukazat(parent, podani);
}

void nahledDphdp3(wxWindow* parent, const Dphdp3& priznani) {
    Dphdp3Print print(parent, priznani);
    print.Preview();
}

}  // namespace

void nahledPodani(wxWindow* parent, int typ, const wxString& xml) {
    switch (typ) {
        case 0: return nahled<Dphdp3>(parent, xml, nahledDphdp3);
        case 1: return nahled<Dphshv>(parent, xml, nahledDphsh);
        case 2: return nahled<Dphkh1>(parent, xml, nahledDphkh1);
        default:
            prompts().info(u8("Náhled tohoto druhu podání tato verze programu neumí"), u8(INFORMACE), parent);
    }
}

UlozeneDialog::UlozeneDialog(wxWindow* parent)
    : SeznamDialog(parent, u8("Uložená přiznání"), strings({"Přiznání", "Popis"}),
                   {prikaz("Náhled přiznání", [this](int id) { nahled(id); }, true),
                    prikaz("Uložit přiznání jako", [this](int id) { ulozitJako(id); }),
                    prikaz("Smazat přiznání", [this](int id) { smazat(id); })},
                   false) {
    list()->SetColumnWidth(0, 170);
    list()->SetColumnWidth(1, 300);
    refresh();
}

SeznamDialog::Command UlozeneDialog::prikaz(const char* nazev, std::function<void(int)> run, bool dvojklik) {
    const wxString text = u8(nazev);
    return {text, [text](int) { return text; }, true, std::move(run), dvojklik};
}

UlozeneDialog::~UlozeneDialog() = default;

void UlozeneDialog::ukazat() {
    m_disabler = std::make_unique<wxWindowDisabler>(this);
    Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { Close(); }, wxID_CANCEL);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) {
        m_disabler.reset();
        Destroy();
    });
    Show();
}

wxString UlozeneDialog::druhNazev(int typ) {
    static const char* const nazvy[] = {"Přiznání k DPH", "Souhrnné hlášení DPH", "Kontrolní hlášení DPH"};
    return typ >= 0 && typ < 3 ? u8(nazvy[typ]) : wxString();
}

std::vector<SeznamDialog::Row> UlozeneDialog::rows() {
    std::vector<Row> all;
    DbModel* model = openModel();
    if (!model) return all;
    for (const auto& u : model->ulozene()) {
        wxArrayString cells;
        cells.Add(druhNazev(u->typ()));
        cells.Add(u->popis());
        all.push_back({u->id(), cells});
    }
    return all;
}

void UlozeneDialog::nahled(int id) {
    DbModel* model = openModel();
    if (!model || !model->hasUlozene(id)) return;
    const Ulozene u = model->getUlozene(id);
    nahledPodani(this, u.typ(), u.xml());
}

void UlozeneDialog::ulozitJako(int id) {
    DbModel* model = openModel();
    if (!model || !model->hasUlozene(id)) return;
    const wxString xml = model->ulozeneXml(id);
    wxString nazev = model->getUlozene(id).popis();
    for (wxUniChar bad : wxFileName::GetForbiddenChars()) nazev.Replace(wxString(bad), "_");
    nazev.Replace("/", "_");
    wxString path = prompts().chooseFile(u8("Uložit přiznání/hlášení jako"), wxGetHomeDir(), nazev.Trim() + ".xml",
                                         u8("XML soubory (*.xml)|*.xml"), true, this);
    if (path.empty()) return;
    if (!path.Lower().EndsWith(".xml")) path += ".xml";
    // The stored text is the filing as it was made; it goes out byte for byte as UTF-8.
    const wxScopedCharBuffer bytes = xml.utf8_str();
    wxFFile file(path, "wb");
    const bool ok = file.IsOpened() && file.Write(bytes.data(), bytes.length()) == bytes.length();
    if (!file.Close() || !ok) {
        prompts().info(wxString::Format(u8("Soubor %s se nepodařilo uložit"), path), u8(INFORMACE), this);
    }
}

void UlozeneDialog::smazat(int id) {
    DbModel* model = openModel();
    if (!model || !model->hasUlozene(id)) return;
    const Ulozene u = model->getUlozene(id);
    const wxString otazka =
        wxString::Format(u8("Opravdu smazat přiznání:\n%s\n%s?"), druhNazev(u.typ()), u.popis());
    if (!prompts().question(otazka, u8("Dotaz"), this)) return;
    if (!model->deleteUlozene(id)) prompts().info(u8("Přiznání se nepodařilo smazat"), u8(INFORMACE), this);
}
