// The dialog of an image: a picture file chosen with a file picker, or one of the pictures the
// invoice print supplies (the company logo, its stamp, the QR payment code); place, width and
// alignment.
#pragma once

#include "PrvekDialog.h"
#include "imageelement.h"

class wxFilePickerCtrl;

class ObrazekDialog : public PrvekDialog {
 public:
    ObrazekDialog(wxWindow* parent, ImageElement& element);
    bool save() override;

    // The entries of the source choice: a file, then the three special names.
    enum { ZDROJ_SOUBOR, ZDROJ_LOGO, ZDROJ_RAZITKO, ZDROJ_QR };

 private:
    void onZdroj();

    ImageElement& m_element;
    wxChoice* m_zdroj;
    wxFilePickerCtrl* m_soubor;
};
