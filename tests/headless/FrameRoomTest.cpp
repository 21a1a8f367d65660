// How the controls of a form make room for frames that a style draws in another way than designed.
#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Arrangement.h"
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/TabControl.h"
#include "forms/TextBox.h"

namespace orx::test {
namespace {

/// Where the style of these tests draws the lines.
constexpr int kLower = 150;
constexpr int kLine = kFrameLine + kLower;
constexpr int kPlainLine = 45;

class Frames : public testing::Test {
 protected:
  Frames() { desktop.FrameLines(kLine, kPlainLine); }
  static int TopOf(const Form& form, const Control& control) { return FrameRoom(form).PlaceOf(control).Top; }
  static int HeightOf(const Form& form, const Control& control) { return FrameRoom(form).PlaceOf(control).Height; }

  headless::HeadlessDesktop desktop;
};

struct StackedForm : Form {
  explicit StackedForm(Desktop& desktop, BorderStyle border = BorderStyle::Fixed)
      : Form(desktop, "frmStacked", {.Client = {6000, 3600}, .Border = border}) {}
  TextBox txtBeside{*this, "txtBeside", {.Place = {4500, 120, 1200, 1200}}};
  Frame fraFirst{*this, "fraFirst", {.Caption = "First", .Place = {120, 120, 4000, 1200}}};
  TextBox txtInFirst{fraFirst, "txtInFirst", {.Place = {150, 300, 1200, 330}}};
  Frame fraPlain{*this, "fraPlain", {.Place = {120, 1440, 4000, 900}}};
  TextBox txtInPlain{fraPlain, "txtInPlain", {.Place = {150, 150, 1200, 330}}};
  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {120, 3105, 1500, 375}, .Pinned = true}};
};

TEST_F(Frames, ContentsMoveDownWithTheLineOfTheirFrame) {
  const StackedForm form(desktop);
  EXPECT_EQ(300 + kLower, TopOf(form, form.txtInFirst));
  EXPECT_EQ(150 + kPlainLine, TopOf(form, form.txtInPlain));
}

TEST_F(Frames, AFrameGrowsAndWhatIsBelowItMovesDown) {
  const StackedForm form(desktop);
  EXPECT_EQ(120, TopOf(form, form.fraFirst));
  EXPECT_EQ(1200 + kLower, HeightOf(form, form.fraFirst));
  EXPECT_EQ(1440 + kLower, TopOf(form, form.fraPlain));
  EXPECT_EQ(900 + kPlainLine, HeightOf(form, form.fraPlain));
  EXPECT_EQ(3105 + kLower + kPlainLine, TopOf(form, form.cmdOK));
}

TEST_F(Frames, WhatStandsBesideAFrameDownToItsEdgeGrowsAlong) {
  const StackedForm form(desktop);
  EXPECT_EQ(120, TopOf(form, form.txtBeside));
  EXPECT_EQ(1200 + kLower, HeightOf(form, form.txtBeside));
}

TEST_F(Frames, TheWindowGrowsWithItsFrames) {
  StackedForm form(desktop);
  const int frame = desktop.Metrics(BorderStyle::Fixed).Frame.Height;
  EXPECT_EQ((Size{6000, 3600}), form.ClientSize());
  EXPECT_EQ(3600 + kLower + kPlainLine, form.ShownClientSize().Height);
  EXPECT_EQ(form.ShownClientSize().Height + frame, form.Height());
  EXPECT_EQ((3600 + kLower + kPlainLine) / kTwipsPerPixel, Arrange(form, {17, 17}).Window.Height);
}

TEST_F(Frames, StylesThatDrawThemAsDesignedMoveNothing) {
  desktop.FrameLines(kFrameLine, 0);
  const StackedForm form(desktop);
  for (const Control* const control : form.All())
    EXPECT_EQ(control->Place(), FrameRoom(form).PlaceOf(*control)) << control->Name();
  EXPECT_EQ(3600, form.ShownClientSize().Height);
}

TEST_F(Frames, TheSizeThatTheUserGivesAWindowHasTheRoomForItsFramesInIt) {
  StackedForm form(desktop, BorderStyle::Sizable);
  form.UserResize({6000, form.ShownClientSize().Height + 900});
  EXPECT_EQ((Size{6000, 4500}), form.ClientSize());
}

struct NestedForm final : Form {
  explicit NestedForm(Desktop& desktop) : Form(desktop, "frmNested", {.Client = {6000, 3600}}) {}
  Frame fraOuter{*this, "fraOuter", {.Caption = "Outer", .Place = {120, 120, 5700, 2400}}};
  Frame fraOne{fraOuter, "fraOne", {.Caption = "One", .Place = {150, 300, 2000, 900}}};
  Frame fraOther{fraOuter, "fraOther", {.Caption = "Other", .Place = {2400, 300, 2000, 900}}};
  TextBox txtBelow{fraOuter, "txtBelow", {.Place = {150, 1500, 1200, 330}}};
  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {120, 3105, 1500, 375}, .Pinned = true}};
};

TEST_F(Frames, FramesSideBySideTakeTheirRoomOnce) {
  const NestedForm form(desktop);
  for (const Frame* const frame : {&form.fraOne, &form.fraOther}) {
    EXPECT_EQ(300 + kLower, TopOf(form, *frame));
    EXPECT_EQ(900 + kLower, HeightOf(form, *frame));
  }
  EXPECT_EQ(1500 + 2 * kLower, TopOf(form, form.txtBelow));
  EXPECT_EQ(2400 + 2 * kLower, HeightOf(form, form.fraOuter));
}

struct TabbedForm final : Form {
  TabbedForm(Desktop& desktop, int frameHeight, BorderStyle border = BorderStyle::Fixed)
      : Form(desktop, "frmTabbed", {.Client = {6000, 3600}, .Border = border}), FrameHeight(frameHeight) {}
  int FrameHeight;
  TabControl ssTab{*this, "ssTab", {.Place = {120, 120, 5700, 2850}}, {"One", "Two"}};
  Frame fraPage{ssTab.Page(1), "fraPage", {.Caption = "Page", .Place = {120, 120, 5000, FrameHeight}}};
  Button cmdOK{*this, "cmdOK", {.Caption = "&OK", .Place = {120, 3105, 1500, 375}, .Pinned = true}};
};

TEST_F(Frames, APageWithRoomToSpareTakesItsFramesInAndGrowsNot) {
  const TabbedForm form(desktop, 2000);
  EXPECT_EQ(2000 + kLower, HeightOf(form, form.fraPage));
  EXPECT_EQ(2850, HeightOf(form, form.ssTab));
  EXPECT_EQ(3600, form.ShownClientSize().Height);
}

TEST_F(Frames, APageWithoutRoomGrowsWithItsTabControlAndAllItsPages) {
  TabbedForm form(desktop, 2220);
  EXPECT_EQ(2850 + kLower, HeightOf(form, form.ssTab));
  EXPECT_EQ(2400 + kLower, HeightOf(form, form.ssTab.Page(1)));
  EXPECT_EQ(2400 + kLower, HeightOf(form, form.ssTab.Page(0)));
  EXPECT_EQ(3105 + kLower, TopOf(form, form.cmdOK));
}

TEST_F(Frames, PagesThatTheUserSizesKeepTheHeightThatTheyAreGiven) {
  const TabbedForm form(desktop, 2220, BorderStyle::SizableHeight);
  EXPECT_EQ(2220 + kLower, HeightOf(form, form.fraPage));
  EXPECT_EQ(2850, HeightOf(form, form.ssTab));
}

}  // namespace
}  // namespace orx::test
