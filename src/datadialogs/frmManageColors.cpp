#include "datadialogs/frmManageColors.h"

namespace orx {
namespace {

/// A round marker that is not set.
void DrawMarker(PictureBox& box) {
  constexpr Color kLine{122, 122, 122};
  const Size size = box.PixelSize();
  const int margin = size.Width / 4;
  const int far = size.Width - 1 - margin;
  box.Drawing().Clear();
  box.Drawing().Draw(LineMark{{{margin, margin}, {far, margin}, {far, far}, {margin, far}, {margin, margin}}, kLine});
}

}  // namespace

frmManageColors::frmManageColors(Desktop& desktop)
    : DialogForm(desktop, "frmManageColors", {.Caption = "Color Scheme", .Client = {6240, 3645}}) {
  cmdOK.Click = [this] {
    mCanceled = false;
    Hide();
  };
  cmdCancel.Click = [this] {
    mCanceled = true;
    Hide();
  };
}

void frmManageColors::Form_Load() {
  Center();
  for (PictureBox& marker : CheckColor) DrawMarker(marker);
  TakeHelpNumber("_HelpMapColors");
  Translate();
}

}  // namespace orx
