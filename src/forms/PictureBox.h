// A box to draw in: previews, colours, the map of the demo host.
#pragma once

#include "forms/Appearance.h"
#include "forms/Canvas.h"
#include "forms/Control.h"

namespace orx {

/// Whether a user only looks at a box or works with it by mouse and keys.
enum class PictureUse { Display, Input };

/// Shows a drawing on a ground of one colour.
class PictureBox final : public Control {
 public:
  /// As Control; automatic redraw is on at first, the use is fixed.
  PictureBox(Container& parent, std::string name, Design design, Color backColor = {255, 255, 255},
             PictureUse use = PictureUse::Display)
      : Control(parent, std::move(name), std::move(design)), mBackColor(backColor), mUse(use) {}

  /// The ground that the drawing stands on; a new one repaints the box.
  Color BackColor() const { return mBackColor; }
  void BackColor(Color value);
  /// The ground as the screen shows it: pale while the box is disabled.
  Color ShownBackColor() const;

  /// While on, what is drawn stays and is painted again by itself. While off, a desktop paints the background only.
  bool AutoRedraw() const { return mAutoRedraw; }
  void AutoRedraw(bool value);

  /// The size in pixels that drawings fill, on the desktop where the form stands.
  Size PixelSize() const;

  /// What is drawn. Call Refresh when the drawing is complete.
  Canvas& Drawing() { return mDrawing; }
  const Canvas& Drawing() const { return mDrawing; }
  /// Brings the drawing to the screen.
  void Refresh();

  /// Raised when the user clicks on a box that is used, and when he presses a key there, with the key's code. Keys that
  /// belong to the dialog (Tab, Enter, Escape, all with Alt) do not come here.
  Event<> Click;
  Event<int> KeyDown;

  bool TakesFocus() const override { return mUse == PictureUse::Input; }
  /// For desktops and test users: the user clicks, or presses a key while the focus is here. The focus comes here
  /// first; when the field that loses it takes it back, the click is dropped.
  void UserClick();
  void UserKeyDown(int keyCode);
  void Accept(ControlVisitor& visitor) override;

 private:
  Color mBackColor;
  PictureUse mUse;
  bool mAutoRedraw = true;
  Canvas mDrawing;
};

}  // namespace orx
