#include "SablonaCanvas.h"

#include <wx/dcbuffer.h>
#include <wx/filename.h>
#include <wx/settings.h>

#include "imageelement.h"
#include "textmeasure.h"

using namespace editorgeo;

namespace {

// The editor shows the first page, the one templates are made of.
constexpr int EDITED_PAGE = 1;
constexpr int GRIP_PX = 7;

const wxColour SHEET_BACK(255, 255, 255);
const wxColour DESK_BACK(160, 160, 160);
const wxColour MARGIN_PEN(190, 190, 190);
const wxColour BAND_PEN(120, 150, 210);
const wxColour BAND_TINT(244, 247, 253);
const wxColour LABEL_TEXT(30, 30, 30);

}  // namespace

SablonaCanvas::SablonaCanvas(wxWindow* parent, Document* document)
    : wxScrolledWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxHSCROLL | wxVSCROLL | wxWANTS_CHARS,
                       "platno"),
      m_document(document) {
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetScrollRate(10, 10);
    Bind(wxEVT_PAINT, &SablonaCanvas::onPaint, this);
    Bind(wxEVT_LEFT_DOWN, [this](wxMouseEvent& e) {
        SetFocus();
        CaptureMouse();
        mouseDown(unscrolled(e.GetPosition()));
    });
    Bind(wxEVT_MOTION, [this](wxMouseEvent& e) {
        if (e.Dragging() && e.LeftIsDown()) mouseDrag(unscrolled(e.GetPosition()));
    });
    Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& e) {
        if (HasCapture()) ReleaseMouse();
        mouseUp(unscrolled(e.GetPosition()));
    });
    Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { m_drag = DRAG_NONE; });
    Bind(wxEVT_LEFT_DCLICK, [this](wxMouseEvent& e) { doubleClick(unscrolled(e.GetPosition())); });
    Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& e) {
        if (!key(e.GetKeyCode(), e.ShiftDown())) e.Skip();
    });
    setZoom(1.0);
}

wxPoint SablonaCanvas::unscrolled(const wxPoint& px) const { return CalcUnscrolledPosition(px); }

void SablonaCanvas::setZoom(double zoom) {
    m_zoom = zoom;
    m_view.pxPerMm = lxTextMeasure::mmToPx(1) * zoom;
    SetVirtualSize(m_view.canvasPx());
    Refresh();
}

void SablonaCanvas::refresh() {
    m_view.marginLeft = m_document->layout.marginLeft;
    m_view.marginTop = m_document->layout.marginTop;
    if (m_selection >= static_cast<int>(m_document->count())) m_selection = -1;
    m_document->clearElementSelection();
    if (m_selection >= 0) m_document->element(m_selection)->selected = true;
    SetVirtualSize(m_view.canvasPx());
    Refresh();
}

void SablonaCanvas::select(int index) {
    m_selection = index >= 0 && index < static_cast<int>(m_document->count()) ? index : -1;
    m_document->clearElementSelection();
    if (m_selection >= 0) m_document->element(m_selection)->selected = true;
    Refresh();
}

void SablonaCanvas::changed() {
    Refresh();
    if (onChanged) onChanged();
}

void SablonaCanvas::moveSelection(int dx, int dy) {
    if (m_selection < 0) return;
    Element* e = m_document->element(m_selection);
    const wxPoint before = originOf(*e);
    moveElement(*e, dx, dy);
    if (originOf(*e) != before) changed();
}

void SablonaCanvas::deleteSelection() {
    if (m_selection < 0) return;
    m_document->deleteElement(m_selection);
    m_selection = -1;
    changed();
}

Bands SablonaCanvas::bands() const {
    std::vector<Placed> placed;
    for (const Element* e : m_document->elementsByPage(EDITED_PAGE)) placed.push_back({e->section, e->bounds()});
    const lxPrint::Layout& l = m_document->layout;
    return sectionBands(placed, A4_HEIGHT_MM - l.marginTop - l.marginBottom);
}

DOCSECTION SablonaCanvas::insertSection() const { return sectionAt(bands(), m_insertPoint.y); }

void SablonaCanvas::mouseDown(const wxPoint& px) {
    const wxRealPoint mm = m_view.toMm(px);
    const wxPoint whole = m_view.toWholeMm(px);
    m_insertPoint = wxPoint(std::max(0, whole.x), std::max(0, whole.y));
    m_drag = DRAG_NONE;
    m_dragChanged = false;
    const double tolerance = std::max(HIT_TOLERANCE_MM, GRIP_PX / m_view.pxPerMm);
    if (m_selection >= 0) {
        m_grip = handleAt(shapeOf(*m_document->element(m_selection)), mm, tolerance);
        if (m_grip != HANDLE_NONE) {
            m_drag = DRAG_GRIP;
            return;
        }
    }
    // Only the elements of the shown page can be hit; `shown` maps back to document indexes.
    std::vector<Shape> shapes;
    std::vector<int> shown;
    for (size_t i = 0; i < m_document->count(); ++i) {
        const Element* e = m_document->element(i);
        if (e->page != EDITED_PAGE) continue;
        shapes.push_back(shapeOf(*e));
        shown.push_back(static_cast<int>(i));
    }
    const int hit = hitTest(shapes, mm);
    select(hit >= 0 ? shown[hit] : -1);
    if (m_selection < 0) return;
    m_drag = DRAG_MOVE;
    m_dragStartMm = whole;
    m_dragMoved = wxPoint();
    m_dragBands = bands();
}

void SablonaCanvas::mouseDrag(const wxPoint& px) {
    if (m_drag == DRAG_NONE || m_selection < 0) return;
    Element* e = m_document->element(m_selection);
    const wxPoint to = m_view.toWholeMm(px);
    if (m_drag == DRAG_GRIP) {
        m_dragChanged = resizeElement(*e, m_grip, to) || m_dragChanged;
    } else {
        const wxPoint wanted = to - m_dragStartMm - m_dragMoved;
        const wxPoint before = originOf(*e);
        moveElement(*e, wanted.x, wanted.y);
        m_dragMoved += originOf(*e) - before;
        m_dragChanged = m_dragChanged || m_dragMoved != wxPoint();
    }
    Refresh();
}

void SablonaCanvas::mouseUp(const wxPoint& px) {
    if (m_drag == DRAG_NONE) return;
    mouseDrag(px);
    if (m_drag == DRAG_MOVE && m_dragChanged && m_selection >= 0) {
        // Dropped into another band, the element joins that section; the bands are those from
        // before the move, which the user saw while dragging.
        Element* e = m_document->element(m_selection);
        e->section = sectionAt(m_dragBands, e->posY());
    }
    const bool wasChanged = m_dragChanged;
    m_drag = DRAG_NONE;
    m_dragChanged = false;
    if (wasChanged) changed();
}

void SablonaCanvas::doubleClick(const wxPoint& px) {
    mouseDown(px);
    m_drag = DRAG_NONE;
    if (m_selection >= 0 && onEdit) onEdit(m_selection);
}

bool SablonaCanvas::key(int keyCode, bool shift) {
    const int step = shift ? 5 : 1;
    switch (keyCode) {
        case WXK_LEFT:
            moveSelection(-step, 0);
            return true;
        case WXK_RIGHT:
            moveSelection(step, 0);
            return true;
        case WXK_UP:
            moveSelection(0, -step);
            return true;
        case WXK_DOWN:
            moveSelection(0, step);
            return true;
        case WXK_DELETE:
        case WXK_NUMPAD_DELETE:
            deleteSelection();
            return true;
        default:
            return false;
    }
}

void SablonaCanvas::onPaint(wxPaintEvent&) {
    wxAutoBufferedPaintDC dc(this);
    DoPrepareDC(dc);
    draw(dc);
}

void SablonaCanvas::draw(wxDC& dc) {
    dc.SetBackground(wxBrush(DESK_BACK));
    dc.Clear();
    dc.SetUserScale(m_zoom, m_zoom);
    const double f = lxTextMeasure::mmToPx(1);  // logical pixels a millimetre
    auto px = [f](double mm) { return wxRound(mm * f); };
    const lxPrint::Layout& l = m_document->layout;

    // The sheet with a shadow, and the printable area inside the margins.
    dc.SetPen(*wxTRANSPARENT_PEN);
    dc.SetBrush(wxBrush(wxColour(110, 110, 110)));
    dc.DrawRectangle(px(GAP_LEFT_MM + 1), px(GAP_TOP_MM + 1), px(A4_WIDTH_MM), px(A4_HEIGHT_MM));
    dc.SetBrush(wxBrush(SHEET_BACK));
    dc.DrawRectangle(px(GAP_LEFT_MM), px(GAP_TOP_MM), px(A4_WIDTH_MM), px(A4_HEIGHT_MM));
    drawBands(dc, bands());
    dc.SetPen(wxPen(MARGIN_PEN, 1, wxPENSTYLE_SHORT_DASH));
    dc.SetBrush(*wxTRANSPARENT_BRUSH);
    dc.DrawRectangle(px(GAP_LEFT_MM + l.marginLeft), px(GAP_TOP_MM + l.marginTop),
                     px(A4_WIDTH_MM - l.marginLeft - l.marginRight), px(A4_HEIGHT_MM - l.marginTop - l.marginBottom));

    for (Element* e : m_document->elementsByPage(EDITED_PAGE)) {
        if (auto* image = dynamic_cast<ImageElement*>(e)) drawImagePlace(dc, *image);
        e->DrawToDC(&dc, f, GAP_LEFT_MM + l.marginLeft, GAP_TOP_MM + l.marginTop);
    }
    drawGrips(dc);
}

void SablonaCanvas::drawBands(wxDC& dc, const Bands& bands) {
    const double f = lxTextMeasure::mmToPx(1);
    auto px = [f](double mm) { return wxRound(mm * f); };
    const lxPrint::Layout& l = m_document->layout;
    const double left = GAP_LEFT_MM + l.marginLeft, top = GAP_TOP_MM + l.marginTop;
    const double width = A4_WIDTH_MM - l.marginLeft - l.marginRight;
    const wxArrayString names = docSectionNames();
    wxFont labelFont = wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT);
    labelFont.SetPointSize(8);
    dc.SetFont(labelFont);
    dc.SetTextForeground(LABEL_TEXT);
    for (int s = 0; s < DOCSECTION_COUNT; ++s) {
        const double y = top + bands[s].top;
        const double h = std::min(bands[s].bottom, A4_HEIGHT_MM - l.marginTop - l.marginBottom) - bands[s].top;
        if (h <= 0) continue;
        if (s % 2 == 1) {
            dc.SetPen(*wxTRANSPARENT_PEN);
            dc.SetBrush(wxBrush(BAND_TINT));
            dc.DrawRectangle(px(left), px(y), px(width), px(h));
        }
        dc.SetPen(wxPen(BAND_PEN, 1, wxPENSTYLE_DOT));
        dc.DrawLine(px(1), px(y), px(left + width), px(y));
        dc.DrawText(names[s], px(1), px(y) + 2);
    }
}

void SablonaCanvas::drawImagePlace(wxDC& dc, const ImageElement& image) {
    // The pictures the invoice print supplies, and files that cannot be read, print nothing
    // here; the editor marks their place so that they can be seen, clicked and moved.
    wxString label;
    if (image.path == ImageElement::PATH_QR && image.qr.empty())
        label = "QR platba";
    else if (image.path == ImageElement::PATH_LOGO)
        label = "Logo firmy";
    else if (image.path == ImageElement::PATH_STAMP)
        label = wxString::FromUTF8("Razítko firmy");
    else if (image.bounds().m_height <= 0)
        label = wxFileName(image.path).GetFullName();
    else
        return;
    const double f = lxTextMeasure::mmToPx(1);
    const lxPrint::Layout& l = m_document->layout;
    wxRect2DDouble b = image.bounds();
    if (b.m_height <= 0) b.m_height = b.m_width;
    const wxRect r(
        wxPoint(wxRound((GAP_LEFT_MM + l.marginLeft + b.m_x) * f), wxRound((GAP_TOP_MM + l.marginTop + b.m_y) * f)),
        wxPoint(wxRound((GAP_LEFT_MM + l.marginLeft + b.m_x + b.m_width) * f),
                wxRound((GAP_TOP_MM + l.marginTop + b.m_y + b.m_height) * f)));
    dc.SetPen(wxPen(wxColour(128, 128, 128), 1, wxPENSTYLE_SHORT_DASH));
    dc.SetBrush(wxBrush(wxColour(238, 238, 238)));
    dc.DrawRectangle(r);
    dc.SetFont(wxSystemSettings::GetFont(wxSYS_DEFAULT_GUI_FONT));
    dc.SetTextForeground(wxColour(90, 90, 90));
    dc.DrawLabel(label, r, wxALIGN_CENTRE);
}

void SablonaCanvas::drawGrips(wxDC& dc) {
    if (m_selection < 0) return;
    const Element* e = m_document->element(m_selection);
    if (e->page != EDITED_PAGE) return;
    const double f = lxTextMeasure::mmToPx(1);
    const lxPrint::Layout& l = m_document->layout;
    dc.SetPen(wxPen(wxColour(0, 0, 160)));
    dc.SetBrush(wxBrush(wxColour(80, 120, 255)));
    const int half = wxRound(GRIP_PX / 2.0 / m_zoom);
    for (const Grip& g : gripsOf(shapeOf(*e))) {
        const wxPoint c(wxRound((GAP_LEFT_MM + l.marginLeft + g.at.x) * f),
                        wxRound((GAP_TOP_MM + l.marginTop + g.at.y) * f));
        dc.DrawRectangle(c.x - half, c.y - half, 2 * half + 1, 2 * half + 1);
    }
}
