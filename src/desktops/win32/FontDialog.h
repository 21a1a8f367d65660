// The dialog for choosing a font and its colour.
#pragma once

#include <functional>

namespace orx {
struct FontRequest;
}  // namespace orx

namespace orx::win32 {

/// Has the user choose a font as Desktop::ChooseFont says. `running` is called in its modal loop; an exception from it
/// closes the dialog and is passed on.
bool RunFontDialog(FontRequest& request, const std::function<void()>& running);

}  // namespace orx::win32
