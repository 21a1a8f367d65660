// A piece of a form that somebody else fills with native windows of the platform: a page control that a host has
// registered, a map view of its own.
#pragma once

#include <cstdint>
#include <functional>

#include "forms/Control.h"

namespace orx {

/// Shows nothing of its own. The desktop makes an empty native window for it; what stands in that window is the
/// business of whoever handles the events. Desktops without native windows raise none of them.
class NativeArea final : public Control {
 public:
  /// As Control.
  NativeArea(Container& parent, std::string name, Design design)
      : Control(parent, std::move(name), std::move(design)) {}

  /// The native window is there and has its place: HWND on Windows, WId on Qt. It may come and go several times.
  Event<std::uintptr_t> Opened;
  /// The native window is about to go, what stands in it goes with it.
  Event<> Closing;
  /// The native window was sized; the new size in pixels is given.
  Event<Size> Sized;
  /// The focus comes to the area by decision of the form. Without a handler the window itself takes it.
  Event<> FocusEnters;

  /// Sees each native key message (on Windows a `MSG*`) for a window inside the area before the form does. True when it
  /// is dealt with, so that the form leaves it alone.
  std::function<bool(void* message)> FilterKey;

  void Accept(ControlVisitor& visitor) override;
};

}  // namespace orx
