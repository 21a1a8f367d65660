#include "forms/ScreenUpdates.h"

#include <algorithm>
#include <utility>

namespace orx {

bool ScreenUpdates::Add(const Update& update, Urgency urgency, Clock::time_point now) {
  if (std::ranges::find(mKept, update) == mKept.end()) mKept.push_back(update);
  if (now - mShown >= kPace) return true;
  if (urgency == Urgency::CanWait || now - mUrgentShown < kUrgentPace) return false;
  mUrgentShown = now;
  return true;
}

std::vector<ScreenUpdates::Update> ScreenUpdates::Take(Clock::time_point now) {
  mShown = now;
  return std::exchange(mKept, {});
}

}  // namespace orx
