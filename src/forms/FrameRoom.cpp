#include "forms/FrameRoom.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/Frame.h"

namespace orx {
namespace {

/// The free space below the lowest control that growing contents leave in a page, in twips.
constexpr int kSpare = 60;

/// How far the contents of a frame move down in it.
int OffsetIn(const Container& container, const Desktop& desktop) {
  const auto* const frame = dynamic_cast<const Frame*>(&container);
  if (!frame) return 0;
  const bool hasCaption = !frame->Caption().empty();
  return std::max(0, desktop.FrameLine(hasCaption) - (hasCaption ? kFrameLine : 0));
}

/// The free space below the lowest control.
int RoomBelow(const Container& container, int height) {
  int lowest = 0;
  for (const Control* const control : container.Children()) lowest = std::max(lowest, control->Place().Bottom());
  return height - lowest;
}

}  // namespace

FrameRoom::FrameRoom(const Form& form) {
  mGrowth = Spread(form, form);
}

int FrameRoom::MovedBy(const Steps& steps, int height) {
  int by = 0;
  for (const Step& step : steps)
    if (step.At <= height) by += step.By;
  return by;
}

FrameRoom::Steps FrameRoom::StepsOf(const Container& container, const Form& form) {
  Steps steps;
  if (const int offset = OffsetIn(container, form.OwnerDesktop()); offset > 0) steps.push_back({0, offset});
  std::vector<Control*> children = container.Children();
  std::ranges::stable_sort(children, {}, [](const Control* control) { return control->Place().Bottom(); });
  for (Control* const child : children) {
    const Container* const inner = child->AsContainer();
    if (!inner) continue;
    // What stands beside it may have grown already.
    const Rect place = child->Place();
    const int grown = MovedBy(steps, place.Bottom()) - MovedBy(steps, place.Top);
    if (const int lacking = Spread(*inner, form) - grown; lacking > 0) steps.push_back({place.Bottom(), lacking});
  }
  return steps;
}

int FrameRoom::Spread(const Container& container, const Form& form) {
  const Steps steps = StepsOf(container, form);
  if (steps.empty()) return 0;
  mSteps[&container] = steps;
  int needed = 0;
  for (const Step& step : steps) needed += step.By;
  const auto* const page = dynamic_cast<const Control*>(&container);
  if (!page || dynamic_cast<const Frame*>(page)) return needed;
  // The height of pages that the user sizes is the user's.
  if (form.Border() != BorderStyle::Fixed) return 0;
  return std::max(0, needed - std::max(0, RoomBelow(container, page->Place().Height) - kSpare));
}

Rect FrameRoom::PlaceOf(const Control& control) const {
  Rect place = control.Place();
  const auto steps = mSteps.find(&control.Parent());
  if (steps == mSteps.end()) return place;
  const int top = place.Top + MovedBy(steps->second, place.Top);
  const int bottom = place.Bottom() + MovedBy(steps->second, place.Bottom());
  return {place.Left, top, place.Width, bottom - top};
}

}  // namespace orx
