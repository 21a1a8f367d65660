// The mouse pointer over what waits for the user.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace orx::qt {

/// While one lives, the hourglass or whatever else the host shows over all windows is hidden: the program waits for the
/// user now. The host's own stack of pointers is left as it is, with one more on top, so that the host may add to it
/// and take from it meanwhile.
class PlainPointer {
 public:
  PlainPointer() : mIsShown(QGuiApplication::overrideCursor() != nullptr) {
    if (mIsShown) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  }
  ~PlainPointer() {
    if (mIsShown) QGuiApplication::restoreOverrideCursor();
  }
  PlainPointer(const PlainPointer&) = delete;
  PlainPointer& operator=(const PlainPointer&) = delete;

 private:
  bool mIsShown;
};

}  // namespace orx::qt
