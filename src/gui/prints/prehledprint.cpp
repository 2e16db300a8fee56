#include "prehledprint.h"

#include <algorithm>

namespace {
wxString u8(const char* text) { return wxString::FromUTF8(text); }
}  // namespace

PrehledPrint::PrehledPrint(wxWindow* parent, const Prehled& p) : DocumentPrint(parent, u8("Přehled firmy")) {
    m_prehled.layout.marginLeft = 10;
    m_prehled.layout.marginRight = 10;
    m_prehled.layout.marginTop = 15;
    m_prehled.layout.marginBottom = 15;
    m_prehled.layout.footer = lxPrint::FOOTER_NONE;

    const wxColour black(0, 0, 0), white(255, 255, 255);
    const TextStyle nadpis(printFont(16).Bold(), black, white);
    const TextStyle firma(printFont(13).Bold(), black, white);
    const TextStyle text(printFont(10), black, white);

    m_prehled.addElement(TextElement(m_title, wxPoint(0, 0), 190, wxTEXT_ALIGNMENT_CENTRE, nadpis));
    m_prehled.addElement(TextElement(p.firma, wxPoint(0, 14), 190, wxTEXT_ALIGNMENT_LEFT, firma));
    wxString udaje;
    if (!p.ic.empty()) udaje += u8("IČ: ") + p.ic + ", ";
    udaje += p.obdobi;
    m_prehled.addElement(TextElement(udaje, wxPoint(0, 21), 190, wxTEXT_ALIGNMENT_LEFT, text));
    m_prehled.addElement(LineElement(wxPoint(0, 27), wxPoint(190, 27)));

    // Two columns; a row is as tall as the longer of its two summaries.
    int y = 31;
    for (size_t i = 0; i < p.souhrny.size(); i += 2) {
        int rowHeight = 0;
        for (size_t c = 0; c < 2 && i + c < p.souhrny.size(); ++c) {
            TextElement souhrn(p.souhrny[i + c], wxPoint(c * 95, y), 90, wxTEXT_ALIGNMENT_LEFT, text);
            rowHeight = std::max(rowHeight, static_cast<int>(souhrn.height(false) + 0.999));
            m_prehled.addElement(souhrn);
        }
        y += rowHeight + 5;
    }
    m_prehled.sortElements();
    setDocument(&m_prehled);
}
