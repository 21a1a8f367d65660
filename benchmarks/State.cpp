// Setting state before a form is shown: nothing native takes part, and it costs less than the native setter.
#include <benchmark/benchmark.h>

#include <QLineEdit>

#include "desktops/qt/QtDesktop.h"
#include "forms/Form.h"
#include "forms/TextBox.h"

namespace orx::bench {
namespace {

struct OneField final : Form {
  explicit OneField(Desktop& desktop) : Form(desktop, "frmOne", {.Caption = "One", .Client = {3000, 1500}}) {}
  TextBox txtOne{*this, "txtOne", {.Place = {120, 120, 1800, 330}}};
};

const std::string kTexts[] = {"Rivers and lakes", "Roads and railways"};

void OurText(benchmark::State& state) {
  qt::QtDesktop desktop;
  const auto form = std::make_shared<OneField>(desktop);
  std::size_t i = 0;
  while (state.KeepRunning()) form->txtOne.Text(kTexts[++i % 2]);
  if (form->Window() || form->txtOne.Peer()) state.SkipWithError("A native window or control was made");
}

void BareText(benchmark::State& state) {
  qt::QtDesktop desktop;
  QLineEdit edit;
  const QString texts[] = {QString::fromStdString(kTexts[0]), QString::fromStdString(kTexts[1])};
  std::size_t i = 0;
  while (state.KeepRunning()) edit.setText(texts[++i % 2]);
}

BENCHMARK(OurText)->Name("set text unshown/ours");
BENCHMARK(BareText)->Name("set text unshown/bare");

}  // namespace
}  // namespace orx::bench
