// The marks on boxes that show a colour or a character: where the focus is, and where a pale box ends.
#pragma once

#include <cstdint>

namespace orx {

class PictureBox;

namespace modMain {

/// Draws the focus rectangle `inset` pixels inside the box; a second call at the same place takes it away. Switches the
/// box's automatic redraw on. Nothing is thrown.
void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept;

/// Pixels between the edge of a box that shows a colour and its focus mark.
inline constexpr std::int32_t kColorBoxInset = 3;

/// Draws a thin line around a box that shows a colour, so that a pale one tells where it ends.
void DrawEdge(PictureBox& box);

}  // namespace modMain
}  // namespace orx
