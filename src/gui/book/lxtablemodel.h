// lxTableModel: a row model over one kind of list row (DenikView, FakturaView, ...), driven
// by a page shape: the columns with how a row shows and sorts in each, where the rows come
// from, which date the filter limits, the page's filter choices and the footer. A page is
// described once by its shape; the model, the list control and the page do the rest.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <numeric>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "collation.h"
#include "lxrowmodel.h"

template <class Row>
struct lxColumn {
    lxColumnInfo info;
    std::function<wxString(const Row&)> text;
    // The sort key of number, date and flag columns. Text columns have none and sort by
    // their text in Czech order (case and accents decide only between equal names).
    std::function<double(const Row&)> key;
};

template <class Row>
struct lxChoice {
    wxString caption;
    std::function<bool(const Row&)> matches;
};

template <class Row>
struct lxPageShape {
    using Rows = std::vector<std::unique_ptr<Row>>;
    wxString key;
    std::vector<lxColumn<Row>> columns;
    std::function<Rows()> source;
    // The date the filter's range applies to; empty when the rows have none.
    std::function<wxDateTime(const Row&)> date;
    std::vector<lxChoice<Row>> choices;
    // Choices that depend on the company's data (its registers, say), asked for again with
    // every reload and offered after the fixed ones.
    std::function<std::vector<lxChoice<Row>>()> moreChoices;
    // The footer of a non-empty list over the shown rows; empty for a plain count.
    std::function<wxString(const std::vector<const Row*>&)> footer;
    // How the filter's text matches a row, given the text folded by collation::searchFold;
    // unset: contained in a text column without regard to case.
    std::function<bool(const Row&, const wxString& folded)> search;
    // The colour a row is written in; unset or invalid: the list's own.
    std::function<wxColour(const Row&)> colour;
    // The order the page opens in: a column (-1 keeps the source's order) and its direction.
    int sortColumn = -1;
    bool sortAscending = true;
};

template <class Row>
class lxTableModel : public lxRowModel {
 public:
    using Rows = typename lxPageShape<Row>::Rows;

    explicit lxTableModel(lxPageShape<Row> shape)
        : m_shape(std::move(shape)),
          m_choices(m_shape.choices),
          m_sortColumn(m_shape.sortColumn >= 0 && m_shape.sortColumn < columnCount() ? m_shape.sortColumn : -1),
          m_ascending(m_shape.sortAscending) {
        rebuild();
    }

    wxString key() const override { return m_shape.key; }
    int columnCount() const override { return static_cast<int>(m_shape.columns.size()); }
    const lxColumnInfo& column(int column) const override { return m_shape.columns.at(column).info; }

    void reload() override {
        if (m_shape.moreChoices) {
            m_choices = m_shape.choices;
            for (auto& choice : m_shape.moreChoices()) m_choices.push_back(std::move(choice));
        }
        setRows(m_shape.source ? m_shape.source() : Rows());
    }
    // Takes rows given directly (tests, benchmarks) as if the source had returned them.
    void setRows(Rows rows) {
        m_rows = std::move(rows);
        rebuild();
    }

    std::size_t rowCount() const override { return m_visible.size(); }
    std::size_t totalCount() const override { return m_rows.size(); }
    const Row* row(std::size_t row) const { return row < m_visible.size() ? m_visible[row] : nullptr; }

    wxString text(std::size_t row, int column) const override {
        if (row >= m_visible.size() || column < 0 || column >= columnCount()) return wxString();
        return m_shape.columns[column].text(*m_visible[row]);
    }

    wxColour textColour(std::size_t row) const override {
        if (row >= m_visible.size() || !m_shape.colour) return wxColour();
        return m_shape.colour(*m_visible[row]);
    }

    int id(std::size_t row) const override {
        if (row >= m_visible.size()) return -1;
        // Rows keyed by an integer report it; others (number series) report their position.
        if constexpr (std::is_same_v<std::decay_t<decltype(std::declval<const Row&>().id())>, int>)
            return m_visible[row]->id();
        else
            return static_cast<int>(row);
    }

    long indexOfId(int id) const override {
        for (std::size_t i = 0; i < m_visible.size(); ++i) {
            if (this->id(i) == id) return static_cast<long>(i);
        }
        return -1;
    }

    void sort(int column, bool ascending) override {
        m_sortColumn = column >= 0 && column < columnCount() ? column : -1;
        m_ascending = ascending;
        rebuild();
    }
    int sortColumn() const override { return m_sortColumn; }
    bool sortAscending() const override { return m_ascending; }

    void setFilter(const lxFilter& filter) override {
        m_filter = filter;
        rebuild();
    }
    const lxFilter& filter() const override { return m_filter; }
    bool hasDateFilter() const override { return static_cast<bool>(m_shape.date); }
    wxArrayString filterChoices() const override {
        wxArrayString captions;
        for (const auto& choice : m_choices) captions.Add(choice.caption);
        return captions;
    }

    wxString footer() const override { return m_footer; }

 private:
    bool matches(const Row& row, const wxString& needle) const {
        if (m_filter.choice > 0 && m_filter.choice <= static_cast<int>(m_choices.size()) &&
            !m_choices[m_filter.choice - 1].matches(row))
            return false;
        if (m_shape.date && (m_filter.od.IsValid() || m_filter.doDne.IsValid())) {
            const wxDateTime date = m_shape.date(row);
            if (!date.IsValid()) return false;
            const wxDateTime day = date.GetDateOnly();
            if (m_filter.od.IsValid() && day.IsEarlierThan(m_filter.od.GetDateOnly())) return false;
            if (m_filter.doDne.IsValid() && day.IsLaterThan(m_filter.doDne.GetDateOnly())) return false;
        }
        if (needle.empty()) return true;
        if (m_shape.search) return m_shape.search(row, needle);
        for (const auto& column : m_shape.columns) {
            if (!column.key && column.text(row).Lower().Find(needle) != wxNOT_FOUND) return true;
        }
        return false;
    }

    // Filters the loaded rows, orders them and recomputes the footer.
    void rebuild() {
        const wxString needle = m_shape.search ? collation::searchFold(m_filter.text) : m_filter.text.Lower();
        m_visible.clear();
        m_visible.reserve(m_rows.size());
        for (const auto& row : m_rows) {
            if (row && matches(*row, needle)) m_visible.push_back(row.get());
        }
        sortVisible();
        if (m_visible.empty()) {
            m_footer = wxString::FromUTF8(m_rows.empty() ? "Žádné záznamy" : "Filtru neodpovídá žádný záznam");
        } else if (m_shape.footer) {
            m_footer = m_shape.footer(m_visible);
        } else {
            m_footer = wxString::Format(wxString::FromUTF8("Záznamů: %d"), static_cast<int>(m_visible.size()));
        }
    }

    // Sorts once per key: the keys of all shown rows are computed first, so a million rows
    // cost a million key computations, not one per comparison. Equal keys keep their order.
    void sortVisible() {
        if (m_sortColumn < 0) return;
        const lxColumn<Row>& column = m_shape.columns[m_sortColumn];
        std::vector<std::uint32_t> order(m_visible.size());
        std::iota(order.begin(), order.end(), 0u);
        if (column.key) {
            std::vector<double> keys(m_visible.size());
            for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = column.key(*m_visible[i]);
            sortOrder(order, [&keys](std::uint32_t a, std::uint32_t b) { return keys[a] < keys[b]; });
        } else {
            sortByText(order, column);
        }
        std::vector<const Row*> sorted(m_visible.size());
        for (std::size_t i = 0; i < order.size(); ++i) sorted[i] = m_visible[order[i]];
        m_visible.swap(sorted);
    }

    // Texts sort by their Czech collation keys, made once per row. The keys compare first by
    // their first sixteen bytes packed into two integers kept beside the row numbers, so most
    // comparisons never touch the keys themselves. A key holds no zero byte, so the zeros that
    // pad a short key sort it before every longer key with the same beginning.
    struct TextKey {
        std::uint64_t head[2];
        std::uint32_t row;
        bool whole;  // the key has at most sixteen bytes: the head is all of it
    };

    void sortByText(std::vector<std::uint32_t>& order, const lxColumn<Row>& column) const {
        std::vector<std::string> texts(m_visible.size());
        std::vector<TextKey> keys(m_visible.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            texts[i] = collation::czechSortKey(column.text(*m_visible[i]));
            TextKey& key = keys[i];
            key = TextKey{{0, 0}, static_cast<std::uint32_t>(i), texts[i].size() <= 16};
            const std::size_t n = std::min<std::size_t>(texts[i].size(), 16);
            for (std::size_t b = 0; b < n; ++b)
                key.head[b / 8] |= static_cast<std::uint64_t>(static_cast<unsigned char>(texts[i][b]))
                                   << (8 * (7 - b % 8));
        }
        const auto compare = [&texts](const TextKey& a, const TextKey& b) {
            if (a.head[0] != b.head[0]) return a.head[0] < b.head[0] ? -1 : 1;
            if (a.head[1] != b.head[1]) return a.head[1] < b.head[1] ? -1 : 1;
            if (a.whole && b.whole) return 0;
            const int c = texts[a.row].compare(texts[b.row]);
            return (c > 0) - (c < 0);
        };
        // Ties fall back to the shown order, which keeps the sort stable in both directions.
        const int direction = m_ascending ? 1 : -1;
        std::sort(keys.begin(), keys.end(), [&compare, direction](const TextKey& a, const TextKey& b) {
            const int c = compare(a, b) * direction;
            return c != 0 ? c < 0 : a.row < b.row;
        });
        for (std::size_t i = 0; i < keys.size(); ++i) order[i] = keys[i].row;
    }

    template <class Less>
    void sortOrder(std::vector<std::uint32_t>& order, Less less) const {
        if (m_ascending)
            std::stable_sort(order.begin(), order.end(), less);
        else
            std::stable_sort(order.begin(), order.end(), [&less](auto a, auto b) { return less(b, a); });
    }

    lxPageShape<Row> m_shape;
    Rows m_rows;
    std::vector<const Row*> m_visible;
    std::vector<lxChoice<Row>> m_choices;
    lxFilter m_filter;
    int m_sortColumn = -1;
    bool m_ascending = true;
    wxString m_footer;
};
