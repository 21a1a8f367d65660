// The step rule of dialogs that go on without a setting that their host cannot read or write.
#pragma once

#include <functional>

#include "forms/Setting.h"
#include "hostobjects/ErrorTrap.h"

namespace orx {

/// A StepRule: what the host throws ends with the step.
inline void PassOver(Setting&, const std::function<void()>& step) noexcept {
  ErrorTrap().Step(step);
}

}  // namespace orx
