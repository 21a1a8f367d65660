#include "com/Handles.h"

#include <limits>

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

ExceptionInfo::~ExceptionInfo() {
  for (const BSTR text : {bstrSource, bstrDescription, bstrHelpFile}) SysFreeString(text);
}

HRESULT ExceptionInfo::Code() {
  if (pfnDeferredFillIn) pfnDeferredFillIn(this);
  if (scode < 0) return scode;
  // A positive code would be taken for success. Some hosts put the number of the error there.
  const LONG number = wCode != 0 ? wCode : scode;
  const bool isNumber = number > 0 && number <= std::numeric_limits<WORD>::max();
  return isNumber ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number) : DISP_E_EXCEPTION;
}

}  // namespace orx::com
