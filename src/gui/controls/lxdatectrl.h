// lxDateCtrl: a date field a person can type into ("15.10.2026", "15.10." in the field's year,
// "2026-10-15") with a button that pops up a calendar. It shows dates as "23.11.2026" and reads
// typed text through lxformat::parseDatum, so that what is typed is what is taken. It sends
// wxEVT_DATE_CHANGED when its date becomes another one: a day picked in the calendar, or typed
// text that reads as a new date once the person leaves the field or presses Enter.
#pragma once

#include <wx/datetime.h>
#include <wx/panel.h>

class wxButton;
class wxTextCtrl;

class lxDateCtrl : public wxPanel {
 public:
    lxDateCtrl(wxWindow* parent, const wxString& name = "datum", const wxDateTime& date = wxDefaultDateTime);

    // Shows the date (empty for an invalid one); sends no event.
    void SetValue(const wxDateTime& date);
    // The date the text reads as, without a time of day; invalid when it does not read.
    wxDateTime GetValue() const;
    // The text as typed, for messages.
    wxString text() const;
    // The year of a date typed without one ("15.10."); the current year until set.
    void setRok(int rok) { m_rok = rok; }
    int rok() const { return m_rok; }
    // Puts the focus in the text and selects it, for a field whose text was refused.
    void focusText();

    wxTextCtrl* textCtrl() const { return m_text; }
    wxButton* calendarButton() const { return m_button; }
    // Pops the calendar up under the field, on the field's date (or today).
    void showCalendar();
    // A day picked in the calendar: shown and announced.
    void pick(const wxDateTime& date);

    void SetFocus() override;
    bool Enable(bool enable = true) override;

    // Takes the typed text as the field's date: shows it in its Czech form and announces it when
    // it differs from the date before. Done when the focus leaves the text; a dialog calls it
    // before reading the field when Enter pressed OK with the focus still in the text.
    void commitText();

 private:
    wxTextCtrl* m_text = nullptr;
    wxButton* m_button = nullptr;
    int m_rok;
    wxDateTime m_last;  // the date last shown or announced
};
