#include "dialogframe/ColorBox.h"

#include "dialogframe/FocusMark.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Requests.h"

namespace orx {
namespace {

/// Pixels between the edge of the box and its focus mark.
constexpr int kInset = 3;
constexpr Color kEdge{122, 122, 122};

}  // namespace

ColorBox::ColorBox(PictureBox& box) : mBox(box) {
  const auto toggleMark = [&box] { modMain::DrawInsetFocusRect(box, kInset); };
  mBox.GotFocus = toggleMark;
  mBox.LostFocus = toggleMark;
  mBox.Click = [this] { Choose(); };
  mBox.KeyDown = [this](int keyCode) {
    if (keyCode != kKeyCodeShift) Choose();
  };
}

void ColorBox::DrawEdge() {
  const Size size = mBox.PixelSize();
  const Point last{size.Width - 1, size.Height - 1};
  mBox.Drawing().Clear();
  mBox.Drawing().Draw(LineMark{{{0, 0}, {last.X, 0}, last, {0, last.Y}, {0, 0}}, kEdge});
}

void ColorBox::Choose() {
  Form& form = mBox.OwnerForm();
  const Color before = mBox.BackColor();
  ColorRequest request{form.NativeHandle(), kStartFromColor, before};
  if (!form.OwnerDesktop().ChooseColor(request) || request.Color == before) return;
  mBox.BackColor(request.Color);
  Chosen.Raise(request.Color);
}

}  // namespace orx
