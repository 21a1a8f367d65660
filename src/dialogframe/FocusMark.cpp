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

void DrawEdge(PictureBox& box) {
  constexpr Color kEdge{122, 122, 122};
  const Size size = box.PixelSize();
  const Point last{size.Width - 1, size.Height - 1};
  box.Drawing().Clear();
  box.Drawing().Draw(LineMark{{{0, 0}, {last.X, 0}, last, {0, last.Y}, {0, 0}}, kEdge});
}

}  // namespace orx::modMain
