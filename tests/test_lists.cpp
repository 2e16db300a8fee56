// Whole lists, lookups by the text a user typed, the checks that keep referenced code-list
// rows from deletion, and the sorting of page rows by a clicked column.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "lxsettings.h"
#include "sorting.h"
#include "testcompany.h"

using ::testing::ElementsAre;

namespace {

wxDateTime iso(const char* text) {
    wxDateTime d;
    d.ParseISODate(text);
    return d;
}

template <class R>
std::vector<int> idsOf(const std::vector<std::unique_ptr<R>>& rows) {
    std::vector<int> ids;
    for (const auto& r : rows) ids.push_back(r ? r->id() : 0);
    return ids;
}

}  // namespace

class Lists : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
    int addKontakt(int id, const wxString& nazev) {
        EXPECT_TRUE(m_model->addKontakt(Kontakt(id, nazev, "", "", "", "", false, 1)));
        return id;
    }
};

TEST_F(Lists, LookupsFindExactlyTheTypedText) {
    addKontakt(2, "O'Brien");
    addKontakt(3, "Firma \"Alfa\"");
    addKontakt(4, u8("Žluťoučký kůň"));
    ASSERT_TRUE(m_model->addVozidlo(Vozidlo(1, "1A2 3456", "Octavia", 1, 6.5, false, 3)));
    DbModel& m = *m_model;
    struct Case {
        std::function<int(const wxString&)> lookup;
        wxString text;
        int id;
    };
    const auto kontakt = [&m](const wxString& t) { return m.getKontaktIdByNazev(t); };
    const std::vector<Case> cases = {
        {kontakt, "O'Brien", 2},
        {kontakt, "Firma \"Alfa\"", 3},
        {kontakt, u8("Žluťoučký kůň"), 4},
        {kontakt, "Nikdo", -1},
        {kontakt, "o'brien", -1},
        {kontakt, "x' OR '1'='1", -1},
        {kontakt, "", -1},  // contact 0 has no name
        {[&m](const wxString& t) { return m.getPokladnaIdByZkratka(t); }, "POK1", 1},
        {[&m](const wxString& t) { return m.getBankaIdByZkratka(t); }, "BU1", 1},
        {[&m](const wxString& t) { return m.getBankaIdByZkratka(t); }, "POK1", -1},
        {[&m](const wxString& t) { return m.getPredkontaceIdByZkratka(t); }, "V201", 23},
        {[&m](const wxString& t) { return m.getVozidloIdByRz(t); }, "1A2 3456", 1},
        {[&m](const wxString& t) { return m.getDphDruhIdByZkratka(t); }, "R1,2", 1},
        // Listed twice (before and after October 2021); the first row answers.
        {[&m](const wxString& t) { return m.getDphDruhIdByZkratka(t); }, "R24", 54},
    };
    for (const Case& c : cases) EXPECT_EQ(c.lookup(c.text), c.id) << c.text;
}

TEST_F(Lists, CodeListRowsAreUsedWhileDocumentsReferToThem) {
    ASSERT_TRUE(m_model->addPokladna(Pokladna(2, "POK2", "", 1)));
    ASSERT_TRUE(m_model->addBanka(Banka(2, "BU2", "", "", "", "", "", 1)));
    ASSERT_TRUE(m_model->addSklad(Sklad(1, "Hlavní", "", 0)));
    DbModel& m = *m_model;
    const std::vector<std::pair<const char*, std::function<bool()>>> checks = {
        {"pokladna 2", [&m] { return m.isPokladnaUsed(2); }},
        {"banka 2", [&m] { return m.isBankaUsed(2); }},
        {"predkontace V002", [&m] { return m.isPredkontaceUsed(5); }},
        {"fauhrada 2", [&m] { return m.isFauhradaUsed(2); }},
        {"sklad 1", [&m] { return m.isSkladUsed(1); }},
    };
    for (const auto& [name, used] : checks) EXPECT_FALSE(used()) << name;

    const int rok = m.currentRok();
    ASSERT_TRUE(m.addDenik(Denik(1, iso("2024-01-02"), "PP1", "", 10, 0, 1, "", 0, 1, 1, 2, -1, 0, 0, rok)));
    ASSERT_TRUE(m.addFaktura(Faktura(1, 0, "", 10, "FV1", "", "", "", 1, 2, -1, 2, 1, 1, rok, true, false,
                                     iso("2024-01-02"), wxDateTime(), wxDateTime(), wxDateTime(), -1, 1, 0)));
    ASSERT_TRUE(m.addZavPoh(ZavPoh(1, 0, "", 10, "ZA1", "", 1, 1, -1, 1, 5, rok, true, false, iso("2024-01-02"),
                                   wxDateTime(), wxDateTime(), wxDateTime(), -1, 1, 0)));
    ASSERT_TRUE(m.addZasoba(Zasoba(1, "ZB1", "", "", 0, "ks", 0, 0, 1, 0, false, 21)));
    for (const auto& [name, used] : checks) EXPECT_TRUE(used()) << name;
    EXPECT_FALSE(m.isPokladnaUsed(99));
    EXPECT_TRUE(m.isPokladnaUsed(1));  // by the liability above
}

TEST_F(Lists, ListsSkipTheEmptyContactAndRatesComeHighestFirst) {
    addKontakt(2, "Zeta");
    addKontakt(3, "alfa");
    EXPECT_THAT(idsOf(m_model->kontakty()), ElementsAre(3, 2));  // by name, without the empty contact 0
    std::vector<int> rates;
    for (const auto& s : m_model->dphsazby(2015)) rates.push_back(s->sazba());
    EXPECT_THAT(rates, ElementsAre(21, 15, 10));
    EXPECT_TRUE(m_model->dphsazby(1990).empty());

    lxSettings::instance()->setDbmodel(1);
    EXPECT_TRUE(m_model->kontakty().empty());
    EXPECT_EQ(m_model->getPokladnaIdByZkratka("POK1"), -1);
    EXPECT_FALSE(m_model->isPokladnaUsed(1));
}

// Three journal rows whose fields each order them differently; texts ignore case.
class Sorting : public ::testing::Test {
 protected:
    lxDenikViewArray rows() {
        lxDenikViewArray r;
        r.push_back(std::make_unique<DenikView>(1, iso("2024-03-01"), "BV1", "a", -5.0, true, "POK1", 2));
        r.push_back(std::make_unique<DenikView>(2, iso("2024-01-01"), "bp2", "C", 100.0, false, "BU2", 3));
        r.push_back(std::make_unique<DenikView>(3, iso("2024-02-01"), "PP1", "b", 20.5, true, "bu1", 1));
        return r;
    }
};

TEST_F(Sorting, EachJournalColumnSortsByItsFieldBothWays) {
    struct Case {
        int column;
        std::vector<int> asc, dsc;
    };
    const Case cases[] = {
        {0, {2, 3, 1}, {1, 3, 2}},  // datum
        {1, {2, 1, 3}, {3, 1, 2}},  // cislo
        {2, {1, 3, 2}, {2, 3, 1}},  // popis
        {3, {1, 3, 2}, {2, 3, 1}},  // castka
        {4, {2, 1, 3}, {1, 3, 2}},  // prijem: equal rows keep their order in both directions
        {5, {3, 2, 1}, {1, 2, 3}},  // zkratka
        {6, {3, 1, 2}, {2, 1, 3}},  // vypis
        {7, {1, 2, 3}, {1, 2, 3}},  // no such column
        {-1, {1, 2, 3}, {1, 2, 3}},
    };
    for (const Case& c : cases) {
        lxDenikViewArray r = rows();
        DbModel::sortDenikView(r, c.column, true);
        EXPECT_EQ(idsOf(r), c.asc) << "column " << c.column;
        r = rows();
        DbModel::sortDenikView(r, c.column, false);
        EXPECT_EQ(idsOf(r), c.dsc) << "column " << c.column;
    }
}

TEST_F(Sorting, VatClassificationColumnsFollowTheListOrder) {
    // Row 1 goes first by the even columns, row 2 by the odd ones.
    const DphDruh a(2, "A", "z", "2", false, false, false, "1", 0, wxDateTime(), wxDateTime(), false, "B2");
    const DphDruh b(1, "B", "y", "1", true, false, true, "2", 0, wxDateTime(), wxDateTime(), false, "A4");
    for (int column = 0; column < 8; ++column) {
        lxDphDruhArray r;
        r.push_back(std::make_unique<DphDruh>(b));
        r.push_back(std::make_unique<DphDruh>(a));
        DbModel::sortDphDruh(r, column, true);
        EXPECT_EQ(r.front()->zkratka(), column % 2 == 0 ? "A" : "B") << "column " << column;
    }
}

TEST_F(Sorting, ItemsEntriesAndEmptySlots) {
    lxFaPolozkaArray items;
    for (double pocet : {2.0, 10.0, 2.0, 1.5})
        items.push_back(std::make_unique<FaPolozka>(static_cast<int>(items.size()) + 1, "", "", pocet, 0.0, 0, 0.0, 0.0,
                                                    false, 1, -1, -1, false));
    items.insert(items.begin() + 1, nullptr);
    DbModel::sortFaPolozky(items, 2, false);
    EXPECT_THAT(idsOf(items), ElementsAre(2, 1, 3, 4, 0));

    lxDenikArray entries;
    for (const char* datum : {"2024-05-01", "", "2024-01-01"})
        entries.push_back(std::make_unique<Denik>(static_cast<int>(entries.size()) + 1, iso(datum), "", "", 0.0, 0.0,
                                                  1.0, "", 0, 1, 1, 1, -1, 0, 0, 2024));
    DbModel::sortDenik(entries, 0, true);
    EXPECT_THAT(idsOf(entries), ElementsAre(2, 3, 1));  // no date first
    EXPECT_TRUE(lxSortDenikByDatumDsc(*entries[2], *entries[1]));
}
