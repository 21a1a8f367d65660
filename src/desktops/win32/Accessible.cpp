#include "desktops/win32/Accessible.h"

#include <initguid.h>
// After initguid.h, so that the identifiers are defined here.
#include <oleacc.h>

#include "desktops/win32/Text.h"

namespace orx::win32 {

void SetAccessibleName(HWND window, const std::string& name) {
  if (name.empty()) return;
  IAccPropServices* services = nullptr;
  // Fails on a thread that has not initialised COM, which is not for a guest to do.
  if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                              reinterpret_cast<void**>(&services))))
    return;
  services->SetHwndPropStr(window, static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF, PROPID_ACC_NAME,
                           Widened(name).c_str());
  services->Release();
}

}  // namespace orx::win32
