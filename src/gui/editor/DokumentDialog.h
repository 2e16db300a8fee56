// "Vlastnosti dokumentu": the template's margins, running header and footer and the default
// text style of new elements.
#pragma once

#include "PrvekDialog.h"
#include "document.h"

class DokumentDialog : public PrvekDialog {
 public:
    DokumentDialog(wxWindow* parent, Document& document);
    bool save() override;

 private:
    Document& m_document;
    wxTextCtrl* m_headerLeft;
    wxTextCtrl* m_headerCenter;
    wxTextCtrl* m_headerRight;
    wxCheckBox* m_headerLine;
    wxChoice* m_footerType;
    wxTextCtrl* m_footerText;
};
