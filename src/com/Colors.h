// Colours of the library and of automation objects.
#pragma once

#include <cstdint>

#include "com/Handles.h"
#include "com/LateBound.h"
#include "forms/Appearance.h"

namespace orx::com {

/// The colour of a number 0x00BBGGRR, or of a colour of the system (0x80000000 with its index). Throws RunTimeError for
/// what is no number.
Color ColorOf(const VARIANT& value);
/// The number of a colour.
std::int32_t OleColorOf(Color color);

/// The member "Color" of an object. A colour of the system stays one as long as the same colour is put back.
Color ColorMember(const LateBound& object);
void ColorMember(const LateBound& object, Color value);

}  // namespace orx::com
