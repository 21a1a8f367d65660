#include "desktops/win32/PlatformDialog.h"

#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "desktops/win32/ModalBarrier.h"

namespace orx::win32 {
namespace {

/// The platform's dialogs have its predefined window class.
bool IsBox(HWND window) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return std::wstring_view(name) == L"#32770";
}

/// One open dialog; dialogs can be nested.
class PlatformSession {
 public:
  PlatformSession(const std::function<void()>& running, int closing)
      : mRunning(running), mClosing(closing), mOuter(std::exchange(theInnermost, this)) {
    mHook = SetWindowsHookExW(WH_CBT, &PlatformSession::SeeWindow, nullptr, GetCurrentThreadId());
  }
  ~PlatformSession() {
    Unhook();
    theInnermost = mOuter;
  }
  PlatformSession(const PlatformSession&) = delete;
  PlatformSession& operator=(const PlatformSession&) = delete;

  static HWND Box() { return theInnermost ? theInnermost->mBox : nullptr; }
  void Rethrow() const {
    if (mError) std::rethrow_exception(mError);
  }

 private:
  static LRESULT CALLBACK SeeWindow(int code, WPARAM wParam, LPARAM lParam) {
    PlatformSession& self = *theInnermost;
    if (code == HCBT_ACTIVATE && !self.mBox && IsBox(reinterpret_cast<HWND>(wParam))) {
      self.mBox = reinterpret_cast<HWND>(wParam);
      self.Unhook();
      // The dialog is not up yet; its message loop runs the timer once it is.
      SetTimer(self.mBox, reinterpret_cast<UINT_PTR>(&self), USER_TIMER_MINIMUM, &PlatformSession::BoxIsUp);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static void CALLBACK BoxIsUp(HWND box, UINT, UINT_PTR session, DWORD) {
    auto& self = *reinterpret_cast<PlatformSession*>(session);
    KillTimer(box, session);
    // Exceptions must not pass through the platform's message loops.
    try {
      self.mRunning();
    } catch (...) {
      self.mError = std::current_exception();
      PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(self.mClosing), 0);
    }
  }

  void Unhook() {
    if (mHook) UnhookWindowsHookEx(std::exchange(mHook, nullptr));
  }

  static thread_local PlatformSession* theInnermost;

  const std::function<void()>& mRunning;
  int mClosing;
  PlatformSession* mOuter;
  HHOOK mHook = nullptr;
  HWND mBox = nullptr;
  std::exception_ptr mError;
};

thread_local PlatformSession* PlatformSession::theInnermost = nullptr;

}  // namespace

void RunPlatformDialog(HWND owner, const std::function<void()>& running, int closing,
                       const std::function<void()>& show) {
  const PlatformSession session(running, closing);
  // The platform itself disables only the owner; without one it disables all windows of the thread.
  std::optional<ModalBarrier> barrier;
  if (owner) barrier.emplace(owner);
  show();
  session.Rethrow();
}

HWND OpenPlatformDialog() {
  const HWND dialog = PlatformSession::Box();
  return dialog && IsWindow(dialog) ? dialog : nullptr;
}

}  // namespace orx::win32
