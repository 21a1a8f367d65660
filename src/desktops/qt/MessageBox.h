// The message box.
#pragma once

#include <functional>

#include "forms/Message.h"

class QMessageBox;
class QWindow;

namespace orx::qt {

/// Shows a message before `owner` (null: before whatever is active) and returns the answer. `running` is called in its
/// modal loop; what it throws closes the box and travels.
MessageAnswer RunMessageBox(const Message& message, QWindow* owner, const std::function<void()>& running);

/// The message box that waits for its answer, null when there is none.
QMessageBox* OpenMessageBox();

}  // namespace orx::qt
