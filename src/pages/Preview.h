// The previews of the pages: a piece of text in the middle of a picture.
#pragma once

#include <string>

#include "forms/Appearance.h"

namespace orx {
class PictureBox;
}

namespace orx::pages {

/// Common faces that font lists offer; a list takes other names too.
inline constexpr const char* kCommonFonts[] = {"Arial",  "Courier New",     "DejaVu Sans", "Symbol",
                                               "Tahoma", "Times New Roman", "Verdana",     "Wingdings"};

/// The ranges of rotations (degrees) and text sizes (points) in the fields of the pages.
inline constexpr double kMaximumRotation = 360;
inline constexpr double kMinimumSize = 1;
inline constexpr double kMaximumSize = 144;

/// Draws the text alone in the middle, turned counter-clockwise by degrees, not higher than the picture has room for.
/// An empty text leaves the picture empty.
void DrawPreview(PictureBox& picture, const std::string& text, Font font, Color color, double rotation);

}  // namespace orx::pages
