// Pairing a bank statement with the open documents: a statement of thousands of movements
// against 50 000 open documents, at two statement sizes to show that the cost grows with the
// movements and not with movements times documents; and reading such a statement as ABO/GPC.
#include <benchmark/benchmark.h>
#include <wx/init.h>

#include <string>

#include "vypis/gpc.h"
#include "vypis/parovani.h"

namespace {

constexpr int DOKLADU = 50000;

std::vector<vypis::OtevrenyDoklad> doklady() {
    std::vector<vypis::OtevrenyDoklad> d(DOKLADU);
    for (int i = 0; i < DOKLADU; ++i) {
        d[i].druh = i % 3 == 0 ? DruhDokladu::FAKTURA_PRIJATA : DruhDokladu::FAKTURA_VYDANA;
        d[i].id = i + 1;
        d[i].cislo = wxString::Format("FV%08d", i + 1);
        d[i].vs = wxString::Format("%d", 2026000000 + i);
        d[i].zbyva = 100 + (i % 977) * 10.5;
        d[i].protistranaid = i % 500 + 1;
    }
    return d;
}

// Movements of every kind: exact, partial, by account, and unknown.
std::vector<Pohyb> pohyby(int pocet) {
    std::vector<Pohyb> p(pocet);
    for (int i = 0; i < pocet; ++i) {
        const int doklad = (i * 7) % DOKLADU;
        p[i].datum = wxDateTime(15, wxDateTime::Jan, 2026);
        p[i].prijem = doklad % 3 != 0;
        p[i].castka = 100 + (doklad % 977) * 10.5 - (i % 4 == 1 ? 50 : 0);
        p[i].vs = i % 4 == 2 ? wxString() : wxString::Format("%d", 2026000000 + doklad);
        p[i].protiucet = wxString::Format("%d/0800", 1000 + doklad % 500);
    }
    return p;
}

void BM_Parovani(benchmark::State& state) {
    const std::vector<vypis::OtevrenyDoklad> d = doklady();
    vypis::ZnameUcty ucty;
    for (int k = 1; k <= 500; ++k) ucty[wxString::Format("%d/0800", 999 + k)] = {k};
    const std::vector<Pohyb> p = pohyby(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        // The index is built for every statement, so it is part of the measured cost.
        vypis::Parovani parovani(d, ucty, 1);
        int nalezeno = 0;
        for (const Pohyb& pohyb : p) nalezeno += parovani.navrh(pohyb).doklad >= 0;
        benchmark::DoNotOptimize(nalezeno);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Parovani)->Arg(2500)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);

// The movements alone against an index built once: the part that grows with the statement.
void BM_ParovaniPohybu(benchmark::State& state) {
    vypis::ZnameUcty ucty;
    for (int k = 1; k <= 500; ++k) ucty[wxString::Format("%d/0800", 999 + k)] = {k};
    const vypis::Parovani parovani(doklady(), ucty, 1);
    const std::vector<Pohyb> p = pohyby(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        int nalezeno = 0;
        for (const Pohyb& pohyb : p) nalezeno += parovani.navrh(pohyb).doklad >= 0;
        benchmark::DoNotOptimize(nalezeno);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_ParovaniPohybu)->Arg(2500)->Arg(5000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_CteniGpc(benchmark::State& state) {
    std::string s = "074" + std::string(125, '0') + "\r\n";
    s.replace(105, 3, "001");
    s.replace(108, 6, "310126");
    std::string line(128, ' ');
    auto put = [&](size_t pos, const std::string& t) { line.replace(pos - 1, t.size(), t); };
    put(1, "075");
    put(4, "0000192000145399");
    put(20, "0000000123456789");
    put(36, "0000000004711");
    put(49, "000000121000");
    put(61, "2");
    put(62, "0020260001");
    put(72, "0800000308");
    put(82, "0000000000");
    put(92, "150126");
    put(119, "0203");
    put(123, "150126");
    for (int i = 0; i < state.range(0); ++i) s += line + "\r\n";
    for (auto _ : state) benchmark::DoNotOptimize(vypis::cistGpc(s).ok);
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_CteniGpc)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    wxInitializer init;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
