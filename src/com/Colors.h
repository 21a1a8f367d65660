// Colours of the library and of automation objects.
#pragma once

#include <cstdint>

#include "com/Handles.h"
#include "com/Members.h"
#include "forms/Appearance.h"

namespace orx::com {

/// Converts 0x00BBGGRR, or a system colour (0x80000000 plus its index). Throws RunTimeError when the value is not a
/// number.
Color ColorOf(const VARIANT& value);
/// The colour as 0x00BBGGRR.
std::int32_t OleColorOf(Color color);

/// The property "Color" of an object. A system colour stays a system colour as long as the same colour is written back.
Color ColorMember(const Members& object);
void ColorMember(const Members& object, Color value);

}  // namespace orx::com
