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
    return Guarded(ObjectPlace(), [&] {
      RequirePlaces({{"The number of descriptions", count}});
      *count = 1;
    });
  }

  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
    return Describe(__uuidof(Interface), index, info);
  }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                                          DISPID* members) noexcept override {
    if (!IsEqualIID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    HRESULT found = S_OK;
    const HRESULT result = Guarded(ObjectPlace(), [&] {
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
    const HRESULT done = Guarded(ObjectPlace(), [&] {
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
  /// For GetTypeInfo.
  static HRESULT Describe(const IID& described, UINT index, ITypeInfo** info) noexcept {
    if (info) *info = nullptr;
    if (info && index != 0) return DISP_E_BADINDEX;
    return Give(ObjectPlace(), info, [&] { return TypeInfoOf(described); });
  }
  static ErrorPlace ObjectPlace() { return {"Object", __uuidof(Interface)}; }

  void* Find(REFIID iid) noexcept override {
    if (IsEqualIID(iid, IID_IDispatch)) return static_cast<IDispatch*>(static_cast<Interface*>(this));
    return Counted<Interface, ISupportErrorInfo, Others...>::Find(iid);
  }

 private:
  ModuleUse mUse;
};

/// A creatable class with that default interface, and one derived from it that has what was added later. By name all
/// members can be called.
template <class Class, class Default, class Newest = Default>
class ClassObject : public DispatchObject<Newest, IProvideClassInfo> {
  using Base = DispatchObject<Newest, IProvideClassInfo>;

 public:
  /// Describes the default interface, by which hosts know the class.
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
    return this->Describe(__uuidof(Default), index, info);
  }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) noexcept override {
    return Give(this->ObjectPlace(), info, [] { return TypeInfoOf(__uuidof(Class)); });
  }
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
    return IsEqualIID(iid, __uuidof(Default)) ? S_OK : Base::InterfaceSupportsErrorInfo(iid);
  }

 protected:
  /// Runs the body of a method that handles events: the host may release the object from within one.
  template <class Body>
  HRESULT Kept(const ErrorPlace& place, Body&& body) noexcept {
    const ComPtr<Default> keep(this);
    return Guarded(place, body);
  }

  void* Find(REFIID iid) noexcept override {
    if (IsEqualIID(iid, __uuidof(Default))) return static_cast<Default*>(this);
    return Base::Find(iid);
  }
};

}  // namespace orx::com
