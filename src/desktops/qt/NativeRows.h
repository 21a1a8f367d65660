// The view of all lists whose rows stay in their control.
#pragma once

#include <QKeyEvent>
#include <QListView>
#include <functional>

#include "desktops/qt/Dialog.h"
#include "desktops/qt/Text.h"

namespace orx::qt {

/// In twips: what a row is higher than its text.
inline constexpr int kRowGap = 60;

/// Shows rows and scrolls; mouse and keys are the control's business. The peer empties the functions when it goes.
class NativeRows final : public QListView {
 public:
  explicit NativeRows(QWidget* parent);
  /// A press of the left button, and whether it is the second one right after the first.
  std::function<void(QPoint, bool)> Pressed;
  /// True when the key was of use.
  std::function<bool(const QKeyEvent&)> KeyPressed;
  /// How many rows there is room for.
  int PageRows() const;

 protected:
  void mousePressEvent(QMouseEvent* event) override { Press(*event, false); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { Press(*event, true); }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Press(const QMouseEvent& event, bool twice);
};

/// Hands a key press to the control of a list, which lives as long as the dialog is not retired.
template <class List>
bool ReportRowKey(List& control, Dialog& dialog, const NativeRows& native, const QKeyEvent& event) {
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) return false;
  control.PageRows(native.PageRows());
  const QString typed = event.text();
  const int code = KeyCodeOf(event);
  if (code != 0) dialog.Report([&] { control.UserKeyDown(code); });
  if (!typed.isEmpty() && typed[0].isPrint()) dialog.Report([&] { control.UserCharacter(typed.toUcs4().front()); });
  return code != 0 || !typed.isEmpty();
}

}  // namespace orx::qt
