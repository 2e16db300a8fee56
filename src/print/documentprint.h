// A Document over its pages: each page draws the elements that belong to it, placed from the
// document's top left margin corner.
#pragma once

#include "document.h"
#include "printcontroller.h"

class DocumentPrintout : public lxPrint {
 public:
    // The printout draws `document` (not owned).
    DocumentPrintout(const Document* document, const wxString& title);
    // The printout keeps the document it draws.
    DocumentPrintout(std::shared_ptr<const Document> document, const wxString& title);

 protected:
    bool printPage(wxDC* dc, int page, double mmFactor) override;

 private:
    const Document* m_document;
    std::shared_ptr<const Document> m_keptDocument;
};

class DocumentPrint : public lxPrintController {
 public:
    DocumentPrint(wxWindow* parent, const wxString& title);

    // The document to print, owned by the caller. Its margins, header and footer become the
    // print's layout (which the caller may still change).
    void setDocument(Document* document);
    Document* document() const { return m_document; }

    // The preview; `modal` blocks the other windows of the program while it is open (the
    // template editor uses that).
    wxPreviewFrame* Preview(bool modal = false);

    // Writes the document to a PDF and returns its full path, or an empty text when cancelled
    // or when no file could be written (failures are logged; a page that fails ends the
    // file early and the path of the shorter file is returned). With `ask` a save dialog "Uložit fakturu jako"
    // offers name + ".pdf" in the home folder; without it the file is name + ".pdf" in
    // pdfFolder(), where an e-mail attachment is made.
    wxString CreatePDF(const wxString& name, const wxString& title, bool ask);
    // The folder of PDF files made without a dialog: the per-user temporary folder.
    static wxString pdfFolder();

    int paginate() override;

 protected:
    std::unique_ptr<lxPrint> createPrintout(bool snapshot) override;

 private:
    Document* m_document = nullptr;
};
