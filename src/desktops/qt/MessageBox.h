// The message box.
#pragma once

#include <functional>

#include "forms/Message.h"

class QMessageBox;
class QWindow;

namespace orx::qt {

/// Shows a message in front of `owner` (null: in front of the active window) and returns the answer. `running` is
/// called in its modal loop; an exception from it closes the box and is passed on.
MessageAnswer RunMessageBox(const Message& message, QWindow* owner, const std::function<void()>& running);

/// The message box that is open, null when there is none.
QMessageBox* OpenMessageBox();

}  // namespace orx::qt
