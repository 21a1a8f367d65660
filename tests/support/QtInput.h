// The mouse and the keys of a user of the Qt desktop.
#pragma once

#include <QPoint>
#include <QWidget>

#include "tests/support/User.h"

namespace orx::test {

/// A window has to be active before it takes keys; not every platform activates it by itself.
void Activate(QWidget& widget);
/// Clicks through the window, as the mouse does: what is disabled gets in the way. Where the widget is covered or cut
/// off the user does not find it.
void MouseClick(QWidget& widget, QPoint at);
void MouseClick(QWidget& widget);

/// The platform's key for one of ours.
Qt::Key NativeKey(const KeyStroke& stroke);
Qt::Key NativeKey(int keyCode);

}  // namespace orx::test
