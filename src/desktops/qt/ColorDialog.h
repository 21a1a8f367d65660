// The dialog for choosing a colour.
#pragma once

#include <functional>

class QColorDialog;

namespace orx {
struct ColorRequest;
}  // namespace orx

namespace orx::qt {

/// Has the user choose a colour as Desktop::ChooseColor says. `running` is called in its modal loop; an exception from
/// it closes the dialog and is passed on.
bool RunColorDialog(ColorRequest& request, const std::function<void()>& running);

/// The colour dialog that is open, null when there is none.
QColorDialog* OpenColorDialog();

}  // namespace orx::qt
