// What the map library requires of values that hosts hand over. All functions throw RunTimeError.
#pragma once

#include <cstdint>
#include <string>

#include "hostobjects/RunTimeError.h"

namespace orx::maplibrary {

/// Throws "Subscript out of range: ..." unless first <= index <= last. `what` names the counted things in singular.
void RequireIndex(const char* what, std::int32_t index, std::int32_t first, std::int32_t last);

/// Throws "<name> must be a finite number." for infinity and NaN.
void RequireFinite(const char* name, double value);

/// Throws "<name> must be from <low> to <high>." for any other number.
void RequireRange(const char* name, std::int32_t value, std::int32_t low, std::int32_t high);

/// Throws "<name> must be a number that is not negative." for any other.
void RequireNotNegative(const char* name, double value);

/// The largest size of a symbol or text in points.
inline constexpr double kMaxTextPoints = 1000;

/// Throws "<name> must be from 0 to 1000 points." for any other size.
void RequireSize(const char* name, double value);

/// Throws "<name> must be from 0 to 1000 pixels." for any other size.
void RequireClassSize(const char* name, double value);

}  // namespace orx::maplibrary
