#include "homepage.h"

#include "NeuhrazeneDialog.h"
#include "dbmodel.h"
#include "printchoice.h"
#include "stavuctuprint.h"

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

// A summary fragment ("<b>Příjmy:</b><br>Daňové: ...<br>") as lines of text.
wxString plainText(const wxString& html) {
    wxString text = html;
    text.Replace("<br>", "\n");
    wxString out;
    bool inTag = false;
    for (const wxUniChar c : text) {
        if (c == '<') inTag = true;
        if (!inTag) out += c;
        if (c == '>') inTag = false;
    }
    return out.Strip(wxString::both);
}

const char* const LINK_PREHLED = "tisk:prehled";
const char* const LINK_STAV_UCTU = "tisk:stavuctu";
const char* const LINK_NEUHRAZENE = "doklady:neuhrazene";

DbModel* openModel() {
    DbModel* model = DbModel::instance();
    return model && model->isOpen() ? model : nullptr;
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
    // The unpaid documents of every year, to pay or to chase.
    if (model->someNeuhrazenaFakturaOrZavpoh())
        page += wxString::Format(wxString::FromUTF8("<p><a href=\"%s\">Neuhrazené doklady</a></p>"), LINK_NEUHRAZENE);
    page += wxString::Format(wxString::FromUTF8("<p><a href=\"%s\">Tisk přehledu</a> &nbsp; "
                                                "<a href=\"%s\">Tisk stavu pokladen a účtů</a></p>"),
                             LINK_PREHLED, LINK_STAV_UCTU);
    return page + "</body></html>";
}

Prehled HomePage::prehled(DbModel* model) {
    Prehled p;
    if (!model || !model->isOpen()) return p;
    p.firma = model->firma().nazev();
    p.ic = model->firma().ic();
    p.obdobi = wxString::Format(wxString::FromUTF8("účetní období %d"), model->currentRok());
    // The order of the page: the journal, the invoices, then receivables and liabilities.
    for (const wxString& souhrn : {model->homepagePrijmy(), model->homepageVydaje(), model->homepageVydane(),
                                   model->homepagePrijate(), model->homepagePohledavky(), model->homepageZavazky()})
        p.souhrny.push_back(plainText(souhrn));
    return p;
}

wxString HomePage::printPrehled() {
    DbModel* model = openModel();
    if (!model) return wxString();
    PrehledPrint print(this, prehled(model));
    return nahledNeboPdf(print, print.printTitle(), this);
}

wxString HomePage::printStavUctu() {
    DbModel* model = openModel();
    if (!model) return wxString();
    std::vector<StavUctuRadek> pokladny, banky;
    for (const DbModel::StavUctu& s : model->stavyUctu())
        (s.banka ? banky : pokladny).push_back(StavUctuRadek{s.zkratka, s.popis, s.mena, s.stav});
    StavUctuPrint print(this, model->firma().nazev(), pokladny, banky);
    return nahledNeboPdf(print, print.printTitle(), this);
}

void HomePage::OnLinkClicked(const wxHtmlLinkInfo& link) {
    if (link.GetHref() == LINK_PREHLED)
        printPrehled();
    else if (link.GetHref() == LINK_STAV_UCTU)
        printStavUctu();
    else if (link.GetHref() == LINK_NEUHRAZENE && openModel()) {
        NeuhrazeneDialog dialog(this);
        dialog.ShowModal();
    }
    else
        wxHtmlWindow::OnLinkClicked(link);
}
