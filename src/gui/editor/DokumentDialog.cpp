#include "DokumentDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

namespace {
constexpr int MAX_MARGIN = 100;
}

DokumentDialog::DokumentDialog(wxWindow* parent, Document& document)
    : PrvekDialog(parent, wxString::FromUTF8("Vlastnosti dokumentu")), m_document(document) {
    const lxPrint::Layout& l = document.layout;
    addPair("Okraj vlevo, vpravo (mm):", "okrajVlevo", "okrajVpravo", wxPoint(l.marginLeft, l.marginRight), 0,
            MAX_MARGIN, "vlevo:", "vpravo:");
    addPair("Okraj nahoře, dole (mm):", "okrajNahore", "okrajDole", wxPoint(l.marginTop, l.marginBottom), 0, MAX_MARGIN,
            "nahoře:", "dole:");
    m_headerLeft = addText("Záhlaví vlevo:", "zahlaviVlevo", 320);
    m_headerCenter = addText("Záhlaví uprostřed:", "zahlaviStred", 320);
    m_headerRight = addText("Záhlaví vpravo:", "zahlaviVpravo", 320);
    m_headerLeft->ChangeValue(l.headerLeftText);
    m_headerCenter->ChangeValue(l.headerCenterText);
    m_headerRight->ChangeValue(l.headerRightText);
    m_headerLine = addCheck("Oddělit záhlaví čarou", "caraZahlavi", l.headerLine);
    wxArrayString types;
    for (const char* t : {"Číslo stránky", "Text", "Žádné"}) types.push_back(wxString::FromUTF8(t));
    m_footerType =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, types, 0, wxDefaultValidator, "typZapati");
    m_footerType->SetSelection(l.footer);
    m_footerType->Bind(wxEVT_CHOICE,
                       [this](wxCommandEvent&) { m_footerText->Enable(m_footerType->GetSelection() == 1); });
    addField("Zápatí:", m_footerType);
    m_footerText = addText("Text zápatí:", "textZapati", 320);
    m_footerText->ChangeValue(l.footerText);
    m_footerText->Enable(l.footer == lxPrint::FOOTER_TEXT);
    addTextStyle(document.style);
    finish();
}

bool DokumentDialog::save() {
    lxPrint::Layout l = m_document.layout;
    wxPoint leftRight, topBottom;
    if (!readPair("okrajVlevo", "okrajVpravo", &leftRight) || !readPair("okrajNahore", "okrajDole", &topBottom))
        return false;
    l.marginLeft = leftRight.x;
    l.marginRight = leftRight.y;
    l.marginTop = topBottom.x;
    l.marginBottom = topBottom.y;
    l.headerLeftText = m_headerLeft->GetValue();
    l.headerCenterText = m_headerCenter->GetValue();
    l.headerRightText = m_headerRight->GetValue();
    l.headerLine = m_headerLine->GetValue();
    l.footer = static_cast<lxPrint::Footer>(m_footerType->GetSelection());
    l.footerText = m_footerText->GetValue();
    m_document.layout = l;
    m_document.style = textStyle();
    return true;
}
