// Focus and keys: who gets and loses the focus in which order, what Tab, Enter, Escape and the mnemonics do, and that
// no press gets past a field that refuses its entry.
#include <algorithm>

#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

class FormsFocus : public FormsTest {
 protected:
  /// Makes the size field refuse to be left, with a message, while its text is "bad".
  void RefuseBadSize() {
    form->txtSize.LostFocus = [this] {
      events.push_back("txtSize_LostFocus");
      if (form->txtSize.Text() != "bad") return;
      desktop().ShowMessage(kRefused);
      form->txtSize.SetFocus();
    };
  }
  void TypeBadSize() {
    user.Type(form->txtSize, "bad");
    events.clear();
    script.ExpectMessage(kRefused);
  }
  /// The field got the focus back, and nothing else happened.
  void ExpectRefused() {
    EXPECT_EQ(&form->txtSize, form->ActiveControl());
    EXPECT_TRUE(user.See(form->txtSize).Focused);
    EXPECT_EQ((Events{"txtSize_LostFocus", "txtSize_GotFocus"}), NewEvents());
  }

  const Message kRefused{"No number", "Wrong value", MessageIcon::Exclamation};
};

TEST_F(FormsFocus, ShowingGivesTheFocusToTheFirstTabStop) {
  form->Show(ShowMode::Modeless);
  EXPECT_EQ((Events{"txtName_GotFocus"}), NewEvents());
  EXPECT_TRUE(user.See(form->txtName).Focused);
}

/// A form that begins with what can only be read.
struct LockedForm final : Form {
  explicit LockedForm(Desktop& desktop) : Form(desktop, "frmLocked", {.Client = {3000, 3000}}) {}
  TextBox txtLocked{*this, "txtLocked", {.Place = {120, 120, 1200, 330}}, TextLines::Single, true};
  TextBox txtOpen{*this, "txtOpen", {.Place = {120, 570, 1200, 330}}};
};

TEST_F(FormsFocus, ShowingGivesTheFocusToNoLockedFieldUnlessThereIsNothingElse) {
  const auto locked = std::make_shared<LockedForm>(desktop());
  locked->Show(ShowMode::Modeless);
  EXPECT_TRUE(user.See(locked->txtOpen).Focused);
  user.Press(*locked, kTab);
  EXPECT_TRUE(user.See(locked->txtLocked).Focused);
  locked->Unload();
  locked->txtOpen.Enabled(false);
  locked->Show(ShowMode::Modeless);
  EXPECT_TRUE(user.See(locked->txtLocked).Focused);
  locked->Unload();
}

TEST_F(FormsFocus, FocusSetBeforeShowingIsKept) {
  form->cboKind.SetFocus();
  form->Show(ShowMode::Modeless);
  EXPECT_EQ((Events{"cboKind_GotFocus"}), NewEvents());
  EXPECT_TRUE(user.See(form->cboKind).Focused);
}

TEST_F(FormsFocus, ClickingIntoAFieldRaisesLostFocusThenGotFocus) {
  ShowForm();
  user.ClickInto(form->txtSize);
  EXPECT_EQ((Events{"txtName_LostFocus", "txtSize_GotFocus"}), NewEvents());
  EXPECT_TRUE(user.See(form->txtSize).Focused);
}

TEST_F(FormsFocus, SettingTheFocusTwiceRaisesNothingMore) {
  ShowForm();
  form->txtSize.SetFocus();
  events.clear();
  form->txtSize.SetFocus();
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsFocus, TabWalksThroughReachableControlsAndRound) {
  ShowForm();
  form->txtSize.Enabled(false);
  Events walk;
  for (int i = 0; i < 8; ++i) {
    user.Press(*form, kTab);
    walk.push_back(form->ActiveControl()->Name());
  }
  EXPECT_EQ((Events{"chkShow", "cboKind", "cboFree", "ssTab", "txtFirst", "cmdOK", "cmdCancel", "txtName"}), walk);
}

TEST_F(FormsFocus, ShiftTabWalksBackwards) {
  ShowForm();
  Events walk;
  for (int i = 0; i < 3; ++i) {
    user.Press(*form, kShiftTab);
    walk.push_back(form->ActiveControl()->Name());
    EXPECT_TRUE(user.See(*form->ActiveControl()).Focused);
  }
  EXPECT_EQ((Events{"cmdCancel", "cmdOK", "txtFirst"}), walk);
}

TEST_F(FormsFocus, EnterPressesTheDefaultButtonAfterTheFieldHasLostTheFocus) {
  ShowForm();
  user.Press(*form, kEnter);
  EXPECT_EQ((Events{"txtName_LostFocus", "cmdOK_GotFocus", "cmdOK_Click"}), NewEvents());
}

TEST_F(FormsFocus, EnterOnAnotherButtonPressesThatButton) {
  ShowForm();
  form->cmdCancel.SetFocus();
  events.clear();
  user.Press(*form, kEnter);
  EXPECT_EQ((Events{"cmdCancel_Click"}), NewEvents());
}

TEST_F(FormsFocus, EscapePressesTheCancelButton) {
  ShowForm();
  user.Press(*form, kEscape);
  EXPECT_EQ((Events{"txtName_LostFocus", "cmdCancel_GotFocus", "cmdCancel_Click"}), NewEvents());
  EXPECT_TRUE(form->Visible());
}

TEST_F(FormsFocus, MnemonicsPressTickAndLead) {
  ShowForm();
  user.Press(*form, AltKey(U's'));
  EXPECT_TRUE(form->chkShow.IsChecked());
  EXPECT_TRUE(form->chkShow.HasFocus());
  user.Press(*form, AltKey(U'n'));
  EXPECT_TRUE(form->txtName.HasFocus());
  user.Press(*form, AltKey(U'm'));
  EXPECT_TRUE(form->txtFirst.HasFocus());
  events.clear();
  user.Press(*form, AltKey(U'c'));
  EXPECT_EQ((Events{"txtFirst_LostFocus", "cmdCancel_GotFocus", "cmdCancel_Click"}), NewEvents());
}

TEST_F(FormsFocus, AMnemonicOfSeveralControlsMovesTheFocusAmongThemAndPressesNone) {
  form->chkShow.Caption("&Check");
  ShowForm();
  events.clear();
  for (int round = 0; round < 2; ++round) {
    user.Press(*form, AltKey(U'c'));
    EXPECT_TRUE(user.See(form->chkShow).Focused) << round;
    user.Press(*form, AltKey(U'c'));
    EXPECT_TRUE(user.See(form->cmdCancel).Focused) << round;
  }
  EXPECT_FALSE(form->chkShow.IsChecked());
  EXPECT_EQ(0, std::ranges::count(events, "cmdCancel_Click"));
  // Where the others cannot be reached, it is the letter of one.
  form->chkShow.Enabled(false);
  user.Press(*form, AltKey(U'c'));
  EXPECT_EQ(1, std::ranges::count(events, "cmdCancel_Click"));
}

TEST_F(FormsFocus, CtrlPageDownAndPageUpTurnTheTabsFromWhereverTheFocusIs) {
  ShowForm();
  user.ClickInto(form->txtSize);
  for (const auto& [key, tab] : {std::pair{Key::NextTab, 1}, {Key::NextTab, 0}, {Key::PreviousTab, 1}}) {
    user.Press(*form, {key});
    EXPECT_EQ(tab, user.See(form->ssTab).Value);
    // As when the tab is clicked.
    EXPECT_TRUE(user.See(form->ssTab).Focused);
  }
  user.ClickInto(form->txtSecond);
  user.Press(*form, {Key::NextTab});
  EXPECT_EQ(0, form->ssTab.Tab());
  EXPECT_TRUE(user.See(form->ssTab).Focused);
  form->ssTab.Enabled(false);
  user.Press(*form, {Key::NextTab});
  EXPECT_EQ(0, form->ssTab.Tab());
}

TEST_F(FormsFocus, MnemonicsOfHiddenAndDisabledControlsDoNothing) {
  ShowForm();
  form->cmdCancel.Visible(false);
  form->chkShow.Enabled(false);
  user.Press(*form, AltKey(U'c'));
  user.Press(*form, AltKey(U's'));
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_FALSE(form->chkShow.IsChecked());
}

TEST_F(FormsFocus, ARefusedEntryDropsAClick) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.Click(form->cmdOK);
  ExpectRefused();
}

TEST_F(FormsFocus, ARefusedEntryDropsEnter) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.Press(*form, kEnter);
  ExpectRefused();
}

TEST_F(FormsFocus, ARefusedEntryDropsAMnemonic) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.Press(*form, AltKey(U'o'));
  ExpectRefused();
}

TEST_F(FormsFocus, ARefusedEntryDropsATick) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.Toggle(form->chkShow);
  ExpectRefused();
  EXPECT_EQ(CheckState::Unchecked, form->chkShow.Value());
  EXPECT_EQ(0, user.See(form->chkShow).Value);
}

TEST_F(FormsFocus, ARefusedEntryKeepsTheTab) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.SelectTab(form->ssTab, 1);
  ExpectRefused();
  EXPECT_EQ(0, form->ssTab.Tab());
  EXPECT_EQ(0, user.See(form->ssTab).Value);
}

TEST_F(FormsFocus, ARefusedEntryKeepsTheFocusOnTab) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.Press(*form, kTab);
  ExpectRefused();
}

TEST_F(FormsFocus, ARefusedEntryKeepsTheFocusWhenAnotherFieldIsClicked) {
  RefuseBadSize();
  ShowForm();
  TypeBadSize();
  user.ClickInto(form->txtName);
  ExpectRefused();
}

TEST_F(FormsFocus, AControlThatCannotBeReachedAnyMoreLetsTheFocusGo) {
  ShowForm();
  form->txtSize.SetFocus();
  form->txtSize.Enabled(false);
  EXPECT_EQ(&form->chkShow, form->ActiveControl());
  EXPECT_TRUE(user.See(form->chkShow).Focused);
}

TEST_F(FormsFocus, SelectionMadeInGotFocusIsKept) {
  form->txtSize.Text("12.5");
  form->txtSize.GotFocus = [this] { form->txtSize.SelStart(0), form->txtSize.SelLength(4); };
  ShowForm();
  user.Press(*form, kTab);
  EXPECT_EQ(0, form->txtSize.SelStart());
  EXPECT_EQ(4, form->txtSize.SelLength());
}

}  // namespace
}  // namespace orx::test
