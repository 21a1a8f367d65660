#include "desktops/win32/Text.h"

#include <windows.h>

#include <algorithm>

namespace orx::win32 {
namespace {

/// The number of code units of the character that starts there.
std::size_t UnitsAt(const std::wstring& text, std::size_t at) {
  if (at + 1 >= text.size()) return 1;
  const bool isPair = IS_SURROGATE_PAIR(text[at], text[at + 1]);
  return isPair || (text[at] == L'\r' && text[at + 1] == L'\n') ? 2 : 1;
}

}  // namespace

std::wstring Widened(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Narrowed(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

std::wstring ToNativeLines(std::string_view text) {
  std::wstring native;
  for (const wchar_t unit : Widened(text)) {
    if (unit == L'\n') native += L'\r';
    native += unit;
  }
  return native;
}

std::string FromNativeLines(const std::wstring& text) {
  std::wstring plain = text;
  std::erase(plain, L'\r');
  return Narrowed(plain);
}

int UnitOffset(const std::wstring& text, int character) {
  std::size_t at = 0;
  for (int passed = 0; passed < character && at < text.size(); ++passed) at += UnitsAt(text, at);
  return static_cast<int>(at);
}

int CharacterIndex(const std::wstring& text, int unitOffset) {
  int characters = 0;
  const std::size_t end = std::min(static_cast<std::size_t>(std::max(unitOffset, 0)), text.size());
  for (std::size_t at = 0; at < end; at += UnitsAt(text, at)) ++characters;
  return characters;
}

}  // namespace orx::win32
