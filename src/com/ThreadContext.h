// What the dialogs of one thread share: the desktop that shows them and the property pages.
#pragma once

#include <functional>
#include <memory>

#include "forms/Desktop.h"
#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// Service objects of a thread hold it. When the last one is let go while a modeless dialog is still open, it stays
/// until that is closed.
class ThreadContext {
 public:
  virtual ~ThreadContext() = default;
  virtual Desktop& Screen() = 0;
  virtual IPageFactory& Pages() = 0;

  /// Those of the calling thread; made when there are none.
  static std::shared_ptr<ThreadContext> OfThread();
  /// Lets go of those that only waited for dialogs of the calling thread which have been closed since. True while any
  /// are left, on any thread.
  static bool StillOpen();

  /// For tests: makes the desktops from now on; an empty function: the platform's again.
  static void DesktopMaker(std::function<std::unique_ptr<Desktop>()> maker);
};

}  // namespace orx::com
