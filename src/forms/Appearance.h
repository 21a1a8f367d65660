// Colours, fonts and mouse pointers of forms and drawings.
#pragma once

#include <bitset>
#include <cstdint>
#include <string>

namespace orx {

/// An opaque colour, each part from 0 to 255.
struct Color {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;
  bool operator==(const Color&) const = default;
};

/// A font by face name and size in points. An empty name means the desktop's own dialog font.
struct Font {
  std::string Name = {};
  double Size = 8.25;
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool Strikethrough = false;
  bool operator==(const Font&) const = default;
};

/// The single-byte codes of characters in a font run from 0 up to this.
inline constexpr int kCharacterCodes = 256;

/// A set of such codes.
using CharacterCodes = std::bitset<kCharacterCodes>;

/// The longest face name that a font can have on the platforms. A longer one names no font.
inline constexpr int kLongestFaceName = 31;

/// The colours of the user's scheme that drawings use, with the platform's code numbers.
/// DialogFace is the ground of dialogs.
enum class SystemColor { Window = 5, WindowText = 8, Highlight = 13, HighlightText = 14, DialogFace = 15 };

/// The mouse pointers that dialogs show, with the platform's code numbers.
enum class Pointer { Default = 0, SizeNS = 7, Hourglass = 11 };

}  // namespace orx
