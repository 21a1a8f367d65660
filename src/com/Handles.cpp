#include "com/Handles.h"

#include <new>

namespace orx::com {

std::wstring Widened(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Narrowed(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  std::string narrow(
      static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
  return narrow;
}

Bstr::Bstr(std::string_view text) {
  const std::wstring wide = Widened(text);
  mText = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (!mText) throw std::bad_alloc();
}

std::string Bstr::Text() const {
  return TextOf(mText);
}

std::string TextOf(BSTR text) {
  return text ? Narrowed({text, SysStringLen(text)}) : std::string();
}

}  // namespace orx::com
