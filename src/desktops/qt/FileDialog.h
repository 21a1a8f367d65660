// The dialog for choosing files.
#pragma once

#include <functional>

class QFileDialog;

namespace orx {
struct OpenFileRequest;
}  // namespace orx

namespace orx::qt {

/// Has the user choose files as Desktop::OpenFiles says. `running` is called in its modal loop; what it throws closes
/// the dialog and travels.
bool RunFileDialog(OpenFileRequest& request, const std::function<void()>& running);

/// The dialog for files that waits for its answer, null when there is none.
QFileDialog* OpenFileDialog();

}  // namespace orx::qt
