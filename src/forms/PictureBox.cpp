#include "forms/PictureBox.h"

#include <algorithm>
#include <utility>

#include "forms/ControlVisitor.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx {

void Canvas::Draw(Mark mark) {
  mMarks.push_back(std::move(mark));
}

void Canvas::ToggleFocus(const Rect& place) {
  const Mark mark = FocusMark{place};
  const auto found = std::find(mMarks.begin(), mMarks.end(), mark);
  if (found == mMarks.end()) {
    mMarks.push_back(mark);
  } else {
    mMarks.erase(found);
  }
}

void Canvas::Redraw(const CharacterMark& character) {
  std::erase_if(mMarks, [&](const Mark& mark) {
    const auto* const drawn = std::get_if<CharacterMark>(&mark);
    return drawn && drawn->Place == character.Place;
  });
  mMarks.push_back(character);
}

void PictureBox::BackColor(Color value) {
  if (mBackColor == value) return;
  mBackColor = value;
  Changed(Aspect::Colors);
}

Color PictureBox::ShownBackColor() const {
  if (!TakesFocus() || IsReachable()) return mBackColor;
  constexpr int kFace = 240;
  const auto paled = [](std::uint8_t part) { return static_cast<std::uint8_t>((part + 2 * kFace) / 3); };
  return {paled(mBackColor.Red), paled(mBackColor.Green), paled(mBackColor.Blue)};
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

void PictureBox::Accept(ControlVisitor& visitor) {
  visitor.Visit(*this);
}

}  // namespace orx
