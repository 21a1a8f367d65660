#include "tests/support/QtInput.h"

#include <QtTest>
#include <map>

namespace orx::test {

void Activate(QWidget& widget) {
  QWidget& window = *widget.window();
  if (window.isActiveWindow()) return;
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window, 1000)) QApplication::setActiveWindow(&window);
}

void MouseClick(QWidget& widget, QPoint at) {
  Activate(widget);
  QWidget& window = *widget.window();
  const QPoint place = widget.mapTo(&window, at);
  const QWidget* const hit = window.childAt(place);
  if (!hit || (hit != &widget && !widget.isAncestorOf(hit))) return;
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void MouseClick(QWidget& widget) {
  MouseClick(widget, widget.rect().center());
}

Qt::Key NativeKey(const KeyStroke& stroke) {
  switch (stroke.Key) {
    case Key::Tab:
      return stroke.Shift ? Qt::Key_Backtab : Qt::Key_Tab;
    case Key::Enter:
      return Qt::Key_Return;
    case Key::Escape:
      return Qt::Key_Escape;
    case Key::Help:
      return Qt::Key_F1;
    case Key::NextTab:
      return Qt::Key_PageDown;
    case Key::PreviousTab:
      return Qt::Key_PageUp;
    case Key::Character:
      break;
  }
  return static_cast<Qt::Key>(QChar::toUpper(stroke.Character));
}

Qt::Key NativeKey(int keyCode) {
  static const std::map<int, Qt::Key> kKeys = {
      {kKeyCodeShift, Qt::Key_Shift},   {kKeyCodePageUp, Qt::Key_PageUp}, {kKeyCodePageDown, Qt::Key_PageDown},
      {kKeyCodeEnd, Qt::Key_End},       {kKeyCodeHome, Qt::Key_Home},     {kKeyCodeLeft, Qt::Key_Left},
      {kKeyCodeUp, Qt::Key_Up},         {kKeyCodeRight, Qt::Key_Right},   {kKeyCodeDown, Qt::Key_Down},
      {kKeyCodeDelete, Qt::Key_Delete}, {kKeyCodePlus, Qt::Key_Plus},     {kKeyCodeMinus, Qt::Key_Minus},
      {kKeyCodeF1, Qt::Key_F1}};
  const auto found = kKeys.find(keyCode);
  // Letters, digits and the space have the same numbers on both sides.
  return found == kKeys.end() ? static_cast<Qt::Key>(keyCode) : found->second;
}

}  // namespace orx::test
