#include "lxdatectrl.h"

#include <wx/button.h>
#include <wx/calctrl.h>
#include <wx/dateevt.h>
#include <wx/generic/calctrlg.h>
#include <wx/popupwin.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "clock.h"
#include "lxformat.h"

namespace {

// The pop-up calendar: a click on a day, a double click or Enter takes the day and closes;
// the arrows and the month and year fields only look around. Escape or a click elsewhere
// closes it without a change. The generic calendar starts the week on Monday whatever the
// system's locale, as Czech calendars do.
class CalendarPopup : public wxPopupTransientWindow {
 public:
    CalendarPopup(lxDateCtrl* owner, const wxDateTime& date) : wxPopupTransientWindow(owner, wxBORDER_SIMPLE) {
        m_calendar = new wxGenericCalendarCtrl(this, wxID_ANY, date, wxDefaultPosition, wxDefaultSize,
                                               wxCAL_MONDAY_FIRST | wxCAL_SHOW_SURROUNDING_WEEKS, "kalendar");
        auto* sizer = new wxBoxSizer(wxVERTICAL);
        sizer->Add(m_calendar, wxSizerFlags().Border(wxALL, 2));
        SetSizerAndFit(sizer);
        const auto take = [this, owner](const wxDateTime& day) {
            owner->pick(day);
            Dismiss();
        };
        m_calendar->Bind(wxEVT_LEFT_UP, [this, take](wxMouseEvent& event) {
            wxDateTime day;
            if (m_calendar->HitTest(event.GetPosition(), &day) == wxCAL_HITTEST_DAY && day.IsValid())
                take(day);
            else
                event.Skip();
        });
        m_calendar->Bind(wxEVT_CALENDAR_DOUBLECLICKED, [take](wxCalendarEvent& event) { take(event.GetDate()); });
        m_calendar->Bind(wxEVT_CHAR_HOOK, [this, take](wxKeyEvent& event) {
            if (event.GetKeyCode() == WXK_ESCAPE)
                Dismiss();
            else if (event.GetKeyCode() == WXK_RETURN || event.GetKeyCode() == WXK_NUMPAD_ENTER)
                take(m_calendar->GetDate());
            else
                event.Skip();
        });
    }
    void OnDismiss() override {
        if (auto* owner = dynamic_cast<lxDateCtrl*>(GetParent())) owner->SetFocus();
        CallAfter([this] { Destroy(); });
    }
    wxGenericCalendarCtrl* calendar() const { return m_calendar; }

 private:
    wxGenericCalendarCtrl* m_calendar;
};

}  // namespace

lxDateCtrl::lxDateCtrl(wxWindow* parent, const wxString& name, const wxDateTime& date)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxNO_BORDER, name),
      m_rok(lxutils::today().GetYear()) {
    // Wide enough for "23.11.2026" and a little more.
    m_text = new wxTextCtrl(this, wxID_ANY, wxString(), wxDefaultPosition, wxSize(110, -1), 0, wxDefaultValidator,
                            name + "Text");
    m_button = new wxButton(this, wxID_ANY, "...", wxDefaultPosition, wxSize(30, -1), wxBU_EXACTFIT, wxDefaultValidator,
                            name + "Kalendar");
    m_button->SetToolTip(wxString::FromUTF8("Vybrat datum v kalendáři"));
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(m_text, wxSizerFlags(1).CentreVertical());
    sizer->Add(m_button, wxSizerFlags().CentreVertical().Border(wxLEFT, 2));
    SetSizerAndFit(sizer);

    m_button->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { showCalendar(); });
    m_text->Bind(wxEVT_KILL_FOCUS, [this](wxFocusEvent& event) {
        commitText();
        event.Skip();
    });
    // Alt+Down opens the calendar, as it does on a native date field.
    m_text->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_DOWN && event.AltDown())
            showCalendar();
        else
            event.Skip();
    });
    SetValue(date);
}

void lxDateCtrl::SetValue(const wxDateTime& date) {
    m_last = date.IsValid() ? date.GetDateOnly() : wxDateTime();
    m_text->ChangeValue(lxformat::formatDatum(m_last));
}

wxDateTime lxDateCtrl::GetValue() const { return lxformat::parseDatum(m_text->GetValue(), m_rok); }

wxString lxDateCtrl::text() const { return m_text->GetValue(); }

void lxDateCtrl::focusText() {
    m_text->SetFocus();
    m_text->SelectAll();
}

void lxDateCtrl::SetFocus() { m_text->SetFocus(); }

bool lxDateCtrl::Enable(bool enable) {
    m_text->Enable(enable);
    m_button->Enable(enable);
    return wxPanel::Enable(enable);
}

void lxDateCtrl::showCalendar() {
    const wxDateTime typed = GetValue();
    const wxDateTime start = typed.IsValid() ? typed : m_last.IsValid() ? m_last : lxutils::today();
    auto* popup = new CalendarPopup(this, start);
    const wxPoint below = ClientToScreen(wxPoint(0, GetSize().y));
    popup->Position(below, wxSize(0, 0));
    popup->Popup(popup->calendar());
}

void lxDateCtrl::pick(const wxDateTime& date) {
    if (!date.IsValid()) return;
    m_text->ChangeValue(lxformat::formatDatum(date.GetDateOnly()));
    commitText();
}

void lxDateCtrl::commitText() {
    const wxDateTime date = GetValue();
    if (!date.IsValid()) return;
    // A date typed without its year, or in another form, shows as it was taken.
    const wxString shown = lxformat::formatDatum(date);
    if (m_text->GetValue() != shown) m_text->ChangeValue(shown);
    if (m_last.IsValid() && date.IsSameDate(m_last)) return;
    m_last = date;
    wxDateEvent event(this, date, wxEVT_DATE_CHANGED);
    GetEventHandler()->ProcessEvent(event);
}
