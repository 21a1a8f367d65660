#include "desktops/win32/WindowClasses.h"

#include <mutex>
#include <stdexcept>
#include <string>

#include "desktops/win32/Dialog.h"

namespace orx::win32 {
namespace {

/// Dialogs of several threads share the classes.
std::mutex theLock;
int theUsers = 0;

LRESULT CALLBACK PaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (const std::optional<LRESULT> answer = Reflect(message, wParam, lParam)) return *answer;
  return DefWindowProcW(window, message, wParam, lParam);
}

void Register(const wchar_t* name, WNDPROC proc, UINT style = 0) {
  WNDCLASSEXW made = {};
  made.cbSize = sizeof(made);
  made.lpszClassName = name;
  made.style = style;
  made.lpfnWndProc = proc;
  made.hInstance = ThisModule();
  made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  made.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  // A module that stood here before may have left its own, when a thread had ended in the middle of a dialog.
  UnregisterClassW(name, ThisModule());
  RegisterClassExW(&made);
}

}  // namespace

HWND Made(HWND window) {
  if (window) return window;
  throw std::runtime_error("The system does not let the dialog have a window (error " + std::to_string(GetLastError()) +
                           "). Close other programs or windows and try again.");
}

WindowClasses::WindowClasses() {
  const std::lock_guard lock(theLock);
  if (++theUsers > 1) return;
  Register(kDialog, &Dialog::WindowProc);
  Register(kPane, &PaneProc);
  Register(kPicture, &PaneProc, CS_DBLCLKS);
}

WindowClasses::~WindowClasses() {
  const std::lock_guard lock(theLock);
  if (--theUsers > 0) return;
  UnregisterClassW(kDialog, ThisModule());
  UnregisterClassW(kPane, ThisModule());
  UnregisterClassW(kPicture, ThisModule());
}

std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && lParam != 0)
    return SendMessageW(reinterpret_cast<HWND>(lParam), kChildCommand, HIWORD(wParam), 0);
  if (message == WM_NOTIFY)
    return SendMessageW(reinterpret_cast<const NMHDR*>(lParam)->hwndFrom, kChildNotify, 0, lParam);
  return std::nullopt;
}

}  // namespace orx::win32
