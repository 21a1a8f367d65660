// Windows that the user sizes by their lower edge, forms that are disabled for a while, and the order of controls.
#include <algorithm>

#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

/// Takes hold of its lower edge along a strip of three pixels.
struct StripForm final : Form {
  explicit StripForm(Desktop& desktop)
      : Form(desktop, "frmStrip", {.Client = {4500, 3000}, .Border = BorderStyle::SizableHeight}) {}

  int Edge() const { return OwnerDesktop().ToPixels(ClientSize().Height); }
  bool IsOnStrip(Point at) const { return at.Y >= Edge() - 3 && at.Y <= Edge(); }
  void Form_Resize() override { ++Resizes; }
  void Form_MouseMove(Point at) override { OwnerDesktop().Pointer(IsOnStrip(at) ? Pointer::SizeNS : Pointer::Default); }
  void Form_MouseDown(Point at) override {
    Pressed.push_back(Edge() - at.Y);
    if (IsOnStrip(at)) DragBottomEdge();
  }

  int Resizes = 0;
  std::vector<int> Pressed;
  Button cmdOK{*this, "cmdOK", {.Caption = "OK", .Place = {120, 120, 1275, 375}}, ButtonRole::Default};
};

class FormsSizing : public DesktopTest {
 protected:
  FormsSizing() { form->Show(ShowMode::Modeless); }
  ~FormsSizing() override {
    form->Unload();
    desktop().Pointer(Pointer::Default);
  }

  std::shared_ptr<StripForm> form = std::make_shared<StripForm>(desktop());
};

TEST_F(FormsSizing, DraggingTheLowerEdgeChangesTheHeightAlone) {
  const Size before = form->ClientSize();
  const int resizes = form->Resizes;
  user.DragFromBottom(*form, 2, 40);
  EXPECT_EQ(before.Width, form->ClientSize().Width);
  EXPECT_NEAR(before.Height + desktop().ToTwips(40), form->ClientSize().Height, desktop().ToTwips(1));
  EXPECT_GT(form->Resizes, resizes);
}

TEST_F(FormsSizing, TheEdgeGoesUpToo) {
  const Size before = form->ClientSize();
  user.DragFromBottom(*form, 1, -30);
  EXPECT_NEAR(before.Height - desktop().ToTwips(30), form->ClientSize().Height, desktop().ToTwips(1));
}

TEST_F(FormsSizing, ThePressIsToldWithItsPlaceInPixels) {
  user.DragFromBottom(*form, 10, 40);
  EXPECT_EQ(std::vector<int>{10}, form->Pressed);
  EXPECT_EQ((Size{4500, 3000}), form->ClientSize());
}

TEST_F(FormsSizing, ThePointerFollowsTheMouse) {
  script.Pointers.clear();
  user.DragFromBottom(*form, 2, 20);
  EXPECT_GE(std::ranges::count(script.Pointers, Pointer::SizeNS), 1);
  EXPECT_EQ(Pointer::Default, script.Pointers.back());
}

class FormsDisabled : public FormsTest {};

TEST_F(FormsDisabled, ADisabledFormTakesNothingFromTheUserAndLooksAsBefore) {
  ShowForm();
  user.ClickInto(form->txtName);
  events.clear();
  form->Enabled(false);
  user.Click(form->cmdOK);
  user.Type(form->txtSize, "7");
  user.Press(*form, kEnter);
  user.CloseBox(*form);
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_EQ("", user.See(form->txtSize).Text);
  EXPECT_TRUE(form->IsLoaded());
  form->Enabled(true);
  user.Click(form->cmdOK);
  EXPECT_EQ("cmdOK_Click", events.back());
}

TEST_F(FormsDisabled, AFormThatWasDisabledBeforeItIsShownStaysSo) {
  form->Enabled(false);
  ShowForm();
  user.Click(form->cmdOK);
  EXPECT_EQ(Events{}, NewEvents());
}

class FormsOrder : public FormsTest {};

TEST_F(FormsOrder, ControlsPutFirstComeFirstByTab) {
  form->PutFirst({&form->cboKind, &form->txtSize});
  ShowForm();
  EXPECT_TRUE(form->cboKind.HasFocus());
  user.Press(*form, kTab);
  EXPECT_TRUE(user.See(form->txtSize).Focused);
  user.Press(*form, kTab);
  EXPECT_TRUE(user.See(form->txtName).Focused);
}

TEST_F(FormsOrder, ThePagesOfATabControlGrowWithIt) {
  ShowForm();
  form->ssTab.Place({120, 1560, 5000, 2000});
  EXPECT_EQ(form->ssTab.PageSize().Width, form->ssTab.Page(0).Place().Width);
  EXPECT_EQ(form->ssTab.PageSize().Height, form->ssTab.Page(1).Place().Height);
  EXPECT_EQ((Size{5000 - 2 * TabControl::kBorder, 2000 - TabControl::kStrip - TabControl::kBorder}),
            form->ssTab.PageSize());
}

}  // namespace
}  // namespace orx::test
