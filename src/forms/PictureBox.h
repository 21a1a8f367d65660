// A box to draw in: previews, colours, the map of the demo host.
#pragma once

#include "forms/Appearance.h"
#include "forms/Canvas.h"
#include "forms/Control.h"

namespace orx {

/// Whether the user only looks at a box, or works with it by mouse and keys.
enum class PictureUse { Display, Input };

/// Shows a drawing on a background of one colour.
class PictureBox final : public Control {
 public:
  /// As Control; automatic redraw is on at first, the use is fixed.
  PictureBox(Container& parent, std::string name, Design design, Color backColor = {255, 255, 255},
             PictureUse use = PictureUse::Display)
      : Control(parent, std::move(name), std::move(design)), mBackColor(backColor), mUse(use) {}

  /// The background of the drawing; setting another one repaints the box.
  Color BackColor() const { return mBackColor; }
  void BackColor(Color value);
  /// The background as the screen shows it: pale while the box is disabled.
  Color ShownBackColor() const;

  /// While on, the drawing is kept and repainted whenever the screen needs it. While off, only the background is
  /// painted.
  bool AutoRedraw() const { return mAutoRedraw; }
  void AutoRedraw(bool value);

  /// The size in pixels that drawings fill on the form's desktop.
  Size PixelSize() const;

  /// What is drawn. Call Refresh when the drawing is complete.
  Canvas& Drawing() { return mDrawing; }
  const Canvas& Drawing() const { return mDrawing; }
  /// Brings the drawing to the screen.
  void Refresh();

  /// Raised when the user presses the mouse on a box that is used, with the place in pixels from the upper left corner
  /// of the drawing, and when the mouse is released there.
  Event<Point> MouseDown;
  Event<> Click;
  /// Raised in place of MouseDown and Click when a press follows a click so soon that it is a double click. Without a
  /// handler the second press is like any other.
  Event<> DblClick;
  /// Raised when the user presses a key there, with the key's code. Keys that belong to the dialog (Tab, Enter, Escape,
  /// all with Alt) do not come here.
  Event<int> KeyDown;
  bool HandlesKeys() const override { return KeyDown.HasHandler(); }

  bool TakesFocus() const override { return mUse == PictureUse::Input; }
  /// For desktops and test users: the user presses the mouse at a pixel, for the second time of a double click, and
  /// releases it in the box, or presses a key while the focus is here. With the press the focus comes here; when the
  /// field that loses it takes it back, press and click are dropped.
  void UserMouseDown(Point at);
  void UserDoubleClick(Point at);
  void UserClick();
  void UserKeyDown(int keyCode);
  void Accept(ControlVisitor& visitor) override;

 private:
  Color mBackColor;
  PictureUse mUse;
  bool mAutoRedraw = true;
  /// The mouse was pressed here and not yet released.
  bool mIsPressed = false;
  Canvas mDrawing;
};

}  // namespace orx
