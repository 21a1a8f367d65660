#include "com/Surroundings.h"

#include <windows.h>

#include <map>
#include <mutex>

#include "com/PageControls.h"
#include "desktops/win32/Win32Desktop.h"
#include "pages/PageFactory.h"

namespace orx::com {
namespace {

std::function<std::unique_ptr<Desktop>()>& Maker() {
  static std::function<std::unique_ptr<Desktop>()> maker;
  return maker;
}

class ThreadSurroundings final : public Surroundings {
 public:
  ThreadSurroundings() : mScreen(Maker() ? Maker()() : std::make_unique<win32::Win32Desktop>()) {}

  Desktop& Screen() override { return *mScreen; }
  IPageFactory& Pages() override { return mPages; }

 private:
  // The pages of open dialogs go with the desktop, which is why it goes first.
  pages::PageFactory mEmbedded;
  PageControlFactory mPages{mEmbedded};
  std::unique_ptr<Desktop> mScreen;
};

/// One entry for each thread with service objects or open dialogs.
class Threads {
 public:
  std::shared_ptr<Surroundings> Find() {
    const std::lock_guard lock(mMutex);
    Entry& entry = mEntries[GetCurrentThreadId()];
    if (std::shared_ptr<Surroundings> known = entry.Lingering ? entry.Lingering : entry.Known.lock())
      return Shared(std::move(known));
    return Shared(std::make_shared<ThreadSurroundings>());
  }

  /// A reference of a service object is gone.
  void Released(std::shared_ptr<Surroundings> surroundings) {
    const std::lock_guard lock(mMutex);
    Entry& entry = mEntries[GetCurrentThreadId()];
    if (entry.Known.expired() && !surroundings->Screen().OpenForms().empty()) entry.Lingering = std::move(surroundings);
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
    std::weak_ptr<Surroundings> Known;
    std::shared_ptr<Surroundings> Lingering;
  };

  /// What service objects hold: it reports when the last of them lets go.
  std::shared_ptr<Surroundings> Shared(std::shared_ptr<Surroundings> surroundings);

  std::mutex mMutex;
  std::map<DWORD, Entry> mEntries;
};

Threads& AllThreads() {
  static Threads threads;
  return threads;
}

std::shared_ptr<Surroundings> Threads::Shared(std::shared_ptr<Surroundings> surroundings) {
  Entry& entry = mEntries[GetCurrentThreadId()];
  entry.Lingering.reset();
  if (std::shared_ptr<Surroundings> held = entry.Known.lock()) return held;
  Surroundings* const pointer = surroundings.get();
  std::shared_ptr<Surroundings> held(pointer,
                                     [kept = std::move(surroundings)](Surroundings*) { AllThreads().Released(kept); });
  entry.Known = held;
  return held;
}

}  // namespace

std::shared_ptr<Surroundings> Surroundings::OfThread() {
  return AllThreads().Find();
}

bool Surroundings::StillOpen() {
  return AllThreads().StillOpen();
}

void Surroundings::DesktopMaker(std::function<std::unique_ptr<Desktop>()> maker) {
  Maker() = std::move(maker);
}

}  // namespace orx::com
