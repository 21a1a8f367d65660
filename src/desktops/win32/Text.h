// Texts between the library and the platform: UTF-8 here, UTF-16 there, and the positions in both.
#pragma once

#include <string>
#include <string_view>

namespace orx::win32 {

/// UTF-8 to and from UTF-16. What is no text on one side becomes the replacement character on the other.
std::wstring Widened(std::string_view text);
std::string Narrowed(std::wstring_view text);

/// A text of several lines as fields keep it: lines end with "\r\n" there and with "\n" in the form.
std::wstring ToNativeLines(std::string_view text);
std::string FromNativeLines(const std::wstring& text);

/// Positions in a native text: characters (a pair of surrogates is one, a line end is one) to code units and back.
int UnitOffset(const std::wstring& text, int character);
int CharacterIndex(const std::wstring& text, int unitOffset);

}  // namespace orx::win32
