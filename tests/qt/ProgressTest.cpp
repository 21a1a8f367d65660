// The progress window on the screen of a host that handles no events, and what that costs.
#include <QApplication>
#include <QDialog>
#include <QProgressBar>
#include <QTimer>

#include "pickers/frmProgress.h"
#include "tests/progress/ProgressLoops.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

/// Counts how often a widget is painted.
class Paints final : public QObject {
 public:
  explicit Paints(QWidget& watched) { watched.installEventFilter(this); }
  int Count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Count;
    return false;
  }
};

class QtProgress : public QtFormsTest {
 protected:
  QtProgress() {
    progress.Show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&DialogOf(Window())));
    desktop().ProcessPendingEvents();
  }
  frmProgress& Window() { return dynamic_cast<frmProgress&>(*desktop().OpenForms().back()); }

  CCommonProgressDialog progress{desktop()};
};

TEST_F(QtProgress, IsPaintedWithoutEvents) {
  Paints paints(Native<QWidget>(Window().prgBar));
  Paints texts(Native<QWidget>(Window().lblMsg));
  progress.Value(50);
  EXPECT_EQ(1, paints.Count);
  progress.Message("Half of it");
  EXPECT_EQ(1, texts.Count);
}

TEST_F(QtProgress, IsPaintedSixtyTimesASecondAtMost) {
  const Paints paints(Native<QWidget>(Window().prgBar));
  JumpFor(std::chrono::milliseconds(1500), progress, desktop());
  EXPECT_LE(paints.Count, 60 * 3 / 2 + 1);
  EXPECT_GE(paints.Count, 20);
}

TEST_F(QtProgress, AMillionValuesCostLessThanTwoHundredthsOfRepaintingEachTime) {
  EXPECT_LT(CostOfAMillionValues(progress), 0.02);
  EXPECT_EQ(Window().prgBar.Pixels(), Native<QProgressBar>(Window().prgBar).value());
}

TEST_F(QtProgress, CanBeCancelledAboveAModalWindowOfTheHost) {
  progress.Hide();
  QWidget main;
  main.show();
  QDialog modal(&main);
  modal.setModal(true);
  modal.show();
  ASSERT_EQ(&modal, QApplication::activeModalWidget());
  for (const std::uintptr_t owner : {std::uintptr_t{0}, std::uintptr_t{main.winId()}, std::uintptr_t{modal.winId()}}) {
    CCommonProgressDialog other(desktop());
    other.Show({nullptr, owner});
    user.Click(Window().cmdCancel);
    EXPECT_TRUE(other.CancelAction());
  }
}

TEST_F(QtProgress, ShowAndHideLetPendingEventsBeHandled) {
  int handled = 0;
  QTimer::singleShot(0, [&] { ++handled; });
  progress.Hide();
  EXPECT_EQ(1, handled);
  QTimer::singleShot(0, [&] { ++handled; });
  progress.Show();
  EXPECT_EQ(2, handled);
}

}  // namespace
}  // namespace orx::test
