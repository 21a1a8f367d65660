// Drawings. A picture keeps what was drawn as a list of marks, and a desktop paints the list whenever the screen needs
// it.
#pragma once

#include <vector>

#include "forms/Marks.h"

namespace orx {

/// What was drawn, oldest mark first. Places are in pixels from the upper left corner.
class Canvas {
 public:
  /// All marks, oldest first; Draw adds one, Clear removes them all.
  const std::vector<Mark>& Marks() const { return mMarks; }
  void Clear() { mMarks.clear(); }
  void Draw(Mark mark);
  /// Draws the focus rectangle, or takes it away again when it stands at that place already.
  void ToggleFocus(const Rect& place);

 private:
  std::vector<Mark> mMarks;
};

}  // namespace orx
