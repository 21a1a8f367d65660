// A piece of a form that others fill with native windows: a page control that a host has registered, or its own map
// view.
#pragma once

#include <cstdint>
#include <functional>

#include "forms/Control.h"

namespace orx {

/// Shows nothing of its own. The desktop makes an empty native window for it, and whoever handles the events puts
/// something into it. Desktops without native windows raise none of them.
class NativeArea final : public Control {
 public:
  /// As Control.
  NativeArea(Container& parent, std::string name, Design design)
      : Control(parent, std::move(name), std::move(design)) {}

  /// The native window is there and has its place: HWND on Windows, WId on Qt. It may come and go several times.
  Event<std::uintptr_t> Opened;
  /// The native window is about to be destroyed, with everything in it.
  Event<> Closing;
  /// The native window was sized; the new size in pixels is given.
  Event<Size> Sized;
  /// The form moves the focus to the area. Without a handler the window itself takes it.
  Event<> FocusEnters;

  /// Sees each native key message (on Windows a `MSG*`) for a window inside the area before the form does. True when it
  /// has been handled, so that the form does not see it.
  std::function<bool(void* message)> FilterKey;

  void Accept(ControlVisitor& visitor) override;
};

}  // namespace orx
