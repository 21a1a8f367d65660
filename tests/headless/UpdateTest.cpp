// The pace at which changes reach the screen, by a clock of the test's own.
#include <gtest/gtest.h>

#include <algorithm>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/Label.h"
#include "forms/ProgressBar.h"
#include "forms/ScreenUpdates.h"

namespace orx::test {
namespace {

using namespace std::chrono_literals;
using Time = ScreenUpdates::Clock::time_point;

class Updates : public testing::Test {
 protected:
  /// True when the change was shown.
  bool Change(Control& control, Aspect aspect, Urgency urgency) {
    if (!updates.Add({&control, aspect}, urgency, now)) return false;
    shown.push_back({now, updates.Take(now)});
    return true;
  }
  bool Step() { return Change(bar, Aspect::Value, Urgency::CanWait); }
  bool Tell() { return Change(label, Aspect::Text, Urgency::AtOnce); }
  /// The most that was shown in any second.
  std::size_t MostInASecond() const {
    std::size_t most = 0;
    for (std::size_t first = 0, behind = 0; first < shown.size(); ++first) {
      while (behind < shown.size() && shown[behind].first - shown[first].first < 1s) ++behind;
      most = std::max(most, behind - first);
    }
    return most;
  }

  headless::HeadlessDesktop desktop;
  Form form{desktop, "frmAny", {}};
  ProgressBar bar{form, "prgAny", {}};
  Label label{form, "lblAny", {}};
  ScreenUpdates updates;
  Time now{1h};
  std::vector<std::pair<Time, std::vector<ScreenUpdates::Update>>> shown;
};

TEST_F(Updates, TheFirstOneIsShownAtOnceAndTheNextOneInItsTurn) {
  EXPECT_TRUE(Step());
  now += 19ms;
  EXPECT_FALSE(Step());
  now += 1ms;
  EXPECT_TRUE(Step());
}

TEST_F(Updates, OfAllKindsAreShownTogetherAndOnce) {
  Step();
  now += 1ms;
  for (int i = 0; i < 3; ++i) {
    Step();
    Change(label, Aspect::Text, Urgency::CanWait);
  }
  EXPECT_FALSE(updates.IsEmpty());
  now += 30ms;
  Step();
  EXPECT_TRUE(updates.IsEmpty());
  EXPECT_EQ((std::vector<ScreenUpdates::Update>{{&bar, Aspect::Value}, {&label, Aspect::Text}}), shown.back().second);
}

TEST_F(Updates, ThatShouldNotWaitComeAtOnceTenTimesASecond) {
  Step();
  now += 1ms;
  EXPECT_TRUE(Tell());
  now += 1ms;
  EXPECT_FALSE(Tell());
  now += 100ms;
  Step();
  now += 1ms;
  EXPECT_TRUE(Tell());
}

TEST_F(Updates, AreNeverMoreThanSixtyInASecondAndNeverLateByMoreThanATurn) {
  // Ten seconds of a busy host, a change each tenth of a millisecond.
  Time waitingSince = now;
  for (int i = 0; i < 100000; ++i, now += 100us) {
    if (updates.IsEmpty()) waitingSince = now;
    if (i % 7 == 0 ? Tell() : Step()) {
      EXPECT_LE(now - waitingSince, ScreenUpdates::kPace);
    }
  }
  EXPECT_LE(MostInASecond(), 60U);
  EXPECT_GE(MostInASecond(), 50U);
}

/// Counts what a native control would be told.
struct CountingPeer final : ControlPeer {
  void Update(Aspect aspect) override { Told.push_back(aspect); }
  void TakeFocus() override {}
  std::vector<Aspect> Told;
};

struct PacedForm final : Form {
  explicit PacedForm(Desktop& desktop) : Form(desktop, "frmPaced", {.Client = {6000, 1500}}) { PaceUpdates(); }
  ProgressBar prgTask{*this, "prgTask", {.Place = {120, 600, 4500, 300}}};
  Button cmdStop{*this, "cmdStop", {.Caption = "Stop"}};
};

TEST(PacedForms, TellTheScreenOfAMillionValuesSixtyTimesASecondAtMost) {
  headless::HeadlessDesktop desktop;
  PacedForm form(desktop);
  CountingPeer peer;
  form.prgTask.Peer(&peer);
  const auto start = ScreenUpdates::Clock::now();
  // Each one would be seen.
  for (int i = 0; i < 1000000; ++i) form.prgTask.Value(i % 2 == 0 ? 25.0F : 75.0F);
  const std::chrono::duration<double> taken = ScreenUpdates::Clock::now() - start;
  form.prgTask.Peer(nullptr);
  EXPECT_GE(peer.Told.size(), 1U);
  EXPECT_LE(static_cast<double>(peer.Told.size()), 1 + 60 * (taken.count() + 1.0 / 60));
}

TEST(PacedForms, TellTheScreenNothingThatCannotBeSeen) {
  headless::HeadlessDesktop desktop;
  PacedForm form(desktop);
  CountingPeer peer;
  form.prgTask.Peer(&peer);
  form.prgTask.Max(1E6F);
  for (int i = 0; i < 3000; ++i) form.prgTask.Value(static_cast<float>(i));
  form.prgTask.Peer(nullptr);
  EXPECT_TRUE(peer.Told.empty());
}

TEST(PacedForms, TellTheScreenAtOnceWhatIsNeitherTextNorValue) {
  headless::HeadlessDesktop desktop;
  PacedForm form(desktop);
  CountingPeer peer;
  form.cmdStop.Peer(&peer);
  form.cmdStop.Caption("Stop now");
  form.cmdStop.Enabled(false);
  form.cmdStop.Enabled(true);
  form.cmdStop.Peer(nullptr);
  EXPECT_EQ((std::vector<Aspect>{Aspect::Text, Aspect::Enabled, Aspect::Enabled}), peer.Told);
}

}  // namespace
}  // namespace orx::test
