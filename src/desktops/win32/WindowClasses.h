// The window classes of this desktop, registered for this module while it has windows.
#pragma once

#include <windows.h>

#include <optional>

namespace orx::win32 {

/// The platform sends notifications to a control's parent. Windows of these classes send them back to the control as
/// these messages, because its peer is the one that knows what to do.
inline constexpr UINT kChildCommand = WM_APP + 1;  // wParam: notification code
inline constexpr UINT kChildNotify = WM_APP + 2;   // lParam: const NMHDR*
/// Sent to a dialog in place of a key message that a host has taken from the queue.
inline constexpr UINT kDeferredKey = WM_APP + 3;

/// Returns a window that has just been made. Throws std::runtime_error when the platform, or a hook of the host, has
/// refused it.
HWND Made(HWND window);

/// Keeps the classes registered. Each dialog has one; the last one to go unregisters them.
class WindowClasses {
 public:
  WindowClasses();
  ~WindowClasses();
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;

  /// The classes of dialogs, of pictures (which report double clicks), and of all other windows that hold controls or
  /// are drawn by a peer.
  static constexpr wchar_t kDialog[] = L"OrvexMapDialogs2.Dialog";
  static constexpr wchar_t kPicture[] = L"OrvexMapDialogs2.Picture";
  static constexpr wchar_t kPane[] = L"OrvexMapDialogs2.Pane";
};

/// Sends a notification back to the child that it came from and returns the child's answer; none when the message is no
/// notification.
std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace orx::win32
