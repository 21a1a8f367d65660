// Texts between the library (UTF-8) and the platform (UTF-16), and positions in both.
#pragma once

#include <string>
#include <string_view>

namespace orx::win32 {

/// UTF-8 to and from UTF-16. Invalid sequences become the replacement character.
std::wstring Widened(std::string_view text);
std::string Narrowed(std::wstring_view text);

/// A text of several lines, as native fields keep it: lines end with "\r\n" there, with "\n" in the form.
std::wstring ToNativeLines(std::string_view text);
std::string FromNativeLines(const std::wstring& text);

/// Positions in a native text: characters (a pair of surrogates is one, a line end is one) to code units and back.
int UnitOffset(const std::wstring& text, int character);
int CharacterIndex(const std::wstring& text, int unitOffset);

}  // namespace orx::win32
