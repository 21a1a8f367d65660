// An event of a control or page. It has one handler, set by the form that owns the control.
#pragma once

#include <functional>
#include <utility>

namespace orx {

/// Holds at most one handler. Raising an event that nobody handles does nothing.
template <class... Args>
class Event {
 public:
  /// The type of the handler.
  using Handler = std::function<void(Args...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Sets the handler, in place of an earlier one; an empty function removes it.
  Event& operator=(Handler handler) {
    mHandler = std::move(handler);
    return *this;
  }

  /// True when raising the event runs something.
  bool HasHandler() const { return static_cast<bool>(mHandler); }

  /// Runs the handler. What it throws travels to the caller.
  void Raise(Args... args) const {
    // The copy lives through the call even when the handler replaces itself.
    const Handler handler = mHandler;
    if (handler) handler(args...);
  }

 private:
  Handler mHandler;
};

}  // namespace orx
