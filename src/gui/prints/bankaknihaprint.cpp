#include "bankaknihaprint.h"

#include "lxformat.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }
wxString castka(double value) { return lxformat::formatCastka(value); }

}  // namespace

BankaKnihaPrint::BankaKnihaPrint(wxWindow* parent, const wxString& firma, int rok,
                                 const std::vector<BankovniUcet>& ucty)
    : MultiTablePrint(parent, wxString::Format(u8("Bankovní kniha %d"), rok)) {
    setBookHeader(firma);

    for (const BankovniUcet& ucet : ucty) {
        double prijmy = 0, vydaje = 0, stav = 0;
        Table kniha = tabulkaPohybu(
            ucet.nazev + u8("\nPočáteční stav: ") + lxformat::formatCastka(ucet.pocatecniStav, ucet.mena),
            ucet.pocatecniStav, ucet.pohyby, &prijmy, &vydaje, &stav);
        kniha.addRow();
        kniha.addCell(u8("Celkem"));
        kniha.addCell(wxString());
        kniha.addCell(u8("Konečný stav"));
        kniha.addCell(castka(prijmy), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(castka(vydaje), wxTEXT_ALIGNMENT_RIGHT);
        kniha.addCell(castka(stav), wxTEXT_ALIGNMENT_RIGHT);
        m_tabulky.push_back(kniha);
    }
    setTables(&m_tabulky);
}
