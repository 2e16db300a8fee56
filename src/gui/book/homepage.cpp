#include "homepage.h"

#include "dbmodel.h"

namespace {

// Company names are the user's text; they must not be read as markup.
wxString escape(const wxString& text) {
    wxString out;
    out.reserve(text.length());
    for (const wxUniChar c : text) {
        switch (c.GetValue()) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

}  // namespace

HomePage::HomePage(wxWindow* parent)
    : wxHtmlWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxHW_SCROLLBAR_AUTO) {
    refresh();
}

void HomePage::refresh() { SetPage(html(DbModel::instance())); }

wxString HomePage::html(DbModel* model) {
    wxString page = "<html><body>";
    if (!model || !model->isOpen()) {
        page += wxString::FromUTF8("<p>Není otevřena žádná firma.</p>");
        return page + "</body></html>";
    }
    const Firma& firma = model->firma();
    page += "<h2>" + escape(firma.nazev()) + "</h2>";
    wxString udaje;
    if (!firma.ic().empty()) udaje += wxString::FromUTF8("IČ: ") + escape(firma.ic()) + ", ";
    udaje += wxString::Format(wxString::FromUTF8("účetní období %d"), model->currentRok());
    page += "<p>" + udaje + "</p>";
    // Two summaries side by side: the journal, the invoices, then receivables and liabilities.
    const wxString cells[][2] = {{model->homepagePrijmy(), model->homepageVydaje()},
                                 {model->homepageVydane(), model->homepagePrijate()},
                                 {model->homepagePohledavky(), model->homepageZavazky()}};
    page += "<table cellspacing=\"0\" cellpadding=\"6\">";
    for (const auto& row : cells)
        page += "<tr><td valign=\"top\" width=\"260\">" + row[0] + "</td><td valign=\"top\">" + row[1] + "</td></tr>";
    page += "</table>";
    return page + "</body></html>";
}
