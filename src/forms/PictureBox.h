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

  /// Raised when the user presses the mouse on a box that is used, with the place in pixels from the upper left corner
  /// of the drawing, and when he releases it there.
  Event<Point> MouseDown;
  Event<> Click;
  /// Raised when a press follows a click so soon that it makes a double click of it, in place of MouseDown and Click.
  /// Without a handler the second press is one as any other.
  Event<> DblClick;
  /// Raised when the user presses a key there, with the key's code. Keys that belong to the dialog (Tab, Enter, Escape,
  /// all with Alt) do not come here.
  Event<int> KeyDown;

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
