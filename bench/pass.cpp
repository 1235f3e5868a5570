#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include "framework/values/text.h"
#include "libraries.h"
#include "matching/walk.h"
#include "pitch/mask.h"
#include "program.h"

// A whole pass over all roots with its rows, against the barest loop over an array of numbers and
// names, which at a hit only appends the same texts to a plain array.

namespace {

using framework::String;
using Program = bench::Program<bench::NoScreen>;

enum Answer { kSmallest, kMedian, kLargest };

std::int64_t RowsOf(const pitch::Scales& scales, std::int64_t mask) {
  std::int64_t rows = 0;
  const auto count = [&](const pitch::TScale&) { ++rows; };
  for (std::int64_t root = 0; root < pitch::kPositions; ++root) {
    matching::Walk(scales, pitch::Rotate12(mask, root), count, count);
  }
  return rows;
}

/// The ticks that have that answer, among all that there are.
std::int64_t MaskOf(Answer answer, const pitch::Scales& scales) {
  std::vector<std::pair<std::int64_t, std::int64_t>> answers;
  for (std::int64_t mask = 0; mask < 4096; ++mask) answers.emplace_back(RowsOf(scales, mask), mask);
  std::ranges::sort(answers);
  const std::size_t last = answers.size() - 1;
  return answers[answer == kSmallest ? 0 : answer == kMedian ? last / 2 : last].second;
}

std::int64_t MaskOf(const benchmark::State& state, const pitch::Scales& scales) {
  return MaskOf(static_cast<Answer>(state.range(1)), scales);
}

void SayRows(benchmark::State& state, std::int64_t rows) {
  state.counters["rows"] = static_cast<double>(rows);
}

void Pass(benchmark::State& state) {
  Program program(bench::LibraryOf(static_cast<int>(state.range(0))));
  window::wdwMainClass& window = program.Window();
  const std::int64_t mask = MaskOf(state, window.Scale());
  for (std::int64_t i = 0; i < pitch::kPositions; ++i) {
    if ((mask & (2048 >> i)) != 0) window.cbScale(i)->Toggle();
  }
  window.cbOther()->Toggle();
  for (auto _ : state) window.CompareScales();
  SayRows(state, window.lbExact()->LastIndex() + window.lbContaining()->LastIndex() + 2);
}

struct Record {
  std::int64_t notes;
  String bank;
  String scale;
};

void PassBare(benchmark::State& state) {
  Program program(bench::LibraryOf(static_cast<int>(state.range(0))));
  const pitch::Scales& scales = program.Window().Scale();
  std::vector<Record> records;
  for (std::int64_t i = 0; i <= scales.LastIndex(); ++i) {
    records.push_back({scales[i]->Notes(), scales[i]->Bank(), scales[i]->Scale()});
  }
  std::vector<String> roots;
  for (std::int64_t i = 0; i < pitch::kPositions; ++i) {
    roots.push_back(program.Window().cbScale(i)->Caption());
  }
  const std::int64_t ticked = MaskOf(state, scales);
  std::vector<String> exact;
  std::vector<String> containing;
  for (auto _ : state) {
    exact.clear();
    containing.clear();
    for (std::int64_t root = 0; root < pitch::kPositions; ++root) {
      const std::int64_t mask = pitch::Rotate12(ticked, root);
      const String& root_name = roots[static_cast<std::size_t>(root)];
      for (const Record& record : records) {
        if (record.notes == mask) {
          exact.push_back(record.bank);
          exact.push_back(record.scale);
          exact.push_back(root_name);
        }
        if ((record.notes & mask) == mask && record.notes != mask) {
          containing.push_back(record.bank);
          containing.push_back(record.scale);
          containing.push_back(root_name);
          containing.push_back(framework::Str(record.notes));
        }
      }
    }
  }
  SayRows(state, static_cast<std::int64_t>(exact.size() / 3 + containing.size() / 4));
}

BENCHMARK(Pass)->ArgsProduct({{0, 500, 5000, 50000}, {kSmallest, kMedian, kLargest}});
BENCHMARK(PassBare)->ArgsProduct({{0, 500, 5000, 50000}, {kSmallest, kMedian, kLargest}});

}  // namespace
