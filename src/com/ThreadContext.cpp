#include "com/ThreadContext.h"

#include <windows.h>

#include <map>
#include <mutex>

#include "com/PageControlFactory.h"
#include "desktops/win32/Win32Desktop.h"
#include "pages/PageFactory.h"

namespace orx::com {
namespace {

std::function<std::shared_ptr<Desktop>()>& Maker() {
  static std::function<std::shared_ptr<Desktop>()> maker;
  return maker;
}

class DialogContext final : public ThreadContext {
 public:
  DialogContext() : mScreen(Maker() ? Maker()() : std::make_shared<win32::Win32Desktop>()) {}

  Desktop& Screen() override { return *mScreen; }
  IPageFactory& Pages() override { return mPages; }

 private:
  // The desktop is the last and so destroyed first: pages of open dialogs go with it, and need the factories.
  pages::PageFactory mEmbedded;
  PageControlFactory mPages{mEmbedded};
  std::shared_ptr<Desktop> mScreen;
};

/// One entry for each thread with service objects or open dialogs.
class Threads {
 public:
  std::shared_ptr<ThreadContext> Find() {
    const std::lock_guard lock(mMutex);
    Entry& entry = mEntries[GetCurrentThreadId()];
    if (std::shared_ptr<ThreadContext> known = entry.Lingering ? entry.Lingering : entry.Known.lock())
      return Shared(std::move(known));
    return Shared(std::make_shared<DialogContext>());
  }

  /// The last service object of a thread has released its context.
  void Released(std::shared_ptr<ThreadContext> context) {
    const std::lock_guard lock(mMutex);
    Entry& entry = mEntries[GetCurrentThreadId()];
    if (entry.Known.expired() && !context->Screen().OpenForms().empty()) entry.Lingering = std::move(context);
    if (entry.Known.expired() && !entry.Lingering) mEntries.erase(GetCurrentThreadId());
  }

  bool StillOpen() {
    const std::lock_guard lock(mMutex);
    const auto own = mEntries.find(GetCurrentThreadId());
    if (own != mEntries.end() && own->second.Lingering && own->second.Lingering->Screen().OpenForms().empty())
      own->second.Lingering.reset();
    for (const auto& [thread, entry] : mEntries)
      if (entry.Lingering) return true;
    return false;
  }

 private:
  struct Entry {
    std::weak_ptr<ThreadContext> Known;
    std::shared_ptr<ThreadContext> Lingering;
  };

  /// What service objects hold. It reports when the last of them is gone.
  std::shared_ptr<ThreadContext> Shared(std::shared_ptr<ThreadContext> context);

  std::mutex mMutex;
  std::map<DWORD, Entry> mEntries;
};

Threads& AllThreads() {
  static Threads threads;
  return threads;
}

std::shared_ptr<ThreadContext> Threads::Shared(std::shared_ptr<ThreadContext> context) {
  Entry& entry = mEntries[GetCurrentThreadId()];
  entry.Lingering.reset();
  if (std::shared_ptr<ThreadContext> held = entry.Known.lock()) return held;
  ThreadContext* const pointer = context.get();
  std::shared_ptr<ThreadContext> held(pointer,
                                      [kept = std::move(context)](ThreadContext*) { AllThreads().Released(kept); });
  entry.Known = held;
  return held;
}

}  // namespace

std::shared_ptr<ThreadContext> ThreadContext::OfThread() {
  return AllThreads().Find();
}

bool ThreadContext::StillOpen() {
  return AllThreads().StillOpen();
}

void ThreadContext::DesktopMaker(std::function<std::shared_ptr<Desktop>()> maker) {
  Maker() = std::move(maker);
}

}  // namespace orx::com
