// The contract of lists that stand open, of which one entry or several can be selected.
#include "tests/forms/ListForm.h"

namespace orx::test {
namespace {

using Rows = std::set<int>;

class FormsList : public DesktopTest {
 protected:
  FormsList() {
    form->Show(ShowMode::Modeless);
    user.ClickInto(form->txtOther);
  }
  ~FormsList() override { form->Unload(); }
  Events NewEvents() { return std::exchange(events, {}); }
  /// Brings the focus to a list by Tab, which selects nothing.
  void GoTo(ListBox& list) {
    while (!list.HasFocus()) user.Press(*form, kTab);
  }
  int After(const ListBox& list, int keyCode) {
    user.PressKey(*form, keyCode);
    return list.ListIndex();
  }

  Events events;
  std::shared_ptr<ListForm> form = std::make_shared<ListForm>(desktop(), events);
  ListBox& one = form->lstOne;
  ListBox& some = form->lstSome;
};

TEST_F(FormsList, AClickSelectsOneEntryInPlaceOfTheOther) {
  user.Click(one, 2);
  user.Click(one, 1);
  user.Click(one, 1);
  EXPECT_EQ((Events{"Click(2)", "Click(1)"}), NewEvents());
  EXPECT_EQ(Rows{1}, one.SelectedRows());
  EXPECT_EQ(Rows{1}, user.SeeSelected(one));
  EXPECT_TRUE(one.HasFocus());
}

TEST_F(FormsList, AmongSeveralAClickSelectsAnotherOneOrTakesItBack) {
  user.Click(some, 2);
  user.Click(some, 0);
  EXPECT_EQ((Rows{0, 2}), some.SelectedRows());
  EXPECT_EQ((Rows{0, 2}), user.SeeSelected(some));
  user.Click(some, 2);
  EXPECT_EQ(Rows{0}, some.SelectedRows());
  EXPECT_EQ(Rows{0}, user.SeeSelected(some));
  EXPECT_EQ((Events{"Click(2)", "Click(0)", "Click(2)"}), NewEvents());
}

TEST_F(FormsList, ArrowKeysSelectOneEntryFromTheFirstOn) {
  GoTo(one);
  EXPECT_EQ(-1, one.ListIndex());
  EXPECT_EQ(Rows{}, user.SeeSelected(one));
  EXPECT_EQ(0, After(one, kKeyCodeDown));
  EXPECT_EQ(1, After(one, kKeyCodeDown));
  EXPECT_EQ(0, After(one, kKeyCodeUp));
  EXPECT_EQ(0, After(one, kKeyCodeUp));
  EXPECT_EQ(3, After(one, kKeyCodeEnd));
  EXPECT_EQ(0, After(one, kKeyCodeHome));
  EXPECT_EQ(Rows{0}, user.SeeSelected(one));
}

TEST_F(FormsList, AmongSeveralArrowKeysMoveTheFocusRowAndTheSpaceBarSelects) {
  GoTo(some);
  user.PressKey(*form, kKeyCodeSpace);
  EXPECT_EQ(1, After(some, kKeyCodeDown));
  EXPECT_EQ(2, After(some, kKeyCodeDown));
  EXPECT_EQ(Rows{0}, some.SelectedRows());
  EXPECT_EQ(2, user.See(some).Value);
  user.PressKey(*form, kKeyCodeSpace);
  EXPECT_EQ((Rows{0, 2}), user.SeeSelected(some));
  user.PressKey(*form, kKeyCodeSpace);
  EXPECT_EQ(Rows{0}, user.SeeSelected(some));
}

TEST_F(FormsList, TheSpaceBarSelectsTheEntryThatIsGoneTo) {
  one.ListIndex(1);
  GoTo(one);
  user.PressKey(*form, kKeyCodeSpace);
  EXPECT_EQ(Rows{1}, user.SeeSelected(one));
}

TEST_F(FormsList, TypedLettersGoToTheEntryThatBeginsWithThem) {
  GoTo(one);
  user.TypeCharacters(*form, "be");
  EXPECT_EQ("Beech", user.See(one).Text);
  GoTo(some);
  user.TypeCharacters(*form, "c");
  EXPECT_EQ("Cedar", user.See(some).Text);
  EXPECT_EQ(Rows{}, some.SelectedRows());
}

TEST_F(FormsList, TheSameLetterAgainGoesToTheNextEntry) {
  GoTo(one);
  user.TypeCharacters(*form, "b");
  EXPECT_EQ("Birch", user.See(one).Text);
  user.TypeCharacters(*form, "b");
  EXPECT_EQ("Beech", user.See(one).Text);
}

TEST_F(FormsList, ABlankBelongsToTheLettersBeforeIt) {
  one.AddItem("New Moon");
  one.AddItem("New York");
  GoTo(one);
  user.TypeCharacters(*form, "new y");
  EXPECT_EQ("New York", user.See(one).Text);
}

TEST_F(FormsList, ADoubleClickSelectsAndIsTold) {
  user.DoubleClick(one, 2);
  EXPECT_EQ((Events{"Click(2)", "DblClick(2)"}), NewEvents());
}

TEST_F(FormsList, AmongSeveralADoubleClickLeavesTheEntrySelected) {
  user.DoubleClick(some, 1);
  EXPECT_EQ((Events{"Click(1)", "DblClick(1)"}), NewEvents());
  user.DoubleClick(some, 1);
  EXPECT_EQ((Events{"Click(1)", "Click(1)", "DblClick(1)"}), NewEvents());
  EXPECT_EQ(Rows{1}, user.SeeSelected(some));
}

TEST_F(FormsList, AHandlerOfADoubleClickMayUnloadTheForm) {
  one.DblClick = [this] { form->Unload(); };
  user.DoubleClick(one, 1);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(FormsList, TheProgramSelectsEntries) {
  some.Selected(1, true);
  some.Selected(3, true);
  some.Selected(3, true);
  EXPECT_EQ((Events{"Click(1)", "Click(3)"}), NewEvents());
  EXPECT_EQ((Rows{1, 3}), user.SeeSelected(some));
  some.Selected(1, false);
  EXPECT_EQ(Rows{3}, user.SeeSelected(some));
  one.Selected(2, true);
  EXPECT_EQ(2, one.ListIndex());
  one.Selected(2, false);
  EXPECT_EQ(-1, one.ListIndex());
  EXPECT_EQ(Rows{}, user.SeeSelected(one));
}

TEST_F(FormsList, EntriesThatAreNotThereAreRefused) {
  EXPECT_THROW(some.Selected(4), std::out_of_range);
  EXPECT_THROW(some.Selected(-1, true), std::out_of_range);
  EXPECT_THROW(one.Selected(4, true), std::out_of_range);
  EXPECT_EQ(Rows{}, some.SelectedRows());
}

TEST_F(FormsList, ClearingTakesTheSelectionAlong) {
  some.Selected(1, true);
  events.clear();
  some.Clear();
  for (const char* const name : {"Oak", "Pine"}) some.AddItem(name);
  EXPECT_EQ(Rows{}, some.SelectedRows());
  EXPECT_EQ(Rows{}, user.SeeSelected(some));
  EXPECT_EQ(Events{}, NewEvents());
  user.Click(some, 1);
  EXPECT_EQ(Rows{1}, user.SeeSelected(some));
}

TEST_F(FormsList, PageKeysGoAsFarAsTheListIsHigh) {
  for (int i = 0; i < 200; ++i) one.AddItem("Tree " + std::to_string(i));
  one.ListIndex(0);
  GoTo(one);
  const int page = After(one, kKeyCodePageDown);
  EXPECT_GT(page, 3);
  EXPECT_LT(page, 100);
  EXPECT_TRUE(user.SeesRow(one, page));
  EXPECT_EQ(0, After(one, kKeyCodePageUp));
  EXPECT_TRUE(user.SeesRow(one, 0));
}

TEST_F(FormsList, AFieldThatKeepsTheFocusKeepsEntriesUnselected) {
  form->Refuses = true;
  user.Click(one, 1);
  user.Click(some, 1);
  EXPECT_EQ(Rows{}, user.SeeSelected(one));
  EXPECT_EQ(Rows{}, user.SeeSelected(some));
  EXPECT_EQ(Events{}, NewEvents());
  form->Refuses = false;
}

TEST_F(FormsList, ADisabledListKeepsStill) {
  some.Enabled(false);
  user.Click(some, 1);
  EXPECT_EQ(Rows{}, some.SelectedRows());
  EXPECT_FALSE(user.See(some).Enabled);
}

TEST_F(FormsList, AnEmptyListTakesMouseAndKeys) {
  some.Clear();
  GoTo(some);
  for (const int key : {kKeyCodeDown, kKeyCodeEnd, kKeyCodeSpace, kKeyCodePageUp}) EXPECT_EQ(-1, After(some, key));
  user.TypeCharacters(*form, "a");
  user.ClickInto(some);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsList, OfAHundredThousandEntriesTheLastIsFoundByItsLetter) {
  form->Unload();
  for (int i = 0; i < 100000; ++i) some.AddItem("Entry " + std::to_string(i));
  some.AddItem("Zelkova");
  form->Show(ShowMode::Modeless);
  GoTo(some);
  user.TypeCharacters(*form, "z");
  EXPECT_EQ("Zelkova", user.See(some).Text);
  EXPECT_TRUE(user.SeesRow(some, some.ListIndex()));
  user.PressKey(*form, kKeyCodeSpace);
  EXPECT_EQ(Rows{some.ListCount() - 1}, user.SeeSelected(some));
}

}  // namespace
}  // namespace orx::test
