// lxPdfDC: a PDF file as a wxDC. cairo's PDF surface is wrapped in a wxGCDC, so prints reach
// a PDF through the same drawing code as the preview and the printer. cairo embeds and
// subsets the fonts it draws with, so Czech text stays selectable and searchable.
//
// The device counts in PDF points (72 per inch); lxPrint scales it to screen pixels. Text
// must be measured on a screen DC (lxTextMeasure), not here.
#pragma once

#include <wx/dc.h>
#include <wx/dcgraph.h>
#include <wx/print.h>

typedef struct _cairo_surface cairo_surface_t;
typedef struct _cairo cairo_t;
class lxPrint;

class lxPdfDC : public wxGCDC {
 public:
    static constexpr int POINTS_PER_INCH = 72;

    // Opens an A4 PDF file for writing. isValid() tells whether that worked.
    lxPdfDC(const wxString& path, wxPrintOrientation orientation);
    ~lxPdfDC() override;
    lxPdfDC(const lxPdfDC&) = delete;
    lxPdfDC& operator=(const lxPdfDC&) = delete;

    bool isValid() const;
    // Resolution of the parts cairo has to rasterise (transparency effects), dots per inch.
    void setResolution(int dpi);
    void setMetadata(const wxString& title, const wxString& author, const wxString& creator);
    void startPage();
    void endPage();
    // Writes the file out; returns false when it could not be written. Drawing afterwards
    // does nothing.
    bool close();

    // Draws every page the printout has, from page 1 while HasPage, into a new PDF file with
    // the given metadata. The first page whose drawing fails ends the file early: it is
    // written with the pages before it, and *error says so. Returns whether a file was
    // written; *pagesWritten (if given) counts its pages.
    static bool writePrintout(lxPrint& printout, const wxString& path, const wxString& title, const wxString& author,
                              wxString* error = nullptr, int* pagesWritten = nullptr);

 private:
    explicit lxPdfDC(cairo_surface_t* surface);

    cairo_surface_t* m_surface;
    bool m_pageOpen = false;
    bool m_closed = false;
};
