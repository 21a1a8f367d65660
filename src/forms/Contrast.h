// How well two colours can be told apart.
#pragma once

#include "forms/Appearance.h"

namespace orx {

/// The ratio of what two colours give off, as the eye weighs it: from 1 for equal ones to 21 for black and white.
double Contrast(Color one, Color other);

/// The ink of what is disabled or only a substitute: paler than `ink`, but on `ground` it can still be read, by a
/// contrast of at least 4.5 if the ink has that.
Color FadedInk(Color ink, Color ground);

}  // namespace orx
