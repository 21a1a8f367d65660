// The mark that shows where the focus is on a box that is drawn by its form.
#pragma once

#include <cstdint>

namespace orx {

class PictureBox;

namespace modMain {

/// Draws the focus rectangle `inset` pixels inside the box; a second call at the same place takes it away. Switches the
/// box's automatic redraw on. Nothing is thrown.
void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept;

}  // namespace modMain
}  // namespace orx
