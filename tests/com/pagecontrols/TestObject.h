// An automation object of a host with one property, Name, reached by name only.
#pragma once

#include <windows.h>

#include <string>

#include "com/Counted.h"

namespace orx::test {

class TestObject final : public com::Counted<IDispatch> {
 public:
  explicit TestObject(std::string name) : Name(std::move(name)) {}
  std::string Name;

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) noexcept override {
    *count = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) noexcept override {
    ids[0] = lstrcmpiW(names[0], L"Name") == 0 ? 1 : DISPID_UNKNOWN;
    return ids[0] == 1 ? S_OK : DISP_E_UNKNOWNNAME;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD flags, DISPPARAMS* given, VARIANT* result, EXCEPINFO*,
                                   UINT*) noexcept override {
    if (flags & DISPATCH_PROPERTYPUT) {
      Name = com::TextOf(given->rgvarg[0].bstrVal);
    } else if (result) {
      result->vt = VT_BSTR;
      result->bstrVal = com::Bstr(Name).Detach();
    }
    return S_OK;
  }
};

}  // namespace orx::test
