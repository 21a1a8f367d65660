// Letter case of the plain Latin letters, for names in files, formats and file types; all other characters stay.
#pragma once

#include <string>
#include <string_view>

namespace orx {

/// `text` with A to Z in place of a to z.
inline std::string AsciiUpperCase(std::string_view text) {
  std::string upper(text);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

/// `text` with a to z in place of A to Z.
inline std::string AsciiLowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

}  // namespace orx
