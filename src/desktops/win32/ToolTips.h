// The tool tips of a dialog, also over controls that are disabled, where the platform shows none by itself.
#pragma once

#include <windows.h>

#include <string>

namespace orx::win32 {

class ToolTips {
 public:
  /// Sets the text that is shown while the mouse rests on a window in the dialog; an empty one removes it.
  void Set(HWND dialog, HWND tool, const std::string& text);
  /// The mouse is in that window, which the platform has chosen among those that are enabled.
  void MouseIsIn(HWND window, UINT message);

 private:
  void Stand(HWND window, HWND disabled, const std::string& text);

  /// Belongs to the dialog's window, which destroys it.
  HWND mTips = nullptr;
  /// The disabled window that has a tool tip now, and the window that takes the mouse for it.
  HWND mDisabled = nullptr;
  HWND mTaker = nullptr;
};

}  // namespace orx::win32
