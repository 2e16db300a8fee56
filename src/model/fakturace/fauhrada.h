// What the payment-form dialogs decide without a window: the checks of a form's text, why a
// form may not be deleted, and storing or deleting it.
#pragma once

#include <wx/string.h>

#include "dbmodel.h"

// The text must be given and not be another form's (`id` is the edited form, -1 for a new
// one). Empty when the form may be stored, else the message.
wxString fauhradaValidation(DbModel& model, const wxString& uhrada, int id);
// Why the form cannot be deleted: documents use it, or it is the last one. Empty when it can.
wxString fauhradaDeleteRefusal(DbModel& model, int id);
// Stores a new form (`id` -1, it takes the next free id) or an edited one after the checks;
// the form's id, or -1 with the message in `chyba` (empty when the database refused).
int ulozitFauhradu(DbModel& model, int id, const wxString& uhrada, bool pokladnou, wxString* chyba);
// Deletes the form unless refused; the refusal in `duvod`.
bool smazatFauhradu(DbModel& model, int id, wxString* duvod);
