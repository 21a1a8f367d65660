// The native window of a form. It is the gate through which all that the user does reaches the form, and it stays in
// memory while such an act runs, even when the act closes the form.
#pragma once

#include <QDialog>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

#include "desktops/qt/ContentPane.h"

namespace orx::qt {

class Dialog final : public QDialog {
 public:
  explicit Dialog(Form& form);

  Form& Owner() const { return mForm; }
  ContentPane& Content() { return mContent; }

  /// Runs `act`, which reports to the form. Does nothing while the program itself moves the widgets, nor when the form
  /// is not shown. `act` and its surroundings may be gone when this returns.
  void Report(const std::function<void()>& act);
  /// Hands a key press to the form. True when it is dealt with.
  bool ReportKey(const QKeyEvent& event);
  /// Tells the form where the mouse is.
  void ReportMouse();
  /// Has the window system drag the lower edge, or does so itself where that cannot.
  void DragBottomEdge();
  /// Has the form show what it keeps back, once, after that time.
  void CallShowUpdates(std::chrono::milliseconds after) { mUpdateTimer.start(after); }
  /// Has all presses of mouse and keys in this window come to nothing.
  void BlockInput(bool block);
  /// Cuts the dialog off from its form and deletes it as soon as no event of it runs.
  void Retire();

  /// While one lives, what happens to the widgets is the program's doing and not reported.
  class Quiet {
   public:
    explicit Quiet(Dialog& dialog) : mDialog(dialog) { ++mDialog.mQuiet; }
    ~Quiet() { --mDialog.mQuiet; }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

   private:
    Dialog& mDialog;
  };

  /// Escape and the default button are the form's business.
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Form& mForm;
  ContentPane mContent;
  int mQuiet = 0;
  int mActs = 0;
  bool mRetired = false;
  QTimer mUpdateTimer;
  QPoint mPressedAt;
  /// While the dialog drags its edge itself: how far the edge stands below the mouse.
  std::optional<int> mDragged;
};

}  // namespace orx::qt
