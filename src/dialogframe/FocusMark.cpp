#include "dialogframe/FocusMark.h"

#include <algorithm>

#include "forms/PictureBox.h"
#include "hostobjects/ErrorTrap.h"

namespace orx::modMain {

void DrawInsetFocusRect(PictureBox& box, std::int32_t inset) noexcept {
  ErrorTrap trap;
  trap.Step([&] {
    if (!box.AutoRedraw()) box.AutoRedraw(true);
  });
  trap.Step([&] {
    const Size client = box.PixelSize();
    // Beyond the size of the box a mark is nowhere to be seen, however large the inset is.
    const int most = std::max(client.Width, client.Height);
    const int edge = std::clamp(inset, -most, most);
    box.Drawing().ToggleFocus({edge, edge, client.Width - 2 * edge, client.Height - 2 * edge});
  });
  trap.Step([&] { box.Refresh(); });
}

}  // namespace orx::modMain
