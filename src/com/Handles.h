// The owners of COM resources: interface pointers, strings, variants, error information and system-allocated text. The
// owners of arrays and type descriptions are in SafeArray.h and TypeDescriptions.h. Nothing but an owner frees its
// resource.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "desktops/win32/Text.h"

namespace orx::com {

/// A counted reference to an interface.
template <class Interface>
class ComPtr {
 public:
  ComPtr() = default;
  /// Adds a reference of its own.
  explicit ComPtr(Interface* pointer) : mPointer(pointer) {
    if (mPointer) mPointer->AddRef();
  }
  ComPtr(const ComPtr& other) : ComPtr(other.mPointer) {}
  ComPtr(ComPtr&& other) noexcept : mPointer(std::exchange(other.mPointer, nullptr)) {}
  ~ComPtr() { Reset(); }
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(mPointer, other.mPointer);
    return *this;
  }

  /// Takes over a reference that the caller holds.
  static ComPtr Attach(Interface* pointer) {
    ComPtr taken;
    taken.mPointer = pointer;
    return taken;
  }
  /// Hands the reference over to the caller.
  Interface* Detach() { return std::exchange(mPointer, nullptr); }
  void Reset() {
    if (Interface* const gone = std::exchange(mPointer, nullptr)) gone->Release();
  }

  Interface* Get() const { return mPointer; }
  Interface* operator->() const { return mPointer; }
  explicit operator bool() const { return mPointer != nullptr; }

  /// For functions that return an interface through an argument.
  Interface** Out() {
    Reset();
    return &mPointer;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

  /// Another interface of the object; empty when the object does not have it.
  template <class Other>
  ComPtr<Other> As(const IID& iid = __uuidof(Other)) const {
    return mPointer ? ComPtr<Other>::From(mPointer, iid) : ComPtr<Other>();
  }
  /// An interface of any object; empty when there is no object or the object does not have it.
  static ComPtr From(IUnknown* object, const IID& iid = __uuidof(Interface)) {
    ComPtr found;
    if (object && FAILED(object->QueryInterface(iid, found.OutVoid()))) found.mPointer = nullptr;
    return found;
  }

 private:
  Interface* mPointer = nullptr;
};

using win32::Narrowed;
using win32::Widened;

/// A string of the automation library. Empty and null are the same text.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view text);
  Bstr(Bstr&& other) noexcept : mText(std::exchange(other.mText, nullptr)) {}
  Bstr& operator=(Bstr&& other) noexcept {
    std::swap(mText, other.mText);
    return *this;
  }
  ~Bstr() { SysFreeString(mText); }

  BSTR Get() const { return mText; }
  BSTR Detach() { return std::exchange(mText, nullptr); }
  BSTR* Out() {
    *this = Bstr();
    return &mText;
  }
  /// For functions that replace the string through an argument.
  BSTR* InOut() { return &mText; }
  /// Swaps the string with a caller's variable, which then owns what was here.
  void SwapWith(BSTR& other) noexcept { std::swap(mText, other); }
  std::string Text() const;

 private:
  BSTR mText = nullptr;
};

/// The text of a string that belongs to somebody else; null is the empty text.
std::string TextOf(BSTR text);

/// A variant that clears itself.
class Variant : public VARIANT {
 public:
  Variant() { VariantInit(this); }
  explicit Variant(std::int32_t value) : Variant() {
    vt = VT_I4;
    lVal = value;
  }
  explicit Variant(std::int16_t value) : Variant() {
    vt = VT_I2;
    iVal = value;
  }
  explicit Variant(double value) : Variant() {
    vt = VT_R8;
    dblVal = value;
  }
  explicit Variant(bool value) : Variant() {
    vt = VT_BOOL;
    boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Variant(std::string_view text) : Variant() {
    bstrVal = Bstr(text).Detach();
    vt = VT_BSTR;
  }
  explicit Variant(const char* text) : Variant(std::string_view(text)) {}
  explicit Variant(IDispatch* object) : Variant() {
    pdispVal = ComPtr<IDispatch>(object).Detach();
    vt = VT_DISPATCH;
  }
  Variant(const Variant& other) : Variant() {
    // Some of the platform's headers take the source without const.
    if (FAILED(VariantCopy(this, const_cast<Variant*>(&other)))) throw std::bad_alloc();
  }
  Variant(Variant&& other) noexcept : VARIANT(other) { VariantInit(&other); }
  Variant& operator=(Variant&& other) noexcept {
    std::swap(static_cast<VARIANT&>(*this), static_cast<VARIANT&>(other));
    return *this;
  }
  ~Variant() { Clear(); }

  void Clear() { VariantClear(this); }
  /// For functions that return a value through an argument.
  VARIANT* Out() {
    Clear();
    return this;
  }
  /// Hands the value over to the caller.
  VARIANT Detach() { return std::exchange(static_cast<VARIANT&>(*this), VARIANT{}); }
  /// Swaps the value with a caller's variable, which then owns what was here.
  void SwapWith(VARIANT& other) noexcept { std::swap(static_cast<VARIANT&>(*this), other); }
};

/// The error information of a late-bound call.
class ExceptionInfo : public EXCEPINFO {
 public:
  ExceptionInfo() : EXCEPINFO{} {}
  ~ExceptionInfo();
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;

  /// The error code. This also completes information that the callee has deferred, so call it before reading the texts.
  HRESULT Code();
};

struct LocalDeleter {
  void operator()(void* memory) const { LocalFree(memory); }
};
/// A text that the system has allocated for its caller on the local heap.
using LocalText = std::unique_ptr<wchar_t, LocalDeleter>;

}  // namespace orx::com
