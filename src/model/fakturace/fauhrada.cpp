#include "fakturace/fauhrada.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

}  // namespace

wxString fauhradaValidation(DbModel& model, const wxString& uhrada, int id) {
    const wxString text = wxString(uhrada).Strip(wxString::both);
    if (text.empty()) return u8("Popis nemůže být prázdný");
    for (const auto& f : model.fauhrady()) {
        if (f->id() != id && f->uhrada() == text) return wxString::Format(u8("Úhrada '%s' už existuje\nZvolte jinou"), text);
    }
    return wxString();
}

wxString fauhradaDeleteRefusal(DbModel& model, int id) {
    const FaUhrada f = model.getFaUhrada(id);
    if (!f.isValid()) return wxString();
    if (model.isFauhradaUsed(id))
        return wxString::Format(u8("Nelze smazat úhradu\n%s\nprotože je použita v dokladech"), f.uhrada());
    if (model.fauhrady().size() <= 1) return u8("Nelze smazat poslední úhradu,\nv programu musí alespoň jedna existovat");
    return wxString();
}

int ulozitFauhradu(DbModel& model, int id, const wxString& uhrada, bool pokladnou, wxString* chyba) {
    *chyba = fauhradaValidation(model, uhrada, id);
    if (!chyba->empty()) return -1;
    const bool nova = id <= 0;
    const FaUhrada f(nova ? model.getLastId("fauhrada") : id, wxString(uhrada).Strip(wxString::both), pokladnou);
    if (!(nova ? model.addFaUhrada(f) : model.editFaUhrada(f))) return -1;
    return f.id();
}

bool smazatFauhradu(DbModel& model, int id, wxString* duvod) {
    *duvod = fauhradaDeleteRefusal(model, id);
    if (!duvod->empty() || !model.hasFaUhrada(id)) return false;
    return model.deleteFauhrada(id);
}
