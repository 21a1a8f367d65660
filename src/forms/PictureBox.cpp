#include "forms/PictureBox.h"

#include <utility>

#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx {

void PictureBox::BackColor(Color value) {
  if (mBackColor == value) return;
  mBackColor = value;
  Changed(Aspect::Colors);
}

Color PictureBox::ShownBackColor() const {
  if (!TakesFocus() || IsReachable()) return mBackColor;
  const Color face = OwnerForm().OwnerDesktop().SystemColor(SystemColor::DialogFace);
  const auto paled = [](int part, int ground) { return static_cast<std::uint8_t>((part + 2 * ground) / 3); };
  return {paled(mBackColor.Red, face.Red), paled(mBackColor.Green, face.Green), paled(mBackColor.Blue, face.Blue)};
}

void PictureBox::UserMouseDown(Point at) {
  mIsPressed = false;
  if (!TakesFocus()) return;
  OwnerForm().UserAct([&] {
    mIsPressed = OwnerForm().MoveFocus(*this);
    if (mIsPressed) MouseDown.Raise(at);
  });
}

void PictureBox::UserClick() {
  if (!std::exchange(mIsPressed, false)) return;
  OwnerForm().UserAct([this] {
    if (OwnerForm().MoveFocus(*this)) Click.Raise();
  });
}

void PictureBox::UserDoubleClick(Point at) {
  if (!DblClick.HasHandler()) return UserMouseDown(at);
  mIsPressed = false;
  if (!TakesFocus()) return;
  OwnerForm().UserAct([this] {
    if (OwnerForm().MoveFocus(*this)) DblClick.Raise();
  });
}

void PictureBox::UserKeyDown(int keyCode) {
  OwnerForm().UserAct([&] { KeyDown.Raise(keyCode); });
}

void PictureBox::AutoRedraw(bool value) {
  if (mAutoRedraw == value) return;
  mAutoRedraw = value;
  Changed(Aspect::Drawing);
}

Size PictureBox::PixelSize() const {
  const Desktop& desktop = OwnerForm().OwnerDesktop();
  return {desktop.ToPixels(Place().Width), desktop.ToPixels(Place().Height)};
}

void PictureBox::Refresh() {
  Changed(Aspect::Drawing);
}

}  // namespace orx
