// Colours of the library and of automation objects.
#pragma once

#include <cstdint>

#include "com/Handles.h"
#include "forms/Appearance.h"

namespace orx::com {

/// The colour of a number 0x00BBGGRR, or of a colour of the system (0x80000000 with its index). Throws RunTimeError for
/// what is no number.
Color ColorOf(const VARIANT& value);
/// The number of a colour.
std::int32_t OleColorOf(Color color);

}  // namespace orx::com
