#include "desktops/win32/MessageBox.h"

#include <exception>
#include <optional>
#include <string_view>
#include <utility>

#include "desktops/win32/Barrier.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

UINT IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Critical:
      return MB_ICONERROR;
    case MessageIcon::Question:
      return MB_ICONQUESTION;
    case MessageIcon::Exclamation:
      return MB_ICONWARNING;
    case MessageIcon::Information:
      return MB_ICONINFORMATION;
    case MessageIcon::None:
      break;
  }
  return 0;
}

/// The platform's boxes are dialogs of the predefined class.
bool IsBox(HWND window) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return std::wstring_view(name) == L"#32770";
}

/// One box from its opening to its end; boxes can stand one upon the other.
class Session {
 public:
  explicit Session(const std::function<void()>& running)
      : mRunning(running), mOuter(std::exchange(theInnermost, this)) {
    mHook = SetWindowsHookExW(WH_CBT, &Session::SeeWindow, nullptr, GetCurrentThreadId());
  }
  ~Session() {
    Unhook();
    theInnermost = mOuter;
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  static HWND Box() { return theInnermost ? theInnermost->mBox : nullptr; }
  void Rethrow() const {
    if (mError) std::rethrow_exception(mError);
  }

 private:
  static LRESULT CALLBACK SeeWindow(int code, WPARAM wParam, LPARAM lParam) {
    Session& self = *theInnermost;
    if (code == HCBT_ACTIVATE && !self.mBox && IsBox(reinterpret_cast<HWND>(wParam))) {
      self.mBox = reinterpret_cast<HWND>(wParam);
      self.Unhook();
      // The box is not up yet; its loop runs the timer when it is.
      SetTimer(self.mBox, reinterpret_cast<UINT_PTR>(&self), USER_TIMER_MINIMUM, &Session::BoxIsUp);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static void CALLBACK BoxIsUp(HWND box, UINT, UINT_PTR session, DWORD) {
    auto& self = *reinterpret_cast<Session*>(session);
    KillTimer(box, session);
    // The platform bears no exception that passes through its loops.
    try {
      self.mRunning();
    } catch (...) {
      self.mError = std::current_exception();
      PostMessageW(box, WM_COMMAND, IDOK, 0);
    }
  }

  void Unhook() {
    if (mHook) UnhookWindowsHookEx(std::exchange(mHook, nullptr));
  }

  static thread_local Session* theInnermost;

  const std::function<void()>& mRunning;
  Session* mOuter;
  HHOOK mHook = nullptr;
  HWND mBox = nullptr;
  std::exception_ptr mError;
};

thread_local Session* Session::theInnermost = nullptr;

}  // namespace

void RunMessageBox(const Message& message, HWND owner, const std::function<void()>& running) {
  const Session session(running);
  // The platform itself disables the owner alone; without one it disables all windows of the thread.
  std::optional<Barrier> barrier;
  if (owner) barrier.emplace(owner);
  const UINT kind = MB_OK | IconOf(message.Icon) | (owner ? MB_APPLMODAL : MB_TASKMODAL) | MB_SETFOREGROUND;
  MessageBoxW(owner, Widened(message.Text).c_str(), Widened(message.Title).c_str(), kind);
  session.Rethrow();
}

HWND OpenMessageBox() {
  const HWND box = Session::Box();
  return box && IsWindow(box) ? box : nullptr;
}

}  // namespace orx::win32
