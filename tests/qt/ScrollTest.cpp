// Forms that are higher than the screen: the buttons stay in reach and the rest scrolls.
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "forms/Arrangement.h"
#include "tests/layout/LayoutCheck.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

class QtScroll : public QtFormsTest {
 protected:
  /// The form is 5400 twips high; the screen has room for two thirds of that.
  void ShowOnLowScreen() {
    const int frame = desktop().Metrics(BorderStyle::Fixed).Frame.Height;
    QtOnly().WorkArea({0, 0, 12000, 3600 + frame});
    ShowSettled();
  }

  QScrollBar& Bar() { return *DialogOf(*form).findChild<QScrollArea*>()->verticalScrollBar(); }
};

TEST_F(QtScroll, AFormThatFitsHasNothingThatScrolls) {
  QtOnly().WorkArea({0, 0, 30000, 30000});
  ShowSettled();
  EXPECT_EQ(nullptr, DialogOf(*form).findChild<QScrollArea*>());
  EXPECT_EQ(desktop().ToPixels(5400), DialogOf(*form).height());
  EXPECT_EQ(desktop().ToPixels(6000), DialogOf(*form).width());
}

TEST_F(QtScroll, OnALowScreenTheButtonsStayAtTheBottom) {
  ShowOnLowScreen();
  EXPECT_EQ(desktop().ToPixels(3600), DialogOf(*form).height());
  EXPECT_EQ(desktop().ToPixels(4680) - (desktop().ToPixels(5400) - desktop().ToPixels(3600)),
            PlaceInWindow(form->cmdOK).top());
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*form));
  user.Click(form->cmdOK);
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cmdOK_Click"));
}

TEST_F(QtScroll, AFormThatOutgrowsItsScreenScrollsAndKeepsItsFocus) {
  const int frame = desktop().Metrics(BorderStyle::Fixed).Frame.Height;
  QtOnly().WorkArea({0, 0, 12000, 6000 + frame});
  ShowSettled();
  user.ClickInto(form->txtSize);
  form->ClientSize({6000, 9000});
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_TRUE(user.See(form->txtSize).Focused);
  user.Type(form->txtName, "Typed");
  EXPECT_EQ("Typed", user.See(form->txtName).Text);
  user.Press(*form, kTab);
  EXPECT_TRUE(user.See(form->txtSize).Focused);
  EXPECT_EQ(std::vector<std::string>{}, LayoutProblems(*form));
  form->ClientSize({6000, 5400});
  desktop().ProcessPendingEvents();
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(desktop().ToPixels(4680), PlaceInWindow(form->cmdOK).top());
  user.Click(form->cmdOK);
  EXPECT_EQ(1, std::count(events.begin(), events.end(), "cmdOK_Click"));
}

TEST_F(QtScroll, TheScrollBarHasTheRangeOfTheArrangement) {
  ShowOnLowScreen();
  const Arrangement arrangement = Arrange(*form, {Bar().width(), Bar().width()});
  EXPECT_GT(Bar().maximum(), 0);
  EXPECT_EQ(arrangement.Clamped({0, 99999}).Y, Bar().maximum());
  EXPECT_EQ(arrangement.Down.Seen, Bar().pageStep());
}

TEST_F(QtScroll, TheScrollBarTakesNoWidthFromTheControls) {
  ShowOnLowScreen();
  EXPECT_EQ(desktop().ToPixels(6000) + Bar().width(), DialogOf(*form).width());
  EXPECT_FALSE(DialogOf(*form).findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
}

TEST_F(QtScroll, ScrolledToTheEndEverythingStandsAboveTheButtons) {
  ShowOnLowScreen();
  Bar().setValue(Bar().maximum());
  EXPECT_LE(PlaceInWindow(form->ssTab).bottom(), PlaceInWindow(form->cmdOK).top());
}

TEST_F(QtScroll, FocusMovedOutOfViewScrollsThere) {
  ShowOnLowScreen();
  form->ssTab.Tab(1);
  form->txtSecond.Top(2000);
  EXPECT_GT(PlaceInWindow(form->txtSecond).bottom(), PlaceInWindow(form->cmdOK).top());
  form->txtSecond.SetFocus();
  EXPECT_LT(PlaceInWindow(form->txtSecond).bottom(), PlaceInWindow(form->cmdOK).top());
  form->txtName.SetFocus();
  EXPECT_GE(PlaceInWindow(form->txtName).top(), 0);
}

TEST_F(QtScroll, TheWheelScrollsAndChangesNoValueOnTheWay) {
  ShowOnLowScreen();
  form->cboKind.ListIndex(0);
  QWidget& combo = Native<QWidget>(form->cboKind);
  const QPointF middle(combo.rect().center());
  QWheelEvent turn(middle, combo.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
  QCoreApplication::sendEvent(&combo, &turn);
  EXPECT_EQ(0, form->cboKind.ListIndex());
  EXPECT_FALSE(turn.isAccepted());
}

TEST_F(QtScroll, ANarrowScreenScrollsSidewaysToo) {
  QtOnly().WorkArea({0, 0, 4500, 4500});
  ShowSettled();
  EXPECT_TRUE(DialogOf(*form).findChild<QScrollArea*>()->horizontalScrollBar()->isVisible());
  EXPECT_LE(PlaceInWindow(form->cmdCancel).right(), DialogOf(*form).width());
  EXPECT_GE(PlaceInWindow(form->cmdOK).left(), 0);
}

}  // namespace
}  // namespace orx::test
