// The window classes of this desktop, registered for this module while it has windows.
#pragma once

#include <windows.h>

#include <optional>

namespace orx::win32 {

/// The messages that windows of these classes send to their children in place of the platform's own, which go to the
/// parent: the child's peer is the one that knows what to do.
inline constexpr UINT kChildCommand = WM_APP + 1;  // wParam: notification code
inline constexpr UINT kChildNotify = WM_APP + 2;   // lParam: const NMHDR*
/// Sent to a dialog in place of a key message that a host has taken from the queue.
inline constexpr UINT kDeferredKey = WM_APP + 3;

/// Keeps the classes registered. Dialogs have one each; the last one unregisters.
class WindowClasses {
 public:
  WindowClasses();
  ~WindowClasses();
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;

  /// The class of dialogs, that of pictures, which tell double clicks apart, and that of all other windows that hold
  /// controls or are drawn by a peer.
  static constexpr wchar_t kDialog[] = L"OrvexMapDialogs2.Dialog";
  static constexpr wchar_t kPicture[] = L"OrvexMapDialogs2.Picture";
  static constexpr wchar_t kPane[] = L"OrvexMapDialogs2.Pane";
};

/// Sends notifications of a child back to it and gives its answer; none when the message was no notification.
std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace orx::win32
