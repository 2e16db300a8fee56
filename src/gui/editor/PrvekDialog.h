// The shared form of the template editor's dialogs (the six element dialogs and the
// document's): the section and page every element has, whole-millimetre fields with their range check, the text style
// and line style pickers, the alignment choice and the placeholder menu that inserts into the dialog's text fields.
#pragma once

#include <wx/font.h>

#include <memory>
#include <vector>

#include "FormDialog.h"
#include "element.h"

class wxCheckBox;
class wxColourPickerCtrl;
class wxFontPickerCtrl;
class wxTextCtrl;

class PrvekDialog : public FormDialog {
 public:
    // Puts a placeholder at the cursor of the text field last used (the first one before any).
    virtual void insertPlaceholder(const wxString& key);

 protected:
    // The largest coordinate or size in mm a field accepts: more than an A4 sheet's height.
    static constexpr int MAX_MM = 300;

    PrvekDialog(wxWindow* parent, const wxString& title);

    // A whole-millimetre field (or any whole number) checked against [min, max] on OK.
    wxTextCtrl* addNumber(const char* label, const char* name, int value, int min, int max);
    // Two numbers side by side in one row, such as X and Y.
    void addPair(const char* label, const char* nameX, const char* nameY, const wxPoint& value, int min, int max,
                 const char* axisX = "X:", const char* axisY = "Y:");
    // Reads a number field; false after telling the user what is wrong.
    bool readNumber(const char* name, int* value);
    bool readPair(const char* nameX, const char* nameY, wxPoint* value);

    void addSectionAndPage(const Element& element);
    // Section and page into the element; false when the page is wrong.
    bool readSectionAndPage(Element& element);

    wxChoice* addAlignment(int alignment);
    wxTextAttrAlignment alignment() const;

    void addTextStyle(const TextStyle& style);
    TextStyle textStyle() const;

    void addLineStyle(const LineStyle& style);
    // The line style with its width checked; false after telling the user what is wrong.
    bool readLineStyle(LineStyle* style);

    wxCheckBox* addCheck(const char* label, const char* name, bool value);

    // A text field that placeholders may go into; the first one added is the default target.
    void addPlaceholderTarget(wxTextCtrl* text);
    // The "Vložit pole" button with the placeholder menu, added as a row.
    void addPlaceholderButton();

 private:
    struct NumberField {
        wxTextCtrl* text;
        wxString label;
        int min, max;
    };
    wxTextCtrl* numberControl(const char* name, int value);
    const NumberField* numberField(const char* name) const;

    std::vector<NumberField> m_numbers;
    wxChoice* m_section = nullptr;
    wxChoice* m_alignment = nullptr;
    wxFontPickerCtrl* m_font = nullptr;
    wxFont m_styleFont;  // the style's own font, kept unless another is picked
    bool m_fontPicked = false;
    wxColourPickerCtrl* m_fontColour = nullptr;
    wxColourPickerCtrl* m_backColour = nullptr;
    wxColourPickerCtrl* m_lineColour = nullptr;
    wxChoice* m_lineStyle = nullptr;
    std::vector<wxTextCtrl*> m_targets;
    wxTextCtrl* m_target = nullptr;
};

// Opens the dialog of the element's kind on it; true when the user confirmed (the element then
// holds what was entered), false on "Zrušit" (the element is unchanged).
bool upravPrvek(wxWindow* parent, Element& element);
// The dialog of the element's kind, titled by the kind ("Text", "Odstavec", ...), editing it.
std::unique_ptr<PrvekDialog> prvekDialog(wxWindow* parent, Element& element);
