// The progress window on the screen of a host that handles no events, and what that costs.
#include <QApplication>
#include <QDialog>
#include <QProgressBar>
#include <QTimer>

#include "pickers/frmProgress.h"
#include "service/CCommonProgressDialog.h"
#include "tests/qt/QtTest.h"

namespace orx::test {
namespace {

using Clock = std::chrono::steady_clock;

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
  const auto start = Clock::now();
  while (Clock::now() - start < std::chrono::milliseconds(1500)) {
    progress.Value(progress.Value() == 25 ? 75 : 25);
    progress.Message(std::to_string(progress.Value()));
    desktop().ProcessPendingEvents();
  }
  EXPECT_LE(paints.Count, 60 * 3 / 2 + 1);
  EXPECT_GE(paints.Count, 20);
}

TEST_F(QtProgress, AMillionValuesCostLessThanTwoHundredthsOfRepaintingEachTime) {
  constexpr int kValues = 1000000;
  constexpr int kRepaints = 500;
  progress.Init(0, kValues, 0);
  auto start = Clock::now();
  for (int i = 1; i <= kValues; ++i) progress.Value(i);
  const std::chrono::duration<double> ours = Clock::now() - start;
  EXPECT_EQ(Window().prgBar.Pixels(), Native<QProgressBar>(Window().prgBar).value());
  start = Clock::now();
  for (int i = 1; i <= kRepaints; ++i) {
    progress.Value(i * (kValues / kRepaints));
    progress.Refresh();
  }
  const std::chrono::duration<double> repainted = (Clock::now() - start) * (kValues / kRepaints);
  EXPECT_LT(ours / repainted, 0.02);
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
