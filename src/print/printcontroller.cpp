#include "printcontroller.h"

#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/printdlg.h>

#include "dbmodel.h"
#include "lxpdfdc.h"

lxPrintController::lxPrintController(wxWindow* parent, const wxString& title) : m_parent(parent), m_title(title) {}

lxPrintController::~lxPrintController() = default;

std::unique_ptr<lxPrint> lxPrintController::makePrintout(int pages, bool snapshot) {
    std::unique_ptr<lxPrint> printout = createPrintout(snapshot);
    printout->setLayout(m_layout);
    printout->setPages(pages);
    return printout;
}

wxPreviewFrame* lxPrintController::Preview() { return showPreview(false); }

wxPrintPreview* lxPrintController::createPreview() {
    const int pages = paginate();
    std::unique_ptr<lxPrint> forPreview = makePrintout(pages, true);
    std::unique_ptr<lxPrint> forPrinting = makePrintout(pages, true);
    wxPrintDialogData data(forPreview->printData());
    data.SetMinPage(1);
    data.SetMaxPage(pages);
    data.SetFromPage(1);
    data.SetToPage(pages);
    // The preview owns both printouts from here on.
    auto* preview = new wxPrintPreview(forPreview.release(), forPrinting.release(), &data);
    if (!preview->IsOk()) {
        delete preview;
        return nullptr;
    }
    return preview;
}

wxPreviewFrame* lxPrintController::showPreview(bool modal) {
    wxPrintPreview* preview = createPreview();
    if (!preview) {
        wxMessageBox(wxString::FromUTF8("Náhled tisku se nepodařilo připravit.\nZkontrolujte nastavení tiskárny."),
                     wxString::FromUTF8("Náhled"), wxOK | wxICON_ERROR);
        return nullptr;
    }
    preview->SetZoom(100);
    auto* frame = new wxPreviewFrame(preview, m_parent, m_title, wxDefaultPosition, wxSize(880, 650));
    // Over a modal dialog (a wizard, a dialog's print button) the preview is application-modal
    // itself: a plain frame opened there gets no mouse or keyboard while the dialog's modal
    // loop runs.
    wxWindow* top = m_parent ? wxGetTopLevelParent(m_parent) : nullptr;
    const bool overModal = top && top->IsKindOf(wxCLASSINFO(wxDialog)) && static_cast<wxDialog*>(top)->IsModal();
    frame->InitializeWithModality(modal || overModal ? wxPreviewFrame_AppModal : wxPreviewFrame_NonModal);
    frame->Centre(wxBOTH);
    frame->Show();
    return frame;
}

bool lxPrintController::Print() {
    const int pages = paginate();
    std::unique_ptr<lxPrint> printout = makePrintout(pages);
    wxPrintDialogData data(printout->printData());
    data.SetMinPage(1);
    data.SetMaxPage(pages);
    wxPrinter printer(&data);
    return printer.Print(m_parent, printout.get(), true);
}

bool lxPrintController::writePdf(const wxString& path, const wxString& title, wxString* error, bool* fileWritten) {
    const int pages = paginate();
    std::unique_ptr<lxPrint> printout = makePrintout(pages);
    const DbModel* model = DbModel::instance();
    const wxString author = model ? model->firma().nazev() : wxString();
    int written = 0;
    const bool file = lxPdfDC::writePrintout(*printout, path, title, author, error, &written);
    if (fileWritten) *fileWritten = file;
    return file && written == pages;
}
