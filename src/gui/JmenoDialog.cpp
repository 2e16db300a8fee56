#include "JmenoDialog.h"

#include <wx/textctrl.h>

JmenoDialog::JmenoDialog(wxWindow* parent, const wxString& title, int id, int novyId, const wxString& jmeno,
                         Ulozit ulozit)
    : FormDialog(parent, title), m_id(id), m_novyId(novyId), m_ulozit(std::move(ulozit)) {
    m_jmeno = addText("Název:", "jmeno", 320);
    m_jmeno->ChangeValue(jmeno);
    finish();
}

bool JmenoDialog::save() {
    const wxString jmeno = m_jmeno->GetValue().Strip(wxString::both);
    if (refused(jmeno.empty() ? wxString::FromUTF8("Název nemůže být prázdný") : wxString(), m_jmeno)) return false;
    const bool novy = m_id < 0;
    if (!m_ulozit(novy ? m_novyId : m_id, jmeno, novy)) return false;
    if (novy) m_id = m_novyId;
    return true;
}
