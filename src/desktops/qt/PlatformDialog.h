// The dialogs that the toolkit brings for choosing something: files, a colour.
#pragma once

#include <cstdint>
#include <functional>

class QDialog;

namespace orx::qt {

/// Shows the dialog before the window with that WId (0: before what the user works in) and returns when it has closed;
/// true when it was accepted. `running` is called in its modal loop; what it throws closes the dialog and travels.
bool RunPlatformDialog(QDialog& dialog, std::uintptr_t owner, const std::function<void()>& running);

}  // namespace orx::qt
