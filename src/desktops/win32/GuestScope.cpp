#include "desktops/win32/GuestScope.h"

#include <utility>

#include "desktops/win32/Handles.h"

namespace orx::win32 {
namespace {

/// The id of the manifest in a library's resources.
constexpr int kManifest = 2;

/// The dpi awareness contexts, by their documented values: not all headers define them.
const HANDLE kSystemAware = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-2));

template <class Function>
Function UserFunction(const char* name) {
  // Through void (*)(), as the types of the functions differ from what GetProcAddress gives.
  return reinterpret_cast<Function>(
      reinterpret_cast<void (*)()>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

HANDLE SetDpiContext(HANDLE context) {
  using Function = HANDLE(WINAPI*)(HANDLE);
  static const auto set = UserFunction<Function>("SetThreadDpiAwarenessContext");
  return set ? set(context) : nullptr;
}

HANDLE ThreadDpiContext() {
  using Function = HANDLE(WINAPI*)();
  static const auto get = UserFunction<Function>("GetThreadDpiAwarenessContext");
  return get ? get() : nullptr;
}

std::shared_ptr<void> Owned(HANDLE look) {
  return {look, [](HANDLE context) {
            if (context) ReleaseActCtx(context);
          }};
}

/// The activation context of this module's manifest, as long as the module is loaded. A program without such a manifest
/// keeps its own look.
const std::shared_ptr<void>& OwnLook() {
  static const std::shared_ptr<void> look = [] {
    ACTCTXW wanted = {};
    wanted.cbSize = sizeof(wanted);
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = ThisModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(kManifest);
    const HANDLE made = CreateActCtxW(&wanted);
    return Owned(made != INVALID_HANDLE_VALUE ? made : nullptr);
  }();
  return look;
}

Surroundings GuestSurroundings() {
  Surroundings guest{OwnLook(), kSystemAware};
  if (!guest.Look) guest.Look = Surroundings::OfThread().Look;
  return guest;
}

}  // namespace

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

Surroundings Surroundings::OfThread() {
  HANDLE look = nullptr;
  GetCurrentActCtx(&look);
  return {Owned(look), ThreadDpiContext()};
}

SurroundingsScope::SurroundingsScope(Surroundings wanted) : mWanted(std::move(wanted)) {
  mHasLook = ActivateActCtx(mWanted.Look.get(), &mCookie);
  if (mWanted.DpiContext) mDpiBefore = SetDpiContext(mWanted.DpiContext);
}

SurroundingsScope::~SurroundingsScope() {
  if (mDpiBefore) SetDpiContext(mDpiBefore);
  if (mHasLook) DeactivateActCtx(0, mCookie);
}

GuestScope::GuestScope() : SurroundingsScope(GuestSurroundings()) {
}

int SystemDpi() {
  using Function = UINT(WINAPI*)();
  static const auto ask = UserFunction<Function>("GetDpiForSystem");
  if (ask) return static_cast<int>(ask());
  return GetDeviceCaps(WindowContext(nullptr).Get(), LOGPIXELSY);
}

}  // namespace orx::win32
