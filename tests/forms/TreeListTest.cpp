// The contract of tree lists: what rows show, and what mouse, keys and typed letters do.
#include "tests/forms/SampleForm.h"

namespace orx::test {
namespace {

struct TreeForm final : Form {
  TreeForm(Desktop& desktop, Events& log)
      : Form(desktop, "frmTree", {.Caption = "Tree", .Client = {6000, 4200}}), Log(log) {
    Fill();
    sftRows.Click = [this] { Log.push_back("Click(" + std::to_string(sftRows.ListIndex()) + ")"); };
    sftRows.KeyDown = [this](int code) {
      Log.push_back("KeyDown(" + std::to_string(code) + ") at " + std::to_string(sftRows.ListIndex()));
    };
    txtOther.LostFocus = [this] {
      if (Refuses) txtOther.SetFocus();
    };
  }

  void Fill() {
    sftRows.AddRow({"World", 0, 0, "Map", true});
    sftRows.AddRow({"Alps", 1, 1, "Layer"});
    sftRows.AddRow({"North", 2, 1, "Tile"});
    sftRows.AddRow({"South", 2, 2, "Tile"});
    sftRows.AddRow({"Bogs", 1, 2, "Layer"});
    sftRows.AddRow({"Brooks", 1, 3, "Layer"});
  }

  Events& Log;
  bool Refuses = false;
  TextBox txtOther{*this, "txtOther", {.Place = {120, 120, 1800, 330}, .AccessibleName = "Other"}};
  TreeList sftRows{*this, "sftRows", {.Place = {120, 600, 2400, 1800}, .AccessibleName = "Rows"}};
};

class FormsTree : public DesktopTest {
 protected:
  FormsTree() {
    form->Show(ShowMode::Modeless);
    user.ClickInto(form->txtOther);
  }
  ~FormsTree() override { form->Unload(); }
  Events NewEvents() { return std::exchange(events, {}); }
  /// Selects by program and forgets the event of it.
  void Select(int row) {
    user.ClickInto(form->sftRows);
    list.ListIndex(row);
    events.clear();
  }
  int After(int keyCode) {
    user.PressKey(*form, keyCode);
    return user.See(list).Value;
  }

  Events events;
  std::shared_ptr<TreeForm> form = std::make_shared<TreeForm>(desktop(), events);
  TreeList& list = form->sftRows;
};

TEST_F(FormsTree, ShowsTheRowsThatAreNotFoldedAway) {
  EXPECT_EQ((Events{"World", "Alps", "Bogs", "Brooks"}), user.SeeRows(list));
  list.Expand(1, true);
  EXPECT_EQ((Events{"World", "Alps", "North", "South", "Bogs", "Brooks"}), user.SeeRows(list));
  list.Expand(0, false);
  EXPECT_EQ((Events{"World"}), user.SeeRows(list));
}

TEST_F(FormsTree, RowsKnowTheirPlaceInTheTree) {
  EXPECT_EQ(6, list.ListCount());
  EXPECT_TRUE(list.HasChildren(0));
  EXPECT_TRUE(list.HasChildren(1));
  EXPECT_FALSE(list.HasChildren(3));
  EXPECT_FALSE(list.HasChildren(5));
  EXPECT_EQ(-1, list.ParentOf(0));
  EXPECT_EQ(0, list.ParentOf(4));
  EXPECT_EQ(1, list.ParentOf(3));
  EXPECT_EQ(2, list.PositionOf(4));
  EXPECT_EQ(-1, list.PositionOf(2));
  EXPECT_EQ(4, list.ShownRow(2));
  EXPECT_THROW(list.Row(6), std::out_of_range);
  EXPECT_THROW(list.ListIndex(6), std::out_of_range);
}

TEST_F(FormsTree, AClickSelectsAndOneOnTheSelectedRowIsToldToo) {
  user.Click(list, 4);
  user.Click(list, 4);
  EXPECT_EQ((Events{"Click(4)", "Click(4)"}), NewEvents());
  const Seen seen = user.See(list);
  EXPECT_EQ("Bogs", seen.Text);
  EXPECT_EQ(4, seen.Value);
  EXPECT_TRUE(seen.Focused);
}

TEST_F(FormsTree, ARowSelectedByProgramRaisesClickOnceAndIsUnfolded) {
  list.ListIndex(3);
  list.ListIndex(3);
  EXPECT_EQ(Events{"Click(3)"}, NewEvents());
  EXPECT_EQ("South", user.See(list).Text);
  EXPECT_EQ(6U, user.SeeRows(list).size());
  list.ListIndex(-1);
  EXPECT_EQ(-1, user.See(list).Value);
}

TEST_F(FormsTree, AClickOnTheMarkFoldsAndSelectsNothing) {
  user.Fold(list, 1);
  EXPECT_EQ(6U, user.SeeRows(list).size());
  user.Fold(list, 1);
  EXPECT_EQ(4U, user.SeeRows(list).size());
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_TRUE(list.HasFocus());
}

TEST_F(FormsTree, FoldingTheSelectedRowAwaySelectsWhatHoldsIt) {
  list.ListIndex(2);
  events.clear();
  user.Fold(list, 1);
  EXPECT_EQ(Events{"Click(1)"}, NewEvents());
  EXPECT_EQ("Alps", user.See(list).Text);
}

TEST_F(FormsTree, KeysGoThroughTheRowsThatCanBeSeen) {
  Select(0);
  EXPECT_EQ(1, After(kKeyCodeDown));
  EXPECT_EQ(4, After(kKeyCodeDown));
  EXPECT_EQ(1, After(kKeyCodeUp));
  EXPECT_EQ(5, After(kKeyCodeEnd));
  EXPECT_EQ(5, After(kKeyCodeDown));
  EXPECT_EQ(0, After(kKeyCodeHome));
  EXPECT_EQ(0, After(kKeyCodeUp));
  EXPECT_EQ((Events{"KeyDown(40) at 1", "KeyDown(40) at 4", "KeyDown(38) at 1", "KeyDown(35) at 5", "KeyDown(40) at 5",
                    "KeyDown(36) at 0", "KeyDown(38) at 0"}),
            NewEvents());
}

TEST_F(FormsTree, LeftAndRightFoldAndGoThroughTheLevels) {
  Select(1);
  EXPECT_EQ(1, After(kKeyCodeRight));
  EXPECT_TRUE(list.Row(1).Expanded);
  EXPECT_EQ(2, After(kKeyCodeRight));
  EXPECT_EQ(2, After(kKeyCodeRight));
  EXPECT_EQ(1, After(kKeyCodeLeft));
  EXPECT_EQ(1, After(kKeyCodeLeft));
  EXPECT_FALSE(list.Row(1).Expanded);
  EXPECT_EQ(0, After(kKeyCodeLeft));
  EXPECT_EQ(0, After(kKeyCodeLeft));
  EXPECT_EQ(Events{"World"}, user.SeeRows(list));
}

TEST_F(FormsTree, PlusAndMinusFold) {
  Select(1);
  After(kKeyCodePlus);
  EXPECT_EQ(6U, user.SeeRows(list).size());
  After(kKeyCodeMinus);
  EXPECT_EQ(4U, user.SeeRows(list).size());
}

TEST_F(FormsTree, PageKeysGoAsFarAsTheListIsHigh) {
  list.Redraw(false);
  for (int i = 0; i < 200; ++i) list.AddRow({"Row " + std::to_string(i), 1, i, "Layer"});
  list.Redraw(true);
  Select(0);
  const int page = After(kKeyCodePageDown);
  EXPECT_GT(page, 3);
  EXPECT_LT(page, 100);
  EXPECT_TRUE(user.SeesRow(list, page));
  EXPECT_GT(After(kKeyCodePageDown), page);
  EXPECT_EQ(page, After(kKeyCodePageUp));
  EXPECT_EQ(0, After(kKeyCodePageUp));
}

TEST_F(FormsTree, OtherKeysAreToldAndMoveNothing) {
  Select(1);
  EXPECT_EQ(1, After(kKeyCodeF1));
  EXPECT_EQ(Events{"KeyDown(112) at 1"}, NewEvents());
}

TEST_F(FormsTree, TypedLettersFindTheNextRowThatBeginsWithThem) {
  Select(0);
  user.TypeCharacters(*form, "bro");
  EXPECT_EQ("Brooks", user.See(list).Text);
  EXPECT_FALSE(NewEvents().empty());
}

TEST_F(FormsTree, TheSameLetterAgainGoesToTheNextRow) {
  Select(0);
  user.TypeCharacters(*form, "b");
  EXPECT_EQ("Bogs", user.See(list).Text);
  user.TypeCharacters(*form, "b");
  EXPECT_EQ("Brooks", user.See(list).Text);
  user.TypeCharacters(*form, "b");
  EXPECT_EQ("Bogs", user.See(list).Text);
}

TEST_F(FormsTree, LettersThatNoRowBeginsWithMoveNothing) {
  Select(1);
  user.TypeCharacters(*form, "xyz");
  EXPECT_EQ("Alps", user.See(list).Text);
}

TEST_F(FormsTree, ATextIsReplacedInItsRow) {
  list.Text(4, "Moors");
  EXPECT_EQ((Events{"World", "Alps", "Moors", "Brooks"}), user.SeeRows(list));
}

TEST_F(FormsTree, NothingReachesTheScreenWhileRedrawingIsOff) {
  list.ListIndex(1);
  list.Redraw(false);
  list.Clear();
  form->Fill();
  list.AddRow({"Cliffs", 1, 4, "Layer"});
  list.ListIndex(6);
  list.Redraw(true);
  EXPECT_EQ((Events{"World", "Alps", "Bogs", "Brooks", "Cliffs"}), user.SeeRows(list));
  EXPECT_EQ("Cliffs", user.See(list).Text);
}

TEST_F(FormsTree, TheSelectedRowIsInViewAndARefilledListDoesNotJump) {
  const auto refill = [&] {
    list.Redraw(false);
    list.Clear();
    for (int i = 0; i < 500; ++i) list.AddRow({"Row " + std::to_string(i), 0, i, "Layer"});
    list.Redraw(true);
  };
  refill();
  list.ListIndex(250);
  EXPECT_TRUE(user.SeesRow(list, 250));
  int first = 250;
  while (first > 0 && user.SeesRow(list, first - 1)) --first;
  int last = 250;
  while (last + 1 < list.ListCount() && user.SeesRow(list, last + 1)) ++last;
  refill();
  list.ListIndex(std::min(first + 1, 250));
  EXPECT_TRUE(user.SeesRow(list, first));
  EXPECT_TRUE(user.SeesRow(list, last));
}

TEST_F(FormsTree, FoldingAboveTheSelectedRowLeavesItSelectedAndTheListWhereItIs) {
  list.ListIndex(5);
  user.Fold(list, 1);
  EXPECT_EQ("Brooks", user.See(list).Text);
  EXPECT_EQ(5, user.See(list).Value);
  user.Fold(list, 1);
  EXPECT_EQ(5, user.See(list).Value);
}

TEST_F(FormsTree, AnEmptyListTakesMouseAndKeys) {
  user.ClickInto(list);
  list.Clear();
  events.clear();
  for (const int key : {kKeyCodeDown, kKeyCodeEnd, kKeyCodeLeft, kKeyCodeRight, kKeyCodePageUp, kKeyCodePlus})
    EXPECT_EQ(-1, After(key));
  user.TypeCharacters(*form, "a");
  EXPECT_EQ(Events{}, user.SeeRows(list));
}

TEST_F(FormsTree, AFieldThatKeepsTheFocusKeepsTheRowUnselected) {
  form->Refuses = true;
  user.Click(list, 4);
  EXPECT_EQ(Events{}, NewEvents());
  EXPECT_EQ(-1, list.ListIndex());
  EXPECT_EQ(-1, user.See(list).Value);
  form->Refuses = false;
}

TEST_F(FormsTree, TabComesToTheListAndLeavesIt) {
  user.Press(*form, kTab);
  EXPECT_TRUE(user.See(list).Focused);
  user.Press(*form, kTab);
  EXPECT_TRUE(user.See(form->txtOther).Focused);
}

TEST_F(FormsTree, ADisabledListKeepsStill) {
  list.ListIndex(1);
  list.Enabled(false);
  events.clear();
  user.Click(list, 4);
  EXPECT_EQ(1, user.See(list).Value);
  EXPECT_FALSE(user.See(list).Enabled);
  EXPECT_EQ(Events{}, NewEvents());
}

TEST_F(FormsTree, AHandlerMayUnloadTheForm) {
  list.Click = [this] { form->Unload(); };
  user.Click(list, 4);
  EXPECT_FALSE(form->IsLoaded());
}

}  // namespace
}  // namespace orx::test
