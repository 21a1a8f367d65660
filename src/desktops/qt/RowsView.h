// The view of all lists whose rows stay in their control.
#pragma once

#include <QListView>
#include <functional>

namespace orx::qt {

/// Shows rows and scrolls; mouse and keys are handled in the control. The peer resets the functions when it goes.
class RowsView final : public QListView {
 public:
  explicit RowsView(QWidget* parent);
  /// A press of the left button, and whether it is the second one right after the first.
  std::function<void(QPoint, bool)> Pressed;
  /// True when the key has been handled.
  std::function<bool(const QKeyEvent&)> KeyPressed;
  /// The number of rows that fit.
  int PageRows() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override { Press(*event, false); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { Press(*event, true); }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Press(const QMouseEvent& event, bool isSecond);
};

}  // namespace orx::qt
