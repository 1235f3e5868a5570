#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>

#include "libraries.h"
#include "library/load.h"
#include "support/test_bundle.h"

// Loading, against reading the same file by lines with the standard library and counting its
// commas.

namespace {

void Load(benchmark::State& state) {
  const support::Folder folder;
  folder.Write(library::kFileName, bench::LibraryOf(static_cast<int>(state.range(0))));
  framework::SpecialFolder::_SetBundlePlatform(
      std::make_unique<support::TestBundle>(folder.Path()));
  std::int64_t lines = 0;
  for (auto _ : state) {
    const auto scales = framework::CreateArray<framework::Ref<pitch::TScale>>(-1);
    const auto begin = std::chrono::steady_clock::now();
    library::Load(scales);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    state.SetIterationTime(time.count());
    lines += scales.LastIndex() + 1;
  }
  framework::SpecialFolder::_SetBundlePlatform(nullptr);
  state.SetItemsProcessed(lines);
}

void LoadBare(benchmark::State& state) {
  const support::Folder folder;
  folder.Write(library::kFileName, bench::LibraryOf(static_cast<int>(state.range(0))));
  std::int64_t lines = 0;
  for (auto _ : state) {
    std::ifstream file(folder.Path(library::kFileName));
    std::int64_t commas = 0;
    std::string line;
    while (std::getline(file, line)) {
      commas += std::ranges::count(line, ',');
      ++lines;
    }
    benchmark::DoNotOptimize(commas);
  }
  state.SetItemsProcessed(lines);
}

BENCHMARK(Load)->UseManualTime()->Arg(0)->Arg(500)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadBare)->Arg(0)->Arg(500)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
