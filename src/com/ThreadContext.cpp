#include "com/ThreadContext.h"

#include <windows.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <utility>

#include "com/PageControlFactory.h"
#include "desktops/win32/Handles.h"
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
  /// The context of the calling thread, for a service object to hold.
  std::shared_ptr<ThreadContext> Find();

  bool StillOpen() {
    // Destroyed without the lock: it may be the last of many things.
    const std::unique_ptr<ThreadContext> closed = TakeUnused(GetCurrentThreadId(), nullptr);
    const std::lock_guard lock(mMutex);
    ForgetEnded();
    return std::any_of(mEntries.begin(), mEntries.end(), [](const auto& entry) { return entry.second.Held.expired(); });
  }

  /// The last service object of that thread has let go of the context.
  void Released(DWORD thread, const ThreadContext& context) { TakeUnused(thread, &context); }

 private:
  struct Entry {
    win32::KernelHandle Thread;
    std::unique_ptr<ThreadContext> Context;
    /// What the service objects hold.
    std::weak_ptr<ThreadContext> Held;
  };

  /// Takes the context of a thread out of the list when neither service objects nor open dialogs need it; any context,
  /// or only that one when it is given.
  std::unique_ptr<ThreadContext> TakeUnused(DWORD thread, const ThreadContext* only) {
    const std::lock_guard lock(mMutex);
    const auto found = mEntries.find(thread);
    if (found == mEntries.end()) return nullptr;
    Entry& entry = found->second;
    if ((only && entry.Context.get() != only) || !entry.Held.expired() || !entry.Context->Screen().OpenForms().empty())
      return nullptr;
    std::unique_ptr<ThreadContext> unused = std::move(entry.Context);
    mEntries.erase(found);
    return unused;
  }

  /// Forgets threads that are no more, whose numbers the system gives to later ones. What they have left open is left
  /// to itself: its windows are gone, and the objects of hosts that it holds belonged to the thread.
  void ForgetEnded() {
    for (auto& [thread, entry] : mEntries)
      if (WaitForSingleObject(entry.Thread.get(), 0) == WAIT_OBJECT_0) static_cast<void>(entry.Context.release());
    std::erase_if(mEntries, [](const auto& entry) { return !entry.second.Context; });
  }

  std::mutex mMutex;
  std::map<DWORD, Entry> mEntries;
};

Threads& AllThreads() {
  static Threads threads;
  return threads;
}

std::shared_ptr<ThreadContext> Threads::Find() {
  const std::lock_guard lock(mMutex);
  ForgetEnded();
  const DWORD thread = GetCurrentThreadId();
  auto found = mEntries.find(thread);
  if (found == mEntries.end()) {
    win32::KernelHandle handle(OpenThread(SYNCHRONIZE, FALSE, thread));
    found = mEntries.emplace(thread, Entry{std::move(handle), std::make_unique<DialogContext>(), {}}).first;
  }
  Entry& entry = found->second;
  if (std::shared_ptr<ThreadContext> held = entry.Held.lock()) return held;
  std::shared_ptr<ThreadContext> held(
      entry.Context.get(), [thread](const ThreadContext* context) { AllThreads().Released(thread, *context); });
  entry.Held = held;
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
