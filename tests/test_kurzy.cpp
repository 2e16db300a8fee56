// Currencies and exchange rates: lookups of stored rates, and the downloads of the national
// bank's daily list and of the yearly rates from a real HTTP server on loopback.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <wx/dir.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "download.h"
#include "lxsettings.h"
#include "lxutils.h"
#include "testcompany.h"

using ::testing::HasSubstr;

namespace {

// Serves files of a directory; the query of a request becomes part of the file name
// ("denni_kurz.txt?date=02.01.2024" is "denni_kurz.txt__date=02.01.2024"); a file
// "<name>.moved" beside a name answers with a redirect to its content. Files beside a name
// change how it is sent, as servers out there do: "<name>.repeat" holds how many times the
// content is sent over, "<name>.gzip" compresses the body (Content-Encoding: gzip),
// "<name>.chunked" sends it chunked and "<name>.close" until the connection closes, both
// without a Content-Length.
const char* const SERVER_PY = R"(import http.server, os, sys, urllib.parse, zlib
root = sys.argv[1]
def body(name):
    data = open(name, 'rb').read()
    left = int(open(name + '.repeat').read()) if os.path.isfile(name + '.repeat') else 1
    per = max(1, 65536 // max(1, len(data)))
    while left > 0:
        k = min(left, per)
        yield data * k
        left -= k
def gzipped(chunks):
    z = zlib.compressobj(9, zlib.DEFLATED, 31)
    for c in chunks:
        out = z.compress(c)
        if out:
            yield out
    yield z.flush()
class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = 'HTTP/1.1'
    def do_GET(self):
        name = os.path.join(root, urllib.parse.unquote(self.path).lstrip('/').replace('?', '__'))
        if os.path.isfile(name + '.moved'):
            self.send_response(302)
            self.send_header('Location', open(name + '.moved').read())
            self.send_header('Content-Length', '0')
            self.end_headers()
            return
        if not os.path.isfile(name):
            self.send_error(404)
            return
        chunks = body(name)
        self.send_response(200)
        self.send_header('Content-Type', 'text/plain; charset=UTF-8')
        if os.path.isfile(name + '.gzip'):
            chunks = gzipped(chunks)
            self.send_header('Content-Encoding', 'gzip')
        try:
            if os.path.isfile(name + '.chunked'):
                self.send_header('Transfer-Encoding', 'chunked')
                self.end_headers()
                for c in chunks:
                    self.wfile.write(b'%x\r\n' % len(c) + c + b'\r\n')
                self.wfile.write(b'0\r\n\r\n')
            elif os.path.isfile(name + '.close'):
                self.send_header('Connection', 'close')
                self.end_headers()
                self.close_connection = True
                for c in chunks:
                    self.wfile.write(c)
            else:
                data = b''.join(chunks)
                self.send_header('Content-Length', str(len(data)))
                self.end_headers()
                self.wfile.write(data)
        except (BrokenPipeError, ConnectionResetError):
            self.close_connection = True
    def log_message(self, *args):
        pass
server = http.server.ThreadingHTTPServer(('127.0.0.1', 0), Handler)
print(server.server_port, flush=True)
server.serve_forever()
)";

const std::string LIST_PATH = "cs/financni_trhy/devizovy_trh/kurzy_devizoveho_trhu/denni_kurz.txt";

const char* const GOOD_LIST =
    "02.01.2024 #1\n"
    "země|měna|množství|kód|kurz\n"
    "EMU|euro|1|EUR|24,685\n"
    "Indonesie|rupie|1000|IDR|1,456\n"
    "Japonsko|jen|100|JPY|15,234\n"
    "USA|dolar|1|USD|22,526\n";

wxDateTime day(const char* iso) {
    wxDateTime d;
    d.ParseISODate(iso);
    return d;
}

void writeFile(const wxString& path, const std::string& content) {
    wxFileName::Mkdir(wxFileName(path).GetPath(), 0777, wxPATH_MKDIR_FULL);
    wxFFile f(path, "wb");
    ASSERT_TRUE(f.IsOpened()) << path;
    f.Write(content.data(), content.size());
}

std::string readFile(const wxString& path) {
    wxFFile f(path, "rb");
    std::string s(static_cast<size_t>(f.Length()), '\0');
    f.Read(&s[0], s.size());
    return s;
}

}  // namespace

class Currencies : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        m_path = createCompany();
    }

    // Makes `rok` the current period as the program would find it on opening the file.
    void switchYear(int rok) {
        m_model->db().ExecuteUpdate("UPDATE obdobi SET current=0");
        m_model->db().ExecuteUpdate(wxString::Format("INSERT OR REPLACE INTO obdobi(rok,current) VALUES(%d,1)", rok));
        m_model->closeDatabase();
        ASSERT_TRUE(m_model->openDatabase(m_path));
        ASSERT_EQ(m_model->currentRok(), rok);
    }

    void addRate(const char* datum, const char* kod, double hodnota, bool jednotny = false) {
        ASSERT_TRUE(m_model->addKurz(Kurz(m_model->getLastId("kurz"), day(datum), hodnota, kod, jednotny)));
    }

    wxString m_path;
};

struct ValidityCase {
    int rok;
    int count;
    const char* valid;    // one currency that the year must offer
    const char* invalid;  // and one it must not
};
class CurrenciesOfYear : public Currencies, public ::testing::WithParamInterface<ValidityCase> {};
TEST_P(CurrenciesOfYear, OnlyThoseValidInTheCurrentYear) {
    const ValidityCase c = GetParam();
    switchYear(c.rok);
    const lxMenaArray meny = m_model->meny();
    EXPECT_EQ(meny.size(), static_cast<size_t>(c.count));
    wxArrayString kody;
    for (const auto& m : meny) kody.Add(m->kod());
    EXPECT_EQ(kody[0], "CZK");
    EXPECT_NE(kody.Index(c.valid), wxNOT_FOUND) << c.valid;
    EXPECT_EQ(kody.Index(c.invalid), wxNOT_FOUND) << c.invalid;
}
INSTANTIATE_TEST_SUITE_P(Validity, CurrenciesOfYear,
                         ::testing::Values(ValidityCase{2006, 35, "SIT", "BRL"}, ValidityCase{2008, 34, "SKK", "INR"},
                                           ValidityCase{2014, 33, "LTL", "LVL"}, ValidityCase{2015, 32, "ILS", "LTL"}));

TEST_F(Currencies, LookupsByIdCodeAndName) {
    EXPECT_EQ(m_model->getMena("2").kod(), "EUR");
    EXPECT_FALSE(m_model->getMena("EUR").isValid()) << "the text is looked up among ids, not codes";
    EXPECT_TRUE(m_model->hasMena("EUR"));
    EXPECT_FALSE(m_model->hasMena("2"));
    EXPECT_FALSE(m_model->hasMena("XYZ"));
    EXPECT_EQ(m_model->kodMena(15), "JPY");
    EXPECT_EQ(m_model->kodMena(99), "");
    EXPECT_EQ(m_model->nazevMena(1), u8("Kč - Česká koruna"));
    EXPECT_EQ(m_model->nazevMena(3), u8("USD - Americký dolar"));
    EXPECT_EQ(m_model->nazevMena(99), "");
}

TEST_F(Currencies, DailyRateIsTheLatestOnOrBeforeTheDay) {
    addRate("2024-02-29", "EUR", 25.1);
    addRate("2024-03-01", "EUR", 25.3);
    addRate("2024-12-31", "EUR", 25.0, /*jednotny=*/true);
    addRate("2024-03-04", "USD", 23.0);
    const struct {
        const char* datum;
        double hodnota;
    } cases[] = {{"2024-02-29", 25.1}, {"2024-03-01", 25.3}, {"2024-03-03", 25.3}, {"2025-01-05", 25.3}};
    for (const auto& c : cases) EXPECT_DOUBLE_EQ(m_model->getKurz("EUR", day(c.datum)).hodnota(), c.hodnota) << c.datum;
    EXPECT_TRUE(m_model->hasKurz("EUR", day("2024-03-01")));
    EXPECT_FALSE(m_model->hasKurz("EUR", day("2024-03-03"))) << "Sunday has no list of its own";
    EXPECT_FALSE(m_model->hasKurz("EUR", day("2024-12-31"))) << "a yearly rate is not a daily one";
    EXPECT_FALSE(m_model->getKurz("EUR", day("2004-12-31")).isValid());
    EXPECT_FALSE(m_model->getKurz("EUR", wxDateTime()).isValid());
    EXPECT_TRUE(m_model->hasKurz("USD"));
    EXPECT_FALSE(m_model->hasKurz("XYZ"));

    const Kurz home = m_model->getKurz("CZK", day("2024-03-03"));
    EXPECT_DOUBLE_EQ(home.hodnota(), 1.0);
    EXPECT_EQ(home.id(), -1);
}

TEST_F(Currencies, ForeignStorageAnswersNothing) {
    addRate("2024-03-01", "EUR", 25.3);
    lxSettings::instance()->setDbmodel(1);
    EXPECT_TRUE(m_model->meny().empty());
    EXPECT_FALSE(m_model->hasMena("EUR"));
    EXPECT_EQ(m_model->nazevMena(1), "");
    EXPECT_FALSE(m_model->hasKurz("EUR", day("2024-03-01")));
    EXPECT_FALSE(m_model->getKurz("EUR", day("2024-03-01")).isValid());
    EXPECT_FALSE(lxutils::kurzyDownload(day("2024-03-01")));
    lxSettings::instance()->setDbmodel(DBMODEL_SQLITE);
}

// The seeded starting rates are per ONE unit, like the downloaded ones: a seed of JPY copied as
// the bank quotes it (per 100) would make an entry on that day a hundred times too dear.
TEST_F(Currencies, SeededJapaneseYenIsPerOneYen) {
    EXPECT_NEAR(m_model->getKurz("JPY", day("2005-01-03")).hodnota(), 0.21815, 1e-12);
    EXPECT_NEAR(m_model->getKurz("JPY", day("2021-12-24")).hodnota(), 0.1935, 1e-12);
    EXPECT_NEAR(m_model->getKurz("IDR", day("2021-12-24")).hodnota(), 0.001558, 1e-12);
}

// What one unit of each seeded currency was worth in CZK between 2005 and 2021, with room
// to spare but far narrower than a factor of 100: a seed left per 100 or per 1000 units,
// or divided twice, falls outside.
TEST_F(Currencies, EverySeededRateIsPlausiblePerOneUnit) {
    const struct {
        const char* kod;
        double od, az;
    } ranges[] = {{"AUD", 12, 25},      {"BGN", 10, 20},       {"BRL", 3, 15},       {"CAD", 12, 25},
                  {"CHF", 15, 30},      {"CNY", 2.5, 4.5},     {"CYP", 40, 60},      {"DKK", 2.5, 5},
                  {"EEK", 1, 3},        {"EUR", 20, 35},       {"GBP", 25, 50},      {"HKD", 1.5, 4},
                  {"HRK", 3, 5},        {"HUF", 0.05, 0.2},    {"IDR", 0.001, 0.003}, {"ILS", 5, 8},
                  {"INR", 0.2, 0.5},    {"ISK", 0.1, 0.5},     {"JPY", 0.1, 0.35},   {"KRW", 0.01, 0.03},
                  {"LTL", 5, 12},       {"LVL", 30, 60},       {"MTL", 50, 90},      {"MXN", 0.8, 2.5},
                  {"MYR", 4, 8},        {"NOK", 2, 5},         {"NZD", 12, 20},      {"PHP", 0.3, 0.7},
                  {"PLN", 5, 10},       {"ROL", 0.0003, 0.002}, {"RON", 4, 8},        {"RUB", 0.2, 1},
                  {"SEK", 2, 4.5},      {"SGD", 10, 20},       {"SIT", 0.08, 0.2},   {"SKK", 0.5, 1.2},
                  {"THB", 0.5, 1},      {"TRL", 5e-6, 5e-5},   {"TRY", 1, 15},       {"USD", 15, 30},
                  {"XDR", 25, 40},      {"ZAR", 1, 5}};
    wxSQLite3ResultSet rs = m_model->db().ExecuteQuery("SELECT kod, hodnota, datum FROM kurz ORDER BY id");
    int seen = 0;
    while (rs.NextRow()) {
        ++seen;
        const wxString kod = rs.GetAsString(0);
        const double hodnota = rs.GetDouble(1);
        const auto* r = std::find_if(std::begin(ranges), std::end(ranges), [&](const auto& x) { return kod == x.kod; });
        ASSERT_NE(r, std::end(ranges)) << "no plausible range known for " << kod;
        EXPECT_GE(hodnota, r->od) << kod << " " << rs.GetAsString(2);
        EXPECT_LE(hodnota, r->az) << kod << " " << rs.GetAsString(2);
    }
    EXPECT_EQ(seen, 95);
}

// A company with a rate server on loopback that the download URLs point to.
class RateDownload : public Currencies {
 protected:
    void SetUp() override {
        Currencies::SetUp();
        m_www = m_home + "/www";
        ASSERT_TRUE(wxFileName::Mkdir(m_www, 0777, wxPATH_MKDIR_FULL));
        const wxString script = m_home + "/server.py";
        writeFile(script, SERVER_PY);
        int out[2];
        ASSERT_EQ(pipe(out), 0);
        m_server = fork();
        ASSERT_GE(m_server, 0);
        if (m_server == 0) {
            dup2(out[1], STDOUT_FILENO);
            close(out[0]);
            close(out[1]);
            execl("/usr/bin/python3", "python3", static_cast<const char*>(script.utf8_str()),
                  static_cast<const char*>(m_www.utf8_str()), static_cast<char*>(nullptr));
            _exit(127);
        }
        close(out[1]);
        FILE* in = fdopen(out[0], "r");
        char line[32] = "";
        const bool started = fgets(line, sizeof line, in) != nullptr;
        fclose(in);
        ASSERT_TRUE(started) << "the rate server did not start";
        m_base = wxString::Format("http://127.0.0.1:%d", std::atoi(line));
        wxSetEnv("EVIDA_CNB_URL", m_base);
        wxSetEnv("EVIDA_UPDATE_URL", m_base + "/");
    }

    void TearDown() override {
        if (m_server > 0) {
            kill(m_server, SIGTERM);
            waitpid(m_server, nullptr, 0);
        }
        wxUnsetEnv("EVIDA_CNB_URL");
        wxUnsetEnv("EVIDA_UPDATE_URL");
        Currencies::TearDown();
    }

    // The national bank's list for a date written "dd.mm.yyyy".
    void serveDaily(const char* date, const std::string& content) {
        writeFile(m_www + "/" + LIST_PATH + "__date=" + date, content);
    }

    int rates() { return scalar("SELECT count(*) FROM kurz"); }
    wxString dataFile(const wxString& name) { return lxutils::dataDir() + "/" + name; }

    wxString m_www;
    wxString m_base;
    pid_t m_server = -1;
};

TEST_F(RateDownload, DailyListStoresEachRatePerOneUnitUnderNewIds) {
    // The configured address answers with a redirect to the list, as the bank's old one does.
    wxSetEnv("EVIDA_CNB_URL", m_base + "/stary");
    writeFile(m_www + "/stary/" + LIST_PATH + "__date=02.01.2024.moved", "/" + LIST_PATH + "?date=02.01.2024");
    serveDaily("02.01.2024", GOOD_LIST);
    const int before = rates();
    const int firstId = m_model->getLastId("kurz");
    int stored = 0;
    ASSERT_TRUE(lxutils::kurzyDownload(day("2024-01-02"), &stored));
    EXPECT_EQ(stored, 4);
    EXPECT_EQ(rates(), before + 4);
    EXPECT_EQ(scalar("SELECT min(id) FROM kurz WHERE datum='2024-01-02'"), firstId);
    EXPECT_EQ(scalar("SELECT max(id) FROM kurz WHERE datum='2024-01-02'"), firstId + 3);
    EXPECT_EQ(scalar("SELECT count(*) FROM kurz WHERE datum='2024-01-02' AND jednotny=0"), 4);
    const struct {
        const char* kod;
        double hodnota;
    } expected[] = {{"EUR", 24.685}, {"IDR", 0.001456}, {"JPY", 0.15234}, {"USD", 22.526}};
    for (const auto& e : expected)
        EXPECT_NEAR(m_model->getKurz(e.kod, day("2024-01-02")).hodnota(), e.hodnota, 1e-12) << e.kod;
    EXPECT_EQ(readFile(dataFile("02.01.2024.txt")), GOOD_LIST);
}

TEST_F(RateDownload, GarbageLinesAreSkippedAndUnreadableNumbersCountAsOne) {
    serveDaily("02.01.2024",
               "02.01.2024 #1\r\n"
               "země|měna|množství|kód|kurz\r\n"
               "\r\n"
               "<html><body>Chyba</body></html>\r\n"
               "EMU|euro|1|EUR\r\n"
               "USA|dolar|1|USD|22,526|navíc\r\n"
               "Polsko|zlotý|1|PLN|5,651\r\n"
               "Švédsko|koruna|sto|SEK|2,213\r\n"
               "Norsko|koruna|1|NOK|neuvedeno\r\n"
               "Thajsko|baht|0|THB|65,711\r\n"
               "Island|koruna|100|ISK|16,380");  // a line without its line feed is not complete
    int stored = 0;
    ASSERT_TRUE(lxutils::kurzyDownload(day("2024-01-02"), &stored));
    EXPECT_EQ(stored, 4);
    const wxDateTime d = day("2024-01-02");
    EXPECT_DOUBLE_EQ(m_model->getKurz("PLN", d).hodnota(), 5.651);
    EXPECT_DOUBLE_EQ(m_model->getKurz("SEK", d).hodnota(), 2.213);
    EXPECT_DOUBLE_EQ(m_model->getKurz("NOK", d).hodnota(), 1.0);
    EXPECT_DOUBLE_EQ(m_model->getKurz("THB", d).hodnota(), 65.711);
    for (const char* kod : {"EUR", "USD", "ISK"}) EXPECT_FALSE(m_model->hasKurz(kod, d)) << kod;
}

TEST_F(RateDownload, SameDateTwiceStoresTwiceAndLookupsStillAnswer) {
    serveDaily("02.01.2024", GOOD_LIST);
    const int before = rates();
    ASSERT_TRUE(lxutils::kurzyDownload(day("2024-01-02")));
    ASSERT_TRUE(lxutils::kurzyDownload(day("2024-01-02")));
    EXPECT_EQ(rates(), before + 8);
    EXPECT_TRUE(m_model->hasKurz("JPY", day("2024-01-02")));
    EXPECT_NEAR(m_model->getKurz("JPY", day("2024-01-03")).hodnota(), 0.15234, 1e-12);
}

struct FailCase {
    const char* name;
    const char* content;  // null: nothing is served
    bool fileKept;
};
class FailedDownload : public RateDownload, public ::testing::WithParamInterface<FailCase> {};
TEST_P(FailedDownload, StoresNothing) {
    const FailCase c = GetParam();
    if (c.content) serveDaily("02.01.2024", c.content);
    const int before = rates();
    int stored = -1;
    EXPECT_FALSE(lxutils::kurzyDownload(day("2024-01-02"), &stored));
    EXPECT_EQ(stored, 0);
    EXPECT_EQ(rates(), before);
    EXPECT_EQ(wxFileName::FileExists(dataFile("02.01.2024.txt")), c.fileKept);
    EXPECT_FALSE(wxFileName::FileExists(dataFile("02.01.2024.txt.part")));
}
INSTANTIATE_TEST_SUITE_P(Lists, FailedDownload,
                         ::testing::Values(FailCase{"not_found_error_page", nullptr, false},
                                           FailCase{"no_line_feed", "EMU|euro|1|EUR|24,685", false},
                                           FailCase{"no_rate_in_list", "02.01.2024 #1\nzemě|měna|množství|kód|kurz\n",
                                                    true}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST_F(RateDownload, FailedTransferKeepsAnEarlierFileWhole) {
    writeFile(dataFile("02.01.2024.txt"), GOOD_LIST);
    EXPECT_FALSE(lxutils::downloadFileFromNet(m_base + "/nic.txt", lxutils::dataDir(), "02.01.2024.txt"));
    EXPECT_EQ(readFile(dataFile("02.01.2024.txt")), GOOD_LIST);
    EXPECT_FALSE(lxutils::downloadFileFromNet("ftp://127.0.0.1/x.txt", lxutils::dataDir(), "x.txt"));
}

TEST_F(RateDownload, YearlyRatesFromTheProgramsServer) {
    writeFile(m_www + "/kurzy/2023.txt",
              "Jednotný kurz 2023\n"
              "EMU|1|EUR|24,004\n"
              "Japonsko|100|JPY|16,500\n"
              "USA|dolar|1|USD|22,205\n");  // five fields: not a line of this list
    addRate("2024-06-30", "EUR", 25.5);
    int stored = 0;
    ASSERT_TRUE(lxutils::jednotnekurzyDownload(2023, &stored));
    EXPECT_EQ(stored, 2);
    EXPECT_TRUE(wxFileName::FileExists(dataFile("2023.txt")));
    EXPECT_DOUBLE_EQ(m_model->getJednotnyKurz("EUR", 2023).hodnota(), 24.004);
    EXPECT_NEAR(m_model->getJednotnyKurz("JPY", 2023).hodnota(), 0.165, 1e-12);
    EXPECT_FALSE(m_model->hasJednotnyKurz(2023, "USD"));
    EXPECT_FALSE(m_model->hasJednotnyKurz(2024, "EUR")) << "a daily rate is not a yearly one";
    EXPECT_FALSE(m_model->getJednotnyKurz("EUR", 2024).isValid());
    EXPECT_FALSE(m_model->hasKurz("EUR", m_model->getJednotnyKurz("EUR", 2023).datum()));
    EXPECT_FALSE(lxutils::jednotnekurzyDownload(2022));
}

// Counts rows of a closed company file without opening it as a company: opening would run the
// checks, which put the seeded rate list back whenever kurz holds another number of rows.
int countInFile(const wxString& path, const wxString& sql) {
    wxSQLite3Database db;
    db.Open(path, wxEmptyString, WXSQLITE_OPEN_READONLY);
    return db.ExecuteScalar(sql);
}

TEST_F(RateDownload, CommandLineStoresTheRatesOfADay) {
    serveDaily("02.01.2024", GOOD_LIST);
    m_model->closeDatabase();

    const CliResult ok = runCli("rates " + m_path + " 2024-01-02");
    EXPECT_EQ(ok.status, 0) << ok.output;
    EXPECT_THAT(ok.output, HasSubstr("Uloženo kurzů ke dni 2024-01-02: 4"));
    EXPECT_EQ(countInFile(m_path, "SELECT count(*) FROM kurz WHERE datum='2024-01-02' AND jednotny=0"), 4);
    EXPECT_EQ(countInFile(m_path, "SELECT count(*) FROM kurz WHERE kod='JPY' AND hodnota=0.15234"), 1);

    const CliResult badDate = runCli("rates " + m_path + " 2024-13-01");
    EXPECT_EQ(badDate.status, 2);
    EXPECT_THAT(badDate.output, HasSubstr("Neplatné datum"));

    const CliResult noList = runCli("rates " + m_path + " 2024-01-03");
    EXPECT_EQ(noList.status, 1);
    EXPECT_THAT(noList.output, HasSubstr("nepodařilo stáhnout"));
    EXPECT_EQ(countInFile(m_path, "SELECT count(*) FROM kurz WHERE datum='2024-01-03'"), 0);
}

// How a body is sent by the loopback server (see SERVER_PY).
enum class Sending { LENGTH, CHUNKED, UNTIL_CLOSE };

class BoundedDownload : public RateDownload {
 protected:
    // Serves `content` repeated `times` at `path` (relative to the server's root).
    void serve(const wxString& path, const std::string& content, int times, Sending how, bool gzip) {
        const wxString file = m_www + "/" + path;
        writeFile(file, content);
        writeFile(file + ".repeat", std::to_string(times));
        if (how == Sending::CHUNKED) writeFile(file + ".chunked", "");
        if (how == Sending::UNTIL_CLOSE) writeFile(file + ".close", "");
        if (gzip) writeFile(file + ".gzip", "");
    }
};

struct CapCase {
    const char* name;
    Sending how;
    bool gzip;
    int times;  // of a 17-byte line
    size_t cap;
    bool ok;
};
class DownloadCap : public BoundedDownload, public ::testing::WithParamInterface<CapCase> {};
TEST_P(DownloadCap, CountsTheBytesThatArriveAfterDecoding) {
    const CapCase c = GetParam();
    const std::string line = "0123456789abcdef\n";
    serve("data.txt", line, c.times, c.how, c.gzip);
    const bool ok = lxutils::downloadFileFromNet(m_base + "/data.txt", lxutils::dataDir(), "data.txt", c.cap);
    EXPECT_EQ(ok, c.ok);
    EXPECT_EQ(wxFileName::FileExists(dataFile("data.txt")), c.ok);
    EXPECT_FALSE(wxFileName::FileExists(dataFile("data.txt.part")));
    std::string expected;
    for (int i = 0; i < c.times; ++i) expected += line;
    if (c.ok) {
        EXPECT_EQ(readFile(dataFile("data.txt")), expected);
    }
}
INSTANTIATE_TEST_SUITE_P(
    Bodies, DownloadCap,
    ::testing::Values(CapCase{"announced_length_within_cap", Sending::LENGTH, false, 100, 2000, true},
                      CapCase{"exactly_the_cap", Sending::CHUNKED, false, 100, 1700, true},
                      CapCase{"announced_length_over_cap", Sending::LENGTH, false, 200, 2000, false},
                      CapCase{"chunked_without_length_over_cap", Sending::CHUNKED, false, 200, 2000, false},
                      CapCase{"until_close_without_length_over_cap", Sending::UNTIL_CLOSE, false, 200, 2000, false},
                      CapCase{"one_byte_over_cap", Sending::UNTIL_CLOSE, false, 100, 1699, false},
                      CapCase{"gzip_within_cap_is_decoded", Sending::LENGTH, true, 100, 2000, true},
                      CapCase{"gzip_small_on_the_wire_large_decoded", Sending::LENGTH, true, 200, 2000, false},
                      CapCase{"gzip_chunked_over_cap", Sending::CHUNKED, true, 5000, 2000, false}),
    [](const auto& i) { return std::string(i.param.name); });

struct FloodCase {
    const char* name;
    Sending how;
    bool gzip;
    int times;  // of a valid rate line
};
class RateListFlood : public BoundedDownload, public ::testing::WithParamInterface<FloodCase> {};
TEST_P(RateListFlood, StoresNothing) {
    const FloodCase c = GetParam();
    serve(wxString(LIST_PATH) + "__date=02.01.2024", "EMU|euro|1|EUR|24,685\n", c.times, c.how, c.gzip);
    const int before = rates();
    int stored = -1;
    EXPECT_FALSE(lxutils::kurzyDownload(day("2024-01-02"), &stored));
    EXPECT_EQ(stored, 0);
    EXPECT_EQ(rates(), before);
    EXPECT_FALSE(wxFileName::FileExists(dataFile("02.01.2024.txt.part")));
}
INSTANTIATE_TEST_SUITE_P(
    Lists, RateListFlood,
    ::testing::Values(FloodCase{"chunked_without_length", Sending::CHUNKED, false, 100000},
                      FloodCase{"until_close_without_length", Sending::UNTIL_CLOSE, false, 100000},
                      FloodCase{"gzip_bomb", Sending::LENGTH, true, 100000},
                      FloodCase{"more_lines_than_a_list_has_though_small", Sending::LENGTH, false, 1001}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(BoundedDownload, CompressedListOfAThousandLinesIsStillAList) {
    std::string list = "02.01.2024 #1\n";
    for (int i = 0; i < 999; ++i) list += "EMU|euro|1|EUR|24,685\n";
    serve(wxString(LIST_PATH) + "__date=02.01.2024", list, 1, Sending::CHUNKED, true);
    int stored = 0;
    ASSERT_TRUE(lxutils::kurzyDownload(day("2024-01-02"), &stored));
    EXPECT_EQ(stored, 999);
}
