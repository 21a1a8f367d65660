// A value that all user-interface threads of a process share.
#pragma once

#include <functional>
#include <mutex>
#include <utility>

namespace orx {

/// Only copies of the value come out, so that a thread that goes on reading one does not see another thread's change.
template <class Value>
class ProcessWide {
 public:
  /// Starts with a value.
  ProcessWide() = default;
  explicit ProcessWide(Value value) : mValue(std::move(value)) {}

  /// Reads and replaces the whole value.
  Value Get() const {
    const std::lock_guard lock(mMutex);
    return mValue;
  }
  void Set(Value value) {
    Change([&](Value& shared) { shared = std::move(value); });
  }
  /// Changes a part of the value while no other thread can. `change` must not use this value in another way.
  void Change(const std::function<void(Value&)>& change) {
    const std::lock_guard lock(mMutex);
    change(mValue);
  }

 private:
  mutable std::mutex mMutex;
  Value mValue{};
};

}  // namespace orx
