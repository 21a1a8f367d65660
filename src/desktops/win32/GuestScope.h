// Whose surroundings the thread has: the library's, which it borrows where it touches native windows, or the host's
// own, in which all code of the host runs. Both are set for the duration of a call and then restored; nothing of the
// process is changed.
#pragma once

#include <windows.h>

#include <memory>

namespace orx::win32 {

/// What decides how the windows of a thread look and are measured: its activation context, and its awareness of the
/// screen's dpi.
struct Surroundings {
  /// Those of the calling thread now.
  static Surroundings OfThread();

  /// Null: those of the process.
  std::shared_ptr<void> Look;
  /// Null where the platform has one awareness for the whole process.
  HANDLE DpiContext = nullptr;
};

/// Gives the thread these surroundings for as long as it lives. Scopes end in the opposite order of their beginning.
class SurroundingsScope {
 public:
  explicit SurroundingsScope(Surroundings wanted);
  ~SurroundingsScope();
  SurroundingsScope(const SurroundingsScope&) = delete;
  SurroundingsScope& operator=(const SurroundingsScope&) = delete;

 private:
  Surroundings mWanted;
  ULONG_PTR mCookie = 0;
  bool mHasLook = false;
  HANDLE mDpiBefore = nullptr;
};

/// While one lives, windows are made with the look of common controls 6 and measured in the system's dpi.
class GuestScope : public SurroundingsScope {
 public:
  GuestScope();
};

/// The dots per inch that the system scales to. For use within a GuestScope.
int SystemDpi();

}  // namespace orx::win32
