// Every control: what the program sets is what the user sees, and what the user does is what the program reads.
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

using FormsControl = FormsTest;

TEST_F(FormsControl, TextSetByTheProgramRaisesChangeOnceWhenItDiffers) {
  form->txtName.Text("Rivers");
  form->txtName.Text("Rivers");
  EXPECT_EQ((Events{"txtName_Change"}), NewEvents());
}

TEST_F(FormsControl, TextSetBeforeOrAfterShowingIsSeen) {
  form->txtName.Text("Fl\u00fcsse \U0001F30D");
  ShowForm();
  EXPECT_EQ("Fl\u00fcsse \U0001F30D", user.See(form->txtName).Text);
  form->txtName.Text("Lakes");
  EXPECT_EQ("Lakes", user.See(form->txtName).Text);
}

TEST_F(FormsControl, TypedTextArrivesAndRaisesChange) {
  ShowForm();
  user.Type(form->txtName, "Abc");
  EXPECT_EQ("Abc", form->txtName.Text());
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "txtName_Change") > 0);
}

TEST_F(FormsControl, ATextReplacedByItsOwnChangeHandlerIsSeen) {
  form->txtName.Change = [this] {
    if (form->txtName.Text() == "300") form->txtName.Text("255");
  };
  ShowForm();
  user.Type(form->txtName, "300");
  EXPECT_EQ("255", form->txtName.Text());
  EXPECT_EQ("255", user.See(form->txtName).Text);
}

TEST_F(FormsControl, SelectionIsCountedInCharactersAndCutToTheText) {
  ShowForm();
  form->txtName.Text("a\U0001F30Dbc");
  form->txtName.SelStart(2);
  form->txtName.SelLength(99);
  EXPECT_EQ(2, form->txtName.SelStart());
  EXPECT_EQ(2, form->txtName.SelLength());
}

TEST_F(FormsControl, CheckStateSetByTheProgramRaisesClickAndIsSeen) {
  ShowForm();
  for (const CheckState state : {CheckState::Checked, CheckState::Grayed, CheckState::Unchecked}) {
    form->chkShow.Value(state);
    EXPECT_EQ(static_cast<int>(state), user.See(form->chkShow).Value);
    EXPECT_EQ((Events{"chkShow_Click"}), NewEvents());
  }
}

TEST_F(FormsControl, TickingABoxTogglesItAndGrayedBecomesUnchecked) {
  ShowForm();
  user.Toggle(form->chkShow);
  EXPECT_EQ(CheckState::Checked, form->chkShow.Value());
  user.Toggle(form->chkShow);
  EXPECT_EQ(CheckState::Unchecked, form->chkShow.Value());
  form->chkShow.Value(CheckState::Grayed);
  user.Toggle(form->chkShow);
  EXPECT_EQ(CheckState::Unchecked, form->chkShow.Value());
  EXPECT_EQ(0, user.See(form->chkShow).Value);
}

TEST_F(FormsControl, SelectingAnEntryByProgramRaisesClickWhenItDiffers) {
  ShowForm();
  form->cboKind.ListIndex(1);
  form->cboKind.ListIndex(1);
  EXPECT_EQ((Events{"cboKind_Click"}), NewEvents());
  EXPECT_EQ("Lines", user.See(form->cboKind).Text);
  EXPECT_EQ(10, form->cboKind.SelectedData());
}

TEST_F(FormsControl, ChoosingAnEntryArrives) {
  ShowForm();
  user.Choose(form->cboKind, 2);
  EXPECT_EQ(2, form->cboKind.ListIndex());
  EXPECT_EQ("Areas", form->cboKind.Text());
  EXPECT_EQ((Events{"txtName_LostFocus", "cboKind_GotFocus", "cboKind_Click"}), NewEvents());
}

TEST_F(FormsControl, ListsChangedWhileShownAreSeen) {
  ShowForm();
  form->cboKind.ListIndex(0);
  form->cboKind.List(0, "Marks");
  EXPECT_EQ("Marks", user.See(form->cboKind).Text);
  form->cboKind.Clear();
  EXPECT_EQ((Seen{true, true, false, "", -1}), user.See(form->cboKind));
  form->cboKind.AddItem("Only", 5);
  EXPECT_TRUE(form->cboKind.SelectData(5));
  EXPECT_EQ("Only", user.See(form->cboKind).Text);
}

TEST_F(FormsControl, ListErrorsAreClear) {
  EXPECT_THROW(form->cboKind.ListIndex(3), std::out_of_range);
  EXPECT_THROW(form->cboKind.ListIndex(-2), std::out_of_range);
  EXPECT_THROW(form->cboKind.Text("Surfaces"), std::invalid_argument);
  EXPECT_THROW(static_cast<void>(form->cboKind.ItemData(3)), std::out_of_range);
  EXPECT_FALSE(form->cboKind.SelectData(11));
  EXPECT_EQ(-1, form->cboKind.ListIndex());
}

TEST_F(FormsControl, TypingIntoAnEditableBoxRaisesChangeAndFindsTheEntry) {
  ShowForm();
  user.Type(form->cboFree, "two");
  EXPECT_EQ("two", form->cboFree.Text());
  EXPECT_EQ(1, form->cboFree.ListIndex());
  EXPECT_EQ(0, std::count(events.begin(), events.end(), "cboFree_Click"));
  user.Type(form->cboFree, "three");
  EXPECT_EQ(-1, form->cboFree.ListIndex());
  EXPECT_EQ("three", user.See(form->cboFree).Text);
}

TEST_F(FormsControl, ChoosingInAnEditableBoxRaisesClickAndSetsTheText) {
  ShowForm();
  user.Choose(form->cboFree, 1);
  EXPECT_EQ("two", form->cboFree.Text());
  EXPECT_EQ("two", user.See(form->cboFree).Text);
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cboFree_Click"));
}

TEST_F(FormsControl, TabsSwitchByUserAndProgram) {
  ShowForm();
  EXPECT_TRUE(user.See(form->txtFirst).Visible);
  EXPECT_FALSE(user.See(form->txtSecond).Visible);
  user.SelectTab(form->ssTab, 1);
  EXPECT_EQ(1, form->ssTab.Tab());
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "ssTab_Click(0)"));
  EXPECT_FALSE(user.See(form->txtFirst).Visible);
  EXPECT_TRUE(user.See(form->txtSecond).Visible);
  form->ssTab.Tab(0);
  EXPECT_EQ((std::pair{std::string("First"), 0}), (std::pair{user.See(form->ssTab).Text, user.See(form->ssTab).Value}));
  EXPECT_THROW(form->ssTab.Tab(2), std::out_of_range);
}

TEST_F(FormsControl, TabCaptionsChangeWhileShown) {
  ShowForm();
  form->ssTab.TabCaption(0, "Erste");
  EXPECT_EQ("Erste", user.See(form->ssTab).Text);
}

TEST_F(FormsControl, CaptionEnabledAndVisibleAreSeen) {
  ShowForm();
  form->cmdOK.Caption("&Fine");
  form->cmdOK.Enabled(false);
  form->cmdCancel.Visible(false);
  EXPECT_EQ((Seen{true, false, false, "Fine", 0}), user.See(form->cmdOK));
  EXPECT_FALSE(user.See(form->cmdCancel).Visible);
  form->cmdOK.Enabled(true);
  form->cmdCancel.Visible(true);
  EXPECT_TRUE(user.See(form->cmdOK).Enabled);
  EXPECT_TRUE(user.See(form->cmdCancel).Visible);
}

TEST_F(FormsControl, WhatStandsInADisabledFrameIsDisabled) {
  ShowForm();
  form->fraFirst.Enabled(false);
  EXPECT_FALSE(user.See(form->txtFirst).Enabled);
  form->fraFirst.Visible(false);
  EXPECT_FALSE(user.See(form->txtFirst).Visible);
}

TEST_F(FormsControl, ADisabledButtonDoesNotClick) {
  ShowForm();
  form->cmdOK.Enabled(false);
  user.Click(form->cmdOK);
  user.Press(*form, kEnter);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsControl, ControlsAreFoundByNameInsideContainers) {
  EXPECT_EQ(&form->txtSecond, form->Find("txtSecond"));
  EXPECT_EQ(nullptr, form->Find("txtThird"));
}

TEST_F(FormsControl, AccessibleNamesComeFromCaptionsLabelsAndFrames) {
  EXPECT_EQ("Name:", form->txtName.AccessibleName());
  EXPECT_EQ("Size", form->txtSize.AccessibleName());
  EXPECT_EQ("Show", form->chkShow.AccessibleName());
  EXPECT_EQ("Frame", form->txtFirst.AccessibleName());
}

TEST_F(FormsControl, MnemonicsAreReadFromCaptions) {
  const std::pair<const char*, char32_t> cases[] = {{"&Help", U'h'},
                                                    {"Sa&ve", U'v'},
                                                    {"Plain", 0},
                                                    {"R&&D", 0},
                                                    {"R&&D &X", U'x'},
                                                    {"Ende&", 0},
                                                    {"&\u00c4ndern", U'\u00e4'}};
  for (const auto& [caption, letter] : cases) {
    form->cmdOK.Caption(caption);
    EXPECT_EQ(letter, form->cmdOK.Mnemonic()) << caption;
  }
  EXPECT_EQ("R&D X", WithoutMnemonic("R&&D &X"));
}

}  // namespace
}  // namespace orx::test
