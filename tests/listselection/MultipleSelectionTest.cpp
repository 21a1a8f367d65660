// Choosing several entries of a list, its languages, and what fails.
#include "tests/listselection/ListSelectionTest.h"

namespace orx::test {
namespace {

class MultipleSelection : public ListSelectionTest {
 protected:
  Task task{.Several = true};
};

TEST_F(MultipleSelection, TheListOfSeveralIsShownAndHasTheFocus) {
  Ask(task, [this] {
    EXPECT_TRUE(user.See(form->lstMultiSelect).Visible);
    EXPECT_TRUE(user.See(form->lstMultiSelect).Focused);
    EXPECT_FALSE(user.See(form->lstSingleSelect).Visible);
    EXPECT_EQ((std::vector<Control*>{&form->lstMultiSelect, &form->cmdOK, &form->cmdCancel}), form->TabOrder());
    Cancel();
  });
}

TEST_F(MultipleSelection, OKGivesTheHostsIndexesInTheOrderOfTheList) {
  task.Items.LowerBound = 10;
  EXPECT_EQ(3, Ask(task, [this] {
              for (const int row : {3, 0, 2, 1, 2, 2}) user.Click(List(), row);
              user.Click(List(), 1);
              OK();
            }));
  EXPECT_EQ((Indexes{10, 12, 13}), selected);
}

TEST_F(MultipleSelection, TheSpaceBarSelectsAndEnterChooses) {
  EXPECT_EQ(2, Ask(task, [this] {
              user.PressKey(*form, kKeyCodeSpace);
              user.PressKey(*form, kKeyCodeEnd);
              user.PressKey(*form, kKeyCodeSpace);
              user.Press(*form, kEnter);
            }));
  EXPECT_EQ((Indexes{1, 4}), selected);
}

TEST_F(MultipleSelection, ADoubleClickChoosesThatEntryWithTheOthers) {
  EXPECT_EQ(2, Ask(task, [this] {
              user.Click(List(), 0);
              user.DoubleClick(List(), 3);
            }));
  EXPECT_EQ((Indexes{1, 4}), selected);
}

TEST_F(MultipleSelection, NothingSelectedGivesZeroAndLeavesTheArray) {
  EXPECT_EQ(0, Ask(task, [this] { OK(); }));
  EXPECT_EQ(kBefore, selected);
  task.Asks = true;
  EXPECT_EQ(0, Ask(task, [this] { OK(); }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(MultipleSelection, CancelAndTheCloseBoxGiveZeroAndLeaveTheArray) {
  task.ListIndex = 2;
  EXPECT_EQ(0, Ask(task, [this] { Cancel(); }));
  EXPECT_EQ(0, Ask(task, [this] { user.CloseBox(*form); }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(MultipleSelection, TheEntryAtListIndexIsSelectedAtFirst) {
  const struct {
    std::int32_t ListIndex;
    std::set<int> Rows;
  } cases[] = {{0, {}}, {2, {1}}, {4, {3}}, {5, {0}}, {-3, {}}};
  for (const auto& one : cases) {
    task.ListIndex = one.ListIndex;
    Ask(task, [&] {
      EXPECT_EQ(one.Rows, user.SeeSelected(List())) << one.ListIndex;
      Cancel();
    });
  }
}

TEST_F(MultipleSelection, WithoutEntriesOnlyCancelIsLeft) {
  task.Items = {};
  EXPECT_EQ(0, Ask(task, [this] {
              EXPECT_FALSE(user.See(form->lstMultiSelect).Enabled);
              EXPECT_FALSE(user.See(form->cmdOK).Enabled);
              EXPECT_TRUE(user.See(form->cmdCancel).Focused);
              Cancel();
            }));
}

TEST_F(MultipleSelection, WhatIsTakenBackAfterNoIsNotGiven) {
  task.Asks = true;
  EXPECT_EQ(1, Ask(task, [this] {
              for (const int row : {0, 1, 2}) user.Click(List(), row);
              ExpectQuestion(task, MessageAnswer::No);
              OK();
              EXPECT_EQ((std::set<int>{0, 1, 2}), user.SeeSelected(List()));
              for (const int row : {0, 1}) user.Click(List(), row);
              ExpectQuestion(task, MessageAnswer::Yes);
              OK();
            }));
  EXPECT_EQ(Indexes{3}, selected);
}

TEST_F(MultipleSelection, WhenAllIsTakenBackAfterNoNothingIsGiven) {
  task.Asks = true;
  EXPECT_EQ(0, Ask(task, [this] {
              user.Click(List(), 1);
              ExpectQuestion(task, MessageAnswer::No);
              OK();
              user.Click(List(), 1);
              OK();
            }));
  EXPECT_EQ(kBefore, selected);
}

TEST_F(MultipleSelection, YesGivesTheWholeSelection) {
  task.Asks = true;
  EXPECT_EQ(2, Ask(task, [this] {
              user.Click(List(), 1);
              user.Click(List(), 2);
              ExpectQuestion(task, MessageAnswer::Yes);
              OK();
            }));
  EXPECT_EQ((Indexes{2, 3}), selected);
}

TEST_F(MultipleSelection, AHundredThousandEntriesCanBeChosenFrom) {
  task.Items = {};
  for (int i = 0; i < 100000; ++i) task.Items.Items.push_back("Entry " + std::to_string(i));
  task.Items.Items.emplace_back("Zelkova");
  for (const bool several : {true, false}) {
    task.Several = several;
    EXPECT_EQ(1, Ask(task, [this] {
                user.TypeCharacters(*form, "zel");
                EXPECT_TRUE(user.SeesRow(List(), 100000));
                user.PressKey(*form, kKeyCodeSpace);
                OK();
              }));
    EXPECT_EQ(Indexes{100000}, selected);
  }
}

class ListSelectionWords : public ListSelectionTest {
 protected:
  RecordingLanguage words{log};
};

TEST_F(ListSelectionWords, ButtonsAndTitleAreTranslatedAndEntriesAreNot) {
  service.Language(&words);
  const Task task{.ListIndex = 1, .Asks = true};
  EXPECT_EQ(1, Ask(task, [&] {
              EXPECT_EQ("<Select Layer>", user.SeeCaption(*form));
              EXPECT_EQ("<Select Layer>", List().AccessibleName());
              EXPECT_EQ("Roads", user.See(List()).Text);
              script.ExpectMessage({task.Question, "<Select Layer>", MessageIcon::Exclamation, MessageButtons::YesNo},
                                   MessageAnswer::Yes);
              OK();
            }));
  EXPECT_EQ(1, std::count(log.Calls.begin(), log.Calls.end(), "Language.TranslateForm(frmListSelection)"));
}

TEST_F(ListSelectionWords, ANumberUnderTheKeyIsTheHelpTopic) {
  words.Texts["_HelpMapListSelection"] = "4711";
  service.Language(&words);
  Ask({}, [this] {
    EXPECT_EQ(4711, form->HelpContextId());
    Cancel();
  });
  words.Texts["_HelpMapListSelection"] = "none";
  Ask({}, [this] {
    EXPECT_EQ(0, form->HelpContextId());
    Cancel();
  });
}

TEST_F(ListSelectionWords, ALanguageThatFailsWhileTheDialogLoadsIsPassedOver) {
  service.Language(&words);
  log.Failing = {"Language.TranslateForm"};
  Ask({.ListIndex = 2}, [this] {
    EXPECT_EQ("<Select Layer>", user.SeeCaption(*form));
    EXPECT_EQ(1, List().ListIndex());
    Cancel();
  });
  log.Failing = {"Language.TranslateText"};
  Ask({.ListIndex = 2}, [this] {
    EXPECT_EQ("Select Layer", user.SeeCaption(*form));
    EXPECT_EQ(1, List().ListIndex());
    Cancel();
  });
}

TEST_F(ListSelectionWords, ALanguageThatFailsWhenItIsGivenReachesTheHost) {
  service.Language(&words);
  log.Failing = {"Language.EntryCount"};
  EXPECT_THROW(Show({}), RunTimeError);
  EXPECT_EQ(kBefore, selected);
}

TEST_F(ListSelectionWords, AnErrorWhileTheDialogIsOpenReachesTheHostAndTheDialogIsUnloaded) {
  std::weak_ptr<Form> watch;
  script.ExpectForm("frmListSelection", [&](Form& shown) {
    watch = shown.weak_from_this();
    throw RunTimeError(1001, "broken");
  });
  EXPECT_THROW(Show({}), RunTimeError);
  EXPECT_TRUE(watch.expired());
  EXPECT_EQ(kBefore, selected);
}

TEST_F(ListSelectionWords, AnEmptyTitleLeavesTheWindowWithoutOne) {
  Ask({.Caption = ""}, [this] {
    EXPECT_EQ("", user.SeeCaption(*form));
    EXPECT_EQ("Entries", List().AccessibleName());
    Cancel();
  });
}

}  // namespace
}  // namespace orx::test
