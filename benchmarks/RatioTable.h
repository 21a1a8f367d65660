// Prints what was measured as ratios to the bare native controls of the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace orx::bench {

/// Names are "row/ours", "row/bare" or "row/headless"; the medians of the repetitions count. A name "row/cell" has a
/// counter "cells" in place of a likeness: its time is told for one of them. A counter "goal" with "row/ours" takes the
/// place of the goal that all rows have.
class RatioTable final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  bool HasFailed() const { return mHasFailed; }

 private:
  std::map<std::string, std::map<std::string, double>> mMedians;
  std::map<std::string, double> mPerCell;
  std::map<std::string, double> mGoals;
  bool mHasFailed = false;
};

}  // namespace orx::bench
