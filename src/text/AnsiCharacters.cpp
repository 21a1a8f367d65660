#include "text/AnsiCharacters.h"

#include <algorithm>
#include <iterator>

namespace orx {
namespace {

constexpr int kFirst = 0x80;

/// The codes from 0x80 to 0x9F; all others are their own code points.
constexpr char32_t kCharacters[] = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                    0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                    0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                    0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

bool IsListed(char32_t code) {
  return code >= kFirst && code < kFirst + std::size(kCharacters);
}

}  // namespace

char32_t AnsiCharacter(int code) {
  const auto character = static_cast<char32_t>(code);
  return IsListed(character) ? kCharacters[code - kFirst] : character;
}

std::optional<int> AnsiCode(char32_t character) {
  const auto* const found = std::ranges::find(kCharacters, character);
  if (found != std::end(kCharacters)) return kFirst + static_cast<int>(found - std::begin(kCharacters));
  if (character > 0xFF || IsListed(character)) return std::nullopt;
  return static_cast<int>(character);
}

}  // namespace orx
