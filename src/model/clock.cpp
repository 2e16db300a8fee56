#include "clock.h"

namespace lxutils {

namespace {
wxDateTime& fixedDay() {
    static wxDateTime day;  // invalid: the real clock
    return day;
}
}  // namespace

wxDateTime today() { return fixedDay().IsValid() ? fixedDay() : wxDateTime::Today(); }

void setToday(const wxDateTime& day) { fixedDay() = day.IsValid() ? day.GetDateOnly() : wxDateTime(); }

}  // namespace lxutils
