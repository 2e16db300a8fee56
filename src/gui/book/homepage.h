// HomePage: the first page of the book: the open company with its accounting year and the
// model's summaries of income, expenses, and the unpaid issued and received invoices,
// receivables and liabilities.
#pragma once

#include <wx/html/htmlwin.h>

class DbModel;

class HomePage : public wxHtmlWindow {
 public:
    explicit HomePage(wxWindow* parent);

    // Shows the summaries of the open company again.
    void refresh();
    // The page's HTML for a model (null or closed: a page saying no company is open).
    static wxString html(DbModel* model);
};
