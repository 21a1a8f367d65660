// The fixture of the tests of the Windows desktop alone: the native windows behind a form.
#pragma once

#include <windows.h>

#include <string>

#include "desktops/win32/Dialog.h"
#include "desktops/win32/Peer.h"
#include "desktops/win32/Text.h"
#include "desktops/win32/Win32Desktop.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/HostWindow.h"

namespace orx::test {

class Win32FormsTest : public FormsTest {
 protected:
  win32::Win32Desktop& Win32Only() { return dynamic_cast<win32::Win32Desktop&>(desktop()); }

  static HWND WindowOf(const Form& shown) { return reinterpret_cast<HWND>(shown.Window()->NativeHandle()); }
  static HWND WindowOf(const Control& control) { return win32::PeerOf(control)->Window(); }
  static HWND FieldOf(const Control& control) { return win32::PeerOf(control)->FocusWindow(); }
  static LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return SendMessageW(window, message, wParam, lParam);
  }

  static std::string TextOf(HWND window) {
    wchar_t text[500] = {};
    GetWindowTextW(window, text, 500);
    return win32::Narrowed(text);
  }

  /// The place of a control's window in the window of its form, in pixels.
  static RECT PlaceInWindow(const Control& control) {
    RECT place;
    GetWindowRect(WindowOf(control), &place);
    MapWindowPoints(nullptr, GetAncestor(WindowOf(control), GA_ROOT), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  void PressKey(HWND window, WPARAM key) {
    PostMessageW(window, WM_KEYDOWN, key, 1);
    desktop().ProcessPendingEvents();
  }
};

}  // namespace orx::test
