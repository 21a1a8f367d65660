#include "desktops/win32/Accessible.h"

#include <initguid.h>
// After initguid.h, which makes this header define the identifiers.
#include <oleacc.h>

#include <memory>

#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};

/// Null on a thread that has not initialised COM; a guest must not do that for its host.
std::unique_ptr<IAccPropServices, Releaser> Services() {
  IAccPropServices* services = nullptr;
  CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                   reinterpret_cast<void**>(&services));
  return std::unique_ptr<IAccPropServices, Releaser>(services);
}

MSAAPROPID Property(Spoken what) {
  return what == Spoken::Name ? PROPID_ACC_NAME : PROPID_ACC_DESCRIPTION;
}

void Clear(HWND window, Spoken what) {
  const MSAAPROPID property = Property(what);
  if (const auto services = Services())
    services->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &property, 1);
}

}  // namespace

bool SetAccessible(HWND window, Spoken what, const std::string& text) {
  if (text.empty()) return Clear(window, what), false;
  const auto services = Services();
  return services && SUCCEEDED(services->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                                        Property(what), Widened(text).c_str()));
}

void ForgetAccessible(HWND window) {
  for (const Spoken what : {Spoken::Name, Spoken::Description}) Clear(window, what);
}

}  // namespace orx::win32
