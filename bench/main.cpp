#include <benchmark/benchmark.h>
#include <malloc.h>

#include <climits>

int main(int count, char** arguments) {
  // Freed memory stays with the process: what the system takes to give it anew is not measured.
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  mallopt(M_MMAP_THRESHOLD, INT_MAX);
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
