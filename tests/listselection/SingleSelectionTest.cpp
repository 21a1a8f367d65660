// Choosing one entry of a list.
#include "tests/listselection/ListSelectionTest.h"

namespace orx::test {
namespace {

using SingleSelection = ListSelectionTest;

TEST_F(SingleSelection, TheListOfOneIsShownWithTheTitleAndHasTheFocus) {
  Ask({.Caption = "Go to a layer"}, [this] {
    EXPECT_EQ("Go to a layer", user.SeeCaption(*form));
    EXPECT_TRUE(user.See(form->lstSingleSelect).Visible);
    EXPECT_TRUE(user.See(form->lstSingleSelect).Focused);
    EXPECT_FALSE(user.See(form->lstMultiSelect).Visible);
    EXPECT_EQ("Go to a layer", form->lstSingleSelect.AccessibleName());
    EXPECT_EQ((std::vector<Control*>{&form->lstSingleSelect, &form->cmdOK, &form->cmdCancel}), form->TabOrder());
    Cancel();
  });
}

TEST_F(SingleSelection, TheWindowStandsInTheMiddleOfTheScreen) {
  Ask({}, [this] {
    const Size screen = desktop().Metrics(form->Border()).Screen;
    EXPECT_NEAR(screen.Width, 2 * form->Left() + form->Width(), 2 * kTwipsPerPixel);
    EXPECT_NEAR(screen.Height, 2 * form->Top() + form->Height(), 2 * kTwipsPerPixel);
    Cancel();
  });
}

TEST_F(SingleSelection, OKGivesTheIndexOfTheHostsArray) {
  EXPECT_EQ(1, Ask({}, [this] {
              user.Click(List(), 2);
              OK();
            }));
  EXPECT_EQ(Indexes{3}, selected);
}

TEST_F(SingleSelection, IndexesAreTheHostsOwnWhateverItsFirstIs) {
  for (const std::int32_t first : {-7, 0, 1, 1000000}) {
    EXPECT_EQ(1, Ask({.Items = {{"a", "b", "c"}, first}}, [this] {
                user.Click(List(), 1);
                OK();
              }));
    EXPECT_EQ(Indexes{first + 1}, selected);
  }
}

TEST_F(SingleSelection, EntriesLoseTheirBlanksAndEmptyOnesAreShownByTheirIndex) {
  EXPECT_EQ(1, Ask({.Items = {{"a", "b", "  Rivers  ", "", "   "}, 1}}, [this] {
              EXPECT_EQ((std::vector<std::string>{"a", "b", "Rivers", "4", "5"}), Entries());
              user.Click(List(), 3);
              EXPECT_EQ("4", user.See(List()).Text);
              OK();
            }));
  EXPECT_EQ(Indexes{4}, selected);
}

TEST_F(SingleSelection, BlanksWithinAnEntryAndOtherWhiteSpaceStay) {
  Ask({.Items = {{" New  York ", "\tTab"}, 0}}, [this] {
    EXPECT_EQ((std::vector<std::string>{"New  York", "\tTab"}), Entries());
    Cancel();
  });
}

TEST_F(SingleSelection, TheEntryAtListIndexIsSelectedAtFirst) {
  const struct {
    std::int32_t ListIndex;
    int Row;
  } cases[] = {{0, -1}, {1, 0}, {3, 2}, {4, 3}, {5, 0}, {2147483647, 0}, {-1, -1}, {-2147483647 - 1, -1}};
  for (const auto& one : cases) {
    Ask({.ListIndex = one.ListIndex}, [&] {
      EXPECT_EQ(one.Row, List().ListIndex()) << one.ListIndex;
      EXPECT_EQ(one.Row < 0 ? std::set<int>() : std::set<int>{one.Row}, user.SeeSelected(List())) << one.ListIndex;
      Cancel();
    });
  }
}

TEST_F(SingleSelection, TheSelectedEntryOfALongListIsInView) {
  Task task{.ListIndex = 900};
  for (int i = 0; i < 1000; ++i) task.Items.Items.push_back("Entry");
  Ask(task, [this] {
    EXPECT_TRUE(user.SeesRow(List(), 899));
    Cancel();
  });
}

TEST_F(SingleSelection, OKWithNothingSelectedGivesOneAndAnEmptyArray) {
  EXPECT_EQ(1, Ask({}, [this] { OK(); }));
  EXPECT_EQ(Indexes{}, selected);
}

TEST_F(SingleSelection, CancelGivesZeroAndLeavesTheArray) {
  EXPECT_EQ(0, Ask({.ListIndex = 2}, [this] { Cancel(); }));
  EXPECT_EQ(kBefore, selected);
  EXPECT_EQ(0, Ask({.ListIndex = 2}, [this] { user.Press(*form, kEscape); }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(SingleSelection, TheCloseBoxIsNoCancelAndHasGatheredNothing) {
  EXPECT_EQ(1, Ask({.ListIndex = 2}, [this] { user.CloseBox(*form); }));
  EXPECT_EQ(Indexes{}, selected);
}

TEST_F(SingleSelection, ADoubleClickChooses) {
  EXPECT_EQ(1, Ask({}, [this] { user.DoubleClick(List(), 1); }));
  EXPECT_EQ(Indexes{2}, selected);
}

TEST_F(SingleSelection, KeysAndEnterChoose) {
  EXPECT_EQ(1, Ask({}, [this] {
              user.PressKey(*form, kKeyCodeDown);
              user.PressKey(*form, kKeyCodeDown);
              user.Press(*form, kEnter);
            }));
  EXPECT_EQ(Indexes{2}, selected);
}

TEST_F(SingleSelection, TypedLettersChoose) {
  EXPECT_EQ(1, Ask({}, [this] {
              user.TypeCharacters(*form, "rel");
              user.Press(*form, kEnter);
            }));
  EXPECT_EQ(Indexes{4}, selected);
}

TEST_F(SingleSelection, WithoutEntriesOnlyCancelIsLeft) {
  EXPECT_EQ(0, Ask({.Items = {}, .ListIndex = 1}, [this] {
              EXPECT_FALSE(user.See(form->lstSingleSelect).Enabled);
              EXPECT_FALSE(form->lstMultiSelect.Enabled());
              EXPECT_FALSE(user.See(form->cmdOK).Enabled);
              EXPECT_TRUE(user.See(form->cmdCancel).Focused);
              user.Press(*form, kEnter);
            }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(SingleSelection, TheQuestionIsAskedAndYesChooses) {
  const Task task{.ListIndex = 1, .Asks = true};
  EXPECT_EQ(1, Ask(task, [&] {
              ExpectQuestion(task, MessageAnswer::Yes);
              OK();
            }));
  EXPECT_EQ(Indexes{1}, selected);
}

TEST_F(SingleSelection, NoLeavesTheDialogOpenAndTheNextOKAsksAgain) {
  const Task task{.ListIndex = 1, .Asks = true};
  EXPECT_EQ(1, Ask(task, [&] {
              ExpectQuestion(task, MessageAnswer::No);
              OK();
              EXPECT_TRUE(form->Visible());
              user.Click(List(), 2);
              ExpectQuestion(task, MessageAnswer::Yes);
              OK();
            }));
  EXPECT_EQ(Indexes{3}, selected);
}

TEST_F(SingleSelection, WhatNoHasRefusedIsGoneWithTheWindow) {
  const Task task{.ListIndex = 1, .Asks = true};
  EXPECT_EQ(1, Ask(task, [&] {
              ExpectQuestion(task, MessageAnswer::No);
              OK();
              user.CloseBox(*form);
            }));
  EXPECT_EQ(Indexes{}, selected);
  selected = kBefore;
  EXPECT_EQ(0, Ask(task, [&] {
              ExpectQuestion(task, MessageAnswer::No);
              OK();
              Cancel();
            }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(SingleSelection, NothingSelectedIsNotAskedAbout) {
  EXPECT_EQ(1, Ask({.Asks = true}, [this] { OK(); }));
  EXPECT_EQ(Indexes{}, selected);
}

TEST_F(SingleSelection, ADoubleClickIsAskedAboutAsWell) {
  const Task task{.Asks = true};
  EXPECT_EQ(1, Ask(task, [&] {
              ExpectQuestion(task, MessageAnswer::No);
              user.DoubleClick(List(), 1);
              EXPECT_TRUE(form->Visible());
              ExpectQuestion(task, MessageAnswer::Yes);
              user.DoubleClick(List(), 3);
            }));
  EXPECT_EQ(Indexes{4}, selected);
}

}  // namespace
}  // namespace orx::test
