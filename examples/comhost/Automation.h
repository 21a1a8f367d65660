// IUnknown and IDispatch for a host's objects, by way of the component's type library.
#pragma once

#include <OrvexMapDialogs2.h>

/// An object with one dual interface of the type library. It lives on the stack or as a member of the host: the dialogs
/// are done with it when the call that showed them has returned, so its references need not be counted.
template <class Interface>
class AutomationObject : public Interface {
 public:
  virtual ~AutomationObject() {
    if (mInfo) mInfo->Release();
  }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(Interface);
    *object = known ? static_cast<Interface*>(this) : nullptr;
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
    *info = Info();
    if (!*info) return TYPE_E_ELEMENTNOTFOUND;
    (*info)->AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
    return Info() ? DispGetIDsOfNames(Info(), names, count, ids) : TYPE_E_ELEMENTNOTFOUND;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                                   EXCEPINFO* error, UINT* wrong) override {
    if (!Info()) return TYPE_E_ELEMENTNOTFOUND;
    return DispInvoke(static_cast<Interface*>(this), Info(), id, flags, arguments, result, error, wrong);
  }

 private:
  ITypeInfo* Info() {
    ITypeLib* library = nullptr;
    if (!mInfo && SUCCEEDED(LoadRegTypeLib(LIBID_OrvexMapDialogs2, 2, 0, 0, &library))) {
      library->GetTypeInfoOfGuid(__uuidof(Interface), &mInfo);
      library->Release();
    }
    return mInfo;
  }

  ITypeInfo* mInfo = nullptr;
};
