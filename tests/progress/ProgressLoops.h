// Loops of hosts that tell their progress as fast as they can.
#pragma once

#include <algorithm>
#include <chrono>
#include <limits>
#include <string>

#include "forms/Desktop.h"
#include "service/CCommonProgressDialog.h"

namespace orx::test {

/// Jumps over half the bar, with another text each time and all events handled, for so long.
inline void JumpFor(std::chrono::milliseconds time, CCommonProgressDialog& progress, Desktop& desktop) {
  const auto start = std::chrono::steady_clock::now();
  while (std::chrono::steady_clock::now() - start < time) {
    progress.Value(progress.Value() == 25 ? 75 : 25);
    progress.Message(std::to_string(progress.Value()));
    desktop.ProcessPendingEvents();
  }
}

/// The seconds that it takes to fill the bar from `from` to `to` in steps, with a repaint after each or without.
inline double TimeToFill(CCommonProgressDialog& progress, int from, int to, int step, bool isRepainted) {
  const auto start = std::chrono::steady_clock::now();
  for (int i = from + step; i <= to; i += step) {
    progress.Value(i);
    if (isRepainted) progress.Refresh();
  }
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Fills the bar by a million values, and by far fewer with a repaint after each. What the million have cost of what
/// they would have cost with repaints. Both in turn, of which the fastest counts: other programs run meanwhile.
inline double CostOfAMillionValues(CCommonProgressDialog& progress) {
  constexpr int kValues = 1000000;
  constexpr int kTurns = 20;
  constexpr int kTurn = kValues / kTurns;
  constexpr int kStep = 2000;
  progress.Init(0, kValues, 0);
  double plain = std::numeric_limits<double>::infinity();
  double repainted = plain;
  for (int from = 0; from < kValues; from += kTurn) {
    plain = std::min(plain, TimeToFill(progress, from, from + kTurn, 1, false));
    repainted = std::min(repainted, TimeToFill(progress, from, from + kTurn, kStep, true));
  }
  return plain / (repainted * kStep);
}

}  // namespace orx::test
