// Looks over a form that is shown: is any text cut off, does anything stand outside of what it stands in, or upon its
// neighbour? Meant for every dialog, at every screen resolution.
#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/Geometry.h"

namespace orx::test {

/// The room that a text has, and the size that it needs, in pixels.
struct TextFit {
  Size Room;
  Size Need;
  bool Holds() const { return Need.Width <= Room.Width && Need.Height <= Room.Height; }
};

/// What the native windows of a desktop's controls show.
class NativeLayout {
 public:
  virtual ~NativeLayout() = default;
  virtual bool IsSeen(const Control& control) const = 0;
  /// The fit of whatever text the control shows.
  virtual TextFit FitOf(const Control& control, const Form& form) const = 0;
  /// In the form's window, in pixels.
  virtual Rect PlaceOf(const Control& control) const = 0;
  virtual bool StandsInParent(const Control& control) const = 0;
  virtual bool CoversTitleOfParent(const Control& control) const = 0;
};

/// That of the desktop which the test program is linked with.
const NativeLayout& LayoutOfDesktop();

/// What is wrong, one line for each finding with the names of the controls; empty when all is well. Only what can be
/// seen is looked at, so open each tab in turn.
std::vector<std::string> LayoutProblems(const Form& form);

}  // namespace orx::test
