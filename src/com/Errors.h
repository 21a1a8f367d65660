// The one translation of errors at the boundary: exceptions become error codes with rich error information, error codes
// of host objects become exceptions.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <type_traits>

#include "com/Handles.h"
#include "hostobjects/RunTimeError.h"

namespace orx::com {

/// What an object of a host tells of an error that it raises; texts are UTF-8.
struct ErrorTexts {
  std::string Description;
  /// The name of the program or class.
  std::string Source;
};

/// An error that an object of a host has raised, with the source that it names.
class HostError final : public RunTimeError {
 public:
  HostError(std::int32_t number, const ErrorTexts& texts)
      : RunTimeError(number, texts.Description), mSource(texts.Source) {}

  const std::string& Source() const { return mSource; }

 private:
  std::string mSource;
};

/// The member that returns an error: the name of its class and, if it has one, its interface.
struct ErrorPlace {
  // Implicit, since most places have a name only.
  ErrorPlace(const char* name, const IID& interfaceId = IID_NULL) : Name(name), Interface(interfaceId) {}

  const char* Name;
  const IID& Interface;
};

/// Turns the exception that is being handled into an error code and leaves its description as the thread's error
/// information (IErrorInfo) with the interface and the source "OrvexMapDialogs2.<name>", or the source that the host
/// has named. For a catch block only. A RunTimeError with an automation error number (1 to 0xFFFF) becomes 0x800A0000 +
/// number; one that came from a failed call keeps that call's code.
HRESULT ReturnError(const ErrorPlace& place) noexcept;

/// Throws HostError when `result` is a failure: number from the code, texts as told by the failed call, or from the
/// thread's error information (taken away by this), or from the system; `what` names the member or step that failed.
void Check(HRESULT result, const std::string& what, ErrorTexts told = {});

/// An argument that a member writes to or reads from, by its name.
struct NamedPlace {
  const char* Name;
  const void* Place;
};

/// Throws RunTimeError (E_POINTER) that names the first argument which is a null pointer.
void RequirePlaces(std::initializer_list<NamedPlace> places);

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
HRESULT Guarded(const ErrorPlace& place, Body&& body) noexcept {
  try {
    body();
    return S_OK;
  } catch (...) {
    return ReturnError(place);
  }
}

/// Stores the result of `read` in an [out] argument. E_POINTER when it is null. After an error a pointer is null, and
/// any other value is unchanged.
template <class Place, class Read>
HRESULT Give(const ErrorPlace& where, Place* place, Read&& read) noexcept {
  return Guarded(where, [&] {
    RequirePlaces({{"The result", place}});
    if constexpr (std::is_pointer_v<Place>) *place = nullptr;
    *place = Given(read());
  });
}

}  // namespace orx::com
