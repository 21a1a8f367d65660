// The owners of what most of the component server handles: interface pointers, strings, variants, and memory that the
// system has allocated. SafeArray.h and TypeDescriptions.h have the rest. Only an owner gives its resource back.
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

  /// Takes over a reference that somebody else has added.
  static ComPtr Attach(Interface* pointer) {
    ComPtr taken;
    taken.mPointer = pointer;
    return taken;
  }
  /// Gives the reference away to the caller.
  Interface* Detach() { return std::exchange(mPointer, nullptr); }
  void Reset() {
    if (Interface* const gone = std::exchange(mPointer, nullptr)) gone->Release();
  }

  Interface* Get() const { return mPointer; }
  Interface* operator->() const { return mPointer; }
  explicit operator bool() const { return mPointer != nullptr; }

  /// For functions that give an interface back through an argument.
  Interface** Out() {
    Reset();
    return &mPointer;
  }
  void** OutVoid() { return reinterpret_cast<void**>(Out()); }

  /// Another interface of the object, empty when it has none.
  template <class Other>
  ComPtr<Other> As(const IID& iid = __uuidof(Other)) const {
    return mPointer ? ComPtr<Other>::From(mPointer, iid) : ComPtr<Other>();
  }
  /// The interface of any object, empty when there is no object or it has none.
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
  /// For functions that replace a string through an argument.
  BSTR* InOut() { return &mText; }
  /// Trades strings with a variable of somebody else, who takes over the other's ownership.
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
  /// For functions that give a value back through an argument.
  VARIANT* Out() {
    Clear();
    return this;
  }
  /// Gives the value away to the caller.
  VARIANT Detach() { return std::exchange(static_cast<VARIANT&>(*this), VARIANT{}); }
  /// Trades values with a variable of somebody else, who takes over the other's ownership.
  void SwapWith(VARIANT& other) noexcept { std::swap(static_cast<VARIANT&>(*this), other); }
};

/// What a failed late-bound call tells about its error.
class ExceptionInfo : public EXCEPINFO {
 public:
  ExceptionInfo() : EXCEPINFO{} {}
  ~ExceptionInfo();
  ExceptionInfo(const ExceptionInfo&) = delete;
  ExceptionInfo& operator=(const ExceptionInfo&) = delete;

  /// The error code. Fills in what the callee has left for later, so ask for it before the texts.
  HRESULT Code();
};

struct LocalDeleter {
  void operator()(void* memory) const { LocalFree(memory); }
};
/// A text that the system has allocated for its caller on the local heap.
using LocalText = std::unique_ptr<wchar_t, LocalDeleter>;

}  // namespace orx::com
