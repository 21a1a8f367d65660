#include "dialogframe/FocusMark.h"

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
    box.Drawing().ToggleFocus({inset, inset, client.Width - 2 * inset, client.Height - 2 * inset});
  });
  trap.Step([&] { box.Refresh(); });
}

}  // namespace orx::modMain
