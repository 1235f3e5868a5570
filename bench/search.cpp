#include <benchmark/benchmark.h>

#include <utility>
#include <vector>

#include "libraries.h"
#include "matching/walk.h"
#include "pitch/mask.h"
#include "program.h"

// The search alone: every mask, from every root, against the barest loop that makes the same two
// comparisons for each number of an array.

namespace {

using Program = bench::Program<bench::NoScreen>;

constexpr std::int64_t kMasks = 4096;

template <class Look>
void EachMaskAndRoot(benchmark::State& state, std::int64_t records, const Look& look) {
  for (auto _ : state) {
    for (std::int64_t mask = 0; mask < kMasks; ++mask) {
      for (std::int64_t root = 0; root < pitch::kPositions; ++root) {
        const auto [exact, containing] = look(pitch::Rotate12(mask, root));
        benchmark::DoNotOptimize(exact);
        benchmark::DoNotOptimize(containing);
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * kMasks * pitch::kPositions * records);
}

void Search(benchmark::State& state) {
  Program program(bench::LibraryOf(static_cast<int>(state.range(0))));
  const pitch::Scales& scales = program.Window().Scale();
  EachMaskAndRoot(state, scales.LastIndex() + 1, [&](std::int64_t mask) {
    std::int64_t exact = 0;
    std::int64_t containing = 0;
    matching::Walk(
        scales, mask, [&](const pitch::TScale&) { ++exact; },
        [&](const pitch::TScale&) { ++containing; });
    return std::pair(exact, containing);
  });
}

void SearchBare(benchmark::State& state) {
  Program program(bench::LibraryOf(static_cast<int>(state.range(0))));
  const pitch::Scales& scales = program.Window().Scale();
  std::vector<std::int64_t> notes;
  for (std::int64_t i = 0; i <= scales.LastIndex(); ++i) notes.push_back(scales[i]->Notes());
  EachMaskAndRoot(state, scales.LastIndex() + 1, [&](std::int64_t mask) {
    std::int64_t exact = 0;
    std::int64_t containing = 0;
    for (const std::int64_t scale : notes) {
      if (scale == mask) ++exact;
      if ((scale & mask) == mask && scale != mask) ++containing;
    }
    return std::pair(exact, containing);
  });
}

BENCHMARK(Search)->Arg(0)->Arg(500)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchBare)->Arg(0)->Arg(500)->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

}  // namespace
