// Loops of hosts that tell their progress as fast as they can.
#pragma once

#include <chrono>
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

/// Fills the bar by a million values, and by far fewer with a repaint after each. What the million have cost of what
/// they would have cost with repaints.
inline double CostOfAMillionValues(CCommonProgressDialog& progress) {
  constexpr int kValues = 1000000;
  constexpr int kStep = 2000;
  progress.Init(0, kValues, 0);
  auto start = std::chrono::steady_clock::now();
  for (int i = 1; i <= kValues; ++i) progress.Value(i);
  const std::chrono::duration<double> plain = std::chrono::steady_clock::now() - start;
  start = std::chrono::steady_clock::now();
  for (int i = kStep; i <= kValues; i += kStep) {
    progress.Value(i);
    progress.Refresh();
  }
  const std::chrono::duration<double> repainted = std::chrono::steady_clock::now() - start;
  return plain.count() / (repainted.count() * kStep);
}

}  // namespace orx::test
