// The dialog for choosing files.
#pragma once

#include <functional>

namespace orx {
struct OpenFileRequest;
}  // namespace orx

namespace orx::win32 {

/// Has the user choose files as Desktop::OpenFiles says. `running` is called in its modal loop; an exception from it
/// closes the dialog and is passed on. The process keeps its current folder.
bool RunFileDialog(OpenFileRequest& request, const std::function<void()>& running);

}  // namespace orx::win32
