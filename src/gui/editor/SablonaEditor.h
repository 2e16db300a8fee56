// "Editor šablon": the window in which invoice templates are made. It holds one document at a
// time, shows it on the canvas, adds and edits elements through their dialogs, reads and writes
// template files and previews the template filled with a sample invoice.
#pragma once

#include <wx/frame.h>

#include "document.h"

class SablonaCanvas;
class wxPreviewFrame;

class SablonaEditor : public wxFrame {
 public:
    enum {
        ID_VLASTNOSTI = wxID_HIGHEST + 700,
        ID_TEXT,
        ID_ODSTAVEC,
        ID_RADEK,
        ID_OBRAZEK,
        ID_CARA,
        ID_OBDELNIK,
        ID_UPRAVIT,
        ID_SMAZAT,
        ID_NAHLED,
        ID_ZOOM  // and the following ids, one a zoom step
    };

    explicit SablonaEditor(wxWindow* parent);

    Document& document() { return m_doc; }
    SablonaCanvas* canvas() const { return m_canvas; }
    const wxString& path() const { return m_path; }
    bool isModified() const { return m_modified; }

    // The commands of the menu and the toolbar.
    void novy();
    bool otevrit();
    bool otevrit(const wxString& path);
    bool ulozit();
    bool ulozitJako();
    // Adds an element of the kind (an Element::Type) through its dialog at the canvas's insert
    // point; true when one was added.
    bool pridat(int type);
    bool upravit();
    void smazat();
    void vlastnosti();
    // Shows the template filled with a sample invoice in a preview that is modal to the
    // program; the preview keeps its own copy of the filled document.
    wxPreviewFrame* nahled();
    // True when the changes may be dropped: nothing changed, or the user saved or declined.
    bool muzeZavrit();

 private:
    void buildMenu();
    void buildToolBar();
    void setModified(bool modified);
    void updateTitle();
    void onClose(wxCloseEvent& event);

    Document m_doc;
    wxString m_path;
    bool m_modified = false;
    SablonaCanvas* m_canvas;
};
