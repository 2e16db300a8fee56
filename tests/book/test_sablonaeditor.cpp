// The template editor driven as a person uses it: each kind of element added through its
// dialog with typed values, refused input, moves by keys and by dragging, a resize, a delete,
// the file saved, opened again and compared attribute for attribute, and the question about
// unsaved changes.
#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/prntbase.h>
#include <wx/textctrl.h>
#include <wx/utils.h>
#include <wx/xml/xml.h>

#include <functional>

#include "booktest.h"
#include "editor/PrvekDialog.h"
#include "editor/RadekTabulkyDialog.h"
#include "editor/SablonaCanvas.h"
#include "editor/SablonaEditor.h"
#include "editor/placeholders.h"
#include "editor/vychozisablona.h"
#include "fakturaprint.h"

namespace {

// The modal dialog open now, if any.
wxDialog* openDialog() {
    for (wxWindow* w : wxTopLevelWindows)
        if (auto* d = dynamic_cast<wxDialog*>(w); d && d->IsModal()) return d;
    return nullptr;
}

// Saves the screen with the given name when EVIDA_SCREENSHOTS names a directory.
void screenshotOfScreen(const char* name) {
    wxString dir;
    if (!wxGetEnv("EVIDA_SCREENSHOTS", &dir) || dir.empty()) return;
    for (int i = 0; i < 20; ++i) {
        wxYield();
        wxMilliSleep(25);
    }
    wxExecute("import -window root " + dir + "/" + name + ".png", wxEXEC_SYNC);
}

// Compares two XML nodes: names, attributes in order with their values, text and children.
void expectSameXml(const wxXmlNode* a, const wxXmlNode* b, const wxString& where) {
    ASSERT_TRUE(a && b) << where;
    ASSERT_EQ(a->GetName(), b->GetName()) << where;
    const wxString here = where + "/" + a->GetName();
    const wxXmlAttribute* x = a->GetAttributes();
    const wxXmlAttribute* y = b->GetAttributes();
    for (; x && y; x = x->GetNext(), y = y->GetNext()) {
        EXPECT_EQ(x->GetName(), y->GetName()) << here;
        EXPECT_EQ(x->GetValue(), y->GetValue()) << here << "@" << x->GetName();
    }
    EXPECT_TRUE(!x && !y) << here << ": a different number of attributes";
    if (a->GetType() == wxXML_TEXT_NODE) {
        EXPECT_EQ(a->GetContent(), b->GetContent()) << here;
    }
    const wxXmlNode* c = a->GetChildren();
    const wxXmlNode* d = b->GetChildren();
    for (; c && d; c = c->GetNext(), d = d->GetNext()) expectSameXml(c, d, here);
    EXPECT_TRUE(!c && !d) << here << ": a different number of children";
}

wxXmlNode* elementNode(wxXmlDocument& doc, int index) {
    wxXmlNode* elements = doc.GetRoot()->GetChildren();
    while (elements && elements->GetName() != "Elements") elements = elements->GetNext();
    wxXmlNode* e = elements ? elements->GetChildren() : nullptr;
    for (int i = 0; e && i < index; ++i) e = e->GetNext();
    return e;
}

}  // namespace

class TemplateEditor : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        m_editor = new SablonaEditor(m_frame);
        m_editor->Show();
        m_editor->document() = Document();  // an empty sheet: the test adds every element
        m_editor->canvas()->refresh();
        m_path = wxFileName(m_home, "sablona.xml").GetFullPath();
    }
    void TearDown() override {
        if (m_editor) m_editor->Destroy();
        wxYield();
        BookTest::TearDown();
    }

    // Runs `command`; when it opens a modal dialog, `person` fills it in and OK is pressed. A
    // dialog that stays open (refused input) is cancelled so the test goes on; `stayed` tells.
    bool withDialog(const std::function<bool()>& command, const std::function<void(wxDialog*)>& person,
                    bool* stayed = nullptr, const char* shot = nullptr) {
        bool open = false;
        wxTheApp->CallAfter([&] {
            wxDialog* dialog = openDialog();
            if (!dialog) return;
            person(dialog);
            if (shot) {
                dialog->Move(0, 0);
                screenshotOfScreen(shot);
            }
            pressOk(dialog);
            if (dialog->IsModal()) {
                open = true;
                dialog->EndModal(wxID_CANCEL);
            }
        });
        const bool result = command();
        if (stayed) *stayed = open;
        return result;
    }
    bool add(int type, const std::function<void(wxDialog*)>& person, const char* shot = nullptr) {
        return withDialog([&] { return m_editor->pridat(type); }, person, nullptr, shot);
    }
    // Types a number pair such as X and Y.
    static void typePair(wxDialog* d, const char* x, const char* y, const char* vx, const char* vy) {
        typeText(d, x, vx);
        typeText(d, y, vy);
    }
    // The canvas pixel of an element point.
    wxPoint px(double x, double y) const { return m_editor->canvas()->view().toPx(wxRealPoint(x, y)); }
    template <class E>
    E* element(size_t i) {
        auto* e = dynamic_cast<E*>(m_editor->document().element(i));
        EXPECT_NE(e, nullptr) << i;
        return e;
    }
    // Adds one element of each kind, as a person fills the dialogs.
    void addOneOfEach();

    SablonaEditor* m_editor = nullptr;
    wxString m_path;
};

void TemplateEditor::addOneOfEach() {
    ASSERT_TRUE(add(
        Element::TEXT,
        [](wxDialog* d) {
            typeText(d, "hodnota", u8("Faktura č. "));
            static_cast<PrvekDialog*>(d)->insertPlaceholder("{faktura-cislo}");
            typePair(d, "x", "y", "5", "2");
            typeText(d, "sirka", "80");
            choose(field<wxChoice>(d, "zarovnani"), 2);
        },
        "editor-text"));
    ASSERT_TRUE(add(
        Element::PARAGRAPH,
        [](wxDialog* d) {
            typeText(d, "hodnota", u8("{firma-nazev}\n{firma-ulice}\nIČ: {firma-ic}\n"));
            typePair(d, "x", "y", "0", "12");
            typeText(d, "sirka", "90");
            field<wxCheckBox>(d, "oramovat")->SetValue(true);
            typeText(d, "sirkaCary", "2");
            choose(field<wxChoice>(d, "sekce"), 1);
        },
        "editor-odstavec"));
    ASSERT_TRUE(add(
        Element::TABLE_ROW,
        [](wxDialog* d) {
            auto* dialog = static_cast<RadekTabulkyDialog*>(d);
            wxGrid* grid = dialog->grid();
            grid->SetCellValue(0, RadekTabulkyDialog::COL_HODNOTA, "");
            dialog->insertPlaceholder("{polozka-popis}");
            grid->SetCellValue(0, RadekTabulkyDialog::COL_SIRKA, "100");
            dialog->pridatBunku();
            grid->SetCellValue(1, RadekTabulkyDialog::COL_HODNOTA, "{polozka-celkem}");
            grid->SetCellValue(1, RadekTabulkyDialog::COL_SIRKA, "30");
            grid->SetCellValue(1, RadekTabulkyDialog::COL_ZAROVNANI, u8("Vpravo"));
            dialog->pridatBunku();
            dialog->smazatBunku();  // the third cell goes again
            typePair(d, "x", "y", "0", "60");
            choose(field<wxChoice>(d, "sekce"), DOCSECTION_ITEMS);
        },
        "editor-radek"));
    ASSERT_TRUE(add(
        Element::IMAGE,
        [](wxDialog* d) {
            choose(field<wxChoice>(d, "zdroj"), 3);
            typePair(d, "x", "y", "140", "100");
            typeText(d, "sirka", "40");
            choose(field<wxChoice>(d, "sekce"), DOCSECTION_FOOTER3);
        },
        "editor-obrazek"));
    ASSERT_TRUE(add(
        Element::LINE,
        [](wxDialog* d) {
            typePair(d, "x1", "y1", "0", "58");
            typePair(d, "x2", "y2", "190", "58");
            field<wxCheckBox>(d, "horniOkraj")->SetValue(true);
            choose(field<wxChoice>(d, "stylCary"), 1);
            choose(field<wxChoice>(d, "sekce"), DOCSECTION_HEADER3);
        },
        "editor-cara"));
    ASSERT_TRUE(add(
        Element::RECTANGLE,
        [](wxDialog* d) {
            typePair(d, "x", "y", "100", "10");
            typePair(d, "sirka", "vyska", "90", "40");
            typeText(d, "zaobleni", "3");
            field<wxCheckBox>(d, "ukotvit")->SetValue(true);
        },
        "editor-obdelnik"));
}

TEST_F(TemplateEditor, EachKindIsAddedThroughItsDialogAsTyped) {
    addOneOfEach();
    Document& doc = m_editor->document();
    ASSERT_EQ(doc.count(), 6u);
    auto* text = element<TextElement>(0);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->value, u8("Faktura č. {faktura-cislo}"));
    EXPECT_EQ(text->pos, wxPoint(5, 2));
    EXPECT_EQ(text->width, 80);
    EXPECT_EQ(text->alignment, wxTEXT_ALIGNMENT_RIGHT);
    EXPECT_EQ(text->section, DOCSECTION_HEADER1);
    // The picker shows a stand-in where the template's face is missing; the face is kept.
    EXPECT_EQ(text->textStyle.fontString(), TextStyle().fontString());

    auto* para = element<TextParagraphElement>(1);
    ASSERT_TRUE(para);
    EXPECT_EQ(wxJoin(para->value, '|'), u8("{firma-nazev}|{firma-ulice}|IČ: {firma-ic}"));
    EXPECT_TRUE(para->border);
    EXPECT_EQ(para->borderStyle.width, 2);
    EXPECT_EQ(para->section, DOCSECTION_HEADER2);

    auto* row = element<TableRowElement>(2);
    ASSERT_TRUE(row);
    ASSERT_EQ(row->cellCount(), 2u);
    EXPECT_EQ(row->cellValue(0), "{polozka-popis}");
    EXPECT_EQ(row->width[0], 100);
    EXPECT_EQ(row->alignment[1], wxTEXT_ALIGNMENT_RIGHT);
    EXPECT_EQ(row->section, DOCSECTION_ITEMS);

    auto* image = element<ImageElement>(3);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->path, "{qr-platba}");
    EXPECT_EQ(image->section, DOCSECTION_FOOTER3);

    auto* line = element<LineElement>(4);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->end, wxPoint(190, 58));
    EXPECT_TRUE(line->borderTop);
    EXPECT_FALSE(line->borderBottom);
    EXPECT_EQ(line->lineStyle.style, wxPENSTYLE_DOT);

    auto* rect = element<RectangleElement>(5);
    ASSERT_TRUE(rect);
    EXPECT_EQ(rect->size, wxSize(90, 40));
    EXPECT_EQ(rect->fillet, 3);
    EXPECT_TRUE(rect->anchor);

    EXPECT_TRUE(m_editor->isModified());
    EXPECT_TRUE(m_editor->GetTitle().EndsWith("*"));
    m_editor->Move(0, 0);
    m_editor->canvas()->select(2);
    screenshotOfScreen("editor-okno");
}

TEST_F(TemplateEditor, RefusedInputShowsItsMessageAndKeepsTheDialogOpen) {
    struct Case {
        int type;
        std::function<void(wxDialog*)> person;
        const char* message;
    };
    const Case cases[] = {
        {Element::TEXT, [](wxDialog* d) { typeText(d, "x", "12.500"); },
         "Do pole „Pozice X“ zadejte celé číslo od 0 do 300."},
        {Element::TEXT, [](wxDialog* d) { typeText(d, "stranka", "0"); },
         "Do pole „Stránka“ zadejte celé číslo od 1 do 99."},
        {Element::PARAGRAPH, [](wxDialog* d) { typeText(d, "sirka", "abc"); },
         "Do pole „Šířka“ zadejte celé číslo od 1 do 300."},
        {Element::TABLE_ROW,
         [](wxDialog* d) {
             static_cast<RadekTabulkyDialog*>(d)->grid()->SetCellValue(0, RadekTabulkyDialog::COL_SIRKA, "12,5");
         },
         "Do pole „Šířka 1. buňky“ zadejte celé číslo od 1 do 300."},
        {Element::TABLE_ROW, [](wxDialog* d) { static_cast<RadekTabulkyDialog*>(d)->smazatBunku(); },
         "Řádek tabulky musí mít alespoň jednu buňku."},
        {Element::IMAGE, [](wxDialog*) {}, "Vyberte soubor obrázku."},
        {Element::LINE, [](wxDialog* d) { typePair(d, "x2", "y2", "0", "0"); },
         "Začátek a konec čáry nesmí být stejný bod."},
        {Element::RECTANGLE, [](wxDialog* d) { typeText(d, "vyska", "-4"); },
         "Do pole „Rozměr výška“ zadejte celé číslo od 1 do 300."},
        {Element::RECTANGLE, [](wxDialog* d) { typeText(d, "sirkaCary", "31"); },
         "Do pole „Tloušťka čáry“ zadejte celé číslo od 0 do 20."},
    };
    for (const Case& c : cases) {
        m_prompts.clear();
        bool stayed = false;
        EXPECT_FALSE(withDialog([&] { return m_editor->pridat(c.type); }, c.person, &stayed)) << c.message;
        EXPECT_TRUE(stayed) << c.message;
        EXPECT_EQ(m_prompts.transcript(), u8(c.message) + "\n");
    }
    EXPECT_EQ(m_editor->document().count(), 0u);
    EXPECT_FALSE(m_editor->isModified());
}

TEST_F(TemplateEditor, KeysAndDragsMoveResizeAndDelete) {
    addOneOfEach();
    SablonaCanvas* canvas = m_editor->canvas();
    canvas->setZoom(1.5);  // clicks are mapped through the zoom
    canvas->select(5);     // the rectangle at (100, 10)
    canvas->key(WXK_RIGHT, false);
    canvas->key(WXK_DOWN, true);
    canvas->key(WXK_UP, false);
    EXPECT_EQ(element<RectangleElement>(5)->start, wxPoint(101, 14));

    // A drag on the rectangle's outline moves it by whole millimetres.
    canvas->mouseDown(px(101, 14));
    EXPECT_EQ(canvas->selection(), 5);
    canvas->mouseDrag(px(105.2, 20));
    canvas->mouseUp(px(111.2, 26.1));
    EXPECT_EQ(element<RectangleElement>(5)->start, wxPoint(111, 26));
    EXPECT_EQ(element<RectangleElement>(5)->size, wxSize(90, 40));

    // Its bottom right grip resizes it.
    canvas->mouseDown(px(201, 66));
    canvas->mouseUp(px(180, 50));
    EXPECT_EQ(element<RectangleElement>(5)->start, wxPoint(111, 26));
    EXPECT_EQ(element<RectangleElement>(5)->size, wxSize(69, 24));

    // The line's end grip moves that end only.
    canvas->select(4);
    canvas->mouseDown(px(190, 58));
    canvas->mouseUp(px(150, 58));
    EXPECT_EQ(element<LineElement>(4)->start, wxPoint(0, 58));
    EXPECT_EQ(element<LineElement>(4)->end, wxPoint(150, 58));

    // The picture dragged down into the item band joins the items.
    const editorgeo::Bands bands = canvas->bands();
    const int itemsY = wxRound(bands[DOCSECTION_ITEMS].top) + 1;
    canvas->select(-1);
    canvas->mouseDown(px(150, 101));  // 1 mm below the picture's top edge
    ASSERT_EQ(canvas->selection(), 3);
    canvas->mouseUp(px(150, itemsY + 1));
    EXPECT_EQ(element<ImageElement>(3)->pos, wxPoint(140, itemsY));
    EXPECT_EQ(element<ImageElement>(3)->section, DOCSECTION_ITEMS);

    // A click on nothing selects nothing; Delete then deletes nothing, with a selection it does.
    canvas->mouseDown(px(60, 200));
    canvas->mouseUp(px(60, 200));
    EXPECT_EQ(canvas->selection(), -1);
    canvas->key(WXK_DELETE, false);
    EXPECT_EQ(m_editor->document().count(), 6u);
    canvas->select(0);
    canvas->key(WXK_DELETE, false);
    ASSERT_EQ(m_editor->document().count(), 5u);
    EXPECT_EQ(m_editor->document().element(0)->elementType(), Element::PARAGRAPH);
}

TEST_F(TemplateEditor, SavedTemplateOpensAgainAttributeForAttribute) {
    addOneOfEach();
    m_editor->canvas()->select(0);
    m_editor->canvas()->key(WXK_LEFT, true);  // the text to x 0
    // "Upravit prvek…" changes the paragraph's page in its dialog; "Zrušit" there changes nothing.
    m_editor->canvas()->select(1);
    ASSERT_TRUE(withDialog([&] { return m_editor->upravit(); }, [](wxDialog* d) { typeText(d, "stranka", "2"); }));
    wxTheApp->CallAfter([] {
        if (wxDialog* d = openDialog()) {
            typeText(d, "x", "77");
            d->EndModal(wxID_CANCEL);
        }
    });
    EXPECT_FALSE(m_editor->upravit());
    ASSERT_TRUE(withDialog(
        [&] {
            m_editor->vlastnosti();
            return true;
        },
        [](wxDialog* d) {
            typePair(d, "okrajVlevo", "okrajVpravo", "15", "12");
            typeText(d, "zahlaviStred", u8("Vzorová faktura"));
            field<wxCheckBox>(d, "caraZahlavi")->SetValue(true);
            choose(field<wxChoice>(d, "typZapati"), 1);
            typeText(d, "textZapati", u8("Děkujeme za spolupráci"));
        },
        nullptr, "editor-dokument"));

    m_prompts.answerPath(m_path);
    ASSERT_TRUE(m_editor->ulozit());
    EXPECT_FALSE(m_editor->isModified());
    EXPECT_EQ(m_editor->GetTitle(), u8("Editor šablon – sablona.xml"));

    auto* reopened = new SablonaEditor(m_frame);
    m_prompts.answerPath(m_path);
    ASSERT_TRUE(reopened->otevrit());
    EXPECT_EQ(m_prompts.shown().back().text, u8("Otevřít šablonu"));
    const Document& doc = reopened->document();
    ASSERT_EQ(doc.count(), 6u);
    EXPECT_EQ(doc.layout.marginLeft, 15);
    EXPECT_EQ(doc.layout.marginRight, 12);
    EXPECT_EQ(doc.layout.headerCenterText, u8("Vzorová faktura"));
    EXPECT_EQ(doc.layout.footer, lxPrint::FOOTER_TEXT);
    EXPECT_EQ(doc.element(1)->page, 2);
    EXPECT_EQ(dynamic_cast<TextParagraphElement*>(doc.element(1))->pos, wxPoint(0, 12));
    EXPECT_EQ(dynamic_cast<TextElement*>(doc.element(0))->pos, wxPoint(0, 2));

    // The reopened template saved again is the same file, node for node.
    const wxString again = wxFileName(m_home, "znovu.xml").GetFullPath();
    m_prompts.answerPath(again);
    ASSERT_TRUE(reopened->ulozitJako());
    reopened->Destroy();
    wxXmlDocument first, second;
    ASSERT_TRUE(first.Load(m_path));
    ASSERT_TRUE(second.Load(again));
    expectSameXml(first.GetRoot(), second.GetRoot(), "");
    wxXmlNode* row = elementNode(first, 2);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->GetAttribute("Type"), "3");
    EXPECT_EQ(row->GetAttribute("Section"), "3");
    EXPECT_EQ(row->GetAttribute("Y"), "60");
}

TEST_F(TemplateEditor, UnsavedChangesAreAskedAboutOnClose) {
    addOneOfEach();
    // Saving is chosen but the save dialog cancelled: the editor stays open with its changes.
    m_prompts.answerQuestion(true);
    EXPECT_FALSE(m_editor->Close());
    EXPECT_EQ(m_prompts.transcript(), u8("Šablona byla změněna. Uložit změny?\nUložit šablonu jako\n"));
    EXPECT_TRUE(m_editor->isModified());
    // "Nový" asks too; declining drops the changes and brings the starter template.
    m_prompts.clear();
    m_prompts.answerQuestion(false);
    m_editor->novy();
    EXPECT_EQ(m_prompts.transcript(), u8("Šablona byla změněna. Uložit změny?\n"));
    EXPECT_FALSE(m_editor->isModified());
    EXPECT_EQ(m_editor->document().count(), vychoziSablona().count());
    // Unchanged, it closes without a question.
    m_prompts.clear();
    EXPECT_TRUE(m_editor->Close());
    EXPECT_TRUE(m_prompts.shown().empty());
    m_editor = nullptr;  // destroyed by closing
}

TEST_F(TemplateEditor, EveryOfferedPlaceholderIsFilledByTheInvoicePrint) {
    const FakturaTisk data = ukazkovaFaktura();
    int count = 0;
    for (const PlaceholderGroup& group : placeholderGroups())
        for (const Placeholder& p : group.polozky) {
            const wxString key = p.key;
            const wxString filled =
                parsePolozkaLine(parseSazbaLine(parseLine(key, data), 21, 100, 21), data.polozky.at(0), 21, 0);
            EXPECT_NE(filled, key) << key;
            EXPECT_FALSE(filled.Contains("{")) << key;
            ++count;
        }
    EXPECT_EQ(count, 39);
}

TEST_F(TemplateEditor, StarterTemplateFillsCompletelyAndPreviews) {
    m_editor->novy();
    Document filled = m_editor->document();
    vyplnSablonu(filled, ukazkovaFaktura());
    int itemRows = 0;
    for (const auto& e : filled.elements()) {
        if (const auto* t = dynamic_cast<const TextElement*>(e.get())) {
            EXPECT_FALSE(t->value.Contains("{")) << t->value;
        }
        if (const auto* p = dynamic_cast<const TextParagraphElement*>(e.get())) {
            for (const wxString& line : p->value) EXPECT_FALSE(line.Contains("{")) << line;
        }
        if (const auto* r = dynamic_cast<const TableRowElement*>(e.get())) {
            for (const wxString& cell : r->value) EXPECT_FALSE(cell.Contains("{")) << cell;
            if (r->cellValue(0).StartsWith(u8("Položka č."))) ++itemRows;
        }
    }
    EXPECT_EQ(itemRows, 3);

    m_editor->Move(0, 0);
    screenshotOfScreen("editor-nova-sablona");
    wxPreviewFrame* preview = m_editor->nahled();
    ASSERT_NE(preview, nullptr);
    preview->Move(0, 0);
    screenshotOfScreen("editor-nahled");
    preview->Close(true);
    wxYield();
}
