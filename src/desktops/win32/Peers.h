// Makes the native mirror of each kind of control. Each function is in the file named after its kind.
#pragma once

#include <memory>

#include "desktops/win32/Peer.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/ControlVisitor.h"

namespace orx::win32 {

/// Where a window is to be made, and its control id.
struct WindowSite {
  HWND Parent;
  int Id;
  /// Whether its form is read from right to left.
  bool IsMirrored = false;
};

/// Makes a child window of one of the system's classes, which the system mirrors inside where that is asked for. The
/// places of windows are mirrored by their arrangement, and therefore not by those that they stand in.
HWND MakeWindow(const wchar_t* className, DWORD style, const WindowSite& site, DWORD extendedStyle = 0);
/// Makes an empty child window that its peer draws or that holds controls. It is never mirrored inside.
HWND MakePane(DWORD style, const WindowSite& site, const wchar_t* className = WindowClasses::kPane);

/// Makes the peer of a control with a new window. The window does not show the control's state yet: call UpdateAll once
/// all controls have their peers.
std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(CheckBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ComboBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Frame& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(NativeArea& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(Panel& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(PictureBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(ProgressBar& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TabControl& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TextBox& control, Dialog& dialog, const WindowSite& site);
std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, const WindowSite& site);

}  // namespace orx::win32
