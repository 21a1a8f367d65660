// The base of the component server's COM objects: it counts references and answers QueryInterface from a list of
// interfaces.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <utility>

#include "com/Handles.h"

namespace orx::com {

// The system's interfaces have no virtual destructors: their objects are destroyed by Release alone.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The base of an object with these interfaces. It starts with one reference; make it with MakeCounted.
template <class First, class... Others>
class Counted : public First, public Others... {
 public:
  Counted() = default;
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    if (!object) return E_POINTER;
    *object = Find(iid);
    if (!*object) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return static_cast<ULONG>(InterlockedIncrement(&mCount)); }
  ULONG STDMETHODCALLTYPE Release() noexcept override {
    const LONG left = InterlockedDecrement(&mCount);
    if (left == 0) delete this;
    return static_cast<ULONG>(left);
  }

 protected:
  virtual ~Counted() = default;

  /// A pointer to exactly that interface; null when the object does not have it. Override this to add the bases of
  /// interfaces in the list.
  virtual void* Find(REFIID iid) noexcept {
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, __uuidof(First))) return static_cast<First*>(this);
    void* found = nullptr;
    ((found = !found && IsEqualIID(iid, __uuidof(Others)) ? static_cast<Others*>(this) : found), ...);
    return found;
  }

 private:
  volatile LONG mCount = 1;
};

#pragma GCC diagnostic pop

/// Makes a counted object.
template <class Object, class... Args>
ComPtr<Object> MakeCounted(Args&&... args) {
  return ComPtr<Object>::Attach(new Object(std::forward<Args>(args)...));
}

}  // namespace orx::com
