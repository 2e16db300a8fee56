// The virtual list of the book pages: cells, sorting by a header click, the filter, the
// remembered column widths and the quoting of CSV fields.
#include <gmock/gmock.h>
#include <wx/ffile.h>
#include <wx/filename.h>

#include "book/bookshapes.h"
#include "book/lxbook.h"
#include "book/lxbookpage.h"
#include "book/lxcolumnwidths.h"
#include "book/lxcsv.h"
#include "book/lxlistctrl.h"
#include "booktest.h"
#include "lxutils.h"

using ::testing::ElementsAre;

namespace {

enum DenikColumn { DATUM, CISLO, POPIS, CASTKA, TYP, REGISTR, VYPIS };

void clickHeader(lxListCtrl* list, int column) {
    wxListEvent event(wxEVT_LIST_COL_CLICK, list->GetId());
    event.SetEventObject(list);
    event.SetColumn(column);
    list->GetEventHandler()->ProcessEvent(event);
}

std::vector<wxString> texts(const wxArrayString& a) { return std::vector<wxString>(a.begin(), a.end()); }

}  // namespace

class BookLists : public BookTest {
 protected:
    void SetUp() override {
        BookTest::SetUp();
        denik("P001", 1200.5, "2024-03-02", "Prodej zboží");
        denik("V001", 300, "2024-02-15", "materiál", true);
        denik("V008", 50, "2024-04-20", "Nájem");
        m_book->createPages();
        m_book->selectPage(NAV_DENIK);
        m_page = m_book->page(NAV_DENIK);
        m_list = m_page->list();
    }
    lxBookPage* m_page = nullptr;
    lxListCtrl* m_list = nullptr;
};

TEST_F(BookLists, JournalShowsEveryEntryWithFormattedCells) {
    ASSERT_EQ(m_list->GetItemCount(), 3);
    // In the order of days, bank and cash entries together; amounts in the Czech form.
    EXPECT_THAT(texts(column(m_list, DATUM)), ElementsAre("15.02.2024", "02.03.2024", "20.04.2024"));
    EXPECT_EQ(m_list->GetSortIndicator(), DATUM);
    EXPECT_THAT(texts(column(m_list, CASTKA)), ElementsAre("300,00", u8("1\u00A0200,50"), "50,00"));
    EXPECT_THAT(texts(column(m_list, TYP)), ElementsAre(u8("Výdaj"), u8("Příjem"), u8("Výdaj")));
    EXPECT_THAT(texts(column(m_list, REGISTR)), ElementsAre("BU1", "POK1", "POK1"));
    EXPECT_THAT(texts(column(m_list, VYPIS)), ElementsAre("7", "", ""));
    EXPECT_EQ(m_page->footerText(),
              u8("Příjmy: 1\u00A0200,50 Kč    Výdaje: 350,00 Kč    Rozdíl: 850,50 Kč    Záznamů: 3"));

    m_book->selectPage(NAV_POKLADNA);
    EXPECT_EQ(m_book->page(NAV_POKLADNA)->list()->GetItemCount(), 2);
    m_book->selectPage(NAV_BANKA);
    EXPECT_EQ(m_book->page(NAV_BANKA)->list()->GetItemCount(), 1);
}

TEST_F(BookLists, HeaderClickSortsAscendingThenTurnsRoundWithTheArrow) {
    m_list->selectId(1);
    clickHeader(m_list, CASTKA);
    EXPECT_THAT(texts(column(m_list, CASTKA)), ElementsAre("50,00", "300,00", u8("1\u00A0200,50")));
    EXPECT_EQ(m_list->GetSortIndicator(), CASTKA);
    EXPECT_TRUE(m_list->IsAscendingSortIndicator());
    EXPECT_EQ(m_list->selectedId(), 1) << "the selection follows the record";

    clickHeader(m_list, CASTKA);
    EXPECT_THAT(texts(column(m_list, CASTKA)), ElementsAre(u8("1\u00A0200,50"), "300,00", "50,00"));
    EXPECT_FALSE(m_list->IsAscendingSortIndicator());

    // Dates sort by time, not as text; texts without regard to case.
    clickHeader(m_list, DATUM);
    EXPECT_THAT(texts(column(m_list, DATUM)), ElementsAre("15.02.2024", "02.03.2024", "20.04.2024"));
    EXPECT_TRUE(m_list->IsAscendingSortIndicator());
    clickHeader(m_list, POPIS);
    EXPECT_THAT(texts(column(m_list, POPIS)), ElementsAre(u8("materiál"), u8("Nájem"), u8("Prodej zboží")));

    // A reload keeps the order.
    denik("P002", 10, "2024-01-01", "Baterie");
    EXPECT_THAT(texts(column(m_list, POPIS)), ElementsAre("Baterie", u8("materiál"), u8("Nájem"), u8("Prodej zboží")));
}

TEST_F(BookLists, VirtualListShowsAHundredThousandRows) {
    lxTableModel<DenikView> rows(bookshapes::denik(NAV_DENIK));
    lxDenikViewArray many;
    for (int i = 0; i < 100000; ++i)
        many.push_back(std::make_unique<DenikView>(i, iso("2024-01-01"), wxString::Format("PP%06d", i), "", i * 0.5,
                                                   true, "POK1", 0));
    rows.setRows(std::move(many));
    lxListCtrl list(m_frame, &rows);
    EXPECT_EQ(list.GetItemCount(), 100000);
    EXPECT_EQ(list.GetItemText(99999, CISLO), "PP099999");
    list.sortBy(CASTKA, false);
    EXPECT_EQ(list.GetItemText(0, CASTKA), u8("49\u00A0999,50"));
    EXPECT_EQ(list.GetItemText(99999, CASTKA), "0,00");
}

// Texts sort in Czech order: Č after C and before D, case and accents only between otherwise
// equal texts (lower case first); identical texts keep their order in both directions.
TEST(TableModelSort, TextsSortInCzechOrderAndEqualRowsKeepTheirOrderBothWays) {
    const char* const popisy[] = {"Materiál pro dílnu B", "materiál pro dílnu a", "Nájem", "Nájem", "ab", "Čaj", "Ab"};
    lxTableModel<DenikView> rows(bookshapes::denik(NAV_DENIK));
    lxDenikViewArray list;
    for (int i = 0; i < 7; ++i)
        list.push_back(std::make_unique<DenikView>(i + 1, iso("2024-01-01"), "", u8(popisy[i]), i % 2, true, "", 0));
    rows.setRows(std::move(list));
    const auto ids = [&rows]() {
        std::vector<int> all;
        for (size_t i = 0; i < rows.rowCount(); ++i) all.push_back(rows.id(i));
        return all;
    };
    rows.sort(POPIS, true);
    EXPECT_THAT(ids(), ElementsAre(5, 7, 6, 2, 1, 3, 4));
    rows.sort(POPIS, false);
    EXPECT_THAT(ids(), ElementsAre(3, 4, 1, 2, 6, 7, 5));
    rows.sort(CASTKA, false);
    EXPECT_THAT(ids(), ElementsAre(2, 4, 6, 1, 3, 5, 7));
    rows.sort(-1, true);
    EXPECT_THAT(ids(), ElementsAre(1, 2, 3, 4, 5, 6, 7));
}

struct FilterCase {
    const char* name;
    const char* od;
    const char* doDne;
    const char* text;
    int choice;
    std::vector<const char*> popisy;
};

TEST_F(BookLists, FilterLimitsDatesTextAndChoice) {
    const FilterCase cases[] = {
        {"date_range_inclusive", "2024-02-15", "2024-03-02", "", 0, {"materiál", "Prodej zboží"}},
        {"open_start", "", "2024-02-28", "", 0, {"materiál"}},
        {"text_without_case", "", "", "MATER", 0, {"materiál"}},
        {"text_in_register_code", "", "", "pok", 0, {"Prodej zboží", "Nájem"}},
        {"expenses", "", "", "", 2, {"materiál", "Nájem"}},
        {"income_and_text", "", "", "zbo", 1, {"Prodej zboží"}},
        {"nothing_matches", "2025-01-01", "", "", 0, {}},
    };
    for (const FilterCase& c : cases) {
        lxFilter filter;
        if (*c.od) filter.od = iso(c.od);
        if (*c.doDne) filter.doDne = iso(c.doDne);
        filter.text = u8(c.text);
        filter.choice = c.choice;
        m_page->setFilter(filter);
        std::vector<wxString> expected;
        for (const char* p : c.popisy) expected.push_back(u8(p));
        EXPECT_EQ(texts(column(m_list, POPIS)), expected) << c.name;
    }
    EXPECT_EQ(m_page->footerText(), u8("Filtr: 0 z 3    Filtru neodpovídá žádný záznam"));
    m_page->setFilter(lxFilter());
    EXPECT_EQ(m_list->GetItemCount(), 3);
}

TEST_F(BookLists, ColumnWidthsAreRememberedPerList) {
    m_list->SetColumnWidth(POPIS, 333);
    m_list->saveColumnWidths();
    m_book->createPages();
    EXPECT_EQ(m_book->page(NAV_DENIK)->list()->GetColumnWidth(POPIS), 333);
    EXPECT_EQ(m_book->page(NAV_POKLADNA)->list()->GetColumnWidth(POPIS), 260);

    // Values a person or a broken write left in the file fall back to the default.
    wxFFile ini(lxutils::dataDir() + "/evida.ini", "a");
    ini.Write("[Sloupce/banka]\nsloupec0=abc\nsloupec1=99999\nsloupec2=120\n");
    ini.Close();
    EXPECT_THAT(lxcolumnwidths::load("banka", {85, 100, 260}), ElementsAre(85, 100, 120));
}

TEST(CsvField, QuotesEveryFieldAndDoublesQuotes) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "\"\""},       {"Nájem", "\"Nájem\""},           {"Firma \"Alfa\"", "\"Firma \"\"Alfa\"\"\""},
        {"a,b", "\"a,b\""}, {"dva\nřádky", "\"dva\nřádky\""},
    };
    for (const auto& [text, quoted] : cases) EXPECT_EQ(lxcsv::field(u8(text)), u8(quoted)) << text;
}
