// lxPrintController: what the four print controllers (TablePrint, SplitTablePrint,
// MultiTablePrint, DocumentPrint) share. A controller keeps the parent window, the print
// title and the page layout, lays its content out and makes fresh printouts for every
// preview, print or PDF.
#pragma once

#include <wx/string.h>

#include <memory>

#include "lxprint.h"

class wxPreviewFrame;
class wxPrintPreview;
class wxWindow;

class lxPrintController {
 public:
    lxPrintController(wxWindow* parent, const wxString& title);
    virtual ~lxPrintController();
    lxPrintController(const lxPrintController&) = delete;
    lxPrintController& operator=(const lxPrintController&) = delete;

    const wxString& printTitle() const { return m_title; }
    lxPrint::Layout& layout() { return m_layout; }
    // The running header of the program's books: the company on the left, the print's title
    // on the right, a rule under them.
    void setBookHeader(const wxString& firma) {
        m_layout.headerLeftText = firma;
        m_layout.headerRightText = m_title;
        m_layout.headerLine = true;
    }
    const lxPrint::Layout& layout() const { return m_layout; }

    // Opens the preview frame (880 x 650, zoom 100 %) and returns it, or shows the message
    // "There was a problem with previewing..." and returns null.
    wxPreviewFrame* Preview();
    // Lays the content out and makes the preview object over two fresh printouts (one shown,
    // one to print from the preview), or returns null when it cannot be made. The caller, or
    // the preview frame it is handed to, owns it.
    wxPrintPreview* createPreview();
    // Prints through the system print dialog; false when cancelled or failed.
    bool Print();
    // Writes every page into a PDF file at `path`: the title in the metadata when not empty,
    // the open company's name as the author. Returns true when every page was written;
    // otherwise *error holds a Czech message, and *fileWritten tells whether a file with
    // the pages before a failed one exists all the same.
    bool writePdf(const wxString& path, const wxString& title, wxString* error = nullptr, bool* fileWritten = nullptr);

    // Lays the content out and returns the number of pages.
    virtual int paginate() = 0;

 protected:
    // A new printout over the content, without layout and page count (see makePrintout).
    // With `snapshot` it draws its own copy of the content: a preview frame outlives the
    // call that opened it, and often the controller and its content too.
    virtual std::unique_ptr<lxPrint> createPrintout(bool snapshot) = 0;
    // A new printout with the layout and the page count of the last pagination.
    std::unique_ptr<lxPrint> makePrintout(int pages, bool snapshot = false);
    wxPreviewFrame* showPreview(bool modal);

    wxWindow* m_parent;
    wxString m_title;
    lxPrint::Layout m_layout;
};
