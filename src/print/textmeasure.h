// Text measurement for print layout. Layout is computed in screen pixels, the unit in which
// every print device is scaled to draw (see lxPrint), so text is measured on a screen DC.
//
// Wrapping looks at a text character by character, so measuring every prefix on the DC
// would be quadratic in the length of a cell and slow for long lists. Instead the advance of
// each character is measured once per font (as a tenth of a run of ten, for sub-pixel
// precision) and a line's width is the sum of its characters' advances.
#pragma once

#include <wx/font.h>
#include <wx/string.h>

#include <vector>

namespace lxTextMeasure {

// Capitals of the common faces are about 0.72 of the font size tall; with a caron or an acute
// accent above them, about 0.92.
constexpr double CAP_HEIGHT = 0.72;
constexpr double ACCENTED_CAP_HEIGHT = 0.92;

// Pixels per inch of the screen, read once.
double screenPpi();
double mmToPx(double mm);
double pxToMm(double px);

// Width of one line of text in screen pixels (line feeds are not expected here).
double textWidthPx(const wxFont& font, const wxString& line);
// Width of the widest of the lines separated by line feeds.
double widestLinePx(const wxFont& font, const wxString& text);
// Height of a line of text as the DC lays it out, in screen pixels.
double textHeightPx(const wxFont& font);
// Where to put the top of drawn text in a line `lineHeightMm` tall, in mm from the line's
// top: capitals and descenders are centred in the line. Print lines are tighter than the
// font's own line height, so centring the whole text box would push descenders out.
// `capShare` is the height of what must fit, as a share of the font size: capitals by default,
// capitals with their accents (Č, Ř, Š) where the line is boxed by rules.
double textTopInLineMm(const wxFont& font, double lineHeightMm, double capShare = CAP_HEIGHT);

// Breaks text into lines: each line feed starts a line; otherwise characters are added one
// by one, the last space or tab is remembered, and once the line is wider than `limitPx`
// and a break point exists in it, a new line starts after the break point (the space itself
// is dropped). A word longer than the limit is not broken, unless `breakWords` is set: then it
// is cut between characters where it reaches the limit, so that no line is wider than it.
std::vector<wxString> wrapText(const wxFont& font, const wxString& text, double limitPx, bool breakWords = false);
// The number of lines wrapText gives, without building them.
int wrappedLineCount(const wxFont& font, const wxString& text, double limitPx, bool breakWords = false);
// Width of the widest word (text between spaces, tabs and line feeds).
double longestWordPx(const wxFont& font, const wxString& text);

// Forget measured fonts (the cache grows with every distinct font; templates have few).
void clearCache();

}  // namespace lxTextMeasure
