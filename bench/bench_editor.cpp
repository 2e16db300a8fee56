// The template editor's per-click and per-paint geometry over a large template: the band
// layout and the hit test must stay linear in the number of elements.
#include <benchmark/benchmark.h>

#include <vector>

#include "editor/editorgeometry.h"
#include "lineelement.h"
#include "rectangleelement.h"

namespace {

// Alternating frames and rules spread over the page.
std::vector<std::unique_ptr<Element>> elements(int n) {
    std::vector<std::unique_ptr<Element>> list;
    for (int i = 0; i < n; ++i) {
        const int y = (i * 7) % 260;
        std::unique_ptr<Element> e;
        if (i % 2)
            e = std::make_unique<RectangleElement>(wxPoint(i % 150, y), wxSize(30, 6));
        else
            e = std::make_unique<LineElement>(wxPoint(0, y), wxPoint(190, y));
        e->section = static_cast<DOCSECTION>(i * DOCSECTION_COUNT / n);
        list.push_back(std::move(e));
    }
    return list;
}

void BM_SectionBands(benchmark::State& state) {
    const auto list = elements(static_cast<int>(state.range(0)));
    std::vector<editorgeo::Placed> placed;
    for (const auto& e : list) placed.push_back({e->section, e->bounds()});
    for (auto _ : state) benchmark::DoNotOptimize(editorgeo::sectionBands(placed, 267));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_SectionBands)->Range(64, 16384)->Complexity(benchmark::oN);

void BM_HitTest(benchmark::State& state) {
    const auto list = elements(static_cast<int>(state.range(0)));
    std::vector<const Element*> pointers;
    for (const auto& e : list) pointers.push_back(e.get());
    for (auto _ : state) benchmark::DoNotOptimize(editorgeo::hitTest(pointers, wxRealPoint(300, 300)));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_HitTest)->Range(64, 16384)->Complexity(benchmark::oN);

}  // namespace

BENCHMARK_MAIN();
