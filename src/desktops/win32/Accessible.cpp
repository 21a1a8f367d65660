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

}  // namespace

bool SetAccessibleName(HWND window, const std::string& name) {
  if (name.empty()) return false;
  const auto services = Services();
  return services && SUCCEEDED(services->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                                                        PROPID_ACC_NAME, Widened(name).c_str()));
}

void ForgetAccessibleName(HWND window) {
  if (const auto services = Services())
    services->ClearHwndProps(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, &PROPID_ACC_NAME, 1);
}

}  // namespace orx::win32
