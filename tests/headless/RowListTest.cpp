// How the rows of lists are drawn up and what a press of the mouse does with them, without a native list.
#include "forms/RowList.h"

#include <gtest/gtest.h>

#include "desktops/headless/HeadlessDesktop.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/RowMeasures.h"
#include "forms/TreeList.h"

namespace orx::test {
namespace {

TEST(RowMeasures, ARowIsHigherThanItsTextAndGrowsWithTheScale) {
  EXPECT_EQ(13 + 4, RowMeasures(1).Height(13));
  EXPECT_EQ(26 + 8, RowMeasures(2).Height(26));
}

TEST(RowMeasures, EachLevelTakesTheSameWidthAndTheMarkStandsAtTheLastOne) {
  EXPECT_EQ(0, RowMeasures(1).Indent(0));
  EXPECT_EQ(48, RowMeasures(1).Indent(3));
  EXPECT_EQ((PixelSpan{0, 16}), RowMeasures(1).MarkAt(1));
  EXPECT_EQ((PixelSpan{48, 24}), RowMeasures(1.5).MarkAt(3));
}

TEST(RowMeasures, ASpanEndsBeforeItsRightEdge) {
  EXPECT_FALSE((PixelSpan{16, 16}.Holds(15)));
  EXPECT_TRUE((PixelSpan{16, 16}.Holds(16)));
  EXPECT_TRUE((PixelSpan{16, 16}.Holds(31)));
  EXPECT_FALSE((PixelSpan{16, 16}.Holds(32)));
}

/// A tree of rows 0 to 4, of which 0 holds 1 and 3, and 1 holds 2; 4 stands alone. The rows 0 and 1 are unfolded.
class RowPresses : public testing::Test {
 protected:
  RowPresses() {
    lstTree.AddRow({.Text = "Layers", .Expanded = true});
    lstTree.AddRow({.Text = "Roads", .Level = 1, .Expanded = true});
    lstTree.AddRow({.Text = "Tile", .Level = 2});
    lstTree.AddRow({.Text = "Rivers", .Level = 1});
    lstTree.AddRow({.Text = "Grids"});
    for (const char* text : {"one", "two", "three"}) {
      lstSingle.AddItem(text);
      lstSeveral.AddItem(text);
    }
    lstSeveral.DblClick = [this] { ++doubleClicks; };
    form->Show(ShowMode::Modeless);
  }
  ~RowPresses() override { form->Unload(); }

  headless::HeadlessDesktop desktop;
  std::shared_ptr<Form> form = std::make_shared<Form>(desktop, "frmAny", FormDesign{.Client = {3000, 3000}});
  TreeList lstTree{*form, "lstTree", {.Place = {0, 0, 3000, 1500}}};
  ListBox lstSingle{*form, "lstSingle", {.Place = {0, 1500, 1500, 1500}}};
  ListBox lstSeveral{*form, "lstSeveral", {.Place = {1500, 1500, 1500, 1500}}, ListSelection::Several};
  int doubleClicks = 0;
};

TEST_F(RowPresses, OnTheMarkOfARowFoldsAndUnfoldsIt) {
  lstTree.UserPress({.Position = 1, .X = 16});
  EXPECT_EQ(FoldMark::Folded, lstTree.MarkAt(1));
  EXPECT_EQ(4, lstTree.ShownCount());
  EXPECT_EQ(-1, lstTree.ListIndex());
  lstTree.UserPress({.Position = 1, .X = 31});
  EXPECT_EQ(FoldMark::Unfolded, lstTree.MarkAt(1));
}

TEST_F(RowPresses, BesideTheMarkSelectsTheRow) {
  for (const int x : {15, 32}) {
    lstTree.ListIndex(-1);
    lstTree.UserPress({.Position = 1, .X = x});
    EXPECT_EQ(1, lstTree.ListIndex()) << x;
    EXPECT_EQ(FoldMark::Unfolded, lstTree.MarkAt(1)) << x;
  }
}

TEST_F(RowPresses, TheMarkGrowsWithTheScale) {
  desktop.Scale(2);
  lstTree.UserPress({.Position = 0, .X = 31});
  EXPECT_EQ(FoldMark::Folded, lstTree.MarkAt(0));
}

TEST_F(RowPresses, ASecondPressFoldsARowThatHoldsOthersAndSelectsAnyOther) {
  lstTree.UserPress({.Position = 0, .X = 90, .IsSecond = true});
  EXPECT_EQ(FoldMark::Folded, lstTree.MarkAt(0));
  EXPECT_EQ(2, lstTree.ShownCount());
  // Now the row at position 1 is the last one, where no mark stands.
  lstTree.UserPress({.Position = 1, .X = 5, .IsSecond = true});
  EXPECT_EQ(4, lstTree.ListIndex());
  EXPECT_EQ(FoldMark::None, lstTree.MarkAt(1));
}

TEST_F(RowPresses, InAListBoxClickAndTheSecondOneDoubleClicks) {
  lstSeveral.UserPress({.Position = 1});
  EXPECT_TRUE(lstSeveral.Selected(1));
  EXPECT_EQ(0, doubleClicks);
  lstSeveral.UserPress({.Position = 1, .IsSecond = true});
  EXPECT_TRUE(lstSeveral.Selected(1));
  EXPECT_EQ(1, doubleClicks);
}

TEST_F(RowPresses, OnARowThatIsGoneDoNothing) {
  for (const bool isSecond : {false, true}) {
    lstTree.UserPress({.Position = 5, .X = 5, .IsSecond = isSecond});
    lstSeveral.UserPress({.Position = 3, .IsSecond = isSecond});
  }
  EXPECT_EQ(-1, lstTree.ListIndex());
  EXPECT_EQ(std::set<int>{}, lstSeveral.SelectedRows());
  EXPECT_EQ(0, doubleClicks);
}

TEST_F(RowPresses, RowsAreSeenByTheirPosition) {
  const RowList& tree = lstTree;
  EXPECT_EQ(5, tree.ShownCount());
  EXPECT_EQ("Tile", tree.ShownText(2));
  EXPECT_EQ(3, tree.LevelsAt(2));
  EXPECT_EQ(FoldMark::None, tree.MarkAt(2));
  EXPECT_FALSE(tree.ScrollsAcross());
  EXPECT_EQ(-1, tree.FocusPosition());
  lstTree.Expand(1, false);
  lstTree.UserSelect(2, true);
  EXPECT_EQ(3, lstTree.ListIndex());
  EXPECT_TRUE(tree.IsSelectedAt(2));
  EXPECT_EQ(2, tree.FocusPosition());
  const RowList& list = lstSeveral;
  EXPECT_EQ(3, list.ShownCount());
  EXPECT_EQ("three", list.ShownText(2));
  EXPECT_EQ(0, list.LevelsAt(2));
  EXPECT_TRUE(list.ScrollsAcross());
  EXPECT_EQ(0, list.FocusPosition());
}

TEST_F(RowPresses, AssistiveSoftwareEmptiesASelectionOnlyWhereSeveralCanBeSelected) {
  lstTree.UserSelect(0, true);
  lstTree.UserSelect(0, false);
  EXPECT_EQ(0, lstTree.ListIndex());
  lstSingle.UserSelect(1, true);
  lstSingle.UserSelect(1, false);
  EXPECT_EQ(1, lstSingle.ListIndex());
  lstSeveral.UserSelect(1, true);
  EXPECT_EQ(std::set<int>{1}, lstSeveral.SelectedRows());
  lstSeveral.UserSelect(1, false);
  EXPECT_EQ(std::set<int>{}, lstSeveral.SelectedRows());
}

TEST(ShownSelection, TellsOfChangesAlone) {
  ShownSelection shown;
  std::vector<std::pair<int, bool>> told;
  const auto tell = [&](int row, bool isSelected) { told.push_back({row, isSelected}); };
  shown.Show({1, 5}, tell);
  EXPECT_EQ((std::vector<std::pair<int, bool>>{{1, true}, {5, true}}), told);
  told.clear();
  shown.Show({5, 0}, tell);
  EXPECT_EQ((std::vector<std::pair<int, bool>>{{1, false}, {0, true}}), told);
  told.clear();
  shown.Show({5, 0}, tell);
  EXPECT_TRUE(told.empty());
  shown.Clear();
  shown.Show({5}, tell);
  EXPECT_EQ((std::vector<std::pair<int, bool>>{{5, true}}), told);
}

}  // namespace
}  // namespace orx::test
