// Opening and closing each page dialog through the public service, against a bare window with the same widgets.
#include <benchmark/benchmark.h>

#include "benchmarks/BareDialog.h"
#include "desktops/headless/HeadlessDesktop.h"
#include "desktops/qt/QtDesktop.h"
#include "forms/Button.h"
#include "maplibrary/model/SampleMap.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"

namespace orx::bench {
namespace {

/// What a dialog is opened with, and how it is closed.
struct Host final : DesktopHook {
  explicit Host(Desktop& desktop) : Dialogs(desktop, Pages) { desktop.Hook(this); }

  void ModalRunning(const Modal& modal) override {
    ++Shown;
    if (Seen) Seen(*modal.ShownForm);
    modal.ShownForm->ButtonFor(ButtonRole::Cancel)->UserPress();
  }

  pages::PageFactory Pages;
  std::unique_ptr<maplibrary::Map> Map = maplibrary::MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  CCommonMapDialogs Dialogs;
  std::function<void(const Form&)> Seen;
  int Shown = 0;
};

using Open = void (*)(Host&);

void OpenDialogs(benchmark::State& state, Desktop& desktop, Open open) {
  Host host(desktop);
  while (state.KeepRunning()) open(host);
  desktop.Hook(nullptr);
  if (host.Shown < state.iterations()) state.SkipWithError("A dialog was not shown");
}

void OpenBare(benchmark::State& state, Open open) {
  qt::QtDesktop desktop;
  Host host(desktop);
  // The dialog is up while its bare likeness is measured, so that both have the same controls.
  host.Seen = [&](const Form& form) {
    while (state.KeepRunning()) ShowAndClose(*MakeBareDialog(form));
  };
  open(host);
  desktop.Hook(nullptr);
}

const std::pair<const char*, Open> kDialogs[] = {
    {"frmProperties", [](Host& host) { host.Dialogs.ShowProperties(host.Map->Layer(1)); }},
    {"frmLabels", [](Host& host) { host.Dialogs.ShowLabels(host.Map->Layer(1)); }},
    {"frmCoordinates", [](Host& host) { host.Dialogs.ShowCoordinates(host.Map->Layer(1)); }},
    {"frmLegend", [](Host& host) { host.Dialogs.ShowLegends(host.Map.get()); }}};

const bool kPageDialogsRegistered = [] {
  for (const auto& [name, open] : kDialogs) {
    const std::string row = std::string("open ") + name;
    const Open opener = open;
    benchmark::RegisterBenchmark((row + "/ours").c_str(), [opener](benchmark::State& state) {
      qt::QtDesktop desktop;
      OpenDialogs(state, desktop, opener);
    });
    benchmark::RegisterBenchmark((row + "/bare").c_str(),
                                 [opener](benchmark::State& state) { OpenBare(state, opener); });
    benchmark::RegisterBenchmark((row + "/headless").c_str(), [opener](benchmark::State& state) {
      headless::HeadlessDesktop desktop;
      OpenDialogs(state, desktop, opener);
    });
  }
  return true;
}();

}  // namespace
}  // namespace orx::bench
