// Texts without the blanks at their ends.
#pragma once

#include <string_view>

namespace orx {

/// The blanks that stand in one line of a file.
inline constexpr std::string_view kLineBlanks = " \t\r\v\f";
/// The only blank that names, titles and file patterns know.
inline constexpr std::string_view kSpaces = " ";

/// The part of `text` between the first and the last character that is none of `blanks`.
inline std::string_view Trimmed(std::string_view text, std::string_view blanks = kLineBlanks) {
  const auto first = text.find_first_not_of(blanks);
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace orx
