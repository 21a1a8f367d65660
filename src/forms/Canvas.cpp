#include "forms/Canvas.h"

#include <algorithm>
#include <utility>

namespace orx {

void Canvas::Draw(Mark mark) {
  mMarks.push_back(std::move(mark));
}

void Canvas::ToggleFocus(const Rect& place) {
  const Mark mark = FocusMark{place};
  const auto found = std::find(mMarks.begin(), mMarks.end(), mark);
  if (found == mMarks.end()) {
    mMarks.push_back(mark);
  } else {
    mMarks.erase(found);
  }
}

}  // namespace orx
