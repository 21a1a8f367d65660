// The small helpers: focus mark, select-all, help, point in rectangle.
#include <algorithm>
#include <limits>

#include "forms/PictureBox.h"
#include "service/modMain.h"
#include "tests/support/DesktopTest.h"

namespace orx::test {
namespace {

struct HelperForm final : Form {
  explicit HelperForm(Desktop& desktop)
      : Form(desktop, "frmHelper", {.Caption = "Helper", .Client = {6000, 3000}, .HelpContextId = 4}) {}

  TextBox txtValue{*this, "txtValue", {.Place = {120, 120, 3000, 330}, .AccessibleName = "Value"}};
  PictureBox pctPreview{*this, "pctPreview", {.Place = {120, 600, 1500, 750}}};
};

class Helpers : public DesktopTest {
 protected:
  Helpers() { modMain::HelpFile({}); }
  ~Helpers() override { modMain::HelpFile({}); }

  std::shared_ptr<HelperForm> form = std::make_shared<HelperForm>(desktop());

  Size Pixels() const { return form->pctPreview.PixelSize(); }
  std::vector<Mark> Marks() const { return form->pctPreview.Drawing().Marks(); }
};

TEST_F(Helpers, SelectAllTextSelectsEveryCharacter) {
  form->txtValue.Text("H\u00f6he \u20ac");
  form->txtValue.SelStart(3);
  modMain::SelectAllText(form->txtValue);
  EXPECT_EQ(0, form->txtValue.SelStart());
  EXPECT_EQ(6, form->txtValue.SelLength());
}

TEST_F(Helpers, SelectAllTextOfAnEmptyFieldSelectsNothing) {
  modMain::SelectAllText(form->txtValue);
  EXPECT_EQ(0, form->txtValue.SelLength());
}

TEST_F(Helpers, FocusRectWithInsetZeroFollowsTheOuterEdge) {
  modMain::DrawInsetFocusRect(form->pctPreview, 0);
  EXPECT_EQ((std::vector<Mark>{FocusMark{{0, 0, Pixels().Width, Pixels().Height}}}), Marks());
}

TEST_F(Helpers, FocusRectMovesEveryEdgeInwardsByTheInset) {
  modMain::DrawInsetFocusRect(form->pctPreview, 3);
  EXPECT_EQ((std::vector<Mark>{FocusMark{{3, 3, Pixels().Width - 6, Pixels().Height - 6}}}), Marks());
}

TEST_F(Helpers, FocusRectOfAnEndlessInsetStaysWithinReach) {
  const int most = std::max(Pixels().Width, Pixels().Height);
  for (const int sign : {1, -1}) {
    const int inset = sign * most;
    modMain::DrawInsetFocusRect(form->pctPreview, sign * std::numeric_limits<std::int32_t>::max());
    const std::vector<Mark> expected{
        FocusMark{{inset, inset, Pixels().Width - 2 * inset, Pixels().Height - 2 * inset}}};
    EXPECT_EQ(expected, Marks());
    modMain::DrawInsetFocusRect(form->pctPreview, sign * std::numeric_limits<std::int32_t>::max());
  }
}

TEST_F(Helpers, FocusRectDrawnTwiceIsGone) {
  modMain::DrawInsetFocusRect(form->pctPreview, 2);
  modMain::DrawInsetFocusRect(form->pctPreview, 2);
  EXPECT_TRUE(Marks().empty());
}

TEST_F(Helpers, FocusRectSwitchesAutomaticRedrawOn) {
  form->pctPreview.AutoRedraw(false);
  modMain::DrawInsetFocusRect(form->pctPreview, 2);
  EXPECT_TRUE(form->pctPreview.AutoRedraw());
  EXPECT_EQ(1U, Marks().size());
}

TEST_F(Helpers, HelpWithoutAHelpFileTellsTheUser) {
  script.ExpectMessage(
      {"Unable to display Help. There is no Help associated with this project.", "Help", MessageIcon::Information});
  modMain::ShowHelpFinder(*form, "", 12);
  EXPECT_TRUE(script.Helps.empty());
}

TEST_F(Helpers, HelpOpensTheTopicsOfTheFileAtTheNumber) {
  modMain::ShowHelpFinder(*form, "maps.hlp", 12);
  ASSERT_EQ(1U, script.Helps.size());
  EXPECT_EQ("maps.hlp", script.Helps[0].FileName);
  EXPECT_EQ(11, script.Helps[0].Command);
  EXPECT_EQ(12, script.Helps[0].ContextId);
}

TEST_F(Helpers, HelpIsAskedForTheFormsWindow) {
  form->Show(ShowMode::Modeless);
  modMain::ShowHelpFinder(*form, "maps.hlp", 12);
  ASSERT_EQ(1U, script.Helps.size());
  EXPECT_EQ(form->Window()->NativeHandle(), script.Helps[0].WindowHandle);
  form->Unload();
}

struct PointCase {
  std::int16_t X;
  std::int16_t Y;
  bool Inside;
};

TEST(HelpersPointInRect, BoundsAreInclusive) {
  const PixelEdges edges{10, 20, 30, 40};
  const PointCase cases[] = {{10, 20, true}, {30, 40, true},  {10, 40, true},  {30, 20, true},  {20, 30, true},
                             {9, 30, false}, {31, 30, false}, {20, 19, false}, {20, 41, false}, {-20, -30, false}};
  for (const PointCase& each : cases)
    EXPECT_EQ(each.Inside, modMain::PointInRect(each.X, each.Y, edges)) << each.X << "," << each.Y;
}

TEST(HelpersPointInRect, AnInvertedRectangleHoldsNothing) {
  EXPECT_FALSE(modMain::PointInRect(20, 30, {30, 40, 10, 20}));
}

}  // namespace
}  // namespace orx::test
