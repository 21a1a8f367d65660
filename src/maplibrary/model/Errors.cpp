#include "maplibrary/model/Errors.h"

#include <cmath>

namespace orx::maplibrary {

void RequireIndex(const char* what, std::int32_t index, std::int32_t first, std::int32_t last) {
  if (index >= first && index <= last) return;
  const std::string range =
      last < first ? "there is none" : "give an index from " + std::to_string(first) + " to " + std::to_string(last);
  throw RunTimeError(kErrorSubscript,
                     std::string("Subscript out of range: ") + what + " " + std::to_string(index) + ", " + range + ".");
}

void RequireFinite(const char* name, double value) {
  if (std::isfinite(value)) return;
  throw RunTimeError(kErrorInvalidValue, std::string(name) + " must be a finite number.");
}

void RequireRange(const char* name, std::int32_t value, std::int32_t low, std::int32_t high) {
  if (value >= low && value <= high) return;
  throw RunTimeError(kErrorInvalidValue,
                     std::string(name) + " must be from " + std::to_string(low) + " to " + std::to_string(high) + ".");
}

void RequireNotNegative(const char* name, double value) {
  if (value >= 0 && std::isfinite(value)) return;
  throw RunTimeError(kErrorInvalidValue, std::string(name) + " must be a number that is not negative.");
}

namespace {

constexpr double kMaxClassPixels = 1000;

void RequireUpTo(const char* name, double value, double most, const char* unit) {
  if (value >= 0 && value <= most) return;
  throw RunTimeError(kErrorInvalidValue, std::string(name) + " must be from 0 to " +
                                             std::to_string(static_cast<int>(most)) + " " + unit + ".");
}

}  // namespace

void RequireSize(const char* name, double value) {
  RequireUpTo(name, value, kMaxTextPoints, "points");
}

void RequireClassSize(const char* name, double value) {
  RequireUpTo(name, value, kMaxClassPixels, "pixels");
}

}  // namespace orx::maplibrary
