#include "desktops/win32/GuestScope.h"

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

/// The activation context of this module's manifest; it lives as long as the module is loaded.
class Look {
 public:
  Look() {
    ACTCTXW wanted = {};
    wanted.cbSize = sizeof(wanted);
    wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    wanted.hModule = ThisModule();
    wanted.lpResourceName = MAKEINTRESOURCEW(kManifest);
    mContext = CreateActCtxW(&wanted);
  }
  ~Look() {
    if (Exists()) ReleaseActCtx(mContext);
  }
  Look(const Look&) = delete;
  Look& operator=(const Look&) = delete;

  /// False in a program without such a manifest, which keeps its own look.
  bool Exists() const { return mContext != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return mContext; }

 private:
  HANDLE mContext;
};

}  // namespace

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&ThisModule), &module);
  return module;
}

GuestScope::GuestScope() : mDpiBefore(SetDpiContext(kSystemAware)) {
  static const Look look;
  mHasLook = look.Exists() && ActivateActCtx(look.Get(), &mCookie);
}

GuestScope::~GuestScope() {
  if (mHasLook) DeactivateActCtx(0, mCookie);
  if (mDpiBefore) SetDpiContext(mDpiBefore);
}

int SystemDpi() {
  using Function = UINT(WINAPI*)();
  static const auto ask = UserFunction<Function>("GetDpiForSystem");
  if (ask) return static_cast<int>(ask());
  return GetDeviceCaps(WindowContext(nullptr).Get(), LOGPIXELSY);
}

}  // namespace orx::win32
