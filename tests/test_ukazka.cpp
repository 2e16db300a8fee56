// The demo company: made through the program's own operations, it opens cleanly, its VAT
// returns are what the tax administration accepts, and every balance the books show is the
// one its plan adds up to, recomputed here from the plan alone.
#include <gtest/gtest.h>
#include <wx/filename.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <map>
#include <set>

#include "clock.h"
#include "demo/ukazka.h"
#include "dph/podani.h"
#include "lxsettings.h"
#include "testcompany.h"

namespace {

constexpr int ROK = 2025;

class Ukazka : public TestCompany {
 protected:
    void SetUp() override {
        TestCompany::SetUp();
        lxutils::setToday(isoDatum("2025-06-20"));
        lxSettings::instance()->setDatum(isoDatum("2025-06-20"));
        m_path = m_home + "/ukazka.db";
        wxString chyba;
        ASSERT_TRUE(ukazka::vytvor(*m_model, m_path, ROK, &chyba)) << chyba;
        m_plan = ukazka::plan(ROK);
    }
    void TearDown() override {
        lxutils::setToday(wxDateTime());
        TestCompany::TearDown();
    }

    wxString m_path;
    ukazka::Plan m_plan;
};

double celkemDokladu(const ukazka::Doklad& d) {
    double celkem = 0;
    for (const auto& p : d.polozky) celkem += p.pocet * p.cenamj * (100 + p.sazba) / 100;
    return celkem;
}

double zaplaceno(const ukazka::Doklad& d) {
    double castka = 0;
    for (const auto& p : d.platby) castka += p.castka;
    return castka;
}

// What the plan moves through one register or account, in its own currency (`cizi`: the
// foreign amounts of a EUR register), all years.
double pohybyRegistru(const ukazka::Plan& plan, const wxString& registr, bool cizi) {
    double stav = 0;
    for (const auto& rok : plan.roky) {
        for (const auto& p : rok.pohyby)
            if (p.registr == registr) stav += (p.prijem ? 1 : -1) * (cizi ? p.castkacizi : p.castka);
        for (const auto& d : rok.doklady)
            for (const auto& p : d.platby)
                if (p.registr == registr) stav += (d.prijem() ? 1 : -1) * p.castka * p.kurz;
    }
    return stav;
}

TEST_F(Ukazka, RegisterAndAccountBalancesAreThePlansMovements) {
    ASSERT_EQ(m_model->currentRok(), ROK);
    EXPECT_EQ(m_model->firma().nazev(), u8("Ukázková firma s.r.o."));
    EXPECT_TRUE(m_model->isFirmaPlatce());
    struct Case {
        const char* registr;
        bool banka;
        bool cizi;
    } cases[] = {{"POK1", false, false}, {"POK2", false, true}, {"BU1", true, false}};
    for (const Case& c : cases) {
        const int id = c.banka ? m_model->getBankaIdByZkratka(c.registr) : m_model->getPokladnaIdByZkratka(c.registr);
        ASSERT_GT(id, 0) << c.registr;
        const double stav = c.banka ? m_model->getBankaStav(id) : m_model->getPokladnaStav(id);
        EXPECT_NEAR(stav, pohybyRegistru(m_plan, c.registr, c.cizi), 1e-6) << c.registr;
        // The opening balance of the current year is what the previous year left.
        ukazka::Plan predchozi = m_plan;
        predchozi.roky.pop_back();
        const double zustatek = c.banka ? m_model->getBankaZustatek(id) : m_model->getPokladnaZustatek(id);
        EXPECT_NEAR(zustatek, pohybyRegistru(predchozi, c.registr, c.cizi), 1e-6) << c.registr;
    }
    // The account carries a computed IBAN and its bank's BIC.
    const Banka banka = m_model->getBanka("BU1");
    EXPECT_TRUE(banka.iban().StartsWith("CZ")) << banka.iban();
    EXPECT_TRUE(banka.iban().EndsWith(m_plan.cisloUctu)) << banka.iban();
    EXPECT_FALSE(banka.bic().empty());
}

// Every document has the total of its items and the payments of the plan; paid, partly paid
// and overdue follow from them and from the working date; the open totals are the sums.
TEST_F(Ukazka, DocumentsArePaidPartlyPaidOrOverdueAsPlanned) {
    const wxDateTime dnes = isoDatum("2025-06-20");
    double pohledavky = 0, zavazky = 0;
    int uhrazene = 0, castecne = 0, poSplatnosti = 0;
    for (const auto& rok : m_plan.roky) {
        ASSERT_TRUE(m_model->setCurrentRok(rok.rok));
        std::map<wxString, std::pair<int, bool>> ids;  // by description: id, invoice
        for (const auto& f : m_model->vystavene()) ids[f->popis()] = {f->id(), true};
        for (const auto& f : m_model->prijate()) ids[f->popis()] = {f->id(), true};
        for (const auto& z : m_model->pohledavky()) ids[z->popis()] = {z->id(), false};
        for (const auto& z : m_model->zavazky()) ids[z->popis()] = {z->id(), false};
        ASSERT_EQ(ids.size(), rok.doklady.size());
        for (const auto& d : rok.doklady) {
            ASSERT_TRUE(ids.count(d.popis)) << d.popis;
            const auto [id, faktura] = ids[d.popis];
            const double celkem = celkemDokladu(d), placeno = zaplaceno(d);
            const double ulozeno = faktura ? m_model->getFaktura(id).celkem() : m_model->getZavPoh(id).celkem();
            EXPECT_NEAR(ulozeno, celkem, 1e-6) << d.popis;
            EXPECT_NEAR(faktura ? m_model->uhrazenoByFakturaId(id) : m_model->uhrazenoByZavpohId(id), placeno, 1e-6)
                << d.popis;
            const bool uhrazen = placeno >= celkem - 1e-6;
            EXPECT_EQ(faktura ? m_model->isFakturaUhrazena(id) : m_model->isZavpohUhrazena(id), uhrazen) << d.popis;
            const bool poSplatnostiPlan = !uhrazen && d.splatnost < dnes;
            EXPECT_EQ(faktura ? m_model->isFakturaPosplatnosti(id) : m_model->isZavpohPosplatnosti(id),
                      poSplatnostiPlan)
                << d.popis;
            uhrazene += uhrazen;
            castecne += !uhrazen && placeno > 0;
            poSplatnosti += poSplatnostiPlan;
            if (!uhrazen) (d.prijem() ? pohledavky : zavazky) += (celkem - placeno) * d.kurz;
        }
    }
    // The demo shows each state at least once.
    EXPECT_GT(uhrazene, 0);
    EXPECT_GT(castecne, 0);
    EXPECT_GT(poSplatnosti, 0);
    ASSERT_TRUE(m_model->setCurrentRok(ROK));
    EXPECT_NEAR(m_model->getPohledavkyStav(ROK), pohledavky, 1e-6);
    EXPECT_NEAR(m_model->getZavazkyStav(ROK), zavazky, 1e-6);
}

// Stock by FIFO over the plan's receipts and issues (invoice lines included): what is left
// of each receipt, at its own price.
TEST_F(Ukazka, StockValueIsWhatFifoLeavesOfThePlansMovements) {
    struct Pohyb {
        wxDateTime datum;
        bool prijem;
        double pocet, cena;
    };
    std::map<int, std::vector<Pohyb>> pohyby;
    for (const auto& rok : m_plan.roky) {
        for (const auto& d : rok.doklady)
            for (const auto& p : d.polozky)
                if (p.zasoba >= 0) pohyby[p.zasoba].push_back({d.vystaveni, !d.prijem(), p.pocet, p.cenamj});
        for (const auto& p : rok.sklad) pohyby[p.zasoba].push_back({p.datum, p.prijemka, p.pocet, p.cenamj});
    }
    double ocekavano = 0;
    for (auto& [zasoba, seznam] : pohyby) {
        std::stable_sort(seznam.begin(), seznam.end(),
                         [](const Pohyb& a, const Pohyb& b) { return a.datum < b.datum; });
        std::deque<std::pair<double, double>> vrstvy;  // quantity, price
        for (const Pohyb& p : seznam) {
            if (p.prijem) {
                vrstvy.emplace_back(p.pocet, p.cena);
                continue;
            }
            double zbyva = p.pocet;
            while (zbyva > 1e-9) {
                ASSERT_FALSE(vrstvy.empty()) << "the plan issues more than it has";
                const double vzato = std::min(zbyva, vrstvy.front().first);
                vrstvy.front().first -= vzato;
                zbyva -= vzato;
                if (vrstvy.front().first <= 1e-9) vrstvy.pop_front();
            }
        }
        for (const auto& [pocet, cena] : vrstvy) ocekavano += pocet * cena;
    }
    ASSERT_EQ(pohyby.size(), m_plan.zasoby.size());
    double stav = 0;
    for (const auto& s : m_model->getZasobyStav(isoDatum("2026-01-01"))) stav += s.celkem;
    EXPECT_NEAR(stav, ocekavano, 1e-6);
}

// Straight-line tax depreciation by the law's rates of the first and the further years, each
// year's amount rounded up to whole crowns.
TEST_F(Ukazka, AssetResidualValueFollowsStraightLineDepreciation) {
    const std::map<int, std::pair<double, double>> sazby = {{1, {20, 40}}, {2, {11, 22.25}}};
    std::map<wxString, double> zustatky;
    for (const auto& m : m_plan.majetek) {
        double zustatek = m.cena;
        for (int rok = m.porizen.GetYear(); rok <= ROK; ++rok) {
            const auto& s = sazby.at(m.skupina);
            zustatek -= std::ceil(m.cena * (rok == m.porizen.GetYear() ? s.first : s.second) / 100 - 1e-9);
        }
        zustatky[m.nazev] = zustatek;
    }
    const lxMajetekArray majetky = m_model->majetky();
    ASSERT_EQ(majetky.size(), m_plan.majetek.size());
    for (const auto& m : majetky) {
        ASSERT_TRUE(zustatky.count(m->nazev())) << m->nazev();
        EXPECT_NEAR(m_model->getZustatkovaCenaMajetku(m->id()), zustatky[m->nazev()], 1e-6) << m->nazev();
    }
}

// The whole file passes the full check, and the VAT return of every month with documents
// exports as a filing the official schema accepts, as do the saved filings.
TEST_F(Ukazka, FilePassesTheCheckAndEveryMonthsReturnIsSchemaValid) {
    ASSERT_EQ(m_model->ulozeneDphDp3(ROK, true).size(), m_plan.podaneMesice.size());
    for (const auto& u : m_model->ulozene()) {
        const std::string xml(m_model->ulozeneXml(u->id()).utf8_str());
        const char* xsd = u->typ() == 0 ? "/dphdp3_epo2.xsd" : u->typ() == 2 ? "/dphkh1_epo2.xsd" : "/dphshv_epo2.xsd";
        EXPECT_EQ(lxutils::validateXml(xml, lxutils::xsdDir() + xsd), "") << u->popis();
    }
    m_model->closeDatabase();

    const CliResult check = runCli("check " + m_path);
    EXPECT_EQ(check.status, 0) << check.output;
    EXPECT_NE(check.output.find(u8("Databáze je v pořádku.").utf8_str().data()), std::string::npos) << check.output;

    std::map<int, std::set<int>> mesice;
    for (const auto& rok : m_plan.roky)
        for (const auto& d : rok.doklady) mesice[rok.rok].insert(d.vystaveni.GetMonth() + 1);
    ASSERT_EQ(mesice.size(), 2u);
    for (const auto& [rok, seznam] : mesice) {
        for (int mesic : seznam) {
            const CliResult dp3 =
                runCli(wxString::Format("export dphdp3 %s --rok %d --mesic %d --datum 2025-06-20", m_path, rok, mesic));
            ASSERT_EQ(dp3.status, 0) << rok << "/" << mesic << ": " << dp3.output;
            EXPECT_EQ(lxutils::validateXml(dp3.output, lxutils::xsdDir() + "/dphdp3_epo2.xsd"), "")
                << rok << "/" << mesic;
        }
    }
}

// A second demo over an existing file, in the program or from the command line, is refused
// and leaves the file as it was.
TEST_F(Ukazka, SecondDemoOverAnExistingFileIsRefused) {
    m_model->closeDatabase();
    const std::string predtim = fileBytes(m_path);
    DbModel druhy;
    wxString chyba;
    EXPECT_FALSE(ukazka::vytvor(druhy, m_path, ROK, &chyba));
    EXPECT_EQ(chyba, u8("Soubor už existuje: ") + m_path);
    const CliResult znovu = runCli("demo " + m_path);
    EXPECT_EQ(znovu.status, 1);
    EXPECT_NE(znovu.output.find(u8("Soubor už existuje").utf8_str().data()), std::string::npos) << znovu.output;
    EXPECT_EQ(fileBytes(m_path), predtim);
}

// The command line makes the demo of this year in a new file, which then opens cleanly.
TEST(UkazkaCli, DemoCommandCreatesACheckedCompany) {
    char tmpl[] = "/tmp/evida-demo-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl), nullptr);
    const wxString dir = wxString::FromUTF8(tmpl);
    const wxString home = wxGetenv("HOME");
    wxSetEnv("HOME", dir);
    const wxString path = dir + "/demo.db";
    const CliResult demo = runCli("demo " + path);
    EXPECT_EQ(demo.status, 0) << demo.output;
    EXPECT_NE(demo.output.find(u8("Ukázková firma s.r.o.").utf8_str().data()), std::string::npos) << demo.output;
    const CliResult check = runCli("check " + path);
    EXPECT_EQ(check.status, 0) << check.output;
    const CliResult usage = runCli("demo");
    EXPECT_EQ(usage.status, 2);
    wxSetEnv("HOME", home);
    wxFileName::Rmdir(dir, wxPATH_RMDIR_RECURSIVE);
}

}  // namespace
