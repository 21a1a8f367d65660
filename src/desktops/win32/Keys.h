// Keys that belong to a dialog as a whole, whoever pumps the messages.
#pragma once

#include <windows.h>

#include <optional>

#include "forms/Keys.h"

namespace orx::win32 {

/// The dialog key that the message brings, none for all other messages.
std::optional<KeyStroke> StrokeOf(const MSG& message);
/// The same for arrow keys, which move the focus where a control has no use for them.
std::optional<KeyStroke> ArrowStrokeOf(const MSG& message);

/// While one lives, the thread's messages are seen before the host dispatches them, so that the keys of modeless
/// dialogs work in its loop. What is found there is handed to the dialog as a message of its own.
class KeyHook {
 public:
  KeyHook();
  ~KeyHook();
  KeyHook(const KeyHook&) = delete;
  KeyHook& operator=(const KeyHook&) = delete;

 private:
  HHOOK mHook;
};

/// Gives a message that was taken from the queue to the dialog that it is for. True when it is dealt with; the others
/// are to be translated and dispatched.
bool DealWithKey(const MSG& message);

/// Takes one message from the queue and sees to it. False for WM_QUIT, which is put back.
bool HandleOneMessage(MSG& message);

}  // namespace orx::win32
