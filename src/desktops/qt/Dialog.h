// The native window of a form. It reports to the form what the user does.
#pragma once

#include <QDialog>
#include <QTimer>
#include <chrono>
#include <optional>

#include "desktops/qt/ContentPane.h"
#include "forms/FormGate.h"

namespace orx::qt {

class Dialog final : public QDialog, public FormGate {
 public:
  explicit Dialog(Form& form);

  ContentPane& Content() { return mContent; }

  /// Hands a key press to the form. True when it is dealt with.
  bool ReportKey(const QKeyEvent& event);
  /// Tells the form where the mouse is.
  void ReportMouse();
  /// Has the window system drag the lower edge, or drags it here where the window system cannot.
  void DragBottomEdge();
  /// Has the form show, once and after that time, the changes that it holds back.
  void CallShowUpdates(std::chrono::milliseconds after) { mUpdateTimer.start(after); }
  /// Drops all presses of mouse and keys in this window, or lets them through again.
  void BlockInput(bool block);
  /// Cuts the dialog off from its form and deletes it as soon as none of its events is being handled.
  void Retire();

  /// Deletes the dialogs that wait for it, unless events of theirs are being handled: without a running event loop
  /// nothing else does.
  static void DeleteRetired();

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
  void LetGo() override;

  ContentPane mContent;
  QTimer mUpdateTimer;
  QPoint mPressedAt;
  /// While the dialog drags its edge itself: how far below the mouse the edge is.
  std::optional<int> mDragged;
};

}  // namespace orx::qt
