// The focus rectangle of a picture box.
#pragma once

#include <cstdint>

namespace orx {

class PictureBox;

namespace modMain {

/// Draws the focus rectangle `inset` pixels inside the box; drawing it again in the same place removes it. Turns on the
/// box's automatic redraw. Never throws.
void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept;

}  // namespace modMain
}  // namespace orx
