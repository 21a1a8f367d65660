// What keeps the user to a modal window: all others of the thread are disabled meanwhile.
#pragma once

#include <windows.h>

#include <vector>

namespace orx::win32 {

/// Disables windows while it lives. When an older barrier falls before a newer one, its windows stay disabled until
/// that one falls, too.
class Barrier {
 public:
  /// Disables the windows of this thread that can be seen, except `front`, and `owner` (null: none), which may belong
  /// to another thread.
  explicit Barrier(HWND front, HWND owner = nullptr);
  ~Barrier();
  Barrier(const Barrier&) = delete;
  Barrier& operator=(const Barrier&) = delete;

 private:
  static BOOL CALLBACK Disable(HWND window, LPARAM barrier);

  static thread_local Barrier* theNewest;

  HWND mFront;
  Barrier* mOlder;
  std::vector<HWND> mDisabled;
};

}  // namespace orx::win32
