#include "desktops/qt/RowsView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace orx::qt {

RowsView::RowsView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // A press of the mouse must not move the focus by itself: the field that loses it may refuse to let go.
  setFocusPolicy(Qt::TabFocus);
}

int RowsView::PageRows() const {
  return viewport()->height() / std::max(1, sizeHintForRow(0));
}

void RowsView::keyPressEvent(QKeyEvent* event) {
  const auto keyPressed = KeyPressed;
  if (!keyPressed || !keyPressed(*event)) event->ignore();
}

void RowsView::Press(const QMouseEvent& event, bool isSecond) {
  // The handlers of the press may reset the functions.
  const auto pressed = Pressed;
  if (pressed && event.button() == Qt::LeftButton) pressed(event.position().toPoint(), isSecond);
}

}  // namespace orx::qt
