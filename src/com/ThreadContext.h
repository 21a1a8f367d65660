// What the dialogs of one thread share: the desktop that shows them and the property pages.
#pragma once

#include <functional>
#include <memory>

#include "forms/Desktop.h"
#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// The service objects of a thread share it. When the last one is released while a modeless dialog is still open, the
/// context stays until that dialog is closed.
class ThreadContext {
 public:
  virtual ~ThreadContext() = default;
  virtual Desktop& Screen() = 0;
  virtual IPageFactory& Pages() = 0;

  /// The context of the calling thread, created when there is none. A thread that has ended leaves nothing to a later
  /// one with its number.
  static std::shared_ptr<ThreadContext> OfThread();
  /// Releases the calling thread's context if it only waited for dialogs that have been closed since. True while any
  /// thread that has not ended has a context with open dialogs.
  static bool StillOpen();

  /// For tests: `maker` gives the desktops from now on, shared with whom it likes; an empty function restores the
  /// platform's.
  static void DesktopMaker(std::function<std::shared_ptr<Desktop>()> maker);
};

}  // namespace orx::com
