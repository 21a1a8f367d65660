// The progress bar, and the updates of forms whose program is too busy for events.
#include <limits>
#include <stdexcept>
#include <thread>

#include "forms/ScreenUpdates.h"
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

/// A form with a bar, which shows changes at a pace when it is asked to.
struct BarForm final : Form {
  explicit BarForm(Desktop& desktop) : Form(desktop, "frmBar", {.Caption = "Bar", .Client = {6000, 1500}}) {}
  using Form::PaceUpdates;
  Label lblTask{*this, "lblTask", {.Caption = "Task", .Place = {120, 120, 4500, 300}}};
  ProgressBar prgTask{*this, "prgTask", {.Place = {120, 600, 4500, 300}}};
  Button cmdStop{*this, "cmdStop", {.Caption = "Stop", .Place = {120, 1020, 1500, 375}}};
};

class ProgressBars : public DesktopTest {
 protected:
  ~ProgressBars() override { form->Unload(); }
  int Pixels() const { return form->prgTask.Pixels(); }
  int Filled() { return user.See(form->prgTask).Value; }

  std::shared_ptr<BarForm> form = std::make_shared<BarForm>(desktop());
  ProgressBar& bar = form->prgTask;
};

TEST_F(ProgressBars, AreEmptyFromZeroToAHundredAtFirst) {
  EXPECT_EQ(0, bar.Min());
  EXPECT_EQ(100, bar.Max());
  EXPECT_EQ(0, bar.Value());
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(0, Filled());
  EXPECT_TRUE(user.See(bar).Visible);
  EXPECT_EQ("Task", bar.AccessibleName());
}

TEST_F(ProgressBars, FillInProportionAndOnlyAtTheMaximumWholly) {
  form->Show(ShowMode::Modeless);
  bar.Value(50);
  EXPECT_EQ(Pixels() / 2, Filled());
  bar.Value(99.9999F);
  EXPECT_EQ(Pixels() - 1, Filled());
  bar.Value(100);
  EXPECT_EQ(Pixels(), Filled());
  bar.Value(0);
  EXPECT_EQ(0, Filled());
}

TEST_F(ProgressBars, ShowWhatTheyHeldBeforeTheFormWasShown) {
  bar.Value(75);
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(Pixels() * 3 / 4, Filled());
  form->Hide();
  bar.Value(0);
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(0, Filled());
}

TEST_F(ProgressBars, FollowTheirPlaceAndTheirEnds) {
  form->Show(ShowMode::Modeless);
  bar.Value(50);
  bar.Place({120, 600, 2250, 300});
  EXPECT_EQ(Pixels() / 2, Filled());
  bar.Max(200);
  EXPECT_EQ(Pixels() / 4, Filled());
  bar.Min(50);
  EXPECT_EQ(0, Filled());
  bar.Max(50);
  EXPECT_EQ(0, Filled());
}

TEST_F(ProgressBars, CarryWhatANewEndLeavesBehind) {
  bar.Min(200);
  EXPECT_EQ(200, bar.Max());
  EXPECT_EQ(200, bar.Value());
  bar.Max(300);
  bar.Value(290);
  bar.Max(250);
  EXPECT_EQ(250, bar.Value());
}

TEST_F(ProgressBars, RefuseWhatIsNotOnThem) {
  const float infinity = std::numeric_limits<float>::infinity();
  const float nothing = std::numeric_limits<float>::quiet_NaN();
  bar.Value(40);
  for (const float value : {-1.0F, 100.5F, infinity, -infinity, nothing})
    EXPECT_THROW(bar.Value(value), std::out_of_range) << value;
  for (const float value : {-1.0F, -infinity, infinity, nothing}) EXPECT_THROW(bar.Max(value), std::out_of_range);
  for (const float value : {-infinity, infinity, nothing}) EXPECT_THROW(bar.Min(value), std::out_of_range);
  EXPECT_EQ(0, bar.Min());
  EXPECT_EQ(100, bar.Max());
  EXPECT_EQ(40, bar.Value());
  try {
    bar.Value(101);
    ADD_FAILURE();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ("The value 101 does not fit a progress bar from 0 to 100", error.what());
  }
}

TEST_F(ProgressBars, HoldTheGreatestSinglesApart) {
  const float greatest = std::numeric_limits<float>::max();
  bar.Min(-greatest);
  bar.Max(greatest);
  bar.Value(0);
  EXPECT_EQ(Pixels() / 2, bar.FilledPixels());
}

TEST_F(ProgressBars, TakeNoFocus) {
  form->Show(ShowMode::Modeless);
  user.ClickInto(form->cmdStop);
  EXPECT_EQ(std::vector<Control*>{&form->cmdStop}, form->TabOrder());
  EXPECT_FALSE(bar.TakesFocus());
}

TEST_F(ProgressBars, OfAPacedFormComeToWhatTheyHoldInTheEnd) {
  form->PaceUpdates();
  form->Show(ShowMode::Modeless);
  for (int i = 0; i <= 90; ++i) {
    bar.Value(static_cast<float>(i));
    form->lblTask.Caption("Step " + std::to_string(i));
  }
  std::this_thread::sleep_for(ScreenUpdates::kPace + std::chrono::milliseconds(10));
  desktop().ProcessPendingEvents();
  EXPECT_EQ(static_cast<int>(0.9 * Pixels()), Filled());
  EXPECT_EQ("Step 90", user.See(form->lblTask).Text);
}

TEST_F(ProgressBars, OfAPacedFormAreUpToDateAfterARefresh) {
  form->PaceUpdates();
  form->Show(ShowMode::Modeless);
  for (int i = 0; i <= 90; ++i) {
    bar.Value(static_cast<float>(i));
    form->lblTask.Caption("Step " + std::to_string(i));
    if (i % 30 != 0) continue;
    form->Refresh();
    EXPECT_EQ(bar.FilledPixels(), Filled());
    EXPECT_EQ("Step " + std::to_string(i), user.See(form->lblTask).Text);
  }
}

TEST_F(ProgressBars, AFullBarAndTheTextBesideItDoNotWaitForEvents) {
  form->PaceUpdates();
  form->Show(ShowMode::Modeless);
  // Shows at once, so that the next ones come too early for their turn.
  bar.Value(50);
  form->lblTask.Caption("Last step");
  bar.Value(100);
  EXPECT_EQ("Last step", user.See(form->lblTask).Text);
  std::this_thread::sleep_for(ScreenUpdates::kUrgentPace);
  bar.Value(50);
  bar.Value(100);
  EXPECT_EQ(Pixels(), Filled());
}

TEST_F(ProgressBars, OfAPacedFormThatGoesAreLetGo) {
  form->PaceUpdates();
  form->Show(ShowMode::Modeless);
  for (int i = 0; i < 10; ++i) bar.Value(static_cast<float>(10 * i));
  form->Unload();
  std::this_thread::sleep_for(ScreenUpdates::kPace + std::chrono::milliseconds(10));
  desktop().ProcessPendingEvents();
  form->Show(ShowMode::Modeless);
  EXPECT_EQ(bar.FilledPixels(), Filled());
}

TEST_F(ProgressBars, AFormIsNotModelessAboveAModalOne) {
  const auto outer = std::make_shared<BarForm>(desktop());
  script.ExpectForm("frmBar", [&](Form& shown) {
    EXPECT_THROW(form->Show(ShowMode::Modeless), std::logic_error);
    EXPECT_FALSE(form->Visible());
    shown.Hide();
    // The modal form is gone, though whoever shows it is not back yet.
    form->Show(ShowMode::Modeless);
    EXPECT_TRUE(form->Visible());
  });
  outer->Show();
}

}  // namespace
}  // namespace orx::test
