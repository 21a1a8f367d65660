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

void Canvas::Redraw(const CharacterMark& character) {
  std::erase_if(mMarks, [&](const Mark& mark) {
    const auto* const drawn = std::get_if<CharacterMark>(&mark);
    return drawn && drawn->Place == character.Place;
  });
  mMarks.push_back(character);
}

}  // namespace orx
