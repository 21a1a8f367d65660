// What this desktop borrows from the host's thread: the look of the common controls and the awareness of the screen's
// dpi. Both are set for the duration of a call and then restored; nothing of the process is changed.
#pragma once

#include <windows.h>

namespace orx::win32 {

/// While one lives, windows are made with the look of common controls 6 and measured in the system's dpi.
class GuestScope {
 public:
  GuestScope();
  ~GuestScope();
  GuestScope(const GuestScope&) = delete;
  GuestScope& operator=(const GuestScope&) = delete;

 private:
  ULONG_PTR mCookie = 0;
  bool mHasLook = false;
  HANDLE mDpiBefore = nullptr;
};

/// The dots per inch that the system scales to. For use within a GuestScope.
int SystemDpi();

}  // namespace orx::win32
