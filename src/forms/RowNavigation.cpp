#include "forms/RowNavigation.h"

#include <algorithm>
#include <string_view>

#include "forms/Keys.h"
#include "text/Utf8Text.h"

namespace orx {
namespace {

constexpr std::chrono::milliseconds kTypingPause{1000};

}  // namespace

std::optional<int> PositionAfterKey(int keyCode, RowSpan rows, int pageRows) {
  if (rows.Count == 0) return std::nullopt;
  const auto within = [&](int position) { return std::clamp(position, 0, rows.Count - 1); };
  switch (keyCode) {
    case kKeyCodeUp:
      return within(rows.Current - 1);
    case kKeyCodeDown:
      return within(rows.Current + 1);
    case kKeyCodePageUp:
      return within(rows.Current - pageRows + 1);
    case kKeyCodePageDown:
      return within(rows.Current + pageRows - 1);
    case kKeyCodeHome:
      return 0;
    case kKeyCodeEnd:
      return rows.Count - 1;
    default:
      return std::nullopt;
  }
}

bool TypeAhead::IsTyping() const {
  return !mTyped.empty() && std::chrono::steady_clock::now() - mTypedAt <= kTypingPause;
}

std::optional<int> TypeAhead::Type(char32_t character, RowSpan rows,
                                   const std::function<const std::string&(int)>& textAt) {
  if (!IsTyping()) mTyped.clear();
  // A blank cannot begin a search.
  if (character < U' ' || (character == U' ' && mTyped.empty())) return std::nullopt;
  mTypedAt = std::chrono::steady_clock::now();
  mTyped += character;
  const bool isRepeated = std::ranges::all_of(mTyped, [&](char32_t each) { return each == mTyped.front(); });
  const std::u32string_view start = isRepeated ? std::u32string_view(mTyped).substr(0, 1) : mTyped;
  const int first = rows.Current < 0 ? 0 : rows.Current + (start.size() == 1 ? 1 : 0);
  for (int step = 0; step < rows.Count; ++step) {
    const int position = (first + step) % rows.Count;
    if (BeginsWith(textAt(position), start)) return position;
  }
  return std::nullopt;
}

}  // namespace orx
