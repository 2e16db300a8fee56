#include "PrvekDialog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/clrpicker.h>
#include <wx/fontenum.h>
#include <wx/fontpicker.h>
#include <wx/menu.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "CaraDialog.h"
#include "ObdelnikDialog.h"
#include "ObrazekDialog.h"
#include "OdstavecDialog.h"
#include "RadekTabulkyDialog.h"
#include "TextDialog.h"
#include "editorgeometry.h"
#include "placeholders.h"
#include "prompts.h"

namespace {

wxString u8(const char* text) { return wxString::FromUTF8(text); }

// The pen styles a line may have, as offered in "Styl čáry".
struct PenStyle {
    wxPenStyle style;
    const char* nazev;
};
const PenStyle PEN_STYLES[] = {{wxPENSTYLE_SOLID, "Plná"},
                               {wxPENSTYLE_DOT, "Tečkovaná"},
                               {wxPENSTYLE_SHORT_DASH, "Čárkovaná"},
                               {wxPENSTYLE_LONG_DASH, "Dlouze čárkovaná"},
                               {wxPENSTYLE_DOT_DASH, "Čerchovaná"}};

constexpr int MAX_PAGE = 99;

// A field as messages name it: its label without the colon and the unit.
wxString fieldName(const char* label) {
    wxString name = u8(label).BeforeLast(':');
    name.Replace(" (mm)", "");
    return name;
}

}  // namespace

PrvekDialog::PrvekDialog(wxWindow* parent, const wxString& title) : FormDialog(parent, title) {}

wxTextCtrl* PrvekDialog::numberControl(const char* name, int value) {
    return new wxTextCtrl(this, wxID_ANY, wxString::Format("%d", value), wxDefaultPosition, wxSize(70, -1), wxTE_RIGHT,
                          wxDefaultValidator, name);
}

wxTextCtrl* PrvekDialog::addNumber(const char* label, const char* name, int value, int min, int max) {
    wxTextCtrl* text = numberControl(name, value);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(text, wxSizerFlags().CentreVertical());
    addField(label, row);
    m_numbers.push_back({text, fieldName(label), min, max});
    return text;
}

void PrvekDialog::addPair(const char* label, const char* nameX, const char* nameY, const wxPoint& value, int min,
                          int max, const char* axisX, const char* axisY) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const wxString base = fieldName(label);
    const std::pair<const char*, int> parts[] = {{nameX, value.x}, {nameY, value.y}};
    const char* axes[] = {axisX, axisY};
    for (int i = 0; i < 2; ++i) {
        wxTextCtrl* text = numberControl(parts[i].first, parts[i].second);
        if (i > 0) row->AddSpacer(12);
        row->Add(new wxStaticText(this, wxID_ANY, u8(axes[i])), wxSizerFlags().CentreVertical().Border(wxRIGHT, 4));
        row->Add(text, wxSizerFlags().CentreVertical());
        m_numbers.push_back({text, base + " " + fieldName(axes[i]), min, max});
    }
    addField(label, row);
}

const PrvekDialog::NumberField* PrvekDialog::numberField(const char* name) const {
    for (const NumberField& f : m_numbers)
        if (f.text->GetName() == name) return &f;
    return nullptr;
}

bool PrvekDialog::readNumber(const char* name, int* value) {
    const NumberField* f = numberField(name);
    if (!f) return false;
    long n = 0;
    if (!editorgeo::parseWholeNumber(f->text->GetValue(), &n) || n < f->min || n > f->max) {
        refused(wxString::Format(u8("Do pole „%s“ zadejte celé číslo od %d do %d."), f->label, f->min, f->max),
                f->text);
        return false;
    }
    *value = static_cast<int>(n);
    return true;
}

bool PrvekDialog::readPair(const char* nameX, const char* nameY, wxPoint* value) {
    wxPoint p;
    if (!readNumber(nameX, &p.x) || !readNumber(nameY, &p.y)) return false;
    *value = p;
    return true;
}

void PrvekDialog::addSectionAndPage(const Element& element) {
    m_section = new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, docSectionNames(), 0, wxDefaultValidator,
                             "sekce");
    m_section->SetSelection(element.section);
    addField("Sekce:", m_section);
    addNumber("Stránka:", "stranka", element.page, 1, MAX_PAGE);
}

bool PrvekDialog::readSectionAndPage(Element& element) {
    int page = 1;
    if (!readNumber("stranka", &page)) return false;
    element.page = page;
    const int s = m_section->GetSelection();
    if (s >= 0 && s < DOCSECTION_COUNT) element.section = static_cast<DOCSECTION>(s);
    return true;
}

wxChoice* PrvekDialog::addAlignment(int alignment) {
    wxArrayString names;
    for (const char* n : {"Vlevo", "Na střed", "Vpravo"}) names.push_back(u8(n));
    m_alignment =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, names, 0, wxDefaultValidator, "zarovnani");
    const int index = alignment == wxTEXT_ALIGNMENT_CENTRE ? 1 : alignment == wxTEXT_ALIGNMENT_RIGHT ? 2 : 0;
    m_alignment->SetSelection(index);
    addField("Zarovnání:", m_alignment);
    return m_alignment;
}

wxTextAttrAlignment PrvekDialog::alignment() const {
    switch (m_alignment ? m_alignment->GetSelection() : 0) {
        case 1:
            return wxTEXT_ALIGNMENT_CENTRE;
        case 2:
            return wxTEXT_ALIGNMENT_RIGHT;
        default:
            return wxTEXT_ALIGNMENT_LEFT;
    }
}

void PrvekDialog::addTextStyle(const TextStyle& style) {
    // A face this system lacks ("Lucida Grande" where it is not installed) cannot be shown by
    // the picker, so it shows the face that stands in for it; unless another font is picked,
    // the template keeps the face it had.
    m_styleFont = style.font;
    wxFont shown = style.font;
    if (!wxFontEnumerator::IsValidFacename(shown.GetFaceName()))
        shown.SetFaceName(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT).GetFaceName());
    m_font = new wxFontPickerCtrl(this, wxID_ANY, shown, wxDefaultPosition, wxDefaultSize, wxFNTP_DEFAULT_STYLE,
                                  wxDefaultValidator, "pismo");
    m_font->Bind(wxEVT_FONTPICKER_CHANGED, [this](wxFontPickerEvent& event) {
        m_fontPicked = true;
        event.Skip();
    });
    addField("Písmo:", m_font);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    m_fontColour = new wxColourPickerCtrl(this, wxID_ANY, style.fontColour, wxDefaultPosition, wxDefaultSize,
                                          wxCLRP_DEFAULT_STYLE, wxDefaultValidator, "barvaPisma");
    m_backColour = new wxColourPickerCtrl(this, wxID_ANY, style.backColour, wxDefaultPosition, wxDefaultSize,
                                          wxCLRP_DEFAULT_STYLE, wxDefaultValidator, "barvaPozadi");
    row->Add(m_fontColour, wxSizerFlags().CentreVertical());
    row->Add(new wxStaticText(this, wxID_ANY, u8("Pozadí:")), wxSizerFlags().CentreVertical().Border(wxLEFT, 12));
    row->Add(m_backColour, wxSizerFlags().CentreVertical().Border(wxLEFT, 4));
    addField("Barva písma:", row);
}

TextStyle PrvekDialog::textStyle() const {
    TextStyle s;
    if (m_font)
        s = TextStyle(m_fontPicked ? m_font->GetSelectedFont() : m_styleFont, m_fontColour->GetColour(),
                      m_backColour->GetColour());
    return s;
}

void PrvekDialog::addLineStyle(const LineStyle& style) {
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    m_lineColour = new wxColourPickerCtrl(this, wxID_ANY, style.lineColour, wxDefaultPosition, wxDefaultSize,
                                          wxCLRP_DEFAULT_STYLE, wxDefaultValidator, "barvaCary");
    wxArrayString names;
    int selected = 0;
    for (size_t i = 0; i < WXSIZEOF(PEN_STYLES); ++i) {
        names.push_back(u8(PEN_STYLES[i].nazev));
        if (PEN_STYLES[i].style == style.style) selected = static_cast<int>(i);
    }
    m_lineStyle =
        new wxChoice(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, names, 0, wxDefaultValidator, "stylCary");
    m_lineStyle->SetSelection(selected);
    row->Add(m_lineColour, wxSizerFlags().CentreVertical());
    row->Add(m_lineStyle, wxSizerFlags().CentreVertical().Border(wxLEFT, 8));
    addField("Čára:", row);
    addNumber("Tloušťka čáry:", "sirkaCary", style.width, 0, 20);
}

bool PrvekDialog::readLineStyle(LineStyle* style) {
    LineStyle s;
    if (!m_lineColour || !readNumber("sirkaCary", &s.width)) return false;
    s.lineColour = m_lineColour->GetColour();
    const int i = m_lineStyle->GetSelection();
    s.style = i >= 0 && i < static_cast<int>(WXSIZEOF(PEN_STYLES)) ? PEN_STYLES[i].style : wxPENSTYLE_SOLID;
    *style = s;
    return true;
}

wxCheckBox* PrvekDialog::addCheck(const char* label, const char* name, bool value) {
    auto* check =
        new wxCheckBox(this, wxID_ANY, u8(label), wxDefaultPosition, wxDefaultSize, 0, wxDefaultValidator, name);
    check->SetValue(value);
    addField("", check);
    return check;
}

void PrvekDialog::addPlaceholderTarget(wxTextCtrl* text) {
    m_targets.push_back(text);
    if (!m_target) m_target = text;
    text->Bind(wxEVT_SET_FOCUS, [this, text](wxFocusEvent& event) {
        m_target = text;
        event.Skip();
    });
}

void PrvekDialog::addPlaceholderButton() {
    auto* button = new wxButton(this, wxID_ANY, u8("Vložit pole…"), wxDefaultPosition, wxDefaultSize, 0,
                                wxDefaultValidator, "vlozitPole");
    button->Bind(wxEVT_BUTTON, [this, button](wxCommandEvent&) {
        wxMenu menu;
        std::vector<wxString> keys;
        for (const PlaceholderGroup& group : placeholderGroups()) {
            auto* sub = new wxMenu;
            for (const Placeholder& p : group.polozky) {
                const int id = wxID_HIGHEST + 1 + static_cast<int>(keys.size());
                keys.push_back(p.key);
                sub->Append(id, wxString::Format("%s  %s", u8(p.popis), p.key));
            }
            menu.AppendSubMenu(sub, u8(group.nazev));
        }
        menu.Bind(wxEVT_MENU, [this, &keys](wxCommandEvent& event) {
            const size_t i = static_cast<size_t>(event.GetId() - wxID_HIGHEST - 1);
            if (i < keys.size()) insertPlaceholder(keys[i]);
        });
        button->PopupMenu(&menu, 0, button->GetSize().y);
    });
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(button);
    addField("", row);
}

void PrvekDialog::insertPlaceholder(const wxString& key) {
    if (!m_target) return;
    m_target->WriteText(key);
    m_target->SetFocus();
}

std::unique_ptr<PrvekDialog> prvekDialog(wxWindow* parent, Element& element) {
    if (auto* e = dynamic_cast<TextElement*>(&element)) return std::make_unique<TextDialog>(parent, *e);
    if (auto* e = dynamic_cast<TextParagraphElement*>(&element)) return std::make_unique<OdstavecDialog>(parent, *e);
    if (auto* e = dynamic_cast<TableRowElement*>(&element)) return std::make_unique<RadekTabulkyDialog>(parent, *e);
    if (auto* e = dynamic_cast<ImageElement*>(&element)) return std::make_unique<ObrazekDialog>(parent, *e);
    if (auto* e = dynamic_cast<LineElement*>(&element)) return std::make_unique<CaraDialog>(parent, *e);
    if (auto* e = dynamic_cast<RectangleElement*>(&element)) return std::make_unique<ObdelnikDialog>(parent, *e);
    return nullptr;
}

bool upravPrvek(wxWindow* parent, Element& element) {
    std::unique_ptr<PrvekDialog> dialog = prvekDialog(parent, element);
    return dialog && dialog->ShowModal() == wxID_OK;
}
