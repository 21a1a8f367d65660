// A request to the platform's dialog for choosing a colour, and its answer.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/Appearance.h"

namespace orx {

/// The value of ColorRequest::Flags that has the dialog start from the given colour.
inline constexpr std::uint32_t kStartFromColor = 1;

/// A request with the meaning of the platform's CHOOSECOLOR on every desktop.
struct ColorRequest {
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  std::uint32_t Flags = 0;
  /// In: the colour to start from. Out: the one chosen; unchanged when none was.
  orx::Color Color;
  /// The hook's answer where the platform has no such dialog; without one, nothing is chosen.
  std::optional<orx::Color> Answer = {};
};

}  // namespace orx
