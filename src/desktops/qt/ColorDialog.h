// The dialog for choosing a colour.
#pragma once

#include <functional>

class QColorDialog;

namespace orx {
struct ColorRequest;
}  // namespace orx

namespace orx::qt {

/// Has the user choose a colour as Desktop::ChooseColor says. `running` is called in its modal loop; what it throws
/// closes the dialog and travels.
bool RunColorDialog(ColorRequest& request, const std::function<void()>& running);

/// The dialog for colours that waits for its answer, null when there is none.
QColorDialog* OpenColorDialog();

}  // namespace orx::qt
