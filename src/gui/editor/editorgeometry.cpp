#include "editorgeometry.h"

#include <algorithm>
#include <cmath>

#include "imageelement.h"
#include "lineelement.h"
#include "rectangleelement.h"
#include "tablerowelement.h"
#include "textelement.h"
#include "textparagraphelement.h"

namespace editorgeo {

wxPoint PageView::toPx(const wxRealPoint& mm) const {
    return wxPoint(wxRound((GAP_LEFT_MM + marginLeft + mm.x) * pxPerMm),
                   wxRound((GAP_TOP_MM + marginTop + mm.y) * pxPerMm));
}

wxRealPoint PageView::toMm(const wxPoint& px) const {
    return wxRealPoint(px.x / pxPerMm - GAP_LEFT_MM - marginLeft, px.y / pxPerMm - GAP_TOP_MM - marginTop);
}

wxPoint PageView::toWholeMm(const wxPoint& px) const {
    const wxRealPoint mm = toMm(px);
    return wxPoint(wxRound(mm.x), wxRound(mm.y));
}

wxRect PageView::sheetPx() const {
    const wxPoint corner(wxRound(GAP_LEFT_MM * pxPerMm), wxRound(GAP_TOP_MM * pxPerMm));
    const wxPoint far(wxRound((GAP_LEFT_MM + A4_WIDTH_MM) * pxPerMm), wxRound((GAP_TOP_MM + A4_HEIGHT_MM) * pxPerMm));
    return wxRect(corner, far - wxPoint(1, 1));
}

wxSize PageView::canvasPx() const {
    // As much room right of and below the sheet as above it.
    return wxSize(wxRound((GAP_LEFT_MM + A4_WIDTH_MM + GAP_TOP_MM) * pxPerMm),
                  wxRound((2 * GAP_TOP_MM + A4_HEIGHT_MM) * pxPerMm));
}

Bands sectionBands(const std::vector<Placed>& elements, double printableHeight) {
    std::array<double, DOCSECTION_COUNT> lowest{};
    for (const Placed& p : elements)
        if (p.section >= 0 && p.section < DOCSECTION_COUNT)
            lowest[p.section] = std::max(lowest[p.section], p.bounds.m_y + p.bounds.m_height);
    Bands bands;
    double top = 0;
    for (int s = 0; s < DOCSECTION_COUNT; ++s) {
        bands[s].top = top;
        bands[s].bottom = std::max(top + MIN_BAND_MM, lowest[s]);
        top = bands[s].bottom;
    }
    bands[DOCSECTION_COUNT - 1].bottom = std::max(bands[DOCSECTION_COUNT - 1].bottom, printableHeight);
    return bands;
}

DOCSECTION sectionAt(const Bands& bands, double y) {
    for (int s = 0; s < DOCSECTION_COUNT; ++s)
        if (y < bands[s].bottom) return static_cast<DOCSECTION>(s);
    return static_cast<DOCSECTION>(DOCSECTION_COUNT - 1);
}

namespace {

double distanceToSegment(const wxRealPoint& p, const wxRealPoint& a, const wxRealPoint& b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double length2 = dx * dx + dy * dy;
    double t = length2 > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / length2 : 0;
    t = std::clamp(t, 0.0, 1.0);
    const double cx = a.x + t * dx - p.x, cy = a.y + t * dy - p.y;
    return std::sqrt(cx * cx + cy * cy);
}

bool inside(const wxRect2DDouble& r, const wxRealPoint& p, double grow) {
    return p.x >= r.m_x - grow && p.x <= r.m_x + r.m_width + grow && p.y >= r.m_y - grow &&
           p.y <= r.m_y + r.m_height + grow;
}

bool hits(const Shape& s, const wxRealPoint& p, double tolerance) {
    if (s.type == Element::LINE) return distanceToSegment(p, s.start, s.end) <= tolerance;
    if (s.type == Element::RECTANGLE) {
        // Near the outline: inside the grown rectangle but not deep inside the shrunk one.
        const wxRect2DDouble& r = s.bounds;
        const bool innerExists = r.m_width > 2 * tolerance && r.m_height > 2 * tolerance;
        return inside(r, p, tolerance) && !(innerExists && inside(r, p, -tolerance));
    }
    // An empty text still has to be found: give it at least the tolerance around its point.
    return inside(s.bounds, p, s.bounds.m_width > 0 && s.bounds.m_height > 0 ? 0 : tolerance);
}

}  // namespace

Shape shapeOf(const Element& element) {
    Shape s{element.elementType(), element.bounds(), {}, {}};
    if (const auto* line = dynamic_cast<const LineElement*>(&element)) {
        s.start = wxRealPoint(line->start.x, line->start.y);
        s.end = wxRealPoint(line->end.x, line->end.y);
    }
    return s;
}

int hitTest(const std::vector<Shape>& shapes, const wxRealPoint& mm, double tolerance) {
    for (int i = static_cast<int>(shapes.size()) - 1; i >= 0; --i)
        if (hits(shapes[i], mm, tolerance)) return i;
    return -1;
}

int hitTest(const std::vector<const Element*>& elements, const wxRealPoint& mm, double tolerance) {
    std::vector<Shape> shapes;
    shapes.reserve(elements.size());
    for (const Element* e : elements) shapes.push_back(shapeOf(*e));
    return hitTest(shapes, mm, tolerance);
}

std::vector<Grip> gripsOf(const Shape& s) {
    const wxRect2DDouble& b = s.bounds;
    switch (s.type) {
        case Element::LINE:
            return {{HANDLE_START, s.start}, {HANDLE_END, s.end}};
        case Element::RECTANGLE:
            return {{HANDLE_SIZE, wxRealPoint(b.m_x + b.m_width, b.m_y + b.m_height)}};
        default:
            return {{HANDLE_WIDTH, wxRealPoint(b.m_x + b.m_width, b.m_y + b.m_height / 2)}};
    }
}

Handle handleAt(const Shape& shape, const wxRealPoint& mm, double tolerance) {
    for (const Grip& g : gripsOf(shape))
        if (std::abs(mm.x - g.at.x) <= tolerance && std::abs(mm.y - g.at.y) <= tolerance) return g.handle;
    return HANDLE_NONE;
}

bool resizeElement(Element& element, Handle handle, const wxPoint& to) {
    const wxPoint at(std::max(0, to.x), std::max(0, to.y));
    if (auto* line = dynamic_cast<LineElement*>(&element)) {
        if (handle == HANDLE_START)
            line->start = at;
        else if (handle == HANDLE_END)
            line->end = at;
        else
            return false;
        return true;
    }
    if (auto* rect = dynamic_cast<RectangleElement*>(&element)) {
        if (handle != HANDLE_SIZE) return false;
        rect->size = wxSize(std::max(MIN_SIZE_MM, at.x - rect->start.x), std::max(MIN_SIZE_MM, at.y - rect->start.y));
        return true;
    }
    if (handle != HANDLE_WIDTH) return false;
    if (auto* text = dynamic_cast<TextElement*>(&element)) {
        // A text without a width is placed by its alignment; once it has one, it starts at
        // pos.x, so the left edge it had becomes its position.
        const int left = wxRound(text->bounds().m_x);
        text->pos.x = std::max(0, left);
        text->width = std::max(MIN_SIZE_MM, at.x - text->pos.x);
    } else if (auto* para = dynamic_cast<TextParagraphElement*>(&element)) {
        para->width = std::max(MIN_SIZE_MM, at.x - para->pos.x);
    } else if (auto* row = dynamic_cast<TableRowElement*>(&element)) {
        if (row->width.empty()) return false;
        const int others = row->totalWidth() - row->width.back();
        row->width.back() = std::max(MIN_SIZE_MM, at.x - row->pos.x - others);
    } else if (auto* image = dynamic_cast<ImageElement*>(&element)) {
        if (image->alignment == wxTEXT_ALIGNMENT_CENTRE) {
            image->width = std::max(MIN_SIZE_MM, 2 * (at.x - image->pos.x));
        } else if (image->alignment == wxTEXT_ALIGNMENT_RIGHT) {
            // A right-aligned picture ends at pos.x: its left edge stays and pos.x follows.
            const int left = image->pos.x - image->width;
            image->width = std::max(MIN_SIZE_MM, at.x - left);
            image->pos.x = left + image->width;
        } else {
            image->width = std::max(MIN_SIZE_MM, at.x - image->pos.x);
        }
    } else {
        return false;
    }
    return true;
}

}  // namespace editorgeo

namespace editorgeo {

bool parseWholeNumber(const wxString& text, long* value) {
    wxString t = text;
    t.Trim(true).Trim(false);
    if (t.empty()) return false;
    size_t i = t[0] == '-' ? 1 : 0;
    if (i == t.length() || t.length() - i > 6) return false;
    for (size_t k = i; k < t.length(); ++k)
        if (t[k] < '0' || t[k] > '9') return false;
    return t.ToLong(value);
}

}  // namespace editorgeo
