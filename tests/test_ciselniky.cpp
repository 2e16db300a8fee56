// The tax administration's code lists: reading both formats of the service over real samples,
// the rows valid on a day, damaged answers, the names for prints, and the download of all
// lists from a stand-in service on loopback.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include <string>

#include "ciselnikyserver.h"
#include "clock.h"
#include "collation.h"
#include "dph/ciselniky.h"
#include "lxutils.h"
#include "testcompany.h"

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

namespace {

wxString sample(const char* name) { return wxString(EVIDA_TEST_DATA) + "/ciselniky/" + name; }

void writeBytes(const wxString& path, const std::string& bytes) {
    wxFFile f(path, "wb");
    ASSERT_TRUE(f.IsOpened()) << path;
    f.Write(bytes.data(), bytes.size());
}

template <class Row, class Key>
std::vector<Key> codes(const std::vector<Row>& rows, Key Row::*key) {
    std::vector<Key> out;
    for (const Row& r : rows) out.push_back(r.*key);
    return out;
}

const char* const OBCE_XML =
    R"(<?xml version="1.0" encoding="UTF-8"?><Ciselnik Nazev="obce" Dotaz="C%3dobce">
<Veta naz_obce="Zlín" psc="76001" c_fu="3301" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Cheb" psc="35002" c_fu="2402" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Hradec Králové" psc="50002" c_fu="2701" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Čáslav" psc="28601" c_fu="2108" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Brno" psc="60200" c_fu="3001" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Brno" psc="60100" c_fu="3001" d_vzniku="1990-01-01" d_zaniku=""/>
<Veta naz_obce="Zaniklá" psc="11111" c_fu="1" d_vzniku="1990-01-01" d_zaniku="2019-12-31"/>
</Ciselnik>)";

const char* const PRACUFO_XML =
    R"(<?xml version="1.0" encoding="UTF-8"?><Ciselnik Nazev="pracufo">
<Veta c_pracufo="2001" nazu_pracufo="Územní pracoviště pro Prahu 1" c_ufo="451" d_zaniku=""/>
<Veta c_pracufo="3001" nazu_pracufo="Územní pracoviště Brno I" c_ufo="461" d_zaniku=""/>
<Veta c_pracufo="2099" nazu_pracufo="Zrušené pracoviště" c_ufo="451" d_zaniku="2015-06-30"/>
</Ciselnik>)";

}  // namespace

class CodeLists : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        lxutils::setToday(isoDatum("2026-03-15"));
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        TestCompany::TearDown();
    }
    static void install(const char* sampleName, const char* file) {
        ASSERT_TRUE(wxCopyFile(sample(sampleName), lxutils::ciselnikPath(file)));
    }
};

TEST_F(CodeLists, TaxOfficesAreThoseValidTodayInCzechOrder) {
    const std::vector<lxutils::Ufo> ufo = lxutils::readUfo(wxDefaultDateTime, sample("ufo_epo_ciselnik.xml"));
    ASSERT_EQ(ufo.size(), 16u);
    EXPECT_THAT(codes(ufo, &lxutils::Ufo::c_ufo), ::testing::IsSupersetOf({0, 13, 451, 464}));
    EXPECT_THAT(codes(ufo, &lxutils::Ufo::c_ufo), ::testing::Not(::testing::Contains(551)));
    for (size_t i = 1; i < ufo.size(); ++i) {
        EXPECT_LE(collation::czechCompare(ufo[i - 1].nazu_ufo, ufo[i].nazu_ufo), 0) << i;
    }
    EXPECT_EQ(ufo.front().nazu_ufo, u8("Finanční úřad pro hlavní město Prahu"));
}

TEST_F(CodeLists, AnOlderDayGivesTheOfficesOfThatTimeWithTheirOddAttributes) {
    const std::vector<lxutils::CiselnikRadek> all = lxutils::readCiselnik(sample("ufo_epo_ciselnik.xml"));
    ASSERT_EQ(all.size(), 223u);
    EXPECT_EQ(all.front().at("k_ufo_vema"), "\\ ");
    EXPECT_EQ(all.front().at("c_komit"), "");

    const auto ufo2010 = lxutils::readUfo(isoDatum("2010-06-01"), sample("ufo_epo_ciselnik.xml"));
    const auto c2010 = codes(ufo2010, &lxutils::Ufo::c_ufo);
    EXPECT_THAT(c2010, ::testing::Contains(551));                  // the row with k_ufo_vema="\ "
    EXPECT_THAT(c2010, ::testing::Not(::testing::Contains(451)));  // began in 2013
    EXPECT_THAT(c2010, ::testing::Not(::testing::Contains(0)));    // began in 2011
}

struct OkecCase {
    const char* name;
    const char* day;
    std::vector<int> present;
    std::vector<int> absent;
};
void PrintTo(const OkecCase& c, std::ostream* os) { *os << c.name; }
class OkecOnDay : public CodeLists, public ::testing::WithParamInterface<OkecCase> {};

TEST_P(OkecOnDay, RepeatedCodesGiveTheRowOfTheirValidInterval) {
    const OkecCase c = GetParam();
    const auto okec = lxutils::readOkec(isoDatum(c.day), sample("okec_mepo_subset.txt"));
    const auto nace = codes(okec, &lxutils::Okec::c_nace);
    EXPECT_EQ(okec.size(), 20u);
    EXPECT_TRUE(std::is_sorted(nace.begin(), nace.end()));
    EXPECT_EQ(std::count(nace.begin(), nace.end(), 10000), 1);
    for (int code : c.present) EXPECT_THAT(nace, ::testing::Contains(code)) << code;
    for (int code : c.absent) EXPECT_THAT(nace, ::testing::Not(::testing::Contains(code))) << code;
    EXPECT_EQ(okec.front().naz_nace, u8("ROSTLINNÁ A ŽIVOČIŠNÁ VÝROBA, MYSLIVOST A SOUVISEJÍCÍ ČINNOSTI"));
}

INSTANTIATE_TEST_SUITE_P(
    Okec, OkecOnDay,
    ::testing::Values(
        OkecCase{"last_day_of_the_old_list", "2025-12-31", {14900, 620100, 51010}, {14800, 629000, 22000}},
        OkecCase{"first_day_of_the_new_list", "2026-01-01", {14800, 629000, 22000}, {14900, 620100, 51010}}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(CodeLists, CountriesGiveTheirEuCodeOncePerCode) {
    const auto zeme = lxutils::readZeme(wxDefaultDateTime, sample("zeme_mojedane_subset.txt"));
    const auto kod2 = codes(zeme, &lxutils::Zeme::kod2);
    EXPECT_EQ(std::count(kod2.begin(), kod2.end(), "BG"), 1);
    auto find = [&zeme](const char* kod) {
        for (const auto& z : zeme) {
            if (z.kod2 == kod) return z;
        }
        return lxutils::Zeme();
    };
    EXPECT_EQ(find("GR").kod2_eu, "EL");
    EXPECT_EQ(find("GR").naz_zeme_c25, u8("ŘECKO"));
    EXPECT_EQ(find("DE").kod2_eu, "DE");
    EXPECT_EQ(find("CZ").naz_zeme_c60, u8("Česká republika"));
}

TEST_F(CodeLists, MunicipalitiesAndWorkplacesFromTheXmlFormat) {
    const wxString obce = m_home + "/obce.xml";
    writeBytes(obce, OBCE_XML);
    const auto list = lxutils::readObce(wxDefaultDateTime, obce);
    ASSERT_EQ(list.size(), 6u);
    // Ch goes after H in Czech, Č after C.
    EXPECT_THAT(codes(list, &lxutils::Obec::naz_obce),
                ElementsAre(u8("Brno"), u8("Brno"), u8("Čáslav"), u8("Hradec Králové"), u8("Cheb"), u8("Zlín")));
    EXPECT_EQ(list[0].psc, "60100");
    EXPECT_EQ(list[1].psc, "60200");
    EXPECT_EQ(list[4].c_fu, 2402);

    const wxString prac = m_home + "/pracufo.xml";
    writeBytes(prac, PRACUFO_XML);
    const auto pracufo = lxutils::readPracufo(wxDefaultDateTime, prac);
    ASSERT_EQ(pracufo.size(), 2u);
    EXPECT_EQ(pracufo[0].c_pracufo, 3001);
    EXPECT_EQ(pracufo[0].c_ufo, 461);
    EXPECT_EQ(pracufo[1].nazu_pracufo, u8("Územní pracoviště pro Prahu 1"));
}

struct BadFile {
    const char* name;
    std::string bytes;
    size_t rows;  // rows still read
};
void PrintTo(const BadFile& c, std::ostream* os) { *os << c.name; }
class DamagedList : public ::testing::TestWithParam<BadFile> {};

TEST_P(DamagedList, GivesNoRowsOrOnlyTheCompleteOnes) {
    EXPECT_EQ(lxutils::parseCiselnik(GetParam().bytes).size(), GetParam().rows);
}

std::string sampleBytes(const char* name, size_t length = std::string::npos) {
    wxFFile f(sample(name), "rb");
    std::string s(static_cast<size_t>(f.Length()), '\0');
    f.Read(&s[0], s.size());
    return s.substr(0, length);
}

INSTANTIATE_TEST_SUITE_P(
    CodeLists, DamagedList,
    ::testing::Values(BadFile{"error_answer",
                              R"(<?xml version="1.0"?><Chyby><Chyba kod="1" text="Neznámý číselník"/></Chyby>)", 0},
                      BadFile{"xml_cut_off", sampleBytes("ufo_epo_ciselnik.xml", 20000), 0},
                      BadFile{"html_page", "<html><body><h1>Interní chyba serveru</h1></body></html>", 0},
                      BadFile{"binary_garbage", std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), 0},
                      BadFile{"plain_text", "Service Unavailable\n", 0}, BadFile{"empty", "", 0},
                      BadFile{"header_only", "c_nace|d_pocpl|d_ukopl|naz_nace|\n", 0},
                      BadFile{"text_cut_in_a_line", sampleBytes("okec_mepo_subset.txt", 250), 2},
                      BadFile{"text_with_a_short_line", "c_ufo|nazu_ufo|\n451|Praha|\n452|\n453|Brno|\r\n", 2}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(CodeLists, MissingFilesGiveEmptyListsAndNames) {
    EXPECT_TRUE(lxutils::readUfo().empty());
    EXPECT_TRUE(lxutils::readObce().empty());
    EXPECT_TRUE(lxutils::readCiselnik(m_home + "/nic.xml").empty());
    EXPECT_EQ(lxutils::nazevUfo(451), "");
}

TEST_F(CodeLists, NamesForPrintsPreferTheValidRowAndKnowRetiredCodes) {
    install("ufo_epo_ciselnik.xml", "ufo.xml");
    install("okec_mepo_subset.txt", "okec.xml");
    writeBytes(lxutils::ciselnikPath("pracufo.xml"), PRACUFO_XML);
    EXPECT_EQ(lxutils::nazevUfo(451), u8("Finanční úřad pro hlavní město Prahu"));
    EXPECT_EQ(lxutils::nazevUfo(551), u8("Finanční ředitelství pro hlavní město Prahu"));
    EXPECT_EQ(lxutils::nazevUfo(999), "");
    EXPECT_EQ(lxutils::nazevOkec(14900), u8("CHOV OSTATNÍCH ZVÍŘAT"));
    EXPECT_EQ(lxutils::nazevOkec(620100), u8("PROGRAMOVÁNÍ"));
    EXPECT_EQ(lxutils::nazevPracufo(2099), u8("Zrušené pracoviště"));
}

class CodeListDownload : public CodeLists {
 protected:
    void SetUp() override {
        CodeLists::SetUp();
        m_www = m_home + "/www";
        ASSERT_TRUE(wxFileName::Mkdir(m_www));
        for (const char* name : {"okec", "ufo", "pracufo", "zeme", "obce", "dp_fu", "pbucelur", "ucelur", "obcezujzko"})
            writeBytes(m_www + "/" + name + ".xml", OBCE_XML);
        ASSERT_TRUE(wxCopyFile(sample("ufo_epo_ciselnik.xml"), m_www + "/ufo.xml"));
        ASSERT_TRUE(wxCopyFile(sample("okec_mepo_subset.txt"), m_www + "/okec.xml"));
        m_server = std::make_unique<LoopbackHttpServer>(m_www, CISELNIKY_SERVER_PY);
        ASSERT_TRUE(m_server->running());
        wxSetEnv("EVIDA_CISELNIKY_URL", m_server->url() + "/");
    }
    void TearDown() override {
        wxUnsetEnv("EVIDA_CISELNIKY_URL");
        m_server.reset();
        CodeLists::TearDown();
    }
    bool exists(const char* file) { return wxFileName::FileExists(lxutils::ciselnikPath(file)); }

    wxString m_www;
    std::unique_ptr<LoopbackHttpServer> m_server;
};

TEST_F(CodeListDownload, AllNineListsAreFetchedInOrderWithTodaysDate) {
    std::vector<wxString> progress;
    ASSERT_TRUE(lxutils::downloadCiselniky([&progress](size_t i, size_t count, const wxString& file) {
        progress.push_back(wxString::Format("%zu/%zu %s", i, count, file));
    }));
    const char* const expected[] = {
        "/adistc/epo_ciselnik?C=okec",
        "/adistc/epo_ciselnik?C=ufo&PL=2026-03-15",
        "/adistc/epo_ciselnik?C=pracufo&PL=2026-03-15",
        "/adistc/epo_ciselnik?C=zeme&PL=2026-03-15",
        "/adistc/epo_ciselnik?C=obce&PL=2026-03-15",
        "/adistc/epo_ciselnik?C=dp_fu",
        "/adistc/epo_ciselnik?C=pbucelur",
        "/adistc/epo_ciselnik?C=ucelur",
        "/adistc/epo_ciselnik?C=obcezujzko&PL=2026-03-15",
    };
    EXPECT_THAT(ciselnikyRequests(m_www), ElementsAreArray(expected));
    ASSERT_EQ(progress.size(), 9u);
    EXPECT_EQ(progress.front(), "0/9 okec.xml");
    EXPECT_EQ(progress.back(), "8/9 obcezujzko.xml");
    EXPECT_TRUE(lxutils::haveCiselniky());
    EXPECT_TRUE(exists("obcezujzko.xml"));
    EXPECT_EQ(lxutils::readUfo().size(), 16u);
}

TEST_F(CodeListDownload, AMissingListStopsTheRunAndKeepsTheListsBeforeIt) {
    ASSERT_TRUE(wxRemoveFile(m_www + "/pracufo.xml"));
    EXPECT_FALSE(lxutils::downloadCiselniky());
    EXPECT_EQ(ciselnikyRequests(m_www).size(), 3u);
    EXPECT_TRUE(exists("okec.xml"));
    EXPECT_TRUE(exists("ufo.xml"));
    EXPECT_FALSE(exists("pracufo.xml"));
    EXPECT_FALSE(exists("zeme.xml"));
    EXPECT_FALSE(lxutils::haveCiselniky());
}

TEST_F(CodeListDownload, AnErrorAnswerLeavesTheOlderListInPlace) {
    ASSERT_TRUE(wxCopyFile(sample("ufo_epo_ciselnik.xml"), lxutils::ciselnikPath("ufo.xml")));
    writeBytes(m_www + "/ufo.xml", R"(<?xml version="1.0"?><Chyby><Chyba text="Chybný dotaz"/></Chyby>)");
    EXPECT_FALSE(lxutils::downloadCiselniky());
    EXPECT_EQ(ciselnikyRequests(m_www).size(), 2u);
    EXPECT_EQ(fileBytes(lxutils::ciselnikPath("ufo.xml")), fileBytes(sample("ufo_epo_ciselnik.xml")));
    EXPECT_FALSE(wxFileName::FileExists(lxutils::ciselnikPath("ufo.xml.novy")));
}
