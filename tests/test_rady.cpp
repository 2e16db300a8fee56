// Number series: the generated document numbers and the yearly recomputation of counters.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "lxsettings.h"
#include "testcompany.h"

namespace {

const char* const YEARLY[] = {"PP", "PV", "BP", "BV", "FV", "FP", "ZFV", "ZFP", "PO", "ZA", "PR", "VY", "IV"};

}  // namespace

class NumberSeries : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        createCompany();
        m_rok = m_model->currentRok();
        ASSERT_GT(m_rok, 2000);
    }

    void setRada(const wxString& id, const wxString& prefix, int znaku, int cislo) {
        Rada r = m_model->getRada(id);
        ASSERT_TRUE(r.isValid()) << id;
        r.setPrefix(prefix);
        r.setZnaku(znaku);
        r.setCislo(cislo);
        ASSERT_TRUE(m_model->editRada(r));
    }

    // A document numbered `cislo` in the table that the series code belongs to.
    void addDoc(const wxString& table, const wxString& cislo, int rok) {
        static const std::map<wxString, const char*> inserts = {
            {"denik", "INSERT INTO denik(cislo,obdobirok,pausal,menaid,predkontaceid) VALUES(?,?,0,1,1)"},
            {"faktura", "INSERT INTO faktura(cislo,obdobirok,typid,uhradaid,menaid,predkontaceid) VALUES(?,?,1,1,1,1)"},
            {"zavpoh", "INSERT INTO zavpoh(cislo,obdobirok,uhradaid,menaid,predkontaceid) VALUES(?,?,1,1,1)"},
            {"pohybzasob", "INSERT INTO pohybzasob(cislo,obdobirok,zasobaid) VALUES(?,?,1)"},
            {"inventura", "INSERT INTO inventura(cislo,obdobirok,skladid) VALUES(?,?,1)"},
        };
        wxSQLite3Database& db = m_model->db();
        if (table == "pohybzasob" || table == "inventura") {
            db.ExecuteUpdate("INSERT OR IGNORE INTO sklad(id,nazev,ocenovani) VALUES(1,'S',0)");
            db.ExecuteUpdate("INSERT OR IGNORE INTO zasoba(id,nazev,ocenovani,skladid) VALUES(1,'Z',0,1)");
        }
        if (rok != m_rok)
            db.ExecuteUpdate(wxString::Format("INSERT OR IGNORE INTO obdobi(rok,current) VALUES(%d,0)", rok));
        wxSQLite3Statement st = db.PrepareStatement(inserts.at(table));
        st.Bind(1, cislo);
        st.Bind(2, rok);
        st.ExecuteUpdate();
    }

    int cislo(const char* id) { return m_model->getRadaCislo(id); }

    int m_rok = 0;
};

struct CisloCase {
    const char* name;
    const char* prefix;
    int znaku;
    int cislo;
    const char* expected;
};
class DocumentNumber : public NumberSeries, public ::testing::WithParamInterface<CisloCase> {};
TEST_P(DocumentNumber, PrefixZerosNumberNothingCut) {
    const CisloCase c = GetParam();
    setRada("PP", u8(c.prefix), c.znaku, c.cislo);
    EXPECT_EQ(m_model->getCisloDokladu("PP"), u8(c.expected));
    EXPECT_EQ(m_model->getRadaCislo("PP"), c.cislo) << "reading the number does not advance it";
}
INSTANTIATE_TEST_SUITE_P(Padding, DocumentNumber,
                         ::testing::Values(CisloCase{"first_cash_income", "PP", 6, 1, "PP0001"},
                                           CisloCase{"nine_is_one_digit", "PP", 6, 9, "PP0009"},
                                           CisloCase{"ten_is_two_digits", "PP", 6, 10, "PP0010"},
                                           CisloCase{"longer_than_width_is_kept_whole", "PP", 6, 12345, "PP12345"},
                                           CisloCase{"empty_prefix", "", 6, 7, "000007"},
                                           CisloCase{"three_letter_prefix", "ZFV", 6, 1, "ZFV001"},
                                           CisloCase{"prefix_alone_fills_width", "PPPPPP", 6, 3, "PPPPPP3"},
                                           CisloCase{"czech_prefix", "Př", 5, 4, "Př004"}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST_F(NumberSeries, SeedSeriesInTableOrder) {
    const lxRadaArray rady = m_model->rady();
    ASSERT_EQ(rady.size(), 15u);
    EXPECT_EQ(rady.front()->id(), "PP");
    EXPECT_EQ(rady.back()->id(), "IV");
    for (const auto& r : rady) {
        EXPECT_EQ(r->prefix(), r->id());
        EXPECT_EQ(r->znaku(), 6);
        EXPECT_EQ(r->cislo(), 1);
    }
    EXPECT_EQ(m_model->getCisloDokladu("ZFV"), "ZFV001");
}

TEST_F(NumberSeries, EditAndIncreaseChangeOnlyTheirSeriesWithoutNotification) {
    m_events.updates.clear();
    Rada fv = m_model->getRada("FV");
    fv.setPopis(u8("Faktura vydaná – tuzemsko"));
    fv.setPrefix("F'");
    fv.setZnaku(8);
    fv.setCislo(41);
    ASSERT_TRUE(m_model->editRada(fv));
    ASSERT_TRUE(m_model->increaseRadaCislo("FV"));
    const Rada stored = m_model->getRada("FV");
    EXPECT_EQ(stored.popis(), u8("Faktura vydaná – tuzemsko"));
    EXPECT_EQ(stored.cislo(), 42);
    EXPECT_EQ(m_model->getCisloDokladu("FV"), "F'000042");
    EXPECT_EQ(cislo("FP"), 1);
    EXPECT_TRUE(m_events.updates.empty());

    // A series that does not exist is neither created nor answered.
    Rada missing = fv;
    missing.setId("XX");
    EXPECT_FALSE(m_model->editRada(missing));
    EXPECT_FALSE(m_model->increaseRadaCislo("XX"));
    EXPECT_EQ(m_model->getRadaCislo("XX"), 0);
    EXPECT_EQ(m_model->getCisloDokladu("XX"), "");
    EXPECT_EQ(scalar("SELECT count(*) FROM rada"), 15);
}

TEST_F(NumberSeries, RecomputationWithoutDocumentsRestartsYearlySeriesOnly) {
    m_model->db().ExecuteUpdate("UPDATE rada SET cislo=50");
    addDoc("faktura", "FV0099", m_rok - 1);  // last year's documents do not count
    m_model->setDefaultRadaCislo();
    for (const char* id : YEARLY) EXPECT_EQ(cislo(id), 1) << id;
    EXPECT_EQ(cislo("MA"), 50);
    EXPECT_EQ(cislo("ZB"), 50);
}

TEST_F(NumberSeries, RecomputationTakesTheHighestNumberOfEachSeriesPlusOne) {
    addDoc("faktura", "FV0003", m_rok);
    addDoc("faktura", "FV0010", m_rok);
    addDoc("faktura", "ZFV012", m_rok);
    addDoc("faktura", "FP0002", m_rok);
    addDoc("denik", "PP0005", m_rok);
    addDoc("denik", "BV0100", m_rok);
    addDoc("denik", "PP0004", m_rok);
    addDoc("zavpoh", "ZA0002", m_rok);
    addDoc("pohybzasob", "PR0007", m_rok);
    addDoc("inventura", "IV0001", m_rok);
    m_model->setDefaultRadaCislo();
    const std::map<std::string, int> expected = {{"FV", 11}, {"ZFV", 13}, {"FP", 3}, {"PP", 6}, {"BV", 101},
                                                 {"PV", 1},  {"ZA", 3},   {"PO", 1}, {"PR", 8}, {"VY", 1},
                                                 {"IV", 2},  {"BP", 1},   {"ZFP", 1}};
    for (const auto& [id, next] : expected) EXPECT_EQ(cislo(id.c_str()), next) << id;
}

TEST_F(NumberSeries, ChangedPrefixRestartsAtOne) {
    setRada("FV", "F", 6, 2);
    addDoc("faktura", "F00001", m_rok);
    m_model->setDefaultRadaCislo();
    EXPECT_EQ(cislo("FV"), 1);
}

// Invoice numbers read in table order; a number whose rest does not read (every ZFP number,
// cut by two) counts as the last number that did read in the pass.
struct PassCase {
    const char* name;
    std::vector<const char*> numbers;
    int fv, fp, zfv, zfp;
};
class InvoicePass : public NumberSeries, public ::testing::WithParamInterface<PassCase> {};
TEST_P(InvoicePass, CountersAfterRecomputation) {
    const PassCase c = GetParam();
    for (const char* n : c.numbers) addDoc("faktura", n, m_rok);
    m_model->setDefaultRadaCislo();
    EXPECT_EQ(cislo("FV"), c.fv);
    EXPECT_EQ(cislo("FP"), c.fp);
    EXPECT_EQ(cislo("ZFV"), c.zfv);
    EXPECT_EQ(cislo("ZFP"), c.zfp);
}
INSTANTIATE_TEST_SUITE_P(
    LastValueRead, InvoicePass,
    ::testing::Values(PassCase{"zfp_alone_never_reads", {"ZFP0009"}, 1, 1, 1, 1},
                      PassCase{"zfp_takes_the_invoice_before_it", {"FV0005", "ZFP0001"}, 6, 1, 1, 6},
                      PassCase{"zfp_before_any_number_stays_one", {"ZFP0001", "FV0005"}, 6, 1, 1, 1},
                      PassCase{"non_number_repeats_last", {"FV0007", "FPxy"}, 8, 8, 1, 1},
                      PassCase{"later_lower_number_does_not_lower", {"ZFV009", "ZFV002", "ZFP1"}, 1, 1, 10, 3}),
    [](const auto& i) { return std::string(i.param.name); });

struct ZDokladuCase {
    const char* cislo;
    int prefixLength;
    int minimum;
    int expected;
};
class NumberFromDocument : public ::testing::TestWithParam<ZDokladuCase> {};
TEST_P(NumberFromDocument, RestPlusOneAtLeastMinimum) {
    const ZDokladuCase c = GetParam();
    EXPECT_EQ(DbModel::getCisloZDokladu(c.cislo, c.prefixLength, c.minimum), c.expected);
}
INSTANTIATE_TEST_SUITE_P(Copies, NumberFromDocument,
                         ::testing::Values(ZDokladuCase{"FV0010", 2, 1, 11}, ZDokladuCase{"FV0010", 2, 20, 20},
                                           ZDokladuCase{"ZFV012", 3, 1, 13}, ZDokladuCase{"FVabc", 2, 5, 5},
                                           ZDokladuCase{"", 2, 1, 1}, ZDokladuCase{"0042", 0, 1, 43}));

TEST_F(NumberSeries, ForeignStorageAnswersNothingAndChangesNothing) {
    setRada("PP", "PP", 6, 5);
    lxSettings::instance()->setDbmodel(1);
    EXPECT_TRUE(m_model->rady().empty());
    EXPECT_EQ(m_model->getCisloDokladu("PP"), "");
    EXPECT_FALSE(m_model->increaseRadaCislo("PP"));
    m_model->setDefaultRadaCislo();
    lxSettings::instance()->setDbmodel(DBMODEL_SQLITE);
    EXPECT_EQ(cislo("PP"), 5);
}
