// The template editor's drawing area: an A4 sheet at a zoom with its margins, the seven
// section bands with their labels and the document's elements drawn as they print. A click
// selects an element, dragging moves it (into another band, it joins that section), the grips
// of the selected one resize it, the arrow keys move it by 1 mm (with Shift by 5 mm), Delete
// removes it and a double click opens its dialog. The geometry lives in editorgeometry.
#pragma once

#include <wx/scrolwin.h>

#include <functional>

#include "document.h"
#include "editorgeometry.h"

class ImageElement;

class SablonaCanvas : public wxScrolledWindow {
 public:
    SablonaCanvas(wxWindow* parent, Document* document);

    // Called after the canvas changed the document (moved, resized or deleted an element).
    std::function<void()> onChanged;
    // Called when an element is to be edited (double click); the index of the element.
    std::function<void(int)> onEdit;

    // Re-reads the document after it changed elsewhere (a dialog, a new file).
    void refresh();
    void setZoom(double zoom);
    double zoom() const { return m_zoom; }
    const editorgeo::PageView& view() const { return m_view; }

    int selection() const { return m_selection; }
    void select(int index);
    // Moves the selected element by whole millimetres.
    void moveSelection(int dx, int dy);
    void deleteSelection();
    // Where a new element goes: the last clicked point of the page (whole mm) and its section.
    wxPoint insertPoint() const { return m_insertPoint; }
    DOCSECTION insertSection() const;
    editorgeo::Bands bands() const;

    // The mouse and key handling, callable with canvas pixel positions (unscrolled).
    void mouseDown(const wxPoint& px);
    void mouseDrag(const wxPoint& px);
    void mouseUp(const wxPoint& px);
    void doubleClick(const wxPoint& px);
    // True when the key was one the canvas handles.
    bool key(int keyCode, bool shift);

 private:
    void onPaint(wxPaintEvent&);
    void draw(wxDC& dc);
    void drawBands(wxDC& dc, const editorgeo::Bands& bands);
    void drawGrips(wxDC& dc);
    void drawImagePlace(wxDC& dc, const ImageElement& image);
    wxPoint unscrolled(const wxPoint& px) const;
    void changed();

    Document* m_document;
    double m_zoom = 1.0;
    editorgeo::PageView m_view;
    int m_selection = -1;
    wxPoint m_insertPoint;

    // A drag in progress: what is dragged, from where, and by how much it has moved so far.
    enum DragKind { DRAG_NONE, DRAG_MOVE, DRAG_GRIP };
    DragKind m_drag = DRAG_NONE;
    editorgeo::Handle m_grip = editorgeo::HANDLE_NONE;
    wxPoint m_dragStartMm;
    wxPoint m_dragMoved;
    editorgeo::Bands m_dragBands{};
    bool m_dragChanged = false;
};
