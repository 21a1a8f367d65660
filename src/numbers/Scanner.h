// Reads a text from front to back, piece by piece, for the conversion of numbers.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace orx::numbers {

inline bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) : mRest(text) {}

  bool AtEnd() const { return mRest.empty(); }
  std::string_view Rest() const { return mRest; }

  /// Takes `token` when the rest starts with it; an empty token is never there.
  bool Take(std::string_view token) {
    if (token.empty() || !mRest.starts_with(token)) return false;
    mRest.remove_prefix(token.size());
    return true;
  }

  bool TakeAny(std::initializer_list<std::string_view> tokens) {
    return std::ranges::any_of(tokens, [this](std::string_view token) { return Take(token); });
  }

  std::string_view TakeDigits() {
    const auto end = std::ranges::find_if_not(mRest, IsDigit);
    const std::string_view digits(mRest.begin(), end);
    mRest.remove_prefix(digits.size());
    return digits;
  }

  /// Takes white space, the no-break spaces included.
  void TakeBlanks() {
    while (TakeAny({" ", "\t", "\n", "\v", "\f", "\r", "\u00A0", "\u202F"})) {
    }
  }

 private:
  std::string_view mRest;
};

}  // namespace orx::numbers
