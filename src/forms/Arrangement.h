// Where the parts and the controls of a form go in its window, in pixels. While the screen has room for the whole form,
// its body is the window. When it has not, the pinned controls stay at the bottom and the body scrolls above them. The
// desktops carry out what is worked out here.
#pragma once

#include "forms/FrameRoom.h"
#include "forms/Geometry.h"

namespace orx {

class Control;
class Form;

/// The free space that is kept around what scrolls, in twips: above the pinned controls, below the lowest control of
/// the body, and around a control that is scrolled into view.
inline constexpr int kScrollMargin = 60;
/// What one step of a scroll bar moves the body by, in twips.
inline constexpr int kScrollStep = 300;

/// What an arrangement follows from.
struct ArrangementInput {
  /// The client area with the room for its frames, and the part of it that the screen has room for, in twips.
  Size Client;
  Size Shown;
  /// How much wider than the shown part the screen lets the window be, in twips.
  int SpareWidth = 0;
  /// Where the pinned controls begin while nothing scrolls, and where the lowest of the others ends, each with the
  /// margin, in twips.
  int PinnedTop = 0;
  int BodyBottom = 0;
  /// Pixels in 15 twips.
  double Scale = 1;
  /// The width of a vertical scroll bar and the height of a horizontal one, in pixels.
  Size ScrollBars;
};

/// How far the body scrolls in one direction, in pixels.
struct ScrollRange {
  /// The length of the body, and how much of it is seen at a time.
  int Whole = 0;
  int Seen = 0;

  /// The position nearest to the one given at which the body can stand.
  int Clamped(int position) const;
  /// The position that brings a span into view which lies at these pixels of the seen part while the body stands at
  /// `position`. Of a span that does not fit, the beginning is shown.
  int Revealing(int low, int high, int position, int margin) const;
};

/// All sizes in pixels.
struct Arrangement {
  /// Pixels in 15 twips.
  double Scale = 1;
  /// How the frames move the controls.
  FrameRoom Frames;
  /// True when all places are mirrored from left to right.
  bool IsMirrored = false;
  /// What of the client area the window has no room for.
  Size Missing;
  /// The width that the window has beyond the shown part of the form, for the scroll bar, so that the controls lose
  /// none of theirs.
  int ExtraWidth = 0;
  /// The client area of the window.
  Size Window;
  /// The area at the upper left of the window in which the body is seen, together with its scroll bars.
  Size Pane;
  /// All that scrolls in there.
  Size Body;
  /// How far the body scrolls to the right and down.
  ScrollRange Across;
  ScrollRange Down;

  /// True when the window does not show the whole form at once.
  bool Scrolls() const { return Missing.Width > 0 || Missing.Height > 0; }
  /// The position nearest to the one given at which the body can stand.
  Point Clamped(Point position) const { return {Across.Clamped(position.X), Down.Clamped(position.Y)}; }
  /// The position that brings a place into view, given as it lies in the pane while the body stands at `position`. One
  /// that is in view already moves nothing.
  Point Revealing(const Rect& place, Point position) const;
};

/// The sizes of everything in a window.
Arrangement Arrange(const ArrangementInput& input);
/// The same for a form on its desktop, as it is now.
Arrangement Arrange(const Form& form, Size scrollBars);

/// True for a control that stays at the bottom of the window while the body of its form scrolls.
bool StandsPinned(const Control& control);
/// The place of any control in the native window that it stands in: a pinned one in the window of its form, another
/// control of the form in the body, all others in the control that holds them. All places on the screen come from here,
/// and nothing but this mirrors them.
Rect PixelPlace(const Control& control, const Arrangement& arrangement);

}  // namespace orx
