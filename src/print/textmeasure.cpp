#include "textmeasure.h"

#include <wx/dcscreen.h>

#include <algorithm>
#include <array>
#include <memory>
#include <unordered_map>

namespace {

// Czech and the rest of Latin Extended-A/B fit into the direct table.
constexpr unsigned DIRECT_CHARS = 0x250;
constexpr int RUN = 10;

class FontMetrics {
 public:
    explicit FontMetrics(const wxFont& font) : m_font(font) { m_direct.fill(-1.0); }

    const wxFont& font() const { return m_font; }

    double advance(wchar_t ch) {
        const auto code = static_cast<unsigned>(ch);
        if (code < DIRECT_CHARS) {
            double& w = m_direct[code];
            if (w < 0) w = measure(ch);
            return w;
        }
        auto it = m_other.find(code);
        if (it != m_other.end()) return it->second;
        const double w = measure(ch);
        m_other.emplace(code, w);
        return w;
    }

    double height() {
        measureHeight();
        return m_height;
    }

    double descent() {
        measureHeight();
        return m_descent;
    }

 private:
    void measureHeight() {
        if (m_height >= 0) return;
        wxScreenDC dc;
        dc.SetFont(m_font);
        wxCoord w = 0, h = 0, descent = 0;
        dc.GetTextExtent("Xg", &w, &h, &descent);
        m_height = h;
        m_descent = descent;
    }

    double measure(wchar_t ch) const {
        if (ch == L'\n' || ch == L'\r') return 0;
        wxScreenDC dc;
        dc.SetFont(m_font);
        wxCoord w = 0, h = 0;
        dc.GetTextExtent(wxString(ch, RUN), &w, &h);
        return static_cast<double>(w) / RUN;
    }

    wxFont m_font;
    std::array<double, DIRECT_CHARS> m_direct;
    std::unordered_map<unsigned, double> m_other;
    double m_height = -1;
    double m_descent = 0;
};

// Prints use a handful of fonts, but many wxFont objects: every copy of one font shares its
// data and IsSameAs is a pointer test, whereas comparing two separately made fonts by value
// is slow on GTK. So each font object seen is remembered as an alias of its metrics, and
// the comparison by value runs once per new font object.
constexpr size_t MAX_ALIASES = 256;

struct Cache {
    std::vector<std::unique_ptr<FontMetrics>> fonts;
    std::vector<std::pair<wxFont, FontMetrics*>> aliases;
    wxFont lastFont;
    FontMetrics* last = nullptr;
};

// Kept for the life of the process: fonts must not be destroyed after wxWidgets has shut down.
Cache& cache() {
    static Cache* c = new Cache;
    return *c;
}

FontMetrics& metricsFor(const wxFont& font) {
    Cache& c = cache();
    if (c.last && c.lastFont.IsSameAs(font)) return *c.last;
    FontMetrics* found = nullptr;
    for (auto& alias : c.aliases)
        if (alias.first.IsSameAs(font)) {
            found = alias.second;
            break;
        }
    if (!found) {
        for (auto& m : c.fonts)
            if (m->font() == font) {
                found = m.get();
                break;
            }
        if (!found) {
            c.fonts.push_back(std::make_unique<FontMetrics>(font));
            found = c.fonts.back().get();
        }
        if (c.aliases.size() >= MAX_ALIASES) c.aliases.clear();
        c.aliases.emplace_back(font, found);
    }
    c.lastFont = font;
    c.last = found;
    return *found;
}

// Walks the text once and reports each line as [start, end) character positions.
template <typename LineFn>
void forEachWrappedLine(const wxFont& font, const wxString& text, double limitPx, bool breakWords, LineFn&& onLine) {
    FontMetrics& m = metricsFor(font);
    const size_t n = text.length();
    size_t start = 0;
    double width = 0;
    bool hasBreak = false;
    size_t breakAt = 0;
    double widthThroughBreak = 0;
    size_t i = 0;
    for (auto it = text.begin(); it != text.end(); ++it, ++i) {
        const wchar_t ch = static_cast<wchar_t>((*it).GetValue());
        if (ch == L'\n') {
            onLine(start, i);
            start = i + 1;
            width = 0;
            hasBreak = false;
            continue;
        }
        const double advance = m.advance(ch);
        width += advance;
        if (ch == L' ' || ch == L'\t') {
            hasBreak = true;
            breakAt = i;
            widthThroughBreak = width;
        }
        if (width > limitPx && hasBreak) {
            onLine(start, breakAt);
            start = breakAt + 1;
            width -= widthThroughBreak;
            hasBreak = false;
        }
        // What is left after the break point may still be one word too long for the line.
        if (width > limitPx && !hasBreak && breakWords && i > start) {
            onLine(start, i);
            start = i;
            width = advance;
        }
    }
    onLine(start, n);
}

}  // namespace

namespace lxTextMeasure {

double screenPpi() {
    static double ppi = 0;
    if (ppi <= 0) {
        wxScreenDC dc;
        ppi = dc.GetPPI().x;
        if (ppi <= 0) ppi = 96;
    }
    return ppi;
}

double mmToPx(double mm) { return mm * screenPpi() / 25.4; }

double pxToMm(double px) { return px / screenPpi() * 25.4; }

double textWidthPx(const wxFont& font, const wxString& line) {
    FontMetrics& m = metricsFor(font);
    double width = 0;
    for (const auto ch : line) width += m.advance(static_cast<wchar_t>(ch.GetValue()));
    return width;
}

double widestLinePx(const wxFont& font, const wxString& text) {
    FontMetrics& m = metricsFor(font);
    double widest = 0, width = 0;
    for (const auto ch : text) {
        const wchar_t c = static_cast<wchar_t>(ch.GetValue());
        if (c == L'\n') {
            widest = std::max(widest, width);
            width = 0;
        } else {
            width += m.advance(c);
        }
    }
    return std::max(widest, width);
}

double textHeightPx(const wxFont& font) { return metricsFor(font).height(); }

double textTopInLineMm(const wxFont& font, double lineHeightMm, double capShare) {
    FontMetrics& m = metricsFor(font);
    const double ascent = pxToMm(m.height() - m.descent());
    const double descent = pxToMm(m.descent());
    const double capHeight = font.GetFractionalPointSize() * 25.4 / 72 * capShare;
    const double baseline = (lineHeightMm + capHeight - descent) / 2;
    return baseline - ascent;
}

std::vector<wxString> wrapText(const wxFont& font, const wxString& text, double limitPx, bool breakWords) {
    std::vector<wxString> lines;
    forEachWrappedLine(font, text, limitPx, breakWords,
                       [&](size_t from, size_t to) { lines.push_back(text.Mid(from, to - from)); });
    for (auto& line : lines) line.Replace("\r", wxEmptyString);
    return lines;
}

int wrappedLineCount(const wxFont& font, const wxString& text, double limitPx, bool breakWords) {
    int count = 0;
    forEachWrappedLine(font, text, limitPx, breakWords, [&](size_t, size_t) { ++count; });
    return count;
}

double longestWordPx(const wxFont& font, const wxString& text) {
    FontMetrics& m = metricsFor(font);
    double longest = 0, width = 0;
    for (const auto ch : text) {
        const wchar_t c = static_cast<wchar_t>(ch.GetValue());
        if (c == L' ' || c == L'\t' || c == L'\n') {
            longest = std::max(longest, width);
            width = 0;
        } else {
            width += m.advance(c);
        }
    }
    return std::max(longest, width);
}

void clearCache() {
    Cache& c = cache();
    c.aliases.clear();
    c.fonts.clear();
    c.lastFont = wxFont();
    c.last = nullptr;
}

}  // namespace lxTextMeasure
