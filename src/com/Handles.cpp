#include "com/Handles.h"

#include <new>

namespace orx::com {

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
