#include "FauhradaDialog.h"

#include <wx/checkbox.h>
#include <wx/textctrl.h>

#include "fakturace/fauhrada.h"

FauhradaDialog::FauhradaDialog(wxWindow* parent, int id, int vzor)
    : FormDialog(parent, wxString::FromUTF8("Zadejte úhradu")), m_id(id) {
    m_uhrada = addText("Úhrada:", "uhrada", 240);
    m_pokladnou = new wxCheckBox(this, wxID_ANY, wxString::FromUTF8("Pokladnou"), wxDefaultPosition, wxDefaultSize, 0,
                                 wxDefaultValidator, "pokladnou");
    addField("", m_pokladnou);
    DbModel* model = DbModel::instance();
    FaUhrada fauhrada;
    if (model && model->isOpen() && (id > 0 || vzor > 0)) fauhrada = model->getFaUhrada(id > 0 ? id : vzor);
    if (fauhrada.isValid()) {
        if (id > 0) m_uhrada->ChangeValue(fauhrada.uhrada());
        m_pokladnou->SetValue(fauhrada.pokladnou());
    }
    finish();
}

bool FauhradaDialog::save() {
    DbModel* model = DbModel::instance();
    if (!model || !model->isOpen()) return false;
    wxString chyba;
    const int id = ulozitFauhradu(*model, m_id, m_uhrada->GetValue(), m_pokladnou->GetValue(), &chyba);
    if (refused(chyba, m_uhrada) || id <= 0) return false;
    m_id = id;
    return true;
}
