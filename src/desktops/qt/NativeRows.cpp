#include "desktops/qt/NativeRows.h"

#include <QMouseEvent>
#include <algorithm>

namespace orx::qt {

NativeRows::NativeRows(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // A press of the mouse must not move the focus by itself: the field that loses it may refuse.
  setFocusPolicy(Qt::TabFocus);
}

int NativeRows::PageRows() const {
  return viewport()->height() / std::max(1, sizeHintForRow(0));
}

void NativeRows::keyPressEvent(QKeyEvent* event) {
  const auto keyPressed = KeyPressed;
  if (!keyPressed || !keyPressed(*event)) event->ignore();
}

void NativeRows::Press(const QMouseEvent& event, bool twice) {
  // What the press sets off may take the functions away.
  const auto pressed = Pressed;
  if (pressed && event.button() == Qt::LeftButton) pressed(event.position().toPoint(), twice);
}

}  // namespace orx::qt
