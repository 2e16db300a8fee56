#include "qrplatba.h"

#include <qrcodegen/qrcodegen.hpp>

namespace qrplatba {

wxString qrtext(const Platba& p) {
    wxString text = "SPD*1.0*ACC:" + p.iban;
    if (!p.bic.empty()) text += "+" + p.bic;
    text += "*AM:" + wxString::FromCDouble(p.celkem, -1);
    text += "*CC:" + p.mena;
    text += "*DT:" + (p.splatnost.IsValid() ? p.splatnost.Format("%Y%m%d") : wxString());
    text += "*X-VS:" + p.vs;
    if (!p.ss.empty()) text += "*X-SS:" + p.ss;
    if (!p.ks.empty()) text += "*X-KS:" + p.ks;
    return text;
}

bool isFakturaForQrPlatba(DbModel& model, const Faktura& f) {
    if (!f.isValid() || !f.vydana()) return false;
    const FaUhrada uhrada = f.uhradaid() > 0 ? model.getFaUhrada(f.uhradaid()) : FaUhrada();
    if (!uhrada.isValid() || uhrada.pokladnou()) return false;
    const Banka banka = f.bankaid() > 0 ? model.getBanka(f.bankaid()) : Banka();
    return banka.isValid() && !banka.iban().Strip(wxString::both).empty();
}

wxString qrtext(DbModel& model, const Faktura& f) {
    if (!isFakturaForQrPlatba(model, f)) return wxString();
    const Banka banka = model.getBanka(f.bankaid());
    Platba p;
    p.iban = banka.iban().Strip(wxString::both);
    p.bic = banka.bic().Strip(wxString::both);
    p.celkem = f.celkem();
    p.mena = model.kodMena(f.menaid());
    p.splatnost = f.splatnost();
    p.vs = f.vs();
    p.ss = f.ss();
    p.ks = f.ks();
    return qrtext(p);
}

Symbol symbol(const wxString& text) {
    const qrcodegen::QrCode qr =
        qrcodegen::QrCode::encodeText(text.utf8_str().data(), qrcodegen::QrCode::Ecc::MEDIUM);
    Symbol s;
    s.size = qr.getSize();
    s.tmave.reserve(static_cast<size_t>(s.size) * s.size);
    for (int y = 0; y < s.size; ++y)
        for (int x = 0; x < s.size; ++x) s.tmave.push_back(qr.getModule(x, y));
    return s;
}

}  // namespace qrplatba
