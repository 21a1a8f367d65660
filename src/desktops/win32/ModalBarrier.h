// Keeps the user in a modal window: all other windows of the thread are disabled while it is open.
#pragma once

#include <windows.h>

#include <vector>

namespace orx::win32 {

/// Disables windows for as long as it lives. When an older barrier goes before a newer one, its windows stay disabled
/// until the newer one goes as well.
class ModalBarrier {
 public:
  /// Disables the windows of this thread that can be seen, except `front`, and `owner` (null: none), which may belong
  /// to another thread.
  explicit ModalBarrier(HWND front, HWND owner = nullptr);
  ~ModalBarrier();
  ModalBarrier(const ModalBarrier&) = delete;
  ModalBarrier& operator=(const ModalBarrier&) = delete;

 private:
  static BOOL CALLBACK Disable(HWND window, LPARAM barrier);

  static thread_local ModalBarrier* theNewest;

  HWND mFront;
  ModalBarrier* mOlder;
  std::vector<HWND> mDisabled;
};

}  // namespace orx::win32
