#include "desktops/win32/Peers.h"

namespace orx::win32 {

namespace {

HWND Make(const wchar_t* className, DWORD style, const WindowSite& site, DWORD extendedStyle) {
  return Made(CreateWindowExW(extendedStyle, className, L"", style | WS_CHILD, 0, 0, 0, 0, site.Parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(site.Id)), ThisModule(), nullptr));
}

}  // namespace

HWND MakeWindow(const wchar_t* className, DWORD style, const WindowSite& site, DWORD extendedStyle) {
  const DWORD layout = site.IsMirrored ? WS_EX_LAYOUTRTL | WS_EX_NOINHERITLAYOUT : 0;
  return Make(className, style, site, extendedStyle | layout);
}

HWND MakePane(DWORD style, const WindowSite& site, const wchar_t* className) {
  return Make(className, style, site, WS_EX_CONTROLPARENT);
}

}  // namespace orx::win32
