// Runs the benchmarks interleaved, and prints their table of ratios.
#include <vector>

#include "benchmarks/RatioTable.h"

int main(int argc, char** argv) {
  // Repetitions in random order, so that no row has the machine's quiet moments for itself.
  static char repetitions[] = "--benchmark_repetitions=9";
  static char interleaving[] = "--benchmark_enable_random_interleaving=true";
  static char minimum[] = "--benchmark_min_time=0.1";
  std::vector<char*> arguments{argv[0], repetitions, interleaving, minimum};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
  orx::bench::RatioTable table;
  benchmark::RunSpecifiedBenchmarks(&table);
  return table.HasFailed() ? 1 : 0;
}
