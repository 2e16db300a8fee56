// The geometry of the template editor's canvas, kept apart from any window so that it can be
// checked without a display: millimetres against canvas pixels, the section bands of the page,
// which element a click hits, the resize handles, and the rules by which a move or a resize
// changes an element. Positions are whole millimetres from the page's top left margin corner,
// as elements store them.
#pragma once

#include <wx/gdicmn.h>
#include <wx/geometry.h>

#include <array>
#include <vector>

#include "document.h"

namespace editorgeo {

constexpr double A4_WIDTH_MM = 210;
constexpr double A4_HEIGHT_MM = 297;
// Room left of the sheet for the section labels, and above it, mm.
constexpr int GAP_LEFT_MM = 24;
constexpr int GAP_TOP_MM = 6;
// A band with nothing in it still gets this much room, so its label stays readable.
constexpr double MIN_BAND_MM = 6;
// How far from a line, a rectangle's outline or a handle a click still hits it, mm.
constexpr double HIT_TOLERANCE_MM = 1.5;
// The smallest width or side a resize leaves, mm.
constexpr int MIN_SIZE_MM = 1;

// Where the page lies on the canvas: `pxPerMm` canvas pixels a millimetre (screen resolution
// times the zoom), the sheet's corner GAP_LEFT_MM/GAP_TOP_MM from the canvas's origin and the
// elements measured from the margin corner inside it.
struct PageView {
    double pxPerMm = 96 / 25.4;
    int marginLeft = 10;
    int marginTop = 15;

    // Canvas pixel of an element position.
    wxPoint toPx(const wxRealPoint& mm) const;
    // Element position of a canvas pixel, unrounded.
    wxRealPoint toMm(const wxPoint& px) const;
    // The same, rounded to whole millimetres.
    wxPoint toWholeMm(const wxPoint& px) const;
    // The sheet's rectangle in canvas pixels and the canvas size that shows all of it.
    wxRect sheetPx() const;
    wxSize canvasPx() const;
};

// One section's band on the page, mm from the margin corner, top inclusive.
struct Band {
    double top = 0;
    double bottom = 0;
};
using Bands = std::array<Band, DOCSECTION_COUNT>;

// What the band layout needs to know of an element.
struct Placed {
    DOCSECTION section;
    wxRect2DDouble bounds;
};

// The bands stacked in section order from the top: each starts where the one before ended and
// reaches down to the lowest bottom edge of its elements, at least MIN_BAND_MM; the last one
// reaches the bottom of the printable height when that is lower.
Bands sectionBands(const std::vector<Placed>& elements, double printableHeight);
// The section whose band holds the height y; above the first band the first, below the last
// the last.
DOCSECTION sectionAt(const Bands& bands, double y);

// Which element a click at `mm` hits: the last drawn (topmost) whose shape it touches, or -1.
// A line is hit near its stroke and a rectangle near its outline, so a click inside a
// frame reaches the texts it surrounds; the others are hit inside their bounds.
int hitTest(const std::vector<const Element*>& elements, const wxRealPoint& mm, double tolerance = HIT_TOLERANCE_MM);
// The same for elements given by kind and bounds (and the ends of a line).
struct Shape {
    int type;
    wxRect2DDouble bounds;
    wxRealPoint start, end;  // of a line
};
Shape shapeOf(const Element& element);
int hitTest(const std::vector<Shape>& shapes, const wxRealPoint& mm, double tolerance = HIT_TOLERANCE_MM);

// The grips of a selected element: text, paragraph, table row and image grow wider at their
// right edge; a rectangle changes its size at its bottom right corner; a line moves either end.
enum Handle { HANDLE_NONE, HANDLE_WIDTH, HANDLE_SIZE, HANDLE_START, HANDLE_END };
struct Grip {
    Handle handle;
    wxRealPoint at;  // mm
};
std::vector<Grip> gripsOf(const Shape& shape);
Handle handleAt(const Shape& shape, const wxRealPoint& mm, double tolerance = HIT_TOLERANCE_MM);

// Drags a grip to `to` (mm): HANDLE_WIDTH sets the width so that the right edge lands there
// (a table row takes the change in its last cell), HANDLE_SIZE sets a rectangle's size,
// HANDLE_START/HANDLE_END move that end of a line. Widths and sides keep MIN_SIZE_MM.
// False when the element has no such grip.
bool resizeElement(Element& element, Handle handle, const wxPoint& to);

}  // namespace editorgeo

namespace editorgeo {
// A whole number as typed into a millimetre field: digits with an optional minus sign and
// spaces around; false for anything else ("12.500", "12,5", "abc", "").
bool parseWholeNumber(const wxString& text, long* value);
}  // namespace editorgeo
