// The QApplication that the windows live in.
#pragma once

#include <QFont>

namespace orx::qt {

/// Makes a QApplication when the host has none. Throws std::logic_error when the host has a QCoreApplication of another
/// kind, as windows cannot be shown then.
void EnsureApplication();

/// The font of the dialogs: the application's, at 9 points or more.
QFont DialogFont();

}  // namespace orx::qt
