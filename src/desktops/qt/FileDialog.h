// The dialog for choosing files.
#pragma once

#include <functional>

class QFileDialog;

namespace orx {
struct OpenFileRequest;
}  // namespace orx

namespace orx::qt {

/// Has the user choose files as Desktop::OpenFiles says. `running` is called in its modal loop; an exception from it
/// closes the dialog and is passed on.
bool RunFileDialog(OpenFileRequest& request, const std::function<void()>& running);

/// The file dialog that is open, null when there is none.
QFileDialog* OpenFileDialog();

}  // namespace orx::qt
