#include "fakturatisk.h"

#include <wx/filefn.h>
#include <wx/utils.h>

#include "dbmodel.h"
#include "fakturaprint.h"
#include "lxsettings.h"
#include "printchoice.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

std::unique_ptr<DocumentPrint> vyberTiskFaktury(wxWindow* parent, int fakturaId) {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return nullptr;
    bool ok = false;
    const FakturaTisk data = nactiFakturu(*model, fakturaId, &ok);
    if (!ok || !data.faktura.vydana()) {
        prompts().info(u8("Vyberte vydanou fakturu, kterou chcete tisknout"), wxString(), parent);
        return nullptr;
    }

    const wxString vychozi = u8("Výchozí šablona programu");
    const wxString posledni = u8("Poslední použitá šablona");
    const wxString zeSouboru = u8("Ze souboru");
    lxSettings* settings = lxSettings::instance();
    const wxString minula = settings ? settings->fakturaSablona() : wxString();
    wxArrayString volby;
    volby.push_back(vychozi);
    if (!minula.empty() && wxFileExists(minula)) volby.push_back(posledni);
    volby.push_back(zeSouboru);
    const int volba = prompts().singleChoice(u8("Vyberte typ šablony"), u8("Typ šablony"), volby, 0, parent);
    if (volba < 0 || volba >= static_cast<int>(volby.size())) return nullptr;

    if (volby[volba] == vychozi) {
        if (data.faktura.platce()) return std::make_unique<FakturaPlatcePrint>(parent, data);
        return std::make_unique<FakturaNeplatcePrint>(parent, data);
    }
    wxString path = minula;
    if (volby[volba] == zeSouboru) {
        path = prompts().chooseFile(u8("Otevřít šablonu"), wxGetHomeDir(), wxString(), u8("XML soubor (*.xml)|*.xml"),
                                    false, parent);
        if (path.empty()) return nullptr;
    }
    auto print = std::make_unique<FakturaXmlPrint>(parent, data, path);
    if (!print->ok()) {
        prompts().error(print->error(), u8("Chyba"), parent);
        return nullptr;
    }
    if (settings) {
        settings->setFakturaSablona(path);
        settings->save();
    }
    return print;
}

wxString fakturaPdf(wxWindow* parent, int fakturaId) {
    std::unique_ptr<DocumentPrint> print = vyberTiskFaktury(parent, fakturaId);
    if (!print) return wxString();
    DbModel* model = DbModel::instance();
    const wxString cislo = model ? model->getFakturaCisloById(fakturaId) : wxString();
    return print->CreatePDF(cislo, wxString::Format(u8("Faktura č. %s"), cislo), false);
}

void tiskFaktury(wxWindow* parent, int fakturaId) {
    std::unique_ptr<DocumentPrint> print = vyberTiskFaktury(parent, fakturaId);
    if (!print) return;
    DbModel* model = DbModel::instance();
    nahledNeboPdf(*print, model ? model->getFakturaCisloById(fakturaId) : wxString(), parent);
}
