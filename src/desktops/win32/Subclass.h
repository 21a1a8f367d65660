// Receives the messages of a window before the window does, for as long as both live.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace orx::win32 {

/// Removes itself from the window when it is destroyed. A window has at most one for each `proc`.
class Subclass {
 public:
  /// Calls `proc` with `self` as its last argument; a null window is left alone.
  Subclass(HWND window, SUBCLASSPROC proc, void* self);
  ~Subclass();
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;

  /// For `proc`: lets the window handle the message.
  static LRESULT CallNext(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  /// The `self` of the subclass with that proc, null for windows without one.
  static void* SelfOf(HWND window, SUBCLASSPROC proc);

 private:
  HWND mWindow;
  SUBCLASSPROC mProc;
};

}  // namespace orx::win32
