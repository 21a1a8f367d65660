// The toolkit's own dialogs for choosing something: files, a colour, a font.
#pragma once

#include <cstdint>
#include <functional>

class QDialog;

namespace orx::qt {

/// Shows the dialog in front of the window with that WId (0: in front of the active one) and returns when it has
/// closed; true when it was accepted. `running` is called in its modal loop; an exception from it closes the dialog and
/// is passed on.
bool RunPlatformDialog(QDialog& dialog, std::uintptr_t owner, const std::function<void()>& running);

}  // namespace orx::qt
