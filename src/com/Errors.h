// The one translation of errors at the boundary: exceptions become error codes with rich error information, error codes
// of host objects become exceptions.
#pragma once

#include <windows.h>

#include <string>

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

/// Runs a boundary method's body: S_OK, or the error that its exception stands for.
template <class Body>
HRESULT Guarded(const char* source, Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return ReturnError(source);
  }
}

}  // namespace orx::com
