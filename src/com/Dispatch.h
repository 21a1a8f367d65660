// The base of all objects of the component server that hosts call: their dual interface by slots, by number and by
// name, and rich error information.
#pragma once

#include <windows.h>

#include <cguid.h>
#include <ocidl.h>

#include "com/Counted.h"
#include "com/Errors.h"
#include "com/Invoke.h"
#include "com/ModuleUse.h"
#include "com/TypeLibrary.h"

namespace orx::com {

/// An object with one dual interface of the type library. While it lives the module stays loaded.
template <class Interface, class... Others>
class DispatchObject : public Counted<Interface, ISupportErrorInfo, Others...> {
 public:
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    return Guarded("Object", [&] {
      RequirePlaces({{"The number of descriptions", count}});
      *count = 1;
    });
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
    if (info) *info = nullptr;
    if (info && index != 0) return DISP_E_BADINDEX;
    return Give("Object", info, [] { return TypeInfoOf(__uuidof(Interface)); });
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                          DISPID* members) noexcept override {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    HRESULT found = S_OK;
    const HRESULT result = Guarded("Object", [&] {
      RequirePlaces({{"The names", names}, {"The numbers", members}});
      found = TypeInfoOf(__uuidof(Interface))->GetIDsOfNames(names, count, members);
    });
    return FAILED(result) ? result : found;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* error, UINT* wrongArgument) noexcept override {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    // The host may release the object from within the call, which keeps what it still needs.
    const ModuleUse use;
    HRESULT invoked = S_OK;
    const HRESULT done = Guarded("Object", [&] {
      RequirePlaces({{"The list of arguments", parameters}});
      invoked = InvokeMember(*TypeInfoOf(__uuidof(Interface)).Get(), static_cast<Interface*>(this),
                             {member, locale, flags, parameters, result, error, wrongArgument});
    });
    return FAILED(done) ? done : invoked;
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
    return IsEqualIID(iid, __uuidof(Interface)) || IsEqualIID(iid, IID_IDispatch) ? S_OK : S_FALSE;
  }

 protected:
  /// As those of Errors.h, for members of this interface.
  template <class Body>
  static HRESULT Guarded(const char* name, Body&& body) noexcept {
    return com::Guarded({name, __uuidof(Interface)}, body);
  }
  template <class Place, class Read>
  static HRESULT Give(const char* name, Place* place, Read&& read) noexcept {
    return com::Give({name, __uuidof(Interface)}, place, read);
  }

  void* Find(REFIID iid) noexcept override {
    if (IsEqualIID(iid, IID_IDispatch)) return static_cast<IDispatch*>(static_cast<Interface*>(this));
    return Counted<Interface, ISupportErrorInfo, Others...>::Find(iid);
  }

 private:
  ModuleUse mUse;
};

/// A creatable class with that default interface.
template <class Class, class Interface>
class ClassObject : public DispatchObject<Interface, IProvideClassInfo> {
 public:
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override {
    return this->Give("Object", info, [] { return TypeInfoOf(__uuidof(Class)); });
  }

 protected:
  /// Runs the body of a method that handles events: the host may release the object from within one.
  template <class Body>
  HRESULT Kept(const char* name, Body&& body) noexcept {
    const ComPtr<Interface> keep(this);
    return this->Guarded(name, body);
  }
};

}  // namespace orx::com
