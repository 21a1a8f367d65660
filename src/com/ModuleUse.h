// What keeps the module loaded: objects that hosts hold, locks, and dialogs that are still open.
#pragma once

#include <windows.h>

namespace orx::com {

/// Counts one use of the module while it lives.
class ModuleUse {
 public:
  ModuleUse() { InterlockedIncrement(&theUses); }
  ~ModuleUse() { InterlockedDecrement(&theUses); }
  ModuleUse(const ModuleUse&) = delete;
  ModuleUse& operator=(const ModuleUse&) = delete;

  static LONG Count() { return theUses; }
  /// For IClassFactory::LockServer.
  static void Lock(bool on) { on ? InterlockedIncrement(&theUses) : InterlockedDecrement(&theUses); }

 private:
  static inline volatile LONG theUses = 0;
};

}  // namespace orx::com
