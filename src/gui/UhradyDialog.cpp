#include "UhradyDialog.h"

#include <wx/button.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "UhradaDialog.h"
#include "dbmodel.h"
#include "lxformat.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
}

}  // namespace

UhradyDialog::UhradyDialog(wxWindow* parent, DruhDokladu druh, int id)
    : wxDialog(parent, wxID_ANY, wxString(), wxDefaultPosition, wxSize(640, 360),
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      m_druh(druh),
      m_id(id) {
    SetTitle(titulekUhrad(doklad()));
    m_list = new wxListCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(620, 240), wxLC_REPORT | wxLC_SINGLE_SEL,
                            wxDefaultValidator, "uhrady");
    const struct {
        const char* caption;
        int width;
        wxListColumnFormat format;
    } columns[] = {{"Datum", 90, wxLIST_FORMAT_LEFT},
                   {"Číslo dokladu", 100, wxLIST_FORMAT_LEFT},
                   {"Popis", 220, wxLIST_FORMAT_LEFT},
                   {"Částka", 110, wxLIST_FORMAT_RIGHT},
                   {"Pokladna / účet", 90, wxLIST_FORMAT_LEFT}};
    for (const auto& c : columns) m_list->AppendColumn(u8(c.caption), c.format, c.width);

    auto* pridat = new wxButton(this, wxID_ADD, u8("Přidat úhradu"));
    auto* smazat = new wxButton(this, wxID_DELETE, u8("Smazat úhradu"));
    auto* zavrit = new wxButton(this, wxID_CANCEL, u8("Zavřít"));
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(pridat);
    buttons->Add(smazat, wxSizerFlags().Border(wxLEFT, 6));
    buttons->AddStretchSpacer();
    buttons->Add(zavrit);
    auto* top = new wxBoxSizer(wxVERTICAL);
    top->Add(m_list, wxSizerFlags(1).Expand().Border(wxALL, 10));
    top->Add(buttons, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, 10));
    SetSizerAndFit(top);
    SetEscapeId(wxID_CANCEL);

    pridat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { addUhrada(); });
    smazat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) {
        const long row = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
        if (row >= 0 && row < static_cast<long>(m_ids.size())) deleteUhrada(m_ids[row]);
    });
    m_list->Bind(wxEVT_LIST_KEY_DOWN, [this](wxListEvent& event) {
        const long row = m_list->GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED);
        if (event.GetKeyCode() == WXK_DELETE && row >= 0 && row < static_cast<long>(m_ids.size()))
            deleteUhrada(m_ids[row]);
        else
            event.Skip();
    });
    refresh();
}

PlacenyDoklad UhradyDialog::doklad() const {
    DbModel* model = openModel();
    if (!model) return PlacenyDoklad();
    const bool faktura = m_druh == DruhDokladu::FAKTURA_VYDANA || m_druh == DruhDokladu::FAKTURA_PRIJATA;
    return faktura ? placenyFaktura(*model, m_id) : placenyZavPoh(*model, m_id);
}

void UhradyDialog::refresh() {
    m_list->DeleteAllItems();
    m_ids.clear();
    DbModel* model = openModel();
    if (!model) return;
    const bool faktura = m_druh == DruhDokladu::FAKTURA_VYDANA || m_druh == DruhDokladu::FAKTURA_PRIJATA;
    const lxDenikArray zapisy = faktura ? model->denikUhradForFaktura(m_id) : model->denikUhradForZavpoh(m_id);
    for (const auto& d : zapisy) {
        const long row = m_list->InsertItem(m_list->GetItemCount(), lxformat::formatDatum(d->datum()));
        m_list->SetItem(row, 1, d->cislo());
        m_list->SetItem(row, 2, d->popis());
        // The amount the entry settles, in the document's currency.
        const bool cizi = d->menaid() > 1;
        m_list->SetItem(row, 3,
                        lxformat::formatCastka(cizi ? d->castkacizi() : d->castka(),
                                               cizi ? model->kodMena(d->menaid()) : u8("Kč")));
        m_list->SetItem(row, 4, d->bankaid() > 0 ? model->getBankaZkratka(d->bankaid())
                                                 : model->getPokladnaZkratka(d->pokladnaid()));
        m_ids.push_back(d->id());
    }
}

void UhradyDialog::addUhrada() {
    const PlacenyDoklad d = doklad();
    if (!d.isValid()) return;
    UhradaDialog dialog(this, d);
    if (dialog.ShowModal() == wxID_OK) refresh();
}

void UhradyDialog::deleteUhrada(int denikId) {
    DbModel* model = openModel();
    if (!model) return;
    const Denik d = model->getDenik(denikId);
    if (!d.isValid()) return;
    if (!prompts().question(wxString::Format(u8("Opravdu smazat záznam\n%s\n%s?"), d.cislo(), d.popis()), u8("Dotaz"),
                            this))
        return;
    model->deleteDenik(denikId);
    refresh();
}
