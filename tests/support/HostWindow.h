// A window of a Windows host.
#pragma once

#include <windows.h>

#include <cstdint>
#include <utility>

#include "forms/FormWindow.h"

namespace orx::test {

/// A window of the host, as its dialogs know it.
class HostWindow {
 public:
  HostWindow()
      : mWindow(CreateWindowExW(0, L"STATIC", L"Host", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr,
                                nullptr)) {}
  ~HostWindow() {
    if (mWindow) DestroyWindow(mWindow);
  }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  HWND Get() const { return mWindow; }
  void Destroy() { DestroyWindow(std::exchange(mWindow, nullptr)); }
  OwnerWindow AsOwner() const { return {nullptr, reinterpret_cast<std::uintptr_t>(mWindow)}; }

 private:
  HWND mWindow;
};

}  // namespace orx::test
