// How keys and typed letters go through the rows of a list, whatever the rows are.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace orx {

/// Rows by their position from 0, of which one may be the current one; -1 for none.
struct RowSpan {
  int Count = 0;
  int Current = -1;
};

/// The position that a key leads to: Up, Down, Home, End, Page Up and Page Down, where a page has so many rows. None
/// for other keys and for a list without rows.
std::optional<int> PositionAfterKey(int keyCode, RowSpan rows, int pageRows);

/// The letters that a user types in a list to find a row that begins with them. After a pause of a second a letter
/// begins a new search; the same letter again and again goes from one row to the next.
class TypeAhead {
 public:
  /// Takes one more character. The position of the next row that begins with what was typed, in whatever case, behind
  /// the last one again from the first; none when there is none and for characters that nothing begins with.
  std::optional<int> Type(char32_t character, RowSpan rows, const std::function<const std::string&(int)>& textAt);
  /// True while a search goes on, so that a blank belongs to it.
  bool IsTyping() const;

 private:
  std::u32string mTyped;
  std::chrono::steady_clock::time_point mTypedAt;
};

}  // namespace orx
