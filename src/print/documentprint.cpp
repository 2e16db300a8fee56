#include "documentprint.h"

#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <algorithm>

DocumentPrintout::DocumentPrintout(const Document* document, const wxString& title)
    : lxPrint(title), m_document(document) {}

DocumentPrintout::DocumentPrintout(std::shared_ptr<const Document> document, const wxString& title)
    : lxPrint(title), m_document(document.get()), m_keptDocument(std::move(document)) {}

bool DocumentPrintout::printPage(wxDC* dc, int page, double mmFactor) {
    if (!m_document) return true;  // nothing to print: header and footer only
    const Layout& l = layout();
    for (Element* e : m_document->elementsByPage(page)) e->DrawToDC(dc, mmFactor, l.marginLeft, l.marginTop);
    return true;
}

DocumentPrint::DocumentPrint(wxWindow* parent, const wxString& title) : lxPrintController(parent, title) {}

void DocumentPrint::setDocument(Document* document) {
    m_document = document;
    if (document) m_layout = document->layout;
}

int DocumentPrint::paginate() {
    if (!m_document) return 1;
    return std::max(m_document->pages, m_document->lastElementPage());
}

std::unique_ptr<lxPrint> DocumentPrint::createPrintout(bool snapshot) {
    if (snapshot && m_document)
        return std::make_unique<DocumentPrintout>(std::make_shared<const Document>(*m_document), m_title);
    return std::make_unique<DocumentPrintout>(m_document, m_title);
}

wxPreviewFrame* DocumentPrint::Preview(bool modal) { return showPreview(modal); }

wxString DocumentPrint::pdfFolder() { return wxStandardPaths::Get().GetTempDir(); }

wxString DocumentPrint::CreatePDF(const wxString& name, const wxString& title, bool ask) {
    // Invoice numbers such as "FV2024/001" would otherwise name a folder.
    wxString fileName = name.empty() ? wxString("dokument") : name;
    for (wxUniChar bad : wxFileName::GetForbiddenChars()) fileName.Replace(wxString(bad), "_");
    fileName.Replace("/", "_");
    fileName += ".pdf";

    wxString path;
    if (ask) {
        wxFileDialog dialog(m_parent, wxString::FromUTF8("Uložit fakturu jako"), wxGetHomeDir(), fileName,
                            "PDF soubor (*.pdf)|*pdf", wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
        if (dialog.ShowModal() != wxID_OK) return wxString();
        path = dialog.GetPath();
    } else {
        path = wxFileName(pdfFolder(), fileName).GetFullPath();
    }
    wxString error;
    bool written = false;
    if (!writePdf(path, title, &error, &written)) {
        wxLogError(error);
        // A page that failed ends the file early; what was drawn before it is still a file.
        if (!written) return wxString();
    }
    return path;
}
