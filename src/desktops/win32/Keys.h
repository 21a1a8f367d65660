// Keys that mean something to a dialog as a whole, whoever runs the message loop.
#pragma once

#include <windows.h>

#include <optional>

#include "forms/Keys.h"

namespace orx::win32 {

/// The dialog key that a message carries, none for all other messages.
std::optional<KeyStroke> StrokeOf(const MSG& message);
/// The same for arrow keys, which move the focus where a control has no use for them.
std::optional<KeyStroke> ArrowStrokeOf(const MSG& message);

/// While one lives, the thread's messages are seen before the host dispatches them, so that the keys of modeless
/// dialogs work in its loop. A key that is found there reaches the dialog as a message of its own.
class KeyHook {
 public:
  KeyHook();
  ~KeyHook();
  KeyHook(const KeyHook&) = delete;
  KeyHook& operator=(const KeyHook&) = delete;

 private:
  HHOOK mHook;
};

/// Hands a message that was taken from the queue to its dialog. True when it has been handled; all others are to be
/// translated and dispatched.
bool DealWithKey(const MSG& message);

/// Takes one message from the queue and handles it. False for WM_QUIT, which is put back.
bool HandleOneMessage(MSG& message);

}  // namespace orx::win32
