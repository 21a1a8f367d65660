#include "benchmarks/RatioTable.h"

#include <cstdio>

namespace orx::bench {
namespace {

constexpr double kGoal = 1.25;

}  // namespace

void RatioTable::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.error_occurred) {
      std::printf("%s: %s\n", run.run_name.str().c_str(), run.error_message.c_str());
      mHasFailed = true;
    }
    if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
    const std::string name = run.run_name.function_name;
    const std::size_t slash = name.find('/');
    const std::string row = name.substr(0, slash);
    if (const auto cells = run.counters.find("cells"); cells != run.counters.end()) {
      mPerCell[row] = run.GetAdjustedRealTime() / cells->second;
    } else {
      mMedians[row][name.substr(slash + 1)] = run.GetAdjustedRealTime();
      if (const auto goal = run.counters.find("goal"); goal != run.counters.end()) mGoals[row] = goal->second;
    }
  }
}

void RatioTable::Finalize() {
  std::printf("%-22s %14s %14s %7s %7s  %-6s %14s %14s\n", "", "ours (ns)", "bare (ns)", "ratio", "goal", "",
              "headless (ns)", "host (ns)");
  for (const auto& [row, medians] : mMedians) {
    const auto median = [&medians = medians](const char* of) {
      const auto found = medians.find(of);
      return found == medians.end() ? 0.0 : found->second;
    };
    const double ratio = median("ours") / median("bare");
    const auto own = mGoals.find(row);
    const double goal = own == mGoals.end() ? kGoal : own->second;
    std::printf("%-22s %14.0f %14.0f %7.2f %7.2f  %-6s", row.c_str(), median("ours"), median("bare"), ratio, goal,
                ratio <= goal ? "met" : "missed");
    // Without a screen, and what the host's own calls take of that.
    if (medians.contains("headless")) std::printf(" %14.0f", median("headless"));
    if (medians.contains("host")) std::printf(" %14.0f", median("host"));
    std::printf("\n");
  }
  for (const auto& [row, nanoseconds] : mPerCell) std::printf("%-30s %8.1f ns a cell\n", row.c_str(), nanoseconds);
}

}  // namespace orx::bench
