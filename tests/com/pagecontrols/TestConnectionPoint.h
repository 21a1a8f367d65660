// The place where the events of the test control are heard: one listener at a time.
#pragma once

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

#include "com/Counted.h"

namespace orx::test {

class TestConnectionPoint final : public com::Counted<IConnectionPoint> {
 public:
  explicit TestConnectionPoint(const IID& source) : mSource(source) {}
  /// Who listens, empty for nobody.
  com::ComPtr<IDispatch> Listener;

  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) noexcept override {
    *iid = mSource;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer**) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) noexcept override {
    // As the controls of most makers do, it asks for the event interface itself.
    if (FAILED(listener->QueryInterface(mSource, Listener.OutVoid()))) return CONNECT_E_CANNOTCONNECT;
    *cookie = 7;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override {
    if (cookie != 7 || !Listener) return CONNECT_E_NOCONNECTION;
    Listener.Reset();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections**) noexcept override { return E_NOTIMPL; }

 private:
  IID mSource;
};

}  // namespace orx::test
