// The vehicle log's prints written to PDF and read back, and drawn by the preview: the book
// of a vehicle's trips, one trip, and the monthly reimbursement of a private and of a company
// vehicle.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "jizdaprint.h"
#include "knihajizdprint.h"
#include "nahradaprint.h"
#include "printtest.h"

namespace {

wxDateTime cas(int den, int hodina, int minuta = 0) {
    return wxDateTime(den, wxDateTime::Oct, 2026, hodina, minuta);
}

std::vector<JizdaRadek> jizdy(int pocet) {
    std::vector<JizdaRadek> r;
    for (int i = 0; i < pocet; ++i)
        r.push_back({cas(1 + i % 28, 8), cas(1 + i % 28, 10, 30), u8("Jan Novák"), u8("Praha - Brno - Praha"),
                     u8("Jednání se zákazníkem"), 1250 + 100 * i, 1250 + 100 * (i + 1)});
    return r;
}

NahradaTisk nahrada(bool soukrome) {
    NahradaTisk n;
    n.firma = u8("Účetní firma");
    n.vozidlo = u8("Škoda Octavia");
    n.rz = "1AB 2345";
    n.druh = u8("Osobní silniční motorové vozidlo");
    n.phm = u8("Benzín automobilový 95 oktanů");
    n.spotreba = 6.5;
    n.soukrome = soukrome;
    n.obdobi = u8("Říjen 2026");
    n.radky = {{cas(14, 8), u8("Praha - Kladno"), u8("Jednání"), 50, soukrome ? 5.9 : 0, 34.7, soukrome ? 407.78 : 112.78},
               {cas(20, 8), u8("Praha - Benešov"), u8("Zakázka"), 100, soukrome ? 5.9 : 0, 34.7, soukrome ? 815.55 : 225.55}};
    n.km = 150;
    n.celkem = soukrome ? 1223.33 : 338.33;
    return n;
}

}  // namespace

struct JizdyPrintCase {
    const char* name;
    std::function<std::unique_ptr<TablePrint>()> print;
    std::vector<const char*> texty;
};
void PrintTo(const JizdyPrintCase& c, std::ostream* os) { *os << c.name; }
class JizdyPrints : public PrintTest, public ::testing::WithParamInterface<JizdyPrintCase> {};

TEST_P(JizdyPrints, PdfHoldsTheSheetAndThePreviewDrawsIt) {
    const JizdyPrintCase& c = GetParam();
    const std::unique_ptr<TablePrint> print = c.print();
    ASSERT_TRUE(print->writePdf(path("jizdy.pdf"), print->printTitle()));
    EXPECT_EQ(pdfPages(path("jizdy.pdf")), 1);
    const wxString text = pdfText(path("jizdy.pdf"));
    for (const char* expected : c.texty) EXPECT_NE(text.Find(u8(expected)), wxNOT_FOUND) << expected << "\n" << text;
    wxString shots;
    const wxString png = wxGetEnv("EVIDA_SCREENSHOTS", &shots) ? shots + "/print_" + c.name + ".png" : wxString();
    EXPECT_GT(previewDarkPixels(*print, png), 1000);
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, JizdyPrints,
    ::testing::Values(
        JizdyPrintCase{"reimbursement",
                       [] { return std::make_unique<NahradaPrint>(nullptr, nahrada(true)); },
                       {"Náhrada za použití soukromého vozidla", "Škoda Octavia", "RZ: 1AB 2345", "Měsíc: Říjen 2026",
                        "Pohonná hmota: Benzín automobilový 95 oktanů, spotřeba 6,5 l na 100 km", "14.10.2026", "Praha - Benešov", "5,9", "34,7", "407,78", "815,55",
                        "Jízd: 2", "150", "1 223,33"}},
        JizdyPrintCase{"company_vehicle",
                       [] { return std::make_unique<NahradaPrint>(nullptr, nahrada(false)); },
                       {"Spotřeba PHM služebního vozidla (informativně)", "338,33", "225,55"}},
        JizdyPrintCase{"book",
                       [] {
                           return std::make_unique<KnihaJizdPrint>(nullptr, u8("Účetní firma"),
                                                                   u8("1AB 2345, Škoda Octavia"),
                                                                   u8("01.10.2026 – 03.10.2026"), jizdy(3));
                       },
                       {"Kniha jízd", "Vozidlo: 1AB 2345, Škoda Octavia", "Období: 01.10.2026 – 03.10.2026",
                        "01.10.2026 8:00", "03.10.2026 10:30", "Jan Novák", "1 250", "1 550", "Jízd: 3", "300"}},
        JizdyPrintCase{"trip",
                       [] {
                           return std::make_unique<JizdaPrint>(nullptr, u8("Účetní firma"),
                                                               u8("1AB 2345, Škoda Octavia"), jizdy(1)[0]);
                       },
                       {"Záznam o jízdě", "1AB 2345, Škoda Octavia", "01.10.2026 8:00", "01.10.2026 10:30",
                        "Praha - Brno - Praha", "Jednání se zákazníkem", "1 250 km", "1 350 km", "100 km",
                        "Podpis řidiče"}}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(PrintTest, LongVehicleBookRunsOverPagesWithTheTotalOnTheLast) {
    KnihaJizdPrint print(nullptr, u8("Účetní firma"), "1AB 2345", "2026", jizdy(90));
    ASSERT_TRUE(print.writePdf(path("kniha.pdf"), ""));
    const int pages = pdfPages(path("kniha.pdf"));
    ASSERT_GT(pages, 1);
    EXPECT_NE(pdfText(path("kniha.pdf"), pages).Find(u8("Jízd: 90")), wxNOT_FOUND);
    EXPECT_NE(pdfText(path("kniha.pdf"), pages).Find(u8("9 000")), wxNOT_FOUND);
    EXPECT_EQ(pdfText(path("kniha.pdf"), 1).Find(u8("Jízd: 90")), wxNOT_FOUND);
}
