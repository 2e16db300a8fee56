// The "Rok" choice of the tax overviews: the company's accounting years, the current one
// selected, and the chosen year read back as a number.
#pragma once

class wxChoice;
class wxWindow;

wxChoice* rokChoice(wxWindow* parent);
// The chosen year; 0 for none.
int vybranyRok(const wxChoice* choice);
