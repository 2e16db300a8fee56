// The list of VAT documents: the user picks a period and prints the list or exports it as
// CSV. The list itself is made by seznamdph (GUI-free); the dialog asks, checks and hands on.
#pragma once

#include <wx/dialog.h>

#include "dph/dphdoklad.h"
#include "dph/dphobdobi.h"

class DbModel;
class ObdobiPanel;

class SeznamDphDialog : public wxDialog {
 public:
    explicit SeznamDphDialog(wxWindow* parent);

    ObdobiPanel* obdobiPanel() const { return m_obdobi; }

    // "Tisk seznamu": the print to the preview or a PDF; the PDF's path, else empty.
    wxString tiskSeznamu();
    // "Export seznamu": the CSV file where the user chooses; its path, else empty.
    wxString exportSeznamu();

    // The CSV header line of documents with the rate lines `lines`.
    static wxString createHeader(const lxDphForDokladArray& lines);
    // The CSV lines of the section over the classifications of `radky`; empty when it has no
    // documents in the period.
    static wxString createRowsForRadky(const wxArrayString& radky, const wxDateTime& od, const wxDateTime& doDne,
                                       const wxString& nadpis, const wxString& podnadpis);

 private:
    // The chosen period when it reads and has documents; otherwise tells why and gives false.
    bool vybraneObdobi(DbModel** model, DphObdobi* obdobi);

    ObdobiPanel* m_obdobi = nullptr;
};
