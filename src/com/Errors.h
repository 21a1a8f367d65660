// The one translation of errors at the boundary: exceptions become error codes with rich error information, error codes
// of host objects become exceptions.
#pragma once

#include <windows.h>

#include <string>
#include <type_traits>

#include "com/Handles.h"

namespace orx::com {

/// Turns the exception that is being handled into an error code and leaves its description, UTF-8, as the thread's
/// error information (IErrorInfo) with the source "OrvexMapDialogs2.<source>". For a catch block only. A RunTimeError
/// with an automation error number (1 to 0xFFFF) becomes 0x800A0000 + number; one that came from a failed call keeps
/// that call's code.
HRESULT ReturnError(const char* source) noexcept;

/// Throws RunTimeError when `result` is a failure: number from the code, description from the thread's error
/// information (taken away by this) or from the system; `what` names the member or step that failed.
void Check(HRESULT result, const std::string& what);

/// Throws RunTimeError with a description that was collected elsewhere (EXCEPINFO of a late-bound call).
[[noreturn]] void ThrowError(HRESULT result, const std::string& description);

/// Converts results of the library to what [out] arguments carry. The caller owns strings and references.
inline BSTR Given(const std::string& text) {
  return Bstr(text).Detach();
}
inline VARIANT_BOOL Given(bool value) {
  return value ? VARIANT_TRUE : VARIANT_FALSE;
}
inline std::int32_t Given(std::int32_t value) {
  return value;
}
template <class Interface>
Interface* Given(ComPtr<Interface> object) {
  return object.Detach();
}

/// Runs the body of a boundary method. Returns S_OK, or the error code of the exception.
template <class Body>
HRESULT Guarded(const char* source, Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return ReturnError(source);
  }
}

/// Stores the result of `read` in an [out] argument. E_POINTER when it is null. After an error a pointer is null, and
/// any other value is unchanged.
template <class Place, class Read>
HRESULT Give(const char* source, Place* place, Read&& read) noexcept {
  if (!place) return E_POINTER;
  if constexpr (std::is_pointer_v<Place>) *place = nullptr;
  return Guarded(source, [&] { *place = Given(read()); });
}

}  // namespace orx::com
