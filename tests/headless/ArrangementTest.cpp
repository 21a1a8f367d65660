// Where the parts and the controls of a form go, worked out without a window.
#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Arrangement.h"
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Pixels.h"
#include "forms/TextBox.h"

namespace orx::test {
namespace {

constexpr int kBar = 17;

/// A form of 400 x 360 pixels whose buttons begin at 308, margin included.
ArrangementInput Input() {
  return {.Client = {6000, 5400},
          .Shown = {6000, 5400},
          .SpareWidth = 3000,
          .PinnedTop = 4620,
          .BodyBottom = 4560,
          .Scale = 1,
          .ScrollBars = {kBar, kBar}};
}

/// On a screen that has room for two thirds of the height.
ArrangementInput LowInput() {
  ArrangementInput input = Input();
  input.Shown.Height = 3600;
  return input;
}

TEST(Arrangement, AFormThatFitsFillsItsWindowAndScrollsNowhere) {
  const Arrangement fits = Arrange(Input());
  EXPECT_EQ((Size{400, 360}), fits.Window);
  EXPECT_EQ((Size{400, 360}), fits.Pane);
  EXPECT_EQ((Size{400, 360}), fits.Body);
  EXPECT_EQ(0, fits.ExtraWidth);
  EXPECT_FALSE(fits.Scrolls());
  EXPECT_EQ((Point{0, 0}), fits.Clamped({50, 50}));
}

TEST(Arrangement, OnALowScreenTheBodyScrollsAboveThePinnedControls) {
  const Arrangement low = Arrange(LowInput());
  EXPECT_TRUE(low.Scrolls());
  EXPECT_EQ((Size{0, 120}), low.Missing);
  EXPECT_EQ((Size{400 + kBar, 240}), low.Window);
  EXPECT_EQ((Size{400 + kBar, 188}), low.Pane);
  EXPECT_EQ((Size{400, 308}), low.Body);
  EXPECT_EQ(188, low.Down.Seen);
  EXPECT_EQ((Point{0, 120}), low.Clamped({0, 1000}));
  EXPECT_EQ((Point{0, 0}), low.Clamped({-5, -5}));
}

TEST(Arrangement, TheBodyReachesBelowItsLowestControl) {
  ArrangementInput input = LowInput();
  input.BodyBottom = 4800;
  EXPECT_EQ((Size{400, 320}), Arrange(input).Body);
  EXPECT_EQ(320 - 188, Arrange(input).Clamped({0, 1000}).Y);
}

TEST(Arrangement, TheScrollBarTakesItsWidthFromTheScreenAsFarAsThatHasAny) {
  ArrangementInput input = LowInput();
  EXPECT_EQ(kBar, Arrange(input).ExtraWidth);
  EXPECT_EQ(400, Arrange(input).Across.Seen);
  input.SpareWidth = 105;
  EXPECT_EQ(7, Arrange(input).ExtraWidth);
  EXPECT_EQ(400 - (kBar - 7), Arrange(input).Across.Seen);
  EXPECT_EQ(188 - kBar, Arrange(input).Down.Seen);
  input.SpareWidth = -300;
  EXPECT_EQ(0, Arrange(input).ExtraWidth);
}

TEST(Arrangement, ANarrowScreenScrollsAcrossAlone) {
  ArrangementInput input = Input();
  input.Shown.Width = 4500;
  const Arrangement narrow = Arrange(input);
  EXPECT_EQ((Size{100, 0}), narrow.Missing);
  EXPECT_EQ((Size{300, 360}), narrow.Window);
  EXPECT_EQ((Size{300, 360}), narrow.Pane);
  EXPECT_EQ((Size{400, 360}), narrow.Body);
  EXPECT_EQ((Point{100, 0}), narrow.Clamped({1000, 1000}));
}

TEST(Arrangement, AWindowLowerThanItsPinnedControlsHasNoPaneLeft) {
  ArrangementInput input = Input();
  input.Shown.Height = 600;
  EXPECT_EQ(0, Arrange(input).Pane.Height);
  EXPECT_EQ(0, Arrange(input).Down.Seen);
}

TEST(Arrangement, AllOfItGrowsWithTheScaleButTheScrollBar) {
  ArrangementInput input = LowInput();
  input.Scale = 1.5;
  const Arrangement large = Arrange(input);
  EXPECT_EQ((Size{600 + kBar, 360}), large.Window);
  EXPECT_EQ((Size{600 + kBar, 282}), large.Pane);
  EXPECT_EQ((Size{600, 462}), large.Body);
}

class Revealing : public testing::Test {
 protected:
  Revealing() { arrangement = Arrange(LowInput()); }
  /// Where the body stands after a place of it, as it lies in the pane, was brought into view.
  int From(int position, int top, int height) const {
    return arrangement.Revealing({10, top, 100, height}, {0, position}).Y;
  }

  Arrangement arrangement;
};

TEST_F(Revealing, WhatIsInViewMovesNothing) {
  EXPECT_EQ(0, From(0, 0, 188));
  EXPECT_EQ(30, From(30, 100, 88));
}

TEST_F(Revealing, WhatIsBelowComesUpToTheMargin) {
  EXPECT_EQ(60 + 4, From(0, 228, 20));
  EXPECT_EQ(10 + 60 + 4, From(10, 228, 20));
}

TEST_F(Revealing, WhatIsAboveComesDownToTheMargin) {
  EXPECT_EQ(100 - 40 - 4, From(100, -40, 20));
}

TEST_F(Revealing, OfWhatDoesNotFitTheBeginningIsShown) {
  EXPECT_EQ(50 - 4, From(0, 50, 300));
}

TEST_F(Revealing, NothingIsScrolledBeyondTheEnds) {
  EXPECT_EQ(120, From(0, 300, 20));
  EXPECT_EQ(0, From(2, -1, 20));
}

TEST(Pixels, NeighboursMeetAtEveryScale) {
  for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
    const Rect left = TwipsToPixels(Rect{10, 10, 115, 115}, scale);
    const Rect right = TwipsToPixels(Rect{125, 10, 115, 115}, scale);
    EXPECT_EQ(left.Right(), right.Left) << scale;
    EXPECT_EQ(100, PixelsToTwips(TwipsToPixels(100 * 15, scale), scale) / 15) << scale;
  }
}

class FormArrangement : public testing::Test {
 protected:
  /// The whole form, or the part of it that a screen with so many twips of height has room for.
  Arrangement On(int height) {
    desktop.ScreenSize({30000, height + desktop.Metrics(BorderStyle::Fixed).Frame.Height});
    return Arrange(form, {kBar, kBar});
  }

  headless::HeadlessDesktop desktop;
  Form form{desktop, "frmAny", {.Client = {6000, 5400}}};
  TextBox txtName{form, "txtName", {.Place = {1440, 120, 2400, 330}}};
  Frame fraAll{form, "fraAll", {.Place = {120, 600, 5700, 3960}}};
  Button cmdInside{fraAll, "cmdInside", {.Place = {150, 300, 1275, 375}, .Pinned = true}};
  Button cmdOK{form, "cmdOK", {.Place = {3120, 4680, 1275, 375}, .Pinned = true}};
};

TEST_F(FormArrangement, FollowsFromItsControlsAndItsScreen) {
  const Arrangement low = On(3600);
  EXPECT_EQ((Size{400 + kBar, 240}), low.Window);
  EXPECT_EQ((Size{400 + kBar, 308 - 120}), low.Pane);
  EXPECT_EQ((Size{400, 308}), low.Body);
  EXPECT_FALSE(On(5400).Scrolls());
}

TEST_F(FormArrangement, WhatIsHiddenTakesNoRoom) {
  fraAll.Place({120, 600, 5700, 4500});
  EXPECT_EQ(344, On(3600).Body.Height);
  fraAll.Visible(false);
  EXPECT_EQ(308, On(3600).Body.Height);
  cmdOK.Visible(false);
  EXPECT_EQ(240, On(3600).Pane.Height);
}

TEST_F(FormArrangement, PinnedControlsMoveUpWithTheLowerEdgeOfTheWindow) {
  EXPECT_EQ((Rect{208, 312, 85, 25}), PixelPlace(cmdOK, On(5400)));
  EXPECT_EQ((Rect{208, 192, 85, 25}), PixelPlace(cmdOK, On(3600)));
}

TEST_F(FormArrangement, PinnedControlsStayWithinANarrowWindow) {
  desktop.ScreenSize({1500, 9000});
  const Rect place = PixelPlace(cmdOK, Arrange(form, {kBar, kBar}));
  EXPECT_EQ(0, place.Left);
  EXPECT_EQ(85, place.Width);
}

TEST_F(FormArrangement, AllOtherControlsKeepTheirPlaceInWhatHoldsThem) {
  for (const int height : {3600, 5400}) {
    EXPECT_EQ((Rect{96, 8, 160, 22}), PixelPlace(txtName, On(height)));
    // Only a control that stands directly in its form can be pinned.
    EXPECT_EQ((Rect{10, 20, 85, 25}), PixelPlace(cmdInside, On(height)));
  }
}

TEST_F(FormArrangement, FormsThatAreReadFromRightToLeftAreMirrored) {
  form.RightToLeft(true);
  EXPECT_EQ((Rect{400 - 96 - 160, 8, 160, 22}), PixelPlace(txtName, On(5400)));
  EXPECT_EQ((Rect{380 - 10 - 85, 20, 85, 25}), PixelPlace(cmdInside, On(5400)));
  EXPECT_EQ((Rect{400 - 208 - 85, 312, 85, 25}), PixelPlace(cmdOK, On(5400)));
}

TEST_F(FormArrangement, MirroredControlsStandBesideTheScrollBarAsTheOthersDo) {
  form.RightToLeft(true);
  EXPECT_EQ((Rect{400 - 96 - 160, 8, 160, 22}), PixelPlace(txtName, On(3600)));
  EXPECT_EQ((Rect{400 - 208 - 85 + kBar, 192, 85, 25}), PixelPlace(cmdOK, On(3600)));
}

}  // namespace
}  // namespace orx::test
