// Texts of files and fields without the blanks around them.
#pragma once

#include <string_view>

namespace orx::maplibrary {

/// The text without the blanks of one line at its ends.
inline std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\v\f";
  const auto first = text.find_first_not_of(kBlanks);
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace orx::maplibrary
