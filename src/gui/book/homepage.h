// HomePage: the first page of the book: the open company with its accounting year and the
// model's summaries of income, expenses, and the unpaid issued and received invoices,
// receivables and liabilities.
#pragma once

#include <wx/html/htmlwin.h>

#include "prehledprint.h"

class DbModel;

class HomePage : public wxHtmlWindow {
 public:
    explicit HomePage(wxWindow* parent);

    // Shows the summaries of the open company again.
    void refresh();
    // The page's HTML for a model (null or closed: a page saying no company is open).
    static wxString html(DbModel* model);
    // What the overview print shows of the open company: the page's texts without markup.
    static Prehled prehled(DbModel* model);

    // The links under the summaries: the overview as a one-page document, and the balances
    // of the cash registers and bank accounts as two tables; each to a preview or a PDF.
    // They return the PDF written, if any.
    wxString printPrehled();
    wxString printStavUctu();

 protected:
    void OnLinkClicked(const wxHtmlLinkInfo& link) override;
};
