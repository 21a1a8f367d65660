// The dialog for choosing a colour.
#pragma once

#include <functional>

namespace orx {
struct ColorRequest;
}  // namespace orx

namespace orx::win32 {

/// Has the user choose a colour as Desktop::ChooseColor says. `running` is called in its modal loop; an exception from
/// it closes the dialog and is passed on. The user's own colours are kept for the life of the process.
bool RunColorDialog(ColorRequest& request, const std::function<void()>& running);

}  // namespace orx::win32
