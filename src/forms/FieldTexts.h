// The messages with which fields refuse an entry, and how values are put into them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace orx {

/// The texts of the messages of CheckedField, NumberField and NumberSpan. They are keys for a translation; {1} is the
/// field's name, {2} what was entered, {3} and {4} the ends of the allowed range.
namespace fieldtexts {

/// Titles of the messages.
inline constexpr const char* kInvalidNumber = "Invalid number";
inline constexpr const char* kWrongValue = "Wrong value";
inline constexpr const char* kInvalidRange = "Invalid range";
/// The messages: no number where any or one of a range is wanted, and a number outside the range.
inline constexpr const char* kNoNumber = "{1}: \"{2}\" is not a number. Type a number.";
inline constexpr const char* kNoNumberInRange = "{1}: \"{2}\" is not a number. Type a number from {3} to {4}.";
inline constexpr const char* kOutOfRange = "{1}: {2} is not allowed. Type a number from {3} to {4}.";
/// {1} and {3} are the names of the two fields, {2} and {4} their values.
inline constexpr const char* kWrongOrder = "{1} ({2}) must be less than {3} ({4}).";

/// All of them, to test translations with.
inline constexpr const char* kAll[] = {kInvalidNumber,   kWrongValue, kInvalidRange, kNoNumber,
                                       kNoNumberInRange, kOutOfRange, kWrongOrder};

}  // namespace fieldtexts

/// `text` with {1}, {2}, ... replaced by the values in that order. A number without a value stays as it is.
std::string FillIn(std::string_view text, std::initializer_list<std::string_view> values);

}  // namespace orx
