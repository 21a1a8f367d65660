// A box that shows a colour and lets the user choose another one.
#pragma once

#include "forms/Appearance.h"
#include "forms/Event.h"

namespace orx {

class PictureBox;

/// Shows the colour as the background of a picture box. A click or any key but Shift opens the platform's colour
/// dialog, and a focus rectangle marks the box while it has the focus. Takes over the Click, KeyDown, GotFocus and
/// LostFocus events of the box, which must outlive it.
class ColorBox {
 public:
  explicit ColorBox(PictureBox& box);
  ColorBox(const ColorBox&) = delete;
  ColorBox& operator=(const ColorBox&) = delete;

  /// Draws a thin outline, without which a pale colour would blend into the form.
  void DrawEdge();

  /// Raised when the user has chosen a different colour, after the box has taken it on.
  Event<Color> Chosen;

 private:
  void Choose();

  PictureBox& mBox;
};

}  // namespace orx
