// Forms are designed for frames whose line runs through their caption. Where a desktop's style draws frames in another
// way, their contents keep their distance to the line: they move down, the frames grow, and so does what holds them
// unless it has room to spare.
#pragma once

#include <map>
#include <vector>

#include "forms/Geometry.h"

namespace orx {

class Container;
class Control;
class Form;

/// How much the controls of a form move and grow, as its desktop draws frames (Desktop::FrameLine). All in twips.
class FrameRoom {
 public:
  /// For controls that stay as they are designed.
  FrameRoom() = default;
  /// For a form as it is now.
  explicit FrameRoom(const Form& form);

  /// What the client area of the form needs beyond its design.
  int Growth() const { return mGrowth; }
  /// The place of a control as designed, and as it is with the room for the frames above and in it.
  Rect PlaceOf(const Control& control) const;

 private:
  /// What stands at a height or below it moves down.
  struct Step {
    int At;
    int By;
  };
  using Steps = std::vector<Step>;

  static int MovedBy(const Steps& steps, int height);
  int Spread(const Container& container, const Form& form);
  Steps StepsOf(const Container& container, const Form& form);

  std::map<const Container*, Steps> mSteps;
  int mGrowth = 0;
};

}  // namespace orx
