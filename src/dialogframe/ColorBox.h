// A box that shows a colour and has the user choose another one.
#pragma once

#include "forms/Appearance.h"
#include "forms/Event.h"

namespace orx {

class PictureBox;

/// A picture box whose ground is the colour. A click opens the platform's dialog for colours, and so does every key but
/// Shift; while the box has the focus it wears a mark. It takes the box's Click, KeyDown, GotFocus and LostFocus
/// events, and the box must live as long.
class ColorBox {
 public:
  explicit ColorBox(PictureBox& box);
  ColorBox(const ColorBox&) = delete;
  ColorBox& operator=(const ColorBox&) = delete;

  /// Draws a thin line around the box, so that a pale colour tells where it ends.
  void DrawEdge();

  /// Raised when the user has chosen a colour other than the one shown. The box shows it already.
  Event<Color> Chosen;

 private:
  void Choose();

  PictureBox& mBox;
};

}  // namespace orx
