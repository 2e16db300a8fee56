#include "SablonaEditor.h"

#include <wx/artprov.h>
#include <wx/dcmemory.h>
#include <wx/filename.h>
#include <wx/menu.h>
#include <wx/toolbar.h>
#include <wx/utils.h>

#include "DokumentDialog.h"
#include "PrvekDialog.h"
#include "SablonaCanvas.h"
#include "fakturaprint.h"
#include "prompts.h"
#include "vychozisablona.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

const char* const WILDCARD = "XML soubor (*.xml)|*.xml";

// The element kinds as the menu and the toolbar offer them.
struct Druh {
    int id;
    int type;
    const char* nazev;
    const char* napoveda;
};
const Druh DRUHY[] = {
    {SablonaEditor::ID_TEXT, Element::TEXT, "Text", "Přidat text"},
    {SablonaEditor::ID_ODSTAVEC, Element::PARAGRAPH, "Odstavec", "Přidat odstavec o několika řádcích"},
    {SablonaEditor::ID_RADEK, Element::TABLE_ROW, "Řádek tabulky", "Přidat řádek tabulky"},
    {SablonaEditor::ID_OBRAZEK, Element::IMAGE, "Obrázek", "Přidat obrázek, logo, razítko nebo QR platbu"},
    {SablonaEditor::ID_CARA, Element::LINE, "Čára", "Přidat čáru"},
    {SablonaEditor::ID_OBDELNIK, Element::RECTANGLE, "Obdélník", "Přidat obdélník"},
};

const double ZOOMS[] = {0.5, 0.75, 1.0, 1.5, 2.0};

// A small toolbar picture of an element kind, drawn here so that no image files are needed.
wxBitmap kindIcon(int type) {
    wxBitmap bitmap(22, 22);
    wxMemoryDC dc(bitmap);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    dc.SetPen(wxPen(wxColour(40, 40, 40), 2));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    switch (type) {
        case Element::TEXT: {
            wxFont font(wxFontInfo(13).Bold());
            dc.SetFont(font);
            dc.DrawLabel("T", wxRect(0, 0, 22, 22), wxALIGN_CENTRE);
            break;
        }
        case Element::PARAGRAPH:
            for (int y = 5; y <= 17; y += 4) dc.DrawLine(3, y, y == 17 ? 13 : 19, y);
            break;
        case Element::TABLE_ROW:
            dc.DrawRectangle(2, 6, 18, 10);
            dc.DrawLine(8, 6, 8, 16);
            dc.DrawLine(14, 6, 14, 16);
            break;
        case Element::IMAGE:
            dc.DrawRectangle(2, 4, 18, 14);
            dc.DrawLine(4, 16, 9, 10);
            dc.DrawLine(9, 10, 13, 14);
            dc.DrawLine(13, 14, 18, 8);
            break;
        case Element::LINE:
            dc.DrawLine(3, 18, 19, 4);
            break;
        default:
            dc.DrawRoundedRectangle(3, 5, 16, 12, 3);
            break;
    }
    dc.SelectObject(wxNullBitmap);
    bitmap.SetMask(new wxMask(bitmap, *wxWHITE));
    return bitmap;
}

}  // namespace

SablonaEditor::SablonaEditor(wxWindow* parent)
    : wxFrame(parent, wxID_ANY, u8("Editor šablon"), wxDefaultPosition, wxSize(1000, 760)) {
    m_doc = vychoziSablona();
    buildMenu();
    buildToolBar();
    CreateStatusBar();
    m_canvas = new SablonaCanvas(this, &m_doc);
    m_canvas->onChanged = [this] { setModified(true); };
    m_canvas->onEdit = [this](int index) {
        m_canvas->select(index);
        upravit();
    };
    m_canvas->refresh();
    Bind(wxEVT_CLOSE_WINDOW, &SablonaEditor::onClose, this);
    updateTitle();
}

void SablonaEditor::buildMenu() {
    auto* soubor = new wxMenu;
    soubor->Append(wxID_NEW, u8("Nový\tCtrl+N"), u8("Nová šablona z výchozí šablony faktury"));
    soubor->Append(wxID_OPEN, u8("Otevřít…\tCtrl+O"), u8("Otevřít soubor šablony"));
    soubor->Append(wxID_SAVE, u8("Uložit\tCtrl+S"), u8("Uložit šablonu"));
    soubor->Append(wxID_SAVEAS, u8("Uložit jako…"), u8("Uložit šablonu do jiného souboru"));
    soubor->AppendSeparator();
    soubor->Append(ID_NAHLED, u8("Náhled"), u8("Náhled šablony vyplněné ukázkovou fakturou"));
    soubor->AppendSeparator();
    soubor->Append(wxID_CLOSE, u8("Zavřít\tCtrl+W"), u8("Zavřít editor šablon"));

    auto* dokument = new wxMenu;
    dokument->Append(ID_VLASTNOSTI, u8("Vlastnosti dokumentu…"), u8("Okraje, záhlaví, zápatí a výchozí písmo"));

    auto* prvek = new wxMenu;
    for (const Druh& d : DRUHY) prvek->Append(d.id, u8(d.nazev), u8(d.napoveda));
    prvek->AppendSeparator();
    prvek->Append(ID_UPRAVIT, u8("Upravit prvek…"), u8("Upravit vybraný prvek"));
    prvek->Append(ID_SMAZAT, u8("Smazat prvek"), u8("Smazat vybraný prvek"));

    auto* zobrazeni = new wxMenu;
    for (size_t i = 0; i < WXSIZEOF(ZOOMS); ++i) {
        const int id = ID_ZOOM + static_cast<int>(i);
        zobrazeni->AppendRadioItem(id, wxString::Format("Lupa %d %%", wxRound(ZOOMS[i] * 100)));
        if (wxRound(ZOOMS[i] * 100) == 100) zobrazeni->Check(id, true);
        Bind(
            wxEVT_MENU, [this, zoom = ZOOMS[i]](wxCommandEvent&) { m_canvas->setZoom(zoom); }, id);
    }

    auto* bar = new wxMenuBar;
    bar->Append(soubor, u8("&Soubor"));
    bar->Append(dokument, u8("&Dokument"));
    bar->Append(prvek, u8("&Prvek"));
    bar->Append(zobrazeni, u8("&Zobrazení"));
    SetMenuBar(bar);

    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { novy(); }, wxID_NEW);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { otevrit(); }, wxID_OPEN);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { ulozit(); }, wxID_SAVE);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { ulozitJako(); }, wxID_SAVEAS);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { Close(); }, wxID_CLOSE);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { nahled(); }, ID_NAHLED);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { vlastnosti(); }, ID_VLASTNOSTI);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { upravit(); }, ID_UPRAVIT);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { smazat(); }, ID_SMAZAT);
    for (const Druh& d : DRUHY)
        Bind(
            wxEVT_MENU, [this, type = d.type](wxCommandEvent&) { pridat(type); }, d.id);
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& e) { e.Enable(m_canvas->selection() >= 0); }, ID_UPRAVIT);
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& e) { e.Enable(m_canvas->selection() >= 0); }, ID_SMAZAT);
}

void SablonaEditor::buildToolBar() {
    wxToolBar* tb = CreateToolBar(wxTB_HORIZONTAL | wxTB_FLAT | wxTB_TEXT);
    const wxSize size(22, 22);
    tb->AddTool(wxID_NEW, u8("Nový"), wxArtProvider::GetBitmap(wxART_NEW, wxART_TOOLBAR, size), u8("Nová šablona"));
    tb->AddTool(wxID_OPEN, u8("Otevřít"), wxArtProvider::GetBitmap(wxART_FILE_OPEN, wxART_TOOLBAR, size),
                u8("Otevřít šablonu"));
    tb->AddTool(wxID_SAVE, u8("Uložit"), wxArtProvider::GetBitmap(wxART_FILE_SAVE, wxART_TOOLBAR, size),
                u8("Uložit šablonu"));
    tb->AddSeparator();
    for (const Druh& d : DRUHY) tb->AddTool(d.id, u8(d.nazev), kindIcon(d.type), u8(d.napoveda));
    tb->AddSeparator();
    tb->AddTool(ID_NAHLED, u8("Náhled"), wxArtProvider::GetBitmap(wxART_PRINT, wxART_TOOLBAR, size),
                u8("Náhled šablony"));
    tb->Realize();
}

void SablonaEditor::setModified(bool modified) {
    m_modified = modified;
    updateTitle();
}

void SablonaEditor::updateTitle() {
    const wxString name = m_path.empty() ? u8("Nová šablona") : wxFileName(m_path).GetFullName();
    SetTitle(u8("Editor šablon – ") + name + (m_modified ? "*" : ""));
}

bool SablonaEditor::muzeZavrit() {
    if (!m_modified) return true;
    if (!prompts().question(u8("Šablona byla změněna. Uložit změny?"), wxString(), this)) return true;
    return ulozit();
}

void SablonaEditor::onClose(wxCloseEvent& event) {
    if (event.CanVeto() && !muzeZavrit()) {
        event.Veto();
        return;
    }
    Destroy();
}

void SablonaEditor::novy() {
    if (!muzeZavrit()) return;
    m_doc = vychoziSablona();
    m_path.clear();
    m_canvas->select(-1);
    m_canvas->refresh();
    setModified(false);
}

bool SablonaEditor::otevrit() {
    if (!muzeZavrit()) return false;
    const wxString path =
        prompts().chooseFile(u8("Otevřít šablonu"), wxGetHomeDir(), wxString(), WILDCARD, false, this);
    return !path.empty() && otevrit(path);
}

bool SablonaEditor::otevrit(const wxString& path) {
    Document read;
    wxString error;
    if (!read.readFromXml(path, &error)) {
        prompts().info(error, wxString(), this);
        return false;
    }
    m_doc = read;
    m_path = path;
    m_canvas->select(-1);
    m_canvas->refresh();
    setModified(false);
    return true;
}

bool SablonaEditor::ulozit() {
    if (m_path.empty()) return ulozitJako();
    wxString error;
    if (!m_doc.saveToXml(m_path, &error)) {
        prompts().info(error, wxString(), this);
        return false;
    }
    setModified(false);
    return true;
}

bool SablonaEditor::ulozitJako() {
    const wxString start = m_path.empty() ? wxGetHomeDir() : wxFileName(m_path).GetPath();
    const wxString name = m_path.empty() ? wxString("faktura.xml") : wxFileName(m_path).GetFullName();
    int type = 0;
    wxString path = prompts().chooseSaveFile(u8("Uložit šablonu jako"), start, name, WILDCARD, &type, this);
    if (path.empty()) return false;
    if (wxFileName(path).GetExt().empty()) path += ".xml";
    const wxString previous = m_path;
    m_path = path;
    if (!ulozit()) {
        m_path = previous;
        updateTitle();
        return false;
    }
    return true;
}

bool SablonaEditor::pridat(int type) {
    std::unique_ptr<Element> e = createElement(type);
    if (!e) return false;
    const wxPoint at = m_canvas->insertPoint();
    e->section = m_canvas->insertSection();
    // New elements start at the last clicked point with the document's style and a size that
    // shows on the page.
    if (auto* t = dynamic_cast<TextElement*>(e.get())) {
        t->pos = at;
        t->textStyle = m_doc.style;
    } else if (auto* p = dynamic_cast<TextParagraphElement*>(e.get())) {
        p->pos = at;
        p->textStyle = m_doc.style;
    } else if (auto* r = dynamic_cast<TableRowElement*>(e.get())) {
        r->pos = at;
        r->textStyle = m_doc.style;
        r->addCellValue(wxString());
        r->addCellWidth(40);
        r->addCellAlignment(wxTEXT_ALIGNMENT_LEFT);
    } else if (auto* i = dynamic_cast<ImageElement*>(e.get())) {
        i->pos = at;
    } else if (auto* l = dynamic_cast<LineElement*>(e.get())) {
        l->start = at;
        l->end = at + wxPoint(50, 0);
    } else if (auto* o = dynamic_cast<RectangleElement*>(e.get())) {
        o->start = at;
        o->size = wxSize(50, 20);
    }
    if (!upravPrvek(this, *e)) return false;
    m_doc.addElement(std::move(e));
    m_canvas->select(static_cast<int>(m_doc.count()) - 1);
    m_canvas->refresh();
    setModified(true);
    return true;
}

bool SablonaEditor::upravit() {
    const int i = m_canvas->selection();
    if (i < 0) return false;
    // The dialogs change the element only when confirmed.
    if (!upravPrvek(this, *m_doc.element(i))) return false;
    m_canvas->select(i);
    m_canvas->refresh();
    setModified(true);
    return true;
}

void SablonaEditor::smazat() { m_canvas->deleteSelection(); }

void SablonaEditor::vlastnosti() {
    Document copy = m_doc;
    DokumentDialog dialog(this, copy);
    if (dialog.ShowModal() != wxID_OK) return;
    m_doc.layout = copy.layout;
    m_doc.style = copy.style;
    m_canvas->refresh();
    setModified(true);
}

wxPreviewFrame* SablonaEditor::nahled() {
    Document filled = m_doc;
    filled.clearElementSelection();
    vyplnSablonu(filled, ukazkovaFaktura());
    DocumentPrint print(this, u8("Náhled šablony"));
    print.setDocument(&filled);
    return print.Preview(true);
}
