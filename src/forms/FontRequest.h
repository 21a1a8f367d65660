// A request to the platform's dialog for choosing a font, and its answer.
#pragma once

#include <cstdint>
#include <optional>

#include "forms/Appearance.h"

namespace orx {

/// The value of FontRequest::Flags that asks for the fonts of screen and printer.
inline constexpr std::uint32_t kScreenAndPrinterFonts = 3;

/// A font with its colour.
struct ColoredFont {
  Font Face;
  orx::Color Color;
  bool operator==(const ColoredFont&) const = default;
};

/// A request with the meaning of the platform's CHOOSEFONT on every desktop.
struct FontRequest {
  /// The window that the dialog belongs to: HWND on Windows, WId on Qt; 0 for none.
  std::uintptr_t OwnerHandle = 0;
  std::uint32_t Flags = kScreenAndPrinterFonts;
  /// In: the font to start from. Out: the one chosen; unchanged when none was.
  ColoredFont Chosen;
  /// The hook's answer where the platform has no such dialog; without one, nothing is chosen.
  std::optional<ColoredFont> Answer = {};
};

}  // namespace orx
