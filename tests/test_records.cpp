// Every record family round-trips through its table: each field lands in its own column
// and comes back unchanged, edits replace every field but the key, deletes remove the row,
// and each write tells the page that shows the family.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "recordio.h"
#include "testcompany.h"

namespace {

// Distinct values for every field, so that two swapped columns cannot go unnoticed.
template <class R>
R sample(int key, int variant) {
    R r;
    int n = 0;
    r.visit([&](const char* column, auto& field) {
        using T = std::decay_t<decltype(field)>;
        ++n;
        if constexpr (std::is_same_v<T, int>) {
            field = wxString(column) == R::KEY ? key : 10 * variant + n;
        } else if constexpr (std::is_same_v<T, double>) {
            field = variant * 1000.25 + n;
        } else if constexpr (std::is_same_v<T, bool>) {
            field = (n + variant) % 2 == 1;
        } else if constexpr (std::is_same_v<T, wxString>) {
            field = wxString::Format(u8("Žluťoučký kůň O'Brien \"%d\" %d"), variant, n);
            if (wxString(column) == R::KEY) field = wxString::Format("K%d", key);
        } else {
            field = wxDateTime(static_cast<wxDateTime::wxDateTime_t>(n % 28 + 1), wxDateTime::Mar, 2020 + variant);
            if (n % 3 == 0) field.SetHour(13).SetMinute(45).SetSecond(7);
        }
    });
    r.setValid(true);
    return r;
}

template <class R>
std::vector<wxString> fieldsOf(const R& r) {
    std::vector<wxString> values;
    r.visit([&](const char* column, const auto& field) {
        using T = std::decay_t<decltype(field)>;
        wxString v;
        if constexpr (std::is_same_v<T, wxDateTime>) {
            v = field.IsValid() ? field.FormatISOCombined(' ') : "-";
        } else if constexpr (std::is_same_v<T, wxString>) {
            v = field;
        } else if constexpr (std::is_same_v<T, double>) {
            v = wxString::Format("%.6f", field);
        } else {
            v = wxString::Format("%d", static_cast<int>(field));
        }
        values.push_back(wxString(column) + "=" + v);
    });
    return values;
}

// The model's operations of one family.
template <class R>
struct Ops;
#define EVIDA_OPS(R, page)                                                \
    template <>                                                           \
    struct Ops<R> {                                                       \
        static bool add(DbModel& m, const R& r) { return m.add##R(r); }   \
        static bool edit(DbModel& m, const R& r) { return m.edit##R(r); } \
        static R get(DbModel& m, int k) { return m.get##R(k); }           \
        static bool has(DbModel& m, int k) { return m.has##R(k); }        \
        static bool remove(DbModel& m, int k) { return m.delete##R(k); }  \
        static constexpr int PAGE = page;                                 \
    };
EVIDA_OPS(Adresa, NAV_ALL)
EVIDA_OPS(Kontakt, NAV_ALL)
EVIDA_OPS(Obdobi, NAV_ALL)
EVIDA_OPS(Pokladna, NAV_POKLADNA)
EVIDA_OPS(Banka, NAV_BANKA)
EVIDA_OPS(Predkontace, NAV_DENIK)
EVIDA_OPS(Denik, NAV_DENIK)
EVIDA_OPS(Faktura, -2)  // by direction, checked below
EVIDA_OPS(ZavPoh, -2)
EVIDA_OPS(FaPolozka, NAV_NONE)
EVIDA_OPS(FaUhrada, NAV_NONE)
EVIDA_OPS(Uhrada, NAV_ALL)
EVIDA_OPS(Majetek, NAV_MAJETEK)
EVIDA_OPS(Odpis, NAV_MAJETEK)
EVIDA_OPS(Settings, NAV_NONE)
EVIDA_OPS(Sklad, NAV_ZASOBY)
EVIDA_OPS(Zasoba, NAV_ZASOBY)
EVIDA_OPS(Pohybzasob, NAV_ZASOBY)
EVIDA_OPS(Inventura, NAV_ZASOBY)
EVIDA_OPS(IvPolozka, NAV_ZASOBY)
EVIDA_OPS(Ridic, NAV_JIZDY)
EVIDA_OPS(Vozidlo, NAV_JIZDY)
EVIDA_OPS(Jizda, NAV_JIZDY)
EVIDA_OPS(Odeslany, NAV_NONE)
EVIDA_OPS(Ulozene, NAV_NONE)
EVIDA_OPS(Kurz, NAV_NONE)
#undef EVIDA_OPS

}  // namespace

template <class R>
class Family : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        // The samples point at rows that do not exist; this test is about columns, not references.
        m_model->db().ExecuteUpdate("PRAGMA foreign_keys=OFF");
        // Journal entries store a register or account only when it exists, so the entry
        // samples get theirs.
        if constexpr (std::is_same_v<R, Denik>) {
            m_model->db().ExecuteUpdate(
                "INSERT INTO pokladna(id,zkratka,popis,menaid) VALUES(22,'P22','',1),(32,'P32','',1)");
            m_model->db().ExecuteUpdate("INSERT INTO banka(id,zkratka,popis,menaid) VALUES(23,'B23','',1),(33,'B33','',1)");
        }
        m_events.updates.clear();
    }
};

using Families = ::testing::Types<Adresa, Kontakt, Obdobi, Pokladna, Banka, Predkontace, Denik, Faktura, ZavPoh,
                                  FaPolozka, FaUhrada, Uhrada, Majetek, Odpis, Settings, Sklad, Zasoba, Pohybzasob,
                                  Inventura, IvPolozka, Ridic, Vozidlo, Jizda, Odeslany, Ulozene, Kurz>;
TYPED_TEST_SUITE(Family, Families);

TYPED_TEST(Family, RoundTripsEveryFieldThroughItsColumn) {
    using R = TypeParam;
    DbModel& m = *this->m_model;
    const int key = 3000;
    EXPECT_FALSE(Ops<R>::has(m, key));
    EXPECT_FALSE(Ops<R>::get(m, key).isValid());

    const R first = sample<R>(key, 1);
    ASSERT_TRUE(Ops<R>::add(m, first));
    EXPECT_TRUE(Ops<R>::has(m, key));
    const R stored = Ops<R>::get(m, key);
    EXPECT_TRUE(stored.isValid());
    EXPECT_EQ(fieldsOf(stored), fieldsOf(first));

    const R second = sample<R>(key, 2);
    ASSERT_TRUE(Ops<R>::edit(m, second));
    EXPECT_EQ(fieldsOf(Ops<R>::get(m, key)), fieldsOf(second));
    EXPECT_FALSE(Ops<R>::edit(m, sample<R>(key + 1, 2)));  // no such row

    ASSERT_TRUE(Ops<R>::remove(m, key));
    EXPECT_FALSE(Ops<R>::has(m, key));
    EXPECT_FALSE(Ops<R>::remove(m, key));

    // add, edit and delete each told the page.
    ASSERT_EQ(this->m_events.updates.size(), 3u);
    if (Ops<R>::PAGE != -2) {
        EXPECT_THAT(this->m_events.updates, ::testing::Each(Ops<R>::PAGE));
    }
}

class Records : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
    }
};

TEST_F(Records, DocumentsNotifyThePageOfTheirDirection) {
    Faktura f = sample<Faktura>(1, 1);
    f.setVydana(true);
    m_model->db().ExecuteUpdate("PRAGMA foreign_keys=OFF");
    m_events.updates.clear();
    ASSERT_TRUE(m_model->addFaktura(f));
    f.setVydana(false);
    ASSERT_TRUE(m_model->editFaktura(f));
    ZavPoh z = sample<ZavPoh>(1, 1);
    z.setZavazek(true);
    ASSERT_TRUE(m_model->addZavPoh(z));
    EXPECT_EQ(m_events.updates, (std::vector<int>{NAV_FAKTURY_VYDANE, NAV_FAKTURY_PRIJATE, NAV_ZAVAZKY}));
}

TEST_F(Records, EmptyReferencesAreStoredAsNull) {
    const int rok = m_model->currentRok();
    Denik d(m_model->getLastId("denik"), wxDateTime(1, wxDateTime::Feb, rok), "PP0001", u8("Tržba"), 100.0, 0.0, 1.0,
            "", 0, 1, 1, 1, -1, 0, 0, rok);
    ASSERT_TRUE(m_model->addDenik(d));
    EXPECT_EQ(scalar("SELECT count(*) FROM denik WHERE bankaid IS NULL AND pokladnaid=1"), 1);
    EXPECT_EQ(m_model->getDenik(d.id()).bankaid(), -1);
    EXPECT_EQ(text("SELECT datum FROM denik"), wxString::Format("%d-02-01", rok));
}

TEST_F(Records, ReferencesAreEnforcedAndFailuresLeaveNoRow) {
    Pokladna p(m_model->getLastId("pokladna"), "EUR1", "Eura", 999);  // no currency 999
    EXPECT_FALSE(m_model->addPokladna(p));
    EXPECT_EQ(m_model->tableRows("pokladna"), 1);
    EXPECT_FALSE(m_model->deleteObdobi(1900));
}

TEST_F(Records, CodeListLookups) {
    EXPECT_EQ(m_model->getMena(1).kod(), "CZK");
    EXPECT_EQ(m_model->getMena(19).validTo().FormatISODate(), "2014-12-31");
    EXPECT_EQ(m_model->getDphDruh(1).zkratka(), "R1,2");
    EXPECT_EQ(m_model->getDphDruh(54).validTo().FormatISODate(), "2021-09-30");
    EXPECT_TRUE(m_model->getDenikSloupec(32).prijem());
    EXPECT_EQ(m_model->getRada("ZFV").popis(), u8("Zálohová faktura vydaná"));
    EXPECT_FALSE(m_model->hasRada("XX"));
    EXPECT_DOUBLE_EQ(m_model->getOdpiskupina(2).rov2(), 22.25);
    EXPECT_TRUE(m_model->hasDruhVozidla(0));
    EXPECT_FALSE(m_model->getFaTyp(3).isValid());
}

class Copies : public Records {};

TEST_F(Copies, ContactCopyGetsItsOwnAddressAndAFreeName) {
    ASSERT_TRUE(m_model->addAdresa(Adresa(5, u8("Dlouhá"), "12", "Brno", "60200", "CZ")));
    ASSERT_TRUE(m_model->addKontakt(Kontakt(7, "O'Brien", "", "123", "", "", true, 5)));
    const int first = m_model->copyKontakt(7);
    const int second = m_model->copyKontakt(7);
    ASSERT_GT(first, 7);
    EXPECT_EQ(m_model->getKontakt(first).nazev(), "O'Brien (1)");
    EXPECT_EQ(m_model->getKontakt(second).nazev(), "O'Brien (2)");
    const int adresa = m_model->getKontakt(first).adresaid();
    EXPECT_NE(adresa, 5);
    EXPECT_EQ(m_model->getAdresa(adresa).ulice(), u8("Dlouhá"));
    EXPECT_EQ(m_model->copyKontakt(99), -1);
}

TEST_F(Copies, PrePostingCopyGetsANumberedCode) {
    const int copy = m_model->copyPredkontace(1);
    EXPECT_EQ(m_model->getPredkontace(copy).zkratka(), "P0011");
    EXPECT_EQ(m_model->getPredkontace(m_model->copyPredkontace(1)).zkratka(), "P0012");
    EXPECT_EQ(m_model->getPredkontace(copy).deniksloupecid(), 10);
}

TEST_F(Copies, InvoiceCopyTakesItsItemsAndANewNumber) {
    const int rok = m_model->currentRok();
    const wxDateTime old(5, wxDateTime::Jan, rok);
    Faktura f(1, 0, "Servis", 1210.0, "FV000001", "1", "", "", 1, 2, -1, 1, 1, 1, rok, true, true, old, old, old, old,
              1, 1.0, 0);
    ASSERT_TRUE(m_model->addFaktura(f));
    ASSERT_TRUE(m_model->addFaPolozka(FaPolozka(1, u8("Práce"), "h", 10, 100, 0, 210, 1210, true, 1, -1, -1, false)));
    ASSERT_TRUE(m_model->addFaPolozka(FaPolozka(2, u8("Materiál"), "ks", 1, 0, 0, 0, 0, true, 1, -1, -1, false)));
    m_model->db().ExecuteUpdate("UPDATE rada SET cislo=8 WHERE id='FV'");

    const int copy = m_model->copyFaktura(1);
    ASSERT_GT(copy, 1);
    const Faktura c = m_model->getFaktura(copy);
    EXPECT_EQ(c.cislo(), "FV0008");
    EXPECT_EQ(c.vs(), "8");
    EXPECT_EQ(c.vystaveni(), lxSettingsToday());
    EXPECT_EQ(c.splatnost(), lxSettingsToday() + wxDateSpan::Days(14));
    EXPECT_DOUBLE_EQ(c.celkem(), 1210.0);
    EXPECT_EQ(scalar(wxString::Format("SELECT count(*) FROM fapolozka WHERE fakturaid=%d", copy)), 2);
    EXPECT_EQ(scalar("SELECT count(*) FROM fapolozka WHERE fakturaid=1"), 2);
    EXPECT_EQ(scalar("SELECT cislo FROM rada WHERE id='FV'"), 8);  // the caller advances the series
}
