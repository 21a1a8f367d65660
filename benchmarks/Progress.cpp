// What a host pays for telling its progress in a tight loop, on a window that is shown.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDialog>
#include <QProgressBar>

#include "desktops/qt/QtDesktop.h"
#include "service/CCommonProgressDialog.h"

namespace orx::bench {
namespace {

constexpr int kValues = 1000000;

/// A progress window on the screen, and the values of the loop, from the start again when they are through.
struct Loop {
  Loop() {
    Progress.Init(0, kValues, 0);
    Progress.Show();
  }
  void Next() { Progress.Value(Value = Value % kValues + 1); }

  qt::QtDesktop Desktop;
  CCommonProgressDialog Progress{Desktop};
  int Value = 0;
};

void SetValue(benchmark::State& state) {
  Loop loop;
  while (state.KeepRunning()) loop.Next();
}

void SetValueAndRepaint(benchmark::State& state) {
  Loop loop;
  while (state.KeepRunning()) {
    loop.Next();
    loop.Progress.Refresh();
  }
}

/// Every value is far from the one before, and every one comes with a text of its own.
void JumpAndTell(benchmark::State& state) {
  Loop loop;
  while (state.KeepRunning()) {
    loop.Progress.Value(loop.Value = kValues / 2 - loop.Value);
    loop.Progress.Message(loop.Value == 0 ? "Reading" : "Writing");
  }
}

void SetNativeValueAndRepaint(benchmark::State& state) {
  qt::QtDesktop desktop;
  QDialog dialog;
  QProgressBar bar(&dialog);
  bar.setRange(0, kValues);
  bar.setGeometry(12, 53, 356, 18);
  dialog.resize(380, 119);
  dialog.show();
  QApplication::processEvents();
  int value = 0;
  while (state.KeepRunning()) {
    bar.setValue(value = value % kValues + 1);
    bar.repaint();
  }
}

/// Repainting each time is what the loop is measured by: at most two hundredths of it.
void Against(const char* row, void (*ours)(benchmark::State&), void (*bare)(benchmark::State&)) {
  const std::string name = row;
  benchmark::RegisterBenchmark((name + "/ours").c_str(), [ours](benchmark::State& state) {
    ours(state);
    state.counters["goal"] = 0.02;
  });
  benchmark::RegisterBenchmark((name + "/bare").c_str(), bare);
}

const bool kProgressRegistered = [] {
  Against("progress, repainted", SetValue, SetValueAndRepaint);
  Against("progress, bare bar", SetValue, SetNativeValueAndRepaint);
  Against("progress, all new", JumpAndTell, SetValueAndRepaint);
  return true;
}();

}  // namespace
}  // namespace orx::bench
