// A box to draw in: previews, colours, the map of the demo host.
#pragma once

#include "forms/Appearance.h"
#include "forms/Canvas.h"
#include "forms/Control.h"

namespace orx {

/// Shows a drawing on a ground of one colour.
class PictureBox final : public Control {
 public:
  /// As Control; automatic redraw is on at first.
  PictureBox(Container& parent, std::string name, Design design, Color backColor = {255, 255, 255})
      : Control(parent, std::move(name), std::move(design)), mBackColor(backColor) {}

  /// The ground that the drawing stands on; a new one repaints the box.
  Color BackColor() const { return mBackColor; }
  void BackColor(Color value);

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

  bool TakesFocus() const override { return false; }
  void Accept(ControlVisitor& visitor) override;

 private:
  Color mBackColor;
  bool mAutoRedraw = true;
  Canvas mDrawing;
};

}  // namespace orx
