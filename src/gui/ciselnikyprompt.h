// Before a VAT filing: makes sure the tax administration's code lists are in the data
// directory, offering to download them when they are not.
#pragma once

class wxWindow;

// True when the lists the filings need are there. When they are not, asks whether to download
// them now (for the VAT return `priznani` is true, for the control statement and the EC sales
// list false, which changes the question's wording), downloads them under a progress window
// naming the list being fetched and reports a failure; false when the user declines or the
// download fails.
bool ensureCiselniky(wxWindow* parent, bool priznani);
